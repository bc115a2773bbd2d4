#include "editors/panels/settingseditor.h"

#include "canvas/screenitem.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace
{
constexpr int columnWidth = 320; // pixels
constexpr int nameSpacing = 10;  // pixels
} // namespace

SettingsEditor::SettingsEditor(QWidget *parent) : QScrollArea(parent)
{
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setWidgetResizable(true);
    auto *inner = new QWidget;
    m_layout = new QVBoxLayout(inner);
    m_nameLabel = new QLabel(tr("Name"), inner);
    m_nameEdit = new QLineEdit(inner);
    m_nameLabel->setBuddy(m_nameEdit);
    setWidget(inner);
    setObjectName(QStringLiteral("SettingsEditor"));
    addNameRow();
    showName(false);
    setStyleSheet(QStringLiteral("background-color:#454545;"));
    setFixedWidth(columnWidth);
}

void SettingsEditor::addNameRow()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(nameSpacing);
    row->addWidget(m_nameLabel);
    row->addWidget(m_nameEdit);
    m_layout->addLayout(row);
}

void SettingsEditor::showName(bool isShown)
{
    m_nameEdit->setVisible(isShown);
    m_nameLabel->setVisible(isShown);
}

void SettingsEditor::setActiveItem(ScreenItem *item)
{
    if (item == m_item)
        return;
    dropContainer();
    m_item = item;
    showName(item);
    if (!item)
        return;
    followName(*item);
    buildPanel(*item);
    m_ending = connect(item, &QObject::destroyed, this, &SettingsEditor::itemDeleted);
}

void SettingsEditor::followName(ScreenItem &item)
{
    // Whoever listened before, so that the former item keeps its name. Not to everything: style sheets have
    // to hear of the end of every widget.
    disconnect(m_nameEdit, &QLineEdit::textChanged, nullptr, nullptr);
    m_nameEdit->setText(item.name());
    connect(m_nameEdit, &QLineEdit::textChanged, &item, &ScreenItem::setMyName);
}

void SettingsEditor::putNameLast()
{
    // The panel's editors join the end of the window's tab order, behind those of every other bar.
    QWidget *last = window()->previousInFocusChain();
    while (last->focusPolicy() == Qt::NoFocus && last != m_nameEdit)
        last = last->previousInFocusChain();
    if (last != m_nameEdit)
        setTabOrder(last, m_nameEdit);
}

void SettingsEditor::buildPanel(ScreenItem &item)
{
    putNameLast();
    m_container = new QWidget(widget());
    m_layout->addWidget(m_container);
    item.buildSettingsPanel(m_container);
    m_container->show();
}

void SettingsEditor::itemDeleted(QObject *sndr)
{
    Q_UNUSED(sndr)
    dropContainer();
    showName(false);
}

void SettingsEditor::dropContainer()
{
    // An item that is about to go may have yet to tell; it shall not empty the next one's panel.
    disconnect(m_ending);
    if (!m_container)
        return;
    QWidget *container = m_container;
    m_container = nullptr;
    container->hide();
    forgetItemOf(*container);
    // Not at once: the call may come out of one of its own editors.
    container->deleteLater();
}

void SettingsEditor::forgetItemOf(const QWidget &container)
{
    if (!m_item)
        return;
    for (const QObject *panel : container.children())
        m_item->disconnect(panel);
}
