#include "toolbars/placement.h"

namespace
{
QRect movedToX(const QRect &item, int x)
{
    return {QPoint(x, item.y()), item.size()};
}

QRect movedToY(const QRect &item, int y)
{
    return {QPoint(item.x(), y), item.size()};
}
} // namespace

QRect Placement::filled(const QRect & /*item*/, QSize screen)
{
    return {QPoint(0, 0), screen};
}

QRect Placement::fittedHorizontally(const QRect &item, QSize screen)
{
    return {0, item.y(), screen.width(), item.height()};
}

QRect Placement::fittedVertically(const QRect &item, QSize screen)
{
    return {item.x(), 0, item.width(), screen.height()};
}

QRect Placement::alignedTop(const QRect &item, QSize /*screen*/)
{
    return movedToY(item, 0);
}

QRect Placement::centeredVertically(const QRect &item, QSize screen)
{
    return movedToY(item, (screen.height() - item.height()) / 2);
}

QRect Placement::alignedBottom(const QRect &item, QSize screen)
{
    return movedToY(item, screen.height() - item.height());
}

QRect Placement::alignedLeft(const QRect &item, QSize /*screen*/)
{
    return movedToX(item, 0);
}

QRect Placement::centeredHorizontally(const QRect &item, QSize screen)
{
    return movedToX(item, (screen.width() - item.width()) / 2);
}

QRect Placement::alignedRight(const QRect &item, QSize screen)
{
    return movedToX(item, screen.width() - item.width());
}
