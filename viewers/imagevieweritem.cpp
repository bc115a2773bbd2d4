#include "viewers/imagevieweritem.h"

#include "pictures/mediafile.h"

ImageViewerItem::ImageViewerItem(QWidget *parent) : MediaViewer(QStringLiteral("Image Viewer"), parent) {}

void ImageViewerItem::openFile(const QString &path)
{
    QString reason;
    std::shared_ptr<const SharedPicture> source = SharedPicture::in(path, &reason);
    if (!source)
        return tellOfLimit(path, reason);
    m_picture.setImage(source->image());
    m_source = std::move(source);
    takeSize(m_source->image().size());
}

void ImageViewerItem::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    paintPicture(m_picture);
}
