#include "render/boardrenderer.h"

#include "app/mainwindow.h"
#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "canvas/screenpicture.h"
#include "model/layoutfile.h"
#include "tests/support/apart.h"
#include "tests/support/boards.h"
#include "tests/support/files.h"
#include "tests/support/gif.h"
#include "tests/support/samples.h"
#include "tests/support/strictmain.h"

#include <QDir>
#include <QImageReader>
#include <QJsonDocument>
#include <QLibraryInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

// The batch renderer, as a function and as the real program on a machine without display.
class tst_BoardRenderer : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void answersNullOnSuccess();
    void rendersThePixelsOfTheEditor_data();
    void rendersThePixelsOfTheEditor();
    void rendersEverySampleAsTheEditorDoes_data() { addSamples(); }
    void rendersEverySampleAsTheEditorDoes();
    void showsPicturesAndFirstFrames();
    void choosesTheFormatBySuffix_data();
    void choosesTheFormatBySuffix();
    void leavesOutGridAndBorders();
    void replacesAnOlderPicture();
    void keepsTheOtherNamesOfAnOlderPicture();
    void paintsOnePixelForEachOfTheScreenOnAScaledDesktop();
    void needsNoThemeOfADesktop();
    void rendersNamesBeyondAscii();

    void refusesALayout_data();
    void refusesALayout();
    void rendersWhatIsMerelyOdd_data();
    void rendersWhatIsMerelyOdd();
    void rendersTenThousandItems();
    void refusesMoreItemsThanTheCanvasTakes();
    void refusesAFileThatIsNoRegularOne_data();
    void refusesAFileThatIsNoRegularOne();
    void refusesAPipe();
    void refusesAPictureName_data();
    void refusesAPictureName();
    void leavesAFileOfUnknownSuffixAlone();
    void noticesAFullDisk_data();
    void noticesAFullDisk();
    void fullDiskLeavesTheOldPictureWhole_data();
    void fullDiskLeavesTheOldPictureWhole();
    void writesIntoItsOwnOutput_data();
    void writesIntoItsOwnOutput();
    void keepsToOneLineForNamesWithLineEnds();
    void tellsNamesWithPlaceholdersAsTheyAre();
    void tellsItsUsage_data();
    void tellsItsUsage();

private:
    /// What the program left behind; a code of -1 for a crash or no end.
    struct Run {
        int code;
        QByteArray output;
        QByteArray errors;
    };

    static Run run(const QStringList &arguments, const QStringList &environment = {},
                   const QString &outputFile = {});
    Run render(const QByteArray &layout, const QString &picture = "board.png");
    void verifyFailure(const Run &run, const QByteArray &part) const;
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QStringList files() const
    {
        return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    QScopedPointer<QTemporaryDir> m_folder;
};

namespace
{
QByteArray bytesOf(const QJsonObject &document)
{
    return QJsonDocument(document).toJson();
}

QJsonObject colourfulBoard()
{
    return board({shapeObject("Bar", {10, 10, 60, 40}),
                  shapeObject("Disc", {60, 20, 90, 60}, {{"Shape", "Round Rectangle"}, {"Opacity", 50}}),
                  shapeObject("Line", {0, 90, 200, 8}, {{"Shape", "Horizontal Line"}})},
                 {{"Background Color", "#102030"}, {"Height", 100}, {"Width", 200}});
}

/// The picture that the editor exports of this file, its window being shown and an item being edited.
QImage editorPictureOf(const QString &layout)
{
    MainWindow window(nullptr);
    window.show();
    window.openFile(layout);
    window.canvas()->selectAllShortcutActivated();
    return pictureOf(*window.canvas());
}

bool hasPlatformTheme(const QString &name)
{
    return QFile::exists(QLibraryInfo::location(QLibraryInfo::PluginsPath) + "/platformthemes/" + name);
}

QImage comparable(const QImage &picture)
{
    return picture.convertToFormat(QImage::Format_ARGB32);
}
} // namespace

void tst_BoardRenderer::init()
{
    m_folder.reset(new QTemporaryDir);
    QVERIFY(m_folder->isValid());
}

tst_BoardRenderer::Run tst_BoardRenderer::run(const QStringList &arguments, const QStringList &environment,
                                              const QString &outputFile)
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_RUNTIME_DIR"})
        variables.remove(name);
    for (const QString &variable : environment)
        variables.insert(variable.section('=', 0, 0), variable.section('=', 1));
    QProcess process;
    process.setProcessEnvironment(variables);
    if (!outputFile.isEmpty())
        process.setStandardOutputFile(outputFile);
    process.start(BOARDWRIGHT_RENDER_PROGRAM, arguments);
    const bool ended = process.waitForFinished(90000) && process.exitStatus() == QProcess::NormalExit;
    return {ended ? process.exitCode() : -1, process.readAllStandardOutput(), process.readAllStandardError()};
}

