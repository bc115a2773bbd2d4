#pragma once

#include "canvas/screen.h"
#include "canvas/screenitem.h"

#include <QImage>
#include <QLoggingCategory>

/// A canvas of 800 x 400 px with one item of 100 x 50 px at (30, 20) that holds a content of the class.
template <class Content>
struct MediaBoard {
    MediaBoard()
    {
        QLoggingCategory::setFilterRules("default.debug=false");
        screen.setWidgth(800);
        screen.setHeight(400);
        frame = new ScreenItem(&screen);
        frame->setGeometry(30, 20, 100, 50);
        content = new Content(frame);
    }

    void moveToCorner()
    {
        content->setValue("X", 0);
        content->setValue("Y", 0);
    }

    /// What the item looks like on the canvas, without grid and border.
    QImage picture()
    {
        screen.goToRenderMode();
        QImage image(frame->size(), QImage::Format_RGB32);
        screen.render(&image, QPoint(), frame->geometry());
        screen.goOutRenderMode();
        return image;
    }

    QColor color(QPoint position) { return picture().pixelColor(position); }

    Screen screen;
    ScreenItem *frame = nullptr; // owned by the canvas
    Content *content = nullptr;  // owned by the frame
};
