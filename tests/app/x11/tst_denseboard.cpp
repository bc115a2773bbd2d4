#include "tests/app/exportprocess.h"
#include "tests/app/lettersboard.h"
#include "tests/model/bundledfonts.h"
#include "tests/support/files.h"
#include "tests/support/strictmain.h"

#include <QJsonDocument>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>

/// One board on X desktops that want letters of other sizes and edges.
class tst_DenseBoard : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void isSeenAndExportedAsItIsRendered_data();
    void isSeenAndExportedAsItIsRendered();
    void cleanupTestCase();

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    bool setResources(const QString &resources) const;

    QTemporaryDir m_folder;
    QImage m_rendered;
};

bool tst_DenseBoard::setResources(const QString &resources) const
{
    return QProcess::execute("xprop", {"-root", "-f", "RESOURCE_MANAGER", "8s", "-set", "RESOURCE_MANAGER",
                                       resources}) == 0;
}

void tst_DenseBoard::initTestCase()
{
    REQUIRE_BUNDLED_FONTS();
    QVERIFY(writeFile(path("board.lay"), QJsonDocument(lettersBoard()).toJson()));
    QCOMPARE(QProcess::execute(BOARDWRIGHT_RENDER_PROGRAM, {path("board.lay"), path("board.png")}), 0);
    m_rendered = QImage(path("board.png")).convertToFormat(QImage::Format_RGB32);
    QCOMPARE(m_rendered.size(), QSize(800, 400));
}

void tst_DenseBoard::cleanupTestCase()
{
    setResources(QString());
}

void tst_DenseBoard::isSeenAndExportedAsItIsRendered_data()
{
    QTest::addColumn<QString>("resources");

    QTest::newRow("ordinary") << "Xft.dpi: 96\n";
    QTest::newRow("120 dots per inch") << "Xft.dpi: 120\n";
    QTest::newRow("144 dots per inch") << "Xft.dpi: 144\n";
    QTest::newRow("hard edges") << "Xft.dpi: 130\nXft.antialias: 0\n";
    QTest::newRow("coloured edges") << "Xft.rgba: rgb\nXft.antialias: 1\n";
    QTest::newRow("full hinting") << "Xft.hinting: 1\nXft.hintstyle: hintfull\n";
}

void tst_DenseBoard::isSeenAndExportedAsItIsRendered()
{
    QFETCH(QString, resources);
    QVERIFY(setResources(resources));
    const ExportProcess::Result result = ExportProcess::run(path("board.lay"), {});
    QVERIFY2(!result.lines.isEmpty(), qPrintable(result.log));
    QCOMPARE(result.first, m_rendered);
    // A display of fewer colours, or of more, shows others.
    if (QGuiApplication::primaryScreen()->depth() == 24)
        QCOMPARE(result.window, m_rendered);
}

BOARDWRIGHT_EXPORT_TEST_MAIN(tst_DenseBoard)
#include "tst_denseboard.moc"
