#include "toolbars/toolbarforscreenitem.h"

#include "model/applicationstyle.h"
#include "tests/canvas/shownscreen.h"
#include "tests/support/strictmain.h"
#include "toolbars/toolbaritem.h"
#include "viewers/shape.h"

#include <QHBoxLayout>
#include <QLoggingCategory>
#include <QMetaMethod>
#include <QSharedPointer>

#include <algorithm>

Q_DECLARE_METATYPE(Qt::MouseButton)

// The strip of commands above the canvas.
class tst_ToolBarForScreenItem : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void slotsKeepOrderAndAccess();
    void isAStripOfFixedHeight();
    void buttonsKeepOrderTipAndImage_data();
    void buttonsKeepOrderTipAndImage();
    void holdsFifteenButtonsAndASpacer();
    void buttonsGatherAtTheLeft();
    void doesNothingWithoutSelection_data();
    void doesNothingWithoutSelection();
    void doesNothingWithoutCanvas_data();
    void doesNothingWithoutCanvas();
    void forgetsACanvasThatIsGone();
    void placesTheItem_data();
    void placesTheItem();
    void placesWithEveryMouseButton_data();
    void placesWithEveryMouseButton();
    void centresALargerItemTowardsZero();
    void clampsNothingItself();
    void placingWhereTheItemIsLeavesTheLayoutUnmodified_data();
    void placingWhereTheItemIsLeavesTheLayoutUnmodified();
    void actsOnTheItemSelectedLast_data();
    void actsOnTheItemSelectedLast();
    void movesTheLayer_data();
    void movesTheLayer();
    void everyPressOfADoubleClickCounts();
    void deletesAllSelectedInOrder();
    void deletingDeselectsAtOnceAndModifiesWhenTheItemsGo();
    void separatorDoesNothing();
    void leavesTheFocusOnTheItem();
    void actsOnANewItemAtOnce();
};

namespace
{
struct Button {
    const char *image;
    const char *toolTip;
};

const Button buttons[] = {{"delete", "Delete"},
                          {"___", ""},
                          {"moveUp", "Move Layer Up"},
                          {"moveDown", "Move Layer Down"},
                          {"moveToTop", "Move to the Top Layer"},
                          {"movToBottom", "Move to the Bottom Layer"},
                          {"fullScreen", "Fill the Screen"},
                          {"horisontalFull", "Fit the Screen Horizontally"},
                          {"verticallFull", "Fit the Screen Vertically"},
                          {"alignTop", "Align Top"},
                          {"alignVerticalCenter", "Center Vertically"},
                          {"alignBottom", "Align Bottom"},
                          {"alignLeft", "Align Left"},
                          {"alignHorisontalCenter", "Center Horizontally"},
                          {"alignRight", "Align Right"}};

/// One row for each button, the separator included.
void addRowForEachButton()
{
    QTest::addColumn<QString>("tip");
    for (const Button &button : buttons)
        QTest::newRow(*button.toolTip ? button.toolTip : "separator") << QString(button.toolTip);
}

/// A canvas and, below it, the toolbar for it.
struct Desk : ShownScreen {
    Desk()
    {
        neighbour.hide();
        bar.setGeometry(0, 410, 800, 30);
        bar.setScreen(&screen);
        bar.show();
        QCoreApplication::processEvents();
    }

    ScreenItem *add(const QString &name, const QRect &geometry)
    {
        auto *item = new ScreenItem(&screen);
        (new Shape(item))->show();
        item->setGeometry(geometry);
        item->setMyName(name);
        return item;
    }

    /// Three overlapping items, from the bottom "A", "B" and "C", none of them selected.
    void addThree()
    {
        add("A", {10, 20, 100, 50});
        add("B", {30, 40, 100, 50});
        add("C", {50, 60, 100, 50});
        screen.clearSelection();
        forgetChanges();
    }

    ScreenItem *item(const QString &name) const
    {
        return screen.items().at(namesOf(screen.items()).indexOf(name));
    }

    void select(const QStringList &names)
    {
        for (const QString &name : names)
            item(name)->select();
    }

    /// Loads what is there: the same items, made anew, and a layout that is not modified.
    void forgetChanges() { screen.loadLayout(screen.saveLayout()); }

