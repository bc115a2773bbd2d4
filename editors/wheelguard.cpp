#include "editors/wheelguard.h"

#include <QEvent>
#include <QWidget>

WheelGuard::WheelGuard(QWidget *box) : QObject(box)
{
    box->setFocusPolicy(Qt::StrongFocus);
    box->installEventFilter(this);
}

bool WheelGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus())
        return false;
    // Not accepted, it goes on to the widgets around the box.
    event->ignore();
    return true;
}
