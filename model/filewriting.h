#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

class QFileDevice;

/// Bytes into files in such a way that a full disk is noticed and its reason known.
namespace FileWriting
{
/// How a file is opened for the functions below: a buffer would keep the reason of a failure from us.
constexpr QIODevice::OpenMode unbuffered = QIODevice::WriteOnly | QIODevice::Unbuffered;

/// Writes all bytes into a file opened unbuffered; false, with the file's error set, when they do not fit.
bool writeAll(QFileDevice &file, const QByteArray &bytes);

/// Truncates the file, or makes it, and writes the bytes. Answers the error for the user, null on success.
QString writeInPlace(const QString &filePath, const QByteArray &bytes);
} // namespace FileWriting
