#include "pictures/tifflayout.h"

#include "pictures/bytereader.h"

namespace
{
constexpr int entryLength = 12;
constexpr int bitsOfByte = 8;

enum Tag : quint16 {
    Width = 256,
    Height = 257,
    BitsPerSample = 258,
    Samples = 277,
    RowsPerStrip = 278,
    TileWidth = 322,
    TileHeight = 323
};

/// The first directory of a file.
class Directory
{
public:
    explicit Directory(const QByteArray &tiff)
        : m_bytes(tiff),
          m_isLittle(tiff.startsWith(QByteArray("II*\0", 4))),
          m_isKnown(m_isLittle || tiff.startsWith(QByteArray("MM\0*", 4))),
          m_place(number<quint32>(4)),
          m_count(number<quint16>(m_place))
    {
    }

    bool isKnown() const { return m_isKnown && m_bytes.has(m_place, 2 + entryLength * qint64(m_count)); }

    /// The first value of the tag.
    qint64 value(Tag tag, qint64 byDefault) const
    {
        for (int i = 0; i < m_count; ++i) {
            const qint64 entry = m_place + 2 + entryLength * qint64(i);
            if (number<quint16>(entry) == tag)
                return valueIn(entry);
        }
        return byDefault;
    }

private:
    template <class Number>
    Number number(qint64 place) const
    {
        return m_isLittle ? m_bytes.little<Number>(place) : m_bytes.big<Number>(place);
    }

    qint64 valueIn(qint64 entry) const
    {
        constexpr quint16 shortType = 3;
        const bool isShort = number<quint16>(entry + 2) == shortType;
        // More than four bytes of values lie elsewhere.
        const quint32 inPlace = isShort ? 2 : 1;
        const qint64 place = number<quint32>(entry + 4) <= inPlace ? entry + 8 : number<quint32>(entry + 8);
        return isShort ? number<quint16>(place) : number<quint32>(place);
    }

    ByteReader m_bytes;
    bool m_isLittle;
    bool m_isKnown;
    qint64 m_place;
    int m_count;
};
} // namespace

qint64 TiffLayout::partBytes(const QByteArray &tiff)
{
    const Directory directory(tiff);
    if (!directory.isKnown())
        return -1;
    const qint64 height = directory.value(Height, 0);
    const qint64 width = directory.value(TileWidth, directory.value(Width, 0));
    const qint64 rows = directory.value(TileHeight, qMin(height, directory.value(RowsPerStrip, height)));
    // Numbers of 32 and of 16 bits: a fraction is as good, and cannot overflow.
    const double bytes = double(width) * double(rows) * double(directory.value(Samples, 1)) *
                         double(directory.value(BitsPerSample, 1)) / bitsOfByte;
    return bytes < double(Q_INT64_C(1) << 60) ? qint64(bytes) : -1;
}
