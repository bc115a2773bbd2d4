#include "pictures/gunzip.h"

#include <zlib.h>

namespace
{
constexpr int gzipWindow = 16 + MAX_WBITS; // with the header of a gzip file

/// The length of what was unpacked, negative when that is not all.
qint64 unpack(QByteArray packed, QByteArray &unpacked)
{
    z_stream stream = {};
    stream.next_in = reinterpret_cast<Bytef *>(packed.data());
    stream.avail_in = uInt(packed.size());
    stream.next_out = reinterpret_cast<Bytef *>(unpacked.data());
    stream.avail_out = uInt(unpacked.size());
    if (inflateInit2(&stream, gzipWindow) != Z_OK)
        return -1;
    const bool isWhole = inflate(&stream, Z_FINISH) == Z_STREAM_END;
    inflateEnd(&stream);
    return isWhole ? unpacked.size() - qint64(stream.avail_out) : -1;
}
} // namespace

QByteArray gunzip(const QByteArray &packed, int maximum)
{
    QByteArray unpacked(maximum, Qt::Uninitialized);
    const qint64 length = unpack(packed, unpacked);
    return length < 0 ? QByteArray() : unpacked.left(int(length));
}
