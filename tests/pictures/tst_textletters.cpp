#include "pictures/textletters.h"

#include "model/applicationfonts.h"
#include "model/boardfonts.h"
#include "tests/model/bundledfonts.h"
#include "tests/support/strictmain.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

class tst_TextLetters : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void sizeIsGivenInPointsAndShownInPixels_data();
    void sizeIsGivenInPointsAndShownInPixels();
    void sizeThatIsNoneIsThatOfPlainLetters();
    void sizesThatWereReadAreShownInPixels_data();
    void sizesThatWereReadAreShownInPixels();
    void sizeSetLaterWinsOverWhatWasRead();
    void headingsKeepTheirProportion();
    void emptyParagraphsAreSettledToo();
    void settledTextIsLeftAlone();
    void settledSizesKeepTheirPoints_data();
    void settledSizesKeepTheirPoints();
    void storesTheFontThatIsNamed();
    void storesTheStepThatLettersAreShownBy_data();
    void storesTheStepThatLettersAreShownBy();
    void plainLettersAreThoseOfBoards();
    void measuresRelativeLengthsInPlainLetters_data();
    void measuresRelativeLengthsInPlainLetters();
    void leavesTextsWithoutRelativeLengthsAlone_data();
    void leavesTextsWithoutRelativeLengthsAlone();
};

namespace
{
QTextCharFormat formatOf(const QTextBlock &block)
{
    return block.begin().fragment().charFormat();
}

/// Formats the whole text in one size.
void setSize(QTextDocument &document, int points)
{
    QTextCharFormat size;
    TextLetters::setSize(size, points);
    QTextCursor cursor(&document);
    cursor.select(QTextCursor::Document);
    cursor.mergeCharFormat(size);
}

/// A document that was read as texts are.
struct ReadText {
    explicit ReadText(const QString &html)
    {
        TextLetters::prepare(document);
        document.setHtml(html);
        TextLetters::settle(document);
    }

    QTextCharFormat first() const { return formatOf(document.begin()); }

    QTextDocument document;
};
} // namespace

void tst_TextLetters::initTestCase()
{
    loadApplicationFonts();
}

void tst_TextLetters::sizeIsGivenInPointsAndShownInPixels_data()
{
    QTest::addColumn<int>("pixels");

    QTest::newRow("1") << 1;
    QTest::newRow("8") << 11;
    QTest::newRow("48") << 64;
    QTest::newRow("512") << 683;
    QTest::newRow("2147483647") << 10000;
}

void tst_TextLetters::sizeIsGivenInPointsAndShownInPixels()
{
    QTextCharFormat format;
    TextLetters::setSize(format, QByteArray(QTest::currentDataTag()).toInt());
    QCOMPARE(format.fontPointSize(), QByteArray(QTest::currentDataTag()).toDouble());
    QTEST(format.font().pixelSize(), "pixels");
}

void tst_TextLetters::sizeThatIsNoneIsThatOfPlainLetters()
{
    tolerateWarnings("Point size <= 0");
    for (int points : {0, -7}) {
        QTextCharFormat format;
        TextLetters::setSize(format, points);
        QCOMPARE(format.fontPointSize(), qreal(points));
        QCOMPARE(format.font().pixelSize(), BoardFonts::plainFont().pixelSize());
    }
}

void tst_TextLetters::sizesThatWereReadAreShownInPixels_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<qreal>("points");
    QTest::addColumn<int>("pixels");

    QTest::newRow("points") << "<p style='font-size:14pt'>x</p>" << 14.0 << 19;
    QTest::newRow("parts of points") << "<p style='font-size:10.5pt'>x</p>" << 10.5 << 14;
    QTest::newRow("pixels") << "<p style='font-size:20px'>x</p>" << 15.0 << 20;
    QTest::newRow("points within pixels")
        << "<p style='font-size:20px'><span style='font-size:9pt'>x</span></p>" << 9.0 << 12;
}

void tst_TextLetters::sizesThatWereReadAreShownInPixels()
{
    QFETCH(QString, html);
    const ReadText text(html);
    QTEST(text.first().fontPointSize(), "points");
    QTEST(text.first().font().pixelSize(), "pixels");
}

void tst_TextLetters::sizeSetLaterWinsOverWhatWasRead()
{
    ReadText text("<p style='font-size:20px'>a<span style='font-size:9pt'>b</span></p><p>c</p>");
    setSize(text.document, 30);
    for (QTextBlock block = text.document.begin(); block.isValid(); block = block.next()) {
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            QCOMPARE(at.fragment().charFormat().font().pixelSize(), 40);
            QCOMPARE(at.fragment().charFormat().fontPointSize(), 30.0);
        }
    }
}

void tst_TextLetters::headingsKeepTheirProportion()
{
    ReadText text("<h1>x</h1>");
    setSize(text.document, 30);
    // Twice the plain letters, as the toolkit has it: in pixels, since those are given in pixels.
    QCOMPARE(text.first().font().pixelSize(), 24);
}

void tst_TextLetters::emptyParagraphsAreSettledToo()
{
    const ReadText text("<p style='font-size:20px'></p><p>x</p>");
    QCOMPARE(text.document.begin().charFormat().fontPointSize(), 15.0);
    QCOMPARE(text.document.begin().charFormat().font().pixelSize(), 20);
}

