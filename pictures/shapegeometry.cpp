#include "pictures/shapegeometry.h"

namespace
{
bool isAligned(const ShapeGeometry::Placement &placement, const char *align)
{
    return placement.align == QLatin1String(align);
}

/// Towards zero, from a value in single precision.
int whole(float value)
{
    return static_cast<int>(value);
}

int halfLine(const ShapeGeometry::Placement &placement)
{
    return whole(float(placement.lineWidth) * 0.5f);
}

int side(const ShapeGeometry::Placement &placement)
{
    return qMin(placement.frame.width(), placement.frame.height());
}

/// A square frame counts as wide.
bool isWide(const ShapeGeometry::Placement &placement)
{
    return placement.frame.width() >= placement.frame.height();
}

/// What is left of the frame's width and height beside the square.
QSize room(const ShapeGeometry::Placement &placement)
{
    return placement.frame - QSize(side(placement), side(placement));
}

QPoint centredOutline(const ShapeGeometry::Placement &placement)
{
    const QSize rest = room(placement);
    return {whole(float(rest.width() + placement.lineWidth) * 0.5f),
            whole(float(rest.height() + placement.lineWidth) * 0.5f)};
}

int farOutline(int rest, const ShapeGeometry::Placement &placement)
{
    return whole(float(rest) + float(placement.lineWidth) * 0.5f);
}

ShapeGeometry::Figure squareAt(QPoint fill, QPoint outline, const ShapeGeometry::Placement &placement)
{
    const int fillSide = side(placement);
    const int outlineSide = fillSide - placement.lineWidth;
    return {QRect(fill, QSize(fillSide, fillSide)), QRect(outline, QSize(outlineSide, outlineSide))};
}

QPoint roundSquareAnchor(const ShapeGeometry::Placement &placement)
{
    const int half = halfLine(placement);
    const QSize rest = room(placement);
    const QPoint farCorner(farOutline(rest.width(), placement), farOutline(rest.height(), placement));
    if (isWide(placement)) {
        if (isAligned(placement, "Left"))
            return {half, half};
        // The horizontal offset goes downwards and pushes the square out of sight: on purpose, unlike the
        // square.
        if (isAligned(placement, "Right"))
            return {half, farCorner.x()};
    } else {
        if (isAligned(placement, "Top"))
            return {half, half};
        if (isAligned(placement, "Bottom"))
            return farCorner;
    }
    return centredOutline(placement);
}
} // namespace

ShapeGeometry::Figure ShapeGeometry::rectangle(const Placement &placement)
{
    const int half = halfLine(placement);
    return {QRect(QPoint(0, 0), placement.frame),
            QRect(half, half, placement.frame.width() - placement.lineWidth,
                  placement.frame.height() - placement.lineWidth)};
}

ShapeGeometry::RoundFigure ShapeGeometry::roundRectangle(const Placement &placement, bool outlined)
{
    const qreal half = placement.lineWidth / 2.0;
    const QRectF outline(half, half, placement.frame.width() - placement.lineWidth,
                         placement.frame.height() - placement.lineWidth);
    return {outlined ? outline : QRectF(QPointF(0, 0), placement.frame), outline};
}

ShapeGeometry::Figure ShapeGeometry::square(const Placement &placement)
{
    const int half = halfLine(placement);
    const QSize rest = room(placement);
    if (isWide(placement)) {
        if (isAligned(placement, "Left"))
            return squareAt({0, 0}, {half, half}, placement);
        if (isAligned(placement, "Right"))
            return squareAt({rest.width(), 0}, {farOutline(rest.width(), placement), half}, placement);
    } else {
        if (isAligned(placement, "Top"))
            return squareAt({0, 0}, {half, half}, placement);
        if (isAligned(placement, "Bottom"))
            return squareAt({0, rest.height()}, {half, farOutline(rest.height(), placement)}, placement);
    }
    const QPoint centre(whole(float(rest.width()) * 0.5f), whole(float(rest.height()) * 0.5f));
    return squareAt(centre, centredOutline(placement), placement);
}

std::optional<ShapeGeometry::RoundFigure> ShapeGeometry::roundSquare(const Placement &placement,
                                                                     bool outlined)
{
    const QPoint anchor = roundSquareAnchor(placement);
    if (anchor.x() < 0 || anchor.y() < 0)
        return std::nullopt;
    const int length = side(placement);
    const int inset = length - placement.lineWidth;
    const QRectF outline(anchor.x(), anchor.y(), inset, inset);
    const qreal half = placement.lineWidth / 2.0;
    return RoundFigure{outlined ? outline : QRectF(anchor.x() - half, anchor.y() - half, length, length),
                       outline};
}

QLine ShapeGeometry::verticalLine(const Placement &placement)
{
    int x = whole(float(placement.frame.width()) * 0.5f);
    if (isAligned(placement, "Left"))
        x = halfLine(placement);
    else if (isAligned(placement, "Right"))
        x = whole(float(placement.frame.width()) - float(placement.lineWidth) * 0.5f);
    return {x, 0, x, placement.frame.height()};
}

QLine ShapeGeometry::horizontalLine(const Placement &placement)
{
    int y = whole(float(placement.frame.height()) * 0.5f);
    if (isAligned(placement, "Top"))
        y = halfLine(placement);
    else if (isAligned(placement, "Bottom"))
        y = whole(float(placement.frame.height()) - float(placement.lineWidth) * 0.5f);
    return {0, y, placement.frame.width(), y};
}
