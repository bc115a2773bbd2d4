#include "pictures/shapepicture.h"

#include "model/namedcolor.h"
#include "model/pixels.h"
#include "pictures/shapegeometry.h"
#include "pictures/shapekeys.h"

#include <QPainter>
#include <QPainterPath>

namespace
{
/// The values that painting needs, read once.
struct Look {
    Look(const QMap<QString, QVariant> &values, QSize size)
        : placement{size, values.value(ShapeKeys::align()).toString(),
                    toPixels(values.value(ShapeKeys::lineWidth()))},
          kind(values.value(ShapeKeys::shape()).toString()),
          color(namedColor(values.value(ShapeKeys::color()).toString())),
          borderColor(namedColor(values.value(ShapeKeys::borderColor()).toString())),
          opacity(toPixels(values.value(ShapeKeys::opacity())) * 0.01),
          isFilled(values.value(ShapeKeys::fill()).toBool()),
          isOutlined(values.value(ShapeKeys::border()).toBool() && placement.lineWidth >= 1)
    {
    }

    ShapeGeometry::Placement placement;
    QString kind;
    QColor color;
    QColor borderColor;
    qreal opacity;
    bool isFilled;
    bool isOutlined;
};

QPainterPath rounded(const QRectF &rectangle)
{
    QPainterPath path;
    path.addRoundedRect(rectangle, ShapeGeometry::cornerRadius, ShapeGeometry::cornerRadius,
                        Qt::AbsoluteSize);
    return path;
}

void paintFigure(QPainter &painter, const Look &look, const ShapeGeometry::Figure &figure)
{
    if (look.isFilled) {
        painter.setOpacity(look.opacity);
        painter.fillRect(figure.fill, look.color);
        // Outlines are always opaque.
        painter.setOpacity(1.0);
    }
    if (look.isOutlined)
        painter.drawRects(&figure.outline, 1);
}

void paintRoundFigure(QPainter &painter, const Look &look, const ShapeGeometry::RoundFigure &figure)
{
    if (look.isFilled) {
        painter.setOpacity(look.opacity);
        painter.fillPath(rounded(figure.fill), QBrush(look.color));
        painter.setOpacity(1.0);
    }
    if (look.isOutlined)
        painter.drawPath(rounded(figure.outline));
}

void paintKind(QPainter &painter, const Look &look)
{
    if (look.kind == QLatin1String("Round Square")) {
        if (const auto figure = ShapeGeometry::roundSquare(look.placement, look.isOutlined))
            paintRoundFigure(painter, look, *figure);
    } else if (look.kind == QLatin1String("Square")) {
        paintFigure(painter, look, ShapeGeometry::square(look.placement));
    } else if (look.kind == QLatin1String("Rectangle")) {
        paintFigure(painter, look, ShapeGeometry::rectangle(look.placement));
    } else if (look.kind == QLatin1String("Round Rectangle")) {
        paintRoundFigure(painter, look, ShapeGeometry::roundRectangle(look.placement, look.isOutlined));
    } else if (look.kind == QLatin1String("Vertical Line")) {
        painter.drawLine(ShapeGeometry::verticalLine(look.placement));
    } else if (look.kind == QLatin1String("Horizontal Line")) {
        painter.drawLine(ShapeGeometry::horizontalLine(look.placement));
    }
}
} // namespace

void ShapePicture::paint(QPainter &painter, const QMap<QString, QVariant> &values, QSize size)
{
    const Look look(values, size);
    painter.setRenderHint(QPainter::Antialiasing);
    // A width of 0 is the cosmetic pen; the toolkit has no meaning for one below.
    const int penWidth = qMax(0, look.placement.lineWidth);
    painter.setPen(QPen(look.borderColor, penWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    paintKind(painter, look);
}
