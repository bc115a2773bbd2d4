#include "pictures/svgcontents.h"

#include "pictures/svgaddress.h"
#include "pictures/svgelements.h"

#include <QFileInfo>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>

namespace
{
/// The reader compares each attribute of an element with all of the others, and escapes in styles with what
/// is before them.
constexpr int maximumSigns = 1000; // of each sort, in one element

/// True when that many of these signs lie between two openings of tags, which no attribute contains.
bool hasTooMany(char sign, const QByteArray &svg)
{
    int signs = 0;
    return std::any_of(svg.begin(), svg.end(), [&signs, sign](char letter) {
        signs = letter == '<' ? 0 : signs + (letter == sign ? 1 : 0);
        return signs > maximumSigns;
    });
}

/// The name without the prefix of its namespace: what reads drawings may go by either.
QString localName(const QStringRef &name)
{
    return name.mid(name.lastIndexOf(QLatin1Char(':')) + 1).toString();
}

QString nameIn(const QXmlStreamAttributes &attributes)
{
    const QStringRef name = attributes.value(QLatin1String("id"));
    return (name.isEmpty() ? attributes.value(QLatin1String("xml:id")) : name).toString();
}

/// What shows another element as its own.
bool isUser(const QString &element)
{
    return element == QLatin1String("use") || element == QLatin1String("pattern") ||
           element.endsWith(QLatin1String("Gradient"));
}

class Reading
{
public:
    explicit Reading(const QByteArray &svg) : m_xml(svg)
    {
        // An undeclared prefix is for whoever draws to judge.
        m_xml.setNamespaceProcessing(false);
    }

    SvgContents contents()
    {
        while (m_contents.refusal.isEmpty() && !m_xml.atEnd())
            takeToken(m_xml.readNext());
        if (m_contents.refusal.isEmpty() && m_xml.hasError())
            refuse("the drawing is damaged");
        if (m_contents.refusal.isEmpty() && !m_elements.isWithin(limits()))
            refuse("the drawing uses its elements too often");
        if (m_contents.refusal.isEmpty() && m_contents.cost.readingTime() > SvgCost::maximum)
            refuse("the drawing's styles take too long");
        m_contents.elements = m_elements.total().elements;
        m_contents.tree = m_elements;
        return m_contents;
    }

private:
    static SvgElements::Weight limits()
    {
        return {SvgContents::maximumElements, SvgContents::maximumUsedBytes, SvgContents::maximumDepth};
    }

    void refuse(const char *reason) { m_contents.refusal = QLatin1String(reason); }

    void takeToken(QXmlStreamReader::TokenType token)
    {
        if (token == QXmlStreamReader::DTD)
            takeDocumentType();
        else if (token == QXmlStreamReader::ProcessingInstruction)
            takeInstruction();
        else if (token == QXmlStreamReader::StartElement)
            takeElement();
        else if (token == QXmlStreamReader::EndElement)
            endElement();
        else if (token == QXmlStreamReader::Characters)
            takeText();
    }

    void takeDocumentType()
    {
        if (m_xml.text().count(QLatin1String("<!")) > 1 || m_xml.text().contains(QLatin1Char('%')))
            refuse("the drawing's document type declares something");
    }

    void takeInstruction()
    {
        if (m_xml.processingInstructionTarget().compare(QLatin1String("xml-stylesheet"),
                                                        Qt::CaseInsensitive) == 0)
            refuse("the drawing names a style sheet");
    }

    void takeText()
    {
        m_elements.addBytes(m_xml.text().size());
        if (m_elements.depth() > 0)
            m_contents.cost.addLetters(m_elements.current(), m_xml.text().size());
        if (m_isStyle)
            m_style += m_xml.text();
    }

    void takeElement()
    {
        const QString name = localName(m_xml.name());
        m_isStyle = name == QLatin1String("style");
        m_used.clear();
        qint64 bytes = 0;
        const QXmlStreamAttributes attributes = m_xml.attributes();
        for (const QXmlStreamAttribute &attribute : attributes) {
            bytes += attribute.value().size();
            takeAttribute(name, localName(attribute.qualifiedName()), attribute.value().toString());
        }
        m_elements.open(nameIn(attributes), m_used, bytes);
        m_contents.cost.addElement(name, attributes);
        if (m_elements.depth() > SvgContents::maximumDepth ||
            m_elements.count() > SvgContents::maximumElements)
            refuse("the drawing has too many elements");
    }

    void takeAttribute(const QString &element, const QString &name, const QString &value)
    {
        if (name == QLatin1String("href"))
            takeAddress(element, value);
        else if (!SvgAddress::staysInside(value, m_contents.pictures))
            refuse("the drawing reaches outside");
    }

    void takeAddress(const QString &element, const QString &address)
    {
        // Where a link leads is not part of the drawing.
        if (element == QLatin1String("a"))
            return;
        // For pictures the toolkit takes any address for the name of a file as well.
        const bool isFile = element == QLatin1String("image") && QFileInfo::exists(address);
        if (isFile || !SvgAddress::isInside(address, m_contents.pictures))
            refuse("the drawing reaches outside");
        else if (isUser(element))
            m_used.append(address.mid(1));
    }

    void endElement()
    {
        m_elements.close();
        m_isStyle = false;
        const QString style = std::exchange(m_style, QString());
        m_contents.cost.addSheet(style);
        if (!SvgAddress::staysInside(style, m_contents.pictures))
            refuse("the drawing's style reaches outside");
    }

    SvgContents m_contents;
    QXmlStreamReader m_xml;
    SvgElements m_elements;
    QStringList m_used; // by the element that begins
    QString m_style;
    bool m_isStyle = false;
};
} // namespace

SvgContents SvgContents::of(const QByteArray &svg)
{
    SvgContents contents;
    if (svg.size() > maximumBytes)
        contents.refusal = QStringLiteral("the drawing has more than %1 bytes").arg(maximumBytes);
    else if (hasTooMany('=', svg))
        contents.refusal = QStringLiteral("an element of the drawing has too many attributes");
    else if (hasTooMany('\\', svg))
        contents.refusal = QStringLiteral("an element of the drawing has too many escapes");
    else
        contents = Reading(svg).contents();
    return contents;
}
