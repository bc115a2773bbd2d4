#pragma once

#include <QByteArray>
#include <QSize>

/// What the blocks of a GIF file say of its frames.
struct GifFrames {
    QSize canvas;          ///< that every frame is drawn on, px; empty when there is none
    bool isMovie = false;  ///< has more than one frame
    bool goesBack = false; ///< has a frame that gives way to what was there before, of which a copy is kept

    /// Of bytes that may be anything and end anywhere.
    static GifFrames of(const QByteArray &gif);
};
