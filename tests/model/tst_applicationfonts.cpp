#include "model/applicationfonts.h"

#include "assets/assets.h"
#include "model/fontfamilies.h"
#include "tests/model/bundledfonts.h"

#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QFontInfo>
#include <QResource>
#include <QTemporaryDir>
#include <QTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

// The database and the family list cannot be emptied, so the test functions build upon one another.
class tst_ApplicationFonts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void holdsEveryBundledFileUncompressed();
    void holdsALicenceTextForEachPackage();
    void missingFolderHasNoFonts();
    void loadsBundledThenUserFonts();
    void listsBundledFamiliesInOrderOfTheirFiles();
    void looksIntoTheWorkingDirectoryAtEachCall();
    void passesOverWhatIsNoFont();
    void bundledFacesCanBeShown_data();
    void bundledFacesCanBeShown();
    void acceptsEveryBundledFile_data();
    void acceptsEveryBundledFile();

private:
    QString userFolder() const { return m_work.filePath("fonts"); }
    void putUserFile(const QString &name, const QByteArray &content);

    QTemporaryDir m_work;
};

namespace
{
QStringList bundledFamilies()
{
    return {"Arimo",
            "Bangers",
            "Doto",
            "DSEG14 Classic",
            "DSEG14 Modern",
            "DSEG14 Modern Mini",
            "DSEG7 Classic",
            "DSEG7 Classic Mini",
            "DSEG7 Modern",
            "DSEG7 Modern Mini",
            "DSEG7 7SEGGCHAN",
            "DSEG7 7SEGGCHAN MINI",
            "DSEG Weather",
            "Exo 2",
            "Exo",
            "Fredoka",
            "Fredoka One",
            "Handjet",
            "Inconsolata",
            "Jersey 10",
            "Libre Franklin",
            "Lobster",
            "Noto Sans Symbols 2",
            "Oswald",
            "Passion One",
            "Quantico",
            "Raleway",
            "Righteous",
            "Roboto Condensed",
            "Slabo 27px"};
}

QByteArray bundledFile(const QString &name)
{
    QFile file(":/assets/fonts/" + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A copy of a bundled font whose family has the name @p to, of the same length as @p from.
QByteArray renamedFont(const QString &name, const QByteArray &from, const QByteArray &to)
{
    const auto wide = [](const QByteArray &text) {
        QByteArray units;
        for (const char c : text)
            units.append('\0').append(c);
        return units;
    };
    return bundledFile(name).replace(wide(from), wide(to)).replace(from, to);
}
} // namespace

void tst_ApplicationFonts::putUserFile(const QString &name, const QByteArray &content)
{
    QDir().mkpath(userFolder());
    QFile file(userFolder() + '/' + name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

void tst_ApplicationFonts::initTestCase()
{
    initAssets();
    QVERIFY(QDir::setCurrent(m_work.path()));
}

void tst_ApplicationFonts::holdsEveryBundledFileUncompressed()
{
    REQUIRE_BUNDLED_FONTS();
    const QStringList names = QDir(":/assets/fonts/").entryList(QDir::Files);
    QCOMPARE(names.size(), 115);
    for (const QString &name : names) {
        QVERIFY2(QResource(":/assets/fonts/" + name).compressionAlgorithm() == QResource::NoCompression,
                 qPrintable(name));
    }
}

void tst_ApplicationFonts::holdsALicenceTextForEachPackage()
{
    QVERIFY(QFile::exists(":/assets/licenses/README.txt"));
    REQUIRE_BUNDLED_FONTS();
    const QDir folder(":/assets/licenses/");
    const QStringList names = folder.entryList(QDir::Files);
    QCOMPARE(names.size(), 22);
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY2(name == "README.txt" || file.readAll().contains("SIL Open Font License"), qPrintable(name));
    }
}

void tst_ApplicationFonts::missingFolderHasNoFonts()
{
    loadFontFolder("./fonts/");
    QCOMPARE(FontFamilies::list(), QStringList());
}

void tst_ApplicationFonts::loadsBundledThenUserFonts()
{
    REQUIRE_BUNDLED_FONTS();
    putUserFile("aaa.picture", renamedFont("Righteous_400Regular.ttf", "Righteous", "Backyards"));
    putUserFile("duplicate.ttf", bundledFile("Bangers_400Regular.ttf"));
    loadApplicationFonts();
    QCOMPARE(FontFamilies::list().mid(30), QStringList("Backyards"));
    QCOMPARE(QFontInfo(QFont("Backyards")).family(), QString("Backyards"));
}

void tst_ApplicationFonts::listsBundledFamiliesInOrderOfTheirFiles()
{
    REQUIRE_BUNDLED_FONTS();
    QCOMPARE(FontFamilies::list().mid(0, 30), bundledFamilies());
}

void tst_ApplicationFonts::looksIntoTheWorkingDirectoryAtEachCall()
{
    REQUIRE_BUNDLED_FONTS();
    const QStringList before = FontFamilies::list();
    putUserFile("late", renamedFont("Bangers_400Regular.ttf", "Bangers", "Latinos"));
    loadApplicationFonts();
    QCOMPARE(FontFamilies::list(), before + QStringList("Latinos"));
}

void tst_ApplicationFonts::passesOverWhatIsNoFont()
{
    const QStringList before = FontFamilies::list();
    putUserFile("garbage.ttf", QByteArray(4096, '\x7f'));
    putUserFile("empty.ttf", QByteArray());
    putUserFile("torn.ttf", bundledFile("Lobster_400Regular.ttf").left(300));
    QVERIFY(QDir(userFolder()).mkpath("folder.ttf"));
#ifdef Q_OS_UNIX
    QCOMPARE(mkfifo(qPrintable(userFolder() + "/pipe.ttf"), 0600), 0);
    QVERIFY(QFile::link("/dev/zero", userFolder() + "/endless.ttf"));
    QVERIFY(QFile::link("/nowhere", userFolder() + "/dangling.ttf"));
#endif
    loadFontFolder(userFolder());
    QCOMPARE(FontFamilies::list(), before);
}

void tst_ApplicationFonts::bundledFacesCanBeShown_data()
{
    QTest::addColumn<QString>("family");
    const QStringList families = bundledFamilies();
    for (const QString &family : families)
        QTest::newRow(qPrintable(family)) << family;
}

void tst_ApplicationFonts::bundledFacesCanBeShown()
{
    REQUIRE_BUNDLED_FONTS();
    QFETCH(QString, family);
    QCOMPARE(QFontInfo(QFont(family)).family(), family);
}

void tst_ApplicationFonts::acceptsEveryBundledFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("the read me is no font") << QString();
    const QFileInfoList files = QDir(":/assets/fonts/").entryInfoList(QDir::Files);
    for (const QFileInfo &file : files)
        QTest::newRow(qPrintable(file.fileName())) << file.filePath();
}

void tst_ApplicationFonts::acceptsEveryBundledFile()
{
    QFETCH(QString, path);
    const QString source = path.isEmpty() ? QString(":/assets/licenses/README.txt") : path;
    const int id = QFontDatabase::addApplicationFont(source);
    QCOMPARE(id >= 0, !path.isEmpty());
    QCOMPARE(QFontDatabase::applicationFontFamilies(id).size(), path.isEmpty() ? 0 : 1);
}

QTEST_MAIN(tst_ApplicationFonts)
#include "tst_applicationfonts.moc"
