#pragma once

#include <QStringList>

/// The desktop's own rules for fonts (fontconfig), as far as they reach the fonts that the program has loaded
/// by itself. On platforms without fontconfig there are no such rules.
namespace FontconfigRules
{
/// Every name under which the loaded fonts can be asked for: families, and weights that are families of their
/// own ("Exo 2 Black"). Empty on platforms without fontconfig.
QStringList loadedNames();

/// Takes the desktop's fonts that share a name with a loaded one out of what this process is offered: the
/// toolkit would take them for the same family and prefer them. True when there were any; the toolkit then
/// has to read its fonts anew.
bool hideNamesakes();

/// Lets go of the loaded fonts, which are about to be loaded once more.
void forgetLoaded();

/// Draws these families in shades from now on, whatever the desktop says. To be called before their first
/// letter; fonts of the desktop stay as they are.
void keepSmooth(const QStringList &families);
} // namespace FontconfigRules
