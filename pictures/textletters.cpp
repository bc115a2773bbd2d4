#include "pictures/textletters.h"

#include "model/boardfonts.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetrics>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <memory>

namespace
{
constexpr qreal largestLength = 10000; // pixels

using Change = void (*)(QTextCharFormat &);

/// The pixels after the points: of two sizes the toolkit takes the one that was set last, and stores points.
void setSizes(QTextCharFormat &format, qreal points, int pixels)
{
    format.clearProperty(QTextFormat::FontPointSize);
    format.clearProperty(QTextFormat::FontPixelSize);
    format.setFontPointSize(points);
    format.setProperty(QTextFormat::FontPixelSize, pixels);
}

void settleSize(QTextCharFormat &format)
{
    const bool hasSize =
        format.hasProperty(QTextFormat::FontPointSize) || format.hasProperty(QTextFormat::FontPixelSize);
    if (!hasSize)
        return;
    const QFont font = format.font();
    // Of points that are no whole pixels, the pixels tell no more than about.
    if (font.pixelSize() > 0 && font.pixelSize() == BoardFonts::pixelSize(format.fontPointSize()))
        return;
    if (font.pixelSize() > 0)
        setSizes(format, BoardFonts::points(font.pixelSize()), font.pixelSize());
    else
        setSizes(format, font.pointSizeF(), BoardFonts::pixelSize(font.pointSizeF()));
}

void settleFamily(QTextCharFormat &format)
{
    if (!format.fontFamily().isEmpty())
        TextLetters::setFamily(format, format.fontFamily());
}

void settleFormat(QTextCharFormat &format)
{
    settleSize(format);
    settleFamily(format);
}

/// Letters that are larger or smaller by a step are shown so whatever their size is: stored is the step
/// alone, in whose place a size would be read.
void dropShownOnly(QTextCharFormat &format)
{
    format.clearProperty(QTextFormat::FontFamilies);
    if (!format.hasProperty(QTextFormat::FontSizeAdjustment))
        return;
    format.clearProperty(QTextFormat::FontPointSize);
    format.clearProperty(QTextFormat::FontPixelSize);
}

const QRegularExpression &relativeLength()
{
    static const QRegularExpression length(
        QStringLiteral("([0-9]{1,9}(?:\\.[0-9]{0,9})?|\\.[0-9]{1,9})(em|ex)\\b"),
        QRegularExpression::CaseInsensitiveOption);
    return length;
}

QString pixelsOf(const QRegularExpressionMatch &length)
{
    const QFontMetrics letters(BoardFonts::plainFont());
    const bool isEm = length.captured(2).compare(QLatin1String("em"), Qt::CaseInsensitive) == 0;
    const qreal pixels = length.captured(1).toDouble() * (isEm ? letters.height() : letters.xHeight());
    return QString::number(qRound(qMin(pixels, largestLength))) + QStringLiteral("px");
}

/// The markup with its relative lengths measured in the plain letters of boards.
QString inPixels(const QString &markup)
{
    QString result;
    int done = 0;
    for (auto lengths = relativeLength().globalMatch(markup); lengths.hasNext();) {
        const QRegularExpressionMatch length = lengths.next();
        result.append(markup.midRef(done, length.capturedStart() - done)).append(pixelsOf(length));
        done = length.capturedEnd();
    }
    return result.append(markup.midRef(done));
}

/// Where the tag that begins here ends, or the whole element if it is a style sheet.
int endOfMarkup(const QString &html, int at)
{
    const bool isSheet = html.midRef(at, 6).compare(QLatin1String("<style"), Qt::CaseInsensitive) == 0;
    const int end = isSheet ? html.indexOf(QLatin1String("</style"), at, Qt::CaseInsensitive)
                            : html.indexOf(QLatin1Char('>'), at);
    return end < 0 ? html.size() : end;
}

/// A run of letters of one format, or a paragraph's own format when it has no length.
struct Run {
    int position;
    int length;
    QTextCharFormat format;
};

void addChanged(QVector<Run> &runs, Run run, Change change)
{
    const QTextCharFormat former = run.format;
    change(run.format);
    if (run.format != former)
        runs.append(run);
}

/// The runs that the change makes others of. Gathered first: to format one is to move the others about.
QVector<Run> changedRuns(const QTextDocument &document, Change change)
{
    QVector<Run> runs;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        addChanged(runs, {block.position(), 0, block.charFormat()}, change);
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const QTextFragment fragment = at.fragment();
            addChanged(runs, {fragment.position(), fragment.length(), fragment.charFormat()}, change);
        }
    }
    return runs;
}

void formatRun(QTextCursor &cursor, const Run &run)
{
    cursor.setPosition(run.position);
    cursor.setPosition(run.position + run.length, QTextCursor::KeepAnchor);
    if (run.length > 0)
        cursor.setCharFormat(run.format);
    else
        cursor.setBlockCharFormat(run.format);
}

void changeFormats(QTextDocument &document, Change change)
{
    const QVector<Run> runs = changedRuns(document, change);
    if (runs.isEmpty())
        return;
    QTextCursor cursor(&document);
    cursor.joinPreviousEditBlock();
    for (const Run &run : runs)
        formatRun(cursor, run);
    cursor.endEditBlock();
}
} // namespace

void TextLetters::prepare(QTextDocument &document)
{
    // Without a device the margins are pixels, whatever the dots per inch of the screen.
    document.documentLayout()->setPaintDevice(nullptr);
    document.setDefaultFont(BoardFonts::plainFont());
}

void TextLetters::setFamily(QTextCharFormat &format, const QString &family)
{
    format.setFontFamily(family);
    format.setFontFamilies(BoardFonts::shownFamilies(family));
}

void TextLetters::setSize(QTextCharFormat &format, int points)
{
    const int pixels = points > 0 ? BoardFonts::pixelSize(points) : BoardFonts::plainFont().pixelSize();
    setSizes(format, points, pixels);
}

QString TextLetters::withoutRelativeLengths(const QString &html)
{
    if (!html.contains(relativeLength()))
        return html;
    QString result;
    int at = 0;
    for (int tag = html.indexOf(QLatin1Char('<')); tag >= 0; tag = html.indexOf(QLatin1Char('<'), at)) {
        result.append(html.midRef(at, tag - at));
        at = endOfMarkup(html, tag);
        result.append(inPixels(html.mid(tag, at - tag)));
    }
    return result.append(html.midRef(at));
}

void TextLetters::settle(QTextDocument &document)
{
    changeFormats(document, &settleFormat);
}

QString TextLetters::storedHtml(const QTextDocument &document)
{
    const std::unique_ptr<QTextDocument> stored(document.clone());
    changeFormats(*stored, &dropShownOnly);
    return stored->toHtml();
}
