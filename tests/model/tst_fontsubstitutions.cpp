#include "model/fontsubstitutions.h"

#include "assets/assets.h"
#include "model/applicationfonts.h"
#include "tests/model/bundledfonts.h"

#include <QFont>
#include <QFontInfo>
#include <QTest>

class tst_FontSubstitutions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void showsStandIn_data();
    void showsStandIn();
    void ignoresCase();
    void leavesTheNameAsWritten();
    void changesNothingWhenRegisteredAgain();
};

void tst_FontSubstitutions::initTestCase()
{
    initAssets();
    loadFontFolder(":/assets/fonts/");
    registerFontSubstitutions();
}

void tst_FontSubstitutions::showsStandIn_data()
{
    QTest::addColumn<QString>("standIn");
    QTest::newRow("Amino") << "Exo 2";
    QTest::newRow("Amino Alt") << "Exo";
    QTest::newRow("Amino Thin") << "Exo 2 Thin";
    QTest::newRow("Amino ExtraLight") << "Exo 2 ExtraLight";
    QTest::newRow("Amino Light") << "Exo 2 Light";
    QTest::newRow("Amino Medium") << "Exo 2 Medium";
    QTest::newRow("Amino SemiBold") << "Exo 2 SemiBold";
    QTest::newRow("Amino ExtraBold") << "Exo 2 ExtraBold";
    QTest::newRow("Amino Black") << "Exo 2 Black";
    QTest::newRow("DS-DIGI") << "DSEG14 Classic";
    QTest::newRow("DS-Digital") << "DSEG14 Classic";
    QTest::newRow("digital-7") << "DSEG14 Modern";
    QTest::newRow("digital-7 mono") << "DSEG14 Modern";
    QTest::newRow("digital-7 (mono)") << "DSEG14 Modern";
    QTest::newRow("digital-7 italic") << "DSEG14 Modern";
    QTest::newRow("Open 24 Display St") << "DSEG14 Modern Mini";
    QTest::newRow("scoreboard") << "Handjet";
    QTest::newRow("forgotten futurist") << "Quantico";
    QTest::newRow("Fredoka dingbats") << "Noto Sans Symbols 2";
    QTest::newRow("ITC Franklin Gothic Std") << "Libre Franklin";
    QTest::newRow("ITC Franklin Gothic Std Book") << "Libre Franklin";
    QTest::newRow("ITC Franklin Gothic Std Medium") << "Libre Franklin Medium";
    QTest::newRow("ITC Franklin Gothic Std Demi") << "Libre Franklin SemiBold";
    QTest::newRow("ITC Franklin Gothic Std Heavy") << "Libre Franklin Black";
    QTest::newRow("ITC Franklin Gothic Std Condensed") << "Roboto Condensed";
    QTest::newRow("ITC Franklin Gothic Std Compressed") << "Oswald";
    QTest::newRow("Lobster 1.3") << "Lobster";
    QTest::newRow("Lobster 1.4") << "Lobster";
    QTest::newRow("Raleway Heavy") << "Raleway Black";
    QTest::newRow("DSEG7 SEGG CHAN") << "DSEG7 7SEGGCHAN";
    QTest::newRow("DSEG77 SEGG CHAN") << "DSEG7 7SEGGCHAN";
    QTest::newRow("DSEG7 SEGG CHAN MINI") << "DSEG7 7SEGGCHAN MINI";
    QTest::newRow("DSEG77 SEGG CHAN MINI") << "DSEG7 7SEGGCHAN MINI";
    QTest::newRow("Arial") << "Arimo";
}

void tst_FontSubstitutions::showsStandIn()
{
    REQUIRE_BUNDLED_FONTS();
    QFETCH(QString, standIn);
    QCOMPARE(QFontInfo(QFont(QTest::currentDataTag())).family(), standIn);
}

void tst_FontSubstitutions::ignoresCase()
{
    REQUIRE_BUNDLED_FONTS();
    QCOMPARE(QFontInfo(QFont("SCOREBOARD")).family(), QString("Handjet"));
}

void tst_FontSubstitutions::leavesTheNameAsWritten()
{
    QCOMPARE(QFont("digital-7").family(), QString("digital-7"));
}

void tst_FontSubstitutions::changesNothingWhenRegisteredAgain()
{
    const QStringList names = QFont::substitutions();
    registerFontSubstitutions();
    QCOMPARE(QFont::substitutions(), names);
    QCOMPARE(QFont::substitutes("Arial").size(), 1);
}

QTEST_MAIN(tst_FontSubstitutions)
#include "tst_fontsubstitutions.moc"
