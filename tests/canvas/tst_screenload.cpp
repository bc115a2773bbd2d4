#include "canvas/itemclipboard.h"
#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "model/pixels.h"
#include "tests/canvas/shownscreen.h"
#include "tests/support/boards.h"
#include "tests/support/strictmain.h"
#include "viewers/shape.h"

#include <QDebug>
#include <QLoggingCategory>

#include <functional>

/// A load makes its items while the canvas is hidden. What comes out has to be what a loader makes that adds
/// the items one by one in view.
class tst_ScreenLoad : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void equalsStepsInView_data();
    void equalsStepsInView();
    void equalsStepsBeforeTheCanvasIsShown_data();
    void equalsStepsBeforeTheCanvasIsShown();
    void pastesAsInView();
    void setsTheWidthBeforeTheHeight();
    void paintsAVisibleCanvasOnce_data();
    void paintsAVisibleCanvasOnce();
    void staysVisible();
    void staysHiddenWhenItWas();
    void keepsTheFocusAwayFromTheNeighbour();
    void leavesTheFocusWhenNothingIsMade();
    void takesTheFocusFromTheNeighbour();
};

namespace
{
/// All that can be seen of a frame from outside.
struct FrameState {
    QString name;
    QRect geometry;
    QRect contentGeometry;
    QMap<QString, QVariant> values;
    bool active;
    bool selected;
    bool focused;
    bool visible;
};

bool operator==(const FrameState &a, const FrameState &b)
{
    return a.name == b.name && a.geometry == b.geometry && a.contentGeometry == b.contentGeometry &&
           a.values == b.values && a.active == b.active && a.selected == b.selected &&
           a.focused == b.focused && a.visible == b.visible;
}

QString toString(const FrameState &state)
{
    QString text;
    QDebug(&text) << state.name << state.geometry << state.contentGeometry << state.values << state.active
                  << state.selected << state.focused << state.visible;
    return text;
}

/// All that can be seen of a canvas in an active window.
struct BoardState {
    bool ready = false;
    QList<FrameState> frames;
    QStringList stacking;
    QImage picture;
};

BoardState stateOf(ShownScreen &shown)
{
    QCoreApplication::processEvents();
    BoardState state;
    state.ready = shown.ready && shown.window.isActiveWindow();
    for (ScreenItem *item : shown.screen.items())
        state.frames.append({item->name(), item->geometry(), item->content()->geometry(), item->getValues(),
                             item->isActive(), item->isSelected(), item->hasFocus(), item->isVisible()});
    state.stacking = stackedNames(shown.screen);
    state.picture = shown.window.grab().toImage();
    return state;
}

BoardState stateAfter(const std::function<void(ShownScreen &)> &fill)
{
    ShownScreen shown;
    fill(shown);
    return stateOf(shown);
}

void compareStates(const BoardState &actual, const BoardState &expected)
{
    QVERIFY(actual.ready && expected.ready);
    QCOMPARE(actual.frames.size(), expected.frames.size());
    for (int i = 0; i < actual.frames.size(); ++i)
        QVERIFY2(
            actual.frames.at(i) == expected.frames.at(i),
            qPrintable(toString(actual.frames.at(i)) + "\nexpected\n" + toString(expected.frames.at(i))));
    QCOMPARE(actual.stacking, expected.stacking);
    QCOMPARE(actual.picture, expected.picture);
}

/// One item, step by step as the format is described.
void addStepByStep(Screen &screen, QJsonObject object)
{
    auto *item = new ScreenItem(&screen);
    item->resize(100, 50);
    auto *content = new Shape(item);
    content->show();
    item->show();
    item->setMyName(object.value("ScreenItemName").toString());
    const auto definitions = content->getValueNameTypeDefinition();
    for (const auto &definition : definitions)
        content->setValue(definition.first, object.value(definition.first).toVariant());
    content->anyValueChanged();
    const auto pixels = [&object](const char *key) {
        return toPixels(object.value(QLatin1String(key)).toVariant());
    };
    item->placeAsStored({pixels("X"), pixels("Y"), pixels("W"), pixels("H")});
}

void loadStepByStep(Screen &screen, const QJsonArray &items, const QSize &size)
{
    while (!screen.items().isEmpty())
        delete screen.items().last();
    screen.setWidgth(size.width());
    screen.setHeight(size.height());
    screen.setBackgrounColor(Qt::black);
    for (const QJsonValue &item : items)
        addStepByStep(screen, item.toObject());
}

QJsonObject layoutOf(const QJsonArray &items, const QSize &size)
{
    return board(items,
                 {{"Background Color", "#000000"}, {"Width", size.width()}, {"Height", size.height()}});
}

void addBoards()
{
    QTest::addColumn<QJsonArray>("items");
    QTest::addColumn<QSize>("size");
    const QSize common(800, 400);
    const auto row = [](const char *name, const QSize &size, const QRect &geometry,
                        const QJsonObject &others = {}) {
        const QJsonObject tricky = shapeObject("Tricky", geometry, others);
        const QJsonObject plain = shapeObject("Plain", QRect(40, 30, 200, 100));
        QTest::newRow(name) << QJsonArray({tricky, plain, tricky}) << size;
    };
    row("inside", common, QRect(10, 20, 100, 50));
    row("beyond the right edge", common, QRect(750, 10, 100, 50));
    row("beyond the bottom edge", common, QRect(10, 380, 100, 50));
    row("beyond both edges", common, QRect(700, 350, 300, 300));
    row("height beside the width", common, QRect(600, 10, 150, 300));
    row("larger than the screen", common, QRect(0, 0, 900, 500));
    row("wholly outside", common, QRect(900, 500, 100, 50));
    row("outside to the left and above", common, QRect(-50, -30, 100, 50));
    row("as tall as the screen is wide", common, QRect(100, 100, 20, 700));
    row("no size", common, QRect(10, 10, 0, 0));
    row("negative size", common, QRect(QPoint(10, 10), QSize(-5, -6)));
    row("fractions", common, {}, {{"X", 10.5}, {"Y", 20.49}, {"W", 99.5}, {"H", 50.51}});
    row("huge", common, {}, {{"X", 1e9}, {"Y", -1e9}, {"W", 1e308}, {"H", 1e9}});
    row("text for numbers", common, {}, {{"X", "12"}, {"Y", "low"}, {"W", "100"}, {"H", "tall"}});
    row("null for numbers", common, {}, {{"X", QJsonValue()}, {"W", QJsonValue()}, {"H", QJsonValue()}});
    row("bool for numbers", common, {}, {{"X", true}, {"Y", false}, {"W", true}, {"H", true}});
    row("screen smaller than a new item", QSize(64, 32), QRect(10, 5, 40, 20));
    row("screen lower than a new item", QSize(800, 20), QRect(300, 5, 200, 15));
    row("screen without height", QSize(800, 0), QRect(10, 5, 40, 20));
    row("screen of one pixel", QSize(1, 1), QRect(0, 0, 1, 1));
    QTest::newRow("a hundred") << manyShapes(100) << common;
    QTest::newRow("one") << manyShapes(1) << common;
    QTest::newRow("none") << QJsonArray() << common;
    QTest::newRow("more than the queue is kept for") << manyShapes(250) << common;
}
} // namespace

