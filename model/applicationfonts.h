#pragma once

#include <QStringList>

/// Loads the bundled fonts and then the files in "fonts" below the working directory, a folder the user may
/// fill, and notes their families in FontFamilies. Needs the application object and initAssets().
void loadApplicationFonts();

/// Loads, of the bundled fonts, those alone that these names stand for, and the one that texts fall back on;
/// and the files in "fonts". Otherwise like the function above.
void loadFontsNamed(const QStringList &names);

/// Offers every file in @p folder, whatever its name, to the font database and notes the families of the
/// accepted ones. Files that are no fonts are passed over silently; a missing folder has no files.
void loadFontFolder(const QString &folder);
