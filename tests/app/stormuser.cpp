#include "tests/app/stormuser.h"

#include "app/mainwindow.h"
#include "canvas/itemclipboard.h"
#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "editors/panels/screensettings.h"
#include "editors/panels/settingseditor.h"
#include "tests/support/boards.h"
#include "tests/support/menuuser.h"
#include "toolbars/itemtypesdragbar.h"
#include "toolbars/toolbarforscreenitem.h"
#include "toolbars/toolbaritem.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QSpinBox>
#include <QWindow>

namespace
{
constexpr int mostItems = 20;
constexpr int logLength = 40;

constexpr int arrows[] = {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right};

/// The editors that can be used without a dialog.
QList<QWidget *> plainEditors(const QWidget &panel)
{
    QList<QWidget *> editors;
    const QList<QWidget *> widgets = panel.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const auto *button = qobject_cast<QAbstractButton *>(widget);
        const bool isPlain = qobject_cast<QSpinBox *>(widget) || qobject_cast<QLineEdit *>(widget) ||
                             qobject_cast<QComboBox *>(widget) || (button && button->isCheckable());
        if (isPlain && widget->isVisible() && widget->isEnabled())
            editors.append(widget);
    }
    return editors;
}

QString text(QPoint point)
{
    return QString("%1,%2").arg(point.x()).arg(point.y());
}
} // namespace

struct StormUser::Action {
    const char *name;
    int weight;
    void (StormUser::*act)();
};

const QList<StormUser::Action> &StormUser::actions()
{
    static const QList<Action> all = {
        {"click", 14, &StormUser::click},
        {"Ctrl+click", 10, &StormUser::controlClick},
        {"click beside", 3, &StormUser::clickBeside},
        {"drag", 10, &StormUser::drag},
        {"drag a handle", 8, &StormUser::dragHandle},
        {"arrow", 10, &StormUser::strikeArrow},
        {"Delete", 2, &StormUser::strikeDelete},
        {"key", 3, &StormUser::strikeAnyKey},
        {"select all", 2, &StormUser::selectAll},
        {"copy", 4, &StormUser::copy},
        {"cut", 1, &StormUser::cut},
        {"paste", 4, &StormUser::paste},
        {"paste foreign", 3, &StormUser::pasteForeign},
        {"command", 5, &StormUser::callCommand},
        {"context menu", 8, &StormUser::useContextMenu},
        {"layer tool bar", 8, &StormUser::useLayerToolBar},
        {"item bar", 5, &StormUser::addFromItemBar},
        {"drop", 3, &StormUser::drop},
        {"type into a text", 4, &StormUser::typeIntoText},
        {"edit in the column", 8, &StormUser::editInColumn},
        {"edit the screen", 1, &StormUser::editScreen},
        {"load the saved board", 1, &StormUser::loadSavedBoard},
        {"load another board", 1, &StormUser::loadOtherBoard},
        {"render mode", 1, &StormUser::useInRenderMode},
    };
    return all;
}

StormUser::StormUser(MainWindow &window, quint32 start)
    : m_window(window),
      m_screen(*window.canvas()),
      m_random(start)
{
}

