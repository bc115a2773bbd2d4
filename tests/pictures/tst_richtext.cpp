#include "pictures/richtext.h"

#include "tests/support/strictmain.h"

#include <QTextDocument>

namespace
{
QString times(int count, const QString &part)
{
    return part.repeated(count);
}
} // namespace

class tst_RichText : public QObject
{
    Q_OBJECT

private slots:
    void knowsWhatCanBeShown_data();
    void knowsWhatCanBeShown();
    void nothingHidesFromTheJudge_data();
    void nothingHidesFromTheJudge();
    void showsWhatAnEditorWrites();
    void excerptIsReadable_data();
    void excerptIsReadable();
    void excerptIsShort_data();
    void excerptIsShort();
};

void tst_RichText::knowsWhatCanBeShown_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<bool>("isShowable");

    QTest::newRow("nothing") << "" << true;
    QTest::newRow("plain") << "Home" << true;
    QTest::newRow("unclosed tags") << "<b><i>Home<p>Guest" << true;
    QTest::newRow("lone bracket") << "1 < 2" << true;
    QTest::newRow("brackets alone") << times(1024 * 1024, "<") << true;
    QTest::newRow("much text") << times(4096, "abc ") << true;
    QTest::newRow("too much text") << times(4097, "abc ") << false;
    QTest::newRow("long word") << times(16384, "x") << true;
    QTest::newRow("word too long") << times(16385, "x") << false;
    QTest::newRow("breaks between lines") << times(16384, "x\r\n") << true;
    QTest::newRow("entities") << times(16384, "&#65;") << true;
    QTest::newRow("too many entities") << times(16385, "&lt;") << false;
    QTest::newRow("many tags") << times(16384, "<p><b>x</b></p>") << true;
    QTest::newRow("words parted by tags") << times(3, times(600, "x") + "<b>") << true;
    QTest::newRow("too many tags") << times(65537, "<b></b>") << false;
    QTest::newRow("many attributes") << "<p" + times(100, " a=b") + ">" << true;
    QTest::newRow("too many attributes") << "<p" + times(101, " a=b") + ">" << false;
    QTest::newRow("too many attributes of all") << times(2622, "<p" + times(100, " a") + ">") << false;
    QTest::newRow("deep") << times(200, "<div>") << true;
    QTest::newRow("too deep") << times(201, "<div>") << false;
    QTest::newRow("deep, closed in between") << times(201, "<div></div>") << true;
    QTest::newRow("closed too often") << times(300, "</div>") + times(201, "<div>") << false;
    QTest::newRow("never closed") << times(500, "<br><hr/><BR/><meta>") << true;
    QTest::newRow("declarations") << times(201, "<!x><!-- <b> -->") << true;
    QTest::newRow("tables closed too often") << times(20, "</table>") + times(7, "<table><tr><td>") << false;
    QTest::newRow("tables in tables") << times(6, "<table><tr><td>") << true;
    QTest::newRow("too many tables in tables") << times(7, "<TABLE><tr><td>") << false;
    QTest::newRow("tables in a row") << times(50, "<table></table>") << true;
    QTest::newRow("pictures") << times(200, "<img src='x'>") << true;
    QTest::newRow("too many pictures") << times(201, "<IMG align='left'>") << false;
    QTest::newRow("table beyond all numbers") << "<table cellspacing=10000000>" << true;
    QTest::newRow("digits elsewhere") << "<img src='data:image/png;base64,12345678901'>" << true;
    QTest::newRow("megabytes in a tag") << "<p " + times(8 * 1024 * 1024 - 4, "a") + ">" << true;
    QTest::newRow("more than eight megabytes") << "<p " + times(8 * 1024 * 1024 - 3, "a") + ">" << false;
}

void tst_RichText::knowsWhatCanBeShown()
{
    QFETCH(QString, html);
    QTEST(RichText::isShowable(html), "isShowable");
}

