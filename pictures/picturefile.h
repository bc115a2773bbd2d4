#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

/// Pictures of boards as files.
namespace PictureFile
{
/// Makes the bytes of a file from a picture; empty when it cannot.
using Writer = QByteArray (*)(const QImage &picture);

/// Writes the picture in the format of the path's suffix, with the toolkit's default quality; a PNG by the
/// given writer, if any. Answers why it could not be written, null on success. After a failure an older file
/// of this name is as it was.
QString save(const QImage &picture, const QString &path, Writer pngWriter = nullptr);
} // namespace PictureFile
