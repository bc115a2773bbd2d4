#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "tests/canvas/shownscreen.h"
#include "tests/support/boards.h"
#include "tests/support/dialoganswers.h"
#include "tests/support/strictmain.h"

#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDropEvent>
#include <QLoggingCategory>
#include <QMimeData>
#include <QSignalSpy>
#include <QWindow>

/// Items that come by a click in the item bar and by a drop.
class tst_ScreenNewItems : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void makesAClickedShapeInTheCorner();
    void numbersClickedItemsFromZero();
    void activatesAClickedItem();
    void clicksNothingElse_data();
    void clicksNothingElse();
    void acceptsDragsOfItsFormatOnly_data();
    void acceptsDragsOfItsFormatOnly();
    void dropsAShapeAtTheDropPoint();
    void dropsAnImageWithoutAskingForItsFile();
    void dropsOntoAnItemAsWell();
    void roundsTheDropPoint_data();
    void roundsTheDropPoint();
    void keepsThePointOfADropBeyondTheRightEdge();
    void dropsNothingElse_data();
    void dropsNothingElse();
    void writesTheDroppedNameToTheDebugLog();
    void cutsANewItemToASmallScreen();
};

namespace
{
const auto itemFormat = QStringLiteral("screen/screenItem");
const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;

/// A drag of some data, step by step as the toolkit tells a window of it.
class Drag
{
public:
    Drag(const QString &format, const QByteArray &bytes) { m_data.setData(format, bytes); }

    bool enter(QObject *target, QPoint position)
    {
        QDragEnterEvent event(position, actions, &m_data, Qt::LeftButton, Qt::NoModifier);
        event.ignore();
        QCoreApplication::sendEvent(target, &event);
        return event.isAccepted();
    }
    bool move(QObject *target, QPoint position)
    {
        QDragMoveEvent event(position, actions, &m_data, Qt::LeftButton, Qt::NoModifier);
        event.ignore();
        QCoreApplication::sendEvent(target, &event);
        return event.isAccepted();
    }
    bool drop(QObject *target, QPointF position)
    {
        QDropEvent event(position, actions, &m_data, Qt::LeftButton, Qt::NoModifier);
        event.ignore();
        QCoreApplication::sendEvent(target, &event);
        return event.isAccepted();
    }
    /// Enters, moves and drops, as long as the target agrees.
    bool run(QObject *target, QPointF position)
    {
        const QPoint whole = position.toPoint();
        return enter(target, whole) && move(target, whole) && drop(target, position);
    }

private:
    QMimeData m_data;
};
} // namespace

void tst_ScreenNewItems::initTestCase()
{
    qRegisterMetaType<ScreenItem *>();
    QLoggingCategory::setFilterRules("default.debug=false");
}

void tst_ScreenNewItems::makesAClickedShapeInTheCorner()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    shown.screen.loadLayout(board({shapeObject("Old", QRect(1, 2, 3, 4))}));
    shown.screen.newItem("Shape");
    QCOMPARE(namesOf(shown.screen.items()), QStringList({"Old", "Shape 0"}));
    ScreenItem *item = shown.screen.items().last();
    QCOMPARE(item->geometry(), QRect(0, 0, 100, 50));
    QCOMPARE(item->getValue("Type"), QVariant("Shape"));
    QCOMPARE(item->getValue("W"), QVariant(100));
    QVERIFY(item->isVisible());
    QVERIFY(item->content()->isVisible());
    QVERIFY(shown.screen.isModified());
}

void tst_ScreenNewItems::numbersClickedItemsFromZero()
{
    Screen screen;
    for (int i = 0; i < 3; ++i)
        screen.newItem("Shape");
    delete screen.items().last();
    screen.newItem("Shape");
    QCOMPARE(namesOf(screen.items()), QStringList({"Shape 0", "Shape 1", "Shape 3"}));
    screen.loadLayout(screen.saveLayout());
    screen.newItem("Shape");
    QCOMPARE(screen.items().last()->name(), QString("Shape 0"));
}

void tst_ScreenNewItems::activatesAClickedItem()
{
    Screen screen;
    screen.newItem("Shape");
    screen.newItem("Shape");
    screen.selectAllShortcutActivated();
    QSignalSpy shown(&screen, &Screen::showSettingsFor);
    screen.newItem("Shape");
    ScreenItem *item = screen.items().last();
    QVERIFY(item->isActive());
    QCOMPARE(screen.selection(), QList<ScreenItem *>({item}));
    QVERIFY(selectionIsConsistent(screen));
    QCOMPARE(shown.size(), 1);
    QCOMPARE(shown.first().first().value<ScreenItem *>(), item);
}

void tst_ScreenNewItems::clicksNothingElse_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("video") << "Video Viewer";
    QTest::newRow("other case") << "shape";
    QTest::newRow("blank around") << " Shape";
    QTest::newRow("nothing") << "";
    QTest::newRow("unknown") << "Clock";
}

void tst_ScreenNewItems::clicksNothingElse()
{
    QFETCH(QString, name);
    Screen screen;
    screen.newItem(name);
    QVERIFY(screen.items().isEmpty());
    QVERIFY(!screen.isModified());
}

void tst_ScreenNewItems::acceptsDragsOfItsFormatOnly_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("an item type") << itemFormat << QByteArray("Shape") << true;
    QTest::newRow("a type that is not dropped") << itemFormat << QByteArray("Animation Viewer") << true;
    QTest::newRow("text") << "text/plain" << QByteArray("Shape") << false;
    QTest::newRow("a file") << "text/uri-list" << QByteArray("file:///tmp/board.lay") << false;
    QTest::newRow("the clipboard format") << "Screen/ItemsJson" << QByteArray("[]") << false;
}

