#include "model/fontfamilies.h"

namespace
{
QStringList &names()
{
    static QStringList list;
    return list;
}
} // namespace

QStringList FontFamilies::list()
{
    return names();
}

void FontFamilies::append(const QStringList &families)
{
    for (const QString &family : families) {
        if (!names().contains(family))
            names().append(family);
    }
}
