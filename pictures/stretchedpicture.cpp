#include "pictures/stretchedpicture.h"

#include "pictures/mediafile.h"

#include <QPainter>

namespace
{
/// Of the largest copy, in pixels: of one larger still only a part is ever in view.
constexpr qint64 maximumCopyArea = 64 * 1024 * 1024;

/// The image in the format that is drawn fastest. Not a pixmap, which has no more colours than the display.
QImage readyToDraw(const QImage &image)
{
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                         : QImage::Format_RGB32);
}
} // namespace

void StretchedPicture::setImage(const QImage &image)
{
    m_image = image;
    m_stretched = QImage();
}

void StretchedPicture::draw(QPainter &painter, QSize size)
{
    if (isNull() || size.isEmpty())
        return;
    if (m_stretched.size() != size)
        stretch(size);
    if (m_stretched.isNull())
        painter.drawImage(QRect(QPoint(), size), m_image);
    else
        painter.drawImage(0, 0, m_stretched);
}

void StretchedPicture::stretch(QSize size)
{
    m_stretched = QImage();
    m_stretchedClaim.take(0);
    const bool isWithin = MediaFile::isWithin(size, maximumCopyArea);
    // The second half is for pictures: no copy of one may keep another from being read.
    const bool isAffordable = MemoryClaim::left() > MemoryClaim::maximum / 2;
    if (isWithin && isAffordable && m_stretchedClaim.take(MediaFile::bytesOf(size)))
        m_stretched = readyToDraw(m_image.scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation));
}
