#include "render/boardrenderer.h"

#include "canvas/screen.h"
#include "canvas/screenpicture.h"
#include "model/layoutfile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImageWriter>

namespace
{
QString text(const char *sourceText)
{
    return QCoreApplication::translate("BoardRenderer", sourceText);
}

/// The picture goes through a file of ours: the toolkit's own saving by name empties a file whose suffix it
/// does not know, and does not notice a full disk.
QString write(const QPixmap &picture, const QString &path)
{
    const QByteArray format = QFileInfo(path).suffix().toLatin1().toLower();
    if (!QImageWriter::supportedImageFormats().contains(format))
        return text("Cannot write %1: a picture's name ends in .png, .jpg, .jpeg or .bmp.").arg(path);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly) && picture.save(&file, format.constData()) && file.flush())
        return {};
    return text("Cannot write %1: %2").arg(path, file.errorString());
}
} // namespace

QString BoardRenderer::render(const QString &layoutPath, const QString &picturePath)
{
    const LayoutFile::Document document = LayoutFile::read(layoutPath);
    if (!document.error.isNull())
        return text("Cannot read %1: %2").arg(layoutPath, document.error);
    if (Screen::hasTooManyItems(document.layout))
        return text("Cannot read %1: the layout holds more than %2 items.")
            .arg(layoutPath, QString::number(Screen::maximumItems));
    Screen screen;
    screen.loadLayout(document.layout);
    const QPixmap picture = pictureOf(screen);
    if (picture.isNull())
        return text("Cannot render %1: no picture can be %2 x %3 pixels.")
            .arg(layoutPath, QString::number(screen.width()), QString::number(screen.height()));
    return write(picture, picturePath);
}
