#include "pictures/svgcontents.h"

#include "tests/support/files.h"
#include "tests/support/mediabytes.h"
#include "tests/support/strictmain.h"

#include <QDirIterator>

using namespace MediaBytes;

/// Which drawings take too long to be drawn, told before anything is drawn.
class tst_SvgCost : public QObject
{
    Q_OBJECT

private slots:
    void takesUsualDrawings_data();
    void takesUsualDrawings();
    void takesTheIconsOfTheEditor();
    void refusesWhatTakesTooLong_data();
    void refusesWhatTakesTooLong();
    void drawsTheLineBetween_data();
    void drawsTheLineBetween();
    void countsWhatIsUsedAsOftenAsItIs();
    void countsTheScale_data();
    void countsTheScale();
    void countsThePixelsOfThePicture();
    void refusesStylesThatTakeTooLong_data();
    void refusesStylesThatTakeTooLong();
};

namespace
{
constexpr QSize screen(1000, 1000);

QByteArray drawing(const QByteArray &content, const QByteArray &attributes = "viewBox='0 0 1000 1000'")
{
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' " +
           attributes + ">" + content + "</svg>";
}

bool isDrawn(const QByteArray &svg, const QSize &picture = screen)
{
    const SvgContents contents = SvgContents::of(svg);
    return contents.refusal.isEmpty() &&
           contents.cost.drawingTime(contents.tree, picture) <= SvgCost::maximum;
}

/// So many places all over a square of this side, each written like this.
QByteArray places(int count, const char *pattern, int side = 1000)
{
    QByteArray text;
    for (int i = 0; i < count; ++i) {
        const QByteArray x = QByteArray::number(i * 617 % side);
        const QByteArray y = QByteArray::number(i * 389 % side);
        text += QByteArray(pattern).replace("%x", x).replace("%y", y);
    }
    return text;
}

QByteArray path(const QByteArray &data, const QByteArray &attributes = QByteArray())
{
    return "<path " + attributes + " d='M0 0" + data + "'/>";
}
} // namespace

void tst_SvgCost::takesUsualDrawings_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("nothing") << QByteArray();
    const QByteArray outline = "M500 500" + QByteArray("l3-2 2 3-3 1-2-2").repeated(2000);
    QTest::newRow("traced, in one path") << path(outline);
    QTest::newRow("traced, in many paths")
        << path("m50 50" + QByteArray("l3-2 2 3-3 1-2-2").repeated(5)).repeated(800);
    QTest::newRow("traced and stroked") << path(outline, "stroke='red'");
    QTest::newRow("curves") << path("M500 500" + QByteArray("c1 2 3 2 4 0s-2-3-4 0").repeated(1000));
    QTest::newRow("gradients") << QByteArray("<linearGradient id='a'><stop offset='0' stop-color='red'/>"
                                             "<stop offset='1'/></linearGradient>"
                                             "<rect width='1000' height='1000' fill='url(#a)'/>");
    QTest::newRow("groups") << QByteArray("<g transform='translate(500 500) rotate(45)' stroke='red'>"
                                          "<g transform='scale(2, 3)'><rect width='90' height='90'/>"
                                          "<circle r='40' stroke-width='5'/></g></g>");
    QTest::newRow("dashes") << path("L900 900H10V500",
                                    "stroke='red' stroke-width='4' stroke-dasharray='8,4'");
    QTest::newRow("text") << QByteArray("<text x='9' y='90' font-size='48' stroke='red'>Home 12 : 34 Guest"
                                        "</text><text font-size='300'>12<tspan>34</tspan></text>");
    QTest::newRow("a grid") << path("h1000v10H0v10", "stroke='red'").repeated(30);
    QTest::newRow("styles") << QByteArray("<style>.a{fill:red;stroke:blue;stroke-width:3px}</style>") +
                                   QByteArray("<rect class='a' width='20' height='20'/>").repeated(200);
    QTest::newRow("a style of its own")
        << path("l30 40", "style='stroke:#ff0000;stroke-width:2.5px'").repeated(300);
    QTest::newRow("something that turns") << QByteArray(
        "<g><animateTransform attributeName='transform' type='rotate' from='0' to='360' dur='1s'/>"
        "<rect width='50' height='200'/></g>");
}

