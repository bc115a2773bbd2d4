#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>

/// How a picture or movie is to be decoded, and what that takes: known before anything is decoded.
struct MediaPlan {
    /// So many passes over a progressive picture of the largest area that is wanted; more over a smaller one.
    static constexpr int maximumPasses = 100;

    /// The largest such picture that may be gone over as often, in pixels.
    static constexpr qint64 maximumPassedArea = 64 * 1024 * 1024;

    QByteArray bytes;       ///< for the toolkit: unpacked, and without what the picture can do without
    QByteArray format;      ///< of these bytes, in the toolkit's words; empty when nobody reads them
    QSize size;             ///< that will be allocated, px; empty for what cannot be read
    int bits = 32;          ///< for a pixel of it
    qint64 extraBytes = 0;  ///< while it is decoded: of pictures in a drawing, of parts, between passes
    int copies = 0;         ///< of the picture that a movie's reader keeps beside the frame it has told
    int elements = 0;       ///< of a drawing, each as often as it is used
    double drawingTime = 0; ///< of a drawing, roughly, in nanoseconds
    bool isMovie = false;   ///< has more than one frame
    QString refusal;        ///< why it cannot be read though somebody would; else empty

    /// For bytes that may be anything, from a file whose name has the suffix. A picture of more pixels than
    /// the area is refused.
    static MediaPlan of(QByteArray bytes, qint64 area, const QString &suffix = QString());

    bool isReadable() const { return refusal.isEmpty() && !size.isEmpty(); }

    /// Of the decoded picture and what it carries, in bytes.
    qint64 pictureBytes() const;
};
