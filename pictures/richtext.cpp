#include "pictures/richtext.h"

namespace
{
constexpr int maximumLength = 1024 * 1024; // characters, markup included
constexpr int maximumText = 16 * 1024;     // characters outside of markup
constexpr int maximumWord = 1000;          // characters
constexpr int maximumTags = 2000;
constexpr int maximumDepth = 200;    // elements in one another
constexpr int maximumTableDepth = 6; // tables in one another
constexpr int maximumPictures = 200; // each may float, and all of them are asked for room
constexpr int maximumDigits = 7;     // of a number in the tag of a table: larger ones overflow
constexpr int excerptLength = 1000;  // characters

int endOfTag(const QString &html, int at)
{
    const int end = html.indexOf(QLatin1Char('>'), at);
    return end < 0 ? html.size() : end;
}

/// Walks through HTML and keeps the measures that matter.
class Scanner
{
public:
    explicit Scanner(const QString &html) : m_html(html) {}

    bool fits()
    {
        for (m_at = 0; m_at < m_html.size(); ++m_at) {
            if (m_html.at(m_at) == QLatin1Char('<'))
                countTag();
            else
                countCharacter();
            if (isOver())
                return false;
        }
        return true;
    }

private:
    bool isOver() const
    {
        return m_text > maximumText || m_word > maximumWord || m_tags > maximumTags ||
               m_depth > maximumDepth || m_tableDepth > maximumTableDepth || m_pictures > maximumPictures ||
               m_hasWildTable;
    }

    void countCharacter()
    {
        ++m_text;
        m_word = m_html.at(m_at).isSpace() ? 0 : m_word + 1;
    }

    void countTag()
    {
        ++m_tags;
        m_word = 0;
        const bool isClosing = m_html.midRef(m_at + 1, 1) == QLatin1String("/");
        const int step = isClosing ? -1 : 1;
        const QStringRef name = m_html.midRef(m_at + (isClosing ? 2 : 1), 5);
        if (!isVoid(name))
            m_depth = qMax(0, m_depth + step);
        m_pictures += name.startsWith(QLatin1String("img"), Qt::CaseInsensitive);
        const int end = endOfTag(m_html, m_at);
        if (name.compare(QLatin1String("table"), Qt::CaseInsensitive) == 0) {
            m_tableDepth = qMax(0, m_tableDepth + step);
            m_hasWildTable = m_hasWildTable || isWild(m_html.midRef(m_at, end - m_at));
        }
        m_at = end;
    }

    /// True when a number in the tag may be too large, also one that is spelled with entities.
    static bool isWild(const QStringRef &tag)
    {
        int digits = 0;
        for (const QChar character : tag) {
            digits = character.isDigit() ? digits + 1 : 0;
            if (digits > maximumDigits || character == QLatin1Char('&'))
                return true;
        }
        return false;
    }

    /// True for elements that are never closed.
    static bool isVoid(const QStringRef &name)
    {
        for (const char *opening : {"br", "img", "hr", "meta", "!", "?"}) {
            if (name.startsWith(QLatin1String(opening), Qt::CaseInsensitive))
                return true;
        }
        return false;
    }

    const QString &m_html;
    int m_at = 0;
    int m_text = 0;
    int m_word = 0;
    int m_tags = 0;
    int m_depth = 0;
    int m_tableDepth = 0;
    int m_pictures = 0;
    bool m_hasWildTable = false;
};

/// Where the tag at this place ends, or the whole element when its content is not for reading.
int endOfMarkup(const QString &html, int at)
{
    for (const char *name : {"head", "style", "script", "title"}) {
        const QString opening = QLatin1Char('<') + QLatin1String(name);
        if (html.midRef(at, opening.size()).compare(opening, Qt::CaseInsensitive) == 0) {
            const int end = html.indexOf(QStringLiteral("</") + QLatin1String(name), at, Qt::CaseInsensitive);
            return end < 0 ? html.size() : endOfTag(html, end);
        }
    }
    return endOfTag(html, at);
}

/// True when a line ends with the tag at this place.
bool endsLine(const QString &html, int at)
{
    for (const char *tag : {"<br", "</p", "</div", "</li", "</tr", "</h"}) {
        const QLatin1String opening(tag);
        if (html.midRef(at, opening.size()).compare(opening, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

QString withoutEntities(QString text)
{
    // The ampersand last, so that nothing is read twice.
    return text.replace(QLatin1String("&lt;"), QLatin1String("<"))
        .replace(QLatin1String("&gt;"), QLatin1String(">"))
        .replace(QLatin1String("&quot;"), QLatin1String("\""))
        .replace(QLatin1String("&nbsp;"), QLatin1String(" "))
        .replace(QLatin1String("&amp;"), QLatin1String("&"));
}
} // namespace

bool RichText::isShowable(const QString &html)
{
    return html.size() <= maximumLength && Scanner(html).fits();
}

QString RichText::excerpt(const QString &html)
{
    QString text;
    for (int at = 0; at < html.size() && text.size() < excerptLength; ++at) {
        if (html.at(at) != QLatin1Char('<')) {
            text.append(html.at(at));
            continue;
        }
        if (endsLine(html, at))
            text.append(QLatin1Char('\n'));
        at = endOfMarkup(html, at);
    }
    return withoutEntities(text);
}
