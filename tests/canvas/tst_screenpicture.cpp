#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "canvas/screenpicture.h"
#include "pictures/picturefile.h"
#include "tests/canvas/shownscreen.h"
#include "tests/support/boards.h"
#include "tests/support/strictmain.h"

#include <QImage>
#include <QTemporaryDir>

class tst_ScreenPicture : public QObject
{
    Q_OBJECT

private slots:
    void hasTheScreensSize_data();
    void hasTheScreensSize();
    void isTheBackgroundWithoutGrid();
    void showsNoEditingBorder();
    void isTheSameInViewAndNeverShown();
    void stacksItemsInLayerOrder();
    void keepsATranslucentBackground();
    void putsTheScreenBackIntoEditMode();
    void isNullWhereNoPictureCanBe_data();
    void isNullWhereNoPictureCanBe();
    void isSavedInTheFormatOfTheSuffix_data();
    void isSavedInTheFormatOfTheSuffix();
    void leavesTheFileAloneWhenItCannotSave_data();
    void leavesTheFileAloneWhenItCannotSave();
    void saysWhyAFileCannotBeWritten();
};

namespace
{
QJsonObject sized(int width, int height, const QString &color = "#102030")
{
    return {{"Background Color", color}, {"Width", width}, {"Height", height}};
}

QJsonArray twoShapes()
{
    return {shapeObject("Below", QRect(10, 10, 100, 60)),
            shapeObject("Above", QRect(50, 30, 100, 60), {{"Color", "blue"}, {"Opacity", 100}})};
}

QImage pictureOfLayout(const QJsonObject &layout)
{
    Screen screen;
    screen.loadLayout(layout);
    return pictureOf(screen);
}
} // namespace

void tst_ScreenPicture::hasTheScreensSize_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("start") << 800 << 400;
    QTest::newRow("perimeter strip") << 1920 << 96;
    QTest::newRow("one pixel") << 1 << 1;
    QTest::newRow("as wide as the painter goes") << 32767 << 2;
}

void tst_ScreenPicture::hasTheScreensSize()
{
    QFETCH(int, width);
    QFETCH(int, height);
    const QImage picture = pictureOfLayout(board({}, sized(width, height)));
    QCOMPARE(picture.size(), QSize(width, height));
    QCOMPARE(picture.devicePixelRatio(), 1.0);
    QCOMPARE(picture.pixelColor(width - 1, height - 1), QColor(0x10, 0x20, 0x30));
}

void tst_ScreenPicture::isTheBackgroundWithoutGrid()
{
    QImage plain(100, 50, QImage::Format_RGB32);
    plain.fill(QColor(0x10, 0x20, 0x30));
    QCOMPARE(pictureOfLayout(board({}, sized(100, 50))).convertToFormat(QImage::Format_RGB32), plain);
}

void tst_ScreenPicture::showsNoEditingBorder()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    shown.screen.loadLayout(board(twoShapes()));
    const QImage before = pictureOf(shown.screen);
    shown.screen.items().first()->activate();
    shown.screen.selectAllShortcutActivated();
    QCOMPARE(pictureOf(shown.screen), before);
    QVERIFY(shown.screen.grab().toImage() != before);
}

void tst_ScreenPicture::isTheSameInViewAndNeverShown()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    shown.screen.loadLayout(board(twoShapes()));
    QCOMPARE(pictureOf(shown.screen), pictureOfLayout(board(twoShapes())));
}

void tst_ScreenPicture::stacksItemsInLayerOrder()
{
    const QImage picture = pictureOfLayout(board(twoShapes()));
    QCOMPARE(picture.pixelColor(80, 50), QColor("blue"));
    QVERIFY(picture.pixelColor(30, 30) != QColor("blue"));
    QCOMPARE(picture.pixelColor(300, 300), QColor("black"));
}

void tst_ScreenPicture::keepsATranslucentBackground()
{
    const QImage picture = pictureOfLayout(board(twoShapes(), sized(200, 100, "transparent")));
    QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(picture.pixelColor(80, 50), QColor("blue"));
}

void tst_ScreenPicture::putsTheScreenBackIntoEditMode()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    shown.screen.loadLayout(board(twoShapes()));
    const QImage before = shown.screen.grab().toImage();
    pictureOf(shown.screen);
    QVERIFY(!shown.screen.items().first()->isInRenderMode());
    QCOMPARE(shown.screen.grab().toImage(), before);
    QVERIFY(!shown.screen.isModified());
}

void tst_ScreenPicture::isNullWhereNoPictureCanBe_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("no area") << 0 << 0;
    QTest::newRow("no height") << 800 << 0;
    QTest::newRow("wider than the painter goes") << 32768 << 1;
    QTest::newRow("as large as a widget gets") << 16777215 << 16777215;
    QTest::newRow("more area than memory should give") << 32767 << 32767;
}

void tst_ScreenPicture::isNullWhereNoPictureCanBe()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QVERIFY(pictureOfLayout(board(twoShapes(), sized(width, height))).isNull());
}

void tst_ScreenPicture::isSavedInTheFormatOfTheSuffix_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("start");
    QTest::newRow("png") << "board.png" << QByteArray("\x89PNG");
    QTest::newRow("upper case") << "board.PNG" << QByteArray("\x89PNG");
    QTest::newRow("jpg") << "board.jpg" << QByteArray("\xff\xd8\xff");
    QTest::newRow("jpeg") << "board.jpeg" << QByteArray("\xff\xd8\xff");
    QTest::newRow("bmp") << "board.bmp" << QByteArray("BM");
}

void tst_ScreenPicture::isSavedInTheFormatOfTheSuffix()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, start);
    const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    QCOMPARE(PictureFile::save(QImage(30, 20, QImage::Format_RGB32), path), QString());
    QCOMPARE(QImage(path).size(), QSize(30, 20));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().startsWith(start));
}

void tst_ScreenPicture::leavesTheFileAloneWhenItCannotSave_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    QTest::newRow("no suffix") << "board" << QSize(30, 20);
    QTest::newRow("suffix of no picture") << "board.lay" << QSize(30, 20);
    QTest::newRow("no picture") << "board.png" << QSize(0, 0);
}

void tst_ScreenPicture::leavesTheFileAloneWhenItCannotSave()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    const QTemporaryDir folder;
    QFile file(folder.filePath(name));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QCOMPARE(file.write("precious"), 8);
    file.close();
    QVERIFY(!PictureFile::save(QImage(size, QImage::Format_RGB32), file.fileName()).isEmpty());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("precious"));
}

void tst_ScreenPicture::saysWhyAFileCannotBeWritten()
{
    const QTemporaryDir folder;
    QCOMPARE(PictureFile::save(QImage(3, 2, QImage::Format_RGB32), folder.filePath("missing/board.png")),
             QString("No such file or directory"));
}

BOARDWRIGHT_TEST_MAIN(tst_ScreenPicture)
#include "tst_screenpicture.moc"