void tst_ScreenLoad::initTestCase()
{
    QLoggingCategory::setFilterRules("default.debug=false");
}

void tst_ScreenLoad::equalsStepsInView_data()
{
    addBoards();
}

void tst_ScreenLoad::equalsStepsInView()
{
    QFETCH(QJsonArray, items);
    QFETCH(QSize, size);
    const BoardState stepwise = stateAfter([&](ShownScreen &shown) {
        loadStepByStep(shown.screen, manyShapes(3), QSize(300, 200));
        loadStepByStep(shown.screen, items, size);
    });
    const BoardState loaded = stateAfter([&](ShownScreen &shown) {
        shown.screen.loadLayout(layoutOf(manyShapes(3), QSize(300, 200)));
        shown.screen.loadLayout(layoutOf(items, size));
    });
    compareStates(loaded, stepwise);
    QCOMPARE(loaded.frames.isEmpty(), items.isEmpty());
    QVERIFY(loaded.frames.isEmpty() || loaded.frames.last().focused);
}

void tst_ScreenLoad::equalsStepsBeforeTheCanvasIsShown_data()
{
    addBoards();
}

void tst_ScreenLoad::equalsStepsBeforeTheCanvasIsShown()
{
    QFETCH(QJsonArray, items);
    QFETCH(QSize, size);
    const BoardState stepwise =
        stateAfter([&](ShownScreen &shown) { loadStepByStep(shown.screen, items, size); });
    const BoardState loaded = stateAfter([&](ShownScreen &shown) {
        shown.screen.hide();
        shown.screen.loadLayout(layoutOf(items, size));
        shown.screen.show();
    });
    compareStates(loaded, stepwise);
}

