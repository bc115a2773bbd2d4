#pragma once

#include <QApplication>
#include <QWheelEvent>
#include <QWidget>
#include <QtTest/qtestspontaneevent.h>

/// Turns the wheel by one notch away from the user, or towards them, over the middle of the widget. As from a
/// mouse, since events that programs make go to no other widget: this one goes on to those around.
inline void turnWheel(QWidget *widget, bool away)
{
    const QPoint place = widget->rect().center();
    QWheelEvent wheel(place, widget->mapToGlobal(place), {}, {0, away ? 120 : -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&wheel);
    qApp->notify(widget, &wheel);
}
