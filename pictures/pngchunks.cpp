#include "pictures/pngchunks.h"

#include "pictures/bytereader.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace
{
constexpr int headLength = 8;   // the length and the type
constexpr int frameLength = 12; // the same and the checksum

/// What is no part of the picture itself, but of its colours and its place, in a few bytes each. A second one
/// of a type would be worth a warning of the reader, and there may be millions.
class Additions
{
public:
    bool takes(const QByteArray &type)
    {
        static constexpr std::array<const char *, 7> known = {"tRNS", "gAMA", "cHRM", "sRGB",
                                                              "sBIT", "pHYs", "oFFs"};
        const auto *const at = std::find(known.begin(), known.end(), type);
        if (at == known.end())
            return false;
        bool &isTaken = m_isTaken[std::size_t(at - known.begin())];
        return !std::exchange(isTaken, true);
    }

private:
    std::array<bool, 7> m_isTaken{};
};

/// By the case of its first letter a piece tells whether the picture needs it.
bool isNeeded(const QByteArray &type)
{
    return !type.isEmpty() && type.at(0) >= 'A' && type.at(0) <= 'Z';
}
} // namespace

bool PngChunks::isPng(const QByteArray &bytes)
{
    return bytes.startsWith("\x89PNG\r\n\x1a\n");
}

QByteArray PngChunks::slimmed(QByteArray png)
{
    if (!isPng(png))
        return png;
    Additions additions;
    qint64 kept = headLength;
    for (qint64 at = headLength; at < png.size();) {
        const QByteArray type = png.mid(int(at) + 4, 4);
        const qint64 length = frameLength + qint64(ByteReader(png).big<quint32>(at));
        const qint64 present = qMin(length, png.size() - at);
        if (isNeeded(type) || additions.takes(type)) {
            if (kept < at)
                std::memmove(png.data() + kept, png.constData() + at, std::size_t(present));
            kept += present;
        }
        at = type == "IEND" ? png.size() : at + present;
    }
    png.truncate(int(kept));
    return png;
}
