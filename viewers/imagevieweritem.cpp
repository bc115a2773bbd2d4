#include "viewers/imagevieweritem.h"

#include "pictures/mediafile.h"

ImageViewerItem::ImageViewerItem(QWidget *parent) : MediaViewer(QStringLiteral("Image Viewer"), parent) {}

void ImageViewerItem::openFile(const QString &path)
{
    const QImage picture = MediaFile::readPicture(path);
    if (!picture.isNull() && m_picture.setImage(picture))
        takeSize(picture.size());
}

void ImageViewerItem::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    paintPicture(m_picture);
}
