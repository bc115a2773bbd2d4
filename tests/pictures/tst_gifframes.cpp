#include "pictures/gifframes.h"

#include "tests/support/gif.h"
#include "tests/support/mediabytes.h"
#include "tests/support/strictmain.h"

#include <QBuffer>
#include <QImageReader>

using namespace MediaBytes;

namespace
{
QByteArray header(QSize screen)
{
    return "GIF89a" + littleEndian(screen.width(), 2) + littleEndian(screen.height(), 2) +
           QByteArray::fromHex("800000000000ff0000");
}

/// A frame of no pixels whose head tells this place and size.
QByteArray frame(QRect place)
{
    return ',' + littleEndian(place.x(), 2) + littleEndian(place.y(), 2) + littleEndian(place.width(), 2) +
           littleEndian(place.height(), 2) + QByteArray::fromHex("0002024401") + char(0);
}

/// What becomes of a frame when the next is due.
QByteArray disposal(int way)
{
    return QByteArray::fromHex("21f904") + char(way << 2) + QByteArray(4, char(0));
}
} // namespace

class tst_GifFrames : public QObject
{
    Q_OBJECT

private slots:
    void tellsTheCanvasThatIsAllocated_data();
    void tellsTheCanvasThatIsAllocated();
    void tellsMoviesFromPictures();
    void noticesFramesThatGiveWay();
    void findsNoCanvasWithoutAFrame_data();
    void findsNoCanvasWithoutAFrame();
    void standsTruncation();
};

void tst_GifFrames::tellsTheCanvasThatIsAllocated_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QRect>("image");
    QTest::addColumn<QSize>("canvas");
    QTest::newRow("alike") << QSize(40, 30) << QRect(0, 0, 40, 30) << QSize(40, 30);
    QTest::newRow("a small image") << QSize(400, 300) << QRect(9, 9, 4, 5) << QSize(400, 300);
    QTest::newRow("a tiny image on a large screen")
        << QSize(3000, 2500) << QRect(0, 0, 1, 1) << QSize(3000, 2500);
    QTest::newRow("a larger image") << QSize(10, 20) << QRect(0, 0, 400, 300) << QSize(10, 20);
    QTest::newRow("an image beyond the screen") << QSize(10, 20) << QRect(500, 600, 4, 3) << QSize(10, 20);
    QTest::newRow("no width") << QSize(0, 50) << QRect(3, 4, 200, 100) << QSize(203, 50);
    QTest::newRow("no height") << QSize(50, 0) << QRect(3, 4, 200, 100) << QSize(50, 104);
    QTest::newRow("no screen") << QSize(0, 0) << QRect(3, 4, 200, 100) << QSize(203, 104);
}

void tst_GifFrames::tellsTheCanvasThatIsAllocated()
{
    QFETCH(QSize, screen);
    QFETCH(QRect, image);
    QFETCH(QSize, canvas);
    QByteArray bytes = header(screen) + frame(image) + ';';
    QCOMPARE(GifFrames::of(bytes).canvas, canvas);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QCOMPARE(QImageReader(&buffer, "gif").read().size(), canvas);
}

void tst_GifFrames::tellsMoviesFromPictures()
{
    QVERIFY(!GifFrames::of(Gif{{8, 8}, {Qt::red}}.bytes()).isMovie);
    QVERIFY(GifFrames::of(Gif{{8, 8}, {Qt::red, Qt::green}}.bytes()).isMovie);
    QVERIFY(GifFrames::of(Gif{{300, 200}, QVector<QColor>(50, Qt::red)}.bytes()).isMovie);
    const QByteArray comment = QByteArray::fromHex("21fe032c2c2c00");
    QVERIFY(!GifFrames::of(header({9, 9}) + comment + frame({0, 0, 9, 9}) + comment + ';').isMovie);
}

void tst_GifFrames::noticesFramesThatGiveWay()
{
    for (int way = 0; way < 8; ++way) {
        const GifFrames frames = GifFrames::of(header({9, 9}) + disposal(way) + frame({0, 0, 9, 9}) + ';');
        QCOMPARE(frames.goesBack, way == 3);
    }
}

void tst_GifFrames::findsNoCanvasWithoutAFrame_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("a word") << QByteArray("GIF");
    QTest::newRow("a header") << header({40, 30});
    QTest::newRow("an end") << header({40, 30}) + ';';
    QTest::newRow("noise") << header({40, 30}) + QByteArray(1000, 'x');
    QTest::newRow("comments without end") << header({40, 30}) + QByteArray("!\xfe\xff").repeated(1000);
}

void tst_GifFrames::findsNoCanvasWithoutAFrame()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(GifFrames::of(bytes).canvas.isEmpty());
}

void tst_GifFrames::standsTruncation()
{
    const QByteArray whole = Gif{{8, 8}, {Qt::red, Qt::green}}.bytes();
    for (int length = 0; length < whole.size(); ++length) {
        const QSize canvas = GifFrames::of(whole.left(length)).canvas;
        QVERIFY(canvas.isEmpty() || canvas == QSize(8, 8));
    }
}

BOARDWRIGHT_TEST_MAIN(tst_GifFrames)
#include "tst_gifframes.moc"
