#pragma once

#include <QJsonObject>

/// A board of 800 x 400 px with letters of many fonts, sizes and kinds: small ones and ones drawn from
/// outlines, characters that fonts lack, fonts that are not there, headings, lists and margins in units of
/// the font.
QJsonObject lettersBoard();
