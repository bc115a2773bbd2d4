#include "pictures/mediafile.h"

#include "pictures/memoryclaim.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <string_view>

namespace
{
constexpr qint64 pieceBytes = 64 * 1024;

/// Pipes and devices may never answer. Neither may those files of the system that claim to be regular ones
/// and empty.
bool open(QFile &file)
{
    const QFileInfo info(file.fileName());
    return info.isFile() && info.size() > 0 &&
           info.size() <= qMin(MediaFile::maximumBytes, MemoryClaim::left()) &&
           file.open(QIODevice::ReadOnly);
}

/// The whole content. Memory for all that is asked for would be taken at once, whatever there is to read.
QByteArray allOf(QIODevice &device)
{
    return device.read(qMin(MediaFile::maximumBytes, device.size()));
}

/// Drawings name other files and may take any time to draw; an icon may hold a picture of any size, whatever
/// its own header says.
bool isTrusted(const QByteArray &format)
{
    return !format.startsWith("svg") && format != "ico" && format != "cur";
}

int passesIn(std::string_view piece)
{
    constexpr char beginning[] = "\xff\xda";
    int passes = 0;
    for (auto at = piece.find(beginning); at != std::string_view::npos; at = piece.find(beginning, at + 1))
        ++passes;
    return passes;
}

/// Every pass over a progressive picture takes its time and but a few bytes. All that may be the beginning of
/// one is counted; what films and thumbnails in the file add to that leaves photos within the measure.
bool isSentInFewPasses(QImageReader &reader, QSize size, qint64 area)
{
    if (reader.format() != "jpeg")
        return true;
    QIODevice &device = *reader.device();
    const qint64 place = device.pos();
    device.seek(0);
    int passes = 0;
    // In small pieces, which is faster; a beginning that is cut in two is no matter.
    for (QByteArray piece = device.read(pieceBytes); !piece.isEmpty(); piece = device.read(pieceBytes))
        passes += passesIn({piece.constData(), std::size_t(piece.size())});
    device.seek(place);
    return MediaFile::isWithin(size, MediaFile::maximumPasses * area / qMax(1, passes));
}

/// What the header says, before anything is decoded.
bool isReadable(QImageReader &reader, qint64 area)
{
    if (!reader.canRead() || !isTrusted(reader.format()))
        return false;
    const QSize size = reader.size();
    return !size.isEmpty() && MediaFile::isWithin(size, area) &&
           MediaFile::bytesOf(size) <= MemoryClaim::left() && isSentInFewPasses(reader, size, area);
}
} // namespace

bool MediaFile::isWithin(QSize size, qint64 area)
{
    return qint64(size.width()) * size.height() <= area;
}

qint64 MediaFile::bytesOf(QSize size)
{
    return qint64(size.width()) * size.height() * 4;
}

QImage MediaFile::readPicture(const QString &path)
{
    QFile file(path);
    return open(file) ? readPicture(file, maximumPictureArea) : QImage();
}

QImage MediaFile::readPicture(QIODevice &device, qint64 area)
{
    QImageReader reader(&device);
    if (!isReadable(reader, area))
        return {};
    QImage picture = reader.read();
    picture.setDevicePixelRatio(1);
    return picture;
}

std::unique_ptr<QMovie> MediaFile::readMovie(const QString &path)
{
    QFile file(path);
    if (!open(file))
        return nullptr;
    auto movie = std::make_unique<QMovie>();
    auto *bytes = new QBuffer(movie.get());
    bytes->setData(allOf(file));
    bytes->open(QIODevice::ReadOnly);
    QImageReader reader(bytes);
    if (!isReadable(reader, maximumFrameArea))
        return nullptr;
    bytes->seek(0);
    movie->setDevice(bytes);
    movie->setCacheMode(QMovie::CacheNone);
    return movie->isValid() ? std::move(movie) : nullptr;
}
