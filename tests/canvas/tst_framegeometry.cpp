#include "canvas/framegeometry.h"

#include "tests/support/strictmain.h"

#include <QTest>

namespace
{
constexpr QSize board(800, 400);
}

class tst_FrameGeometry : public QObject
{
    Q_OBJECT

private slots:
    void findsZoneOfPoint_data();
    void findsZoneOfPoint();
    void numbersZonesClockwise();
    void showsCursorOfZone_data();
    void showsCursorOfZone();
    void keepsGroupOnBoard_data();
    void keepsGroupOnBoard();
    void dragsSide_data();
    void dragsSide();
    void neverLeavesBoardWhenDragged_data();
    void neverLeavesBoardWhenDragged();
    void keepsSizeWithinLimits_data();
    void keepsSizeWithinLimits();
    void roundsHalvesAwayFromZero_data();
    void roundsHalvesAwayFromZero();
};

void tst_FrameGeometry::findsZoneOfPoint_data()
{
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("zone");
    const auto add = [](const char *name, QRect frame, QPoint point, HitZone zone) {
        QTest::newRow(name) << frame << point << static_cast<int>(zone);
    };
    const QRect usual(100, 50, 40, 30);
    add("first pixel", usual, {100, 50}, HitZone::TopLeft);
    add("end of the top left bands", usual, {102, 52}, HitZone::TopLeft);
    add("right of the left band", usual, {103, 52}, HitZone::Top);
    add("below the top band", usual, {102, 53}, HitZone::Left);
    add("first pixel inside", usual, {103, 53}, HitZone::Interior);
    add("last pixel inside", usual, {137, 77}, HitZone::Interior);
    add("begin of the right band", usual, {138, 77}, HitZone::Right);
    add("begin of the bottom band", usual, {137, 78}, HitZone::Bottom);
    add("begin of the bottom right bands", usual, {138, 78}, HitZone::BottomRight);
    add("last pixel", usual, {139, 79}, HitZone::BottomRight);
    add("top right", usual, {138, 52}, HitZone::TopRight);
    add("left of the top right", usual, {137, 52}, HitZone::Top);
    add("below the top right", usual, {138, 53}, HitZone::Right);
    add("bottom left", usual, {102, 78}, HitZone::BottomLeft);
    add("above the bottom left", usual, {102, 77}, HitZone::Left);
    add("right of the bottom left", usual, {103, 78}, HitZone::Bottom);
    add("far left", usual, {-5, 60}, HitZone::Left);
    add("far right", usual, {900, 60}, HitZone::Right);
    add("far above", usual, {120, -5}, HitZone::Top);
    add("far below", usual, {120, 500}, HitZone::Bottom);

    const QRect smallest(10, 10, 4, 4);
    add("all four bands: bottom left first", smallest, {12, 12}, HitZone::BottomLeft);
    add("right, top and bottom: bottom right second", smallest, {13, 12}, HitZone::BottomRight);
    add("left, right and top: top left third", smallest, {12, 11}, HitZone::TopLeft);
    add("right and top: top right last", smallest, {13, 11}, HitZone::TopRight);

    const QRect narrow(10, 10, 1, 40);
    add("left and right overlap: left", narrow, {12, 30}, HitZone::Left);
    add("past the left band: right", narrow, {13, 30}, HitZone::Right);
    const QRect flat(10, 10, 40, 1);
    add("top and bottom overlap: top", flat, {30, 12}, HitZone::Top);
    add("past the top band: bottom", flat, {30, 13}, HitZone::Bottom);
}

void tst_FrameGeometry::findsZoneOfPoint()
{
    QFETCH(QRect, frame);
    QFETCH(QPoint, point);
    QTEST(static_cast<int>(FrameGeometry::hitZoneAt(point, frame)), "zone");
}

void tst_FrameGeometry::numbersZonesClockwise()
{
    QCOMPARE(static_cast<int>(HitZone::None), 0);
    QCOMPARE(static_cast<int>(HitZone::Interior), 1);
    QCOMPARE(static_cast<int>(HitZone::TopLeft), 2);
    QCOMPARE(static_cast<int>(HitZone::Top), 3);
    QCOMPARE(static_cast<int>(HitZone::TopRight), 4);
    QCOMPARE(static_cast<int>(HitZone::Right), 5);
    QCOMPARE(static_cast<int>(HitZone::BottomRight), 6);
    QCOMPARE(static_cast<int>(HitZone::Bottom), 7);
    QCOMPARE(static_cast<int>(HitZone::BottomLeft), 8);
    QCOMPARE(static_cast<int>(HitZone::Left), 9);
}

void tst_FrameGeometry::showsCursorOfZone_data()
{
    QTest::addColumn<int>("zone");
    QTest::addColumn<Qt::CursorShape>("cursor");
    QTest::newRow("interior") << 1 << Qt::ArrowCursor;
    QTest::newRow("top left") << 2 << Qt::SizeFDiagCursor;
    QTest::newRow("top") << 3 << Qt::SizeVerCursor;
    QTest::newRow("top right") << 4 << Qt::SizeBDiagCursor;
    QTest::newRow("right") << 5 << Qt::SizeHorCursor;
    QTest::newRow("bottom right") << 6 << Qt::SizeFDiagCursor;
    QTest::newRow("bottom") << 7 << Qt::SizeVerCursor;
    QTest::newRow("bottom left") << 8 << Qt::SizeBDiagCursor;
    QTest::newRow("left") << 9 << Qt::SizeHorCursor;
}

