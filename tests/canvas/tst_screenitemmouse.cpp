#include "canvas/screen.h"
#include "canvas/screenitem.h"

#include "tests/canvas/boardfixture.h"
#include "tests/canvas/paintwatcher.h"
#include "tests/support/strictmain.h"

#include <QMouseEvent>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTest>

namespace
{
const QRect left(100, 100, 80, 60);
const QRect middle(300, 100, 80, 60);
const QRect right(500, 100, 80, 60);

/// Notes the types of the mouse events that reach a widget, and keeps them from it.
class MouseCatcher : public QObject
{
public:
    explicit MouseCatcher(QWidget *watched) { watched->installEventFilter(this); }

    QList<QEvent::Type> caught() const { return m_caught; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        Q_UNUSED(watched)
        if (!dynamic_cast<QMouseEvent *>(event))
            return false;
        m_caught.append(event->type());
        return true;
    }

private:
    QList<QEvent::Type> m_caught;
};

void sendMove(QWidget *frame, QPointF local, QPointF global, Qt::MouseButtons buttons)
{
    QMouseEvent event(QEvent::MouseMove, local, local, global, Qt::NoButton, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(frame, &event);
}

QList<ScreenItem *> shownItems(const QSignalSpy &settings)
{
    QList<ScreenItem *> items;
    for (const QList<QVariant> &call : settings)
        items.append(call.first().value<ScreenItem *>());
    return items;
}
} // namespace

class tst_ScreenItemMouse : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void clickSelectsOneAlone();
    void clickActivatesOne();
    void clickKeepsSelectionOfMember();
    void controlClickToggles();
    void controlClickThatLeavesOneShowsIt();
    void otherModifiersSelectAlone_data();
    void otherModifiersSelectAlone();
    void otherButtonsKeepSelection_data();
    void otherButtonsKeepSelection();
    void secondHeldButtonKeepsSelection();
    void pressDoesNotReachTheCanvas();

    void showsCursorWhenHovered_data();
    void showsCursorWhenHovered();
    void hoverOfInactiveFrameChangesNothing();
    void cursorStaysWhileButtonIsHeld();
    void forgetsZoneWhenFocusIsLost();

    void dragMovesFrame();
    void dragMovesWholeSelection();
    void dragStopsSelectionAtEdges_data();
    void dragStopsSelectionAtEdges();
    void dragCountsFramesWithoutSize();
    void dragTellsEachGeometryAfterItsMove();
    void dragLogsUnclampedCorner();
    void dragOfFreshFrameMovesIt();
    void firstPressOnEdgeMoves();
    void dragOfUnselectedFrameOnlyTells();
    void dragRoundsHalvesAwayFromZero();
    void dragMarksLayoutModified();
    void dragOfUnselectedFrameWithoutZonePaintsIt();
    void dragPaintsChangedAreaAtOnce();
    void dragPaintsWholeSelectionAtOnce_data();
    void dragPaintsWholeSelectionAtOnce();

    void dragOfHandleResizes_data();
    void dragOfHandleResizes();
    void dragOfHandleStaysOnBoard_data();
    void dragOfHandleStaysOnBoard();
    void dragOfHandleResizesThisFrameAlone();
    void dragOfHandleResizesUnselectedFrame();
    void dragOfHandleTellsFinalGeometry();
    void dragOfHandlePaintsChangedAreaAtOnce();
    void dragOfHandleFollowsAnchor();

    void releaseIsAccepted();
    void moveIsPassedOn();
    void activeFrameIsNotRaised();
    void focusPaintsTheFrameOnly();
    void renderModeIgnoresTheMouse();
    void frameWithoutCanvasIgnoresTheMouse();

private:
    QScopedPointer<BoardFixture> m_board;
    Screen *m_screen = nullptr;
    ScreenItem *m_left = nullptr;
    ScreenItem *m_middle = nullptr;
    ScreenItem *m_right = nullptr;
    QStringList m_told;
};

void tst_ScreenItemMouse::initTestCase()
{
    qRegisterMetaType<ScreenItem *>();
}

void tst_ScreenItemMouse::init()
{
    m_board.reset(new BoardFixture);
    QVERIFY(m_board->isReady());
    m_screen = m_board->screen();
    m_left = m_board->addShape(left);
    m_middle = m_board->addShape(middle);
    m_right = m_board->addShape(right);
}

