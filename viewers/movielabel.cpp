#include "viewers/movielabel.h"

#include <QMovie>
#include <QPainter>

MovieLabel::MovieLabel(QWidget *parent) : QLabel(parent)
{
    // A new frame then marks the whole label, whatever the frame's own size.
    setScaledContents(true);
}

void MovieLabel::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    if (!movie())
        return;
    QPainter painter(this);
    painter.drawPixmap(rect(), movie()->currentPixmap());
}
