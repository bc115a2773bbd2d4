#include "canvas/dotgrid.h"

#include <QPainter>
#include <QVector>

namespace
{
int firstAtOrAfter(int coordinate)
{
    return (coordinate + DotGrid::spacing - 1) / DotGrid::spacing * DotGrid::spacing;
}
} // namespace

void DotGrid::draw(QPainter &painter, const QRect &exposed)
{
    painter.setPen(QColor(50, 50, 50, 100));
    QVector<QPoint> points;
    for (int y = firstAtOrAfter(exposed.top()); y <= exposed.bottom(); y += spacing) {
        for (int x = firstAtOrAfter(exposed.left()); x <= exposed.right(); x += spacing)
            points.append(QPoint(x, y));
    }
    painter.drawPoints(points.constData(), points.size());
}
