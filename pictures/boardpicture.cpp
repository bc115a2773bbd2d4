#include "pictures/boardpicture.h"

#include "model/keys.h"
#include "model/namedcolor.h"
#include "model/pixels.h"
#include "pictures/itempicture.h"

#include <QJsonArray>
#include <QPainter>

namespace
{
constexpr int maximumSide = 32767;
constexpr qint64 maximumArea = 256 * 1024 * 1024;

QJsonObject parametersOf(const QJsonObject &layout)
{
    return layout.value(Keys::parameters()).toObject();
}

QColor backgroundOf(const QJsonObject &layout)
{
    return namedColor(parametersOf(layout).value(Keys::backgroundColor()).toString());
}

} // namespace

QSize BoardPicture::sizeOf(const QJsonObject &layout)
{
    const QJsonObject parameters = parametersOf(layout);
    const QSize size(wholeNumber(parameters.value(Keys::width())),
                     wholeNumber(parameters.value(Keys::height())));
    return size.expandedTo(QSize(0, 0)).boundedTo(QSize(maximumPixels, maximumPixels));
}

bool BoardPicture::isPaintable(QSize size)
{
    return size.width() <= maximumSide && size.height() <= maximumSide &&
           qint64(size.width()) * size.height() <= maximumArea;
}

QImage BoardPicture::blank(QSize size, const QColor &background)
{
    if (size.isEmpty() || !isPaintable(size))
        return {};
    if (background.alpha() == 255)
        return QImage(size, QImage::Format_RGB32);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage BoardPicture::of(const QJsonObject &layout)
{
    const QColor background = backgroundOf(layout);
    QImage image = blank(sizeOf(layout), background);
    if (image.isNull())
        return image;
    QPainter painter(&image);
    painter.fillRect(image.rect(), background);
    const QJsonArray items = layout.value(Keys::items()).toArray();
    ItemPicture::Files files;
    for (const QJsonValue &item : items)
        ItemPicture::paint(painter, item.toObject(), image.size(), files);
    return image;
}
