#pragma once

#include <QJsonObject>
#include <QString>

/// The bytes of a layout on disk. What the document says is the canvas's business.
namespace LayoutFile
{
/// More than any layout needs. The parser may take 14 times a document's size, so a larger one could exhaust
/// memory.
constexpr int maximumBytes = 256 * 1024 * 1024;

/// The most items of a layout: the toolkit paints siblings by recursion, and far beyond this number the stack
/// would overflow.
constexpr int maximumItems = 16384;

/// True when the layout holds more items than a canvas takes.
bool hasTooManyItems(const QJsonObject &layout);

/// The file filter of the file dialogs.
inline QString filter()
{
    return QStringLiteral("Lay file (*.lay)");
}

/// The empty layout that "New" opens.
inline QString emptyTemplate()
{
    return QStringLiteral(":/assets/resources/empty.lay");
}

/// A read document, or why there is none.
struct Document {
    QJsonObject layout; ///< the top-level object; empty when the top level is something else
    QString error;      ///< null on success, else a text for the user
};

/// Reads and parses the file. Nothing of a file that is no JSON is kept. What may have no end (a device, a
/// pipe) and what is larger than 256 MiB is refused unread.
Document read(const QString &filePath);

/// Writes the layout in the indented form, as FileWriting does, and answers the error for the user, null on
/// success.
QString write(const QString &filePath, const QJsonObject &layout);
} // namespace LayoutFile
