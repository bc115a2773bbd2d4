#include "pictures/itemgeometry.h"

#include <QTest>

namespace
{
constexpr QSize board(800, 400);
} // namespace

class tst_ItemGeometry : public QObject
{
    Q_OBJECT

private slots:
    void clampsSize_data();
    void clampsSize();
    void clampsClampedSizeNoFurther();
    void tellsWhatLiesOnTheBoard_data();
    void tellsWhatLiesOnTheBoard();
    void landsWhereItWasOnTheBoard();
};

void tst_ItemGeometry::clampsSize_data()
{
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<QSize>("clamped");
    QTest::newRow("fits") << QRect(10, 20, 100, 50) << QSize(100, 50);
    QTest::newRow("whole board") << QRect(0, 0, 800, 400) << QSize(800, 400);
    QTest::newRow("too high by one") << QRect(0, 351, 100, 50) << QSize(100, 49);
    QTest::newRow("ends at the bottom") << QRect(0, 350, 100, 50) << QSize(100, 50);
    QTest::newRow("too wide but low: kept") << QRect(750, 0, 100, 50) << QSize(100, 50);
    QTest::newRow("narrow but high: widened") << QRect(600, 0, 150, 300) << QSize(200, 300);
    QTest::newRow("height just fits the width") << QRect(500, 0, 150, 300) << QSize(150, 300);
    QTest::newRow("height does not fit by one") << QRect(500, 0, 150, 301) << QSize(300, 301);
    QTest::newRow("compares the clamped height") << QRect(600, 200, 150, 300) << QSize(150, 200);
    QTest::newRow("clamped height does not fit") << QRect(601, 200, 150, 300) << QSize(199, 200);
    QTest::newRow("past the bottom: nothing left") << QRect(0, 410, 100, 50) << QSize(100, 0);
    QTest::newRow("past the right: nothing left") << QRect(810, 0, 100, 50) << QSize(0, 50);
    QTest::newRow("before the left edge") << QRect(-50, 0, 900, 50) << QSize(900, 50);
}

void tst_ItemGeometry::clampsSize()
{
    QFETCH(QRect, frame);
    QTEST(ItemGeometry::clampedSize(frame, board), "clamped");
}

void tst_ItemGeometry::clampsClampedSizeNoFurther()
{
    for (int x = -100; x <= 900; x += 50) {
        for (int height = 0; height <= 500; height += 50) {
            const QSize once = ItemGeometry::clampedSize(QRect(x, 70, 120, height), board);
            QCOMPARE(ItemGeometry::clampedSize(QRect(QPoint(x, 70), once), board), once);
        }
    }
}

void tst_ItemGeometry::tellsWhatLiesOnTheBoard_data()
{
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<bool>("liesOnBoard");
    QTest::newRow("inside") << QRect(10, 20, 100, 50) << true;
    QTest::newRow("the whole board") << QRect(QPoint(0, 0), board) << true;
    QTest::newRow("taller than the room beside it") << QRect(650, 50, 50, 300) << true;
    QTest::newRow("nothing in a corner") << QRect(board.width(), board.height(), 0, 0) << true;
    QTest::newRow("left") << QRect(-1, 20, 100, 50) << false;
    QTest::newRow("above") << QRect(10, -1, 100, 50) << false;
    QTest::newRow("right") << QRect(701, 20, 100, 50) << false;
    QTest::newRow("below") << QRect(10, 351, 100, 50) << false;
    QTest::newRow("no width left") << QRect(10, 20, -1, 50) << false;
    QTest::newRow("no height left") << QRect(10, 20, 100, -1) << false;
    QTest::newRow("as far as there is") << QRect(16777215, 16777215, 16777215, 16777215) << false;
}

void tst_ItemGeometry::tellsWhatLiesOnTheBoard()
{
    QFETCH(QRect, frame);
    QTEST(ItemGeometry::liesOnScreen(frame, board), "liesOnBoard");
}

void tst_ItemGeometry::landsWhereItWasOnTheBoard()
{
    const QRect tall(650, 50, 50, 300);
    QCOMPARE(ItemGeometry::landing(tall, ItemGeometry::Reading::OneByOne, board), tall);
    QCOMPARE(ItemGeometry::landing(tall, ItemGeometry::Reading::AtOnce, board), tall);
}

QTEST_APPLESS_MAIN(tst_ItemGeometry)
#include "tst_itemgeometry.moc"