void tst_ScreenItemMouse::cleanup()
{
    m_board.reset();
}

void tst_ScreenItemMouse::clickSelectsOneAlone()
{
    m_middle->select();
    m_right->select();
    m_board->click(left.center());
    QCOMPARE(m_screen->selection(), QList<ScreenItem *>{m_left});
    QVERIFY(m_left->isSelected());
    QVERIFY(!m_middle->isSelected());
    QVERIFY(!m_right->isSelected());
}

void tst_ScreenItemMouse::clickActivatesOne()
{
    const QSignalSpy activated(m_left, &ScreenItem::activated);
    const QSignalSpy settings(m_screen, &Screen::showSettingsFor);
    m_board->click(left.center());
    QVERIFY(m_left->isActive());
    QCOMPARE(activated.size(), 1);
    QCOMPARE(activated.first().first().value<ScreenItem *>(), m_left);
    QCOMPARE(shownItems(settings), QList<ScreenItem *>{m_left});
}

void tst_ScreenItemMouse::clickKeepsSelectionOfMember()
{
    m_screen->selectAllShortcutActivated();
    const QSignalSpy activated(m_middle, &ScreenItem::activated);
    const QSignalSpy settings(m_screen, &Screen::showSettingsFor);
    m_board->click(middle.center());
    QCOMPARE(m_screen->selection(), (QList<ScreenItem *>{m_left, m_middle, m_right}));
    QVERIFY(activated.isEmpty());
    QCOMPARE(shownItems(settings), QList<ScreenItem *>{nullptr});
}

void tst_ScreenItemMouse::controlClickToggles()
{
    const QSignalSpy settings(m_screen, &Screen::showSettingsFor);
    m_board->click(right.center(), Qt::LeftButton, Qt::ControlModifier);
    QCOMPARE(m_screen->selection(), QList<ScreenItem *>{m_right});
    m_board->click(left.center(), Qt::LeftButton, Qt::ControlModifier);
    QCOMPARE(m_screen->selection(), (QList<ScreenItem *>{m_right, m_left}));
    m_board->click(right.center(), Qt::LeftButton, Qt::ControlModifier);
    QCOMPARE(m_screen->selection(), QList<ScreenItem *>{m_left});
    QVERIFY(!m_right->isSelected());
    m_board->click(left.center(), Qt::LeftButton, Qt::ControlModifier);
    QVERIFY(m_screen->selection().isEmpty());
    QVERIFY(!m_left->isSelected());
    QCOMPARE(shownItems(settings), (QList<ScreenItem *>{m_right, nullptr, m_left, nullptr}));
}

void tst_ScreenItemMouse::controlClickThatLeavesOneShowsIt()
{
    m_left->select();
    m_right->select();
    const QSignalSpy ownSignal(m_right, &ScreenItem::activated);
    const QSignalSpy othersSignal(m_left, &ScreenItem::activated);
    m_board->click(right.center(), Qt::LeftButton, Qt::ControlModifier);
    QVERIFY(othersSignal.isEmpty());
    QCOMPARE(ownSignal.size(), 1);
    QCOMPARE(ownSignal.first().first().value<ScreenItem *>(), m_left);
    QCOMPARE(m_screen->selection(), QList<ScreenItem *>{m_left});
}

void tst_ScreenItemMouse::otherModifiersSelectAlone_data()
{
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("shift") << Qt::KeyboardModifiers(Qt::ShiftModifier);
    QTest::newRow("alt") << Qt::KeyboardModifiers(Qt::AltModifier);
    QTest::newRow("control and shift") << (Qt::ControlModifier | Qt::ShiftModifier);
}

void tst_ScreenItemMouse::otherModifiersSelectAlone()
{
    QFETCH(Qt::KeyboardModifiers, modifiers);
    m_right->select();
    m_board->click(left.center(), Qt::LeftButton, modifiers);
    QCOMPARE(m_screen->selection(), QList<ScreenItem *>{m_left});
}

void tst_ScreenItemMouse::otherButtonsKeepSelection_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("middle") << static_cast<int>(Qt::MiddleButton);
    QTest::newRow("back") << static_cast<int>(Qt::BackButton);
}

