#include "canvas/itemclipboard.h"
#include "canvas/screen.h"
#include "canvas/screenitem.h"

#include "tests/canvas/boardfixture.h"
#include "tests/support/strictmain.h"

#include <QKeyEvent>
#include <QPointer>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTest>

namespace
{
const QRect first(100, 100, 100, 50);
const QRect second(300, 200, 40, 30);

/// Notes the keys that reach a widget, and keeps them from it.
class KeyCatcher : public QObject
{
public:
    explicit KeyCatcher(QWidget *watched) { watched->installEventFilter(this); }

    QList<int> caught() const { return m_caught; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        Q_UNUSED(watched)
        if (event->type() != QEvent::KeyPress)
            return false;
        m_caught.append(static_cast<QKeyEvent *>(event)->key());
        return true;
    }

private:
    QList<int> m_caught;
};

QList<QRect> toldGeometries(const QSignalSpy &spy)
{
    QList<QRect> result;
    for (const QList<QVariant> &call : spy)
        result.append(call.first().toRect());
    return result;
}

QRect valuesOf(ScreenItem &frame)
{
    const QMap<QString, QVariant> values = frame.getValues();
    return {values["X"].toInt(), values["Y"].toInt(), values["W"].toInt(), values["H"].toInt()};
}

QList<QRect> geometriesIn(const QJsonArray &items)
{
    QList<QRect> result;
    for (const QJsonValue &item : items)
        result.append({item["X"].toInt(), item["Y"].toInt(), item["W"].toInt(), item["H"].toInt()});
    return result;
}
} // namespace

class tst_ScreenItemKeys : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void controlArrowMovesSelection_data();
    void controlArrowMovesSelection();
    void controlArrowMovesPastTheEdge_data();
    void controlArrowMovesPastTheEdge();
    void shiftArrowGivesEveryMemberTheFocusedWidth_data();
    void shiftArrowGivesEveryMemberTheFocusedWidth();
    void shiftArrowGivesTheSameWidthInAnyOrder();
    void shiftArrowIsCutToTheCanvas();
    void shiftArrowKnowsNoMinimum();
    void otherKeysLeaveTheGeometry_data();
    void otherKeysLeaveTheGeometry();
    void everyKeyTellsMembersTheFocusedGeometry_data();
    void everyKeyTellsMembersTheFocusedGeometry();
    void anyKeyLeavesWhatIsDrawnToBeSavedAndCopied_data();
    void anyKeyLeavesWhatIsDrawnToBeSavedAndCopied();
    void contentsHearOfTheFocusedGeometryFirst();
    void framesMayGoWhileAKeyIsTold_data();
    void framesMayGoWhileAKeyIsTold();
    void keysActOnTheSelectionNotTheFocusedFrame();
    void keysMarkLayoutModified();
    void deleteRemovesFocusedFrame();
    void deleteLeavesOtherSelectedFrame();
    void deleteRemovesSelection();
    void deleteRemovesFocusedFrameAndSelection();
    void keysDoNotReachTheCanvas();
    void renderModeIgnoresKeys();
    void frameWithoutCanvasIgnoresKeys();

private:
    QScopedPointer<BoardFixture> m_board;
    Screen *m_screen = nullptr;
    ScreenItem *m_first = nullptr;
    ScreenItem *m_second = nullptr;
};

void tst_ScreenItemKeys::initTestCase()
{
    qRegisterMetaType<ScreenItem *>();
}

void tst_ScreenItemKeys::init()
{
    m_board.reset(new BoardFixture);
    QVERIFY(m_board->isReady());
    m_screen = m_board->screen();
    m_first = m_board->addShape(first);
    m_second = m_board->addShape(second);
    m_board->click(second.center());
    m_board->click(first.center(), Qt::LeftButton, Qt::ControlModifier);
    QVERIFY(m_first->hasFocus());
    QCOMPARE(m_screen->selection(), (QList<ScreenItem *>{m_second, m_first}));
}

void tst_ScreenItemKeys::cleanup()
{
    m_board.reset();
}

void tst_ScreenItemKeys::controlArrowMovesSelection_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QPoint>("step");
    QTest::newRow("up") << Qt::Key_Up << QPoint(0, -1);
    QTest::newRow("down") << Qt::Key_Down << QPoint(0, 1);
    QTest::newRow("left") << Qt::Key_Left << QPoint(-1, 0);
    QTest::newRow("right") << Qt::Key_Right << QPoint(1, 0);
}