void tst_TextLetters::settledTextIsLeftAlone()
{
    ReadText text("<p style='font-size:20px;font-family:Oswald'>a<b>b</b></p><p>c</p>");
    const int revision = text.document.revision();
    TextLetters::settle(text.document);
    QCOMPARE(text.document.revision(), revision);
}

void tst_TextLetters::settledSizesKeepTheirPoints_data()
{
    QTest::addColumn<int>("points");
    for (const int points : {1, 8, 14, 15, 49, 512})
        QTest::addRow("%d", points) << points;
}

void tst_TextLetters::settledSizesKeepTheirPoints()
{
    QFETCH(int, points);
    ReadText text("<p>x</p>");
    setSize(text.document, points);
    TextLetters::settle(text.document);
    QCOMPARE(text.first().fontPointSize(), qreal(points));
    QCOMPARE(text.first().font().pixelSize(), BoardFonts::pixelSize(points));
}

void tst_TextLetters::storesTheFontThatIsNamed()
{
    const QStringList families = QFontDatabase().families() + QStringList{"Nowhere"};
    for (const QString &family : families) {
        if (family.contains('[') || family.contains('\''))
            continue;
        const ReadText text("<p style=\"font-family:'" + family + "'\">x</p>");
        QVERIFY(TextLetters::storedHtml(text.document).contains("font-family:'" + family + "';"));
    }
}

void tst_TextLetters::storesTheStepThatLettersAreShownBy_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<int>("pixels");
    QTest::newRow("big") << "<p><big>x</big></p>" << 14;
    QTest::newRow("small") << "<p><small>x</small></p>" << 10;
    QTest::newRow("of a name") << "<p style='font-size:x-large'>x</p>" << 18;
    QTest::newRow("of a number") << "<p><font size='+2'>x</font></p>" << 18;
    QTest::newRow("heading") << "<h1>x</h1>" << 24;
    QTest::newRow("none") << "<p>x</p>" << 40;
}

void tst_TextLetters::storesTheStepThatLettersAreShownBy()
{
    QFETCH(QString, html);
    ReadText text(html);
    setSize(text.document, 30);
    QTEST(text.first().font().pixelSize(), "pixels");
    ReadText again(TextLetters::storedHtml(text.document));
    setSize(again.document, 30);
    QTEST(again.first().font().pixelSize(), "pixels");
}

void tst_TextLetters::plainLettersAreThoseOfBoards()
{
    const ReadText text("<p>x</p>");
    QCOMPARE(text.document.defaultFont(), BoardFonts::plainFont());
    QCOMPARE(text.first().font().pixelSize(), 12);
    QCOMPARE(text.first().font().hintingPreference(), QFont::PreferVerticalHinting);
}

void tst_TextLetters::measuresRelativeLengthsInPlainLetters_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("fixed");

    const QFontMetrics letters(BoardFonts::plainFont());
    const auto px = [](qreal pixels) {
        return QString::number(qRound(pixels)) + "px";
    };
    QTest::newRow("em") << "<p style='margin:2em'>x"
                        << "<p style='margin:" + px(2 * letters.height()) + "'>x";
    QTest::newRow("ex") << "<p style='margin:3EX'>x"
                        << "<p style='margin:" + px(3 * letters.xHeight()) + "'>x";
    QTest::newRow("parts") << "<p style='text-indent:.5em;margin:1.25em 0em'>x"
                           << "<p style='text-indent:" + px(.5 * letters.height()) +
                                  ";margin:" + px(1.25 * letters.height()) + " 0px'>x";
    QTest::newRow("style sheet") << "<style>p > a{margin:1em}</style><p>1em"
                                 << "<style>p > a{margin:" + px(letters.height()) + "}</style><p>1em";
    QTest::newRow("style sheet without end") << "<p>1em<style>p{margin:1em}"
                                             << "<p>1em<style>p{margin:" + px(letters.height()) + "}";
    QTest::newRow("tag without end") << "2em<p style='margin:1em"
                                     << "2em<p style='margin:" + px(letters.height());
    QTest::newRow("huge") << "<p style='margin:999999999em'>"
                          << "<p style='margin:10000px'>";
}

void tst_TextLetters::measuresRelativeLengthsInPlainLetters()
{
    QFETCH(QString, html);
    QTEST(TextLetters::withoutRelativeLengths(html), "fixed");
}

void tst_TextLetters::leavesTextsWithoutRelativeLengthsAlone_data()
{
    QTest::addColumn<QString>("html");

    QTest::newRow("nothing") << "";
    QTest::newRow("words") << "<p>1em and 2ex</p>";
    QTest::newRow("colour") << "<p style='color:#1e1e1e'>x</p>";
    QTest::newRow("element") << "<em>1 em</em>";
    QTest::newRow("longer word") << "<p class='x1emu'>x</p>";
    QTest::newRow("pixels") << "<p style='margin:10px 2pt'>x</p>";
}

void tst_TextLetters::leavesTextsWithoutRelativeLengthsAlone()
{
    QFETCH(QString, html);
    QCOMPARE(TextLetters::withoutRelativeLengths(html), html);
}

BOARDWRIGHT_TEST_MAIN(tst_TextLetters)
#include "tst_textletters.moc"
