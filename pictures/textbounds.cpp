#include "pictures/textbounds.h"

#include "pictures/formatbounds.h"
#include "pictures/richtext.h"

#include <QImage>
#include <QPixmap>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>
#include <QUrl>

#include <algorithm>

namespace
{
// The layout of a text that is higher than some 8.3 million pixels looks for a next page for ever.
constexpr qreal roomOfAll = 4e6;    // pixels, for what is drawn as it is asked for
constexpr qreal largestOfRest = 32; // pixels, of each length beyond that
constexpr int noFormat = -1;
constexpr int maximumLines = RichText::maximumText + 16; // as many as characters, and what a table needs
constexpr int maximumPieces = 1000;                      // of a word, and accents on one letter
constexpr int maximumFloats = 100;                       // tables; each line looks at all of them
constexpr qint64 maximumCounting = 16 * 1000 * 1000;     // each item of a list counts those before it
constexpr qreal largestMargin = 2e6; // pixels above all text, which the program itself sets

QSize ownSize(const QTextDocument &document, const QTextImageFormat &format)
{
    const QVariant picture = document.resource(QTextDocument::ImageResource, QUrl(format.name()));
    return picture.userType() == QMetaType::QPixmap ? picture.value<QPixmap>().size()
                                                    : picture.value<QImage>().size();
}

qreal longerSide(QSizeF size)
{
    return qMax(size.width(), size.height());
}

/// Holds the formats of one document.
class Clamp
{
public:
    explicit Clamp(QTextDocument &document)
        : m_document(document),
          m_formats(document.allFormats()),
          m_cursor(&document)
    {
    }

    void run()
    {
        clampRoot();
        clampFrames(*m_document.rootFrame());
        for (QTextBlock block = m_document.begin(); block.isValid(); block = block.next())
            clampBlock(block);
        for (const Change &change : qAsConst(m_changes))
            apply(change);
        if (m_isEditing)
            m_cursor.endEditBlock();
    }

private:
    struct Change {
        int position;
        int length; // of characters; 0 for the paragraph
        QTextFormat format;
    };

    struct Run {
        int position;
        int length; // of characters; 0 for the paragraph
        int format;
    };

    struct Held {
        QTextFormat format;
        bool isChanged = false;
    };

    /// The format with this number, held to the largest length. Many paragraphs share a few formats.
    const Held &held(int index)
    {
        Held &found = m_held[index];
        if (!found.format.isValid() && index >= 0) {
            // The format of a cell is also that of the break before it, and may be new by now.
            if (index >= m_formats.size())
                m_formats = m_document.allFormats();
            found.format = m_formats.at(index);
            found.isChanged = FormatBounds::hold(found.format, TextBounds::largestLength);
        }
        return found;
    }

    qreal ofCharacter(int character, int paragraph)
    {
        qreal &found = m_characters[{character, paragraph}];
        if (found == 0)
            found = FormatBounds::ofCharacter(held(character).format.toCharFormat(),
                                              held(paragraph).format.toBlockFormat());
        return found;
    }

    /// Takes the room for the format, which is held already, or makes its lengths small.
    bool holdRest(QTextFormat &format, qreal room)
    {
        if (room > m_room)
            return FormatBounds::hold(format, largestOfRest);
        m_room -= room;
        return false;
    }

    void clampRoot()
    {
        QTextFrameFormat format = m_document.rootFrame()->frameFormat();
        const qreal margin = format.topMargin();
        const bool isHeld = FormatBounds::hold(format, TextBounds::largestLength);
        format.setTopMargin(qBound(-largestMargin, margin, largestMargin));
        if (isHeld && format != m_document.rootFrame()->frameFormat()) {
            edit();
            m_document.rootFrame()->setFrameFormat(format);
        }
    }

    void clampFrames(const QTextFrame &parent)
    {
        const QList<QTextFrame *> frames = parent.childFrames();
        for (QTextFrame *frame : frames) {
            auto *table = qobject_cast<QTextTable *>(frame);
            if (table)
                clampTable(*table);
            else
                clampFrame(*frame);
            clampFrames(*frame);
        }
    }

