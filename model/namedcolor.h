#pragma once

#include <QColor>
#include <QString>

/// The colour of a stored colour string: a name, or a hash sign and hexadecimal digits. Invalid, which paints as
/// black, for anything else; unlike the toolkit's own reader it does not complain about such a string.
QColor namedColor(const QString &name);
