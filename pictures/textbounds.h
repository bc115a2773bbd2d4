#pragma once

#include <QString>

class QTextDocument;

/// What keeps the layout of a rich text short of its overflows, beyond which it never ends. Works on a
/// document that was read but is not laid out yet: in an edit block, or when the document tells of its
/// changed contents.
namespace TextBounds
{
/// Up to here every length is drawn as it is asked for, in pixels or percent.
constexpr int largestLength = 10000;

/// True when the text is laid out in next to no time once its formats are clamped.
bool isShowable(const QTextDocument &document);

/// As much of the beginning of a plain text as the document has room for.
QString beginning(const QString &text, const QTextDocument &document);

/// Holds every number in the formats of the document to ±largestLength, and the sum of all heights below what
/// a layout can count, were every character a line of its own: what comes after that sum becomes small.
void clamp(QTextDocument &document);
} // namespace TextBounds
