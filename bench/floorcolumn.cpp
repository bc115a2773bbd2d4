#include "bench/floorcolumn.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTreeWidget>

namespace
{
QLabel *arrow()
{
    auto *label = new QLabel;
    label->setFixedWidth(15);
    label->setStyleSheet(QStringLiteral("background:url(\":/assets/interface/widget_down.png\");"
                                        " background-position:center; background-repeat:no-repeat;"));
    return label;
}

QWidget *header(const QString &text, QWidget *tree)
{
    auto *widget = new QWidget(tree);
    auto *label = new QLabel(text);
    QFont font = label->font();
    font.setWeight(QFont::ExtraLight);
    label->setFont(font);
    auto *row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(label);
    row->addWidget(arrow());
    row->addStretch();
    widget->setFixedHeight(30);
    return widget;
}

QGridLayout *addCategory(const QString &text, QTreeWidget *tree)
{
    auto *category = new QTreeWidgetItem(tree);
    tree->setItemWidget(category, 0, header(text, tree));
    category->setExpanded(true);
    auto *rows = new QFrame(tree);
    auto *grid = new QGridLayout(rows);
    grid->setContentsMargins(4, 4, 4, 4);
    grid->setSpacing(5);
    tree->setItemWidget(new QTreeWidgetItem(category), 0, rows);
    return grid;
}

QHBoxLayout *labelled(const QString &text, QWidget *editor)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(0);
    row->addWidget(new QLabel(text));
    row->addWidget(editor, 1);
    return row;
}

QWidget *spinBox(int value)
{
    auto *box = new QSpinBox;
    box->setRange(-1000000, 1000000);
    box->setValue(value);
    return box;
}

QWidget *comboBox(const QStringList &choices)
{
    auto *box = new QComboBox;
    box->addItems(choices);
    box->setCurrentIndex(1);
    return box;
}

QWidget *checkBox(const QString &text)
{
    auto *box = new QCheckBox(text);
    box->setChecked(true);
    return box;
}

QWidget *colorButton(const QString &color)
{
    auto *button = new QPushButton;
    button->setFixedSize(20, 20);
    button->setStyleSheet(
        QStringLiteral("min-height:18px;border:1px solid #808080;padding:0;background-color:%1").arg(color));
    return button;
}

void fillArea(QGridLayout *grid)
{
    grid->addLayout(labelled(QStringLiteral("X"), spinBox(20)), 1, 0);
    grid->addLayout(labelled(QStringLiteral("Y"), spinBox(20)), 1, 1);
    grid->addLayout(labelled(QStringLiteral("W"), spinBox(40)), 2, 0);
    grid->addLayout(labelled(QStringLiteral("H"), spinBox(20)), 2, 1);
}

void fillBasicProperties(QGridLayout *grid)
{
    const QStringList kinds = {QStringLiteral("Rectangle"),       QStringLiteral("Round Rectangle"),
                               QStringLiteral("Square"),          QStringLiteral("Round Square"),
                               QStringLiteral("Horizontal Line"), QStringLiteral("Vertical Line")};
    const QStringList places = {QStringLiteral("Top"), QStringLiteral("Center"), QStringLiteral("Bottom"),
                                QStringLiteral("Right"), QStringLiteral("Left")};
    grid->setColumnStretch(2, 1);
    grid->addLayout(labelled(QStringLiteral("Shape"), comboBox(kinds)), 0, 0, 1, 3);
    grid->addLayout(labelled(QStringLiteral("Align"), comboBox(places)), 1, 0, 1, 3);
    grid->addLayout(labelled(QStringLiteral("Opacity"), spinBox(100)), 2, 0, 1, 3);
    grid->addWidget(checkBox(QStringLiteral("Fill")), 3, 0);
    grid->addWidget(new QLabel(QStringLiteral("Color")), 3, 1);
    grid->addWidget(colorButton(QStringLiteral("#000000")), 3, 2);
    grid->addWidget(checkBox(QStringLiteral("Border")), 4, 0);
    grid->addWidget(new QLabel(QStringLiteral("Border Color")), 4, 1);
    grid->addWidget(colorButton(QStringLiteral("#ffffff")), 4, 2);
    grid->addLayout(labelled(QStringLiteral("Line Width"), spinBox(2)), 5, 0, 1, 3);
}

void fill(QWidget *host)
{
    auto *tree = new QTreeWidget(host);
    auto *layout = new QVBoxLayout(host);
    layout->setContentsMargins(0, 0, 0, 0);
    tree->header()->hide();
    tree->setRootIsDecorated(false);
    tree->setIndentation(0);
    layout->addWidget(tree);
    fillArea(addCategory(QStringLiteral("Area (px)"), tree));
    fillBasicProperties(addCategory(QStringLiteral("Basic Properties"), tree));
}
} // namespace

FloorColumn::FloorColumn(QWidget *parent) : QScrollArea(parent)
{
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setWidgetResizable(true);
    auto *inner = new QWidget;
    m_layout = new QVBoxLayout(inner);
    m_layout->addLayout(labelled(QStringLiteral("Name"), new QLineEdit));
    setWidget(inner);
    setStyleSheet(QStringLiteral("background-color:#454545;"));
    setFixedWidth(320);
}

void FloorColumn::buildPanel()
{
    m_panel = new QWidget(widget());
    m_layout->addWidget(m_panel, 1);
    fill(m_panel);
    m_panel->show();
}

void FloorColumn::dropPanel()
{
    if (!m_panel)
        return;
    m_layout->removeWidget(m_panel);
    m_panel->hide();
    m_panel->deleteLater();
}