void tst_ScreenItemMouse::otherButtonsKeepSelection()
{
    QFETCH(int, button);
    m_right->select();
    const QSignalSpy settings(m_screen, &Screen::showSettingsFor);
    m_board->click(left.center(), static_cast<Qt::MouseButton>(button));
    QCOMPARE(m_screen->selection(), QList<ScreenItem *>{m_right});
    QVERIFY(settings.isEmpty());
    QVERIFY(m_left->isActive());
}

void tst_ScreenItemMouse::secondHeldButtonKeepsSelection()
{
    m_right->select();
    QMouseEvent event(QEvent::MouseButtonPress, QPointF(40, 30), left.center(), left.center(), Qt::LeftButton,
                      Qt::LeftButton | Qt::MiddleButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_left, &event);
    QCOMPARE(m_screen->selection(), QList<ScreenItem *>{m_right});
}

void tst_ScreenItemMouse::pressDoesNotReachTheCanvas()
{
    const QSignalSpy deactivations(m_screen, &Screen::deactivateFor);
    m_board->click(left.center(), Qt::MiddleButton);
    QVERIFY(deactivations.isEmpty());
}

void tst_ScreenItemMouse::showsCursorWhenHovered_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<Qt::CursorShape>("cursor");
    QTest::newRow("inside") << QPoint(40, 30) << Qt::ArrowCursor;
    QTest::newRow("top left") << QPoint(0, 0) << Qt::SizeFDiagCursor;
    QTest::newRow("top") << QPoint(40, 2) << Qt::SizeVerCursor;
    QTest::newRow("top right") << QPoint(79, 0) << Qt::SizeBDiagCursor;
    QTest::newRow("two pixels inside the right") << QPoint(78, 30) << Qt::SizeHorCursor;
    QTest::newRow("three pixels inside the right") << QPoint(77, 30) << Qt::ArrowCursor;
    QTest::newRow("bottom right") << QPoint(79, 59) << Qt::SizeFDiagCursor;
    QTest::newRow("bottom") << QPoint(40, 58) << Qt::SizeVerCursor;
    QTest::newRow("three pixels above the bottom") << QPoint(40, 57) << Qt::ArrowCursor;
    QTest::newRow("bottom left") << QPoint(0, 59) << Qt::SizeBDiagCursor;
    QTest::newRow("two pixels inside the left") << QPoint(2, 30) << Qt::SizeHorCursor;
    QTest::newRow("three pixels inside the left") << QPoint(3, 30) << Qt::ArrowCursor;
}

void tst_ScreenItemMouse::showsCursorWhenHovered()
{
    QFETCH(QPoint, point);
    m_board->click(left.center());
    m_board->moveTo(left.topLeft() + QPoint(0, 30));
    QCOMPARE(m_left->cursor().shape(), Qt::SizeHorCursor);
    m_board->moveTo(left.topLeft() + point);
    QTEST(m_left->cursor().shape(), "cursor");
}

void tst_ScreenItemMouse::hoverOfInactiveFrameChangesNothing()
{
    m_board->click(middle.center());
    m_board->moveTo(left.topLeft());
    QVERIFY(!m_left->testAttribute(Qt::WA_SetCursor));
}

void tst_ScreenItemMouse::cursorStaysWhileButtonIsHeld()
{
    m_board->click(left.center());
    m_board->moveTo(left.center());
    m_board->press(left.center());
    m_board->moveTo(left.topLeft());
    QCOMPARE(m_left->cursor().shape(), Qt::ArrowCursor);
    m_board->release();
}

void tst_ScreenItemMouse::forgetsZoneWhenFocusIsLost()
{
    const QPoint edge = left.topLeft() + QPoint(79, 30);
    m_board->click(left.center());
    m_board->moveTo(edge);
    m_board->click(middle.center());
    m_board->press(edge);
    m_board->moveTo(edge + QPoint(10, 0));
    m_board->release();
    QCOMPARE(m_left->geometry(), left.translated(10, 0));
}

void tst_ScreenItemMouse::dragMovesFrame()
{
    m_board->drag(left.center(), left.center() + QPoint(30, -20));
    QCOMPARE(m_left->geometry(), left.translated(30, -20));
    QCOMPARE(m_middle->geometry(), middle);
}

