#pragma once

#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "tests/support/eventcounter.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

/// A canvas of 800 x 400 px in the corner of an active window, with one other widget that may take the focus.
/// The canvas is painted and quiet when the object is ready; check `ready` before anything else.
struct ShownScreen {
    ShownScreen()
    {
        window.resize(850, 450);
        screen.setWidgth(800);
        screen.setHeight(400);
        neighbour.move(0, 410);
        window.show();
        ready = QTest::qWaitForWindowActive(&window) && QTest::qWaitForWindowExposed(&window);
        QCoreApplication::processEvents();
    }

    QWidget window;
    Screen screen{&window};
    QLineEdit neighbour{&window};
    bool ready = false;
};

/// Deletes what was scheduled for deletion, as the event loop would.
inline void deleteScheduled()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

inline QStringList namesOf(const QList<ScreenItem *> &items)
{
    QStringList names;
    for (const ScreenItem *item : items)
        names.append(item->name());
    return names;
}

/// The frames as the toolkit stacks them, bottom first.
inline QStringList stackedNames(const Screen &screen)
{
    QStringList names;
    for (QObject *child : screen.children()) {
        if (const auto *item = qobject_cast<ScreenItem *>(child))
            names.append(item->name());
    }
    return names;
}

/// The invariant of every command: selected frames and the selection list are the same.
inline bool selectionIsConsistent(const Screen &screen)
{
    return std::all_of(screen.items().begin(), screen.items().end(), [&screen](ScreenItem *item) {
        return item->isSelected() == screen.selection().contains(item);
    });
}
