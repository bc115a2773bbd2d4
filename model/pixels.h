#pragma once

#include <QJsonValue>
#include <QVariant>

/// The largest coordinate and length in pixels that a widget can have.
constexpr int maximumPixels = 16777215;

/// A whole number of pixels from a stored value: rounded, held to ±maximumPixels, 0 for what is no number.
/// Layout files may carry any number; what is computed from the result cannot overflow an int.
int toPixels(const QVariant &value);

/// A number of a layout file, rounded; 0 for what is no number and for what no int holds.
int wholeNumber(const QJsonValue &value);