    /// The button of this tool tip; the separator has none.
    ToolBarItem *button(const QString &tip) const
    {
        const QList<ToolBarItem *> all = bar.findChildren<ToolBarItem *>();
        const auto found = std::find_if(all.begin(), all.end(),
                                        [&tip](const ToolBarItem *item) { return item->toolTip() == tip; });
        return found == all.end() ? nullptr : *found;
    }

    void click(const QString &tip, Qt::MouseButton mouseButton = Qt::LeftButton)
    {
        const QPoint position = button(tip)->mapTo(&window, QPoint(15, 15));
        QTest::mouseClick(window.windowHandle(), mouseButton, {}, position);
    }

    ToolBarForScreenItem bar{&window};
};

/// Everything a command could change.
QVariantList stateOf(const Screen &screen)
{
    QVariantList state = {screen.isModified(), stackedNames(screen), namesOf(screen.items()),
                          namesOf(screen.selection())};
    for (ScreenItem *item : screen.items())
        state.append(item->geometry());
    return state;
}

QRect valuesOf(ScreenItem *item)
{
    const auto number = [item](const char *key) {
        return item->getValue(key).toInt();
    };
    return {number("X"), number("Y"), number("W"), number("H")};
}
} // namespace

void tst_ToolBarForScreenItem::initTestCase()
{
    applyApplicationStyle();
    QLoggingCategory::setFilterRules("default.debug=false");
}

void tst_ToolBarForScreenItem::slotsKeepOrderAndAccess()
{
    const QMetaObject &meta = ToolBarForScreenItem::staticMetaObject;
    QCOMPARE(meta.superClass()->className(), "QWidget");
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    const QMetaMethod setScreen = meta.method(meta.methodOffset());
    QCOMPARE(setScreen.methodSignature(), QByteArray("setScreen(Screen*)"));
    QCOMPARE(setScreen.access(), QMetaMethod::Public);
    const QMetaMethod itemClicked = meta.method(meta.methodOffset() + 1);
    QCOMPARE(itemClicked.methodSignature(), QByteArray("toolBarItemClicked(ToolBarItem*)"));
    QCOMPARE(itemClicked.access(), QMetaMethod::Private);
}

