#pragma once

#include <QJsonObject>

/// The letters of one board.
namespace BoardLetters
{
/// Loads the fonts that the layout's texts need and no others: all of them when a character is in none of
/// those. Needs the application object and initAssets().
void loadFonts(const QJsonObject &layout);
} // namespace BoardLetters
