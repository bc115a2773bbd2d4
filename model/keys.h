#pragma once

#include <QString>

/// The words under which values are addressed, in the value maps and in layout files alike.
namespace Keys
{
inline QString x()
{
    return QStringLiteral("X");
}
inline QString y()
{
    return QStringLiteral("Y");
}
inline QString w()
{
    return QStringLiteral("W");
}
inline QString h()
{
    return QStringLiteral("H");
}
inline QString type()
{
    return QStringLiteral("Type");
}
inline QString screenItemName()
{
    return QStringLiteral("ScreenItemName");
}

inline QString items()
{
    return QStringLiteral("items");
}
inline QString parameters()
{
    return QStringLiteral("parameters");
}
inline QString backgroundColor()
{
    return QStringLiteral("Background Color");
}
inline QString height()
{
    return QStringLiteral("Height");
}
inline QString width()
{
    return QStringLiteral("Width");
}
} // namespace Keys
