#include "pictures/richtext.h"

#include "pictures/htmlreader.h"
#include "pictures/openelements.h"

#include <cstring>

namespace
{
constexpr int maximumLength = 8 * 1024 * 1024;      // characters, markup included
constexpr int maximumTags = 64 * 1024;              // that open an element
constexpr int maximumAttributes = 256 * 1024;       // of all tags together
constexpr int maximumStyle = 256 * 1024;            // characters of style sheets
constexpr int maximumDepth = 200;                   // elements in one another
constexpr int maximumTableDepth = 6;                // tables in one another
constexpr int workOfTag = 16;                       // characters, in tables
constexpr int workOfCell = 32;                      // characters
constexpr int maximumPictures = 200;                // each may float, and all of them are asked for room
constexpr qint64 maximumCells = 16 * 1024;          // of all tables together
constexpr qint64 maximumWork = 6 * 1024;            // cells and as much as a cell, in tables
constexpr qint64 maximumMerging = 1024 * 1024;      // cells times cells
constexpr qint64 maximumMatching = 2 * 1024 * 1024; // selectors times elements and what is around them
constexpr qint64 maximumStyling = 32 * 1024 * 1024; // characters of style sheets times selectors times tags

/// True when a style may say so, be it in a roundabout way of writing.
bool mayChangeDisplay(const QString &html)
{
    return html.contains(QLatin1String("display"), Qt::CaseInsensitive) || html.contains(QLatin1Char('\\')) ||
           html.contains(QLatin1String("&#"));
}

/// Walks through HTML and keeps the measures that the toolkit's reader depends on.
class Scanner
{
public:
    explicit Scanner(const QString &html) : m_reader(html), m_open(mayChangeDisplay(html)) {}

    bool fits()
    {
        while (!isOver()) {
            const HtmlReader::Piece piece = m_reader.next();
            if (piece == HtmlReader::Piece::End)
                return true;
            count(piece);
        }
        return false;
    }

private:
    bool isOver() const
    {
        return m_text > RichText::maximumText || m_tags > maximumTags || m_attributes > maximumAttributes ||
               m_pictures > maximumPictures || m_style > maximumStyle ||
               m_selectors * m_elements > maximumMatching || m_styling * m_tags > maximumStyling ||
               m_reader.attributes() > HtmlReader::maximumAttributes || m_open.depth() > maximumDepth ||
               m_open.tables() > maximumTableDepth || m_open.cells() > maximumCells ||
               m_open.merging() > maximumMerging || m_work / workOfCell + m_open.weight() > maximumWork;
    }

    void count(HtmlReader::Piece piece)
    {
        if (piece == HtmlReader::Piece::Character)
            countCharacter();
        else if (piece == HtmlReader::Piece::Opening)
            countTag();
        else if (piece == HtmlReader::Piece::Closing)
            m_open.close(m_reader.name());
    }

    void countCharacter()
    {
        // A break between two lines is no character of either.
        const uint code = m_reader.character();
        if (m_open.isInStyle())
            countStyle(code);
        countWork(1);
        m_text += !m_open.isHidden() && code != '\n' && code != '\r';
    }

    /// Around a text that has a margin above it the toolkit writes a table, which it takes off when it reads
    /// it.
    void discountRoot()
    {
        const bool isRoot =
            !m_hasRoot && m_open.tables() == 1 && m_reader.name() == QLatin1String("table") &&
            m_reader.value(QStringLiteral("style")).startsWith(QLatin1String("-qt-table-type: root;"));
        if (!isRoot)
            return;
        m_hasRoot = true;
        m_open.discountTable();
    }

    /// Each table around something is laid out twice, and all that is in it.
    void countWork(int work) { m_work += m_open.tables() > 0 ? work << (m_open.tables() - 1) : 0; }