void tst_ScreenItemMouse::dragMovesWholeSelection()
{
    m_left->select();
    m_right->select();
    m_board->drag(right.center(), right.center() + QPoint(30, -20));
    QCOMPARE(geometries(m_screen->items()),
             (QList<QRect>{left.translated(30, -20), middle, right.translated(30, -20)}));
}

void tst_ScreenItemMouse::dragStopsSelectionAtEdges_data()
{
    QTest::addColumn<QPoint>("wanted");
    QTest::addColumn<QPoint>("possible");
    QTest::newRow("right") << QPoint(400, 0) << QPoint(220, 0);
    QTest::newRow("left") << QPoint(-180, 3) << QPoint(-100, 3);
    QTest::newRow("top") << QPoint(0, -110) << QPoint(0, -100);
    QTest::newRow("bottom") << QPoint(5, 350) << QPoint(5, 240);
    QTest::newRow("both") << QPoint(-700, 350) << QPoint(-100, 240);
}

void tst_ScreenItemMouse::dragStopsSelectionAtEdges()
{
    QFETCH(QPoint, wanted);
    QFETCH(QPoint, possible);
    m_screen->selectAllShortcutActivated();
    m_board->drag(middle.center(), middle.center() + wanted);
    QCOMPARE(
        geometries(m_screen->items()),
        (QList<QRect>{left.translated(possible), middle.translated(possible), right.translated(possible)}));
}

void tst_ScreenItemMouse::dragCountsFramesWithoutSize()
{
    m_right->setGeometry(700, 300, 0, 0);
    m_right->select();
    m_left->select();
    m_board->drag(left.center(), left.center() + QPoint(300, 300));
    QCOMPARE(m_right->pos(), QPoint(800, 400));
    QCOMPARE(m_left->geometry(), left.translated(100, 100));
}

void tst_ScreenItemMouse::dragTellsEachGeometryAfterItsMove()
{
    m_left->select();
    m_middle->select();
    m_board->click(left.center());
    m_board->press(left.center());
    m_told.clear();
    const auto listen = [this](ScreenItem *frame) {
        connect(frame, &ScreenItem::newGeometry, this, [this](QRect rect) {
            m_told.append(QStringLiteral("%1 %2 %3").arg(rect.x()).arg(m_left->x()).arg(m_middle->x()));
        });
    };
    listen(m_left);
    listen(m_middle);
    m_board->moveTo(left.center() + QPoint(7, 0));
    // Once by the move itself and once after it, each before the next frame moves.
    QCOMPARE(m_told, (QStringList{"107 107 300", "107 107 300", "307 107 307", "307 107 307"}));
    m_told.clear();
    sendMove(m_left, QPointF(40, 30), m_board->globalPosition(left.center()) + QPoint(7, 0), Qt::LeftButton);
    m_board->release();
    QCOMPARE(m_told, (QStringList{"107 107 307", "307 107 307"}));
}

void tst_ScreenItemMouse::dragLogsUnclampedCorner()
{
    m_board->click(left.center());
    m_board->press(left.center());
    QTest::ignoreMessage(QtDebugMsg, "newMin =  QPoint(-50,97)");
    m_board->moveTo(left.center() + QPoint(-150, -3));
    m_board->release();
    QCOMPARE(m_left->pos(), QPoint(0, 97));
}

void tst_ScreenItemMouse::dragOfFreshFrameMovesIt()
{
    const QSignalSpy focused(m_right, &ScreenItem::inFocus);
    QVERIFY(m_right->hasFocus());
    QVERIFY(!m_right->isActive());
    m_board->press(right.center());
    QVERIFY(m_right->isActive());
    QCOMPARE(focused.size(), 1);
    m_board->moveTo(right.center() + QPoint(5, 6));
    m_board->release();
    QCOMPARE(m_right->geometry(), right.translated(5, 6));
}

void tst_ScreenItemMouse::firstPressOnEdgeMoves()
{
    // The zone is found by hovering over the active frame, and this press only makes it active.
    m_board->press(left.topLeft());
    m_board->moveTo(left.topLeft() + QPoint(9, 9));
    m_board->release();
    QCOMPARE(m_left->geometry(), left.translated(9, 9));
}