void StormUser::act()
{
    int total = 0;
    for (const Action &action : actions())
        total += action.weight;
    int drawn = below(total);
    auto action = actions().begin();
    for (; drawn >= action->weight; ++action)
        drawn -= action->weight;
    note(action->name);
    (this->*action->act)();
    if (m_screen.items().size() > mostItems)
        thinOut();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void StormUser::note(const QString &action)
{
    m_log.append(action);
    if (m_log.size() > logLength)
        m_log.removeFirst();
}

QRect StormUser::someGeometry()
{
    // A few beyond the edges as well.
    return {below(400) - 20, below(300) - 20, below(200), below(150)};
}

QPoint StormUser::somePoint()
{
    const QPoint anywhere(below(m_screen.width()), below(m_screen.height()));
    return chance(20) ? anywhere : somePointOf(someItem());
}

/// Within the canvas; where the item is beyond its edge, at the edge.
QPoint StormUser::somePointOf(const ScreenItem *item)
{
    if (!item)
        return {0, 0};
    const QPoint point = item->pos() + QPoint(below(qMax(1, item->width())), below(qMax(1, item->height())));
    return {qBound(0, point.x(), m_screen.width() - 1), qBound(0, point.y(), m_screen.height() - 1)};
}

ScreenItem *StormUser::someItem()
{
    return m_screen.items().isEmpty() ? nullptr : m_screen.items().at(below(m_screen.items().size()));
}

ScreenItem *StormUser::someText()
{
    QList<ScreenItem *> texts;
    for (ScreenItem *item : m_screen.items()) {
        if (item->getValues().value("Type") == "Text")
            texts.append(item);
    }
    return texts.isEmpty() ? someItem() : texts.at(below(texts.size()));
}

QString StormUser::someType()
{
    const auto types = Screen::itemTypes();
    return chance(5) ? QString("Video Viewer") : types.at(below(types.size())).first;
}

QJsonObject StormUser::someObject()
{
    const QRect geometry = someGeometry();
    QJsonObject object = shapeObject(QString("Item %1").arg(below(1000)), geometry);
    object.insert("Type", someType());
    object.insert("Text", "<p>Home <b>12</b></p>");
    object.insert("Align_int", 10 * below(5) + below(5));
    object.insert("Size", 1 + below(30));
    object.insert("Font", "Arial");
    // Sometimes an incomplete one.
    if (chance(10))
        object.remove(object.keys().at(below(object.size())));
    return object;
}

QJsonArray StormUser::someObjects(int atMost)
{
    QJsonArray objects;
    for (int count = below(atMost + 1); count > 0; --count)
        objects.append(someObject());
    return objects;
}

void StormUser::press(QPoint position, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    note("  press " + text(position));
    QTest::mousePress(m_window.windowHandle(), button, modifiers, m_screen.mapTo(&m_window, position));
}

void StormUser::release(QPoint position, Qt::MouseButton button)
{
    QTest::mouseRelease(m_window.windowHandle(), button, {}, m_screen.mapTo(&m_window, position));
}

void StormUser::hover(QPoint position)
{
    note("  move to " + text(position));
    QTest::mouseMove(m_window.windowHandle(), m_screen.mapTo(&m_window, position));
}

void StormUser::dragTo(QPoint from, QPoint to)
{
    press(from);
    release(from);
    hover(from + QPoint(0, 1));
    hover(from);
    press(from);
    for (int step = 1; step <= 2; ++step)
        hover(from + (to - from) * step / 2);
    release(to);
}

void StormUser::strike(int key, Qt::KeyboardModifiers modifiers)
{
    note(QString("  key %1 %2").arg(key, 0, 16).arg(int(modifiers), 0, 16));
    QTest::keyClick(m_window.windowHandle(), Qt::Key(key), modifiers);
}

void StormUser::click()
{
    const QPoint position = somePoint();
    press(position);
    release(position);
}

void StormUser::controlClick()
{
    const QPoint position = somePoint();
    press(position, Qt::LeftButton, Qt::ControlModifier);
    release(position);
}

void StormUser::clickBeside()
{
    QPoint position(below(m_screen.width()), below(m_screen.height()));
    for (int tries = 0; tries < 10 && m_screen.childAt(position); ++tries)
        position = {below(m_screen.width()), below(m_screen.height())};
    press(position);
    release(position);
}

void StormUser::drag()
{
    const QPoint from = somePoint();
    dragTo(from, from + QPoint(below(301) - 150, below(201) - 100));
}

void StormUser::dragHandle()
{
    const ScreenItem *item = someItem();
    if (!item)
        return;
    const QRect geometry = item->geometry() & m_screen.rect();
    const QPoint corners[] = {geometry.topLeft(),
                              geometry.topRight(),
                              geometry.bottomLeft(),
                              geometry.bottomRight(),
                              QPoint(geometry.center().x(), geometry.top()),
                              QPoint(geometry.left(), geometry.center().y())};
    if (geometry.isValid()) {
        const QPoint from = corners[below(6)];
        dragTo(from, from + QPoint(below(161) - 80, below(121) - 60));
    }
}

void StormUser::strikeArrow()
{
    const Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier,
                                               Qt::ControlModifier | Qt::ShiftModifier};
    strike(arrows[below(4)], modifiers[below(4)]);
}

void StormUser::strikeDelete()
{
    strike(Qt::Key_Delete);
}

void StormUser::strikeAnyKey()
{
    const int keys[] = {Qt::Key_Escape, Qt::Key_Tab,       Qt::Key_Return,
                        Qt::Key_A,      Qt::Key_Backspace, Qt::Key_Home};
    strike(keys[below(6)], chance(20) ? Qt::ShiftModifier : Qt::NoModifier);
}

void StormUser::selectAll()
{
    strike(Qt::Key_A, Qt::ControlModifier);
}

void StormUser::copy()
{
    strike(Qt::Key_C, Qt::ControlModifier);
}

void StormUser::cut()
{
    strike(Qt::Key_X, Qt::ControlModifier);
}

void StormUser::paste()
{
    strike(Qt::Key_V, Qt::ControlModifier);
}

void StormUser::pasteForeign()
{
    ItemClipboard::put(someObjects(4));
    paste();
}

/// The commands of an item, which need not be a selected one.
void StormUser::callCommand()
{
    const char *const commands[] = {"bringToFrontSlot", "sendToBackSlot", "sendToLayerUp",
                                    "sendToLayerDown",  "duplicateSlot",  "deleteSlot"};
    const char *command = commands[below(6)];
    ScreenItem *item = someItem();
    note(QString("  %1 of %2").arg(command).arg(m_screen.items().indexOf(item)));
    if (item)
        QMetaObject::invokeMethod(item, command, Qt::DirectConnection);
}