tst_BoardRenderer::Run tst_BoardRenderer::render(const QByteArray &layout, const QString &picture)
{
    writeFile(path("board.lay"), layout);
    return run({path("board.lay"), path(picture)});
}

void tst_BoardRenderer::verifyFailure(const Run &run, const QByteArray &part) const
{
    QCOMPARE(run.code, 1);
    QCOMPARE(run.output, QByteArray());
    QVERIFY2(run.errors.startsWith("boardwright-render: "), run.errors.constData());
    QVERIFY2(run.errors.contains(part), run.errors.constData());
    QCOMPARE(run.errors.count('\n'), 1);
    QVERIFY(run.errors.endsWith('\n'));
}

void tst_BoardRenderer::answersNullOnSuccess()
{
    writeFile(path("board.lay"), bytesOf(colourfulBoard()));
    const QString error = BoardRenderer::render(path("board.lay"), path("board.png"));
    QVERIFY(error.isNull());
    QCOMPARE(QImage(path("board.png")).size(), QSize(200, 100));

    const QString missing = BoardRenderer::render(path("missing.lay"), path("other.png"));
    QCOMPARE(missing, QString("Cannot read %1: No such file or directory").arg(path("missing.lay")));
}

void tst_BoardRenderer::rendersThePixelsOfTheEditor_data()
{
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QByteArray>("background");

    QTest::newRow("png") << "board.png" << QByteArray("#102030");
    QTest::newRow("bmp") << "board.bmp" << QByteArray("#102030");
    QTest::newRow("no background") << "board.png" << QByteArray("no colour");
    QTest::newRow("transparent background") << "board.png" << QByteArray("transparent");
    QTest::newRow("translucent background") << "board.png" << QByteArray("#80ff0000");
}

void tst_BoardRenderer::rendersThePixelsOfTheEditor()
{
    QFETCH(QString, picture);
    QFETCH(QByteArray, background);

    const QByteArray layout = bytesOf(colourfulBoard()).replace("#102030", background);
    const Run result = render(layout, picture);
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.code, 0);
    const QImage rendered(path(picture));
    QCOMPARE(rendered.size(), QSize(200, 100));
    QCOMPARE(comparable(rendered), comparable(editorPictureOf(path("board.lay"))));
}

void tst_BoardRenderer::rendersEverySampleAsTheEditorDoes()
{
    QFETCH(QString, sample);

    // The samples name their pictures from here.
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(BOARDWRIGHT_SOURCE_DIR));
    const Run result = run({sample, path("sample.png")});
    const QImage shown = editorPictureOf(sample);
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.code, 0);
    QCOMPARE(comparable(QImage(path("sample.png"))), comparable(shown));
}

void tst_BoardRenderer::showsPicturesAndFirstFrames()
{
    QImage yellow(10, 10, QImage::Format_RGB32);
    yellow.fill(Qt::yellow);
    QVERIFY(yellow.save(path("logo.png")));
    QVERIFY(writeFile(path("movie.gif"), Gif{{10, 10}, {Qt::red, Qt::green}}.bytes()));
    const QJsonObject still = {
        {"Type", "Image Viewer"}, {"Path", "logo.png"}, {"X", 0}, {"Y", 0}, {"W", 30}, {"H", 20}};
    const QJsonObject movie = {
        {"Type", "Animation Viewer"}, {"Path", "./movie.gif"}, {"X", 30}, {"Y", 0}, {"W", 30}, {"H", 20}};
    const QJsonObject missing = {
        {"Type", "Image Viewer"}, {"Path", "gone.png"}, {"X", 60}, {"Y", 0}, {"W", 30}, {"H", 20}};
    // Relative paths start at the working directory, not at the layout.
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder->path()));
    const Run result = render(bytesOf(board({still, movie, missing})));
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.code, 0);
    const QImage picture(path("board.png"));
    QCOMPARE(picture.pixelColor(29, 19), QColor(Qt::yellow));
    QCOMPARE(picture.pixelColor(30, 0), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(59, 19), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(60, 0), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(30, 20), QColor(Qt::black));
}

