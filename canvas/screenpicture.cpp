#include "canvas/screenpicture.h"

#include "canvas/screen.h"
#include "pictures/boardpicture.h"

namespace
{
/// One pixel of the picture for each of the screen; grab() would multiply them on a scaled desktop. Without
/// the window's background, so that a translucent board looks alike in the editor and in a batch. No pixmap
/// either: on a display of few colours it would have no more than those.
QImage painted(Screen &screen)
{
    QImage picture = BoardPicture::blank(screen.size(), screen.backgroundColor());
    if (!picture.isNull())
        screen.render(&picture, QPoint(), QRegion(), QWidget::DrawChildren | QWidget::IgnoreMask);
    return picture;
}
} // namespace

QImage pictureOf(Screen &screen)
{
    if (!BoardPicture::isPaintable(screen.size()))
        return {};
    screen.goToRenderMode();
    QImage picture = painted(screen);
    screen.goOutRenderMode();
    return picture;
}