void StormUser::useContextMenu()
{
    const QPoint position = somePointOf(someItem());
    const MenuUser user([this](QMenu &menu) {
        void (Screen::*const commands[])() = {&Screen::deleteSelection, &Screen::pasteShortcutActivated,
                                              &Screen::cutShortcutActivated,
                                              &Screen::selectAllShortcutActivated};
        for (int count = chance(50) ? below(4) : 0; count > 0; --count)
            (m_screen.*commands[below(4)])();
        // The item of the menu itself may be going as well.
        if (chance(15) && qobject_cast<ScreenItem *>(menu.parentWidget()))
            menu.parentWidget()->deleteLater();
        const QPointer<QMenu> guard(&menu);
        QCoreApplication::processEvents();
        if (guard && chance(80))
            choose(menu, below(menu.actions().size()));
    });
    press(position, Qt::RightButton);
    release(position, Qt::RightButton);
    QCoreApplication::processEvents();
}

void StormUser::useLayerToolBar()
{
    const QList<ToolBarItem *> items =
        m_window.findChild<ToolBarForScreenItem *>()->findChildren<ToolBarItem *>();
    ToolBarItem *item = items.at(below(items.size()));
    note("  " + item->toolTip());
    QTest::mouseClick(item, Qt::LeftButton);
}

void StormUser::addFromItemBar()
{
    // The first two kinds ask for no file.
    const QList<QAbstractButton *> buttons =
        m_window.findChild<ItemTypesDragBar *>()->findChildren<QAbstractButton *>();
    QTest::mouseClick(buttons.at(below(2)), Qt::LeftButton);
}

void StormUser::drop()
{
    QMimeData data;
    data.setData(Screen::dragFormat(), someType().toUtf8());
    const QPointF position = somePoint();
    QDragEnterEvent enter(position.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&m_screen, &enter);
    QDropEvent event(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&m_screen, &event);
}

/// Unless something else lies above the text. Half of the time the text is left open.
void StormUser::typeIntoText()
{
    const QPoint position = somePointOf(someText());
    press(position);
    release(position);
    QTest::mouseDClick(m_window.windowHandle(), Qt::LeftButton, {}, m_screen.mapTo(&m_window, position));
    const int keys[] = {Qt::Key_1,      Qt::Key_A,    Qt::Key_Space,     Qt::Key_Return,
                        Qt::Key_Delete, Qt::Key_Left, Qt::Key_Backspace, Qt::Key_Home};
    for (int count = below(6); count > 0; --count)
        strike(keys[below(8)], chance(20) ? Qt::ShiftModifier : Qt::NoModifier);
    if (chance(20))
        selectAll();
    if (chance(50))
        clickBeside();
}

void StormUser::editWith(QWidget *editor)
{
    note(QString("  %1").arg(editor->metaObject()->className()));
    const QPointer<QWidget> guard(editor);
    editor->setFocus();
    if (qobject_cast<QAbstractButton *>(editor))
        QTest::mouseClick(editor, Qt::LeftButton, {}, QPoint(5, editor->height() / 2));
    for (int count = 1 + below(3); guard && count > 0; --count) {
        const int keys[] = {Qt::Key_Up, Qt::Key_Down, Qt::Key_7, Qt::Key_Backspace, Qt::Key_End, Qt::Key_A};
        QTest::keyClick(editor, Qt::Key(keys[below(6)]));
    }
    if (guard && chance(50))
        QTest::keyClick(editor, Qt::Key_Tab);
}

void StormUser::editInColumn()
{
    const QList<QWidget *> editors = plainEditors(*m_window.findChild<SettingsEditor *>());
    if (!editors.isEmpty())
        editWith(editors.at(below(editors.size())));
}

void StormUser::editScreen()
{
    m_screen.setWidgth(someLength());
    m_screen.setHeight(someLength());
    m_window.findChild<ScreenSettings *>()->updateFromScreen();
}

void StormUser::loadSavedBoard()
{
    m_screen.loadLayout(m_screen.saveLayout());
}

void StormUser::loadOtherBoard()
{
    m_screen.loadLayout(board(someObjects(12), {{"Width", someLength()}, {"Height", someLength()}}));
}

void StormUser::useInRenderMode()
{
    m_screen.goToRenderMode();
    click();
    drag();
    strike(Qt::Key_Delete);
    strike(Qt::Key_Right, Qt::ControlModifier);
    m_screen.goOutRenderMode();
}

/// So that the board stays one on which items are hit.
void StormUser::thinOut()
{
    note("thin out");
    m_screen.clearSelection();
    const QList<ScreenItem *> items = m_screen.items();
    for (ScreenItem *item : items) {
        if (chance(80))
            item->select();
    }
    m_screen.deleteSelection();
}
