#include "pictures/htmlreader.h"

namespace
{
constexpr int longestEntity = 9;  // characters, the semicolon included
constexpr int longestWord = 1000; // characters that are kept

void extend(QString &word, uint code)
{
    if (word.size() >= longestWord)
        return;
    if (QChar::requiresSurrogates(code))
        word.append(QChar(QChar::highSurrogate(code))).append(QChar(QChar::lowSurrogate(code)));
    else
        word.append(QChar(ushort(code)));
}

/// What "#65" or "#x41" stands for; 0 for anything else.
uint numbered(const QStringRef &name)
{
    const bool isHexadecimal = name.mid(1).startsWith(QLatin1Char('x'), Qt::CaseInsensitive);
    const QStringRef digits = name.mid(isHexadecimal ? 2 : 1);
    const bool isNumber = name.startsWith(QLatin1Char('#')) && !digits.isEmpty() && !digits.at(0).isSpace();
    const uint code = isNumber ? digits.toUInt(nullptr, isHexadecimal ? 16 : 10) : 0;
    return code <= QChar::LastValidCodePoint ? code : uint(QChar::ReplacementCharacter);
}

/// The character that an entity without its ampersand and semicolon stands for; 0 when it is not known.
uint entity(const QStringRef &name)
{
    struct Entity {
        QLatin1String name;
        char character = 0;
    };
    static const Entity named[] = {{QLatin1String("lt"), '<'},    {QLatin1String("gt"), '>'},
                                   {QLatin1String("quot"), '"'},  {QLatin1String("nbsp"), ' '},
                                   {QLatin1String("apos"), '\''}, {QLatin1String("amp"), '&'}};
    for (const Entity &known : named) {
        if (name == known.name)
            return uint(known.character);
    }
    return numbered(name);
}
} // namespace

HtmlReader::Piece HtmlReader::next()
{
    if (m_at >= m_html.size())
        return Piece::End;
    if (isAt(QLatin1Char('<'))) {
        ++m_at;
        return readTag();
    }
    m_character = readCharacter();
    return Piece::Character;
}

QString HtmlReader::value(const QString &attribute) const
{
    for (const auto &pair : m_attributes) {
        if (pair.first == attribute)
            return pair.second;
    }
    return QString();
}

int HtmlReader::number(const QString &attribute) const
{
    int largest = 0;
    for (const auto &pair : m_attributes) {
        if (pair.first == attribute)
            largest = qMax(largest, pair.second.toInt());
    }
    return largest;
}

HtmlReader::Piece HtmlReader::readTag()
{
    skipSpace();
    if (isAt(QLatin1Char('!')))
        return readDeclaration();
    return isAt(QLatin1Char('/')) ? readClosing() : readOpening();
}

HtmlReader::Piece HtmlReader::readDeclaration()
{
    const bool isComment = m_html.midRef(m_at, 3) == QLatin1String("!--");
    m_at += isComment ? 3 : 1;
    skipTo(isComment ? QStringLiteral("-->") : QStringLiteral(">"));
    return Piece::Declaration;
}

HtmlReader::Piece HtmlReader::readClosing()
{
    ++m_at;
    m_name = readWord().toLower().trimmed();
    skipTo(QStringLiteral(">"));
    return Piece::Closing;
}

HtmlReader::Piece HtmlReader::readOpening()
{
    m_name = readWord().toLower();
    m_attributes.clear();
    // Without a space behind the name there are no attributes, and quotes mean nothing.
    if (m_at < m_html.size() && m_html.at(m_at).isSpace())
        readAttributes();
    const int rest = m_at;
    skipTo(QStringLiteral(">"));
    m_isClosed = m_html.midRef(rest, m_at - rest).contains(QLatin1Char('/'));
    return Piece::Opening;
}

void HtmlReader::readAttributes()
{
    skipSpace();
    while (m_at < m_html.size() && !isAt(QLatin1Char('>')) && !isAt(QLatin1Char('/')) && readAttribute())
        skipSpace();
}

bool HtmlReader::readAttribute()
{
    const QString key = readWord().toLower();
    if (key.isEmpty())
        return false;
    skipSpace();
    QString value = QStringLiteral("1");
    if (isAt(QLatin1Char('='))) {
        ++m_at;
        skipSpace();
        value = readWord();
    }
    if (m_attributes.size() <= maximumAttributes)
        m_attributes.append({key, value});
    return true;
}

QString HtmlReader::readWord()
{
    for (const QChar quote : {QLatin1Char('"'), QLatin1Char('\'')}) {
        if (isAt(quote))
            return readQuoted(quote);
    }
    QString word;
    while (m_at < m_html.size() && !endsWord())
        extend(word, readCharacter());
    return word;
}

bool HtmlReader::endsWord() const
{
    const QChar character = m_html.at(m_at);
    return character == QLatin1Char('>') || character == QLatin1Char('<') || character == QLatin1Char('=') ||
           character.isSpace() || m_html.midRef(m_at, 2) == QLatin1String("/>");
}

QString HtmlReader::readQuoted(QChar quote)
{
    QString word;
    for (++m_at; m_at < m_html.size() && !isAt(quote);)
        extend(word, readCharacter());
    ++m_at;
    return word;
}

uint HtmlReader::readCharacter()
{
    const QChar character = m_html.at(m_at++);
    return character == QLatin1Char('&') ? readEntity() : character.unicode();
}

uint HtmlReader::readEntity()
{
    const QStringRef rest = m_html.midRef(m_at, longestEntity);
    const int end = rest.indexOf(QLatin1Char(';'));
    const uint found = end > 0 ? entity(rest.left(end)) : 0;
    if (found == 0)
        return '&';
    m_at += end + 1;
    return found;
}

void HtmlReader::skipSpace()
{
    // A paragraph separator is space everywhere but here.
    while (m_at < m_html.size() && m_html.at(m_at).isSpace() && !isAt(QChar::ParagraphSeparator))
        ++m_at;
}

void HtmlReader::skipTo(const QString &end)
{
    const int found = m_html.indexOf(end, m_at);
    m_at = found < 0 ? m_html.size() : found + end.size();
}
