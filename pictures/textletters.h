#pragma once

#include <QString>
#include <QTextCharFormat>

class QTextDocument;

/// The letters in the document of a text. A format names the font and the size in points, as they are
/// stored, and carries beside them what is shown for them on every machine alike.
namespace TextLetters
{
/// Makes the document lay its text out for a board instead of a screen. To be called for a new document, and
/// again whenever it was given another default font.
void prepare(QTextDocument &document);

/// Names the font and sets the families that are shown for it.
void setFamily(QTextCharFormat &format, const QString &family);

/// Sets the size in points; one that is no size gives letters of the document's own size.
void setSize(QTextCharFormat &format, int points);

/// The HTML with lengths in pixels instead of those in "em" and "ex", which the toolkit would measure in
/// letters of the interface.
QString withoutRelativeLengths(const QString &html);

/// Brings letters that were read from HTML into this form.
void settle(QTextDocument &document);

/// The document as it is stored: with the fonts that it names instead of those that are shown for them, and
/// with the steps in size ("large") that letters are shown by instead of sizes.
QString storedHtml(const QTextDocument &document);
} // namespace TextLetters
