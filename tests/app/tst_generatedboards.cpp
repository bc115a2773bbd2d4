#include "app/mainwindow.h"
#include "canvas/screen.h"
#include "canvas/screenpicture.h"
#include "pictures/boardpicture.h"
#include "tests/app/generatedboard.h"
#include "tests/support/files.h"
#include "tests/support/strictmain.h"

#include <QDir>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QProcess>
#include <QTemporaryDir>

/// What the editor exports of a board is what is painted of it without a widget. BOARDWRIGHT_BOARDS says how
/// many boards are compared.
class tst_GeneratedBoards : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void isPaintedAsItIsExported();
    void isRenderedAsItIsPainted();

private:
    QStringList m_media;
};

void tst_GeneratedBoards::initTestCase()
{
    QLoggingCategory::setFilterRules("default.debug=false");
    tolerateWarnings("Point size <= 0");
    const QDir folder(BOARDWRIGHT_SOURCE_DIR "/samples/media");
    const QStringList names = folder.entryList(QDir::Files);
    for (const QString &name : names)
        m_media.append(folder.filePath(name));
}

void tst_GeneratedBoards::isPaintedAsItIsExported()
{
    bool isNumber = false;
    const int wanted = qEnvironmentVariableIntValue("BOARDWRIGHT_BOARDS", &isNumber);
    MainWindow window(nullptr);
    for (int number = 0; number < (isNumber ? wanted : 100); ++number) {
        const QJsonObject layout = generatedBoard(quint32(number), m_media);
        window.canvas()->loadLayout(layout);
        const QImage exported = pictureOf(*window.canvas());
        QVERIFY2(
            BoardPicture::of(layout) == exported,
            qPrintable(QString("board %1: %2").arg(number).arg(QString(QJsonDocument(layout).toJson()))));
    }
}

void tst_GeneratedBoards::isRenderedAsItIsPainted()
{
    // The renderer opens the fonts of each board alone.
    const MainWindow loadsAllFonts(nullptr);
    const QTemporaryDir folder;
    for (quint32 number = 1000; number < 1030; ++number) {
        const QJsonObject layout = generatedBoard(number, m_media);
        QVERIFY(writeFile(folder.filePath("board.lay"), QJsonDocument(layout).toJson()));
        QCOMPARE(QProcess::execute(BOARDWRIGHT_RENDER_PROGRAM,
                                   {folder.filePath("board.lay"), folder.filePath("board.png")}),
                 0);
        const QImage painted = BoardPicture::of(layout).convertToFormat(QImage::Format_ARGB32);
        QVERIFY2(QImage(folder.filePath("board.png")).convertToFormat(QImage::Format_ARGB32) == painted,
                 qPrintable(QString::number(number)));
    }
}

BOARDWRIGHT_TEST_MAIN(tst_GeneratedBoards)
#include "tst_generatedboards.moc"
