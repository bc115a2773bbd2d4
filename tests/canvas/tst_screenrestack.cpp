#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "tests/canvas/shownscreen.h"
#include "tests/support/boards.h"
#include "tests/support/strictmain.h"

#include <QLoggingCategory>
#include <QRandomGenerator>
#include <QScopedPointer>

#include <algorithm>

/// Restacking leaves what is in place where it is. What comes out has to be what raising every frame in turn
/// gives, whatever the stacking was before.
class tst_ScreenRestack : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void equalsRaisingEveryFrame_data();
    void equalsRaisingEveryFrame();
    void equalsRaisingEveryFrameWhenSomeAreListedTwice_data();
    void equalsRaisingEveryFrameWhenSomeAreListedTwice();
    void equalsRaisingEveryFrameOnAShownCanvas();
    void leavesAFrameThatLiesElsewhere();
    void raisesNothingThatIsInPlace();
    void oneLayerMoveRaisesOneFrame_data();
    void oneLayerMoveRaisesOneFrame();

private:
    QScopedPointer<Screen> m_crowded; // 3,000 layers
};

namespace
{
using Frames = QList<ScreenItem *>;

/// The frames as the toolkit stacks them, bottom first.
Frames stacking(const Screen &screen)
{
    return screen.findChildren<ScreenItem *>(QString(), Qt::FindDirectChildrenOnly);
}

void raiseInTurn(const Frames &frames)
{
    for (ScreenItem *frame : frames)
        frame->raise();
}

Frames shuffled(Frames frames, QRandomGenerator &random)
{
    std::shuffle(frames.begin(), frames.end(), random);
    return frames;
}

/// Restacks from the given stacking and answers whether the result is that of raising the layers in turn.
bool restacksAsRaisingDoes(Screen &screen, const Frames &before)
{
    raiseInTurn(before);
    raiseInTurn(screen.items());
    const Frames expected = stacking(screen);
    raiseInTurn(before);
    if (stacking(screen) != before)
        return false;
    screen.restack();
    return stacking(screen) == expected;
}

void addSeeds()
{
    QTest::addColumn<quint32>("start");
    QTest::addColumn<int>("count");
    for (const int count : {0, 1, 2, 3, 5, 12, 60}) {
        for (quint32 start = 1; start <= 3; ++start)
            QTest::addRow("%d frames, start %u", count, start) << start << count;
    }
}

/// Counts the events of one type that reach frames.
class FrameEvents : public QObject
{
public:
    explicit FrameEvents(QEvent::Type type) : m_type(type) { qApp->installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        count += event->type() == m_type && qobject_cast<ScreenItem *>(watched);
        return false;
    }

private:
    QEvent::Type m_type;
};
} // namespace

void tst_ScreenRestack::initTestCase()
{
    QLoggingCategory::setFilterRules("default.debug=false");
    m_crowded.reset(new Screen);
    m_crowded->loadLayout(board(manyShapes(3000)));
}

void tst_ScreenRestack::cleanupTestCase()
{
    m_crowded.reset();
}

void tst_ScreenRestack::equalsRaisingEveryFrame_data()
{
    addSeeds();
}

void tst_ScreenRestack::equalsRaisingEveryFrame()
{
    QFETCH(quint32, start);
    QFETCH(int, count);
    QRandomGenerator random(start);
    Screen screen;
    screen.loadLayout(board(manyShapes(count)));
    for (int round = 0; round < 20; ++round)
        QVERIFY(restacksAsRaisingDoes(screen, shuffled(screen.items(), random)));
    QCOMPARE(stacking(screen), screen.items());
}

void tst_ScreenRestack::equalsRaisingEveryFrameWhenSomeAreListedTwice_data()
{
    addSeeds();
}

void tst_ScreenRestack::equalsRaisingEveryFrameWhenSomeAreListedTwice()
{
    QFETCH(quint32, start);
    QFETCH(int, count);
    QRandomGenerator random(start);
    Screen screen;
    screen.loadLayout(board(manyShapes(count)));
    const Frames once = screen.items();
    for (ScreenItem *frame : once) {
        if (random.bounded(3) == 0)
            screen.addScreenItem(frame);
    }
    for (int round = 0; round < 20; ++round)
        QVERIFY(restacksAsRaisingDoes(screen, shuffled(once, random)));
}

void tst_ScreenRestack::equalsRaisingEveryFrameOnAShownCanvas()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    shown.screen.loadLayout(board(manyShapes(30)));
    QRandomGenerator random(4);
    for (int round = 0; round < 20; ++round) {
        QVERIFY(restacksAsRaisingDoes(shown.screen, shuffled(shown.screen.items(), random)));
        QCoreApplication::processEvents();
    }
}

void tst_ScreenRestack::leavesAFrameThatLiesElsewhere()
{
    Screen screen;
    screen.loadLayout(board(manyShapes(3)));
    const Frames layers = screen.items();
    QWidget elsewhere;
    layers.at(1)->setParent(&elsewhere);
    raiseInTurn({layers.at(2), layers.at(0)});
    screen.restack();
    QCOMPARE(stacking(screen), Frames({layers.at(0), layers.at(2)}));
    QCOMPARE(layers.at(1)->parentWidget(), &elsewhere);
}

void tst_ScreenRestack::raisesNothingThatIsInPlace()
{
    Screen screen;
    screen.loadLayout(board(manyShapes(100)));
    const FrameEvents raised(QEvent::ZOrderChange);
    screen.restack();
    QCOMPARE(raised.count, 0);
}

void tst_ScreenRestack::oneLayerMoveRaisesOneFrame_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::newRow("bottom up") << QByteArray("sendToLayerUp") << 0 << 1;
    QTest::newRow("middle up") << QByteArray("sendToLayerUp") << 1500 << 1501;
    QTest::newRow("top down") << QByteArray("sendToLayerDown") << 2999 << 2998;
    QTest::newRow("middle down") << QByteArray("sendToLayerDown") << 1500 << 1499;
    QTest::newRow("bottom to front") << QByteArray("bringToFrontSlot") << 0 << 2999;
    QTest::newRow("top to back") << QByteArray("sendToBackSlot") << 2999 << 0;
}

void tst_ScreenRestack::oneLayerMoveRaisesOneFrame()
{
    QFETCH(QByteArray, slot);
    QFETCH(int, from);
    QFETCH(int, to);
    ScreenItem *moved = m_crowded->items().at(from);
    const FrameEvents raised(QEvent::ZOrderChange);
    QVERIFY(QMetaObject::invokeMethod(moved, slot.constData(), Qt::DirectConnection));
    QCOMPARE(raised.count, 1);
    QCOMPARE(m_crowded->items().at(to), moved);
    QCOMPARE(stacking(*m_crowded), m_crowded->items());
}

BOARDWRIGHT_TEST_MAIN(tst_ScreenRestack)
#include "tst_screenrestack.moc"
