#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "tests/canvas/shownscreen.h"
#include "tests/support/boards.h"
#include "tests/support/strictmain.h"
#include "viewers/shape.h"

#include <QLoggingCategory>
#include <QMetaMethod>
#include <QPainter>
#include <QPointer>
#include <QRegularExpression>
#include <QShortcut>
#include <QSignalSpy>

Q_DECLARE_METATYPE(Qt::MouseButton)

class tst_Screen : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void startsBlackEmptyAndUnmodified();
    void bindsFourShortcutsToTheWindow();
    void keepsTheOrderOfSignalsAndSlots();
    void setsOneLengthAndKeepsTheOther();
    void keepsItsSizeFixed();
    void holdsSizesToWhatAWidgetCanHave_data();
    void holdsSizesToWhatAWidgetCanHave();
    void marksAChangeOfSizeOnly();
    void leavesTheFlagWhenOnlyTheColourChanges();
    void reportsEveryChangeOfSize();
    void paintsAgainWhenItsLookChanges_data();
    void paintsAgainWhenItsLookChanges();
    void fillsWithTheBackgroundColour();
    void paintsAnInvalidColourAsBlack();
    void drawsTheGridAboveTheBackground();
    void paintsTheBackgroundAloneInRenderMode();
    void paintsUnderATranslucentBackground();
    void paintsAHugeCanvasAtOnce();
    void putsItemsIntoAndOutOfRenderMode();
    void endsEditingInLayerOrderForRenderMode();
    void listsNewFramesOnTop();
    void tellsTheDebugLogAboutNewFrames();
    void marksEveryFrameThatIsAdded();
    void listsAFrameAgainWhenItIsAddedAgain();
    void forgetsOneListingForEachReportedEnd();
    void deactivatesTheOthersBeforeShowingThePanel();
    void dropsDestroyedFramesFromBothLists();
    void marksTheDestructionOfAnUnknownItem();
    void showsThePanelOfItsOwnItemsOnly();
    void neverEmitsSelectedItem();
    void deselectsAllWhenPressedBesideTheItems_data();
    void deselectsAllWhenPressedBesideTheItems();
    void leavesItemsAloneInRenderMode();
    void tellsTheDebugLogAboutKeys();
    void deletesTheSelectionWithTheDeleteKey();
    void deletesWithModifiersAsWell();
    void leavesEverythingAtOtherKeys();
    void restacksItemsInListOrder();
    void diesWithItsItems();
};

