#pragma once

#include <QByteArray>
#include <QColor>
#include <QSize>
#include <QVector>

/// An animated GIF, made byte by byte for tests: every frame is of one colour and as large as the screen that
/// the header tells.
struct Gif {
    QSize size;
    QVector<QColor> frames;
    int delay = 2; ///< of every frame, in hundredths of a second
    int plays = 0; ///< how often it asks to be played; 0 for without end

    QByteArray bytes() const;
};
