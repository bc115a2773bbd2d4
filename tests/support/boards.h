#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QRect>

// Layout documents for tests, as a file would hold them.

/// A shape with every parameter given; the values are not the defaults of a new shape.
QJsonObject shapeObject(const QString &name, const QRect &geometry);

/// The same with other values under some keys.
QJsonObject shapeObject(const QString &name, const QRect &geometry, const QJsonObject &others);

/// A grid of small shapes named "Item 0" and so on.
QJsonArray manyShapes(int count);

/// A document with these items on a screen of 800 x 400 black pixels.
QJsonObject board(const QJsonArray &items);

/// A document with these items and screen parameters.
QJsonObject board(const QJsonArray &items, const QJsonObject &parameters);
