#pragma once

#include "pictures/memoryclaim.h"

#include <QImage>

class QPainter;

/// A picture that is drawn stretched, without smoothing and without regard to its proportions. The stretched
/// copy is kept, so that drawing once more is one blit.
class StretchedPicture
{
public:
    bool isNull() const { return m_image.isNull(); }

    /// Shares the image, which is claimed where it comes from.
    void setImage(const QImage &image);

    /// Draws the picture at the origin in this size (px); nothing for an empty size.
    void draw(QPainter &painter, QSize size);

private:
    void stretch(QSize size);

    QImage m_image;
    QImage m_stretched; // null until it is drawn, and while no copy can be kept
    MemoryClaim m_stretchedClaim;
};
