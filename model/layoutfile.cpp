#include "model/layoutfile.h"

#include "model/filewriting.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

namespace
{
QString text(const char *sourceText)
{
    return QCoreApplication::translate("LayoutFile", sourceText);
}

/// A pipe or a device may have no end; a directory is left to open(), which has its own words for it.
QString whyNotReadable(const QFileInfo &info)
{
    if (info.exists() && !info.isFile() && !info.isDir())
        return text("The file is not a regular file.");
    if (info.size() > LayoutFile::maximumBytes)
        return text("The file is too large for a layout.");
    return {};
}

/// The next best where no second file can stand beside the old one: after a failure the old bytes go back.
QString overwrite(const QString &filePath, const QByteArray &bytes)
{
    QFile old(filePath);
    const QByteArray oldBytes = old.open(QIODevice::ReadOnly) ? old.read(old.size()) : QByteArray();
    old.close();
    QString error = FileWriting::writeInPlace(filePath, bytes);
    if (!error.isNull())
        FileWriting::writeInPlace(filePath, oldBytes);
    return error;
}

QString writeRegular(const QString &filePath, const QByteArray &bytes)
{
    QSaveFile file(filePath);
    if (file.open(FileWriting::unbuffered)) {
        if (!FileWriting::writeAll(file, bytes))
            return file.errorString();
        if (file.commit())
            return {};
    }
    // The folder takes no new file, the name leaves no room for a suffix, or the old file is not to be
    // replaced.
    return overwrite(filePath, bytes);
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
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return {{}, file.errorString()};
    QJsonParseError parseError{};
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &parseError);
    if (parseError.error != QJsonParseError::NoError)
        return {{}, parseError.errorString()};
    return {document.object(), {}};
}

QString LayoutFile::write(const QString &filePath, const QJsonObject &layout)
{
    QFileInfo target(filePath);
    target.setCaching(false);
    const bool existed = target.exists();
    if (existed && !target.isFile())
        return FileWriting::writeInPlace(filePath, QJsonDocument(layout).toJson());
    // Opening without truncating tells what a plain open for writing would, and harms nothing yet.
    QFile probe(filePath);
    if (!probe.open(QIODevice::WriteOnly | QIODevice::Append))
        return probe.errorString();
    probe.close();
    // Links are followed to their end: the file is replaced, not the link to it.
    const QString finalPath = target.canonicalFilePath();
    QString error = writeRegular(finalPath, QJsonDocument(layout).toJson());
    if (!error.isNull() && !existed)
        QFile::remove(finalPath);
    return error;
}