void tst_ScreenItemKeys::controlArrowMovesSelection()
{
    QFETCH(Qt::Key, key);
    QFETCH(QPoint, step);
    m_board->type(key, Qt::ControlModifier);
    QCOMPARE(m_first->geometry(), first.translated(step));
    QCOMPARE(m_second->geometry(), second.translated(step));
}

void tst_ScreenItemKeys::controlArrowMovesPastTheEdge_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QPoint>("moved");
    QTest::newRow("left") << Qt::Key_Left << QPoint(0, 0) << QPoint(-1, 0);
    QTest::newRow("top") << Qt::Key_Up << QPoint(0, 0) << QPoint(0, -1);
    QTest::newRow("right") << Qt::Key_Right << QPoint(700, 350) << QPoint(701, 350);
    QTest::newRow("bottom") << Qt::Key_Down << QPoint(700, 350) << QPoint(700, 351);
    QTest::newRow("wholly outside") << Qt::Key_Right << QPoint(900, 0) << QPoint(901, 0);
}

void tst_ScreenItemKeys::controlArrowMovesPastTheEdge()
{
    QFETCH(Qt::Key, key);
    QFETCH(QPoint, position);
    m_first->move(position);
    m_board->type(key, Qt::ControlModifier);
    QTEST(m_first->pos(), "moved");
    QCOMPARE(m_first->size(), first.size());
}

void tst_ScreenItemKeys::shiftArrowGivesEveryMemberTheFocusedWidth_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QSize>("firstSize");
    QTest::addColumn<QSize>("secondSize");
    QTest::newRow("up") << Qt::Key_Up << QSize(100, 49) << QSize(100, 29);
    QTest::newRow("down") << Qt::Key_Down << QSize(100, 51) << QSize(100, 31);
    QTest::newRow("left") << Qt::Key_Left << QSize(99, 50) << QSize(99, 30);
    QTest::newRow("right") << Qt::Key_Right << QSize(101, 50) << QSize(101, 30);
}

void tst_ScreenItemKeys::shiftArrowGivesEveryMemberTheFocusedWidth()
{
    QFETCH(Qt::Key, key);
    QFETCH(QSize, firstSize);
    QFETCH(QSize, secondSize);
    m_board->type(key, Qt::ShiftModifier);
    QCOMPARE(m_first->geometry(), QRect(first.topLeft(), firstSize));
    QCOMPARE(m_second->geometry(), QRect(second.topLeft(), secondSize));
}

void tst_ScreenItemKeys::shiftArrowGivesTheSameWidthInAnyOrder()
{
    m_screen->clearSelection();
    m_first->select();
    m_second->select();
    m_board->type(Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(m_first->width(), 101);
    QCOMPARE(m_second->width(), 101);
}

void tst_ScreenItemKeys::shiftArrowIsCutToTheCanvas()
{
    m_first->setGeometry(0, 350, 100, 50);
    m_second->setGeometry(600, 0, 40, 300);
    m_board->type(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(m_first->geometry(), QRect(0, 350, 100, 50));
    // Its height does not fit beside it: the frame's clamp widens it to the edge.
    QCOMPARE(m_second->geometry(), QRect(600, 0, 200, 301));
}

void tst_ScreenItemKeys::shiftArrowKnowsNoMinimum()
{
    m_first->resize(1, 1);
    m_board->type(Qt::Key_Left, Qt::ShiftModifier);
    m_board->type(Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(m_first->size(), QSize(0, 0));
    m_board->type(Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(m_first->size(), QSize(0, 0));
}

void tst_ScreenItemKeys::otherKeysLeaveTheGeometry_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("arrow alone") << Qt::Key_Left << Qt::KeyboardModifiers();
    QTest::newRow("control and shift") << Qt::Key_Left << (Qt::ControlModifier | Qt::ShiftModifier);
    QTest::newRow("alt") << Qt::Key_Left << Qt::KeyboardModifiers(Qt::AltModifier);
    QTest::newRow("control on the keypad") << Qt::Key_Left << (Qt::ControlModifier | Qt::KeypadModifier);
    QTest::newRow("control and another key") << Qt::Key_K << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("shift and another key") << Qt::Key_K << Qt::KeyboardModifiers(Qt::ShiftModifier);
}

void tst_ScreenItemKeys::otherKeysLeaveTheGeometry()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    m_board->type(key, modifiers);
    QCOMPARE(geometries({m_first, m_second}), (QList<QRect>{first, second}));
}

void tst_ScreenItemKeys::everyKeyTellsMembersTheFocusedGeometry_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QList<QRect>>("toldByFirst");
    QTest::addColumn<QList<QRect>>("toldBySecond");
    const QRect moved = first.translated(1, 0);
    const QRect grown(100, 100, 101, 50);
    QTest::newRow("a letter") << Qt::Key_K << Qt::KeyboardModifiers() << QList<QRect>{first}
                              << QList<QRect>{first};
    QTest::newRow("an arrow alone") << Qt::Key_Up << Qt::KeyboardModifiers() << QList<QRect>{first}
                                    << QList<QRect>{first};
    // The modifier is a key as well.
    QTest::newRow("a move") << Qt::Key_Right << Qt::KeyboardModifiers(Qt::ControlModifier)
                            << QList<QRect>{first, moved, moved}
                            << QList<QRect>{first, second.translated(1, 0), moved};
    QTest::newRow("a resize") << Qt::Key_Right << Qt::KeyboardModifiers(Qt::ShiftModifier)
                              << QList<QRect>{first, grown, grown}
                              << QList<QRect>{first, {300, 200, 101, 30}, grown};
}

void tst_ScreenItemKeys::everyKeyTellsMembersTheFocusedGeometry()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    const QSignalSpy firstSpy(m_first, &ScreenItem::newGeometry);
    const QSignalSpy secondSpy(m_second, &ScreenItem::newGeometry);
    m_board->type(key, modifiers);
    QTEST(toldGeometries(firstSpy), "toldByFirst");
    QTEST(toldGeometries(secondSpy), "toldBySecond");
    QCOMPARE(valuesOf(*m_first), m_first->geometry());
    QCOMPARE(valuesOf(*m_second), m_second->geometry());
}

