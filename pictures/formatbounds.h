#pragma once

#include <QSizeF>
#include <QTextFormat>

/// The numbers in the formats of a rich text: how to hold them, and how much room they ask for at most.
namespace FormatBounds
{
/// Holds every length in the format, of whatever kind, to ±limit pixels or percent; what is no number becomes
/// 0. Answers whether anything changed.
bool hold(QTextFormat &format, qreal limit);

/// The size in which a picture is drawn; ownSize is what it has without a size in its format.
QSizeF pictureSize(const QTextImageFormat &format, QSize ownSize);

/// Holds a picture that is drawn in this size to limit x limit pixels. Answers whether anything changed.
bool holdPicture(QTextImageFormat &format, QSizeF size, qreal limit);

/// The most pixels that a line of one character, or of a picture whose longer side is given, adds to the
/// height or to the width of its text.
qreal ofCharacter(const QTextCharFormat &character, const QTextBlockFormat &paragraph, qreal picture = 0);

/// The most pixels that a paragraph adds to the height or to the width beside its lines.
qreal ofParagraph(const QTextBlockFormat &format);

/// The most pixels that a frame adds to the height or to the width beside its content; of a table, with this
/// number of cells.
qreal ofFrame(const QTextFrameFormat &format, int cells);

/// The most pixels that a cell of a table adds by its own format.
qreal ofCell(const QTextFormat &format);
} // namespace FormatBounds
