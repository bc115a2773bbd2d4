#pragma once

#include <QByteArray>

/// How a JPEG file goes over its picture.
struct JpegScans {
    /// How often at most. A progressive file goes over its picture more than once, and every pass takes its
    /// time and but a few bytes. All that may be the beginning of one is counted; what films and thumbnails
    /// in the file add to that leaves photos within any sensible measure.
    int passes = 0;

    /// What a decoder keeps for every pixel from one pass to the next beside the picture, in bytes.
    int bytesKept = 0;

    /// Of bytes that may be anything and end anywhere.
    static JpegScans of(const QByteArray &jpeg);
};