void tst_RichText::nothingHidesFromTheJudge_data()
{
    QTest::addColumn<QString>("html");

    QTest::newRow("deep after a space") << times(201, "< div>");
    QTest::newRow("deep in quotes") << times(201, "<\"div\">");
    QTest::newRow("deep in entities") << times(201, "<&#100;iv>");
    QTest::newRow("deep with a bracket in an attribute") << times(201, "<div a='>'>");
    QTest::newRow("deep, nearly without content") << times(201, "<brx>");
    QTest::newRow("deep, processing instructions") << times(201, "<?x>");
    QTest::newRow("deep, others closed") << times(201, "<div></b>");
    QTest::newRow("deep, closed too late") << times(10, "<p><u><p>" + times(50, "<div>") + "</u>");
    QTest::newRow("tables after a space") << times(7, "< table><tr><td>");
    QTest::newRow("tables of cells alone") << times(7, "<td></tr>");
    QTest::newRow("tables between rows") << times(7, "<table><table></table></table>");
    QTest::newRow("columns in one cell") << "<table><tr><td colspan=16385>";
    QTest::newRow("columns in entities") << "<table><tr><td colspan='&#49;&#54;385'>";
    QTest::newRow("columns given twice") << "<table><tr><td colspan=1 colspan=16385>";
    QTest::newRow("columns of many cells") << "<table><tr>" + times(4, "<td colspan=4097>");
    QTest::newRow("columns times rows") << "<table>" + times(128, "<tr>") + times(129, "<td>");
    QTest::newRow("columns from above") << "<table>" + times(100, "<tr><td rowspan=99 colspan=4>");
    QTest::newRow("cells alone") << times(6145, "<td>");
    QTest::newRow("cells in tables") << times(3, "<table><tr><td>") + times(2000, "<td>");
    QTest::newRow("words in tables") << times(6, "<table><tr><td>") + times(8000, "x");
    QTest::newRow("selectors") << "<style>" + times(1000, "b,") + "b{}</style>" + times(2000, "<b></b>");
    QTest::newRow("selectors in one another")
        << "<style>" + times(1000, "b ") + "{}</style>" + times(2000, "<b></b>");
    QTest::newRow("selectors in a rule")
        << "<style>@media all{" + times(1000, "b ") + "{}}</style>" + times(2000, "<b></b>");
    QTest::newRow("declarations") << "<style>*{" + times(3000, "color:red;") + "}</style>" +
                                         times(3000, "<p>x");
    QTest::newRow("declarations of many selectors")
        << "<style>" + times(600, "p,") + "p{" + times(300, "color:red;") + "}</style>" + times(1000, "<p>x");
    QTest::newRow("long style sheet") << "<style>" + times(256 * 1024 + 1, "a") + "</style>";
}

void tst_RichText::nothingHidesFromTheJudge()
{
    QFETCH(QString, html);
    QVERIFY(!RichText::isShowable(html));
}

void tst_RichText::showsWhatAnEditorWrites()
{
    QTextDocument document;
    document.setHtml("<h1>Score</h1>" + times(300, "<p>line of <b>words</b></p>"));
    QVERIFY(RichText::isShowable(document.toHtml()));
}

void tst_RichText::excerptIsReadable_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("excerpt");

    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("plain") << "Home"
                           << "Home";
    QTest::newRow("markup") << "<b>Ho<i class='a'>me</i></b>"
                            << "Home";
    QTest::newRow("paragraphs") << "<p>Home</p><p>Guest</p>"
                                << "Home\nGuest\n";
    QTest::newRow("line break") << "Home<BR/>Guest"
                                << "Home\nGuest";
    QTest::newRow("other lines") << "<h1>a</h1><div>b</div><ul><li>c</li></ul><table><tr><td>d</td></tr>"
                                 << "a\nb\nc\nd\n";
    QTest::newRow("title and script") << "<title>x</title>Home <script>x</script>Guest"
                                      << "Home Guest";
    QTest::newRow("head") << "<head><title>x</title><style>p{}</style></head>Home"
                          << "Home";
    QTest::newRow("style sheet") << "Home<STYLE type='a'>p, li { }</STYLE> Guest"
                                 << "Home Guest";
    QTest::newRow("style sheet that never ends") << "Home<style>p{}"
                                                 << "Home";
    QTest::newRow("tag that never ends") << "Home<b Guest"
                                         << "Home";
    QTest::newRow("entities") << "1 &lt; 2 &amp;lt; &quot;3&quot;&nbsp;&gt;"
                              << "1 < 2 &lt; \"3\" >";
}

void tst_RichText::excerptIsReadable()
{
    QFETCH(QString, html);
    QTEST(RichText::excerpt(html), "excerpt");
}

void tst_RichText::excerptIsShort_data()
{
    QTest::addColumn<QString>("html");

    QTest::newRow("words") << times(100000, "word ");
    QTest::newRow("paragraphs") << times(100000, "<p>word</p>");
    QTest::newRow("breaks") << times(100000, "<br>");
    QTest::newRow("brackets") << times(3000000, "<");
    QTest::newRow("tags") << times(1000000, "<b>");
    QTest::newRow("heads") << times(100000, "<head>");
}

void tst_RichText::excerptIsShort()
{
    QFETCH(QString, html);
    const QString excerpt = RichText::excerpt(html);
    QVERIFY(excerpt.size() <= 1000);
    QVERIFY(RichText::isShowable(excerpt.toHtmlEscaped()));
}

BOARDWRIGHT_TEST_MAIN(tst_RichText)
#include "tst_richtext.moc"
