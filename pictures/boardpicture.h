#pragma once

#include <QImage>
#include <QJsonObject>
#include <QSize>

/// What a whole layout looks like on the display, without a widget.
namespace BoardPicture
{
/// The size of the layout's screen in pixels.
QSize sizeOf(const QJsonObject &layout);

/// False for sizes that no picture can have: the painter's coordinates end there, or it would take more than
/// a gigabyte.
bool isPaintable(QSize size);

/// An image for a board of this background colour, translucent where that is, and otherwise undefined so far.
/// Null without an area and for sizes that are not paintable.
QImage blank(QSize size, const QColor &background);

/// The layout's picture: background and items, the pixels that the editor exports. Null like blank().
QImage of(const QJsonObject &layout);
} // namespace BoardPicture
