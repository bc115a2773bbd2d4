#pragma once

#include <QJsonObject>

class QWidget;

/// A text of bare widgets.
namespace FloorText
{
/// A rich-text edit with the item's HTML, dressed by one character format and one paragraph format.
QWidget *create(const QJsonObject &object, QWidget *parent);
} // namespace FloorText
