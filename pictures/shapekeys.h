#pragma once

#include <QString>

/// The keys of a shape's own parameters, as layout files and panels spell them.
namespace ShapeKeys
{
inline QString shape()
{
    return QStringLiteral("Shape");
}
inline QString align()
{
    return QStringLiteral("Align");
}
inline QString opacity()
{
    return QStringLiteral("Opacity");
}
inline QString fill()
{
    return QStringLiteral("Fill");
}
inline QString color()
{
    return QStringLiteral("Color");
}
inline QString border()
{
    return QStringLiteral("Border");
}
inline QString lineWidth()
{
    return QStringLiteral("Line Width");
}
inline QString borderColor()
{
    return QStringLiteral("Border Color");
}
} // namespace ShapeKeys
