#include "app/flowlayout.h"

#include <QWidget>

namespace
{
/// A spacing that nobody has set is the one that the item's style wants between two push buttons.
int spacingOrStyled(int spacing, QLayoutItem *item, Qt::Orientation orientation)
{
    const QWidget *widget = item->widget();
    if (spacing != -1 || !widget)
        return spacing;
    return widget->style()->layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton, orientation);
}
} // namespace

FlowLayout::FlowLayout(QWidget *parent, int margin, int hSpacing, int vSpacing)
    : QLayout(parent),
      m_hSpacing(hSpacing),
      m_vSpacing(vSpacing)
{
    setContentsMargins(margin, margin, margin, margin);
}

FlowLayout::FlowLayout(int margin, int hSpacing, int vSpacing) : m_hSpacing(hSpacing), m_vSpacing(vSpacing)
{
    setContentsMargins(margin, margin, margin, margin);
}

FlowLayout::~FlowLayout()
{
    qDeleteAll(m_items);
}

int FlowLayout::horizontalSpacing() const
{
    return m_hSpacing >= 0 ? m_hSpacing : parentSpacing(QStyle::PM_LayoutHorizontalSpacing);
}

int FlowLayout::verticalSpacing() const
{
    return m_vSpacing >= 0 ? m_vSpacing : parentSpacing(QStyle::PM_LayoutVerticalSpacing);
}

int FlowLayout::parentSpacing(QStyle::PixelMetric metric) const
{
    if (!parent())
        return -1;
    if (const auto *widget = qobject_cast<QWidget *>(parent()))
        return widget->style()->pixelMetric(metric, nullptr, widget);
    return static_cast<QLayout *>(parent())->spacing();
}

void FlowLayout::addItem(QLayoutItem *item)
{
    m_items.append(item);
}

int FlowLayout::count() const
{
    return m_items.size();
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return m_items.value(index);
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

Qt::Orientations FlowLayout::expandingDirections() const
{
    return {};
}

bool FlowLayout::hasHeightForWidth() const
{
    return true;
}

int FlowLayout::heightForWidth(int width) const
{
    return arrange(QRect(0, 0, width, 0), Pass::Measure);
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem *item : m_items)
        size = size.expandedTo(item->minimumSize());
    const QMargins margins = contentsMargins();
    return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

QSize FlowLayout::sizeHint() const
{
    return minimumSize();
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    arrange(rect, Pass::Place);
}

int FlowLayout::arrange(const QRect &rect, Pass pass) const
{
    const QMargins margins = contentsMargins();
    const QRect area = rect.marginsRemoved(margins);
    QPoint corner = area.topLeft();
    int rowHeight = 0;
    for (QLayoutItem *item : m_items) {
        const QSize hint = item->sizeHint();
        const int hSpacing = spacingOrStyled(horizontalSpacing(), item, Qt::Horizontal);
        const int vSpacing = spacingOrStyled(verticalSpacing(), item, Qt::Vertical);
        if (corner.x() + hint.width() > area.right() && rowHeight > 0) {
            corner = QPoint(area.x(), corner.y() + rowHeight + vSpacing);
            rowHeight = 0;
        }
        if (pass == Pass::Place)
            item->setGeometry(QRect(corner, hint));
        corner.rx() += hint.width() + hSpacing;
        rowHeight = qMax(rowHeight, hint.height());
    }
    return corner.y() + rowHeight - rect.y() + margins.bottom();
}
