#pragma once

#include <QMap>
#include <QSize>
#include <QVariant>

class QPainter;

/// What a shape looks like.
namespace ShapePicture
{
/// Paints the shape of these values (ShapeKeys) at the origin, over an item of this size in pixels. An
/// unknown kind paints nothing, a colour that is none is black. The painter's pen and hints are changed.
void paint(QPainter &painter, const QMap<QString, QVariant> &values, QSize size);
} // namespace ShapePicture
