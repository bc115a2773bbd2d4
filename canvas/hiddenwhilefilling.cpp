#include "canvas/hiddenwhilefilling.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace
{
/// A new widget posts itself requests to be polished and laid out, and being shown does both anyway. Left to
/// pile up they would be searched again and again: with every event posted and every widget deleted.
void dropRequests(QObject *object)
{
    QCoreApplication::removePostedEvents(object, QEvent::PolishRequest);
    QCoreApplication::removePostedEvents(object, QEvent::LayoutRequest);
}

/// Delivers the updates that shown widgets have posted to themselves. They cost nothing while the whole area
/// is marked, but each costs a paint of its own once that has been painted.
void deliverUpdates(QWidget *window)
{
    // Nothing posted later overtakes what is in the queue meanwhile, so that the request to paint is posted
    // anew behind it: items that are deleted at once go before they are painted.
    QCoreApplication::removePostedEvents(window, QEvent::UpdateRequest);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateLater);
    QCoreApplication::postEvent(window, new QEvent(QEvent::UpdateRequest), Qt::LowEventPriority);
}
} // namespace

HiddenWhileFilling::HiddenWhileFilling(QWidget &canvas, qptrdiff itemCount)
    : m_canvas(canvas),
      m_hides(itemCount > 1 && canvas.isVisible())
{
    if (!m_hides)
        return;
    // Hiding would hand the focus on to a neighbour of the canvas; the new items are about to take it anyway.
    if (QWidget *focused = m_canvas.focusWidget())
        focused->clearFocus();
    m_canvas.hide();
}

HiddenWhileFilling::~HiddenWhileFilling()
{
    if (!m_hides)
        return;
    m_canvas.show();
    deliverUpdates(m_canvas.window());
}

void HiddenWhileFilling::itemMade(QWidget &item)
{
    if (m_canvas.isVisible())
        return;
    dropRequests(&item);
    const auto parts = item.findChildren<QWidget *>();
    for (QWidget *part : parts)
        dropRequests(part);
}
