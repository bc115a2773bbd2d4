#include "pictures/svgcontents.h"

#include "tests/support/files.h"
#include "tests/support/mediabytes.h"
#include "tests/support/strictmain.h"

#include <QDir>
#include <QTemporaryDir>

using namespace MediaBytes;

/// Which drawings are drawn, and which are not.
class tst_SvgContents : public QObject
{
    Q_OBJECT

private slots:
    void takesDrawingsThatStayInside_data();
    void takesDrawingsThatStayInside();
    void refusesWhatReachesOutside_data();
    void refusesWhatReachesOutside();
    void refusesPicturesThatAreNamesOfFiles();
    void refusesDeclarations_data();
    void refusesDeclarations();
    void refusesWhatIsDamaged_data();
    void refusesWhatIsDamaged();
    void collectsThePicturesItCarries();
    void countsElementsAsOftenAsTheyAreUsed_data();
    void countsElementsAsOftenAsTheyAreUsed();
    void refusesTooManyElements();
    void refusesTooManyUses();
    void refusesTooManyAttributes();
    void refusesTooManyEscapes();
    void readsAnyNumberOfTransforms();
    void refusesCircles_data();
    void refusesCircles();
    void refusesTooDeepOnes();
    void refusesTooMuchText();
    void refusesTooManyBytes();
};

namespace
{
/// Groups of which each uses the one before so often.
QByteArray usesOfUses(int levels, int times)
{
    QByteArray content = "<g id='g0'><rect/></g>";
    for (int i = 1; i < levels; ++i) {
        const QByteArray use = "<use xlink:href='#g" + QByteArray::number(i - 1) + "'/>";
        content += "<g id='g" + QByteArray::number(i) + "'>" + use.repeated(times) + "</g>";
    }
    return svg(content);
}
} // namespace

void tst_SvgContents::takesDrawingsThatStayInside_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << svg("");
    QTest::newRow("figures") << svg("<rect width='5'/><g><circle r='3'/></g><text>words</text>");
    QTest::newRow("a head") << svg("", "<?xml version='1.0' encoding='UTF-8'?>");
    QTest::newRow("a document type") << svg(
        "", "<!DOCTYPE svg PUBLIC '-//W3C//DTD SVG 1.1//EN' 'http://www.w3.org/svg11.dtd'>");
    QTest::newRow("a document type that declares nothing") << svg("", "<!DOCTYPE svg [ ]>");
    QTest::newRow("colours by name") << svg("<linearGradient id='a'/><rect fill='url(#a)'/>");
    QTest::newRow("in quotes") << svg("<rect fill='url( \"#a\" )' style=\"fill:url('#a')\"/>");
    QTest::newRow("gradients of gradients")
        << svg("<linearGradient id='a'/><radialGradient id='b' xlink:href='#a'/>");
    QTest::newRow("a style") << svg("<style>rect{fill:url(#a)} .b{font-family:'a\\'b'}</style>");
    QTest::newRow("use") << svg("<rect id='a'/><use xlink:href='#a'/><use href='#a'/>");
    QTest::newRow("use of what is not there") << svg("<use xlink:href='#nobody'/>");
    QTest::newRow("a picture of its own") << svg("<image xlink:href='data:image/png;base64,AAAA'/>");
    QTest::newRow("a link to elsewhere") << svg("<a xlink:href='http://example.invalid/'><rect/></a>");
    QTest::newRow("names with an address") << svg("<!-- url(http://example.invalid/) --><g id='http://x'/>");
    QTest::newRow("no prefix declared") << QByteArray("<svg><use xlink:href='#a'/></svg>");
    QTest::newRow("letters of the world") << svg("<text>\xc3\xa4\xe2\x82\xac</text>");
}

void tst_SvgContents::takesDrawingsThatStayInside()
{
    QFETCH(QByteArray, bytes);
    QCOMPARE(SvgContents::of(bytes).refusal, QString());
}