void tst_SvgCost::takesUsualDrawings()
{
    QFETCH(QByteArray, content);
    QVERIFY(isDrawn(drawing(content)));
    QVERIFY(isDrawn(drawing(content, "width='500' height='500'"), QSize(500, 500)));
    QVERIFY(isDrawn(drawing(content, "")));
}

void tst_SvgCost::takesTheIconsOfTheEditor()
{
    int count = 0;
    for (QDirIterator files(BOARDWRIGHT_SOURCE_DIR "/assets", {"*.svg"}, QDir::Files,
                            QDirIterator::Subdirectories);
         files.hasNext(); ++count)
        QVERIFY2(isDrawn(readFile(files.next())), qPrintable(files.filePath()));
    QVERIFY(count > 0);
}

void tst_SvgCost::refusesWhatTakesTooLong_data()
{
    QTest::addColumn<QByteArray>("content");
    const int many = 2000;
    for (const char *pattern : {"L%x %y", "l%x-%y-%y %x", "V%y h1", "v900h1v-900", "C%x %y %y %x %x 0",
                                "S%x %y %y %x", "Q%x %y %y %x", "T%x %y", "A900 900 0 11%x %y"})
        QTest::addRow("lines: %s", pattern) << path(places(many, pattern));
    QTest::newRow("a polygon") << "<polygon points='" + places(many, "%x,%y ") + "'/>";
    QTest::newRow("a polyline") << "<polyline points='" + places(many, "%x,%y ") + "'/>";
    const QByteArray stroked = "stroke='red' stroke-width='300' ";
    QTest::newRow("a wide outline") << path(places(many, "l1 1 0 -1"), stroked);
    QTest::newRow("a wide outline in a style")
        << path(places(many, "l1 1 0 -1"), "style='stroke:red;stroke-width:300'");
    QTest::newRow("a wide outline in a sheet")
        << "<style>path{stroke:red;stroke-width:300}</style>" + path(places(many, "l1 1 0 -1"));
    QTest::newRow("a wide outline of a group")
        << "<g " + stroked + ">" + path(places(many, "l1 1 0 -1")) + "</g>";
    QTest::newRow("a wide outline that no list hides")
        << "<g " + stroked + ">" + path(places(many, "l1 1 0 -1"), "style='}stroke-width:1'") + "</g>";
    QTest::newRow("long miters") << path(places(many, "l1 1 0 -1"), "stroke='red' stroke-miterlimit='9999'");
    QTest::newRow("narrow dashes") << QByteArray(
        "<circle r='400' cx='500' cy='500' stroke='red' stroke-width='100' stroke-dasharray='.1'/>");
    QTest::newRow("dashes of nothing") << path("L900 900", "stroke='red' stroke-dasharray='0,0'");
    QTest::newRow("dashes without an end") << path("H1e9", "stroke='red' stroke-dasharray='1'");
    QTest::newRow("lines without an end") << path("L1e300 1e300 1e308 1e308 -1e308 1");
    QTest::newRow("layers") << QByteArray("<rect width='1000' height='1000'/>").repeated(400);
    QTest::newRow("ellipses") << QByteArray("<ellipse cx='500' cy='500' rx='500' ry='500'/>").repeated(400);
    QTest::newRow("letters") << "<text font-size='2000'>" + QByteArray(1000, 'o') + "</text>";
    QTest::newRow("letters in lengths of their own")
        << "<text font-size='50em'>" + QByteArray(1000, 'o') + "</text>";
    QTest::newRow("wrapped letters") << "<textArea width='1'>" + QByteArray(9000, 'o') + "</textArea>";
    QTest::newRow("outlines of letters") << "<text " + stroked + ">" + QByteArray(1000, 'o') + "</text>";
    QTest::newRow("letters that it brings itself")
        << QByteArray("<font><glyph unicode='a' d='M0 0'/></font>");
    QTest::newRow("drawings of no size") << QByteArray("<svg><rect width='1' height='1'/></svg>");
    QTest::newRow("something that grows")
        << "<g><animateTransform type='scale' from='1000'/>" + path(places(many, "l1 2 2 1")) + "</g>";
    QTest::newRow("a turn in a style") << QByteArray("<g style='transform:scale(9)'/>");
}

void tst_SvgCost::refusesWhatTakesTooLong()
{
    QFETCH(QByteArray, content);
    QVERIFY(!isDrawn(drawing(content)));
}