void tst_FrameGeometry::showsCursorOfZone()
{
    QFETCH(int, zone);
    QTEST(FrameGeometry::cursorFor(static_cast<HitZone>(zone)), "cursor");
}

void tst_FrameGeometry::keepsGroupOnBoard_data()
{
    QTest::addColumn<QRect>("group");
    QTest::addColumn<QPoint>("wanted");
    QTest::addColumn<QPoint>("possible");
    const QRect group(100, 100, 200, 50);
    QTest::newRow("stands still") << group << QPoint(0, 0) << QPoint(0, 0);
    QTest::newRow("free") << group << QPoint(30, -20) << QPoint(30, -20);
    QTest::newRow("touches the right") << group << QPoint(500, 0) << QPoint(500, 0);
    QTest::newRow("past the right by one") << group << QPoint(501, 0) << QPoint(500, 0);
    QTest::newRow("touches the bottom") << group << QPoint(0, 250) << QPoint(0, 250);
    QTest::newRow("past the bottom by one") << group << QPoint(0, 251) << QPoint(0, 250);
    QTest::newRow("touches the left") << group << QPoint(-100, 0) << QPoint(-100, 0);
    QTest::newRow("past the left by one") << group << QPoint(-101, 0) << QPoint(-100, 0);
    QTest::newRow("touches the top") << group << QPoint(0, -100) << QPoint(0, -100);
    QTest::newRow("past the top by one") << group << QPoint(0, -101) << QPoint(0, -100);
    QTest::newRow("far past the near corner") << group << QPoint(-900, -900) << QPoint(-100, -100);
    QTest::newRow("far past the far corner") << group << QPoint(900, 900) << QPoint(500, 250);
    QTest::newRow("x only") << group << QPoint(900, 7) << QPoint(500, 7);
    QTest::newRow("back from past the right") << QRect(750, 0, 100, 50) << QPoint(0, 0) << QPoint(-50, 0);
    QTest::newRow("back from past the left") << QRect(-30, 0, 100, 50) << QPoint(0, 0) << QPoint(30, 0);
    // Wider than the board: cut at the right first, then corrected by what the wanted move lacks at the left.
    QTest::newRow("too wide, to the left") << QRect(0, 0, 900, 50) << QPoint(-10, 0) << QPoint(-90, 0);
    QTest::newRow("too wide, to the right") << QRect(-20, 0, 900, 50) << QPoint(5, 0) << QPoint(-65, 0);
    QTest::newRow("too high, upwards") << QRect(0, 0, 50, 450) << QPoint(0, -10) << QPoint(0, -40);
    QTest::newRow("too wide, far to the left wins")
        << QRect(0, 0, 900, 50) << QPoint(-300, 0) << QPoint(0, 0);
}

void tst_FrameGeometry::keepsGroupOnBoard()
{
    QFETCH(QRect, group);
    QFETCH(QPoint, wanted);
    QTEST(FrameGeometry::groupMove(group, wanted, board), "possible");
}

