#include "pictures/mediaplan.h"

#include "tests/support/gif.h"
#include "tests/support/mediabytes.h"
#include "tests/support/strictmain.h"
#include "tests/viewers/mediafolder.h"

#include <QBuffer>
#include <QImageReader>

using namespace MediaBytes;

/// What pictures will take, told before they are decoded.
class tst_MediaPlan : public QObject
{
    Q_OBJECT

private slots:
    void refusesDrawingsThatTakeTooLong();
    void knowsWhatWillBeAllocated_data();
    void knowsWhatWillBeAllocated();
    void knowsBitmapsFromTheTop();
    void knowsWhatMoviesKeep();
    void takesPngFilesOutOfIcons();
    void readsNoUnknownFormat();
    void refusesMoreThanTheArea();
    void refusesHugeTexts();
    void checksThePicturesInDrawings_data();
    void checksThePicturesInDrawings();
    void countsThePicturesInDrawings();
    void countsTheDrawingsInDrawings();
    void unpacksDrawings();
};

namespace
{
constexpr qint64 area = 1000000;

bool hasDrawings()
{
    return QImageReader::supportedImageFormats().contains("svg");
}

/// An element that shows the bytes.
QByteArray imageOf(const QByteArray &bytes)
{
    return "<image width='5' height='5' xlink:href='data:image/png;base64," + bytes.toBase64() + "'/>";
}

QByteArray gifOnScreen(int width, int height)
{
    QByteArray bytes = Gif{{4, 4}, {Qt::red}}.bytes();
    return bytes.replace(6, 4, littleEndian(width, 2) + littleEndian(height, 2));
}
} // namespace

void tst_MediaPlan::knowsWhatWillBeAllocated_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QImage image = MediaFolder::chequered({70, 30});
    for (const char *format : {"bmp", "jpg", "ppm", "png", "xpm"})
        QTest::newRow(format) << encoded(image, format);
    QTest::newRow("pgm") << encoded(image.convertToFormat(QImage::Format_Grayscale8), "pgm");
    const QImage mono = image.convertToFormat(QImage::Format_Mono);
    for (const char *format : {"pbm", "xbm", "png", "bmp"})
        QTest::addRow("%s in black and white", format) << encoded(mono, format);
    QTest::newRow("deep png") << encoded(image.convertToFormat(QImage::Format_RGBA64), "png");
    QTest::newRow("grey jpg") << encoded(image.convertToFormat(QImage::Format_Grayscale8), "jpg");
    QTest::newRow("gif") << Gif{{70, 30}, {Qt::red}}.bytes();
    QTest::newRow("gif on a larger screen") << gifOnScreen(700, 300);
    QTest::newRow("ico") << icon({{70, 30, iconBitmap(70, 60, 70 * 30)}});
    QTest::newRow("png in an ico") << icon({{16, 16, encoded(image, "png")}});
    QTest::newRow("cur") << icon({{70, 30, iconBitmap(70, 60, 70 * 30)}}, 2);
    // Where a desktop has readers for more.
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    for (const char *format : {"tiff", "webp", "wbmp"}) {
        if (formats.contains(format))
            QTest::newRow(format) << encoded(image, format);
    }
    if (hasDrawings())
        QTest::newRow("svg") << svg("<rect width='5' height='5'/>");
}

void tst_MediaPlan::knowsWhatWillBeAllocated()
{
    QFETCH(QByteArray, bytes);
    const MediaPlan plan = MediaPlan::of(bytes, area);
    QVERIFY(plan.isReadable());
    const QImage image = QImage::fromData(bytes);
    QCOMPARE(plan.size, image.size());
    // Rows of few bits are filled up to whole words.
    QVERIFY(plan.pictureBytes() >= qint64(image.width()) * image.height() * image.depth() / 8);
}

void tst_MediaPlan::knowsBitmapsFromTheTop()
{
    QByteArray bytes = encoded(MediaFolder::chequered({70, 30}), "bmp");
    bytes.replace(22, 4, littleEndian(-30, 4));
    QCOMPARE(MediaPlan::of(bytes, area).size, QSize(70, 30));
    QCOMPARE(QImage::fromData(bytes).size(), QSize(70, 30));
}

void tst_MediaPlan::knowsWhatMoviesKeep()
{
    const MediaPlan picture = MediaPlan::of(Gif{{8, 8}, {Qt::red}}.bytes(), area);
    QVERIFY(!picture.isMovie);
    QCOMPARE(picture.copies, 1);
    QByteArray bytes = Gif{{8, 8}, {Qt::red, Qt::green}}.bytes();
    QVERIFY(MediaPlan::of(bytes, area).isMovie);
    QCOMPARE(MediaPlan::of(bytes, area).copies, 1);
    QCOMPARE(
        MediaPlan::of(bytes.replace(QByteArray::fromHex("21f90400"), QByteArray::fromHex("21f9040c")), area)
            .copies,
        2);
    const MediaPlan still = MediaPlan::of(encoded(MediaFolder::chequered({8, 8}), "png"), area);
    QVERIFY(!still.isMovie);
    QCOMPARE(still.copies, 0);
}

void tst_MediaPlan::takesPngFilesOutOfIcons()
{
    const QByteArray png = encoded(MediaFolder::chequered({300, 200}), "png");
    const MediaPlan plan = MediaPlan::of(icon({{16, 16, withChunks(png, pngChunk("zTXt", "packed"))}}), area);
    QCOMPARE(plan.format, QByteArray("png"));
    QCOMPARE(plan.size, QSize(300, 200));
    QVERIFY(!plan.bytes.contains("zTXt"));
    QVERIFY(!MediaPlan::of(icon({{16, 16, png}}), 300 * 200 - 1).isReadable());
}

