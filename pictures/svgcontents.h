#pragma once

#include "pictures/svgcost.h"
#include "pictures/svgelements.h"

#include <QByteArray>
#include <QString>
#include <QVector>

/// What an SVG drawing asks of whoever draws it.
struct SvgContents {
    /// The longest drawing, in bytes.
    static constexpr int maximumBytes = 4 * 1024 * 1024;

    /// The most elements of a drawing, each counted as often as it is used.
    static constexpr int maximumElements = 50000;

    /// The most bytes of attributes and letters, each counted as often as it is used.
    static constexpr qint64 maximumUsedBytes = 4 * qint64(maximumBytes);

    /// The most elements in one another, with those in what they use.
    static constexpr int maximumDepth = 256;

    int elements = 0;             ///< each counted as often as it is used
    QVector<QByteArray> pictures; ///< that the drawing carries with it, as files of any kind
    QString refusal; ///< why it is not to be drawn: it is damaged, reaches outside or is too much; else empty

    SvgElements tree;
    SvgCost cost; ///< of the elements of the tree

    /// Of bytes that may be anything.
    static SvgContents of(const QByteArray &svg);
};
