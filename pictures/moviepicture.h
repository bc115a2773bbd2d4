#pragma once

#include <QMap>
#include <QSize>
#include <QVariant>

class QPainter;

/// What an animation item looks like at its beginning.
namespace MoviePicture
{
/// Paints the first frame of the file that the item names at the origin, stretched over an item of this size
/// in pixels. A file that cannot be read shows nothing.
void paint(QPainter &painter, const QMap<QString, QVariant> &values, QSize size);
} // namespace MoviePicture