void tst_MediaPlan::readsNoUnknownFormat()
{
    for (const QByteArray &bytes : {QByteArray(), QByteArray("words"), QByteArray(1000, char(0xff))}) {
        const MediaPlan plan = MediaPlan::of(bytes, area);
        QVERIFY(!plan.isReadable());
        QVERIFY(plan.format.isEmpty());
        QVERIFY(plan.refusal.isEmpty());
    }
}

void tst_MediaPlan::refusesMoreThanTheArea()
{
    const QByteArray gif = gifOnScreen(1000, 1000);
    QVERIFY(MediaPlan::of(gif, 1000000).isReadable());
    QVERIFY(!MediaPlan::of(gif, 999999).isReadable());
    QVERIFY(MediaPlan::of(gif, 999999).refusal.contains("999999 pixels"));
    QVERIFY(!MediaPlan::of(gifOnScreen(16405, 8977), 128000000).isReadable());
}

void tst_MediaPlan::refusesHugeTexts()
{
    const QByteArray picture = "P3 1 1 255 1 2 3 ";
    QVERIFY(MediaPlan::of(picture, area).isReadable());
    QVERIFY(!MediaPlan::of(picture + QByteArray(64 * 1024 * 1024, ' '), area).isReadable());
}

void tst_MediaPlan::checksThePicturesInDrawings_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray png = encoded(MediaFolder::chequered({8, 6}), "png");
    QTest::newRow("too large") << imageOf(gifOnScreen(1001, 1000));
    QTest::newRow("too large together") << imageOf(gifOnScreen(900, 600)).repeated(2);
    QTest::newRow("too large in an icon")
        << imageOf(icon({{9, 9, encoded(QImage(1001, 1000, QImage::Format_Mono), "png")}}));
    QTest::newRow("texts") << imageOf(withChunks(png, pngChunk("zTXt", QByteArray(70000, 'x'))));
    QTest::newRow("texts together")
        << imageOf(withChunks(png, pngChunk("zTXt", QByteArray(10000, 'x')))).repeated(7);
    QTest::newRow("a drawing that reaches outside") << imageOf(svg("<image xlink:href='/dev/zero'/>"));
}

void tst_MediaPlan::checksThePicturesInDrawings()
{
    if (!hasDrawings())
        QSKIP("no reader of drawings here");
    QFETCH(QByteArray, content);
    const MediaPlan plan = MediaPlan::of(svg(content), area);
    QVERIFY(!plan.isReadable());
    QVERIFY(plan.refusal.contains("in the drawing"));
}

void tst_MediaPlan::countsThePicturesInDrawings()
{
    if (!hasDrawings())
        QSKIP("no reader of drawings here");
    tolerateWarnings("Could not create image from");
    const QByteArray png = encoded(MediaFolder::chequered({8, 6}), "png");
    const MediaPlan plan = MediaPlan::of(svg(imageOf(png) + imageOf("no picture") + imageOf(png)), area);
    QVERIFY(plan.isReadable());
    QCOMPARE(plan.pictureBytes(), qint64(30 * 20 + 2 * 8 * 6) * 4);
}

void tst_MediaPlan::refusesDrawingsThatTakeTooLong()
{
    if (!hasDrawings())
        QSKIP("no reader of drawings here");
    const QByteArray lines = "<path d='M0 0" + QByteArray("V900h1V0h1").repeated(500) + "'/>";
    const QByteArray large = svg(lines).replace("width='30' height='20'", "width='1000' height='1000'");
    const QByteArray sizeless = svg(lines).replace("width='30' height='20'", "");
    for (const QByteArray &drawing : {large, sizeless, svg(imageOf(large))})
        QVERIFY(MediaPlan::of(drawing, 1024 * 1024).refusal.contains("too long"));
    QVERIFY(MediaPlan::of(svg("<rect width='5' height='5'/>"), area).drawingTime > 0);
}

void tst_MediaPlan::countsTheDrawingsInDrawings()
{
    if (!hasDrawings())
        QSKIP("no reader of drawings here");
    const QByteArray inner = svg(QByteArray("<g/>").repeated(20000));
    QCOMPARE(MediaPlan::of(svg(imageOf(inner)), area).elements, 2 + 20001);
    QVERIFY(MediaPlan::of(svg(imageOf(inner).repeated(2)), area).isReadable());
    QVERIFY(!MediaPlan::of(svg(imageOf(inner).repeated(3)), area).isReadable());
}

void tst_MediaPlan::unpacksDrawings()
{
    if (!hasDrawings())
        QSKIP("no reader of drawings here");
    const QByteArray drawing = svg("<rect width='5' height='5'/>");
    const MediaPlan plan = MediaPlan::of(gzipped(drawing), area);
    QCOMPARE(plan.bytes, drawing);
    QCOMPARE(plan.size, QSize(30, 20));
    const MediaPlan bomb = MediaPlan::of(gzipped(drawing + QByteArray(5000000, ' ')), area);
    QVERIFY(!bomb.isReadable());
    QVERIFY(bomb.refusal.contains("unpacked"));
}

BOARDWRIGHT_TEST_MAIN(tst_MediaPlan)
#include "tst_mediaplan.moc"
