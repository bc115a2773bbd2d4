#include "pictures/textbounds.h"

#include "tests/support/strictmain.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>

namespace
{
constexpr int paragraphs = 1700;

qreal largestOf(const QVariant &value)
{
    if (value.userType() == QMetaType::Double || value.userType() == QMetaType::Int)
        return qAbs(value.toReal());
    if (value.userType() == qMetaTypeId<QTextLength>())
        return qAbs(value.value<QTextLength>().rawValue());
    qreal largest = 0;
    const QVariantList list = value.toList();
    for (const QVariant &part : list)
        largest = qMax(largest, largestOf(part));
    return largest;
}

qreal largestOf(const QTextFormat &format)
{
    qreal largest = 0;
    const QMap<int, QVariant> properties = format.properties();
    for (auto it = properties.begin(); it != properties.end(); ++it) {
        // Kinds of objects and of styles are numbered from 4096 on.
        if (it.key() != QTextFormat::ObjectType)
            largest = qMax(largest, largestOf(it.value()));
    }
    return largest;
}

qreal largestInFrames(const QTextFrame &parent)
{
    qreal largest = largestOf(parent.frameFormat());
    const QList<QTextFrame *> frames = parent.childFrames();
    for (const QTextFrame *frame : frames) {
        largest = qMax(largest, largestInFrames(*frame));
        if (const auto *table = qobject_cast<const QTextTable *>(frame))
            largest = qMax(largest, largestOf(table->cellAt(0, 0).format()));
    }
    return largest;
}

/// The largest number in any format that the document uses.
qreal largestIn(const QTextDocument &document)
{
    qreal largest = largestInFrames(*document.rootFrame());
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        largest = qMax(largest, qMax(largestOf(block.blockFormat()), largestOf(block.charFormat())));
        if (block.textList())
            largest = qMax(largest, largestOf(block.textList()->format()));
        for (auto it = block.begin(); !it.atEnd(); ++it)
            largest = qMax(largest, largestOf(it.fragment().charFormat()));
    }
    return largest;
}

QImage pictureOf(QTextDocument &document)
{
    document.setTextWidth(400);
    QImage picture(400, 300, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    document.drawContents(&painter);
    return picture;
}

qreal heightOf(QTextDocument &document)
{
    TextBounds::clamp(document);
    document.setTextWidth(400);
    return document.size().height();
}
} // namespace

class tst_TextBounds : public QObject
{
    Q_OBJECT

private slots:
    void holdsEveryNumber_data();
    void holdsEveryNumber();
    void leavesNumbersUpToTheLargest_data();
    void leavesNumbersUpToTheLargest();
    void holdsTheSumOfHeights_data();
    void holdsTheSumOfHeights();
    void beginningKeepsItsNumbers();
    void holdsPicturesByTheirOwnSize();
    void isUndoneWithWhatMadeItNecessary();
    void judgesWhatTheLayoutDependsOn_data();
    void judgesWhatTheLayoutDependsOn();
    void beginningFillsTheRoom();
};

void tst_TextBounds::holdsEveryNumber_data()
{
    QTest::addColumn<QString>("html");

    for (const char *style :
         {"margin:99999px", "margin-left:-99999px", "line-height:99999px", "line-height:99999%",
          "letter-spacing:99999px", "word-spacing:99999px", "text-indent:99999px", "font-size:99999px",
          "font-size:99999pt", "-qt-block-indent:99999"})
        QTest::newRow(style) << QString("<p style='%1'>x</p>").arg(style);
    for (const char *table :
         {"border=99999", "cellspacing=99999", "cellpadding=99999", "width=99999", "height=99999",
          "width='99999%'", "style='margin:99999px'", "style='border-width:99999px'"})
        QTest::newRow(table) << QString("<table %1><tr><td>x</table>").arg(table);
    for (const char *cell :
         {"width=99999", "width='99999%'", "style='padding:99999px'", "style='border:99999px solid red'"})
        QTest::newRow(qPrintable(QString("cell ") + cell))
            << QString("<table><tr><td %1>x</table>").arg(cell);
    QTest::newRow("picture") << "<img src='x' width=99999 height=99999>";
    QTest::newRow("rule") << "<hr width=99999>";
    QTest::newRow("list") << "<ul style='-qt-list-indent:99999'><li>x</ul>";
    QTest::newRow("floating")
        << "<div style='float:left'><table style='float:left' width=99999><tr><td>x</table>";
}

