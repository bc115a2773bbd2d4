#pragma once

#include <QImage>
#include <QMovie>
#include <QSize>

#include <memory>

class QIODevice;

/// Reads pictures and movies from files that may be anything. What is no regular file is never opened, what
/// would take too much memory or time is not read, and nobody is told why. What is left of the memory for all
/// media (MemoryClaim) counts, too.
namespace MediaFile
{
/// The largest file that is read, in bytes.
constexpr qint64 maximumBytes = 256 * 1024 * 1024;

/// The largest picture, in pixels: a quarter of a gigabyte in the usual formats.
constexpr qint64 maximumPictureArea = 64 * 1024 * 1024;

/// So many passes over a progressive picture of the largest area that is wanted; more over a smaller one.
constexpr int maximumPasses = 100;

/// The largest frame of a movie, in pixels: they are decoded while the window waits.
constexpr qint64 maximumFrameArea = 16 * 1024 * 1024;

/// True for sizes of no more pixels than the area.
bool isWithin(QSize size, qint64 area);

/// The memory that a decoded picture of the size takes in the usual formats, in bytes.
qint64 bytesOf(QSize size);

/// The picture in the file; a null one for a file that cannot be read as such. One image pixel is one pixel
/// of the screen, whatever the file's name says about scaled desktops.
QImage readPicture(const QString &path);

/// The same from an open device that can go back and forth, for pictures of no more pixels than the area.
QImage readPicture(QIODevice &device, qint64 area);

/// The movie in the file, not yet started; null for a file that cannot be read as such. The movie holds the
/// file's bytes, so that it plays on when the file changes or goes, and one frame at a time.
std::unique_ptr<QMovie> readMovie(const QString &path);
} // namespace MediaFile
