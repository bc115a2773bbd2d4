#include "canvas/dotgrid.h"
#include "tests/support/strictmain.h"

#include <QImage>
#include <QPainter>

class tst_DotGrid : public QObject
{
    Q_OBJECT

private slots:
    void drawsEveryEleventhPixel_data();
    void drawsEveryEleventhPixel();
    void has73ColumnsAnd37RowsOn800By400();
    void blendsAFaintColour();
    void drawsTheExposedPartOnly_data();
    void drawsTheExposedPartOnly();
    void drawsNothingBetweenThePoints();
    void drawsFarFromTheCornerAtOnce();
};

namespace
{
const QRgb background = qRgb(200, 100, 0);

QImage blank(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(background);
    return image;
}

QImage gridOn(QSize size, const QRect &exposed)
{
    QImage image = blank(size);
    QPainter painter(&image);
    DotGrid::draw(painter, exposed);
    return image;
}

/// The grid drawn point by point.
QImage plainGridOn(QSize size, const QRect &exposed)
{
    QImage image = blank(size);
    QPainter painter(&image);
    painter.setClipRect(exposed);
    painter.setPen(QColor(50, 50, 50, 100));
    for (int x = 0; x <= size.width() - 1; x += 11) {
        for (int y = 0; y <= size.height() - 1; y += 11)
            painter.drawPoint(x, y);
    }
    return image;
}

int paintedPixels(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) != background;
    }
    return count;
}
} // namespace

void tst_DotGrid::drawsEveryEleventhPixel_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("the size at start") << QSize(800, 400);
    QTest::newRow("last pixel is a point") << QSize(12, 23);
    QTest::newRow("last pixel is no point") << QSize(11, 22);
    QTest::newRow("one pixel") << QSize(1, 1);
    QTest::newRow("perimeter strip") << QSize(1920, 96);
}

void tst_DotGrid::drawsEveryEleventhPixel()
{
    QFETCH(QSize, size);
    QCOMPARE(gridOn(size, QRect(QPoint(), size)), plainGridOn(size, QRect(QPoint(), size)));
}

void tst_DotGrid::has73ColumnsAnd37RowsOn800By400()
{
    const QImage image = gridOn(QSize(800, 400), QRect(0, 0, 800, 400));
    QCOMPARE(paintedPixels(image), 73 * 37);
    QVERIFY(image.pixel(0, 0) != background);
    QVERIFY(image.pixel(792, 396) != background);
    QCOMPARE(image.pixel(793, 396), background);
}

void tst_DotGrid::blendsAFaintColour()
{
    const QColor point = gridOn(QSize(20, 20), QRect(0, 0, 20, 20)).pixelColor(11, 11);
    // 100/255 of (50, 50, 50) over (200, 100, 0); the paint engine rounds as it likes.
    QVERIFY2(qAbs(point.red() - 141) <= 1, qPrintable(point.name()));
    QVERIFY2(qAbs(point.green() - 80) <= 1, qPrintable(point.name()));
    QVERIFY2(qAbs(point.blue() - 20) <= 1, qPrintable(point.name()));
}

void tst_DotGrid::drawsTheExposedPartOnly_data()
{
    QTest::addColumn<QRect>("exposed");
    QTest::newRow("edges on points") << QRect(11, 22, 12, 34);
    QTest::newRow("edges beside points") << QRect(12, 23, 10, 32);
    QTest::newRow("one point") << QRect(33, 33, 1, 1);
    QTest::newRow("the far corner") << QRect(60, 60, 40, 40);
    QTest::newRow("everything") << QRect(0, 0, 100, 100);
}

void tst_DotGrid::drawsTheExposedPartOnly()
{
    QFETCH(QRect, exposed);
    const QSize size(100, 100);
    const QImage drawn = gridOn(size, exposed);
    QCOMPARE(drawn, plainGridOn(size, exposed));
    QVERIFY(paintedPixels(drawn) > 0 || exposed == QRect(12, 23, 10, 32));
}

void tst_DotGrid::drawsNothingBetweenThePoints()
{
    QCOMPARE(gridOn(QSize(100, 100), QRect(1, 1, 10, 10)), blank(QSize(100, 100)));
    QCOMPARE(gridOn(QSize(100, 100), QRect()), blank(QSize(100, 100)));
}

void tst_DotGrid::drawsFarFromTheCornerAtOnce()
{
    const QRect exposed(16777000, 16777000, 60, 60);
    QImage image = blank(exposed.size());
    QPainter painter(&image);
    painter.translate(-exposed.topLeft());
    DotGrid::draw(painter, exposed);
    painter.end();
    // 16777000 is 1525181 * 11 + 9: the first point lies two pixels in.
    QVERIFY(image.pixel(2, 2) != background);
    QCOMPARE(paintedPixels(image), 6 * 6);
}

BOARDWRIGHT_TEST_MAIN(tst_DotGrid)
#include "tst_dotgrid.moc"
