#pragma once

#include <QString>

/// Rich text of unknown origin, before it is read. The toolkit's reader takes a time that grows with the
/// square of some measures and exponentially with others, so that a few kilobytes could hold up the program
/// for hours. What makes the layout slow is left to TextBounds.
namespace RichText
{
/// The most characters that a text may have, without markup and without the breaks between its lines.
constexpr int maximumText = 16 * 1024;

/// The length of the beginning of a text that is not showable, in characters.
constexpr int excerptLength = 1000;

/// True when the HTML is of a size and depth that is read in next to no time.
bool isShowable(const QString &html);

/// The beginning of a text as plain text, without markup and style sheets, in at most so many characters.
QString excerpt(const QString &html, int length = excerptLength);
} // namespace RichText