void tst_FrameGeometry::dragsSide_data()
{
    QTest::addColumn<int>("zone");
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<QPoint>("pointer");
    QTest::addColumn<QPoint>("corner");
    QTest::addColumn<QRect>("dragged");
    const auto add = [](const char *name, HitZone zone, QPoint pointer, QPoint corner, QRect dragged,
                        QRect frame = QRect(100, 100, 80, 60)) {
        QTest::newRow(name) << static_cast<int>(zone) << frame << pointer << corner << dragged;
    };
    const QPoint pointer(95, 75);
    const QPoint corner(90, 85);
    add("top left", HitZone::TopLeft, pointer, corner, {90, 85, 90, 75});
    add("top", HitZone::Top, pointer, corner, {100, 85, 80, 75});
    add("top right", HitZone::TopRight, pointer, corner, {100, 85, 95, 75});
    add("right", HitZone::Right, pointer, corner, {100, 100, 95, 60});
    add("bottom right", HitZone::BottomRight, pointer, corner, {100, 100, 95, 75});
    add("bottom", HitZone::Bottom, pointer, corner, {100, 100, 80, 75});
    add("bottom left", HitZone::BottomLeft, pointer, corner, {90, 100, 90, 75});
    add("left", HitZone::Left, pointer, corner, {90, 100, 90, 60});

    add("right to four", HitZone::Right, {4, 0}, corner, {100, 100, 4, 60});
    add("right to three", HitZone::Right, {3, 0}, corner, {100, 100, 4, 60});
    add("bottom right past the near corner", HitZone::BottomRight, {-50, -50}, corner, {100, 100, 4, 4});
    add("right to the edge", HitZone::Right, {700, 0}, corner, {100, 100, 700, 60});
    add("right past the edge", HitZone::Right, {701, 0}, corner, {100, 100, 700, 60});
    add("bottom to the edge", HitZone::Bottom, {0, 300}, corner, {100, 100, 80, 300});
    add("bottom past the edge", HitZone::Bottom, {0, 301}, corner, {100, 100, 80, 300});

    add("top to the bottom edge", HitZone::Top, pointer, {0, 156}, {100, 156, 80, 4});
    add("top past the bottom edge moves it too", HitZone::Top, pointer, {0, 190}, {100, 190, 80, 4});
    add("top past the board's bottom", HitZone::Top, pointer, {0, 500}, {100, 396, 80, 4});
    add("left past the right edge moves it too", HitZone::Left, pointer, {300, 0}, {300, 100, 4, 60});
    add("left past the board's right", HitZone::Left, pointer, {900, 0}, {796, 100, 4, 60});
    add("left past the board's left", HitZone::Left, pointer, {-30, 0}, {0, 100, 210, 60});
    // The length of a near side is cut to the room right of the frame as it stands, not of where it goes.
    add("left far past the board's left", HitZone::Left, pointer, {-900, 0}, {0, 100, 700, 60});
    add("top far past the board's top", HitZone::Top, pointer, {0, -900}, {100, 0, 80, 300});

    add("other side shorter than the minimum", HitZone::Right, {50, 0}, corner, {100, 100, 50, 4},
        {100, 100, 80, 2});
    add("other side past the edge", HitZone::Right, {50, 0}, corner, {100, 380, 50, 20}, {100, 380, 80, 60});
    add("other side before the edge", HitZone::Bottom, {0, 50}, corner, {0, 100, 80, 50}, {-20, 100, 80, 60});
    add("other side without room", HitZone::Bottom, {0, 50}, corner, {796, 100, 4, 50}, {798, 100, 80, 60});
}

void tst_FrameGeometry::dragsSide()
{
    QFETCH(int, zone);
    QFETCH(QRect, frame);
    QFETCH(QPoint, pointer);
    QFETCH(QPoint, corner);
    const FrameGeometry::ResizeDrag drag = {static_cast<HitZone>(zone), frame, board, pointer, corner};
    const QSize size = FrameGeometry::draggedSize(drag);
    QTEST(QRect(FrameGeometry::draggedPosition(drag, size), size), "dragged");
}

void tst_FrameGeometry::neverLeavesBoardWhenDragged_data()
{
    QTest::addColumn<int>("zone");
    for (int zone = 2; zone <= 9; ++zone)
        QTest::addRow("zone %d", zone) << zone;
}

void tst_FrameGeometry::neverLeavesBoardWhenDragged()
{
    QFETCH(int, zone);
    const QList<QRect> frames = {
        {0, 0, 800, 400}, {-60, -60, 900, 500}, {790, 395, 50, 50}, {900, 500, 10, 10}};
    for (const QRect &frame : frames) {
        for (int step = -1000; step <= 1000; step += 125) {
            const QPoint place(step, step / 2);
            const FrameGeometry::ResizeDrag drag = {static_cast<HitZone>(zone), frame, board,
                                                    place - frame.topLeft(), place};
            const QSize size = FrameGeometry::draggedSize(drag);
            const QRect dragged(FrameGeometry::draggedPosition(drag, size), size);
            QVERIFY(QRect(QPoint(0, 0), board).contains(dragged));
            QVERIFY(size.width() >= 4 && size.height() >= 4);
        }
    }
}

void tst_FrameGeometry::keepsSizeWithinLimits_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("kept");
    QTest::newRow("usual") << QSize(100, 50) << QSize(100, 50);
    QTest::newRow("smallest") << QSize(4, 4) << QSize(4, 4);
    QTest::newRow("too narrow") << QSize(3, 50) << QSize(4, 50);
    QTest::newRow("too low") << QSize(100, 0) << QSize(100, 4);
    QTest::newRow("too wide") << QSize(801, 50) << QSize(800, 50);
    QTest::newRow("too high") << QSize(100, 401) << QSize(100, 400);
}

void tst_FrameGeometry::keepsSizeWithinLimits()
{
    QFETCH(QSize, size);
    QTEST(FrameGeometry::keptSize(size, board), "kept");
}

void tst_FrameGeometry::roundsHalvesAwayFromZero_data()
{
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<QPoint>("rounded");
    QTest::newRow("whole") << QPointF(3, -4) << QPoint(3, -4);
    QTest::newRow("below a half") << QPointF(2.49, -2.49) << QPoint(2, -2);
    QTest::newRow("a half") << QPointF(2.5, -2.5) << QPoint(3, -3);
    QTest::newRow("a half around zero") << QPointF(0.5, -0.5) << QPoint(1, -1);
}

void tst_FrameGeometry::roundsHalvesAwayFromZero()
{
    QFETCH(QPointF, point);
    QTEST(FrameGeometry::wholePixels(point), "rounded");
}

BOARDWRIGHT_TEST_MAIN(tst_FrameGeometry)
#include "tst_framegeometry.moc"
