#pragma once

#include <QStringList>

/// The desktop's own rules for fonts (fontconfig), as far as they reach the fonts that the program has loaded
/// by itself. On platforms without fontconfig there are no such rules.
namespace FontconfigRules
{
/// Every name under which the loaded fonts can be asked for: families, and weights that are families of their
/// own ("Exo 2 Black"). Empty on platforms without fontconfig.
QStringList loadedNames();

/// Draws these families in shades from now on, whatever the desktop says. To be called before their first
/// letter; fonts of the desktop stay as they are.
void keepSmooth(const QStringList &families);
} // namespace FontconfigRules
