#include "render/boardrenderer.h"

#include "model/layoutfile.h"
#include "pictures/boardpicture.h"
#include "pictures/picturefile.h"
#include "render/boardletters.h"
#include "render/pngbytes.h"

#include <QCoreApplication>

namespace
{
QString text(const char *sourceText)
{
    return QCoreApplication::translate("BoardRenderer", sourceText);
}

QString whyNoPicture(const QString &layoutPath, const QJsonObject &layout)
{
    const QSize size = BoardPicture::sizeOf(layout);
    return text("Cannot render %1: no picture can be %2 x %3 pixels.")
        .arg(layoutPath, QString::number(size.width()), QString::number(size.height()));
}
} // namespace

QString BoardRenderer::render(const QString &layoutPath, const QString &picturePath)
{
    const LayoutFile::Document document = LayoutFile::read(layoutPath);
    if (!document.error.isNull())
        return text("Cannot read %1: %2").arg(layoutPath, document.error);
    if (LayoutFile::hasTooManyItems(document.layout))
        return text("Cannot read %1: the layout holds more than %2 items.")
            .arg(layoutPath, QString::number(LayoutFile::maximumItems));
    BoardLetters::loadFonts(document.layout);
    const QImage picture = BoardPicture::of(document.layout);
    if (picture.isNull())
        return whyNoPicture(layoutPath, document.layout);
    const QString error = PictureFile::save(picture, picturePath, &PngBytes::of);
    return error.isNull() ? error : text("Cannot write %1: %2").arg(picturePath, error);
}
