#pragma once

#include <QJsonObject>
#include <QSize>

/// The board that all programs work on: shapes of a like size spread evenly, half of them with round corners.
namespace BenchBoard
{
constexpr QSize itemSize(40, 20);

/// A layout document of so many shapes on a canvas of the size.
QJsonObject layout(int items, QSize canvas);

/// Writes the layout into the file. False when that fails.
bool write(const QString &path, int items, QSize canvas);
} // namespace BenchBoard
