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
/// the window's background, so that a translucent board looks alike in the editor and in a batch.
QPixmap painted(Screen &screen)
{
    QPixmap picture(screen.size());
    if (picture.isNull())
        return picture;
    if (screen.backgroundColor().alpha() < 255)
        picture.fill(Qt::transparent);
    screen.render(&picture, QPoint(), QRegion(), QWidget::DrawChildren | QWidget::IgnoreMask);
    return picture;
}
} // namespace

QPixmap pictureOf(Screen &screen)
{
    if (!isPaintable(screen.size()))
        return {};
    screen.goToRenderMode();
    const QPixmap picture = painted(screen);
    screen.goOutRenderMode();
    return picture;
}

QString savePicture(const QPixmap &picture, const QString &path)
{
    const QByteArray format = QFileInfo(path).suffix().toLatin1().toLower();
    if (!QImageWriter::supportedImageFormats().contains(format))
        return text("a picture's name ends in .png, .jpg, .jpeg or .bmp.");
    QBuffer bytes;
    if (!picture.save(&bytes, format.constData()))
        return text("no picture of this kind can hold the board.");
    return FileWriting::write(path, bytes.data());
}
