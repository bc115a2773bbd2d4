#pragma once

#include <QRect>
#include <QSize>

/// Where the fits and alignments put an item, as functions of plain values: the item's geometry in, the new
/// one out, in canvas pixels. Nothing is clamped: what is larger than the screen sticks out of it.
namespace Placement
{
/// The whole screen.
QRect filled(const QRect &item, QSize screen);
/// The screen's whole width; top and height stay.
QRect fittedHorizontally(const QRect &item, QSize screen);
/// The screen's whole height; left and width stay.
QRect fittedVertically(const QRect &item, QSize screen);

// The alignments keep the size and move along one axis only.

QRect alignedTop(const QRect &item, QSize screen);
/// Onto the horizontal centre line. Half a pixel goes towards zero, also for an item taller than the screen.
QRect centeredVertically(const QRect &item, QSize screen);
QRect alignedBottom(const QRect &item, QSize screen);
QRect alignedLeft(const QRect &item, QSize screen);
/// Onto the vertical centre line. Half a pixel goes towards zero, also for an item wider than the screen.
QRect centeredHorizontally(const QRect &item, QSize screen);
QRect alignedRight(const QRect &item, QSize screen);
} // namespace Placement
