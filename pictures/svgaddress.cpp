#include "pictures/svgaddress.h"

#include <cctype>

namespace
{
constexpr int longestEscape = 6; // digits

bool isHexDigit(QChar letter)
{
    return std::isxdigit(uchar(letter.toLatin1())) != 0;
}

/// The letter behind a backslash, which may be written as its number. Moves the place behind it.
QChar escapedLetter(const QString &style, int &place)
{
    int end = place;
    while (end < qMin(place + longestEscape, style.size()) && isHexDigit(style.at(end)))
        ++end;
    if (end == place)
        return place < style.size() ? style.at(place++) : QChar();
    const uint number = style.midRef(place, end - place).toUInt(nullptr, 16);
    place = end < style.size() && style.at(end).isSpace() ? end + 1 : end;
    return QChar(ushort(number));
}

bool isSpaceOrQuote(QChar letter)
{
    return letter.isSpace() || letter == QLatin1Char('"') || letter == QLatin1Char('\'');
}

/// The address in the brackets that are open at this place.
QString addressAt(const QString &style, int place)
{
    while (place < style.size() && isSpaceOrQuote(style.at(place)))
        ++place;
    return style.mid(place, style.indexOf(QLatin1Char(')'), place) - place);
}
} // namespace

QString SvgAddress::plain(const QString &style)
{
    if (!style.contains(QLatin1Char('\\')))
        return style;
    QString letters;
    for (int place = 0; place < style.size();) {
        const QChar letter = style.at(place++);
        letters += letter == QLatin1Char('\\') ? escapedLetter(style, place) : letter;
    }
    return letters;
}

bool SvgAddress::isInside(const QString &address, QVector<QByteArray> &pictures)
{
    if (address.startsWith(QLatin1Char('#')))
        return true;
    if (!address.startsWith(QLatin1String("data:image/")))
        return false;
    const QString mark = QStringLiteral("base64,");
    const int place = address.lastIndexOf(mark);
    if (place >= 0)
        pictures.append(QByteArray::fromBase64(address.midRef(place + mark.size()).toLatin1()));
    return true;
}

bool SvgAddress::staysInside(const QString &style, QVector<QByteArray> &pictures)
{
    const QString letters = plain(style);
    const QString mark = QStringLiteral("url(");
    for (int at = letters.indexOf(mark, 0, Qt::CaseInsensitive); at >= 0;
         at = letters.indexOf(mark, at + mark.size(), Qt::CaseInsensitive)) {
        const QString address = addressAt(letters, at + mark.size());
        // One within another: each would be read to the end of all.
        if (address.contains(QLatin1Char('(')) || !isInside(address, pictures))
            return false;
    }
    return !letters.contains(QLatin1String("@import"), Qt::CaseInsensitive);
}