    void clampFrame(QTextFrame &frame)
    {
        QTextFrameFormat format = frame.frameFormat();
        bool isChanged = FormatBounds::hold(format, TextBounds::largestLength);
        isChanged |= holdRest(format, FormatBounds::ofFrame(format, 0));
        if (isChanged) {
            edit();
            frame.setFrameFormat(format);
        }
    }

    void clampTable(QTextTable &table)
    {
        QTextTableFormat format = table.format();
        bool isChanged = FormatBounds::hold(format, TextBounds::largestLength);
        isChanged |= holdRest(format, FormatBounds::ofFrame(format, table.rows() * table.columns()));
        if (isChanged) {
            edit();
            table.setFormat(format);
        }
        for (int row = 0; row < table.rows(); ++row) {
            for (int column = 0; column < table.columns(); ++column)
                clampCell(table.cellAt(row, column), row, column);
        }
    }

    void clampCell(QTextTableCell cell, int row, int column)
    {
        if (cell.row() != row || cell.column() != column)
            return;
        const Held &known = held(cell.tableCellFormatIndex());
        QTextFormat format = known.format;
        const bool isSmall = holdRest(format, FormatBounds::ofCell(format));
        if (known.isChanged || isSmall) {
            edit();
            cell.setFormat(format.toCharFormat());
        }
    }

    void clampBlock(const QTextBlock &block)
    {
        clampList(block);
        const Held &known = held(block.blockFormatIndex());
        QTextFormat format = known.format;
        const bool isSmall = holdRest(format, FormatBounds::ofParagraph(format.toBlockFormat()));
        const bool isSingle = holdLines(format, block);
        if (known.isChanged || isSmall || isSingle)
            m_changes.append({block.position(), 0, format});
        const int paragraph = isSingle ? noFormat : block.blockFormatIndex();
        clampRun({block.position(), 0, block.charFormatIndex()}, paragraph);
        for (auto it = block.begin(); !it.atEnd(); ++it)
            clampRun(runOf(it.fragment()), paragraph);
    }

    void clampList(const QTextBlock &block)
    {
        QTextList *list = block.textList();
        if (!list || list->item(0) != block)
            return;
        QTextListFormat format = list->format();
        if (FormatBounds::hold(format, TextBounds::largestLength)) {
            edit();
            list->setFormat(format);
        }
    }

    /// Lines that stand wide apart may be so only if all of them have the room.
    bool holdLines(QTextFormat &format, const QTextBlock &block)
    {
        if (format.toBlockFormat().lineHeightType() == QTextBlockFormat::SingleHeight)
            return false;
        qreal room = 0;
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const Run run = runOf(it.fragment());
            room += run.length *
                    (ofCharacter(run.format, block.blockFormatIndex()) - ofCharacter(run.format, noFormat));
        }
        if (room <= m_room / 2)
            return false;
        format.clearProperty(QTextFormat::LineHeight);
        format.clearProperty(QTextFormat::LineHeightType);
        return true;
    }

    static Run runOf(const QTextFragment &fragment)
    {
        return {fragment.position(), fragment.length(), fragment.charFormatIndex()};
    }

    void clampRun(const Run &run, int paragraph)
    {
        const Held &known = held(run.format);
        if (known.format.isImageFormat())
            return clampPictures(run, paragraph);
        // A paragraph that is empty has the height of one character.
        const int length = qMax(run.length, 1);
        const int fitting = qMin(length, int(m_room / ofCharacter(run.format, paragraph)));
        m_room -= fitting * ofCharacter(run.format, paragraph);
        if (known.isChanged && fitting > 0)
            m_changes.append({run.position, qMin(run.length, fitting), known.format});
        if (fitting < length)
            clampRest({run.position + fitting, run.length - fitting, run.format});
    }

    void clampRest(const Run &run)
    {
        QTextFormat format = held(run.format).format;
        if (FormatBounds::hold(format, largestOfRest))
            m_changes.append({run.position, qMax(run.length, 0), format});
    }

