#pragma once

#include <QPolygonF>
#include <QString>
#include <QVector>

/// The data of a drawing's paths as straight lines that are no shorter than what is drawn: curves go by way
/// of their control points, arcs around their circles.
namespace SvgPath
{
/// The path of a "d" attribute up to what cannot be read; one polygon for each part.
QVector<QPolygonF> ofData(const QString &data);

/// All numbers in the text, whatever lies between them.
QVector<double> numbersIn(const QString &text);

/// Around an ellipse in this place.
QPolygonF around(const QPointF &centre, double radiusX, double radiusY);
} // namespace SvgPath
