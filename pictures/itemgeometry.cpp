#include "pictures/itemgeometry.h"

namespace
{
/// A frame on its screen, and the values of its content, which follow every change of the frame.
class Frame
{
public:
    explicit Frame(QSize screen) : m_screen(screen) { resize(ItemGeometry::newItemSize); }

    const QRect &geometry() const { return m_geometry; }

    void setX(int x) { apply({{x, m_geometry.y()}, m_geometry.size()}); }
    void setY(int y) { apply({{m_geometry.x(), y}, m_geometry.size()}); }
    void setWidth(int width) { apply({m_geometry.topLeft(), QSize(width, m_geometry.height())}); }
    void setHeight(int height) { apply({m_geometry.topLeft(), QSize(m_geometry.width(), height)}); }

    /// Applies all four in the order of their names.
    void apply(const QRect &values)
    {
        resize(QSize(m_geometry.width(), values.height()));
        resize(QSize(values.width(), m_geometry.height()));
        m_geometry.moveLeft(values.x());
        m_geometry.moveTop(values.y());
    }

private:
    void resize(QSize size)
    {
        const QSize possible = size.expandedTo(QSize(0, 0));
        if (possible == m_geometry.size())
            return;
        m_geometry.setSize(possible);
        resize(ItemGeometry::clampedSize(m_geometry, m_screen));
    }

    QSize m_screen;
    QRect m_geometry{0, 0, 0, 0};
};

QRect readOneByOne(const QRect &stored, QSize screen)
{
    Frame frame(screen);
    frame.setX(stored.x());
    frame.setY(stored.y());
    frame.setWidth(stored.width());
    frame.setHeight(stored.height());
    return frame.geometry();
}

QRect readAtOnce(const QRect &stored, QSize screen)
{
    Frame frame(screen);
    frame.apply(stored);
    return frame.geometry();
}
} // namespace

QSize ItemGeometry::clampedSize(const QRect &item, QSize screen)
{
    QSize size = item.size();
    if (item.y() + size.height() > screen.height())
        size.setHeight(screen.height() - item.y());
    // The height, as just clamped, is compared here and not the width: on purpose.
    if (item.x() + size.height() > screen.width())
        size.setWidth(screen.width() - item.x());
    return size.expandedTo(QSize(0, 0));
}

bool ItemGeometry::liesOnScreen(const QRect &item, QSize screen)
{
    return item.x() >= 0 && item.y() >= 0 && item.width() >= 0 && item.height() >= 0 &&
           item.x() + item.width() <= screen.width() && item.y() + item.height() <= screen.height();
}

QRect ItemGeometry::landing(const QRect &stored, Reading reading, QSize screen)
{
    if (liesOnScreen(stored, screen))
        return stored;
    return reading == Reading::OneByOne ? readOneByOne(stored, screen) : readAtOnce(stored, screen);
}
