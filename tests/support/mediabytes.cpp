#include "tests/support/mediabytes.h"

#include <QBuffer>

#include <algorithm>

namespace
{
constexpr int headEnd = 33; // of a PNG file: its mark and its first piece

quint32 checksum(const QByteArray &bytes)
{
    quint32 sum = 0xffffffff;
    for (const char byte : bytes) {
        sum ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum >> 1 ^ (sum & 1 ? 0xedb88320 : 0);
    }
    return ~sum;
}
} // namespace

QByteArray MediaBytes::encoded(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

QByteArray MediaBytes::littleEndian(qint64 value, int length)
{
    QByteArray bytes;
    for (int i = 0; i < length; ++i)
        bytes += char(value >> 8 * i & 0xff);
    return bytes;
}

QByteArray MediaBytes::bigEndian(qint64 value)
{
    QByteArray bytes = littleEndian(value, 4);
    std::reverse(bytes.begin(), bytes.end());
    return bytes;
}

QByteArray MediaBytes::pngChunk(const QByteArray &type, const QByteArray &content)
{
    return bigEndian(content.size()) + type + content + bigEndian(checksum(type + content));
}

QByteArray MediaBytes::withChunks(QByteArray png, const QByteArray &chunks)
{
    return png.insert(headEnd, chunks);
}

QByteArray MediaBytes::icon(const QVector<IconPicture> &pictures, int type)
{
    QByteArray entries = littleEndian(0, 2) + littleEndian(type, 2) + littleEndian(pictures.size(), 2);
    QByteArray contents;
    const int begin = entries.size() + 16 * pictures.size();
    for (const IconPicture &picture : pictures) {
        entries += littleEndian(picture.width, 1) + littleEndian(picture.height, 1) + littleEndian(0, 2) +
                   littleEndian(1, 2) + littleEndian(32, 2) + littleEndian(picture.bytes.size(), 4) +
                   littleEndian(begin + contents.size(), 4);
        contents += picture.bytes;
    }
    return entries + contents;
}

QByteArray MediaBytes::iconBitmap(int width, int height, int area)
{
    return littleEndian(40, 4) + littleEndian(width, 4) + littleEndian(height, 4) + littleEndian(1, 2) +
           littleEndian(32, 2) + QByteArray(24, char(0)) + QByteArray(5 * area + 1024, char(0));
}

QByteArray MediaBytes::gzipped(const QByteArray &bytes)
{
    // What the toolkit packs stands between a length with two bytes more and a checksum of another kind.
    const QByteArray packed = qCompress(bytes, 9);
    return QByteArray::fromHex("1f8b08000000000000ff") + packed.mid(6, packed.size() - 10) +
           littleEndian(checksum(bytes), 4) + littleEndian(bytes.size(), 4);
}

QByteArray MediaBytes::svg(const QByteArray &content, const QByteArray &beforeIt)
{
    return beforeIt +
           "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
           "width='30' height='20'>" +
           content + "</svg>";
}
