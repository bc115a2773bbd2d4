#pragma once

#include "pictures/memoryclaim.h"

#include <QImage>
#include <QPixmap>

class QPainter;

/// A picture that is drawn stretched, without smoothing and without regard to its proportions. The stretched
/// copy is kept, so that drawing once more is one blit.
class StretchedPicture
{
public:
    bool isNull() const { return m_image.isNull(); }

    /// False when pictures hold too much memory already; then the former one stays.
    bool setImage(const QImage &image);

    /// Draws the picture at the origin in this size (px); nothing for an empty size.
    void draw(QPainter &painter, QSize size);

private:
    void stretch(QSize size);

    QImage m_image;
    QPixmap m_stretched; // null until it is drawn, and while no copy can be kept
    MemoryClaim m_imageClaim;
    MemoryClaim m_stretchedClaim;
};
