#pragma once

#include <QJsonArray>

/// Items on the system clipboard: a JSON array of item objects under a format of our own.
namespace ItemClipboard
{
/// Replaces the clipboard's content by the items.
void put(const QJsonArray &items);

/// The items on the clipboard; empty when it holds none or something that is no JSON array.
QJsonArray items();
} // namespace ItemClipboard
