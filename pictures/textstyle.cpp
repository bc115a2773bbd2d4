#include "pictures/textstyle.h"

#include "model/namedcolor.h"
#include "pictures/textkeys.h"
#include "pictures/textletters.h"

#include <QBrush>
#include <QFont>

bool TextStyle::isStyle(const QString &key)
{
    return key == TextKeys::italic() || key == TextKeys::font() || key == TextKeys::underlined() ||
           key == TextKeys::size() || key == TextKeys::bold() || key == TextKeys::color();
}

QTextCharFormat TextStyle::charFormat(const QString &key, const QVariant &value)
{
    QTextCharFormat format;
    if (key == TextKeys::italic())
        format.setFontItalic(value.toBool());
    else if (key == TextKeys::font())
        TextLetters::setFamily(format, value.toString());
    else if (key == TextKeys::underlined())
        format.setFontUnderline(value.toBool());
    else if (key == TextKeys::size())
        TextLetters::setSize(format, value.toInt());
    else if (key == TextKeys::bold())
        format.setFontWeight(value.toBool() ? QFont::Bold : QFont::Normal);
    else if (key == TextKeys::color())
        format.setForeground(namedColor(value.toString()));
    return format;
}
