#pragma once

#include "pictures/stretchedpicture.h"
#include "viewers/mediaviewer.h"

/// The content of an image item: one still picture, stretched over the item.
class ImageViewerItem : public MediaViewer
{
    Q_OBJECT

public:
    explicit ImageViewerItem(QWidget *parent);

protected:
    void openFile(const QString &path) override;
    void paintEvent(QPaintEvent *event) override;

private:
    StretchedPicture m_picture;
};