void tst_SvgContents::refusesWhatReachesOutside_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("addresses in one another")
        << svg("<g style='fill:" + QByteArray("url(#").repeated(500) + "'/>");
    for (const char *address :
         {"", "x.png", "/dev/zero", "file:///dev/zero", "http://example.invalid/x.png", "x.svg#a", " #a",
          "data:text/css,x", "data:", " data:image/png;base64,AAAA", "DATA:image/png;base64,AAAA"}) {
        for (const char *pattern :
             {"<image xlink:href='%1'/>", "<image href='%1'/>", "<use xlink:href='%1'/>",
              "<x:use y:href='%1'/>", "<linearGradient xlink:href='%1'/>", "<feImage href='%1'/>"}) {
            QTest::addRow("%s at '%s'", pattern, address) << QByteArray(pattern).replace("%1", address);
        }
    }
    for (const char *address :
         {"", "x.png", "http://example.invalid/x", "x.svg#a", "\"/dev/zero\"", "data:text/css,x"}) {
        for (const char *pattern : {"<rect fill='url(%1)'/>", "<rect style='fill:red;mask:URL( %1 )'/>",
                                    "<style>*{fill:url(%1)}</style>",
                                    "<style><![CDATA[*{fill:url(#a)} rect{fill:url(%1)}]]></style>",
                                    "<style>*{fill:u\\72 l(%1)}</style>", "<style>*{fill:\\url(%1)}</style>",
                                    "<rect fill='url&#40;%1)'/>", "<rect fill='url(%1'/>"}) {
            QTest::addRow("%s with %s", pattern, address) << QByteArray(pattern).replace("%1", address);
        }
    }
    QTest::newRow("a style that imports") << QByteArray("<style>@import 'x.css';</style>");
    QTest::newRow("a style that imports in a disguise") << QByteArray("<style>@\\49mport 'x.css';</style>");
    QTest::newRow("in pieces") << QByteArray("<style>*{fill:ur<![CDATA[l(]]>http://x)}</style>");
    QTest::newRow("a style sheet") << QByteArray("<?xml-stylesheet type=\"text/css\" href=\"x.css\"?>");
}

void tst_SvgContents::refusesWhatReachesOutside()
{
    QFETCH(QByteArray, content);
    QVERIFY(!SvgContents::of(svg(content)).refusal.isEmpty());
}

void tst_SvgContents::refusesPicturesThatAreNamesOfFiles()
{
    const QTemporaryDir folder;
    QVERIFY(writeFile(folder.filePath("#picture"), "x"));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    const QString refusal = SvgContents::of(svg("<image xlink:href='#picture'/>")).refusal;
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(!refusal.isEmpty());
    QVERIFY(SvgContents::of(svg("<image xlink:href='#picture'/>")).refusal.isEmpty());
}

void tst_SvgContents::refusesDeclarations_data()
{
    QTest::addColumn<QByteArray>("declaration");
    for (const char *declaration : {"<!ENTITY a 'b'>", "<!ENTITY a SYSTEM '/dev/zero'>", "<!ENTITY % a 'b'>",
                                    "<!NOTATION a SYSTEM 'b'>", "<!ELEMENT svg ANY>",
                                    "<!ATTLIST svg width CDATA '5'>", "<!ENTITY a 'b'> %a;"})
        QTest::newRow(declaration) << QByteArray(declaration);
}

void tst_SvgContents::refusesDeclarations()
{
    QFETCH(QByteArray, declaration);
    QVERIFY(!SvgContents::of(svg("", "<!DOCTYPE svg [" + declaration + "]>")).refusal.isEmpty());
}

void tst_SvgContents::refusesWhatIsDamaged_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("words") << QByteArray("no drawing");
    QTest::newRow("cut short") << svg("<rect/>").left(100);
    QTest::newRow("crossed") << svg("<g><a></g></a>");
    QTest::newRow("an unknown entity") << svg("<text>&a;</text>");
    QTest::newRow("zeros") << QByteArray(1000, char(0));
}

void tst_SvgContents::refusesWhatIsDamaged()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!SvgContents::of(bytes).refusal.isEmpty());
}

void tst_SvgContents::collectsThePicturesItCarries()
{
    const SvgContents contents = SvgContents::of(svg("<image xlink:href='data:image/png;base64,YWJj'/>"
                                                     "<image href='data:image/png;charset=x;base64,ZGVm'/>"
                                                     "<rect fill='url(data:image/gif;base64,Z2hp)'/>"
                                                     "<image xlink:href='data:image/png,plain'/>"));
    QCOMPARE(contents.refusal, QString());
    QCOMPARE(contents.pictures, QVector<QByteArray>({"abc", "def", "ghi"}));
}

void tst_SvgContents::countsElementsAsOftenAsTheyAreUsed_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("elements");
    QTest::newRow("one") << svg("") << 1;
    QTest::newRow("several") << svg("<g><rect/><rect/></g>") << 4;
    QTest::newRow("a use") << svg("<g id='a'><rect/></g><use xlink:href='#a'/>") << 1 + 2 + 3;
    QTest::newRow("a use before") << svg("<use xlink:href='#a'/><g id='a'><rect/></g>") << 1 + 2 + 3;
    QTest::newRow("a name given twice") << svg("<g id='a'/><g id='a'/><use xlink:href='#a'/>") << 1 + 2 + 3;
    QTest::newRow("a name of the other kind") << svg("<g xml:id='a'/><use xlink:href='#a'/>") << 1 + 1 + 2;
    QTest::newRow("two at once") << svg("<g id='a'/><use xlink:href='#a' href='#a'/>") << 1 + 1 + 3;
    QTest::newRow("levels") << usesOfUses(3, 2) << 1 + 2 + (1 + 2 * 3) + (1 + 2 * (1 + 7));
}

