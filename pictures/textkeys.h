#pragma once

#include <QString>

/// The keys of a text's own parameters, as layout files and panels spell them.
namespace TextKeys
{
inline QString text()
{
    return QStringLiteral("Text");
}
inline QString textType()
{
    return QStringLiteral("Text Type");
}
inline QString font()
{
    return QStringLiteral("Font");
}
inline QString size()
{
    return QStringLiteral("Size");
}
inline QString autoSize()
{
    return QStringLiteral("Auto Size");
}
inline QString bold()
{
    return QStringLiteral("Bold");
}
inline QString italic()
{
    return QStringLiteral("Italic");
}
inline QString underlined()
{
    return QStringLiteral("Underlined");
}
inline QString alignment()
{
    return QStringLiteral("Align_int");
}
inline QString color()
{
    return QStringLiteral("Color");
}
/// Never stored: it names the step of formatting that aligns. The spelling is meant.
inline QString aligment()
{
    return QStringLiteral("Aligment");
}
} // namespace TextKeys