void tst_ScreenLoad::pastesAsInView()
{
    const QJsonArray pasted = {shapeObject("P", QRect(700, 350, 300, 300)),
                               shapeObject("Q", QRect(5, 6, 7, 8)),
                               shapeObject("R", QRect(600, 10, 150, 300))};
    const auto prepare = [](ShownScreen &shown) {
        loadStepByStep(shown.screen, manyShapes(3), QSize(800, 400));
        shown.screen.items().first()->setFocus();
        shown.screen.items().first()->select();
    };
    const BoardState stepwise = stateAfter([&](ShownScreen &shown) {
        prepare(shown);
        shown.screen.clearSelection();
        for (const QJsonValue &object : pasted) {
            addStepByStep(shown.screen, object.toObject());
            shown.screen.items().last()->select();
        }
    });
    const BoardState atOnce = stateAfter([&](ShownScreen &shown) {
        prepare(shown);
        ItemClipboard::put(pasted);
        shown.screen.pasteShortcutActivated();
    });
    compareStates(atOnce, stepwise);
    QCOMPARE(atOnce.frames.size(), 6);
}

void tst_ScreenLoad::setsTheWidthBeforeTheHeight()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    QList<QSize> sizes;
    connect(&shown.screen, &Screen::meResized, this, [&] { sizes.append(shown.screen.size()); });
    shown.screen.loadLayout(layoutOf({}, QSize(640, 320)));
    QCOMPARE(sizes, QList<QSize>({QSize(640, 400), QSize(640, 320)}));
}

void tst_ScreenLoad::paintsAVisibleCanvasOnce_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::newRow("empty to a few") << 0 << 5;
    QTest::newRow("a few to a few") << 5 << 5;
    QTest::newRow("a few to many") << 5 << 500;
    QTest::newRow("many to none") << 500 << 0;
}

void tst_ScreenLoad::paintsAVisibleCanvasOnce()
{
    QFETCH(int, before);
    QFETCH(int, after);
    ShownScreen shown;
    QVERIFY(shown.ready);
    shown.screen.loadLayout(board(manyShapes(before)));
    QCoreApplication::processEvents();
    EventCounter paints(&shown.screen, QEvent::Paint);
    shown.screen.loadLayout(layoutOf(manyShapes(after), QSize(640, 320)));
    QCOMPARE(paints.count, 0);
    QCoreApplication::processEvents();
    QCOMPARE(paints.count, 1);
}

void tst_ScreenLoad::staysVisible()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    shown.screen.loadLayout(board(manyShapes(5)));
    QVERIFY(shown.screen.isVisible());
    ItemClipboard::put(manyShapes(5));
    shown.screen.pasteShortcutActivated();
    QVERIFY(shown.screen.isVisible());
    for (const ScreenItem *item : shown.screen.items())
        QVERIFY(item->isVisible());
}

void tst_ScreenLoad::staysHiddenWhenItWas()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    shown.screen.hide();
    shown.screen.loadLayout(board(manyShapes(5)));
    QVERIFY(shown.screen.isHidden());
}

void tst_ScreenLoad::keepsTheFocusAwayFromTheNeighbour()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    shown.screen.loadLayout(board(manyShapes(5)));
    QVERIFY(shown.screen.items().last()->hasFocus());
    EventCounter focusGains(&shown.neighbour, QEvent::FocusIn);
    ItemClipboard::put(manyShapes(5));
    shown.screen.pasteShortcutActivated();
    shown.screen.loadLayout(board(manyShapes(5)));
    QCOMPARE(focusGains.count, 0);
    QVERIFY(shown.screen.items().last()->hasFocus());
}

void tst_ScreenLoad::leavesTheFocusWhenNothingIsMade()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    shown.screen.loadLayout(board(manyShapes(2)));
    QJsonArray videos;
    for (int i = 0; i < 3; ++i)
        videos.append(shapeObject("V", QRect(1, 2, 30, 40), {{"Type", "Video Viewer"}}));
    ItemClipboard::put(videos);
    shown.screen.pasteShortcutActivated();
    QCOMPARE(shown.screen.items().size(), 2);
    QVERIFY(shown.screen.items().last()->hasFocus());
}

void tst_ScreenLoad::takesTheFocusFromTheNeighbour()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    shown.neighbour.setFocus();
    QVERIFY(shown.neighbour.hasFocus());
    shown.screen.loadLayout(board({}));
    QVERIFY(shown.neighbour.hasFocus());
    shown.screen.loadLayout(board(manyShapes(3)));
    QVERIFY(shown.screen.items().last()->hasFocus());
}

BOARDWRIGHT_TEST_MAIN(tst_ScreenLoad)
#include "tst_screenload.moc"