namespace
{
ScreenItem *addItem(Screen &screen, const QString &name, const QRect &geometry = QRect(10, 10, 40, 30))
{
    return screen.createItem(shapeObject(name, geometry));
}

QStringList signaturesFrom(const char *first, int count)
{
    const QMetaObject &meta = Screen::staticMetaObject;
    QStringList signatures;
    for (int i = meta.indexOfMethod(first); i >= 0 && i < meta.methodCount() && signatures.size() < count;
         ++i)
        signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
    return signatures;
}

QImage painted(Screen &screen)
{
    return screen.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QImage filled(QSize size, const QColor &color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

/// A shape that notes its frame's name when its editing ends.
class NotingShape : public Shape
{
public:
    NotingShape(ScreenItem *frame, QStringList *ended) : Shape(frame), m_frame(frame), m_ended(ended) {}

    void endEditing() override { m_ended->append(m_frame->name()); }

private:
    ScreenItem *m_frame;
    QStringList *m_ended;
};

/// A screen that counts as not modified.
void clearModified(Screen &screen)
{
    screen.loadLayout(screen.saveLayout());
    QVERIFY(!screen.isModified());
}
} // namespace

void tst_Screen::initTestCase()
{
    qRegisterMetaType<ScreenItem *>();
    QLoggingCategory::setFilterRules("default.debug=false");
}

void tst_Screen::startsBlackEmptyAndUnmodified()
{
    Screen screen;
    QCOMPARE(screen.backgroundColor(), QColor(Qt::black));
    QVERIFY(screen.items().isEmpty());
    QVERIFY(screen.selection().isEmpty());
    QVERIFY(!screen.isModified());
    QVERIFY(screen.acceptDrops());
}

void tst_Screen::bindsFourShortcutsToTheWindow()
{
    Screen screen;
    QStringList keys;
    const auto shortcuts = screen.findChildren<QShortcut *>();
    for (const QShortcut *shortcut : shortcuts) {
        keys.append(shortcut->key().toString());
        QCOMPARE(shortcut->context(), Qt::WindowShortcut);
    }
    QCOMPARE(keys, QStringList({"Ctrl+C", "Ctrl+X", "Ctrl+V", "Ctrl+A"}));
}

void tst_Screen::keepsTheOrderOfSignalsAndSlots()
{
    QCOMPARE(signaturesFrom("showSettingsFor(ScreenItem*)", 4),
             QStringList({"showSettingsFor(ScreenItem*)", "deactivateFor(ScreenItem*)",
                          "selectedItem(ScreenItem*)", "meResized()"}));
    // And no other method beside the four and the twelve.
    QCOMPARE(Screen::staticMetaObject.methodCount() - Screen::staticMetaObject.methodOffset(), 16);
    QCOMPARE(signaturesFrom("screenItemDeleted(QObject*)", 12),
             QStringList({"screenItemDeleted(QObject*)", "setActiveItem(ScreenItem*)", "setWidgth(int)",
                          "setHeight(int)", "setBackgrounColor(QColor)", "goToRenderMode()",
                          "goOutRenderMode()", "copyShortcutActivated()", "cutShortcutActivated()",
                          "pasteShortcutActivated()", "selectAllShortcutActivated()", "newItem(QString)"}));
}

void tst_Screen::setsOneLengthAndKeepsTheOther()
{
    Screen screen;
    screen.setWidgth(300);
    screen.setHeight(200);
    QCOMPARE(screen.size(), QSize(300, 200));
    screen.setWidgth(500);
    QCOMPARE(screen.size(), QSize(500, 200));
    screen.setHeight(20);
    QCOMPARE(screen.size(), QSize(500, 20));
}

void tst_Screen::keepsItsSizeFixed()
{
    Screen screen;
    screen.setWidgth(300);
    screen.setHeight(200);
    QCOMPARE(screen.minimumSize(), QSize(300, 200));
    QCOMPARE(screen.maximumSize(), QSize(300, 200));
    screen.resize(10, 10);
    QCOMPARE(screen.size(), QSize(300, 200));
}

void tst_Screen::holdsSizesToWhatAWidgetCanHave_data()
{
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("given");
    QTest::newRow("negative") << -1 << 0;
    QTest::newRow("most negative") << INT_MIN << 0;
    QTest::newRow("zero") << 0 << 0;
    QTest::newRow("largest widget") << 16777215 << 16777215;
    QTest::newRow("beyond it") << 16777216 << 16777215;
    QTest::newRow("largest number") << INT_MAX << 16777215;
}

void tst_Screen::holdsSizesToWhatAWidgetCanHave()
{
    QFETCH(int, asked);
    QFETCH(int, given);
    Screen screen;
    screen.setWidgth(asked);
    screen.setHeight(asked);
    QCOMPARE(screen.size(), QSize(given, given));
}

void tst_Screen::marksAChangeOfSizeOnly()
{
    Screen screen;
    screen.setWidgth(screen.width());
    screen.setHeight(screen.height());
    QVERIFY(!screen.isModified());
    screen.setWidgth(321);
    QVERIFY(screen.isModified());
    clearModified(screen);
    screen.setHeight(123);
    QVERIFY(screen.isModified());
}

void tst_Screen::leavesTheFlagWhenOnlyTheColourChanges()
{
    Screen screen;
    screen.setBackgrounColor(Qt::red);
    QCOMPARE(screen.backgroundColor(), QColor(Qt::red));
    QVERIFY(!screen.isModified());
    screen.markModified();
    screen.setBackgrounColor(Qt::green);
    QVERIFY(screen.isModified());
}

void tst_Screen::reportsEveryChangeOfSize()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    QSignalSpy resized(&shown.screen, &Screen::meResized);
    shown.screen.setWidgth(640);
    QCOMPARE(resized.size(), 1);
    shown.screen.setHeight(320);
    QCOMPARE(resized.size(), 2);
    shown.screen.setHeight(320);
    QCOMPARE(resized.size(), 2);
}

void tst_Screen::paintsAgainWhenItsLookChanges_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::newRow("background colour") << QByteArray("setBackgrounColor");
    QTest::newRow("into render mode") << QByteArray("goToRenderMode");
    QTest::newRow("out of render mode") << QByteArray("goOutRenderMode");
}

