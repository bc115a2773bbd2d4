#include "canvas/screenpicture.h"

#include "canvas/screen.h"
#include "model/filewriting.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImageWriter>

namespace
{
QString text(const char *sourceText)
{
    return QCoreApplication::translate("ScreenPicture", sourceText);
}

// The toolkit's painter works up to this coordinate; the area keeps one picture below a gigabyte.
constexpr int maximumSide = 32767;
constexpr qint64 maximumArea = 256 * 1024 * 1024;

bool isPaintable(QSize size)
{
    return size.width() <= maximumSide && size.height() <= maximumSide &&
           qint64(size.width()) * size.height() <= maximumArea;
}

/// One pixel of the picture for each of the screen; grab() would multiply them on a scaled desktop. Without
/// the window's background, so that a translucent board looks alike in the editor and in a batch. No pixmap
/// either: on a display of few colours it would have no more than those.
QImage painted(Screen &screen)
{
    const bool isOpaque = screen.backgroundColor().alpha() == 255;
    QImage picture(screen.size(), isOpaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull())
        return picture;
    if (!isOpaque)
        picture.fill(Qt::transparent);
    screen.render(&picture, QPoint(), QRegion(), QWidget::DrawChildren | QWidget::IgnoreMask);
    return picture;
}
} // namespace

QImage pictureOf(Screen &screen)
{
    if (!isPaintable(screen.size()))
        return {};
    screen.goToRenderMode();
    const QImage picture = painted(screen);
    screen.goOutRenderMode();
    return picture;
}

QString savePicture(const QImage &picture, const QString &path)
{
    const QByteArray format = QFileInfo(path).suffix().toLatin1().toLower();
    if (!QImageWriter::supportedImageFormats().contains(format))
        return text("a picture's name ends in .png, .jpg, .jpeg or .bmp.");
    QBuffer bytes;
    if (!picture.save(&bytes, format.constData()))
        return text("no picture of this kind can hold the board.");
    return FileWriting::write(path, bytes.data());
}
