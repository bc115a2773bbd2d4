#pragma once

#include <memory>
#include <vector>

class QJsonObject;
class QPainter;
class QSize;
class SharedPicture;

/// What one stored item looks like on its screen.
namespace ItemPicture
{
/// The files that the items of one board show: each is decoded once as long as these live.
using Files = std::vector<std::shared_ptr<const SharedPicture>>;

/// Paints the item where it lands on a screen of this size (px). Kinds that do not come from files paint
/// nothing.
void paint(QPainter &painter, const QJsonObject &item, QSize screen, Files &files);
} // namespace ItemPicture
