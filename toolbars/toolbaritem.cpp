#include "toolbars/toolbaritem.h"

#include "toolbars/toolbarforscreenitem.h"

#include <QAccessibleWidget>
#include <QPainter>
#include <QStyleOption>

namespace
{
/// Shows the item to assistive tools as the button that it is.
class AccessibleItem : public QAccessibleWidget
{
public:
    explicit AccessibleItem(ToolBarItem *item)
        : QAccessibleWidget(item, item->toolTip().isEmpty() ? QAccessible::Separator : QAccessible::Button),
          m_item(item)
    {
    }

    QStringList actionNames() const override { return {pressAction()}; }

    void doAction(const QString &name) override
    {
        if (name == pressAction())
            emit m_item->clicked(m_item);
    }

private:
    ToolBarItem *m_item;
};

QAccessibleInterface *makeAccessible(const QString & /*className*/, QObject *object)
{
    auto *item = qobject_cast<ToolBarItem *>(object);
    return item ? new AccessibleItem(item) : nullptr;
}
} // namespace

ToolBarItem::ToolBarItem(QString iconPath, QString toolTip, ToolBarForScreenItem *parent) : QWidget(parent)
{
    setProperty("class", QStringLiteral("ToolBarItem"));
    setStyleSheet(QStringLiteral("ToolBarItem{background-image:url(\"%1\");background-repeat:no-repeat;"
                                 "background-position:center;}")
                      .arg(iconPath));
    if (!toolTip.isEmpty())
        setToolTip(toolTip);
    setToolTipDuration(100000);
    setFixedSize(30, 30);
    setAccessibleName(toolTip);
    QAccessible::installFactory(makeAccessible);
}

void ToolBarItem::mousePressEvent(QMouseEvent * /*event*/)
{
    emit clicked(this);
}

void ToolBarItem::paintEvent(QPaintEvent * /*event*/)
{
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}
