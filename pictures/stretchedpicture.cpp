#include "pictures/stretchedpicture.h"

#include "pictures/mediafile.h"

#include <QPainter>

bool StretchedPicture::setImage(const QImage &image)
{
    if (!m_imageClaim.take(image.sizeInBytes()))
        return false;
    m_image = image;
    m_stretched = QPixmap();
    return true;
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
        painter.drawPixmap(0, 0, m_stretched);
}

void StretchedPicture::stretch(QSize size)
{
    m_stretched = QPixmap();
    m_stretchedClaim.take(0);
    // Of a copy that large only a part is ever in view.
    const bool isWithin = MediaFile::isWithin(size, MediaFile::maximumPictureArea);
    // The second half is for pictures: no copy of one may keep another from being read.
    const bool isAffordable = MemoryClaim::left() > MemoryClaim::maximum / 2;
    if (isWithin && isAffordable && m_stretchedClaim.take(MediaFile::bytesOf(size)))
        m_stretched = QPixmap::fromImage(m_image.scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation));
}
