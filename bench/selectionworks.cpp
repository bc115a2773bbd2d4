#include "bench/selectionworks.h"

#include "bench/measure.h"
#include "bench/session.h"
#include "canvas/itemclipboard.h"
#include "canvas/screen.h"
#include "canvas/screenitem.h"

#include <QApplication>
#include <QDebug>
#include <QKeyEvent>

namespace
{
constexpr QSize canvasSize(800, 400);

void demand(bool holds, const char *whatElse)
{
    if (!holds)
        qFatal("%s", whatElse);
}

/// On a spot of the canvas that no item covers.
void clickBesideItems(Screen &screen)
{
    const auto press = mouseEvent(screen, QEvent::MouseButtonPress, QPoint(1, 1), Qt::LeftButton);
    QCoreApplication::sendEvent(&screen, press.get());
}

void clear(Screen &screen)
{
    screen.selectAllShortcutActivated();
    screen.deleteSelection();
    settle();
    demand(screen.items().isEmpty(), "not every item was deleted");
}
} // namespace

void selectItems(int items, int)
{
    Session session(items, canvasSize);
    session.open();
    settle();
    Screen &screen = session.screen();
    const auto all = [&screen, items] {
        screen.selectAllShortcutActivated();
        demand(screen.selection().size() == items, "not every item was selected");
    };
    const auto none = [&screen] {
        clickBesideItems(screen);
        demand(screen.selection().isEmpty(), "items are selected still");
    };
    report("all", cpuOfUndone(7, all, none));
    all();
    settle();
    report("none", cpuOfUndone(7, none, all));
}

void useClipboard(int items, int)
{
    Session session(items, canvasSize, BenchBoard::Content::Mixed);
    session.open();
    settle();
    Screen &screen = session.screen();
    screen.selectAllShortcutActivated();
    settle();
    report("copy", cpuOf([&screen] { screen.copyShortcutActivated(); }));
    report("duplicate", cpuOf([&screen] { screen.duplicateSelection(); }));
    demand(screen.items().size() == 2 * items, "not every item was duplicated");
    clear(screen);
    report("load", cpuOf([&session] { session.open(); }));
    clear(screen);
    report("paste", cpuOf([&screen] { screen.pasteShortcutActivated(); }));
    demand(screen.items().size() == items, "not every item was pasted");
}

void pasteAndDelete(int items, int)
{
    Session session(0, canvasSize);
    session.open();
    ItemClipboard::put(BenchBoard::items(items, canvasSize, BenchBoard::Content::Mixed));
    settle();
    Screen &screen = session.screen();
    report("cpu", cpuOf([&screen, items] {
               screen.pasteShortcutActivated();
               demand(screen.items().size() == items, "not every item was pasted");
               screen.deleteSelection();
           }));
    demand(screen.items().isEmpty(), "not every item was deleted");
}

void moveLayer(int items, int)
{
    Session session(items, canvasSize);
    session.open();
    settle();
    Screen &screen = session.screen();
    report("cpu", cpuPerTurn(100, [&screen, items](int turn) {
               ScreenItem *item = screen.items().at(items / 2 + turn);
               screen.moveLayerUp(item);
               QCoreApplication::processEvents();
               demand(screen.items().at(items / 2 + turn + 1) == item, "the item was not moved");
           }));
}

void deleteItems(int items, int)
{
    Session session(items, canvasSize);
    session.open();
    settle();
    session.screen().selectAllShortcutActivated();
    settle();
    report("cpu", cpuOf([&] {
               // Posted, since what is deleted later than a sent event outlives the loop that settles.
               auto *press = new QKeyEvent(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
               QCoreApplication::postEvent(session.screen().items().last(), press);
           }));
    demand(session.screen().items().isEmpty(), "not every item was deleted");
}
