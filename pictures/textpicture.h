#pragma once

#include <QMap>
#include <QSize>
#include <QVariant>

class QPainter;

/// What a text item looks like.
namespace TextPicture
{
/// Paints the text of these values (TextKeys) at the origin, broken into lines and placed in an item of this
/// size in pixels, and cut where the item ends.
void paint(QPainter &painter, const QMap<QString, QVariant> &values, QSize size);
} // namespace TextPicture