void tst_ScreenItemMouse::dragOfUnselectedFrameOnlyTells()
{
    m_board->click(left.center());
    m_board->moveTo(left.center() + QPoint(0, 1));
    m_board->press(left.center(), Qt::LeftButton, Qt::ControlModifier);
    QVERIFY(!m_left->isSelected());
    QCoreApplication::processEvents();
    PaintWatcher canvas(m_screen);
    const QSignalSpy told(m_left, &ScreenItem::newGeometry);
    sendMove(m_left, QPointF(60, 50), m_board->globalPosition(left.center()) + QPoint(20, 20),
             Qt::LeftButton);
    QVERIFY(canvas.takeArea().isEmpty());
    m_board->release();
    QCOMPARE(m_left->geometry(), left);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.first().first().toRect(), left);
}

void tst_ScreenItemMouse::dragRoundsHalvesAwayFromZero()
{
    m_board->click(left.center());
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(40, 30), QPointF(40, 30), QPointF(0.5, -0.5),
                      Qt::MiddleButton, Qt::MiddleButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_left, &press);
    sendMove(m_left, QPointF(40, 30), QPointF(2.5, -2.5), Qt::MiddleButton);
    QCOMPARE(m_left->geometry(), left.translated(2, -2));
}

void tst_ScreenItemMouse::dragMarksLayoutModified()
{
    m_screen->loadLayout(m_screen->saveLayout());
    QVERIFY(!m_screen->isModified());
    m_board->drag(left.center(), left.center() + QPoint(3, 0));
    QVERIFY(m_screen->isModified());
}

void tst_ScreenItemMouse::dragOfUnselectedFrameWithoutZonePaintsIt()
{
    m_board->press(left.center(), Qt::LeftButton, Qt::ControlModifier);
    m_left->deselect();
    QCoreApplication::processEvents();
    PaintWatcher canvas(m_screen);
    const QSignalSpy told(m_left, &ScreenItem::newGeometry);
    sendMove(m_left, QPointF(60, 30), m_board->globalPosition(left.center()) + QPoint(20, 0), Qt::LeftButton);
    QVERIFY(canvas.takeArea().contains(left));
    m_board->release();
    QCOMPARE(told.size(), 1);
    QCOMPARE(m_left->geometry(), left);
}

void tst_ScreenItemMouse::dragPaintsChangedAreaAtOnce()
{
    m_board->click(left.center());
    m_board->press(left.center());
    QCoreApplication::processEvents();
    PaintWatcher canvas(m_screen);
    sendMove(m_left, QPointF(60, 30), m_board->globalPosition(left.center()) + QPoint(20, 0), Qt::LeftButton);
    const QRegion area = canvas.takeArea();
    m_board->release();
    QCOMPARE(area, QRegion(left.united(left.translated(20, 0))));
}

void tst_ScreenItemMouse::dragPaintsWholeSelectionAtOnce_data()
{
    QTest::addColumn<int>("others");
    QTest::newRow("most frames") << 0;
    QTest::newRow("few of the frames") << 40;
}

void tst_ScreenItemMouse::dragPaintsWholeSelectionAtOnce()
{
    QFETCH(int, others);
    for (int i = 0; i < others; ++i)
        m_board->addShape(QRect(10 * i, 300, 8, 8));
    m_left->select();
    m_right->select();
    m_board->click(left.center());
    m_board->press(left.center());
    QCoreApplication::processEvents();
    PaintWatcher canvas(m_screen);
    sendMove(m_left, QPointF(60, 30), m_board->globalPosition(left.center()) + QPoint(20, 0), Qt::LeftButton);
    const QRegion area = canvas.takeArea();
    m_board->release();
    const QRegion changed =
        QRegion(left.united(left.translated(20, 0))) + right.united(right.translated(20, 0));
    QVERIFY(changed.subtracted(area).isEmpty());
}

void tst_ScreenItemMouse::dragOfHandleResizes_data()
{
    QTest::addColumn<QPoint>("handle");
    QTest::addColumn<QRect>("resized");
    QTest::newRow("top left") << QPoint(0, 0) << QRect(110, 107, 70, 53);
    QTest::newRow("top") << QPoint(40, 0) << QRect(100, 107, 80, 53);
    // A far edge goes to the pointer itself: it was pressed one pixel before it.
    QTest::newRow("top right") << QPoint(79, 0) << QRect(100, 107, 89, 53);
    QTest::newRow("right") << QPoint(79, 30) << QRect(100, 100, 89, 60);
    QTest::newRow("bottom right") << QPoint(79, 59) << QRect(100, 100, 89, 66);
    QTest::newRow("bottom") << QPoint(40, 59) << QRect(100, 100, 80, 66);
    QTest::newRow("bottom left") << QPoint(0, 59) << QRect(110, 100, 70, 66);
    QTest::newRow("left") << QPoint(0, 30) << QRect(110, 100, 70, 60);
}

