#include "model/namedcolor.h"

QColor namedColor(const QString &name)
{
    QColor color;
    if (QColor::isValidColor(name))
        color.setNamedColor(name);
    return color;
}
