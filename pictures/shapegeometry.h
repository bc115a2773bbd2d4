#pragma once

#include <QLine>
#include <QRectF>
#include <QSize>
#include <QString>

#include <optional>

/// Where the figures of a shape lie inside its frame, as functions of plain values. Lengths are pixels in the
/// shape's own coordinates; an unknown alignment centres.
namespace ShapeGeometry
{
struct Placement {
    QSize frame;
    QString align;
    int lineWidth = 0;
};

/// A figure of whole pixels: what is filled and what is outlined.
struct Figure {
    QRect fill;
    QRect outline;
};

/// A rounded figure: the paths of fill and outline, before their corners are rounded.
struct RoundFigure {
    QRectF fill;
    QRectF outline;
};

constexpr qreal cornerRadius = 10;

Figure rectangle(const Placement &placement);
RoundFigure roundRectangle(const Placement &placement, bool outlined);
Figure square(const Placement &placement);

/// Nothing when the figure's anchor would be negative.
std::optional<RoundFigure> roundSquare(const Placement &placement, bool outlined);

QLine verticalLine(const Placement &placement);
QLine horizontalLine(const Placement &placement);
} // namespace ShapeGeometry
