#pragma once

#include <QEvent>
#include <QWidget>

/// Counts the events of one type that reach a widget.
class EventCounter : public QObject
{
public:
    EventCounter(QWidget *widget, QEvent::Type type) : m_type(type) { widget->installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        count += event->type() == m_type;
        return QObject::eventFilter(watched, event);
    }

private:
    QEvent::Type m_type;
};
