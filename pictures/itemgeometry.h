#pragma once

#include <QRect>
#include <QSize>

/// Where an item lies on its screen, as functions of plain values. Lengths are canvas pixels; a screen is the
/// rectangle from (0, 0) to its size.
namespace ItemGeometry
{
/// The size of an item that has got none yet.
constexpr QSize newItemSize(100, 50);

/// The size that an item of this geometry is cut to, so that it ends at the screen's right and bottom edges.
QSize clampedSize(const QRect &item, QSize screen);

/// True for an item no part of which is outside the screen.
bool liesOnScreen(const QRect &item, QSize screen);

/// How the values of a stored item are taken up.
enum class Reading {
    OneByOne, ///< each is applied at once: X, Y, W, H
    AtOnce    ///< all are applied together, the size first: H, W, X, Y
};

/// Where an item comes to lie whose file says @p stored. What lies wholly on the screen lies where it was;
/// what does not passes the clamp at every step of the reading.
QRect landing(const QRect &stored, Reading reading, QSize screen);
} // namespace ItemGeometry
