#pragma once

#include <QByteArray>
#include <QImage>
#include <QVector>

/// Media files, made byte by byte for tests: also such as no program would write.
namespace MediaBytes
{
/// A picture in one of the toolkit's formats.
QByteArray encoded(const QImage &image, const char *format);

/// The value as its bytes, the lowest first.
QByteArray littleEndian(qint64 value, int length);

/// The value as four bytes, the highest first.
QByteArray bigEndian(qint64 value);

/// A piece of a PNG file with its length and checksum.
QByteArray pngChunk(const QByteArray &type, const QByteArray &content);

/// The PNG file with pieces behind its head.
QByteArray withChunks(QByteArray png, const QByteArray &chunks);

/// A picture of an icon: what its entry tells of its sides (0 to 255), and its bytes.
struct IconPicture {
    int width;
    int height;
    QByteArray bytes;
};

/// An icon file; a mouse pointer's for type 2.
QByteArray icon(const QVector<IconPicture> &pictures, int type = 1);

/// A black bitmap as icons have them, in 32 bits, whose header tells these sides; the pixels are those of the
/// area.
QByteArray iconBitmap(int width, int height, int area);

/// The bytes in a gzip file.
QByteArray gzipped(const QByteArray &bytes);

/// A drawing of 30 x 20 px with this content.
QByteArray svg(const QByteArray &content, const QByteArray &beforeIt = QByteArray());
} // namespace MediaBytes
