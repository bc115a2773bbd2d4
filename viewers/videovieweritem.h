#pragma once

#include "pictures/stretchedpicture.h"
#include "viewers/mediaviewer.h"

/// The content of a video item: it keeps the path for whoever plays the layout and shows nothing here. No
/// road leads to it yet: the table of kinds leaves it out on purpose.
class VideoViewerItem : public MediaViewer
{
    Q_OBJECT

public:
    explicit VideoViewerItem(QWidget *parent);

protected:
    /// Writes the path to the debug log. Nothing is loaded, and the item keeps its size.
    void openFile(const QString &path) override;
    void paintEvent(QPaintEvent *event) override;

private:
    StretchedPicture m_picture; // stays empty
};
