#include "pictures/largeletters.h"

#include "model/applicationfonts.h"
#include "pictures/textletters.h"
#include "tests/model/bundledfonts.h"
#include "tests/support/strictmain.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextCursor>
#include <QTextDocument>

class tst_LargeLetters : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void areDrawnAlikeWhateverWasDrawnBefore_data();
    void areDrawnAlikeWhateverWasDrawnBefore();
    void areDrawnAlikeBesideSmallOnes();
};

namespace
{
/// A document in one font, with a size for each of its paragraphs.
struct Text {
    Text(const QString &family, const QList<int> &sizes, const QString &text)
    {
        TextLetters::prepare(document);
        QTextCursor cursor(&document);
        for (int size : sizes) {
            QTextCharFormat format;
            TextLetters::setFamily(format, family);
            TextLetters::setSize(format, size);
            cursor.insertText(text, format);
        }
    }

    QImage picture() const
    {
        QImage image(600, 200, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        LargeLetters::straighten(document);
        document.documentLayout()->draw(&painter, {});
        return image;
    }

    QTextDocument document;
};

/// Draws letters whose places are parts of pixels, which the toolkit notes down on their face.
void drawSmallLetters(const QString &family, const QString &text)
{
    for (int size = 7; size < 20; ++size)
        Text(family, {size}, text).picture();
}
} // namespace

void tst_LargeLetters::initTestCase()
{
    REQUIRE_BUNDLED_FONTS();
    loadApplicationFonts();
}

void tst_LargeLetters::areDrawnAlikeWhateverWasDrawnBefore_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("Oswald") << "a8:5g";
    QTest::newRow("Exo 2") << "a8:5g";
    QTest::newRow("DSEG7 Classic") << "8:5";
    // Of these some characters come from other faces.
    QTest::newRow("DSEG7 Modern") << QString::fromUtf8("8č★");
    QTest::newRow("Nowhere") << QString::fromUtf8("8č★");
}

void tst_LargeLetters::areDrawnAlikeWhateverWasDrawnBefore()
{
    REQUIRE_BUNDLED_FONTS();
    QFETCH(QString, text);
    const QString family = QTest::currentDataTag();
    const Text large(family, {90}, text);
    const QImage first = large.picture();
    drawSmallLetters(family, text);
    QCOMPARE(large.picture(), first);
    drawSmallLetters(family, text.repeated(3) + "1.7");
    QCOMPARE(large.picture(), first);
}

void tst_LargeLetters::areDrawnAlikeBesideSmallOnes()
{
    REQUIRE_BUNDLED_FONTS();
    const Text mixed("Raleway", {60, 13, 60, 11}, "aq7");
    const QImage first = mixed.picture();
    QCOMPARE(mixed.picture(), first);
}

BOARDWRIGHT_TEST_MAIN(tst_LargeLetters)
#include "tst_largeletters.moc"
