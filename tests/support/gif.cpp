#include "tests/support/gif.h"

namespace
{
constexpr char clearTable = char(0x80);
constexpr char endOfFrame = char(0x81);
constexpr int pixelsPerTable = 100;
constexpr int bytesPerBlock = 255;

QByteArray word(int value)
{
    return QByteArray(1, char(value & 0xff)) + char(value >> 8 & 0xff);
}

QByteArray inBlocks(const QByteArray &bytes)
{
    QByteArray blocks;
    for (int i = 0; i < bytes.size(); i += bytesPerBlock) {
        const QByteArray block = bytes.mid(i, bytesPerBlock);
        blocks += char(block.size()) + block;
    }
    return blocks + char(0);
}

/// Codes of eight bits, each a pixel of the second colour: the table is cleared before longer ones are due.
QByteArray pixels(int count)
{
    QByteArray table(pixelsPerTable + 1, char(1));
    table[0] = clearTable;
    const QByteArray all = table.repeated(count / pixelsPerTable) + table.left(count % pixelsPerTable + 1);
    return char(7) + inBlocks(all + endOfFrame);
}

QByteArray control(int delay)
{
    return QByteArray("\x21\xf9\x04\x00", 4) + word(delay) + QByteArray(2, char(0));
}

QByteArray loops(int plays)
{
    if (plays == 1)
        return {};
    return QByteArray("\x21\xff\x0bNETSCAPE2.0\x03\x01") + word(qMax(0, plays - 1)) + char(0);
}

/// The head of a frame in the corner of the screen, with a table of two colours: black and its own.
QByteArray head(QSize size, const QColor &color)
{
    return ',' + QByteArray(4, char(0)) + word(size.width()) + word(size.height()) + char(0x80) +
           QByteArray(3, char(0)) + char(color.red()) + char(color.green()) + char(color.blue());
}
} // namespace

QByteArray Gif::bytes() const
{
    QByteArray gif =
        "GIF89a" + word(size.width()) + word(size.height()) + QByteArray(3, char(0)) + loops(plays);
    const QByteArray codes = pixels(size.width() * size.height());
    for (const QColor &color : frames)
        gif += control(delay) + head(size, color) + codes;
    return gif + ';';
}
