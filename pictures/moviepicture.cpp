#include "pictures/moviepicture.h"

#include "pictures/mediafile.h"
#include "pictures/mediakeys.h"

#include <QMovie>
#include <QPainter>

void MoviePicture::paint(QPainter &painter, const QMap<QString, QVariant> &values, QSize size)
{
    const std::unique_ptr<QMovie> movie = MediaFile::readMovie(values.value(MediaKeys::path()).toString());
    if (!movie || size.isEmpty())
        return;
    // One too large is stretched while it is drawn.
    if (MediaFile::isWithin(size, MediaFile::maximumFrameArea))
        movie->setScaledSize(size);
    if (movie->jumpToFrame(0))
        painter.drawPixmap(QRect(QPoint(), size), movie->currentPixmap());
}
