#include "viewers/imagevieweritem.h"

#include "tests/support/strictmain.h"
#include "tests/viewers/mediaboard.h"
#include "tests/viewers/mediafolder.h"

/// What an image item does with its file; what it shares with the other kinds is told elsewhere.
class tst_ImageViewerItem : public QObject
{
    Q_OBJECT

private slots:
    void takesTheSizeOfThePicture_data();
    void takesTheSizeOfThePicture();
    void takesItWhereItLies();
    void takesTheWholeSizeWithoutAScreen();
    void paintsNothingWithoutAPicture();
    void paintsThePictureInItsOwnSize();
    void paintsThePictureStretched_data();
    void paintsThePictureStretched();
    void squeezesALargePictureIntoTheScreen();
    void stretchesWithTheFrame();
    void goesByTheMapNotByItsOwnSize();
    void letsTheCanvasShineThrough();
    void keepsItsPictureWhenAFileCannotBeRead_data();
    void keepsItsPictureWhenAFileCannotBeRead();
    void showsTheNewestPicture();
    void readsTheSamePathAnew();
    void needsItsFileNoMore();
    void ignoresScalesInFileNames();
    void paintsWhateverSizeTheMapHolds_data();
    void paintsWhateverSizeTheMapHolds();

private:
    MediaFolder m_folder;
};

void tst_ImageViewerItem::takesTheSizeOfThePicture_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QSize>("item");
    QTest::newRow("size of a new item") << QSize(100, 50) << QSize(100, 50);
    QTest::newRow("smaller") << QSize(7, 3) << QSize(7, 3);
    QTest::newRow("a single pixel") << QSize(1, 1) << QSize(1, 1);
    QTest::newRow("as large as the screen") << QSize(800, 400) << QSize(800, 400);
    QTest::newRow("larger both ways") << QSize(2000, 500) << QSize(800, 400);
    QTest::newRow("wider") << QSize(2000, 20) << QSize(800, 20);
    QTest::newRow("higher") << QSize(20, 2000) << QSize(20, 400);
}

void tst_ImageViewerItem::takesTheSizeOfThePicture()
{
    QFETCH(QSize, picture);
    QFETCH(QSize, item);
    MediaBoard<ImageViewerItem> board;
    board.moveToCorner();
    board.content->setValue("Path", m_folder.picture(picture));
    QCOMPARE(board.frame->geometry(), QRect(QPoint(0, 0), item));
    QCOMPARE(board.content->getValue("W"), QVariant(item.width()));
    QCOMPARE(board.content->getValue("H"), QVariant(item.height()));
}

void tst_ImageViewerItem::takesItWhereItLies()
{
    MediaBoard<ImageViewerItem> board;
    board.content->setValue("Path", m_folder.picture({40, 60}));
    QCOMPARE(board.frame->geometry(), QRect(30, 20, 40, 60));
    // The frame has its say as at any change of its size.
    board.content->setValue("Path", m_folder.picture({2000, 2000}));
    QCOMPARE(board.frame->geometry(), QRect(30, 20, 800, 380));
    QCOMPARE(board.content->getValue("H"), QVariant(380));
}

void tst_ImageViewerItem::takesTheWholeSizeWithoutAScreen()
{
    ImageViewerItem alone(nullptr);
    alone.setValue("Path", m_folder.picture({2000, 20}));
    QCOMPARE(alone.getValue("W"), QVariant(2000));
    QCOMPARE(alone.getValue("H"), QVariant(20));
}

void tst_ImageViewerItem::paintsNothingWithoutAPicture()
{
    MediaBoard<ImageViewerItem> board;
    board.screen.setBackgrounColor(Qt::darkGreen);
    QImage empty(100, 50, QImage::Format_RGB32);
    empty.fill(Qt::darkGreen);
    QCOMPARE(board.picture(), empty);
}

