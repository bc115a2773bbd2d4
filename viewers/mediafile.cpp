#include "viewers/mediafile.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace
{
/// Pipes and devices may never answer. Neither may those files of the system that claim to be regular ones
/// and empty.
bool open(QFile &file)
{
    const QFileInfo info(file.fileName());
    return info.isFile() && info.size() > 0 && info.size() <= MediaFile::maximumBytes &&
           file.open(QIODevice::ReadOnly);
}

/// Drawings name other files and may take any time to draw; an icon may hold a picture of any size, whatever
/// its own header says.
bool isTrusted(const QByteArray &format)
{
    return !format.startsWith("svg") && format != "ico" && format != "cur";
}

/// What the header says, before anything is decoded.
bool isReadable(QImageReader &reader, qint64 area)
{
    if (!reader.canRead() || !isTrusted(reader.format()))
        return false;
    const QSize size = reader.size();
    return !size.isEmpty() && MediaFile::isWithin(size, area);
}
} // namespace

bool MediaFile::isWithin(QSize size, qint64 area)
{
    return qint64(size.width()) * size.height() <= area;
}

QImage MediaFile::readPicture(const QString &path)
{
    QFile file(path);
    if (!open(file))
        return {};
    QImageReader reader(&file);
    if (!isReadable(reader, maximumPictureArea))
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
    bytes->setData(file.read(maximumBytes));
    bytes->open(QIODevice::ReadOnly);
    QImageReader reader(bytes);
    if (!isReadable(reader, maximumFrameArea))
        return nullptr;
    bytes->seek(0);
    movie->setDevice(bytes);
    movie->setCacheMode(QMovie::CacheNone);
    return movie->isValid() ? std::move(movie) : nullptr;
}
