#include "model/boardfonts.h"

#include "assets/assets.h"
#include "model/applicationfonts.h"
#include "model/fontfamilies.h"
#include "model/fontsubstitutions.h"
#include "tests/model/bundledfonts.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QTest>

class tst_BoardFonts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void showsTheSameFontEverywhere_data();
    void showsTheSameFontEverywhere();
    void asksForLoadedFontsByTheirName_data();
    void asksForLoadedFontsByTheirName();
    void keepsFontsOfTheDesktopOut();
    void takesLackingCharactersFromFontsOfTheProgram();
    void setsPointsAt96DotsPerInch_data();
    void setsPointsAt96DotsPerInch();
    void tellsThePointsOfAHeight();
    void plainLettersFollowNoDesktop();
    void forgetsTheUsersVariables_data();
    void forgetsTheUsersVariables();
};

namespace
{
/// The family that letters of a format with this font come from.
QString shown(const QString &name)
{
    QFont font(name);
    font.setFamilies(BoardFonts::shownFamilies(name));
    return QFontInfo(font).family();
}
} // namespace

void tst_BoardFonts::initTestCase()
{
    initAssets();
    loadApplicationFonts();
    registerFontSubstitutions();
}

void tst_BoardFonts::showsTheSameFontEverywhere_data()
{
    QTest::addColumn<QString>("family");

    QTest::newRow("Oswald") << "Oswald";
    QTest::newRow("Exo 2 Black") << "Exo 2 Black";
    QTest::newRow("Arial") << "Arimo";
    QTest::newRow("digital-7") << "DSEG14 Modern";
    QTest::newRow("Nowhere to be found") << "Arimo";
    QTest::newRow("Oswald, Raleway") << "Arimo";
    QTest::newRow("Oswald [foundry]") << "Arimo";
    QTest::newRow("") << "Arimo";
    QTest::newRow("serif") << "Arimo";
    QTest::newRow("monospace") << "Arimo";
}

void tst_BoardFonts::showsTheSameFontEverywhere()
{
    REQUIRE_BUNDLED_FONTS();
    QFETCH(QString, family);
    QCOMPARE(shown(QTest::currentDataTag()), family);
}

void tst_BoardFonts::asksForLoadedFontsByTheirName_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"Oswald", "OSWALD", "Raleway Thin", "Nowhere to be found"})
        QTest::newRow(name) << name;
}

void tst_BoardFonts::asksForLoadedFontsByTheirName()
{
    REQUIRE_BUNDLED_FONTS();
    QFETCH(QString, name);
    // What is stored is then the name alone.
    QCOMPARE(BoardFonts::shownFamilies(name), QStringList(name));
}

void tst_BoardFonts::keepsFontsOfTheDesktopOut()
{
    REQUIRE_BUNDLED_FONTS();
    int count = 0;
    const QStringList families = QFontDatabase().families();
    for (const QString &family : families) {
        if (!family.startsWith("DejaVu"))
            continue;
        ++count;
        QCOMPARE(shown(family), QString("Arimo"));
    }
    if (count == 0)
        QSKIP("this machine has no font of its own that is known here");
}

void tst_BoardFonts::takesLackingCharactersFromFontsOfTheProgram()
{
    const QStringList helpers = {"arimo", "noto sans symbols 2"};
    BoardFonts::shownFamilies("DSEG7 Classic");
    QCOMPARE(QFont::substitutes("DSEG7 Classic").join('|').toLower().split('|'), helpers);
    BoardFonts::shownFamilies("scoreboard");
    QCOMPARE(QFont::substitutes("scoreboard").join('|').toLower().split('|'),
             QStringList("handjet") + helpers);
}

void tst_BoardFonts::setsPointsAt96DotsPerInch_data()
{
    QTest::addColumn<qreal>("points");
    QTest::addColumn<int>("pixels");

    QTest::newRow("6") << 6.0 << 8;
    QTest::newRow("8") << 8.0 << 11;
    QTest::newRow("10.5") << 10.5 << 14;
    QTest::newRow("14") << 14.0 << 19;
    QTest::newRow("48") << 48.0 << 64;
    QTest::newRow("49") << 49.0 << 65;
    QTest::newRow("512") << 512.0 << 683;
    QTest::newRow("too small to be seen") << 0.1 << 1;
    QTest::newRow("none") << 0.0 << 1;
    QTest::newRow("too large") << 7501.0 << 10000;
    QTest::newRow("huge") << 2147483647.0 << 10000;
}

void tst_BoardFonts::setsPointsAt96DotsPerInch()
{
    QFETCH(qreal, points);
    QTEST(BoardFonts::pixelSize(points), "pixels");
}

void tst_BoardFonts::tellsThePointsOfAHeight()
{
    QCOMPARE(BoardFonts::points(20), 15.0);
    for (int pixels = 1; pixels <= 10000; ++pixels)
        QCOMPARE(BoardFonts::pixelSize(BoardFonts::points(pixels)), pixels);
}

void tst_BoardFonts::plainLettersFollowNoDesktop()
{
    REQUIRE_BUNDLED_FONTS();
    const QFont font = BoardFonts::plainFont();
    QCOMPARE(QFontInfo(font).family(), QString("Arimo"));
    QCOMPARE(font.pixelSize(), 12);
    QCOMPARE(font.hintingPreference(), QFont::PreferVerticalHinting);
    QVERIFY(font.styleStrategy() & QFont::NoSubpixelAntialias);
}

void tst_BoardFonts::forgetsTheUsersVariables_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : {"QT_MAX_CACHED_GLYPH_SIZE", "QT_NO_SYNTHESIZED_BOLD", "QT_NO_SYNTHESIZED_ITALIC",
                             "QT_HARFBUZZ", "HB_SHAPER_LIST", "FREETYPE_PROPERTIES"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_BoardFonts::forgetsTheUsersVariables()
{
    QFETCH(QByteArray, name);
    qputenv(name, "1");
    BoardFonts::clearVariables();
    QVERIFY(!qEnvironmentVariableIsSet(name));
}

QTEST_MAIN(tst_BoardFonts)
#include "tst_boardfonts.moc"
