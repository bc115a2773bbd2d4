#pragma once

#include <QFont>
#include <QStringList>

/// The fonts of board texts. A board has the same letters on every machine: of fonts that this program brings
/// along or was given, never of fonts that a desktop happens to have, and in sizes that no desktop scales.
/// The interface's own letters are none of these and follow the desktop.
namespace BoardFonts
{
/// Takes the variables out of the environment with which a user may change how all letters are drawn and set:
/// what is drawn from memory (large letters may then not be drawn at all), how bold and slanted letters are
/// made of others, how thick stems are, who joins letters. For main, before the application object.
void clearVariables();

/// To be called once the fonts are loaded and before a text is shown: notes the names that can be asked for
/// and keeps the desktop's rules from them.
void settle();

/// The families that letters of the font with this name are asked for in, which is the name itself wherever
/// that gives the same letters on every machine: those of the loaded font, or of its stand-in. Not so when
/// the desktop has a font of the name, or when the name is no plain one. Characters that the font lacks are
/// taken from fonts of the program, too.
QStringList shownFamilies(const QString &name);

/// The family of letters of which a text says nothing, and of most of those that its font lacks.
QString plainFamily();

/// The height of letters of this size in points: a point is 1/72 inch, and a board has 96 pixels to the inch.
/// Held to 1 to 10,000 px.
int pixelSize(qreal points);

/// The size in points of letters of this height.
qreal points(int pixels);

/// What letters look like of which a text says nothing, and how all letters are drawn: in shades of grey and
/// hinted one way, so that no setting of the desktop makes a difference.
QFont plainFont();
} // namespace BoardFonts
