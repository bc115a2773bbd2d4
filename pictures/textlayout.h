#pragma once

#include <QTextCursor>

class QTextDocument;

/// Where a text lies in its rectangle.
namespace TextLayout
{
/// Aligns the selected paragraphs as the code says (TextAlignment); a number that is no code leaves them
/// alone.
void align(QTextCursor &paragraphs, int code);

/// Puts the document at the top, in the middle or at the bottom of a rectangle of this height (px), by the
/// margin above it. Any other number and a document without a height are left alone. True when the margin is
/// another now.
bool place(QTextDocument &document, int vertical, int height);
} // namespace TextLayout
