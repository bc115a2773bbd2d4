#pragma once

#include <QJsonValue>
#include <QVariant>

/// A value as files give it to an item. Numbers are doubles whatever the JSON reader made of them, so that 10
/// and 10.0 are the same value; one that is missing is invalid.
inline QVariant storedValue(const QJsonValue &value)
{
    return value.isDouble() ? QVariant(value.toDouble()) : value.toVariant();
}
