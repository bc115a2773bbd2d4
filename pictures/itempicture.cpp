#include "pictures/itempicture.h"

#include "model/keys.h"
#include "model/pixels.h"
#include "model/storedvalue.h"
#include "pictures/itemgeometry.h"
#include "pictures/mediakeys.h"
#include "pictures/moviepicture.h"
#include "pictures/shapepicture.h"
#include "pictures/sharedpicture.h"
#include "pictures/stillpicture.h"
#include "pictures/textpicture.h"

#include <QJsonObject>
#include <QMap>
#include <QPainter>

#include <algorithm>
#include <iterator>

namespace
{
using Values = QMap<QString, QVariant>;
using ItemGeometry::Reading;

struct Kind {
    const char *type;
    Reading reading;
    void (*paint)(QPainter &painter, const Values &values, QSize size);
};

constexpr Kind kinds[] = {
    {"Text", Reading::OneByOne, &TextPicture::paint},
    {"Shape", Reading::OneByOne, &ShapePicture::paint},
    {"Image Viewer", Reading::AtOnce, &StillPicture::paint},
    {"Animation Viewer", Reading::AtOnce, &MoviePicture::paint},
};

const Kind *find(const QString &type)
{
    const auto found = std::find_if(std::begin(kinds), std::end(kinds),
                                    [&type](const Kind &kind) { return type == QLatin1String(kind.type); });
    return found == std::end(kinds) ? nullptr : found;
}

Values valuesOf(const QJsonObject &item)
{
    Values values;
    for (auto value = item.begin(); value != item.end(); ++value)
        values.insert(values.cend(), value.key(), storedValue(*value));
    return values;
}

QRect storedGeometry(const Values &values)
{
    return {toPixels(values.value(Keys::x())), toPixels(values.value(Keys::y())),
            toPixels(values.value(Keys::w())), toPixels(values.value(Keys::h()))};
}
} // namespace

void ItemPicture::paint(QPainter &painter, const QJsonObject &item, QSize screen, Files &files)
{
    const Kind *kind = find(item.value(Keys::type()).toString());
    if (!kind)
        return;
    const Values values = valuesOf(item);
    const QRect geometry = ItemGeometry::landing(storedGeometry(values), kind->reading, screen);
    // Also what is out of sight: whether a picture is read depends on those before it.
    if (kind->paint == &StillPicture::paint)
        files.push_back(SharedPicture::in(values.value(MediaKeys::path()).toString()));
    const bool hasNoFile = kind->paint == &StillPicture::paint && !files.back();
    if (hasNoFile || !geometry.intersects(QRect(QPoint(), screen)))
        return;
    painter.save();
    painter.translate(geometry.topLeft());
    painter.setClipRect(QRect(QPoint(), geometry.size()));
    kind->paint(painter, values, geometry.size());
    painter.restore();
}
