#include "editors/categorybutton.h"

#include "editors/focusmark.h"

#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QTreeWidget>

namespace
{
constexpr int headerHeight = 30; // pixels
constexpr int iconWidth = 15;    // pixels

QLabel *textLabel(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    QFont font = label->font();
    font.setWeight(QFont::ExtraLight);
    label->setFont(font);
    return label;
}
} // namespace

/// What screen readers see of a header.
class CategoryButton::Accessible : public QAccessibleWidget
{
public:
    explicit Accessible(CategoryButton *header)
        : QAccessibleWidget(header, QAccessible::Button),
          m_header(header)
    {
    }

    static QAccessibleInterface *create(const QString &className, QObject *object)
    {
        Q_UNUSED(className)
        auto *header = qobject_cast<CategoryButton *>(object);
        return header ? new Accessible(header) : nullptr;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = m_header->m_item->isExpanded();
        state.collapsed = !state.expanded;
        return state;
    }

    QStringList actionNames() const override
    {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }

    void doAction(const QString &name) override
    {
        if (name == pressAction())
            m_header->ButtonPressed();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    CategoryButton *m_header;
};

CategoryButton::CategoryButton(QString text, QTreeWidget *tree, QTreeWidgetItem *item)
    : QWidget(tree),
      m_item(item),
      m_icon(new QLabel(this))
{
    // Before the toolkit first asks, as it does for a change of the name.
    QAccessible::installFactory(&Accessible::create);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(textLabel(text, this));
    m_icon->setFixedWidth(iconWidth);
    row->addWidget(m_icon);
    row->addStretch();
    setFixedHeight(headerHeight);
    setProperty("class", QStringLiteral("CategoryButton"));
    setStyleSheet(QStringLiteral("background: transparent;"));
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(text);
    m_item->setExpanded(true);
    showState();
    connect(tree, &QTreeWidget::itemExpanded, this, &CategoryButton::showState);
    connect(tree, &QTreeWidget::itemCollapsed, this, &CategoryButton::showState);
}

void CategoryButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        ButtonPressed();
    else
        QWidget::keyPressEvent(event);
}

void CategoryButton::mousePressEvent(QMouseEvent *event)
{
    Q_UNUSED(event)
    ButtonPressed();
}

void CategoryButton::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    drawFocusMark(this);
}

void CategoryButton::ButtonPressed()
{
    // The tree tells of it, which brings the arrow round.
    m_item->setExpanded(!m_item->isExpanded());
}

void CategoryButton::showState()
{
    const QString image = m_item->isExpanded() ? QStringLiteral(":/assets/interface/widget_down.png")
                                               : QStringLiteral(":/assets/interface/widget_right.png");
    const QString sheet =
        QStringLiteral("background:url(\"%1\"); background-position:center; background-repeat:no-repeat;")
            .arg(image);
    // Heard of every category of the tree; dressing a label anew is dear, even in the same sheet.
    if (sheet != m_icon->styleSheet())
        m_icon->setStyleSheet(sheet);
}
