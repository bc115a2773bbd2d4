#include "pictures/iconentry.h"

#include "pictures/bytereader.h"
#include "pictures/pngchunks.h"

#include <climits>

namespace
{
constexpr qint64 entryPlace = 6;

/// A side that the entry leaves open is that of the bitmap.
int side(int ofEntry, qint64 ofBitmap)
{
    return ofEntry ? ofEntry : int(qBound(qint64(0), ofBitmap, qint64(INT_MAX)));
}
} // namespace

IconEntry IconEntry::of(const QByteArray &icon)
{
    const ByteReader bytes(icon);
    const auto length = bytes.little<quint32>(entryPlace + 8);
    const auto place = bytes.little<quint32>(entryPlace + 12);
    if (bytes.little<quint16>(4) == 0 || place >= quint32(icon.size()))
        return {};
    const QByteArray beginning = icon.mid(int(place), 8);
    if (PngChunks::isPng(beginning))
        return {icon.mid(int(place), int(qMin(length, quint32(INT_MAX)))), QSize()};
    // The bitmap is twice as high: its mask follows.
    return {QByteArray(), QSize(side(bytes.byte(entryPlace), bytes.little<qint32>(place + 4)),
                                side(bytes.byte(entryPlace + 1), bytes.little<qint32>(place + 8) / 2))};
}