void tst_ImageViewerItem::paintsThePictureInItsOwnSize()
{
    MediaBoard<ImageViewerItem> board;
    board.content->setValue("Path", m_folder.picture({70, 30}));
    QCOMPARE(board.picture(), MediaFolder::chequered({70, 30}));
}

void tst_ImageViewerItem::paintsThePictureStretched_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("wider") << QSize(211, 30);
    QTest::newRow("higher") << QSize(70, 93);
    QTest::newRow("larger") << QSize(301, 177);
    QTest::newRow("narrower") << QSize(13, 30);
    QTest::newRow("smaller") << QSize(31, 11);
    QTest::newRow("a single pixel") << QSize(1, 1);
}

void tst_ImageViewerItem::paintsThePictureStretched()
{
    QFETCH(QSize, size);
    MediaBoard<ImageViewerItem> board;
    board.content->setValue("Path", m_folder.picture({70, 30}));
    board.content->setValue("W", size.width());
    board.content->setValue("H", size.height());
    QCOMPARE(board.frame->size(), size);
    QCOMPARE(board.picture(),
             MediaFolder::chequered({70, 30}).scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation));
}

void tst_ImageViewerItem::squeezesALargePictureIntoTheScreen()
{
    MediaBoard<ImageViewerItem> board;
    board.moveToCorner();
    board.content->setValue("Path", m_folder.picture({2000, 500}));
    QCOMPARE(board.picture(), MediaFolder::chequered({2000, 500}).scaled(800, 400));
}

void tst_ImageViewerItem::stretchesWithTheFrame()
{
    MediaBoard<ImageViewerItem> board;
    board.content->setValue("Path", m_folder.picture({70, 30}));
    for (const QSize size : {QSize(140, 30), QSize(70, 60), QSize(71, 61)}) {
        board.frame->resize(size);
        QCOMPARE(board.picture(), MediaFolder::chequered({70, 30}).scaled(size));
    }
}

void tst_ImageViewerItem::goesByTheMapNotByItsOwnSize()
{
    ImageViewerItem alone(nullptr);
    alone.resize(100, 50);
    alone.setValue("Path", m_folder.picture({70, 30}));
    alone.setValue("W", 20);
    alone.setValue("H", 10.0);
    QImage image(100, 50, QImage::Format_RGB32);
    image.fill(Qt::yellow);
    alone.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    QCOMPARE(image.copy(0, 0, 20, 10), MediaFolder::chequered({70, 30}).scaled(20, 10));
    QCOMPARE(image.pixelColor(20, 0), QColor(Qt::yellow));
    QCOMPARE(image.pixelColor(0, 10), QColor(Qt::yellow));
}

void tst_ImageViewerItem::letsTheCanvasShineThrough()
{
    QImage glass(2, 1, QImage::Format_ARGB32);
    glass.setPixelColor(0, 0, Qt::transparent);
    glass.setPixelColor(1, 0, QColor(0, 0, 255, 128));
    MediaBoard<ImageViewerItem> board;
    board.screen.setBackgrounColor(Qt::red);
    board.content->setValue("Path", m_folder.picture(glass));
    board.frame->resize(200, 100);
    QCOMPARE(board.color({99, 50}), QColor(Qt::red));
    const QColor mixed = board.color({100, 50});
    QVERIFY(qAbs(mixed.red() - 127) <= 1);
    QVERIFY(qAbs(mixed.blue() - 128) <= 1);
}

void tst_ImageViewerItem::keepsItsPictureWhenAFileCannotBeRead_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("no path") << "";
    QTest::newRow("no file") << m_folder.path("missing.png");
    QTest::newRow("a folder") << m_folder.path("");
    QTest::newRow("text") << m_folder.file("text.png", "no picture at all");
    QTest::newRow("empty file") << m_folder.file("empty.png", "");
}

