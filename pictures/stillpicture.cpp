#include "pictures/stillpicture.h"

#include "pictures/mediakeys.h"
#include "pictures/sharedpicture.h"
#include "pictures/stretchedpicture.h"

#include <QPainter>

void StillPicture::paint(QPainter &painter, const QMap<QString, QVariant> &values, QSize size)
{
    const auto file = SharedPicture::in(values.value(MediaKeys::path()).toString());
    if (!file)
        return;
    StretchedPicture picture;
    picture.setImage(file->image());
    painter.setRenderHint(QPainter::Antialiasing);
    picture.draw(painter, size);
}