void tst_SvgContents::countsElementsAsOftenAsTheyAreUsed()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, elements);
    QCOMPARE(SvgContents::of(bytes).refusal, QString());
    QCOMPARE(SvgContents::of(bytes).elements, elements);
}

void tst_SvgContents::refusesTooManyElements()
{
    QCOMPARE(SvgContents::of(svg(QByteArray("<g/>").repeated(49999))).refusal, QString());
    QVERIFY(!SvgContents::of(svg(QByteArray("<g/>").repeated(50000))).refusal.isEmpty());
}

void tst_SvgContents::refusesTooManyAttributes()
{
    QByteArray attributes;
    for (int i = 0; i < 900; ++i)
        attributes += " a" + QByteArray::number(i) + "=''";
    QCOMPARE(SvgContents::of(svg("<g" + attributes + "/><g" + attributes + "/>")).refusal, QString());
    for (int i = 900; i < 1001; ++i)
        attributes += " a" + QByteArray::number(i) + "=''";
    QVERIFY(!SvgContents::of(svg("<g" + attributes + "/>")).refusal.isEmpty());
}

void tst_SvgContents::refusesTooManyEscapes()
{
    const QByteArray escapes = QByteArray("\\a").repeated(900);
    QCOMPARE(SvgContents::of(svg("<g style='" + escapes + "'/><g style='" + escapes + "'/>")).refusal,
             QString());
    QVERIFY(!SvgContents::of(svg("<g style='" + escapes.repeated(2) + "'/>")).refusal.isEmpty());
}

void tst_SvgContents::readsAnyNumberOfTransforms()
{
    const QByteArray turns = QByteArray("rotate(0)").repeated(400000);
    QCOMPARE(SvgContents::of(svg("<g transform='" + turns + "'/>")).refusal, QString());
}

void tst_SvgContents::refusesTooManyUses()
{
    // 1 + 2 + 24,998 times 2, and one more.
    const QByteArray uses = "<g id='a'/>" + QByteArray("<use href='#a'/>").repeated(24999);
    QCOMPARE(SvgContents::of(svg(uses)).elements, 50000);
    QCOMPARE(SvgContents::of(svg(uses)).refusal, QString());
    QVERIFY(!SvgContents::of(svg(uses + "<g/>")).refusal.isEmpty());
    // Thousands of millions in less than a kilobyte.
    QVERIFY(!SvgContents::of(usesOfUses(10, 10)).refusal.isEmpty());
    QVERIFY(!SvgContents::of(usesOfUses(200, 2)).refusal.isEmpty());
}

void tst_SvgContents::refusesCircles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("itself") << QByteArray("<use id='a' xlink:href='#a'/>");
    QTest::newRow("what it is in") << QByteArray("<g id='a'><use xlink:href='#a'/></g>");
    QTest::newRow("two") << QByteArray("<g id='a'><use href='#b'/></g><g id='b'><use href='#a'/></g>");
    QTest::newRow("gradients") << QByteArray(
        "<linearGradient id='a' href='#b'/><radialGradient id='b' href='#a'/>");
}

void tst_SvgContents::refusesCircles()
{
    QFETCH(QByteArray, content);
    QVERIFY(!SvgContents::of(svg(content)).refusal.isEmpty());
}

void tst_SvgContents::refusesTooDeepOnes()
{
    const auto nested = [](int depth) {
        return svg(QByteArray("<g>").repeated(depth - 1) + QByteArray("</g>").repeated(depth - 1));
    };
    QCOMPARE(SvgContents::of(nested(256)).refusal, QString());
    QVERIFY(!SvgContents::of(nested(257)).refusal.isEmpty());
    QVERIFY(!SvgContents::of(nested(40000)).refusal.isEmpty());
    // Each use is one level, and so is what is used.
    QCOMPARE(SvgContents::of(usesOfUses(100, 1)).refusal, QString());
    QVERIFY(!SvgContents::of(usesOfUses(200, 1)).refusal.isEmpty());
    QVERIFY(!SvgContents::of(usesOfUses(10000, 1)).refusal.isEmpty());
}

void tst_SvgContents::refusesTooMuchText()
{
    const QByteArray text = "<text id='a'>" + QByteArray(1000000, 'x') + "</text>";
    QCOMPARE(SvgContents::of(svg(text + QByteArray("<use href='#a'/>").repeated(15))).refusal, QString());
    QVERIFY(!SvgContents::of(svg(text + QByteArray("<use href='#a'/>").repeated(16))).refusal.isEmpty());
}

void tst_SvgContents::refusesTooManyBytes()
{
    const QByteArray drawing = svg("");
    const QByteArray largest = drawing + QByteArray(4194304 - drawing.size(), ' ');
    QCOMPARE(SvgContents::of(largest).refusal, QString());
    QVERIFY(!SvgContents::of(largest + ' ').refusal.isEmpty());
}

BOARDWRIGHT_TEST_MAIN(tst_SvgContents)
#include "tst_svgcontents.moc"