void tst_ToolBarForScreenItem::isAStripOfFixedHeight()
{
    const ToolBarForScreenItem bar(nullptr);
    QCOMPARE(bar.minimumHeight(), 30);
    QCOMPARE(bar.maximumHeight(), 30);
    const auto *layout = qobject_cast<QHBoxLayout *>(bar.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
}

void tst_ToolBarForScreenItem::buttonsKeepOrderTipAndImage_data()
{
    QTest::addColumn<int>("place");
    for (int place = 0; place < 15; ++place)
        QTest::newRow(buttons[place].image) << place;
}

void tst_ToolBarForScreenItem::buttonsKeepOrderTipAndImage()
{
    QFETCH(int, place);

    const ToolBarForScreenItem bar(nullptr);
    const auto *item = qobject_cast<ToolBarItem *>(bar.layout()->itemAt(place)->widget());
    QVERIFY(item);
    QCOMPARE(item->toolTip(), QString(buttons[place].toolTip));
    QCOMPARE(item->accessibleName(), QString(buttons[place].toolTip));
    const QString path = QString(":/assets/interface/layerToolBarSettings/%1.png").arg(buttons[place].image);
    QVERIFY2(item->styleSheet().contains("url(\"" + path + "\")"), qPrintable(item->styleSheet()));
    QCOMPARE(QPixmap(path).size(), QSize(30, 30));
}

void tst_ToolBarForScreenItem::holdsFifteenButtonsAndASpacer()
{
    const ToolBarForScreenItem bar(nullptr);
    QCOMPARE(bar.findChildren<ToolBarItem *>().size(), 15);
    QCOMPARE(bar.layout()->count(), 16);
    const QLayoutItem *last = bar.layout()->itemAt(15);
    QCOMPARE(last->sizeHint(), QSize(2, 30));
    QCOMPARE(last->expandingDirections(), Qt::Orientations(Qt::Horizontal));
}

void tst_ToolBarForScreenItem::buttonsGatherAtTheLeft()
{
    const Desk desk;
    for (int place = 0; place < 15; ++place) {
        const QRect expected(place * (30 + desk.bar.layout()->spacing()), 0, 30, 30);
        QCOMPARE(desk.bar.layout()->itemAt(place)->widget()->geometry(), expected);
    }
}

void tst_ToolBarForScreenItem::doesNothingWithoutSelection_data()
{
    addRowForEachButton();
}

void tst_ToolBarForScreenItem::doesNothingWithoutSelection()
{
    QFETCH(QString, tip);

    Desk desk;
    desk.addThree();
    const QVariantList before = stateOf(desk.screen);
    desk.click(tip);
    deleteScheduled();
    QCOMPARE(stateOf(desk.screen), before);
}

void tst_ToolBarForScreenItem::doesNothingWithoutCanvas_data()
{
    addRowForEachButton();
}

void tst_ToolBarForScreenItem::doesNothingWithoutCanvas()
{
    QFETCH(QString, tip);

    Desk desk;
    desk.addThree();
    desk.select({"B"});
    desk.bar.setScreen(nullptr);
    const QVariantList before = stateOf(desk.screen);
    desk.click(tip);
    deleteScheduled();
    QCOMPARE(stateOf(desk.screen), before);
}

void tst_ToolBarForScreenItem::forgetsACanvasThatIsGone()
{
    Desk desk;
    auto *other = new Screen;
    desk.bar.setScreen(other);
    delete other;
    for (const Button &button : buttons)
        desk.click(button.toolTip);
    desk.addThree();
    desk.select({"B"});
    desk.bar.setScreen(&desk.screen);
    desk.click("Align Left");
    QCOMPARE(desk.item("B")->geometry(), QRect(0, 40, 100, 50));
}

void tst_ToolBarForScreenItem::placesTheItem_data()
{
    QTest::addColumn<QString>("tip");
    QTest::addColumn<QRect>("expected");

    const auto row = [](const char *tip, const QRect &expected) {
        QTest::newRow(tip) << QString(tip) << expected;
    };
    row("Fill the Screen", {0, 0, 800, 400});
    row("Fit the Screen Horizontally", {0, 40, 800, 51});
    row("Fit the Screen Vertically", {30, 0, 101, 400});
    row("Align Top", {30, 0, 101, 51});
    row("Center Vertically", {30, 174, 101, 51});
    row("Align Bottom", {30, 349, 101, 51});
    row("Align Left", {0, 40, 101, 51});
    row("Center Horizontally", {349, 40, 101, 51});
    row("Align Right", {699, 40, 101, 51});
}

void tst_ToolBarForScreenItem::placesTheItem()
{
    QFETCH(QString, tip);
    QFETCH(QRect, expected);

    Desk desk;
    desk.add("A", {30, 40, 101, 51});
    desk.forgetChanges();
    desk.select({"A"});
    QVERIFY(!desk.screen.isModified());
    desk.click(tip);
    QCOMPARE(desk.item("A")->geometry(), expected);
    QCOMPARE(valuesOf(desk.item("A")), expected);
    QVERIFY(desk.screen.isModified());
    QCOMPARE(namesOf(desk.screen.selection()), QStringList("A"));
}

void tst_ToolBarForScreenItem::placesWithEveryMouseButton_data()
{
    QTest::addColumn<Qt::MouseButton>("mouseButton");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void tst_ToolBarForScreenItem::placesWithEveryMouseButton()
{
    QFETCH(Qt::MouseButton, mouseButton);

    Desk desk;
    desk.addThree();
    desk.select({"B"});
    desk.click("Align Right", mouseButton);
    QCOMPARE(desk.item("B")->geometry(), QRect(700, 40, 100, 50));
}

void tst_ToolBarForScreenItem::centresALargerItemTowardsZero()
{
    Desk desk;
    ScreenItem *item = desk.add("A", {0, 0, 803, 50});
    QCOMPARE(item->width(), 803);
    item->select();
    desk.click("Center Horizontally");
    QCOMPARE(item->geometry(), QRect(-1, 0, 803, 50));
    desk.click("Align Right");
    QCOMPARE(item->geometry(), QRect(-3, 0, 803, 50));
    QCOMPARE(valuesOf(item), QRect(-3, 0, 803, 50));
}

void tst_ToolBarForScreenItem::clampsNothingItself()
{
    Desk desk;
    ScreenItem *item = desk.add("A", {30, 40, 100, 50});
    item->select();
    item->move(-500, 900);
    desk.click("Center Vertically");
    QCOMPARE(item->geometry(), QRect(-500, 175, 100, 50));
    item->move(5000, -900);
    desk.click("Align Bottom");
    QCOMPARE(item->geometry(), QRect(5000, 350, 100, 50));
    item->move(5000, -900);
    desk.click("Align Left");
    QCOMPARE(item->geometry(), QRect(0, -900, 100, 50));
}

void tst_ToolBarForScreenItem::placingWhereTheItemIsLeavesTheLayoutUnmodified_data()
{
    QTest::addColumn<QString>("tip");
    QTest::addColumn<QRect>("geometry");

    const QRect whole(0, 0, 800, 400);
    QTest::newRow("fill") << "Fill the Screen" << whole;
    QTest::newRow("fit horizontally") << "Fit the Screen Horizontally" << QRect(0, 50, 800, 20);
    QTest::newRow("fit vertically") << "Fit the Screen Vertically" << QRect(50, 0, 20, 400);
    QTest::newRow("top") << "Align Top" << QRect(50, 0, 20, 20);
    QTest::newRow("centre") << "Center Vertically" << QRect(50, 189, 20, 21);
    QTest::newRow("bottom") << "Align Bottom" << QRect(50, 380, 20, 20);
    QTest::newRow("left") << "Align Left" << QRect(0, 50, 20, 20);
    QTest::newRow("centre across") << "Center Horizontally" << QRect(390, 50, 20, 20);
    QTest::newRow("right") << "Align Right" << QRect(780, 50, 20, 20);
}

void tst_ToolBarForScreenItem::placingWhereTheItemIsLeavesTheLayoutUnmodified()
{
    QFETCH(QString, tip);
    QFETCH(QRect, geometry);

    Desk desk;
    desk.add("A", geometry);
    desk.forgetChanges();
    desk.select({"A"});
    desk.click(tip);
    QCOMPARE(desk.item("A")->geometry(), geometry);
    QVERIFY(!desk.screen.isModified());
}

void tst_ToolBarForScreenItem::actsOnTheItemSelectedLast_data()
{
    QTest::addColumn<QStringList>("selection");
    QTest::addColumn<QString>("moved");
    QTest::newRow("in layer order") << QStringList({"A", "B", "C"}) << "C";
    QTest::newRow("against layer order") << QStringList({"C", "B", "A"}) << "A";
    QTest::newRow("one of three") << QStringList({"B"}) << "B";
}

void tst_ToolBarForScreenItem::actsOnTheItemSelectedLast()
{
    QFETCH(QStringList, selection);
    QFETCH(QString, moved);

    Desk desk;
    desk.addThree();
    desk.select(selection);
    desk.click("Align Right");
    desk.click("Move to the Top Layer");
    for (const QString &name : {QString("A"), QString("B"), QString("C")})
        QCOMPARE(desk.item(name)->x() == 700, name == moved);
    QCOMPARE(namesOf(desk.screen.items()).constLast(), moved);
    QCOMPARE(stackedNames(desk.screen).constLast(), moved);
    QCOMPARE(namesOf(desk.screen.selection()), selection);
}

void tst_ToolBarForScreenItem::movesTheLayer_data()
{
    QTest::addColumn<QString>("tip");
    QTest::addColumn<QString>("item");
    QTest::addColumn<QString>("order");
    QTest::addColumn<bool>("modified");

    QTest::newRow("up from the bottom") << "Move Layer Up"
                                        << "A"
                                        << "BAC" << true;
    QTest::newRow("up from the middle") << "Move Layer Up"
                                        << "B"
                                        << "ACB" << true;
    QTest::newRow("up from the top") << "Move Layer Up"
                                     << "C"
                                     << "ABC" << false;
    QTest::newRow("down from the top") << "Move Layer Down"
                                       << "C"
                                       << "ACB" << true;
    QTest::newRow("down from the middle") << "Move Layer Down"
                                          << "B"
                                          << "BAC" << true;
    QTest::newRow("down from the bottom") << "Move Layer Down"
                                          << "A"
                                          << "ABC" << false;
    QTest::newRow("to the top") << "Move to the Top Layer"
                                << "A"
                                << "BCA" << true;
    QTest::newRow("to the top from there") << "Move to the Top Layer"
                                           << "C"
                                           << "ABC" << true;
    QTest::newRow("to the bottom") << "Move to the Bottom Layer"
                                   << "C"
                                   << "CAB" << true;
    QTest::newRow("to the bottom from there") << "Move to the Bottom Layer"
                                              << "A"
                                              << "ABC" << true;
}

void tst_ToolBarForScreenItem::movesTheLayer()
{
    QFETCH(QString, tip);
    QFETCH(QString, item);
    QFETCH(QString, order);
    QFETCH(bool, modified);

    Desk desk;
    desk.addThree();
    desk.select({item});
    const QRect geometry = desk.item(item)->geometry();
    desk.click(tip);
    QCOMPARE(namesOf(desk.screen.items()).join(""), order);
    QCOMPARE(stackedNames(desk.screen).join(""), order);
    QCOMPARE(desk.screen.isModified(), modified);
    QCOMPARE(desk.item(item)->geometry(), geometry);
    QCOMPARE(namesOf(desk.screen.selection()), QStringList(item));
}

void tst_ToolBarForScreenItem::everyPressOfADoubleClickCounts()
{
    Desk desk;
    desk.addThree();
    desk.select({"A"});
    const QPoint position = desk.button("Move Layer Up")->mapTo(&desk.window, QPoint(15, 15));
    QTest::mouseDClick(desk.window.windowHandle(), Qt::LeftButton, {}, position);
    QCOMPARE(namesOf(desk.screen.items()).join(""), QString("BCA"));
}

void tst_ToolBarForScreenItem::deletesAllSelectedInOrder()
{
    Desk desk;
    desk.addThree();
    desk.select({"C", "A"});
    const auto gone = QSharedPointer<QStringList>::create();
    for (ScreenItem *item : desk.screen.items()) {
        const QString name = item->name();
        connect(item, &QObject::destroyed, this, [gone, name] { gone->append(name); });
    }
    desk.click("Delete");
    QVERIFY(desk.screen.selection().isEmpty());
    QVERIFY(selectionIsConsistent(desk.screen));
    deleteScheduled();
    QCOMPARE(*gone, QStringList({"C", "A"}));
    QCOMPARE(namesOf(desk.screen.items()), QStringList("B"));
    desk.click("Delete");
    deleteScheduled();
    QCOMPARE(namesOf(desk.screen.items()), QStringList("B"));
}

void tst_ToolBarForScreenItem::deletingDeselectsAtOnceAndModifiesWhenTheItemsGo()
{
    Desk desk;
    desk.addThree();
    desk.select({"B"});
    // Called and not clicked: handling a click would let the item go at once.
    emit desk.button("Delete")->clicked(desk.button("Delete"));
    QVERIFY(desk.screen.selection().isEmpty());
    QVERIFY(selectionIsConsistent(desk.screen));
    QCOMPARE(desk.screen.items().size(), 3);
    QVERIFY(!desk.screen.isModified());
    deleteScheduled();
    QCOMPARE(desk.screen.items().size(), 2);
    QVERIFY(desk.screen.isModified());
}

void tst_ToolBarForScreenItem::separatorDoesNothing()
{
    Desk desk;
    desk.addThree();
    desk.select({"A", "B"});
    const QVariantList before = stateOf(desk.screen);
    desk.click("");
    deleteScheduled();
    QCOMPARE(stateOf(desk.screen), before);
}

void tst_ToolBarForScreenItem::leavesTheFocusOnTheItem()
{
    Desk desk;
    desk.addThree();
    QTest::mouseClick(desk.window.windowHandle(), Qt::LeftButton, {}, QPoint(140, 100));
    QCOMPARE(QApplication::focusWidget(), desk.item("C"));
    desk.click("Align Left");
    desk.click("Move Layer Down");
    QCOMPARE(QApplication::focusWidget(), desk.item("C"));
    QVERIFY(desk.item("C")->isActive());
    QTest::keyClick(desk.window.windowHandle(), Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(desk.item("C")->geometry(), QRect(1, 60, 100, 50));
}

void tst_ToolBarForScreenItem::actsOnANewItemAtOnce()
{
    Desk desk;
    desk.addThree();
    desk.screen.newItem("Shape");
    desk.click("Align Right");
    desk.click("Align Bottom");
    QCOMPARE(desk.screen.items().last()->geometry(), QRect(700, 350, 100, 50));
    desk.click("Delete");
    deleteScheduled();
    QCOMPARE(namesOf(desk.screen.items()), QStringList({"A", "B", "C"}));
}

BOARDWRIGHT_TEST_MAIN(tst_ToolBarForScreenItem)
#include "tst_toolbarforscreenitem.moc"
