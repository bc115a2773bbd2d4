#pragma once

#include <QMap>
#include <QSize>
#include <QVariant>

class QPainter;

/// What a text, set in its font and aligned as its values say looks like.
namespace TextPicture
{
/// Paints a text, set in its font and aligned as its values say at the origin, over an item of this size in
/// pixels.
void paint(QPainter &painter, const QMap<QString, QVariant> &values, QSize size);
} // namespace TextPicture