void tst_BoardRenderer::choosesTheFormatBySuffix_data()
{
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QByteArray>("format");

    QTest::newRow("png") << "board.png" << QByteArray("png");
    QTest::newRow("jpg") << "board.jpg" << QByteArray("jpeg");
    QTest::newRow("jpeg") << "board.jpeg" << QByteArray("jpeg");
    QTest::newRow("bmp") << "board.bmp" << QByteArray("bmp");
    QTest::newRow("upper case") << "BOARD.JPG" << QByteArray("jpeg");
    QTest::newRow("two suffixes") << "board.lay.bmp" << QByteArray("bmp");
}

void tst_BoardRenderer::choosesTheFormatBySuffix()
{
    QFETCH(QString, picture);
    QFETCH(QByteArray, format);

    QCOMPARE(render(bytesOf(colourfulBoard()), picture).code, 0);
    QCOMPARE(QImageReader::imageFormat(path(picture)), format);
    QCOMPARE(QImage(path(picture)).size(), QSize(200, 100));
}

void tst_BoardRenderer::leavesOutGridAndBorders()
{
    QCOMPARE(render(bytesOf(board({}))).code, 0);
    QImage black(800, 400, QImage::Format_ARGB32);
    black.fill(Qt::black);
    QCOMPARE(comparable(QImage(path("board.png"))), black);
}

void tst_BoardRenderer::replacesAnOlderPicture()
{
    writeFile(path("board.png"), QByteArray(100000, 'x'));
    QCOMPARE(render(bytesOf(colourfulBoard())).code, 0);
    const QByteArray first = readFile(path("board.png"));
    QCOMPARE(render(bytesOf(colourfulBoard()), "other.png").code, 0);
    QCOMPARE(readFile(path("other.png")), first);
}

void tst_BoardRenderer::keepsTheOtherNamesOfAnOlderPicture()
{
    writeFile(path("board.png"), QByteArray(100000, 'x'));
    QCOMPARE(::link(qPrintable(path("board.png")), qPrintable(path("other.png"))), 0);
    QCOMPARE(render(bytesOf(colourfulBoard())).code, 0);
    QCOMPARE(QImage(path("other.png")), QImage(path("board.png")));
    QCOMPARE(QImage(path("other.png")).size(), QSize(200, 100));
}

void tst_BoardRenderer::paintsOnePixelForEachOfTheScreenOnAScaledDesktop()
{
    writeFile(path("board.lay"), bytesOf(colourfulBoard()));
    QCOMPARE(run({path("board.lay"), path("plain.png")}).code, 0);
    QCOMPARE(run({path("board.lay"), path("scaled.png")}, {"QT_SCALE_FACTOR=2"}).code, 0);
    QCOMPARE(QImage(path("scaled.png")), QImage(path("plain.png")));
}

void tst_BoardRenderer::needsNoThemeOfADesktop()
{
    if (!hasPlatformTheme("libqgtk3.so"))
        QSKIP("the theme that asks for a display is not installed");
    writeFile(path("board.lay"), bytesOf(colourfulBoard()));
    const Run result = run({path("board.lay"), path("board.png")}, {"QT_QPA_PLATFORMTHEME=gtk3"});
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.code, 0);
}

void tst_BoardRenderer::rendersNamesBeyondAscii()
{
    writeFile(path("Größe 日本.lay"), bytesOf(colourfulBoard()));
    const Run result = run({path("Größe 日本.lay"), path("Größe 日本.png")}, {"LC_ALL=C.UTF-8"});
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(QImage(path("Größe 日本.png")).size(), QSize(200, 100));
}

// ---- Bad input

void tst_BoardRenderer::refusesALayout_data()
{
    QTest::addColumn<QByteArray>("layout");
    QTest::addColumn<QByteArray>("part");

    QTest::newRow("empty file") << QByteArray() << QByteArray("illegal value");
    QTest::newRow("no JSON") << QByteArray("scoreboard") << QByteArray("illegal value");
    QTest::newRow("cut short") << bytesOf(colourfulBoard()).left(100) << QByteArray("Cannot read");
    QTest::newRow("nested too deep") << QByteArray(1000000, '[') << QByteArray("too deeply nested");
    QTest::newRow("megabytes of garbage")
        << QByteArray(200 * 1024 * 1024, 'x') << QByteArray("illegal value");
    QTest::newRow("array") << QByteArray("[]") << QByteArray("0 x 0");
    QTest::newRow("no layout") << QByteArray("{\"name\": \"board\"}") << QByteArray("0 x 0");
    QTest::newRow("no height") << QByteArray("{\"parameters\": {\"Width\": 800}}") << QByteArray("800 x 0");
    QTest::newRow("strings where numbers belong")
        << QByteArray("{\"parameters\": {\"Width\": \"800\", \"Height\": \"400\"}}") << QByteArray("0 x 0");
    QTest::newRow("negative size") << QByteArray("{\"parameters\": {\"Width\": -1, \"Height\": -1}}")
                                   << QByteArray("0 x 0");
    QTest::newRow("beyond any picture") << QByteArray("{\"parameters\": {\"Width\": 1e9, \"Height\": 1e9}}")
                                        << QByteArray("16777215 x 16777215");
    QTest::newRow("beyond any integer")
        << QByteArray("{\"parameters\": {\"Width\": 1e308, \"Height\": 1e308}}") << QByteArray("0 x 0");
}

