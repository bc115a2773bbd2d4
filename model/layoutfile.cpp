#include "model/layoutfile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

namespace
{
/// More than any layout needs, and less than the toolkit's byte array can hold.
constexpr qint64 maximumBytes = 1024 * 1024 * 1024;

QString text(const char *sourceText)
{
    return QCoreApplication::translate("LayoutFile", sourceText);
}

/// A pipe or a device may have no end; a directory is left to open(), which has its own words for it.
QString whyNotReadable(const QFileInfo &info)
{
    if (info.exists() && !info.isFile() && !info.isDir())
        return text("The file is not a regular file.");
    if (info.size() > maximumBytes)
        return text("The file is too large for a layout.");
    return {};
}

QString writeAndClose(QFileDevice &file, const QByteArray &bytes)
{
    if (file.write(bytes) != bytes.size() || !file.flush())
        return file.errorString();
    file.close();
    return file.error() == QFileDevice::NoError ? QString() : file.errorString();
}

QString writeInPlace(const QString &filePath, const QByteArray &bytes)
{
    QFile file(filePath);
    return file.open(QIODevice::WriteOnly) ? writeAndClose(file, bytes) : file.errorString();
}

QString replace(QSaveFile &file, const QByteArray &bytes)
{
    file.write(bytes);
    return file.commit() ? QString() : file.errorString();
}

QString writeOpenable(const QString &filePath, const QByteArray &bytes)
{
    // Links are followed to their end: the file is replaced, not the link to it.
    QSaveFile file(QFileInfo(filePath).canonicalFilePath());
    // A folder that takes no new file leaves no way but writing in place.
    return file.open(QIODevice::WriteOnly) ? replace(file, bytes) : writeInPlace(filePath, bytes);
}
} // namespace

LayoutFile::Document LayoutFile::read(const QString &filePath)
{
    const QString obstacle = whyNotReadable(QFileInfo(filePath));
    if (!obstacle.isNull())
        return {{}, obstacle};
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, file.errorString()};
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &parseError);
    if (parseError.error != QJsonParseError::NoError)
        return {{}, parseError.errorString()};
    return {document.object(), {}};
}

QString LayoutFile::write(const QString &filePath, const QJsonObject &layout)
{
    const QFileInfo target(filePath);
    const bool existed = target.exists();
    if (existed && !target.isFile())
        return writeInPlace(filePath, QJsonDocument(layout).toJson());
    // Opening without truncating tells what a plain open for writing would, and harms nothing yet.
    QFile probe(filePath);
    if (!probe.open(QIODevice::WriteOnly | QIODevice::Append))
        return probe.errorString();
    probe.close();
    const QString error = writeOpenable(filePath, QJsonDocument(layout).toJson());
    if (!error.isNull() && !existed)
        QFile::remove(filePath);
    return error;
}