void tst_Screen::paintsAgainWhenItsLookChanges()
{
    QFETCH(QByteArray, slot);
    ShownScreen shown;
    QVERIFY(shown.ready);
    const EventCounter paints(&shown.screen, QEvent::Paint);
    if (slot == "setBackgrounColor")
        shown.screen.setBackgrounColor(Qt::blue);
    else
        QVERIFY(QMetaObject::invokeMethod(&shown.screen, slot.constData(), Qt::DirectConnection));
    QTRY_COMPARE(paints.count, 1);
}

void tst_Screen::fillsWithTheBackgroundColour()
{
    Screen screen;
    screen.setWidgth(30);
    screen.setHeight(20);
    screen.setBackgrounColor(QColor(0x33, 0x66, 0x99));
    screen.goToRenderMode();
    QCOMPARE(painted(screen), filled(QSize(30, 20), QColor(0x33, 0x66, 0x99)));
}

void tst_Screen::paintsAnInvalidColourAsBlack()
{
    Screen screen;
    screen.setWidgth(30);
    screen.setHeight(20);
    screen.setBackgrounColor(QColor());
    screen.goToRenderMode();
    QCOMPARE(painted(screen), filled(QSize(30, 20), Qt::black));
}

void tst_Screen::drawsTheGridAboveTheBackground()
{
    Screen screen;
    screen.setWidgth(800);
    screen.setHeight(400);
    screen.setBackgrounColor(Qt::white);
    QImage expected = filled(QSize(800, 400), Qt::white);
    QPainter painter(&expected);
    painter.setPen(QColor(50, 50, 50, 100));
    for (int column = 0; column < 73; ++column) {
        for (int row = 0; row < 37; ++row)
            painter.drawPoint(column * 11, row * 11);
    }
    painter.end();
    QCOMPARE(painted(screen), expected);
}

void tst_Screen::paintsTheBackgroundAloneInRenderMode()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    const QImage inEditMode = painted(shown.screen);
    shown.screen.goToRenderMode();
    QCOMPARE(painted(shown.screen), filled(QSize(800, 400), Qt::black));
    shown.screen.goOutRenderMode();
    QCOMPARE(painted(shown.screen), inEditMode);
    QVERIFY(inEditMode != filled(QSize(800, 400), Qt::black));
}

void tst_Screen::paintsUnderATranslucentBackground()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::white);
    shown.window.setPalette(palette);
    shown.screen.setBackgrounColor(QColor(255, 0, 0, 0));
    QCOMPARE(shown.window.grab().toImage().pixelColor(5, 5), QColor(Qt::white));
    shown.screen.setBackgrounColor(Qt::red);
    QCOMPARE(shown.window.grab().toImage().pixelColor(5, 5), QColor(Qt::red));
}

