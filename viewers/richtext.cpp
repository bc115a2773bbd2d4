#include "viewers/richtext.h"

namespace
{
constexpr int maximumLength = 1024 * 1024; // characters, markup included
constexpr int maximumText = 16 * 1024;     // characters outside of markup
constexpr int maximumWord = 1000;          // characters
constexpr int maximumTags = 2000;
constexpr int maximumDepth = 200;    // elements in one another
constexpr int maximumTableDepth = 6; // tables in one another
constexpr int excerptLength = 1000;  // characters

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
               m_depth > maximumDepth || m_tableDepth > maximumTableDepth;
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
        if (name.compare(QLatin1String("table"), Qt::CaseInsensitive) == 0)
            m_tableDepth = qMax(0, m_tableDepth + step);
        const int end = m_html.indexOf(QLatin1Char('>'), m_at);
        m_at = end < 0 ? m_html.size() : end;
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
};
} // namespace

bool RichText::isShowable(const QString &html)
{
    return html.size() <= maximumLength && Scanner(html).fits();
}

QString RichText::excerpt(const QString &html)
{
    QString text;
    bool isInTag = false;
    for (const QChar character : html) {
        if (character == QLatin1Char('<'))
            isInTag = true;
        else if (character == QLatin1Char('>'))
            isInTag = false;
        else if (!isInTag)
            text.append(character);
        if (text.size() == excerptLength)
            break;
    }
    return text;
}
