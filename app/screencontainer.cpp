#include "app/screencontainer.h"

#include "canvas/screen.h"

#include <QCoreApplication>
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