void tst_Screen::paintsAHugeCanvasAtOnce()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    shown.screen.setWidgth(16777215);
    shown.screen.setHeight(16777215);
    const QImage corner = shown.screen.grab(QRect(0, 0, 12, 12)).toImage();
    QVERIFY(corner.pixelColor(11, 11) != QColor(Qt::black));
    QCOMPARE(corner.pixelColor(10, 11), QColor(Qt::black));
    shown.screen.repaint();
    QCOMPARE(shown.window.grab().toImage().pixelColor(11, 11), corner.pixelColor(11, 11));
}

void tst_Screen::putsItemsIntoAndOutOfRenderMode()
{
    Screen screen;
    const QList<ScreenItem *> items = {addItem(screen, "A"), addItem(screen, "B")};
    screen.goToRenderMode();
    for (const ScreenItem *item : items)
        QVERIFY(item->isInRenderMode());
    screen.goOutRenderMode();
    for (const ScreenItem *item : items)
        QVERIFY(!item->isInRenderMode());
}

void tst_Screen::endsEditingInLayerOrderForRenderMode()
{
    Screen screen;
    QStringList ended;
    for (const char *name : {"A", "B", "C"}) {
        auto *frame = new ScreenItem(&screen);
        frame->setMyName(name);
        new NotingShape(frame, &ended);
    }
    screen.bringToFront(screen.items().first());
    screen.goToRenderMode();
    QCOMPARE(ended, QStringList({"B", "C", "A"}));
    screen.goOutRenderMode();
    QCOMPARE(ended.size(), 3);
}

void tst_Screen::listsNewFramesOnTop()
{
    Screen screen;
    auto *below = new ScreenItem(&screen);
    QVERIFY(screen.isModified());
    auto *above = new ScreenItem(&screen);
    QCOMPARE(screen.items(), QList<ScreenItem *>({below, above}));
    QCOMPARE(above->parentWidget(), &screen);
    QVERIFY(screen.selection().isEmpty());
}

void tst_Screen::tellsTheDebugLogAboutNewFrames()
{
    QLoggingCategory::setFilterRules("default.debug=true");
    Screen screen;
    QTest::ignoreMessage(QtDebugMsg, "m_allItems.contains(item) false");
    QTest::ignoreMessage(QtDebugMsg,
                         QRegularExpression("^addScreenItem\\(ScreenItem\\* item= 0x[0-9a-f]+ \\)$"));
    auto *item = new ScreenItem(&screen);
    QTest::ignoreMessage(QtDebugMsg, "m_allItems.contains(item) true");
    screen.addScreenItem(item);
    QLoggingCategory::setFilterRules("default.debug=false");
}

void tst_Screen::marksEveryFrameThatIsAdded()
{
    Screen screen;
    auto *item = new ScreenItem(nullptr);
    QCoreApplication::processEvents();
    QVERIFY(!screen.isModified());
    screen.addScreenItem(item);
    QVERIFY(screen.isModified());
    QCOMPARE(item->parentWidget(), &screen);
}

void tst_Screen::listsAFrameAgainWhenItIsAddedAgain()
{
    Screen screen;
    auto *item = new ScreenItem(&screen);
    auto *other = new ScreenItem(&screen);
    screen.addScreenItem(item);
    QCOMPARE(screen.items(), QList<ScreenItem *>({item, other, item}));
    delete item;
    QCOMPARE(screen.items(), QList<ScreenItem *>({other}));
}

void tst_Screen::forgetsOneListingForEachReportedEnd()
{
    Screen screen;
    auto *item = new ScreenItem(&screen);
    auto *other = new ScreenItem(&screen);
    screen.addScreenItem(item);
    screen.screenItemDeleted(item);
    QCOMPARE(screen.items(), QList<ScreenItem *>({other, item}));
    screen.screenItemDeleted(item);
    QCOMPARE(screen.items(), QList<ScreenItem *>({other}));
    delete item;
}

