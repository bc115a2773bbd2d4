#include "canvas/itemclipboard.h"

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
    return QJsonDocument::fromJson(data->data(format())).array();
}