void tst_ScreenItemKeys::anyKeyLeavesWhatIsDrawnToBeSavedAndCopied_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("a nudge") << Qt::Key_Right << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("growth") << Qt::Key_Down << Qt::KeyboardModifiers(Qt::ShiftModifier);
    QTest::newRow("a letter") << Qt::Key_K << Qt::KeyboardModifiers();
    QTest::newRow("a modifier alone") << Qt::Key_Control << Qt::KeyboardModifiers();
}

void tst_ScreenItemKeys::anyKeyLeavesWhatIsDrawnToBeSavedAndCopied()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    m_board->addShape(QRect(500, 20, 60, 70))->select();
    m_first->setFocus();
    m_board->type(key, modifiers);
    const QList<QRect> drawn = geometries(m_screen->items());
    const QJsonObject saved = m_screen->saveLayout();
    QCOMPARE(geometriesIn(saved["items"].toArray()), drawn);
    m_screen->copyShortcutActivated();
    QCOMPARE(geometriesIn(ItemClipboard::items()), drawn);
    m_screen->loadLayout(saved);
    QCOMPARE(geometries(m_screen->items()), drawn);
}

void tst_ScreenItemKeys::contentsHearOfTheFocusedGeometryFirst()
{
    const QSignalSpy values(m_second, &ScreenItem::valueChanged);
    m_board->type(Qt::Key_K);
    QList<int> xs;
    for (const QList<QVariant> &change : values) {
        if (change.at(0) == "X")
            xs.append(change.at(1).value<QVariant>().toInt());
    }
    QCOMPARE(xs, (QList<int>{first.x(), second.x()}));
}

void tst_ScreenItemKeys::framesMayGoWhileAKeyIsTold_data()
{
    QTest::addColumn<bool>("focusedGoes");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    for (const bool focusedGoes : {false, true}) {
        const auto row = [focusedGoes](const char *what, Qt::Key key, Qt::KeyboardModifiers modifiers) {
            QTest::addRow("%s, the %s one goes", what, focusedGoes ? "focused" : "other")
                << focusedGoes << key << modifiers;
        };
        row("a letter", Qt::Key_K, Qt::NoModifier);
        row("a nudge", Qt::Key_Right, Qt::ControlModifier);
        row("growth", Qt::Key_Right, Qt::ShiftModifier);
    }
}

void tst_ScreenItemKeys::framesMayGoWhileAKeyIsTold()
{
    QFETCH(bool, focusedGoes);
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    ScreenItem *third = m_board->addShape(QRect(500, 20, 60, 70));
    third->select();
    m_first->setFocus();
    const QPointer<ScreenItem> goes = focusedGoes ? m_first : third;
    // The second is the first of the selection that is told.
    connect(m_second, &ScreenItem::newGeometry, this, [goes] { delete goes; });
    QKeyEvent press(QEvent::KeyPress, key, modifiers);
    QCoreApplication::sendEvent(m_first, &press);
    QVERIFY(goes.isNull());
    QCOMPARE(m_screen->items().size(), 2);
    QCOMPARE(m_screen->selection().size(), 2);
}

