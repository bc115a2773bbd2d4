#pragma once

#include <QMap>
#include <QSize>
#include <QVariant>

class QPainter;

/// What a picture item looks like.
namespace StillPicture
{
/// Paints the file that the item names at the origin, stretched over an item of this size in pixels. A file
/// that cannot be read shows nothing.
void paint(QPainter &painter, const QMap<QString, QVariant> &values, QSize size);
} // namespace StillPicture
