#include "model/boardfonts.h"
#include "tests/app/exportprocess.h"
#include "tests/app/lettersboard.h"
#include "tests/model/bundledfonts.h"
#include "tests/support/files.h"
#include "tests/support/strictmain.h"

#include <QDir>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>

/// One board, seen, exported and rendered on desktops of all kinds.
class tst_SamePicture : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void isTheSameOnADesktop_data();
    void isTheSameOnADesktop();
    void windowShowsThePicture();
    void nameOfAUsersFontHarmsNoOther_data();
    void nameOfAUsersFontHarmsNoOther();

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString rules(const QString &name, const QString &edits);
    QString namesakes();
    QByteArray rendered(const QStringList &variables);

    QTemporaryDir m_folder;
    QByteArray m_rendered;
    ExportProcess::Result m_ordinary;
};

namespace
{
/// A rule that wins over all others, for fonts asked for and fonts found.
QString edit(const QString &property, const QString &value)
{
    QString rules;
    for (const char *target : {"pattern", "font"})
        rules += QString("<match target=\"%1\"><edit name=\"%2\" mode=\"assign\">%3</edit></match>")
                     .arg(target, property, value);
    return rules;
}

const char *const bundledFonts = ":/assets/fonts/";

QString bundledFile()
{
    return QDir(bundledFonts).entryList({"*Bangers*"}, QDir::Files).value(0);
}

/// Names in a font file have two bytes for each letter; the new one has as many letters as the old.
QByteArray bundledFontNamed(const QString &family)
{
    const auto spelled = [](const QString &name) {
        QByteArray bytes;
        for (const QChar letter : name)
            bytes.append(char(letter.row())).append(char(letter.cell()));
        return bytes;
    };
    return readFile(bundledFonts + bundledFile()).replace(spelled("Bangers"), spelled(family));
}
} // namespace

QString tst_SamePicture::rules(const QString &name, const QString &edits)
{
    const QString file = path(name + ".conf");
    const QString whole = "<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\"><fontconfig>"
                          "<include ignore_missing=\"yes\">/etc/fonts/fonts.conf</include>" +
                          edits + "</fontconfig>";
    return writeFile(file, whole.toUtf8()) ? "FONTCONFIG_FILE=" + file : QString();
}

/// A desktop that has another font under the names of some that the program brings along.
QString tst_SamePicture::namesakes()
{
    QDir(m_folder.path()).mkpath("fonts");
    if (!QFile::copy(bundledFonts + bundledFile(), path("fonts/" + bundledFile())))
        return {};
    // A memory of its own: others shall not take these names for those of the file.
    const QString whole = "<fontconfig><dir>" + path("fonts") + "</dir><cachedir>" + path("cache") +
                          "</cachedir><match target=\"scan\"><edit name=\"family\" mode=\"assign\">"
                          "<string>OSWALD</string><string>Arimo</string><string>Exo 2 Black</string>"
                          "</edit></match></fontconfig>";
    return writeFile(path("namesakes.conf"), whole.toUtf8()) ? "FONTCONFIG_FILE=" + path("namesakes.conf")
                                                             : QString();
}

QByteArray tst_SamePicture::rendered(const QStringList &variables)
{
    QFile::remove(path("rendered.png"));
    QProcess process;
    process.setEnvironment(QProcess::systemEnvironment() + variables);
    // A folder "fonts" in there is the user's.
    process.setWorkingDirectory(path("work"));
    process.start(BOARDWRIGHT_RENDER_PROGRAM, {path("board.lay"), path("rendered.png")});
    process.waitForFinished(90000);
    return readFile(path("rendered.png"));
}

void tst_SamePicture::initTestCase()
{
    REQUIRE_BUNDLED_FONTS();
    QVERIFY(writeFile(path("board.lay"), QJsonDocument(lettersBoard()).toJson()));
    QVERIFY(QDir(m_folder.path()).mkpath("work"));
    m_rendered = rendered({});
    m_ordinary = ExportProcess::run(path("board.lay"), {});
    QVERIFY2(!m_ordinary.lines.isEmpty(), qPrintable(m_ordinary.log));
    QCOMPARE(m_ordinary.first, QImage::fromData(m_rendered).convertToFormat(QImage::Format_RGB32));
    QCOMPARE(m_ordinary.second, m_ordinary.first);
}