void tst_ScreenItemKeys::keysActOnTheSelectionNotTheFocusedFrame()
{
    m_board->click(first.center(), Qt::LeftButton, Qt::ControlModifier);
    QVERIFY(m_first->hasFocus() && !m_first->isSelected());
    m_board->type(Qt::Key_Right, Qt::ControlModifier);
    m_board->type(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(m_first->geometry(), first);
    QCOMPARE(m_second->geometry(), QRect(301, 200, 100, 31));
}

void tst_ScreenItemKeys::keysMarkLayoutModified()
{
    m_screen->loadLayout(m_screen->saveLayout());
    ScreenItem *loaded = m_screen->items().first();
    loaded->setFocus();
    loaded->select();
    QVERIFY(!m_screen->isModified());
    m_board->type(Qt::Key_K);
    QVERIFY(!m_screen->isModified());
    m_board->type(Qt::Key_Up, Qt::ControlModifier);
    QVERIFY(m_screen->isModified());
}

void tst_ScreenItemKeys::deleteRemovesFocusedFrame()
{
    m_board->click(first.center());
    m_board->type(Qt::Key_K);
    m_screen->clearSelection();
    m_board->type(Qt::Key_Delete);
    QTRY_COMPARE(m_screen->items(), QList<ScreenItem *>{m_second});
}

void tst_ScreenItemKeys::deleteLeavesOtherSelectedFrame()
{
    m_board->click(first.center(), Qt::LeftButton, Qt::ControlModifier);
    QCOMPARE(m_screen->selection(), QList<ScreenItem *>{m_second});
    const QPointer<ScreenItem> frame = m_first;
    m_board->type(Qt::Key_Delete);
    QTRY_VERIFY(frame.isNull());
    QCOMPARE(m_screen->items(), QList<ScreenItem *>{m_second});
    QCOMPARE(m_screen->selection(), QList<ScreenItem *>{m_second});
}

void tst_ScreenItemKeys::deleteRemovesSelection()
{
    ScreenItem *kept = m_board->addShape(QRect(0, 0, 20, 20));
    m_first->setFocus();
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
    QCoreApplication::sendEvent(m_first, &event);
    QVERIFY(m_screen->selection().isEmpty());
    QTRY_COMPARE(m_screen->items(), QList<ScreenItem *>{kept});
}

void tst_ScreenItemKeys::deleteRemovesFocusedFrameAndSelection()
{
    ScreenItem *focused = m_board->addShape(QRect(0, 0, 20, 20));
    QVERIFY(focused->hasFocus() && !focused->isSelected());
    m_board->type(Qt::Key_Delete);
    QTRY_VERIFY(m_screen->items().isEmpty());
    QVERIFY(m_screen->selection().isEmpty());
}

void tst_ScreenItemKeys::keysDoNotReachTheCanvas()
{
    const KeyCatcher canvas(m_screen);
    m_board->type(Qt::Key_K);
    m_board->type(Qt::Key_Up, Qt::ControlModifier);
    m_board->type(Qt::Key_Delete);
    QVERIFY(canvas.caught().isEmpty());
}

void tst_ScreenItemKeys::renderModeIgnoresKeys()
{
    m_screen->goToRenderMode();
    const QSignalSpy told(m_first, &ScreenItem::newGeometry);
    const KeyCatcher canvas(m_screen);
    m_board->type(Qt::Key_Up, Qt::ControlModifier);
    m_board->type(Qt::Key_Up, Qt::ShiftModifier);
    m_board->type(Qt::Key_Delete);
    QCOMPARE(canvas.caught(),
             (QList<int>{Qt::Key_Control, Qt::Key_Up, Qt::Key_Shift, Qt::Key_Up, Qt::Key_Delete}));
    QCOMPARE(geometries(m_screen->items()), (QList<QRect>{first, second}));
    QVERIFY(told.isEmpty());
}

void tst_ScreenItemKeys::frameWithoutCanvasIgnoresKeys()
{
    ScreenItem frame(nullptr);
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
    QCoreApplication::sendEvent(&frame, &event);
    QVERIFY(!event.isAccepted());
}

BOARDWRIGHT_TEST_MAIN(tst_ScreenItemKeys)
#include "tst_screenitemkeys.moc"