void tst_ImageViewerItem::keepsItsPictureWhenAFileCannotBeRead()
{
    QFETCH(QString, path);
    MediaBoard<ImageViewerItem> board;
    board.content->setValue("Path", m_folder.picture({70, 30}));
    board.content->setValue("Path", path);
    QCOMPARE(board.content->getValue("Path"), QVariant(path));
    QCOMPARE(board.frame->geometry(), QRect(30, 20, 70, 30));
    QCOMPARE(board.picture(), MediaFolder::chequered({70, 30}));
}

void tst_ImageViewerItem::showsTheNewestPicture()
{
    MediaBoard<ImageViewerItem> board;
    board.content->setValue("Path", m_folder.picture({70, 30}, "first.png"));
    QCOMPARE(board.color({1, 0}), QColor(7, 0, 255));
    QImage second(70, 30, QImage::Format_RGB32);
    second.fill(Qt::cyan);
    // Of the same size, so that no copy of the first may be taken for it.
    board.content->setValue("Path", m_folder.picture(second, "second.png"));
    QCOMPARE(board.picture(), second);
}

void tst_ImageViewerItem::readsTheSamePathAnew()
{
    MediaBoard<ImageViewerItem> board;
    board.content->setValue("Path", m_folder.picture({70, 30}));
    board.content->setValue("Path", m_folder.picture({20, 10}));
    QCOMPARE(board.frame->size(), QSize(20, 10));
    QCOMPARE(board.picture(), MediaFolder::chequered({20, 10}));
}

void tst_ImageViewerItem::needsItsFileNoMore()
{
    MediaBoard<ImageViewerItem> board;
    board.content->setValue("Path", m_folder.picture({70, 30}));
    QVERIFY(QFile::remove(m_folder.path("picture.png")));
    board.frame->resize(140, 60);
    QCOMPARE(board.picture(), MediaFolder::chequered({70, 30}).scaled(140, 60));
}

void tst_ImageViewerItem::ignoresScalesInFileNames()
{
    MediaBoard<ImageViewerItem> board;
    board.content->setValue("Path", m_folder.picture({70, 30}, "logo@2x.png"));
    QCOMPARE(board.frame->size(), QSize(70, 30));
    QCOMPARE(board.picture(), MediaFolder::chequered({70, 30}));
}

void tst_ImageViewerItem::paintsWhateverSizeTheMapHolds_data()
{
    QTest::addColumn<QVariant>("width");
    QTest::addColumn<QVariant>("height");
    QTest::addColumn<bool>("paints");
    QTest::newRow("nothing") << QVariant() << QVariant() << false;
    QTest::newRow("words") << QVariant("wide") << QVariant("high") << false;
    QTest::newRow("negative") << QVariant(-5) << QVariant(-1e9) << false;
    QTest::newRow("flat") << QVariant(100) << QVariant(0) << false;
    QTest::newRow("beyond any widget") << QVariant(1e9) << QVariant(1e308) << true;
    QTest::newRow("wide and flat") << QVariant(16777215) << QVariant(1) << true;
    QTest::newRow("far larger than memory") << QVariant(100000) << QVariant(100000) << true;
}

void tst_ImageViewerItem::paintsWhateverSizeTheMapHolds()
{
    QFETCH(QVariant, width);
    QFETCH(QVariant, height);
    QFETCH(bool, paints);
    QImage red(3, 3, QImage::Format_RGB32);
    red.fill(Qt::red);
    ImageViewerItem alone(nullptr);
    alone.resize(100, 50);
    alone.setValue("Path", m_folder.picture(red));
    alone.setValue("W", width);
    alone.setValue("H", height);
    QImage image(100, 50, QImage::Format_RGB32);
    image.fill(Qt::yellow);
    alone.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    QCOMPARE(image.pixelColor(0, 0), QColor(paints ? Qt::red : Qt::yellow));
}

BOARDWRIGHT_TEST_MAIN(tst_ImageViewerItem)
#include "tst_imagevieweritem.moc"
