#pragma once

#include <QByteArray>

/// How the first picture of a TIFF file is cut into strips or tiles.
struct TiffLayout {
    /// What one of them takes unpacked, in bytes: a reader has room for one beside the picture, which may be
    /// far smaller. Negative when the file does not tell.
    static qint64 partBytes(const QByteArray &tiff);
};
