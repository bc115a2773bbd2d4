#pragma once

#include <QRect>

class QPainter;

/// The layout grid of the canvas: single points every 11 pixels from the top left corner.
namespace DotGrid
{
constexpr int spacing = 11;

/// Draws the points that lie in the exposed part, whatever the size of the canvas around it.
void draw(QPainter &painter, const QRect &exposed);
} // namespace DotGrid
