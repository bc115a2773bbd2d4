#pragma once

#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <functional>

/// Waits for a menu to open, does something with it and closes it. Does nothing when none opens.
class MenuUser : public QObject
{
public:
    explicit MenuUser(std::function<void(QMenu &)> use) : m_use(std::move(use))
    {
        connect(&m_timer, &QTimer::timeout, this, &MenuUser::look);
        m_timer.start(0);
    }

    bool hasSeenMenu() const { return m_seen; }

private:
    void look()
    {
        const QPointer<QMenu> menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu)
            return;
        m_timer.stop();
        m_seen = true;
        m_use(*menu);
        if (menu)
            menu->close();
    }

    QTimer m_timer;
    std::function<void(QMenu &)> m_use;
    bool m_seen = false;
};

/// Clicks the entry that stands at this place in the menu.
inline void choose(QMenu &menu, int entry)
{
    const QPoint place = menu.actionGeometry(menu.actions().at(entry)).center();
    QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, place);
}
