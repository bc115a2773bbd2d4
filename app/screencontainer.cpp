#include "app/screencontainer.h"

#include "canvas/screen.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QScrollBar>

namespace
{
void scrollToMiddle(QScrollBar *bar)
{
    bar->setValue(static_cast<int>(bar->maximum() * 0.5));
}
} // namespace

ScreenContainer::ScreenContainer(QWidget *parent) : QScrollArea(parent)
{
    auto *area = new QWidget;
    area->setStyleSheet(QStringLiteral("background:transparent;"));
    setWidget(area);
}

void ScreenContainer::setScreen(Screen *screen)
{
    if (screen == m_screen)
        return;
    delete m_screen;
    m_screen = screen;
    if (!screen)
        return;
    connect(screen, &Screen::meResized, this, &ScreenContainer::calculateGeometry);
    screen->setParent(widget());
    // A change of parent hides a widget and puts it into the corner.
    screen->show();
    calculateGeometry();
}

void ScreenContainer::calculateGeometry()
{
    if (!m_screen)
        return;
    widget()->setMinimumSize(m_screen->size());
    // The bars learn of the new minimum now rather than later, so that their ranges hold for what follows.
    QEvent layoutRequest(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(this, &layoutRequest);
    m_screen->move((widget()->width() - m_screen->width()) / 2,
                   (widget()->height() - m_screen->height()) / 2);
    scrollToMiddle(horizontalScrollBar());
    scrollToMiddle(verticalScrollBar());
}

void ScreenContainer::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    widget()->resize(size());
    calculateGeometry();
}

bool ScreenContainer::viewportEvent(QEvent *event)
{
    if (!isPressBesideScreen(*event))
        return QScrollArea::viewportEvent(event);
    m_screen->leaveItems();
    return true;
}

bool ScreenContainer::isPressBesideScreen(const QEvent &event) const
{
    // The second press of a double click comes as one of its own.
    if (!m_screen ||
        (event.type() != QEvent::MouseButtonPress && event.type() != QEvent::MouseButtonDblClick))
        return false;
    // What the canvas leaves to others, it has its reasons for.
    const QPoint position = static_cast<const QMouseEvent &>(event).pos();
    return !m_screen->rect().contains(m_screen->mapFrom(viewport(), position));
}
