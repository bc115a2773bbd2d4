#include "canvas/framegeometry.h"

#include <cmath>

namespace
{
// Unequal on purpose: 3 pixels on the left and top, 2 on the right and bottom.
constexpr int nearBand = 2;
constexpr int farBand = 2;

bool dragsLeft(HitZone zone)
{
    return zone == HitZone::TopLeft || zone == HitZone::Left || zone == HitZone::BottomLeft;
}

bool dragsRight(HitZone zone)
{
    return zone == HitZone::TopRight || zone == HitZone::Right || zone == HitZone::BottomRight;
}

bool dragsTop(HitZone zone)
{
    return zone == HitZone::TopLeft || zone == HitZone::Top || zone == HitZone::TopRight;
}

bool dragsBottom(HitZone zone)
{
    return zone == HitZone::BottomLeft || zone == HitZone::Bottom || zone == HitZone::BottomRight;
}

/// The room from the position to the screen's far edge, which for a frame past the near edge exceeds the
/// screen.
int fittingLength(int wanted, int position, int screenLength)
{
    const int longest = qMin(screenLength - position, screenLength);
    return qMax(FrameGeometry::minimumLength, qMin(wanted, longest));
}

int fittingPosition(int wanted, int length, int screenLength)
{
    return qMax(0, qMin(wanted, screenLength - length));
}
} // namespace

HitZone FrameGeometry::hitZoneAt(QPoint point, const QRect &frame)
{
    const bool left = point.x() <= frame.x() + nearBand;
    const bool right = point.x() >= frame.x() + frame.width() - farBand;
    const bool top = point.y() <= frame.y() + nearBand;
    const bool bottom = point.y() >= frame.y() + frame.height() - farBand;
    if (left && bottom)
        return HitZone::BottomLeft;
    if (right && bottom)
        return HitZone::BottomRight;
    if (left && top)
        return HitZone::TopLeft;
    if (right && top)
        return HitZone::TopRight;
    if (!left && !right) {
        if (!top && !bottom)
            return HitZone::Interior;
        return top ? HitZone::Top : HitZone::Bottom;
    }
    return left ? HitZone::Left : HitZone::Right;
}

Qt::CursorShape FrameGeometry::cursorFor(HitZone zone)
{
    switch (zone) {
    case HitZone::TopLeft:
    case HitZone::BottomRight:
        return Qt::SizeFDiagCursor;
    case HitZone::TopRight:
    case HitZone::BottomLeft:
        return Qt::SizeBDiagCursor;
    case HitZone::Top:
    case HitZone::Bottom:
        return Qt::SizeVerCursor;
    case HitZone::Left:
    case HitZone::Right:
        return Qt::SizeHorCursor;
    case HitZone::None:
    case HitZone::Interior:
        break;
    }
    return Qt::ArrowCursor;
}

QPoint FrameGeometry::groupMove(const QRect &boundingBox, QPoint wanted, QSize screen)
{
    const QPoint farCorner(boundingBox.x() + boundingBox.width(), boundingBox.y() + boundingBox.height());
    const QPoint newNearCorner = boundingBox.topLeft() + wanted;
    QPoint delta(qMin(wanted.x(), screen.width() - farCorner.x()),
                 qMin(wanted.y(), screen.height() - farCorner.y()));
    // Measured from the unclamped move, and last: the left and top edges win on purpose.
    if (newNearCorner.x() < 0)
        delta.rx() -= newNearCorner.x();
    if (newNearCorner.y() < 0)
        delta.ry() -= newNearCorner.y();
    return delta;
}

QSize FrameGeometry::draggedSize(const ResizeDrag &drag)
{
    QSize wanted = drag.frame.size();
    if (dragsRight(drag.zone))
        wanted.setWidth(drag.pointer.x());
    else if (dragsLeft(drag.zone))
        wanted.rwidth() -= drag.corner.x() - drag.frame.x();
    if (dragsBottom(drag.zone))
        wanted.setHeight(drag.pointer.y());
    else if (dragsTop(drag.zone))
        wanted.rheight() -= drag.corner.y() - drag.frame.y();
    return {fittingLength(wanted.width(), drag.frame.x(), drag.screen.width()),
            fittingLength(wanted.height(), drag.frame.y(), drag.screen.height())};
}

QSize FrameGeometry::keptSize(QSize size, QSize screen)
{
    return size.boundedTo(screen).expandedTo(QSize(minimumLength, minimumLength));
}

QPoint FrameGeometry::draggedPosition(const ResizeDrag &drag, QSize size)
{
    const int x = dragsLeft(drag.zone) ? drag.corner.x() : drag.frame.x();
    const int y = dragsTop(drag.zone) ? drag.corner.y() : drag.frame.y();
    return {fittingPosition(x, size.width(), drag.screen.width()),
            fittingPosition(y, size.height(), drag.screen.height())};
}

QPoint FrameGeometry::wholePixels(QPointF point)
{
    return {static_cast<int>(std::lround(point.x())), static_cast<int>(std::lround(point.y()))};
}
