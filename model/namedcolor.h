#pragma once

#include <QColor>
#include <QString>

/// The colour of a stored colour string: a name, or a hash sign and hexadecimal digits. For anything else the
/// colour is invalid, which paints as black.
QColor namedColor(const QString &name);
