#include "pictures/stretchedpicture.h"

#include "pictures/mediafile.h"
#include "tests/support/strictmain.h"
#include "tests/viewers/mediafolder.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>

namespace
{
/// Notes what is drawn on it.
class NotingEngine : public QPaintEngine
{
public:
    NotingEngine() : QPaintEngine(AllFeatures) {}
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override {}
    Type type() const override { return User; }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { ++pixmaps; }
    void drawImage(const QRectF &target, const QImage &image, const QRectF &source,
                   Qt::ImageConversionFlags) override
    {
        keys << image.cacheKey();
        sizes << target.size().toSize();
        isPlain = isPlain && target.size() == source.size() && source.size() == image.size();
    }

    QVector<qint64> keys;
    QVector<QSize> sizes;
    int pixmaps = 0;
    bool isPlain = true;
};

class NotingDevice : public QPaintDevice
{
public:
    QPaintEngine *paintEngine() const override { return &engine; }
    int metric(PaintDeviceMetric metric) const override
    {
        return metric == PdmDevicePixelRatioScaled ? int(devicePixelRatioFScale()) : 1000;
    }
    mutable NotingEngine engine;
};
} // namespace

class tst_StretchedPicture : public QObject
{
    Q_OBJECT

private slots:
    void drawsTheKeptCopyUntilSizeOrPictureChange();
    void drawsAnImmenseSizeWithoutACopy();
    void drawsNothingWithoutAPictureOrSize();
};

void tst_StretchedPicture::drawsTheKeptCopyUntilSizeOrPictureChange()
{
    NotingDevice device;
    QPainter painter(&device);
    StretchedPicture picture;
    picture.setImage(MediaFolder::chequered({70, 30}));
    const auto draw = [&](QSize size) {
        picture.draw(painter, size);
        return device.engine.keys.last();
    };
    const qint64 first = draw({140, 60});
    QCOMPARE(draw({140, 60}), first);
    QCOMPARE(draw({140, 60}), first);
    const qint64 larger = draw({141, 60});
    QVERIFY(larger != first);
    QCOMPARE(draw({141, 60}), larger);
    picture.setImage(MediaFolder::chequered({70, 30}));
    QVERIFY(draw({141, 60}) != larger);
    QVERIFY(device.engine.isPlain);
    // A pixmap would lose colours on a display that has few.
    QCOMPARE(device.engine.pixmaps, 0);
}

void tst_StretchedPicture::drawsAnImmenseSizeWithoutACopy()
{
    NotingDevice device;
    QPainter painter(&device);
    StretchedPicture picture;
    picture.setImage(MediaFolder::chequered({70, 30}));
    picture.draw(painter, {16777215, 16777215});
    QCOMPARE(device.engine.sizes, QVector<QSize>({{16777215, 16777215}}));
    QVERIFY(!device.engine.isPlain);
}

void tst_StretchedPicture::drawsNothingWithoutAPictureOrSize()
{
    NotingDevice device;
    QPainter painter(&device);
    StretchedPicture picture;
    picture.draw(painter, {10, 10});
    picture.setImage(MediaFolder::chequered({70, 30}));
    for (const QSize size : {QSize(0, 10), QSize(10, 0), QSize(-3, 10), QSize(-3, -3), QSize()})
        picture.draw(painter, size);
    QVERIFY(device.engine.sizes.isEmpty());
}

BOARDWRIGHT_TEST_MAIN(tst_StretchedPicture)
#include "tst_stretchedpicture.moc"
