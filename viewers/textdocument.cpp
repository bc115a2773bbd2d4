#include "viewers/textdocument.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QUrl>

namespace
{
constexpr qint64 maximumArea = 4 * 1024 * 1024; // pixels of one picture

/// Not null: for a picture that is null the toolkit would look into files by itself.
QImage leftOut()
{
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage decoded(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    if (!size.isValid() || qint64(size.width()) * size.height() > maximumArea)
        return {};
    return reader.read();
}
} // namespace

QVariant TextDocument::loadResource(int type, const QUrl &name)
{
    if (type != QTextDocument::ImageResource)
        return QByteArray("");
    const bool isCarried = name.scheme() == QLatin1String("data");
    const QImage image =
        isCarried ? decoded(QTextDocument::loadResource(type, name).toByteArray()) : QImage();
    return image.isNull() ? leftOut() : image;
}