void tst_SamePicture::isTheSameOnADesktop_data()
{
    QTest::addColumn<QStringList>("variables");

    QTest::newRow("of 120 dots per inch") << QStringList{"QT_FONT_DPI=120"};
    QTest::newRow("of 144 dots per inch") << QStringList{"QT_FONT_DPI=144"};
    for (const char *scale : {"1.25", "1.5", "2"})
        QTest::addRow("scaled by %s", scale) << QStringList{QString("QT_SCALE_FACTOR=") + scale};
    QTest::newRow("with a scaled screen") << QStringList{"QT_SCREEN_SCALE_FACTORS=1.5"};
    QTest::newRow("with twice the pixels") << QStringList{"QT_DEVICE_PIXEL_RATIO=2"};
    QTest::newRow("without memory for letters") << QStringList{"QT_MAX_CACHED_GLYPH_SIZE=1"};
    QTest::newRow("with memory for large letters") << QStringList{"QT_MAX_CACHED_GLYPH_SIZE=4096"};
    QTest::newRow("with thicker stems") << QStringList{"FREETYPE_PROPERTIES=autofitter:no-stem-darkening=0"};
    QTest::newRow("without made up bold letters") << QStringList{"QT_NO_SYNTHESIZED_BOLD=1"};
    QTest::newRow("without made up slanted letters") << QStringList{"QT_NO_SYNTHESIZED_ITALIC=1"};
    QTest::newRow("with the toolkit's own joining") << QStringList{"QT_HARFBUZZ=old"};
    QTest::newRow("with hard edges") << QStringList{rules("edges", edit("antialias", "<bool>false</bool>"))};
    QTest::newRow("with coloured edges") << QStringList{rules(
        "colours", edit("rgba", "<const>rgb</const>") + edit("lcdfilter", "<const>lcddefault</const>"))};
    QTest::newRow("with full hinting") << QStringList{
        rules("full", edit("hinting", "<bool>true</bool>") + edit("hintstyle", "<const>hintfull</const>"))};
    QTest::newRow("with hinting of its own") << QStringList{
        rules("auto", edit("autohint", "<bool>true</bool>") + edit("hintstyle", "<const>hintfull</const>"))};
    QTest::newRow("without hinting") << QStringList{
        rules("none", edit("hinting", "<bool>false</bool>") + edit("hintstyle", "<const>hintnone</const>"))};
    const QString empty = path("empty.conf");
    QVERIFY(writeFile(empty, "<fontconfig></fontconfig>"));
    QTest::newRow("without rules and fonts") << QStringList{"FONTCONFIG_FILE=" + empty};
    const QString others = namesakes();
    QVERIFY(!others.isEmpty());
    QTest::newRow("with other fonts of the same names") << QStringList{others};
    QTest::newRow("in another language") << QStringList{"LC_ALL=C", "LANGUAGE=ar"};
    QTest::newRow("without a home") << QStringList{"HOME=/nonexistent"};
}

void tst_SamePicture::isTheSameOnADesktop()
{
    QFETCH(QStringList, variables);
    QVERIFY(rendered(variables) == m_rendered);
    const ExportProcess::Result result = ExportProcess::run(path("board.lay"), variables);
    QVERIFY2(!result.lines.isEmpty(), qPrintable(result.log));
    QCOMPARE(result.first, m_ordinary.first);
    QCOMPARE(result.second, m_ordinary.first);
    QCOMPARE(result.lines, m_ordinary.lines);
}

void tst_SamePicture::windowShowsThePicture()
{
    QCOMPARE(m_ordinary.window, m_ordinary.first);
}

void tst_SamePicture::nameOfAUsersFontHarmsNoOther_data()
{
    QTest::addColumn<QString>("family");
    QTest::newRow("signs of markup") << "B<&\"'>s";
    QTest::newRow("control character") << "B\x01ngers";
    QTest::newRow("blanks") << "       ";
}

void tst_SamePicture::nameOfAUsersFontHarmsNoOther()
{
    QFETCH(QString, family);
    QVERIFY(QDir(m_folder.path()).mkpath("work/fonts"));
    QVERIFY(writeFile(path("work/fonts/user.ttf"), bundledFontNamed(family)));
    QVERIFY(rendered({rules("edges", edit("antialias", "<bool>false</bool>"))}) == m_rendered);
    QVERIFY(QDir(path("work/fonts")).removeRecursively());
}

BOARDWRIGHT_EXPORT_TEST_MAIN(tst_SamePicture)
#include "tst_samepicture.moc"