void tst_Screen::deactivatesTheOthersBeforeShowingThePanel()
{
    Screen screen;
    ScreenItem *first = addItem(screen, "First");
    ScreenItem *second = addItem(screen, "Second");
    first->select();
    QStringList order;
    connect(&screen, &Screen::deactivateFor, this, [&order, second](ScreenItem *item) {
        order.append(item == second ? "deactivateFor second" : "deactivateFor another");
    });
    connect(&screen, &Screen::showSettingsFor, this, [&](ScreenItem *item) {
        order.append(item == second ? "showSettingsFor second" : "showSettingsFor another");
        QVERIFY(!first->isSelected());
        QVERIFY(second->isSelected());
    });
    emit second->activated(second);
    QCOMPARE(order, QStringList({"deactivateFor second", "showSettingsFor second"}));
    QCOMPARE(screen.selection(), QList<ScreenItem *>({second}));
}

void tst_Screen::dropsDestroyedFramesFromBothLists()
{
    Screen screen;
    ScreenItem *gone = addItem(screen, "Gone");
    ScreenItem *kept = addItem(screen, "Kept");
    screen.selectAllShortcutActivated();
    delete gone;
    QCOMPARE(screen.items(), QList<ScreenItem *>({kept}));
    QCOMPARE(screen.selection(), QList<ScreenItem *>({kept}));
    clearModified(screen);
    delete screen.items().first();
    QVERIFY(screen.items().isEmpty());
    QVERIFY(screen.isModified());
}

void tst_Screen::marksTheDestructionOfAnUnknownItem()
{
    Screen screen;
    QObject stranger;
    screen.screenItemDeleted(&stranger);
    QVERIFY(screen.isModified());
    screen.screenItemDeleted(nullptr);
    QVERIFY(screen.items().isEmpty());
}

void tst_Screen::showsThePanelOfItsOwnItemsOnly()
{
    Screen screen;
    Screen otherScreen;
    ScreenItem *own = addItem(screen, "Own");
    ScreenItem *foreign = addItem(otherScreen, "Foreign");
    ScreenItem orphan(nullptr);
    QSignalSpy shown(&screen, &Screen::showSettingsFor);
    screen.setActiveItem(foreign);
    screen.setActiveItem(&orphan);
    QCOMPARE(shown.size(), 0);
    screen.setActiveItem(own);
    QCOMPARE(shown.takeFirst().constFirst().value<ScreenItem *>(), own);
    screen.setActiveItem(nullptr);
    QCOMPARE(shown.takeFirst().constFirst().value<ScreenItem *>(), nullptr);
}

void tst_Screen::neverEmitsSelectedItem()
{
    Screen screen;
    QSignalSpy selected(&screen, &Screen::selectedItem);
    QVERIFY(selected.isValid());
    screen.newItem("Shape");
    screen.selectAllShortcutActivated();
    screen.setActiveItem(screen.items().first());
    QCOMPARE(selected.size(), 0);
}

void tst_Screen::deselectsAllWhenPressedBesideTheItems_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void tst_Screen::deselectsAllWhenPressedBesideTheItems()
{
    QFETCH(Qt::MouseButton, button);
    ShownScreen shown;
    QVERIFY(shown.ready);
    addItem(shown.screen, "A");
    addItem(shown.screen, "B");
    shown.screen.selectAllShortcutActivated();
    QStringList order;
    connect(&shown.screen, &Screen::deactivateFor, this,
            [&order](ScreenItem *item) { order.append(item ? "deactivate for one" : "deactivate all"); });
    connect(&shown.screen, &Screen::showSettingsFor, this,
            [&order](ScreenItem *item) { order.append(item ? "show one" : "show none"); });
    QTest::mousePress(shown.window.windowHandle(), button, Qt::NoModifier, QPoint(500, 300));
    QCOMPARE(order, QStringList({"deactivate all", "show none"}));
    QVERIFY(shown.screen.selection().isEmpty());
    QVERIFY(selectionIsConsistent(shown.screen));
    QTest::mouseRelease(shown.window.windowHandle(), button, Qt::NoModifier, QPoint(500, 300));
}

