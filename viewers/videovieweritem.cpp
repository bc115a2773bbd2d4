#include "viewers/videovieweritem.h"

#include <QDebug>

VideoViewerItem::VideoViewerItem(QWidget *parent) : MediaViewer(QStringLiteral("Video Viewer"), parent) {}

void VideoViewerItem::openFile(const QString &path)
{
    qDebug() << path;
}

void VideoViewerItem::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    paintPicture(m_picture);
}