void tst_ScreenItemMouse::dragOfHandleResizes()
{
    QFETCH(QPoint, handle);
    m_board->click(left.center());
    m_board->drag(left.topLeft() + handle, left.topLeft() + handle + QPoint(10, 7));
    QTEST(m_left->geometry(), "resized");
}

void tst_ScreenItemMouse::dragOfHandleStaysOnBoard_data()
{
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<QPoint>("handle");
    QTest::addColumn<QPoint>("target");
    QTest::addColumn<QRect>("resized");
    const QRect frame(100, 100, 80, 60);
    QTest::newRow("bottom right into the top left")
        << frame << QPoint(179, 159) << QPoint(90, 90) << QRect(100, 100, 4, 4);
    QTest::newRow("top past the bottom")
        << frame << QPoint(140, 100) << QPoint(140, 200) << QRect(100, 200, 80, 4);
    QTest::newRow("left past the right")
        << frame << QPoint(100, 130) << QPoint(300, 130) << QRect(300, 100, 4, 60);
    QTest::newRow("bottom right past the board")
        << frame << QPoint(179, 159) << QPoint(870, 450) << QRect(100, 100, 700, 300);
    QTest::newRow("top left past the board")
        << frame << QPoint(100, 100) << QPoint(-30, -20) << QRect(0, 0, 210, 180);
    // The frame's own clamp compares the height with the room to the right, and widens to the edge.
    QTest::newRow("tall frame near the right")
        << QRect(600, 0, 200, 300) << QPoint(700, 299) << QPoint(700, 310) << QRect(600, 0, 200, 310);
    QTest::newRow("tall frame made narrow")
        << QRect(600, 0, 200, 300) << QPoint(799, 150) << QPoint(700, 150) << QRect(600, 0, 200, 300);
    QTest::newRow("tall frame from the left")
        << QRect(600, 0, 200, 300) << QPoint(600, 150) << QPoint(650, 150) << QRect(600, 0, 200, 300);
    QTest::newRow("bottom of a frame past the left")
        << QRect(-30, 10, 100, 50) << QPoint(20, 59) << QPoint(20, 80) << QRect(0, 10, 100, 70);
    QTest::newRow("bottom of a frame past the right")
        << QRect(790, 10, 100, 50) << QPoint(795, 59) << QPoint(795, 80) << QRect(790, 10, 10, 70);
    QTest::newRow("bottom of a frame with too little room")
        << QRect(790, 10, 8, 50) << QPoint(794, 59) << QPoint(794, 80) << QRect(790, 10, 10, 70);
}

void tst_ScreenItemMouse::dragOfHandleStaysOnBoard()
{
    QFETCH(QRect, frame);
    QFETCH(QPoint, handle);
    QFETCH(QPoint, target);
    m_left->setGeometry(frame);
    m_board->click(handle);
    m_board->drag(handle, target);
    QTEST(m_left->geometry(), "resized");
}

void tst_ScreenItemMouse::dragOfHandleResizesThisFrameAlone()
{
    m_screen->selectAllShortcutActivated();
    m_board->drag(left.topLeft() + QPoint(79, 30), left.topLeft() + QPoint(90, 30));
    QCOMPARE(geometries(m_screen->items()), (QList<QRect>{{100, 100, 90, 60}, middle, right}));
}

void tst_ScreenItemMouse::dragOfHandleResizesUnselectedFrame()
{
    const QPoint edge = left.topLeft() + QPoint(79, 30);
    m_board->click(left.center());
    m_board->moveTo(edge);
    m_board->press(edge, Qt::LeftButton, Qt::ControlModifier);
    QVERIFY(!m_left->isSelected());
    m_board->moveTo(edge + QPoint(11, 0));
    m_board->release();
    QCOMPARE(m_left->geometry(), QRect(100, 100, 90, 60));
}

