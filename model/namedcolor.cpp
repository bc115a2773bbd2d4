#include "model/namedcolor.h"

QColor namedColor(const QString &name)
{
    QColor color;
    color.setNamedColor(name);
    return color;
}
