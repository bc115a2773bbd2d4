#pragma once

#include <QString>

/// Rich text of unknown origin. The toolkit's reader and its layout take a time that grows with the square of
/// some measures and exponentially with others, so that a few kilobytes could hold up the program for hours.
namespace RichText
{
/// True when the HTML is of a size and depth that is read and laid out in next to no time.
bool isShowable(const QString &html);

/// The beginning of a text that is not showable, as plain text: without markup and style sheets.
QString excerpt(const QString &html);
} // namespace RichText
