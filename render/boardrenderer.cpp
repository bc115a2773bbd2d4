#include "render/boardrenderer.h"

#include "canvas/screen.h"
#include "canvas/screenpicture.h"
#include "model/layoutfile.h"

#include <QCoreApplication>

namespace
{
QString text(const char *sourceText)
{
    return QCoreApplication::translate("BoardRenderer", sourceText);
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
    const QImage picture = pictureOf(screen);
    if (picture.isNull())
        return text("Cannot render %1: no picture can be %2 x %3 pixels.")
            .arg(layoutPath, QString::number(screen.width()), QString::number(screen.height()));
    const QString error = savePicture(picture, picturePath);
    return error.isNull() ? error : text("Cannot write %1: %2").arg(picturePath, error);
}