    /// Counts what may be a selector or a part of one.
    void countStyle(uint code)
    {
        ++m_style;
        // Where anything unusual comes, even declarations may hide selectors.
        m_isOddStyle = m_isOddStyle || contains("@/\\\"'", code);
        m_braces += code == '{' ? 1 : code == '}' ? -1 : 0;
        const bool isOutside = m_braces <= 0 || m_isOddStyle;
        const bool isSelector = contains("{,", code) || (isOutside && contains(" \t\n>+~[.:#*", code));
        m_selectors += isSelector;
        countRule(code, isSelector);
    }

    /// What a rule declares is read once for each of its selectors, and anew for each element.
    void countRule(uint code, bool isSelector)
    {
        m_selectorsOfRule += isSelector;
        m_styling += qMax(m_selectorsOfRule, 1);
        if (code == '}' && !m_isOddStyle)
            m_selectorsOfRule = 0;
    }

    static bool contains(const char *characters, uint code)
    {
        return code < 128 && std::strchr(characters, int(code)) && code != 0;
    }

    void countTag()
    {
        ++m_tags;
        m_attributes += m_reader.attributes();
        m_pictures += m_reader.name() == QLatin1String("img");
        m_open.open(m_reader.name(), m_reader.number(QStringLiteral("colspan")),
                    m_reader.number(QStringLiteral("rowspan")));
        discountRoot();
        m_elements += 1 + m_open.depth() + m_reader.attributes();
        countWork(workOfTag);
        if (m_reader.isClosed())
            m_open.close(m_reader.name());
    }

    HtmlReader m_reader;
    OpenElements m_open;
    int m_text = 0;
    int m_tags = 0;
    int m_attributes = 0;
    int m_pictures = 0;
    qint64 m_elements = 0; // each with those around it and its attributes
    int m_style = 0;
    qint64 m_selectors = 0;
    int m_selectorsOfRule = 0;
    qint64 m_styling = 0; // characters of style sheets, each times the selectors of its rule
    qint64 m_work = 0;    // characters
    int m_braces = 0;
    bool m_isOddStyle = false;
    bool m_hasRoot = false;
};

/// True when a line ends with the tag.
bool endsLine(HtmlReader::Piece piece, const QString &name)
{
    if (name == QLatin1String("br"))
        return true;
    static const QStringList lines = {QStringLiteral("p"),  QStringLiteral("div"), QStringLiteral("li"),
                                      QStringLiteral("tr"), QStringLiteral("h1"),  QStringLiteral("h2"),
                                      QStringLiteral("h3"), QStringLiteral("h4"),  QStringLiteral("h5"),
                                      QStringLiteral("h6")};
    return piece == HtmlReader::Piece::Closing && lines.contains(name);
}

/// Collects what is for reading.
class Excerpt
{
public:
    QString take(const QString &html, int length)
    {
        HtmlReader reader(html);
        for (auto piece = reader.next(); piece != HtmlReader::Piece::End && m_text.size() < length;
             piece = reader.next())
            add(piece, reader);
        m_text.truncate(length);
        return m_text;
    }

private:
    void add(HtmlReader::Piece piece, const HtmlReader &reader)
    {
        if (piece == HtmlReader::Piece::Character)
            addCharacter(reader.character());
        else if (piece != HtmlReader::Piece::Declaration)
            addTag(piece, reader.name());
    }

    void addCharacter(uint code)
    {
        if (m_hidden.isEmpty())
            m_text.append(QString::fromUcs4(&code, 1));
    }

    void addTag(HtmlReader::Piece piece, const QString &name)
    {
        if (m_hidden.isEmpty() && endsLine(piece, name))
            m_text.append(QLatin1Char('\n'));
        if (m_hidden.isEmpty() && piece == HtmlReader::Piece::Opening && OpenElements::isHidden(name))
            m_hidden = name;
        else if (piece == HtmlReader::Piece::Closing && m_hidden == name)
            m_hidden.clear();
    }

    QString m_text;
    QString m_hidden; // the element whose content is not for reading
};
} // namespace

bool RichText::isShowable(const QString &html)
{
    return html.size() <= maximumLength && Scanner(html).fits();
}

QString RichText::excerpt(const QString &html, int length)
{
    return Excerpt().take(html, length);
}
