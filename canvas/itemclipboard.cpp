#include "canvas/itemclipboard.h"

#include "model/layoutfile.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QMimeData>

namespace
{
QString format()
{
    return QStringLiteral("Screen/ItemsJson");
}
} // namespace

void ItemClipboard::put(const QJsonArray &items)
{
    auto *data = new QMimeData;
    data->setData(format(), QJsonDocument(items).toJson());
    QGuiApplication::clipboard()->setMimeData(data, QClipboard::Clipboard);
}

QJsonArray ItemClipboard::items()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData(QClipboard::Clipboard);
    if (!data || !data->hasFormat(format()))
        return {};
    const QByteArray bytes = data->data(format());
    // Foreign bytes, bounded as those of a file are.
    return bytes.size() > LayoutFile::maximumBytes ? QJsonArray() : QJsonDocument::fromJson(bytes).array();
}
