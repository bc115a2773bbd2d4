#pragma once

#include <QImage>
#include <QMovie>
#include <QSize>

#include <memory>

/// Reads pictures and movies from files that may be anything. What is no regular file is never opened, and
/// what would take too much memory or time is not read; neither is what leaves too little of the memory for
/// all media (MemoryClaim). The reason is then told to whoever asks, and stays as it was for what is no
/// picture at all.
namespace MediaFile
{
/// The largest file that is read, in bytes.
constexpr qint64 maximumBytes = 256 * 1024 * 1024;

/// The largest picture, in pixels: half a gigabyte in the usual formats.
constexpr qint64 maximumPictureArea = 128000000;

/// The largest frame of a movie, in pixels: they are decoded while the window waits.
constexpr qint64 maximumFrameArea = 16 * 1024 * 1024;

/// True for sizes of no more pixels than the area.
bool isWithin(QSize size, qint64 area);

/// The memory that a decoded picture of the size takes in the usual formats, in bytes.
qint64 bytesOf(QSize size);

/// The picture in the file; a null one for a file that cannot be read as such. One image pixel is one pixel
/// of the screen, whatever the file's name says about scaled desktops.
QImage readPicture(const QString &path, QString *reason = nullptr);

/// The same from the bytes of a file, for pictures of no more pixels than the area.
QImage pictureIn(const QByteArray &bytes, qint64 area, QString *reason = nullptr);

/// The movie in the file, not yet started; null for a file that cannot be read as such. The movie holds the
/// file's bytes, so that it plays on when the file changes or goes, together with all other movies of the
/// file, and claims them.
std::unique_ptr<QMovie> readMovie(const QString &path, QString *reason = nullptr);

/// What the reader of such a movie keeps beside the frame that it shows, in bytes.
qint64 bytesBeside(const QMovie &movie);
} // namespace MediaFile
