#pragma once

#include <QString>

/// The keys of the parameters of items that show a file, as layout files and panels spell them.
namespace MediaKeys
{
inline QString path()
{
    return QStringLiteral("Path");
}
} // namespace MediaKeys
