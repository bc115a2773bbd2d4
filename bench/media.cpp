#include "bench/media.h"

#include "bench/measure.h"
#include "bench/paintcounter.h"
#include "tests/support/gif.h"

#include <QFile>
#include <QImage>
#include <QJsonObject>
#include <QLabel>
#include <QRect>

namespace
{
constexpr int framesOfMovie = 20;
constexpr int delay = 4; // hundredths of a second
constexpr int columns = 10;
constexpr QSize cell(76, 76);

QJsonObject item(const QString &type, const QString &path, const QRect &geometry)
{
    return {{QStringLiteral("Type"), type},          {QStringLiteral("ScreenItemName"), path},
            {QStringLiteral("Path"), path},          {QStringLiteral("X"), geometry.x()},
            {QStringLiteral("Y"), geometry.y()},     {QStringLiteral("W"), geometry.width()},
            {QStringLiteral("H"), geometry.height()}};
}
} // namespace

bool BenchMedia::writeMovie(const QString &path)
{
    Gif gif;
    gif.size = movieSize;
    gif.delay = delay;
    for (int frame = 0; frame < framesOfMovie; ++frame)
        gif.frames.append(QColor::fromHsv(frame * 360 / framesOfMovie, 255, 255));
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(gif.bytes()) > 0;
}

bool BenchMedia::writePicture(const QString &path)
{
    const QSize size = pictureSize;
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            picture.setPixel(x, y, qRgb(x * 255 / size.width(), y * 255 / size.height(), x * y & 0xff));
    }
    return picture.save(path);
}

QVector<QPoint> BenchMedia::moviePlaces(int count)
{
    QVector<QPoint> places;
    for (int index = 0; index < count; ++index)
        places.append(QPoint(index % columns * cell.width(), index / columns * cell.height()));
    return places;
}

QJsonArray BenchMedia::movieItems(int count, const QString &path)
{
    QJsonArray items;
    const QVector<QPoint> places = moviePlaces(count);
    for (QPoint place : places)
        items.append(item(QStringLiteral("Animation Viewer"), path, QRect(place, movieSize)));
    return items;
}

QJsonArray BenchMedia::pictureItem(const QString &path)
{
    return {item(QStringLiteral("Image Viewer"), path, QRect(QPoint(), shownSize))};
}

void BenchMedia::reportPlaying(const QWidget &canvas)
{
    PaintCounter counter;
    const auto labels = canvas.findChildren<QLabel *>();
    for (QLabel *label : labels)
        label->installEventFilter(&counter);
    settle();
    const int before = counter.paints();
    // It settles twice, which makes a second.
    report("cpu", cpuOf([] {}, 500));
    report("frames", counter.paints() - before);
}
