#include "canvas/screenpicture.h"

#include "canvas/screen.h"

namespace
{
// The toolkit's painter works up to this coordinate; the area keeps one picture below a gigabyte.
constexpr int maximumSide = 32767;
constexpr qint64 maximumArea = 256 * 1024 * 1024;

bool isPaintable(QSize size)
{
    return size.width() <= maximumSide && size.height() <= maximumSide &&
           qint64(size.width()) * size.height() <= maximumArea;
}
} // namespace

QPixmap pictureOf(Screen &screen)
{
    if (!isPaintable(screen.size()))
        return {};
    screen.goToRenderMode();
    const QPixmap picture = screen.grab();
    screen.goOutRenderMode();
    return picture;
}
