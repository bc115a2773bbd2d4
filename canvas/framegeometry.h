#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

// The rules with numbers of an item's frame, as functions of plain values. All lengths are canvas pixels;
// a screen is the rectangle from (0, 0) to its size.

/// The part of a frame that the mouse is over, clockwise from the top left corner.
enum class HitZone { None, Interior, TopLeft, Top, TopRight, Right, BottomRight, Bottom, BottomLeft, Left };

namespace FrameGeometry
{
/// No mouse resize makes a side shorter than this.
constexpr int minimumLength = 4;

/// The zone of a point in screen coordinates.
HitZone hitZoneAt(QPoint point, const QRect &frame);

/// The cursor that tells what a drag from the zone would do; not to be asked for HitZone::None.
Qt::CursorShape cursorFor(HitZone zone);

/// The part of the wanted move that keeps a group of frames on the screen. The far edge of the bounding box
/// is its left plus its width. Left and top win when the group is larger than the screen.
QPoint groupMove(const QRect &boundingBox, QPoint wanted, QSize screen);

/// A drag of a frame's edge or corner, as it stands at one mouse move.
struct ResizeDrag {
    HitZone zone = HitZone::None;
    QRect frame;    ///< the frame's geometry now
    QSize screen;   ///< the screen's size
    QPoint pointer; ///< the mouse in the frame's own coordinates: where a right or bottom edge goes
    QPoint corner;  ///< the mouse less the press anchor: where a left or top edge goes
};

/// The size that the drag asks for.
QSize draggedSize(const ResizeDrag &drag);

/// What a drag leaves of the size that a frame has got: no longer than the screen, no shorter than the
/// minimum.
QSize keptSize(QSize size, QSize screen);

/// The position for a frame that has got the given size out of the drag, wholly on the screen where it fits.
QPoint draggedPosition(const ResizeDrag &drag, QSize size);

/// Whole pixels, halves away from zero.
QPoint wholePixels(QPointF point);
} // namespace FrameGeometry