void tst_ScreenNewItems::acceptsDragsOfItsFormatOnly()
{
    QFETCH(QString, format);
    QFETCH(QByteArray, bytes);
    QFETCH(bool, accepted);
    ShownScreen shown;
    QVERIFY(shown.ready);
    Drag drag(format, bytes);
    QCOMPARE(drag.enter(&shown.screen, QPoint(20, 20)), accepted);
    QCOMPARE(drag.move(&shown.screen, QPoint(30, 30)), accepted);
    QVERIFY(shown.screen.items().isEmpty());
}

void tst_ScreenNewItems::dropsAShapeAtTheDropPoint()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    QSignalSpy panels(&shown.screen, &Screen::showSettingsFor);
    QVERIFY(Drag(itemFormat, "Shape").run(shown.window.windowHandle(), QPointF(120, 80)));
    QCOMPARE(shown.screen.items().size(), 1);
    ScreenItem *item = shown.screen.items().first();
    QCOMPARE(item->geometry(), QRect(120, 80, 100, 50));
    QCOMPARE(item->getValue("X"), QVariant(120));
    QCOMPARE(item->getValue("Type"), QVariant("Shape"));
    QCOMPARE(item->name(), QString());
    QVERIFY(item->isVisible());
    QVERIFY(shown.screen.isModified());
    QCOMPARE(panels.size(), 0);
    shown.screen.newItem("Shape");
    QCOMPARE(shown.screen.items().last()->name(), QString("Shape 0"));
}

void tst_ScreenNewItems::dropsAnImageWithoutAskingForItsFile()
{
    const DialogAnswers none;
    ShownScreen shown;
    QVERIFY(shown.ready);
    QVERIFY(Drag(itemFormat, "Image Viewer").run(shown.window.windowHandle(), QPointF(120, 80)));
    QVERIFY(none.areUsedUp());
    QCOMPARE(namesOf(shown.screen.items()), QStringList(""));
    ScreenItem *item = shown.screen.items().first();
    QCOMPARE(item->geometry(), QRect(120, 80, 100, 50));
    QCOMPARE(item->getValue("Type"), QVariant("Image Viewer"));
    QCOMPARE(item->getValue("Path"), QVariant(""));
    QVERIFY(!item->isActive());
}

void tst_ScreenNewItems::dropsOntoAnItemAsWell()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    shown.screen.createItem(shapeObject("Below", QRect(100, 60, 200, 100)));
    QVERIFY(Drag(itemFormat, "Shape").run(shown.window.windowHandle(), QPointF(120, 80)));
    QCOMPARE(namesOf(shown.screen.items()), QStringList({"Below", ""}));
    QCOMPARE(shown.screen.items().last()->pos(), QPoint(120, 80));
}

void tst_ScreenNewItems::roundsTheDropPoint_data()
{
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<QPoint>("corner");
    QTest::newRow("whole") << QPointF(20, 30) << QPoint(20, 30);
    QTest::newRow("below half") << QPointF(20.4, 30.49) << QPoint(20, 30);
    QTest::newRow("half") << QPointF(20.5, 30.5) << QPoint(21, 31);
    QTest::newRow("above half") << QPointF(20.6, 30.9) << QPoint(21, 31);
}

void tst_ScreenNewItems::roundsTheDropPoint()
{
    QFETCH(QPointF, point);
    QFETCH(QPoint, corner);
    ShownScreen shown;
    QVERIFY(shown.ready);
    QVERIFY(Drag(itemFormat, "Shape").run(&shown.screen, point));
    QCOMPARE(shown.screen.items().first()->pos(), corner);
}

void tst_ScreenNewItems::keepsThePointOfADropBeyondTheRightEdge()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    QVERIFY(Drag(itemFormat, "Shape").run(&shown.screen, QPointF(790, 390)));
    QCOMPARE(shown.screen.items().first()->geometry(), QRect(790, 390, 100, 50));
}

void tst_ScreenNewItems::dropsNothingElse_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("animation") << QByteArray("Animation Viewer");
    QTest::newRow("video") << QByteArray("Video Viewer");
    QTest::newRow("other case") << QByteArray("SHAPE");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no text") << QByteArray("\xff\xfe\x00Shape", 8);
    QTest::newRow("a megabyte") << QByteArray(1024 * 1024, 'S');
}

void tst_ScreenNewItems::dropsNothingElse()
{
    QFETCH(QByteArray, name);
    ShownScreen shown;
    QVERIFY(shown.ready);
    shown.screen.loadLayout(board({}));
    Drag(itemFormat, name).run(&shown.screen, QPointF(20, 20));
    QVERIFY(shown.screen.items().isEmpty());
    QVERIFY(!shown.screen.isModified());
}

void tst_ScreenNewItems::writesTheDroppedNameToTheDebugLog()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    QLoggingCategory::setFilterRules("default.debug=true");
    QTest::ignoreMessage(QtDebugMsg, "Droped \"Animation Viewer\"");
    Drag(itemFormat, "Animation Viewer").run(&shown.screen, QPointF(20, 20));
    QLoggingCategory::setFilterRules("default.debug=false");
}

void tst_ScreenNewItems::cutsANewItemToASmallScreen()
{
    Screen screen;
    screen.setWidgth(64);
    screen.setHeight(32);
    screen.newItem("Shape");
    // The clamp compares the height, which fits, so the width stays.
    QCOMPARE(screen.items().first()->geometry(), QRect(0, 0, 100, 32));
}

BOARDWRIGHT_TEST_MAIN(tst_ScreenNewItems)
#include "tst_screennewitems.moc"
