#include "render/pngbytes.h"

#include "tests/support/strictmain.h"

#include <QImage>
#include <QPainter>
#include <QRandomGenerator>

class tst_PngBytes : public QObject
{
    Q_OBJECT

private slots:
    void readsBackAsItWas_data();
    void readsBackAsItWas();
    void hasNoAlphaWithoutTransparency();
    void isSmallForABoard();
    void isEmptyForNothing();
};

namespace
{
/// A picture of colours that all differ, as a machine would make it.
QImage noise(QSize size, QImage::Format format)
{
    QImage picture(size, QImage::Format_ARGB32);
    QRandomGenerator random(7);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            picture.setPixel(x, y, random.generate());
    }
    return picture.convertToFormat(format);
}
} // namespace

void tst_PngBytes::readsBackAsItWas_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QImage::Format>("format");

    QTest::newRow("opaque") << QSize(61, 33) << QImage::Format_RGB32;
    QTest::newRow("translucent") << QSize(61, 33) << QImage::Format_ARGB32;
    QTest::newRow("as it is painted") << QSize(61, 33) << QImage::Format_ARGB32_Premultiplied;
    QTest::newRow("of one pixel") << QSize(1, 1) << QImage::Format_RGB32;
    QTest::newRow("wide") << QSize(4000, 1) << QImage::Format_RGB32;
    QTest::newRow("high") << QSize(1, 4000) << QImage::Format_RGB32;
    QTest::newRow("of other bytes") << QSize(61, 33) << QImage::Format_RGB888;
}

void tst_PngBytes::readsBackAsItWas()
{
    QFETCH(QSize, size);
    QFETCH(QImage::Format, format);
    const QImage picture = noise(size, format);
    const QImage read = QImage::fromData(PngBytes::of(picture), "png");
    QCOMPARE(read.convertToFormat(QImage::Format_ARGB32), picture.convertToFormat(QImage::Format_ARGB32));
}

void tst_PngBytes::hasNoAlphaWithoutTransparency()
{
    QVERIFY(!QImage::fromData(PngBytes::of(noise({9, 9}, QImage::Format_RGB32))).hasAlphaChannel());
    QVERIFY(QImage::fromData(PngBytes::of(noise({9, 9}, QImage::Format_ARGB32))).hasAlphaChannel());
}

void tst_PngBytes::isSmallForABoard()
{
    QImage picture(1920, 1080, QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter(&picture).fillRect(100, 100, 300, 200, Qt::red);
    QVERIFY(PngBytes::of(picture).size() <= 64 * 1024);
}

void tst_PngBytes::isEmptyForNothing()
{
    QCOMPARE(PngBytes::of(QImage()), QByteArray());
}

BOARDWRIGHT_TEST_MAIN(tst_PngBytes)
#include "tst_pngbytes.moc"
