#include "pictures/gifframes.h"

#include "pictures/bytereader.h"

namespace
{
constexpr char extension = '!';
constexpr char image = ',';
constexpr quint8 control = 0xf9;
constexpr int headerLength = 13;
constexpr int imageLength = 10;
constexpr int restorePrevious = 3;

class Walk
{
public:
    explicit Walk(const QByteArray &gif) : m_bytes(gif), m_at(headerLength + tableLength(10)) {}

    GifFrames frames()
    {
        m_frames.canvas = QSize(m_bytes.little<quint16>(6), m_bytes.little<quint16>(8));
        while (takeBlock()) {
        }
        return m_count > 0 ? m_frames : GifFrames();
    }

private:
    bool takeBlock()
    {
        const auto kind = char(m_bytes.byte(m_at));
        if (kind == extension)
            takeExtension();
        else if (kind == image)
            takeImage();
        return kind == extension || kind == image;
    }

    void takeExtension()
    {
        if (m_bytes.byte(m_at + 1) == control && (m_bytes.byte(m_at + 3) >> 2 & 7) == restorePrevious)
            m_frames.goesBack = true;
        skipBlocks(m_at + 2);
    }

    void takeImage()
    {
        // A side that the header leaves open is that of the first frame.
        const QSize reach(m_bytes.little<quint16>(m_at + 1) + m_bytes.little<quint16>(m_at + 5),
                          m_bytes.little<quint16>(m_at + 3) + m_bytes.little<quint16>(m_at + 7));
        QSize &canvas = m_frames.canvas;
        if (m_count == 0)
            canvas = QSize(canvas.width() ? canvas.width() : reach.width(),
                           canvas.height() ? canvas.height() : reach.height());
        m_frames.isMovie = ++m_count > 1;
        skipBlocks(m_at + imageLength + tableLength(m_at + 9) + 1);
    }

    /// Of the colour table that flags announce, in bytes.
    int tableLength(qint64 flagsPlace) const
    {
        const quint8 flags = m_bytes.byte(flagsPlace);
        return flags & 0x80 ? 3 * (2 << (flags & 7)) : 0;
    }

    void skipBlocks(qint64 place)
    {
        for (m_at = place; m_bytes.byte(m_at) > 0;)
            m_at += 1 + m_bytes.byte(m_at);
        ++m_at;
    }

    ByteReader m_bytes;
    qint64 m_at = 0;
    qint64 m_count = 0;
    GifFrames m_frames;
};
} // namespace

GifFrames GifFrames::of(const QByteArray &gif)
{
    return Walk(gif).frames();
}
