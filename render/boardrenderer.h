#pragma once

#include <QString>

/// Turns layout files into pictures without a window.
namespace BoardRenderer
{
/// Reads the layout and writes its picture in the format of the picture path's suffix, with the pixels that
/// the editor exports. Answers one line for the user on failure, null on success.
QString render(const QString &layoutPath, const QString &picturePath);
} // namespace BoardRenderer
