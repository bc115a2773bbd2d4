#include "assets/fontindex.h"

#include "assets/assets.h"
#include "tests/model/bundledfonts.h"

#include <QDir>
#include <QFontDatabase>
#include <QTest>

class tst_FontIndex : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyFontIsFoundByEachOfItsNames();
    void findsAllFontsOfAFamily();
    void findsAWeight();
    void ignoresCase();
    void knowsNoOtherNames_data();
    void knowsNoOtherNames();
};

void tst_FontIndex::initTestCase()
{
    initAssets();
    REQUIRE_BUNDLED_FONTS();
}

void tst_FontIndex::everyFontIsFoundByEachOfItsNames()
{
    REQUIRE_BUNDLED_FONTS();
    int count = 0;
    const QDir folder(":/assets/fonts");
    const QStringList names = folder.entryList(QDir::Files);
    for (const QString &name : names) {
        const QString path = folder.filePath(name);
        const int id = QFontDatabase::addApplicationFont(path);
        const QStringList families = QFontDatabase::applicationFontFamilies(id);
        for (const QString &family : families) {
            QVERIFY2(FontIndex::filesOf(family).contains(path), qPrintable(path));
            ++count;
        }
    }
    QVERIFY(count >= 115);
}

void tst_FontIndex::findsAllFontsOfAFamily()
{
    REQUIRE_BUNDLED_FONTS();
    QCOMPARE(FontIndex::filesOf("Exo 2").size(), 18);
    QCOMPARE(FontIndex::filesOf("Oswald").size(), 3);
    QCOMPARE(FontIndex::filesOf("DSEG7 Classic").size(), 6);
    QCOMPARE(FontIndex::filesOf("Slabo 27px").size(), 1);
}

void tst_FontIndex::findsAWeight()
{
    REQUIRE_BUNDLED_FONTS();
    // Upright and slanted.
    QCOMPARE(FontIndex::filesOf("Exo 2 Black").size(), 2);
}

void tst_FontIndex::ignoresCase()
{
    REQUIRE_BUNDLED_FONTS();
    QCOMPARE(FontIndex::filesOf("OSWALD"), FontIndex::filesOf("Oswald"));
    QVERIFY(!FontIndex::filesOf("OSWALD").isEmpty());
}

void tst_FontIndex::knowsNoOtherNames_data()
{
    QTest::addColumn<QString>("name");

    for (const char *name : {"", "Arial", "Oswal", "Oswald_400Regular.ttf", "DejaVu Sans"})
        QTest::newRow(name) << name;
}

void tst_FontIndex::knowsNoOtherNames()
{
    QFETCH(QString, name);
    QCOMPARE(FontIndex::filesOf(name), QStringList());
}

QTEST_MAIN(tst_FontIndex)
#include "tst_fontindex.moc"
