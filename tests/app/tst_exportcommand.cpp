#include "tests/app/commandtest.h"
#include "tests/support/apart.h"

#include <QDir>
#include <QImageReader>

// The picture of the board.
class tst_ExportCommand : public CommandTest
{
    Q_OBJECT

private slots:
    void exportAsksForAnImageFile();
    void exportWritesThePicture_data();
    void exportWritesThePicture();
    void exportLeavesOutSelectionAndGrid();
    void exportDoesNothingWhenCancelled();
    void exportFailsSilently_data();
    void exportFailsSilently();
    void fullDiskLeavesTheOldPictureWhole_data();
    void fullDiskLeavesTheOldPictureWhole();
};

void tst_ExportCommand::exportAsksForAnImageFile()
{
    DialogAnswers answers;
    answers.choose(path("board.png"));
    expectLog("exportActionTriggered");
    triggerExport();
    QVERIFY(answers.areUsedUp());
    const SeenDialog dialog = answers.seen().first();
    QCOMPARE(dialog.title, QString("Export"));
    QCOMPARE(dialog.nameFilters, QStringList("Image file (*.png *.jpg *.jpeg *.bmp)"));
    QCOMPARE(dialog.directory, QDir::currentPath());
    QCOMPARE(dialog.acceptMode, QFileDialog::AcceptSave);
    QCOMPARE(window().currentPath(), LayoutFile::emptyTemplate());
}

void tst_ExportCommand::exportWritesThePicture_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("format");

    QTest::newRow("png") << "board.png" << QByteArray("png");
    QTest::newRow("jpg") << "board.jpg" << QByteArray("jpeg");
    QTest::newRow("jpeg") << "board.jpeg" << QByteArray("jpeg");
    QTest::newRow("bmp") << "board.bmp" << QByteArray("bmp");
    QTest::newRow("upper case") << "board.PNG" << QByteArray("png");
}

void tst_ExportCommand::exportWritesThePicture()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, format);

    openSmallBoard();
    DialogAnswers answers;
    answers.choose(path(name));
    triggerExport();
    QVERIFY(answers.areUsedUp());
    QCOMPARE(QImageReader::imageFormat(path(name)), format);
    const QImage picture(path(name));
    QCOMPARE(picture.size(), QSize(200, 100));
    // Away from edges, since JPEG blurs them.
    QVERIFY(qAbs(picture.pixelColor(150, 50).blue() - 0x30) < 4);
    QVERIFY(!canvas().items().first()->isInRenderMode());
}

void tst_ExportCommand::exportLeavesOutSelectionAndGrid()
{
    openSmallBoard();
    canvas().items().at(1)->activate();
    canvas().items().at(1)->select();
    const QImage shown = canvas().grab().toImage();
    DialogAnswers answers;
    answers.choose(path("edited.png"));
    triggerExport();
    QVERIFY(answers.areUsedUp());
    const QImage picture(path("edited.png"));
    QCOMPARE(picture.pixelColor(0, 0), QColor(0x10, 0x20, 0x30));
    QVERIFY(shown.pixelColor(0, 0) != QColor(0x10, 0x20, 0x30));
    // The handle in the frame's corner covers the border of the shape.
    QCOMPARE(shown.pixelColor(31, 21), QColor(0, 255, 0));
    QCOMPARE(picture.pixelColor(31, 21).name(), QString("#ffff00"));
    // The item is the edited one again as soon as the window has got the focus back.
    window().activateWindow();
    QTRY_COMPARE(canvas().grab().toImage(), shown);
}

void tst_ExportCommand::exportDoesNothingWhenCancelled()
{
    DialogAnswers answers;
    answers.press("Cancel");
    expectLog("exportActionTriggered");
    triggerExport();
    QVERIFY(answers.areUsedUp());
    QCOMPARE(files(), QStringList());
}

void tst_ExportCommand::exportFailsSilently_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("length");

    QTest::newRow("no suffix") << "board" << 100;
    QTest::newRow("no format of this suffix") << "board.lay" << 100;
    QTest::newRow("canvas without area") << "board.png" << 0;
    QTest::newRow("canvas beyond any picture") << "board.png" << 1000000000;
}

void tst_ExportCommand::exportFailsSilently()
{
    QFETCH(QString, name);
    QFETCH(int, length);

    // A file would not do: the bar of the screen keeps what is loaded within its limits.
    canvas().setWidgth(length);
    canvas().setHeight(length);
    DialogAnswers answers;
    answers.choose(path(name));
    triggerExport();
    QVERIFY(answers.areUsedUp());
    QVERIFY(!QFile::exists(path(name)));
}

void tst_ExportCommand::fullDiskLeavesTheOldPictureWhole_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("png") << "board.png";
    QTest::newRow("jpeg") << "board.jpg";
    QTest::newRow("bmp") << "board.bmp";
}

void tst_ExportCommand::fullDiskLeavesTheOldPictureWhole()
{
    QFETCH(QString, name);

    openSmallBoard();
    QVERIFY(writeFile(path(name), "the old picture"));
    const QStringList before = files();
    DialogAnswers answers;
    answers.choose(path(name)).press("Yes");
    {
        const FullDisk disk(256);
        triggerExport();
    }
    QVERIFY(answers.areUsedUp());
    QCOMPARE(readFile(path(name)), QByteArray("the old picture"));
    QCOMPARE(files(), before);
}

BOARDWRIGHT_TEST_MAIN(tst_ExportCommand)
#include "tst_exportcommand.moc"
