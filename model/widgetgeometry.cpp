#include "model/widgetgeometry.h"

#include <QCoreApplication>
#include <QMoveEvent>
#include <QResizeEvent>
#include <QWidget>

void moveNow(QWidget *widget, QPoint position)
{
    if (widget->pos() == position)
        return;
    widget->move(position);
    sendHeldGeometryEvents(widget);
}

void resizeNow(QWidget *widget, QSize size)
{
    if (widget->size() == size)
        return;
    widget->resize(size);
    sendHeldGeometryEvents(widget);
}

void sendHeldGeometryEvents(QWidget *widget)
{
    if (widget->testAttribute(Qt::WA_PendingMoveEvent)) {
        widget->setAttribute(Qt::WA_PendingMoveEvent, false);
        QMoveEvent event(widget->pos(), widget->pos());
        QCoreApplication::sendEvent(widget, &event);
    }
    // The handler of a resize may resize once more, which is held back again.
    while (widget->testAttribute(Qt::WA_PendingResizeEvent)) {
        widget->setAttribute(Qt::WA_PendingResizeEvent, false);
        // No former size, as when the toolkit delivers it: the text editor lays out anew only for another
        // width.
        QResizeEvent event(widget->size(), QSize());
        QCoreApplication::sendEvent(widget, &event);
    }
}