void tst_BoardRenderer::refusesALayout()
{
    QFETCH(QByteArray, layout);
    QFETCH(QByteArray, part);

    verifyFailure(render(layout), part);
    QCOMPARE(files(), QStringList("board.lay"));
}

void tst_BoardRenderer::rendersWhatIsMerelyOdd_data()
{
    QTest::addColumn<QByteArray>("items");

    QTest::newRow("items that are no array") << QByteArray("{\"Type\": \"Shape\"}");
    QTest::newRow("items that are no objects") << QByteArray("[1, null, \"Shape\", [[]], true, {}]");
    QTest::newRow("kinds that do not exist") << QByteArray("[{\"Type\": \"Rocket\"}, {\"Type\": 7}]");
    QTest::newRow("kind that is not read from files") << QByteArray("[{\"Type\": \"Video Viewer\"}]");
    QTest::newRow("shape without parameters") << QByteArray("[{\"Type\": \"Shape\"}]");
    QTest::newRow("shape with strings for numbers")
        << QByteArray("[{\"Type\": \"Shape\", \"X\": \"a\", \"W\": \"b\", \"Line Width\": \"c\"}]");
    QTest::newRow("shape beyond any widget")
        << QByteArray("[{\"Type\": \"Shape\", \"X\": 1e308, \"Y\": -1e9, \"W\": 1e9, \"H\": -5}]");
    QTest::newRow("line wider than any board") << QByteArray(
        "[{\"Type\": \"Shape\", \"W\": 9, \"H\": 9, \"Border\": true, \"Line Width\": 2147483647}]");
}

void tst_BoardRenderer::rendersWhatIsMerelyOdd()
{
    QFETCH(QByteArray, items);

    const Run result = render("{\"items\": " + items + ", \"parameters\": {\"Width\": 64, \"Height\": 32}}");
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.code, 0);
    QCOMPARE(QImage(path("board.png")).size(), QSize(64, 32));
}

void tst_BoardRenderer::rendersTenThousandItems()
{
    const Run result = render(bytesOf(board(manyShapes(10000))));
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.code, 0);
    const QImage picture(path("board.png"));
    QCOMPARE(picture.size(), QSize(800, 400));
    QVERIFY(picture.pixelColor(5, 5) != QColor(Qt::black));
}

void tst_BoardRenderer::refusesMoreItemsThanTheCanvasTakes()
{
    QJsonArray items;
    for (int index = 0; index <= LayoutFile::maximumItems; ++index)
        items.append(QJsonObject());
    verifyFailure(render(bytesOf(board(items))), "more than 16384 items");
}

void tst_BoardRenderer::refusesAFileThatIsNoRegularOne_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("part");

    QTest::newRow("missing file") << "missing.lay" << QByteArray("No such file or directory");
    QTest::newRow("folder") << "." << QByteArray("directory");
    QTest::newRow("no name") << "" << QByteArray("Cannot read");
    QTest::newRow("endless device") << "/dev/zero" << QByteArray("Cannot read");
    QTest::newRow("empty device") << "/dev/null" << QByteArray("Cannot read");
}

void tst_BoardRenderer::refusesAFileThatIsNoRegularOne()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, part);

    const QString layout = name.isEmpty() || name.startsWith('/') ? name : path(name);
    verifyFailure(run({layout, path("board.png")}), part);
    QCOMPARE(files(), QStringList());
}

void tst_BoardRenderer::refusesAPipe()
{
    // Nobody ever writes into it.
    QCOMPARE(mkfifo(qPrintable(path("pipe.lay")), 0600), 0);
    verifyFailure(run({path("pipe.lay"), path("board.png")}), "Cannot read");
}

