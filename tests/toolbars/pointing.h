#pragma once

#include <QEnterEvent>
#include <QTest>
#include <QWidget>
#include <QWindow>

// The offscreen platform tells no window that the pointer has come or gone.

/// Brings the pointer to a place in a shown window.
inline void pointAt(const QWidget &window, QPoint position)
{
    QEnterEvent enter(position, position, window.mapToGlobal(position));
    QCoreApplication::sendEvent(window.windowHandle(), &enter);
    QTest::mouseMove(window.windowHandle(), position);
}

/// Takes the pointer out of the window.
inline void pointElsewhere(const QWidget &window)
{
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(window.windowHandle(), &leave);
}
