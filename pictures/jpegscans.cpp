#include "pictures/jpegscans.h"

#include "pictures/bytereader.h"

#include <string_view>

namespace
{
constexpr quint8 mark = 0xff;
constexpr quint8 scan = 0xda;
constexpr int bytesOfCoefficient = 2;

int passesIn(const QByteArray &jpeg)
{
    const std::string_view bytes(jpeg.constData(), std::size_t(jpeg.size()));
    constexpr char beginning[] = "\xff\xda";
    int passes = 0;
    for (auto at = bytes.find(beginning); at != std::string_view::npos; at = bytes.find(beginning, at + 1))
        ++passes;
    return passes;
}

/// The head of the picture; tables have types among its own.
bool isFrame(quint8 type)
{
    return type >= 0xc0 && type <= 0xcf && type != 0xc4 && type != 0xc8 && type != 0xcc;
}

/// Progressive ways of either coding have this bit, the sequential and lossless ones do not.
bool isProgressive(quint8 type)
{
    return (type & 3) == 2;
}

int bytesKeptIn(const QByteArray &jpeg)
{
    const ByteReader bytes(jpeg);
    int components = 0;
    bool isKept = false;
    for (qint64 at = 2; bytes.byte(at) == mark;) {
        const quint8 type = bytes.byte(at + 1);
        if (isFrame(type)) {
            components = bytes.byte(at + 9);
            isKept = isProgressive(type);
        }
        // A pass over some of the components leaves others for later.
        if (type == scan)
            return isKept || bytes.byte(at + 4) < components ? bytesOfCoefficient * components : 0;
        // A mark may be drawn out.
        at += type == mark ? 1 : 2 + bytes.big<quint16>(at + 2);
    }
    return 0;
}
} // namespace

JpegScans JpegScans::of(const QByteArray &jpeg)
{
    return {passesIn(jpeg), bytesKeptIn(jpeg)};
}