void tst_TextBounds::holdsEveryNumber()
{
    QFETCH(QString, html);
    QTextDocument document;
    document.setHtml(html);
    QVERIFY(largestIn(document) > TextBounds::largestLength);
    TextBounds::clamp(document);
    QVERIFY2(largestIn(document) <= TextBounds::largestLength, qPrintable(document.toHtml()));
    const QString once = document.toHtml();
    TextBounds::clamp(document);
    QCOMPARE(document.toHtml(), once);
}

void tst_TextBounds::leavesNumbersUpToTheLargest_data()
{
    QTest::addColumn<QString>("html");

    QTest::newRow("margins") << "<p style='margin:10000px'>x</p><p style='margin-left:-10000px'>y</p>";
    QTest::newRow("small margins") << "<p style='margin:7px; text-indent:20px'>one two</p><p>three</p>";
    QTest::newRow("line height")
        << "<p style='line-height:150%'>one<br>two</p><p style='line-height:80px'>x</p>";
    QTest::newRow("letters") << "<p style='font-size:200px; letter-spacing:9px'>xy</p><h1>head</h1>";
    QTest::newRow("huge letters") << "<p style='font-size:10000px'>x</p>";
    QTest::newRow("table") << "<table border=3 cellpadding=9 cellspacing=4 width='70%'><tr>"
                              "<td width=100 style='padding-left:30px'>x<td>y</table>";
    QTest::newRow("large table") << "<table cellpadding=10000><tr><td>x</table>";
    QTest::newRow("lists") << "<ul><li>one<ol><li>two</ol></ul><hr width=100><hr width='50%'>";
    QTest::newRow("picture") << "<img src='x' width=10000 height=10000> and <img src='y' width=10>";
}

void tst_TextBounds::leavesNumbersUpToTheLargest()
{
    QFETCH(QString, html);
    QTextDocument bare;
    bare.setHtml(html);
    QTextDocument held;
    held.setHtml(html);
    TextBounds::clamp(held);
    QCOMPARE(held.toHtml(), bare.toHtml());
    QCOMPARE(pictureOf(held), pictureOf(bare));
    QCOMPARE(held.size(), bare.size());
}

void tst_TextBounds::holdsTheSumOfHeights_data()
{
    QTest::addColumn<QString>("html");

    QTest::newRow("margins") << QString("<p style='margin:10000px'>x</p>").repeated(paragraphs);
    QTest::newRow("letters") << QString("<p style='font-size:10000px'>x</p>").repeated(paragraphs);
    QTest::newRow("letters of empty lines")
        << QString("<p style='-qt-paragraph-type:empty; font-size:10000px'><br></p>").repeated(paragraphs);
    QTest::newRow("letters of one text")
        << "<p style='font-size:10000px'>" + QString("x ").repeated(paragraphs);
    QTest::newRow("lines") << QString("<p style='line-height:10000px'>x</p>").repeated(paragraphs);
    QTest::newRow("lines of one text") << "<p style='line-height:10000%'>" + QString("x<br>").repeated(9000);
    QTest::newRow("pictures") << QString("<p><img src='x' width=9 height=10000></p>").repeated(paragraphs);
    QTest::newRow("tables") << QString("<table border=10000><tr><td>x</table>").repeated(paragraphs);
    QTest::newRow("rows") << "<table cellpadding=10000>" + QString("<tr><td>x").repeated(paragraphs);
    QTest::newRow("cells") << "<table>" + QString("<tr><td style='padding:10000px'>x").repeated(paragraphs);
}

void tst_TextBounds::holdsTheSumOfHeights()
{
    QFETCH(QString, html);
    QTextDocument document;
    document.setHtml(html);
    const qreal height = heightOf(document);
    QVERIFY2(height > 1e4 && height < 8e6, qPrintable(QString::number(height)));
}

void tst_TextBounds::beginningKeepsItsNumbers()
{
    QTextDocument document;
    document.setHtml(QString("<p style='margin-top:10000px'>x</p>").repeated(paragraphs));
    TextBounds::clamp(document);
    QCOMPARE(document.findBlockByNumber(100).blockFormat().topMargin(), 10000.0);
    QVERIFY(document.lastBlock().blockFormat().topMargin() < 100);
}

