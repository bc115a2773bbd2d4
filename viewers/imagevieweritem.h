#pragma once

#include "pictures/sharedpicture.h"
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
    std::shared_ptr<const SharedPicture> m_source;
    StretchedPicture m_picture;
};
