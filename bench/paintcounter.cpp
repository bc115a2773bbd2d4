#include "bench/paintcounter.h"

#include <QEvent>

bool PaintCounter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint)
        ++m_paints;
    return QObject::eventFilter(watched, event);
}
