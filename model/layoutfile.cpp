#include "model/layoutfile.h"

#include "model/filewriting.h"
#include "model/keys.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

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
} // namespace

bool LayoutFile::hasTooManyItems(const QJsonObject &layout)
{
    return layout.value(Keys::items()).toArray().size() > maximumItems;
}

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
    return FileWriting::write(filePath, QJsonDocument(layout).toJson());
}