void tst_TextBounds::holdsPicturesByTheirOwnSize()
{
    QTextDocument document;
    document.addResource(QTextDocument::ImageResource, QUrl("high"), QImage(1, 20000, QImage::Format_Mono));
    for (const char *html :
         {"<img src='high'>", "<img src='high' width=3>", "<img src='high' width=10000>"}) {
        document.setHtml(html);
        const qreal height = heightOf(document);
        QVERIFY2(height >= 10000 && height < 10100, qPrintable(QString::number(height)));
    }
}

void tst_TextBounds::isUndoneWithWhatMadeItNecessary()
{
    QTextDocument document;
    QVERIFY(document.documentLayout()); // the document tells of changes for its sake
    QObject::connect(&document, &QTextDocument::contentsChange, [&document] { TextBounds::clamp(document); });
    QTextCursor cursor(&document);
    cursor.insertText("x");
    QTextBlockFormat format;
    format.setTopMargin(99999);
    cursor.setBlockFormat(format);
    QCOMPARE(document.firstBlock().blockFormat().topMargin(), 10000.0);
    document.undo();
    QCOMPARE(document.firstBlock().blockFormat().topMargin(), 0.0);
    QCOMPARE(document.toPlainText(), QString("x"));
    document.redo();
    QCOMPARE(document.firstBlock().blockFormat().topMargin(), 10000.0);
}

void tst_TextBounds::judgesWhatTheLayoutDependsOn_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<bool>("isShowable");

    QTest::newRow("nothing") << "" << true;
    QTest::newRow("long word") << QString(16384, 'x') << true;
    QTest::newRow("too many characters") << QString(16385, 'x') << false;
    QTest::newRow("paragraphs") << QString("<p>x</p>").repeated(16384) << true;
    QTest::newRow("too many lines") << QString("x<br>").repeated(8000) +
                                           QString("<p></p>x<hr>").repeated(8000)
                                    << false;
    QTest::newRow("line breaks") << "<pre>" + QString(20000, '\n') << false;
    QTest::newRow("word of pieces") << QString("<b>x</b><i>y</i>").repeated(500) << true;
    QTest::newRow("word of too many pieces") << QString("<b>x</b><i>y</i>").repeated(501) << false;
    QTest::newRow("words of pieces") << QString("<b>x</b><i>y</i> ").repeated(3000) << true;
    QTest::newRow("accents") << QString("a") + QString(1000, QChar(0x301)) << true;
    QTest::newRow("too many accents") << QString("a") + QString(1001, QChar(0x301)) << false;
    const QString table = "<table style='float:left'><tr><td>x</table>";
    QTest::newRow("floats") << table.repeated(100) << true;
    QTest::newRow("too many floats") << table.repeated(101) << false;
    QTest::newRow("too many floats in a table") << "<table><tr><td>" + table.repeated(101) << false;
    QTest::newRow("list") << "<ol>" + QString("<li>x").repeated(4000) << true;
    QTest::newRow("too long a list") << "<ol>" + QString("<li>x").repeated(4001) << false;
    QTest::newRow("lists") << QString("<ol><li>x</ol>").repeated(8000) << true;
}

void tst_TextBounds::judgesWhatTheLayoutDependsOn()
{
    QFETCH(QString, html);
    QTextDocument document;
    document.setHtml(html);
    QTEST(TextBounds::isShowable(document), "isShowable");
}

void tst_TextBounds::beginningFillsTheRoom()
{
    QTextDocument document;
    document.setPlainText(QString(16380, 'x') + "\ny");
    QCOMPARE(TextBounds::beginning("a\nb\ncd", document), QString("a\nb\nc"));
    QCOMPARE(TextBounds::beginning("a\n", document), QString("a\n"));
    document.setPlainText(QString(16384, 'x'));
    QCOMPARE(TextBounds::beginning("a", document), QString());
    QCOMPARE(TextBounds::beginning(QString(20, '\n'), document).size(), 20);
    QVERIFY(TextBounds::beginning(QString(20000, '\n'), document).size() < 16500);
}

BOARDWRIGHT_TEST_MAIN(tst_TextBounds)
#include "tst_textbounds.moc"