void tst_ScreenItemMouse::dragOfHandleTellsFinalGeometry()
{
    m_board->click(left.center());
    m_board->press(left.topLeft());
    m_board->moveTo(left.topLeft() + QPoint(5, 5));
    const QSignalSpy told(m_left, &ScreenItem::newGeometry);
    const QPoint global = m_board->globalPosition(left.topLeft());
    sendMove(m_left, QPointF(0, 0), global + QPoint(5, 5), Qt::LeftButton);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.first().first().toRect(), QRect(105, 105, 75, 55));
    m_board->moveTo(left.topLeft() + QPoint(6, 6));
    m_board->release();
    QCOMPARE(told.last().first().toRect(), QRect(106, 106, 74, 54));
}

void tst_ScreenItemMouse::dragOfHandlePaintsChangedAreaAtOnce()
{
    const QPoint corner = left.topLeft();
    m_board->click(left.center());
    m_board->moveTo(corner);
    m_board->press(corner);
    QCoreApplication::processEvents();
    PaintWatcher canvas(m_screen);
    sendMove(m_left, QPointF(-20, -20), m_board->globalPosition(corner) - QPoint(20, 20), Qt::LeftButton);
    const QRegion area = canvas.takeArea();
    m_board->release();
    QVERIFY(QRegion(left.adjusted(-20, -20, 0, 0)).subtracted(area).isEmpty());
    QVERIFY(!area.intersects(middle));
}

void tst_ScreenItemMouse::dragOfHandleFollowsAnchor()
{
    // Pressed two pixels inside: the edge keeps that distance to the pointer.
    m_board->click(left.center());
    m_board->drag(left.topLeft() + QPoint(2, 30), left.topLeft() + QPoint(12, 30));
    QCOMPARE(m_left->geometry(), QRect(110, 100, 70, 60));
}

void tst_ScreenItemMouse::releaseIsAccepted()
{
    QMouseEvent event(QEvent::MouseButtonRelease, QPointF(1, 1), Qt::LeftButton, Qt::NoButton,
                      Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(m_left, &event);
    QVERIFY(event.isAccepted());
}

void tst_ScreenItemMouse::moveIsPassedOn()
{
    const MouseCatcher canvas(m_screen);
    sendMove(m_left, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton);
    QCOMPARE(canvas.caught(), QList<QEvent::Type>{QEvent::MouseMove});
}

void tst_ScreenItemMouse::activeFrameIsNotRaised()
{
    const QList<ScreenItem *> layers = m_screen->items();
    m_board->click(left.center());
    QCOMPARE(m_screen->items(), layers);
    QCOMPARE(m_screen->findChildren<ScreenItem *>(QString(), Qt::FindDirectChildrenOnly), layers);
}

void tst_ScreenItemMouse::focusPaintsTheFrameOnly()
{
    m_board->click(middle.center());
    QCoreApplication::processEvents();
    PaintWatcher canvas(m_screen);
    m_left->setFocus();
    const QRegion area = canvas.takeArea();
    QVERIFY(area.contains(left));
    QVERIFY(!area.intersects(right));
}

void tst_ScreenItemMouse::renderModeIgnoresTheMouse()
{
    m_board->click(left.center());
    m_board->moveTo(left.center());
    m_left->enterRenderMode();
    const QSignalSpy told(m_left, &ScreenItem::newGeometry);
    const MouseCatcher canvas(m_screen);
    const QList<QEvent::Type> types = {QEvent::MouseButtonPress, QEvent::MouseMove,
                                       QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick};
    for (const QEvent::Type type : types) {
        QMouseEvent event(type, QPointF(1, 1), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_left, &event);
    }
    QCOMPARE(canvas.caught(), types);
    m_board->drag(left.center(), left.center() + QPoint(50, 50));
    QCOMPARE(m_left->geometry(), left);
    QVERIFY(told.isEmpty());
}

void tst_ScreenItemMouse::frameWithoutCanvasIgnoresTheMouse()
{
    ScreenItem frame(nullptr);
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseMove}) {
        QMouseEvent event(type, QPointF(1, 1), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&frame, &event);
        QVERIFY(!event.isAccepted());
    }
    QVERIFY(!frame.isSelected());
}

BOARDWRIGHT_TEST_MAIN(tst_ScreenItemMouse)
#include "tst_screenitemmouse.moc"
