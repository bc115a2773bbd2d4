#pragma once

class QJsonObject;
class QPainter;
class QSize;

/// What one stored item looks like on its screen.
namespace ItemPicture
{
/// Paints the item where it lands on a screen of this size (px). False, and nothing painted, for kinds that
/// do not come from files.
bool paint(QPainter &painter, const QJsonObject &item, QSize screen);
} // namespace ItemPicture
