#pragma once

#include <QObject>
#include <QPaintEvent>
#include <QRegion>
#include <QWidget>

#include <utility>

/// Collects the painted area of a widget.
class PaintWatcher : public QObject
{
public:
    explicit PaintWatcher(QWidget *watched) { watched->installEventFilter(this); }

    QRegion takeArea() { return std::exchange(m_area, QRegion()); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            m_area += static_cast<QPaintEvent *>(event)->region();
        return QObject::eventFilter(watched, event);
    }

private:
    QRegion m_area;
};