void tst_Screen::leavesItemsAloneInRenderMode()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    ScreenItem *item = addItem(shown.screen, "A", QRect(10, 10, 100, 50));
    item->select();
    QVERIFY(item->hasFocus());
    QSignalSpy panels(&shown.screen, &Screen::showSettingsFor);
    shown.screen.goToRenderMode();
    QTest::keyClick(shown.window.windowHandle(), Qt::Key_Delete);
    QTest::mouseClick(shown.window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 30));
    deleteScheduled();
    shown.screen.goOutRenderMode();
    QCOMPARE(shown.screen.items(), QList<ScreenItem *>({item}));
    QCOMPARE(shown.screen.selection(), QList<ScreenItem *>({item}));
    QVERIFY(item->isSelected());
    QCOMPARE(panels.size(), 0);
}

void tst_Screen::tellsTheDebugLogAboutKeys()
{
    QLoggingCategory::setFilterRules("default.debug=true");
    Screen screen;
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("^QKeyEvent\\(KeyPress, Key_F5\\)$"));
    QTest::keyClick(&screen, Qt::Key_F5);
    QLoggingCategory::setFilterRules("default.debug=false");
}

void tst_Screen::deletesTheSelectionWithTheDeleteKey()
{
    Screen screen;
    addItem(screen, "A")->select();
    addItem(screen, "B");
    addItem(screen, "C")->select();
    clearModified(screen);
    QTest::keyClick(&screen, Qt::Key_Delete);
    deleteScheduled();
    QCOMPARE(screen.items().size(), 3);
    QVERIFY(!screen.isModified());
    screen.items().at(0)->select();
    screen.items().at(2)->select();
    QTest::keyClick(&screen, Qt::Key_Delete);
    QVERIFY(screen.selection().isEmpty());
    QCOMPARE(screen.items().size(), 3);
    QVERIFY(!screen.isModified());
    deleteScheduled();
    QCOMPARE(namesOf(screen.items()), QStringList("B"));
    QVERIFY(screen.isModified());
}

void tst_Screen::deletesWithModifiersAsWell()
{
    Screen screen;
    addItem(screen, "A")->select();
    QTest::keyClick(&screen, Qt::Key_Delete, Qt::ControlModifier | Qt::ShiftModifier);
    deleteScheduled();
    QVERIFY(screen.items().isEmpty());
}

void tst_Screen::leavesEverythingAtOtherKeys()
{
    Screen screen;
    addItem(screen, "A")->select();
    const QJsonObject before = screen.saveLayout();
    for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_Left, Qt::Key_A, Qt::Key_Escape})
        QTest::keyClick(&screen, key);
    deleteScheduled();
    QCOMPARE(screen.saveLayout(), before);
    QCOMPARE(screen.selection().size(), 1);
}

void tst_Screen::restacksItemsInListOrder()
{
    Screen screen;
    for (const char *name : {"A", "B", "C"})
        addItem(screen, name);
    screen.items().first()->raise();
    screen.items().last()->lower();
    QCOMPARE(stackedNames(screen), QStringList({"C", "B", "A"}));
    screen.restack();
    QCOMPARE(stackedNames(screen), QStringList({"A", "B", "C"}));
    QCOMPARE(namesOf(screen.items()), QStringList({"A", "B", "C"}));
}

void tst_Screen::diesWithItsItems()
{
    auto *screen = new Screen;
    const QPointer<ScreenItem> item = addItem(*screen, "A");
    const QPointer<ContentViewer> content = item->content();
    item->select();
    delete screen;
    QVERIFY(item.isNull());
    QVERIFY(content.isNull());
}

BOARDWRIGHT_TEST_MAIN(tst_Screen)
#include "tst_screen.moc"