void tst_BoardRenderer::refusesAPictureName_data()
{
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QByteArray>("part");

    QTest::newRow("no suffix") << "board" << QByteArray("ends in .png");
    QTest::newRow("no picture's suffix") << "board.txt" << QByteArray("ends in .png");
    QTest::newRow("folder is missing") << "missing/board.png" << QByteArray("No such file or directory");
    QTest::newRow("is a folder") << "folder.png" << QByteArray("directory");
}

void tst_BoardRenderer::refusesAPictureName()
{
    QFETCH(QString, picture);
    QFETCH(QByteArray, part);

    QVERIFY(QDir(m_folder->path()).mkdir("folder.png"));
    verifyFailure(render(bytesOf(colourfulBoard()), picture), part);
    QCOMPARE(files(), QStringList({"board.lay", "folder.png"}));
}

void tst_BoardRenderer::leavesAFileOfUnknownSuffixAlone()
{
    writeFile(path("other.lay"), "a layout");
    verifyFailure(render(bytesOf(colourfulBoard()), "other.lay"), "Cannot write");
    QCOMPARE(readFile(path("other.lay")), QByteArray("a layout"));
}

void tst_BoardRenderer::noticesAFullDisk_data()
{
    QTest::addColumn<QString>("picture");

    QTest::newRow("png") << "full.png";
    QTest::newRow("jpeg") << "full.jpg";
    QTest::newRow("bmp") << "full.bmp";
}

void tst_BoardRenderer::noticesAFullDisk()
{
    QFETCH(QString, picture);

    if (!QFile::exists("/dev/full"))
        QSKIP("no device that is always full");
    QVERIFY(QFile::link("/dev/full", path(picture)));
    verifyFailure(render(bytesOf(colourfulBoard()), picture), "No space left on device");
}

void tst_BoardRenderer::fullDiskLeavesTheOldPictureWhole_data()
{
    noticesAFullDisk_data();
}

void tst_BoardRenderer::fullDiskLeavesTheOldPictureWhole()
{
    QFETCH(QString, picture);

    writeFile(path("board.lay"), bytesOf(colourfulBoard()));
    QVERIFY(writeFile(path(picture), "the old picture"));
    const QStringList before = files();
    const FullDisk disk(256);
    verifyFailure(run({path("board.lay"), path(picture)}), "File too large");
    QCOMPARE(readFile(path(picture)), QByteArray("the old picture"));
    QCOMPARE(files(), before);
}

void tst_BoardRenderer::writesIntoItsOwnOutput_data()
{
    QTest::addColumn<bool>("isFile");

    QTest::newRow("pipe") << false;
    QTest::newRow("file") << true;
}

void tst_BoardRenderer::writesIntoItsOwnOutput()
{
    QFETCH(bool, isFile);

    QCOMPARE(render(bytesOf(colourfulBoard()), "plain.png").code, 0);
    QVERIFY(QFile::link("/dev/stdout", path("out.png")));
    QFile output(path("output"));
    QVERIFY(output.open(QIODevice::ReadWrite));
    const Run result = run({path("board.lay"), path("out.png")}, {}, isFile ? output.fileName() : QString());
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.code, 0);
    // Whoever has the file open already finds the picture in it.
    QCOMPARE(isFile ? output.readAll() : result.output, readFile(path("plain.png")));
}

void tst_BoardRenderer::keepsToOneLineForNamesWithLineEnds()
{
    verifyFailure(run({path("two\nlines\r.lay"), path("board.png")}), "two?lines?.lay");
}

void tst_BoardRenderer::tellsNamesWithPlaceholdersAsTheyAre()
{
    writeFile(path("%2 of %1.lay"), "{}");
    verifyFailure(run({path("%2 of %1.lay"), path("board.png")}),
                  "%2 of %1.lay: no picture can be 0 x 0 pixels.");
}

void tst_BoardRenderer::tellsItsUsage_data()
{
    QTest::addColumn<QStringList>("arguments");

    QTest::newRow("nothing") << QStringList();
    QTest::newRow("layout only") << QStringList("board.lay");
    QTest::newRow("too many") << QStringList({"board.lay", "board.png", "board.bmp"});
}

void tst_BoardRenderer::tellsItsUsage()
{
    QFETCH(QStringList, arguments);

    verifyFailure(run(arguments), "usage: boardwright-render LAYOUT.lay PICTURE.png");
}

BOARDWRIGHT_TEST_MAIN(tst_BoardRenderer)
#include "tst_boardrenderer.moc"
