#include "editors/propertypanel.h"

#include "editors/categorybutton.h"
#include "editors/intedit.h"
#include "editors/keylabel.h"
#include "editors/variableedit.h"
#include "model/keys.h"

#include <QFrame>
#include <QGridLayout>
#include <QHeaderView>
#include <QVBoxLayout>

namespace
{
constexpr int gridMargin = 4;   // pixels
constexpr int gridSpacing = 5;  // pixels
constexpr int labelSpacing = 4; // pixels

/// The editors of a layout and of the layouts in it. An editor is moved with everything in it, but only when
/// it has a focus policy itself.
QList<QWidget *> focusStops(const QLayout &layout)
{
    QList<QWidget *> stops;
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem *item = layout.itemAt(i);
        QWidget *editor = item->widget();
        if (item->layout())
            stops.append(focusStops(*item->layout()));
        else if (editor && editor->focusProxy()) {
            editor->setFocusPolicy(editor->focusProxy()->focusPolicy());
            stops.append(editor);
        }
    }
    return stops;
}

/// True for a frame: it takes values and announces them as a content does.
bool takesValues(const QObject *object)
{
    return object && object->metaObject()->indexOfSlot("setValue(QString,QVariant)") >= 0;
}
} // namespace

PropertyPanel::PropertyPanel(ContentViewer *content, QWidget *host) : QTreeWidget(host), m_content(content)
{
    auto *layout = new QVBoxLayout(host);
    layout->setContentsMargins(0, 0, 0, 0);
    header()->hide();
    clear();
    setRootIsDecorated(false);
    setIndentation(0);
    setFocusPolicy(Qt::NoFocus);
    // The toolkit would select the row of whatever gets the focus, and paint over the headers with it.
    setSelectionMode(QAbstractItemView::NoSelection);
    layout->addWidget(this);
    show();
    // clang-format off
    connect(announcer(), SIGNAL(valueChanged(QString,QVariant)), this, SLOT(showValue(QString,QVariant)));
    // clang-format on
}

QObject *PropertyPanel::announcer() const
{
    QObject *frame = m_content->parentWidget();
    return takesValues(frame) ? frame : m_content.data();
}

void PropertyPanel::bind(VariableEdit *editor, const QString &key)
{
    editor->setValue(key, m_content->getValue(key));
    // Only now: what the first value makes an editor tell is no edit.
    connect(editor, &VariableEdit::valueEdited, this, &PropertyPanel::editValue);
    connectLimits(editor);
    editor->layout()->setContentsMargins(0, 0, 0, 0);
    editor->layout()->setSpacing(0);
    m_editors.append(editor);
}

void PropertyPanel::alignLabels(const QList<VariableEdit *> &editors)
{
    int width = 0;
    for (const VariableEdit *editor : editors) {
        if (const auto *label = editor->findChild<KeyLabel *>())
            width = qMax(width, label->sizeHint().width());
    }
    for (const VariableEdit *editor : editors) {
        if (auto *label = editor->findChild<KeyLabel *>())
            label->setMinimumWidth(width + labelSpacing);
    }
}

void PropertyPanel::connectLimits(VariableEdit *editor)
{
    connect(editor, &VariableEdit::getMax, m_content, &ContentViewer::getMaxValue, Qt::DirectConnection);
    connect(editor, &VariableEdit::getMin, m_content, &ContentViewer::getMinValue, Qt::DirectConnection);
}

QGridLayout *PropertyPanel::addCategory(const QString &text)
{
    auto *category = new QTreeWidgetItem(this);
    setItemWidget(category, 0, new CategoryButton(text, this, category));
    auto *rows = new QFrame(this);
    auto *grid = new QGridLayout(rows);
    grid->setContentsMargins(gridMargin, gridMargin, gridMargin, gridMargin);
    grid->setVerticalSpacing(gridSpacing);
    grid->setHorizontalSpacing(gridSpacing);
    setItemWidget(addRow(category), 0, rows);
    return grid;
}

QTreeWidgetItem *PropertyPanel::addRow(QTreeWidgetItem *category)
{
    auto *row = new QTreeWidgetItem(category);
    row->setFlags(row->flags() & ~Qt::ItemIsSelectable);
    return row;
}

void PropertyPanel::orderFocus()
{
    QList<QWidget *> stops;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        stops.append(itemWidget(topLevelItem(i), 0));
        stops.append(focusStops(*itemWidget(topLevelItem(i)->child(0), 0)->layout()));
    }
    for (int i = 1; i < stops.size(); ++i)
        setTabOrder(stops.at(i - 1), stops.at(i));
}

void PropertyPanel::addAreaCategory()
{
    QGridLayout *grid = addCategory(tr("Area (px)"));
    QList<VariableEdit *> editors;
    const auto add = [&](const QString &key, int row, int column) {
        editors.append(new IntEdit(this));
        bind(editors.last(), key);
        grid->addWidget(editors.last(), row, column);
    };
    // The first row stays empty.
    add(Keys::x(), 1, 0);
    add(Keys::y(), 1, 1);
    add(Keys::w(), 2, 0);
    add(Keys::h(), 2, 1);
    alignLabels(editors);
}

void PropertyPanel::editValue(const QString &key, const QVariant &value)
{
    if (!m_content)
        return;
    QObject *target = announcer();
    if (target == m_content)
        m_content->setValue(key, value);
    else
        QMetaObject::invokeMethod(target, "setValue", Qt::DirectConnection, Q_ARG(QString, key),
                                  Q_ARG(QVariant, value));
}

void PropertyPanel::showValue(QString key, QVariant value)
{
    for (VariableEdit *editor : qAsConst(m_editors)) {
        if (editor->getKey() == key)
            editor->setValue(key, value);
    }
}
