#include "viewers/stretchedpicture.h"

#include "viewers/mediafile.h"

#include <QPainter>

void StretchedPicture::setImage(const QImage &image)
{
    m_image = image;
    m_stretched = QPixmap();
}

void StretchedPicture::draw(QPainter &painter, QSize size)
{
    if (isNull() || size.isEmpty())
        return;
    if (MediaFile::isWithin(size, MediaFile::maximumPictureArea))
        painter.drawPixmap(0, 0, stretched(size));
    else
        painter.drawImage(QRect(QPoint(), size), m_image); // of a copy that large only a part is ever in view
}

const QPixmap &StretchedPicture::stretched(QSize size)
{
    if (m_stretched.size() != size)
        m_stretched = QPixmap::fromImage(m_image.scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation));
    return m_stretched;
}
