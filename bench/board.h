#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QSize>

/// The board that all programs work on: items of a like size spread evenly. Of the shapes, half have round
/// corners.
namespace BenchBoard
{
constexpr QSize itemSize(40, 20);

/// What the board consists of; of the mixed one every fifth item is a text.
enum class Content { Shapes, Texts, Mixed };

/// So many item objects for a canvas of the size.
QJsonArray items(int count, QSize canvas, Content content);

/// A layout document of the items.
QJsonObject layout(const QJsonArray &items, QSize canvas);
QJsonObject layout(int items, QSize canvas, Content content = Content::Shapes);

/// Writes the layout into the file. False when that fails.
bool write(const QString &path, const QJsonObject &layout);
} // namespace BenchBoard
