#pragma once

#include <QPair>
#include <QString>
#include <QVector>

/// Takes HTML apart exactly as the toolkit's reader does, quotes, entities and faults included, so that
/// nothing can be hidden from whoever judges a text before it is read. Keeps a reference to the HTML.
class HtmlReader
{
public:
    enum class Piece { End, Character, Opening, Closing, Declaration };

    explicit HtmlReader(const QString &html) : m_html(html) {}

    /// Goes on to the next piece; End at the end and ever after.
    Piece next();

    /// The code of the latest character, with entities replaced; one that is not known is a plain ampersand.
    uint character() const { return m_character; }

    /// The name of the latest tag, in lower case; of a very long one the beginning.
    const QString &name() const { return m_name; }

    /// True when the latest opening tag closes itself.
    bool isClosed() const { return m_isClosed; }

    /// More attributes of one tag than these are not kept.
    static constexpr int maximumAttributes = 100;

    /// How many attributes the latest opening tag has, maximumAttributes + 1 for any more than there may be.
    int attributes() const { return m_attributes.size(); }

    /// The first value of an attribute of the latest opening tag; empty for none.
    QString value(const QString &attribute) const;

    /// The largest number that the latest opening tag gives to an attribute; 0 for none.
    int number(const QString &attribute) const;

private:
    Piece readTag();
    Piece readDeclaration();
    Piece readClosing();
    Piece readOpening();
    void readAttributes();
    bool readAttribute();
    QString readWord();
    QString readQuoted(QChar quote);
    uint readCharacter();
    uint readEntity();
    bool isAt(QChar character) const { return m_at < m_html.size() && m_html.at(m_at) == character; }
    bool endsWord() const;
    void skipSpace();
    void skipTo(const QString &end);

    const QString &m_html;
    int m_at = 0;
    uint m_character = 0;
    QString m_name;
    QVector<QPair<QString, QString>> m_attributes;
    bool m_isClosed = false;
};
