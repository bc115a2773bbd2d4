#pragma once

#include <QByteArray>
#include <QSize>

/// The picture of an icon or mouse pointer file that is shown: its first.
struct IconEntry {
    QByteArray png; ///< the picture when it is a PNG file of its own, of any size; else empty
    QSize size;     ///< of any other, px; empty when there is none

    /// Of bytes that may be anything and end anywhere.
    static IconEntry of(const QByteArray &icon);
};
