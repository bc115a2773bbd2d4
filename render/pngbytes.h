#pragma once

#include <QByteArray>
#include <QImage>

/// Pictures as PNG, written for speed: the toolkit's own writer tries every filter on every row, which takes
/// longer than to draw the board and makes little of a board's flat areas smaller.
namespace PngBytes
{
/// The picture's file; empty for a null picture and when memory runs out. A picture without transparency is
/// stored without an alpha channel.
QByteArray of(const QImage &picture);
} // namespace PngBytes
