#include "viewers/contentfactory.h"

#include "viewers/animationviewer.h"
#include "viewers/imagevieweritem.h"
#include "viewers/shape.h"
#include "viewers/textoutput.h"

#include <algorithm>
#include <iterator>

namespace
{
template <typename Content>
ContentViewer *make(QWidget *frame)
{
    return new Content(frame);
}

// The roads differ by kind: the icon says that a click creates the kind, the last columns whether a drop and
// a file (or a paste) do. The item bar shows the kinds in this order.
struct Kind {
    const char *type;
    const char *namePrefix;
    const char *icon; // null for a kind that the item bar does not offer
    ContentViewer *(*make)(QWidget *frame);
    bool byDrop;
    bool fromFile;
};

constexpr Kind kinds[] = {
    {"Text", "Text", ":/assets/interface/text.png", make<TextOutput>, true, true},
    {"Shape", "Shape", ":/assets/interface/shapes.png", make<Shape>, true, true},
    {"Image Viewer", "Image", ":/assets/interface/image.png", make<ImageViewerItem>, true, true},
    // Named and counted as images are, and not dropped: on purpose.
    {"Animation Viewer", "Image", ":/assets/interface/gif.png", make<AnimationViewer>, false, true},
};

const Kind *find(const QString &type)
{
    const auto found = std::find_if(std::begin(kinds), std::end(kinds),
                                    [&type](const Kind &kind) { return type == QLatin1String(kind.type); });
    return found == std::end(kinds) ? nullptr : found;
}
} // namespace

ContentViewer *ContentFactory::create(const QString &type, QWidget *frame)
{
    const Kind *kind = find(type);
    return kind ? kind->make(frame) : nullptr;
}

QVector<QPair<QString, QString>> ContentFactory::clickableTypes()
{
    QVector<QPair<QString, QString>> types;
    for (const Kind &kind : kinds) {
        if (kind.icon)
            types.append({QString::fromLatin1(kind.type), QString::fromLatin1(kind.icon)});
    }
    return types;
}

bool ContentFactory::isClickable(const QString &type)
{
    const Kind *kind = find(type);
    return kind && kind->icon;
}

bool ContentFactory::isDroppable(const QString &type)
{
    const Kind *kind = find(type);
    return kind && kind->byDrop;
}

bool ContentFactory::isReadable(const QString &type)
{
    const Kind *kind = find(type);
    return kind && kind->fromFile;
}

QString ContentFactory::namePrefix(const QString &type)
{
    const Kind *kind = find(type);
    return kind ? QString::fromLatin1(kind->namePrefix) : QString();
}
