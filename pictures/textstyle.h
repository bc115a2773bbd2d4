#pragma once

#include <QTextCharFormat>
#include <QVariant>

/// How the parameters of a text become character formats.
namespace TextStyle
{
/// True for the parameters that set the look of characters.
bool isStyle(const QString &key);

/// What the parameter sets and nothing else; an empty format for any other key.
QTextCharFormat charFormat(const QString &key, const QVariant &value);
} // namespace TextStyle