void tst_SvgCost::drawsTheLineBetween_data()
{
    QTest::addColumn<QByteArray>("piece");
    QTest::addColumn<int>("drawn");
    QTest::addColumn<int>("refused");
    QTest::newRow("long lines") << QByteArray("v900h1v-900h1") << 35 << 60;
    QTest::newRow("short lines") << QByteArray("l3-2 2 3-3 1-2-2") << 4000 << 40000;
}

void tst_SvgCost::drawsTheLineBetween()
{
    QFETCH(QByteArray, piece);
    QFETCH(int, drawn);
    QFETCH(int, refused);
    QVERIFY(isDrawn(drawing(path("M500 50" + piece.repeated(drawn)))));
    QVERIFY(!isDrawn(drawing(path("M500 50" + piece.repeated(refused)))));
}

void tst_SvgCost::countsWhatIsUsedAsOftenAsItIs()
{
    const QByteArray figure = "<path id='a' d='M0 0" + places(20, "L%x %y") + "'/>";
    const QByteArray use = "<use xlink:href='#a'/>";
    QVERIFY(isDrawn(drawing(figure + use.repeated(20))));
    QVERIFY(!isDrawn(drawing(figure + use.repeated(500))));
}

void tst_SvgCost::countsTheScale_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("behind");
    QTest::newRow("scale") << QByteArray("<g transform='scale(100)'>") << QByteArray("</g>");
    QTest::newRow("matrix") << QByteArray("<g transform='matrix(100 0 0 100 0 0)'>") << QByteArray("</g>");
    QTest::newRow("one in another") << QByteArray(
                                           "<g transform='scale(10)'><g transform='rotate(9) scale(10)'>")
                                    << QByteArray("</g></g>");
    QTest::newRow("a drawing in it") << QByteArray("<svg viewBox='0 0 10 10'>") << QByteArray("</svg>");
    QTest::newRow("skew") << QByteArray("<g transform='skewY(89.5)'>") << QByteArray("</g>");
}

void tst_SvgCost::countsTheScale()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, behind);
    const QByteArray figure = path(places(300, "L%x %y", 10));
    QVERIFY(isDrawn(drawing(figure)));
    QVERIFY(!isDrawn(drawing(before + figure + behind)));
    QVERIFY(!isDrawn(drawing(figure, "viewBox='0 0 10 10'")));
}

void tst_SvgCost::countsThePixelsOfThePicture()
{
    const QByteArray whole = "<rect width='1000' height='1000'/>";
    QVERIFY(isDrawn(drawing(whole), QSize(8000, 8000)));
    QVERIFY(!isDrawn(drawing(whole.repeated(4)), QSize(8000, 8000)));
    QVERIFY(isDrawn(drawing(whole.repeated(4))));
}

void tst_SvgCost::refusesStylesThatTakeTooLong_data()
{
    QTest::addColumn<QByteArray>("rule");
    QTest::addColumn<int>("drawn");
    QTest::addColumn<int>("refused");
    QTest::newRow("rules") << QByteArray("rect{fill:red}") << 900 << 1000;
    QTest::newRow("lists of rules") << QByteArray("a,rect{fill:red}") << 450 << 500;
    QTest::newRow("rules on what is in others") << QByteArray("x g rect{fill:red}") << 40 << 60;
    QTest::newRow("rules on what is beside others") << QByteArray("x ~ rect{fill:red}") << 0 << 1;
    QTest::newRow("turns") << QByteArray("rect{transform:scale(2)}") << 0 << 1;
    QTest::newRow("no turns") << QByteArray("rect{text-transform:none}") << 1 << 1000;
}

void tst_SvgCost::refusesStylesThatTakeTooLong()
{
    QFETCH(QByteArray, rule);
    QFETCH(int, drawn);
    QFETCH(int, refused);
    const QByteArray figures = QByteArray("<rect/>").repeated(1000);
    const auto styled = [&](int rules) {
        return drawing("<style>" + rule.repeated(rules) + "</style>" + figures);
    };
    QCOMPARE(SvgContents::of(styled(drawn)).refusal, QString());
    QVERIFY(!SvgContents::of(styled(refused)).refusal.isEmpty());
}

BOARDWRIGHT_TEST_MAIN(tst_SvgCost)
#include "tst_svgcost.moc"
