#include "viewers/contentfactory.h"

#include "viewers/shape.h"

#include <algorithm>
#include <iterator>

namespace
{
template <typename Content>
ContentViewer *make(QWidget *frame)
{
    return new Content(frame);
}

// The roads differ by kind: each column says whether a click, a drop and a file (or a paste) create the kind.
struct Kind {
    const char *type;
    const char *namePrefix;
    ContentViewer *(*make)(QWidget *frame);
    bool byClick;
    bool byDrop;
    bool fromFile;
};

constexpr Kind kinds[] = {
    {"Shape", "Shape", make<Shape>, true, true, true},
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

bool ContentFactory::isClickable(const QString &type)
{
    const Kind *kind = find(type);
    return kind && kind->byClick;
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
