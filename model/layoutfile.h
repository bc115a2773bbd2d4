#pragma once

#include <QJsonObject>
#include <QString>

/// The bytes of a layout on disk. What the document says is the canvas's business.
namespace LayoutFile
{
/// The file filter of the file dialogs.
inline QString filter() { return QStringLiteral("Lay file (*.lay)"); }

/// The empty layout that "New" opens.
inline QString emptyTemplate() { return QStringLiteral(":/assets/resources/empty.lay"); }

/// A read document, or why there is none.
struct Document {
    QJsonObject layout; ///< the top-level object; empty when the top level is something else
    QString error;      ///< null on success, else a text for the user
};

/// Reads and parses the file. Nothing of a file that is no JSON is kept.
Document read(const QString &filePath);

/// Writes the layout in the indented form and answers the error for the user, null on success.
/// The file is either wholly new or wholly as it was: a regular file is replaced only after the last byte has
/// reached the disk. Anything else that can be opened for writing (a device, a pipe) is written in place.
QString write(const QString &filePath, const QJsonObject &layout);
} // namespace LayoutFile
