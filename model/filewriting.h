#pragma once

#include <QByteArray>
#include <QString>

/// Files that are either wholly new or wholly as they were, whatever happens to the disk.
namespace FileWriting
{
/// Writes the bytes into the file, or makes it, and answers the error for the user, null on success.
/// A regular file is replaced only after the last byte has reached the disk, and keeps its owner, group,
/// mode, access list and extended attributes; a link to it stays a link. A file that cannot be replaced with
/// all of these, that has further names or is not in a folder that takes new files is written in place, and
/// its old bytes are put back after a failure. A device or a pipe is written in place as well.
QString write(const QString &filePath, const QByteArray &bytes);
} // namespace FileWriting