    void clampPictures(const Run &run, int paragraph)
    {
        QTextImageFormat format = held(run.format).format.toImageFormat();
        const QSizeF size = FormatBounds::pictureSize(format, ownSize(m_document, format));
        const qreal side = qMin(longerSide(size), qreal(TextBounds::largestLength));
        const qreal room =
            run.length * FormatBounds::ofCharacter(format, held(paragraph).format.toBlockFormat(), side);
        const qreal limit = room > m_room ? largestOfRest : TextBounds::largestLength;
        m_room -= room > m_room ? 0 : room;
        const bool isSmall = FormatBounds::holdPicture(format, size, limit);
        if (held(run.format).isChanged || isSmall)
            m_changes.append({run.position, run.length, format});
    }

    void apply(const Change &change)
    {
        edit();
        m_cursor.setPosition(change.position);
        m_cursor.setPosition(change.position + change.length, QTextCursor::KeepAnchor);
        if (change.format.isBlockFormat())
            m_cursor.setBlockFormat(change.format.toBlockFormat());
        else if (change.length == 0)
            m_cursor.setBlockCharFormat(change.format.toCharFormat());
        else
            m_cursor.setCharFormat(change.format.toCharFormat());
    }

    void edit()
    {
        if (m_isEditing)
            return;
        m_isEditing = true;
        // Undone with what made it necessary.
        if (m_document.isUndoAvailable())
            m_cursor.joinPreviousEditBlock();
        else
            m_cursor.beginEditBlock();
    }

    QTextDocument &m_document;
    QVector<QTextFormat> m_formats;
    QTextCursor m_cursor;
    QHash<int, Held> m_held;
    QHash<QPair<int, int>, qreal> m_characters;
    QVector<Change> m_changes;
    qreal m_room = roomOfAll;
    bool m_isEditing = false;
};

/// What counts of a text: breaks are no characters.
struct Size {
    int characters = 0;
    int lines = 1;

    void add(QChar character)
    {
        const bool isBreak = character == QChar::LineSeparator || character == QChar::ParagraphSeparator ||
                             character == QLatin1Char('\n');
        characters += isBreak ? 0 : 1;
        lines += isBreak ? 1 : 0;
    }
};

Size sizeOf(const QTextDocument &document)
{
    Size size;
    size.lines = document.blockCount();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QString text = block.text();
        for (const QChar character : text)
            size.add(character);
    }
    return size;
}

/// The pieces of which the longest word consists. A line is looked for anew with each of them.
int piecesOfWord(const QTextBlock &block)
{
    int longest = 0;
    int pieces = 0;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QString text = it.fragment().text();
        longest = qMax(longest, ++pieces);
        if (std::any_of(text.begin(), text.end(), [](QChar character) { return character.isSpace(); }))
            pieces = 1;
    }
    return longest;
}

/// The frames at all depths that text flows around.
int floatsIn(const QTextFrame &parent)
{
    int floats = 0;
    const QList<QTextFrame *> frames = parent.childFrames();
    for (const QTextFrame *frame : frames)
        floats += (frame->frameFormat().position() != QTextFrameFormat::InFlow) + floatsIn(*frame);
    return floats;
}

/// How often the items of all lists look at one of their own list.
qint64 countingIn(const QTextDocument &document)
{
    qint64 looks = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        looks += block.textList() ? block.textList()->count() : 0;
    return looks;
}

/// The most accents on one letter.
int accents(const QString &text)
{
    int longest = 0;
    int run = 0;
    for (const QChar character : text) {
        run = character.isMark() ? run + 1 : 0;
        longest = qMax(longest, run);
    }
    return longest;
}
} // namespace

bool TextBounds::isShowable(const QTextDocument &document)
{
    const Size size = sizeOf(document);
    if (size.characters > RichText::maximumText || size.lines > maximumLines ||
        floatsIn(*document.rootFrame()) > maximumFloats || countingIn(document) > maximumCounting)
        return false;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (piecesOfWord(block) > maximumPieces || accents(block.text()) > maximumPieces)
            return false;
    }
    return true;
}

QString TextBounds::beginning(const QString &text, const QTextDocument &document)
{
    Size size = sizeOf(document);
    int end = 0;
    for (; end < text.size() && size.characters <= RichText::maximumText && size.lines <= maximumLines; ++end)
        size.add(text.at(end));
    return text.left(size.characters > RichText::maximumText || size.lines > maximumLines ? end - 1 : end);
}

void TextBounds::clamp(QTextDocument &document)
{
    Clamp(document).run();
}
