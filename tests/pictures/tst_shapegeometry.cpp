#include "pictures/shapegeometry.h"

#include <QTest>

Q_DECLARE_METATYPE(QLine)

class tst_ShapeGeometry : public QObject
{
    Q_OBJECT

private slots:
    void rectangleFillsTheFrame_data();
    void rectangleFillsTheFrame();
    void roundRectangleIsInsetByExactHalves_data();
    void roundRectangleIsInsetByExactHalves();
    void squareIsPlacedByItsAlignment_data();
    void squareIsPlacedByItsAlignment();
    void roundSquareIsPlacedByItsAlignment_data();
    void roundSquareIsPlacedByItsAlignment();
    void roundSquareIsNothingAtANegativeAnchor_data();
    void roundSquareIsNothingAtANegativeAnchor();
    void verticalLineRunsFromTopToBottom_data();
    void verticalLineRunsFromTopToBottom();
    void horizontalLineRunsFromLeftToRight_data();
    void horizontalLineRunsFromLeftToRight();
    void staysDefinedAtTheLimits_data();
    void staysDefinedAtTheLimits();
};

void tst_ShapeGeometry::rectangleFillsTheFrame_data()
{
    QTest::addColumn<QSize>("frame");
    QTest::addColumn<int>("lineWidth");
    QTest::addColumn<QRect>("outline");
    QTest::newRow("thin") << QSize(200, 100) << 1 << QRect(0, 0, 199, 99);
    QTest::newRow("even") << QSize(200, 100) << 4 << QRect(2, 2, 196, 96);
    QTest::newRow("odd") << QSize(200, 100) << 5 << QRect(2, 2, 195, 95);
    QTest::newRow("no line") << QSize(200, 100) << 0 << QRect(0, 0, 200, 100);
    QTest::newRow("negative, halved towards zero") << QSize(200, 100) << -3 << QRect(-1, -1, 203, 103);
    QTest::newRow("wider than the frame") << QSize(10, 6) << 20 << QRect(10, 10, -10, -14);
    QTest::newRow("empty frame") << QSize(0, 0) << 1 << QRect(0, 0, -1, -1);
}

void tst_ShapeGeometry::rectangleFillsTheFrame()
{
    QFETCH(QSize, frame);
    QFETCH(int, lineWidth);
    const ShapeGeometry::Figure figure = ShapeGeometry::rectangle({frame, "Left", lineWidth});
    QCOMPARE(figure.fill, QRect(QPoint(0, 0), frame));
    QTEST(figure.outline, "outline");
}

void tst_ShapeGeometry::roundRectangleIsInsetByExactHalves_data()
{
    QTest::addColumn<QSize>("frame");
    QTest::addColumn<int>("lineWidth");
    QTest::addColumn<QRectF>("outline");
    QTest::newRow("thin") << QSize(200, 100) << 1 << QRectF(0.5, 0.5, 199, 99);
    QTest::newRow("even") << QSize(200, 100) << 4 << QRectF(2, 2, 196, 96);
    QTest::newRow("odd") << QSize(100, 200) << 5 << QRectF(2.5, 2.5, 95, 195);
    QTest::newRow("wider than the frame") << QSize(10, 6) << 20 << QRectF(10, 10, -10, -14);
}

void tst_ShapeGeometry::roundRectangleIsInsetByExactHalves()
{
    QFETCH(QSize, frame);
    QFETCH(int, lineWidth);
    QFETCH(QRectF, outline);
    const ShapeGeometry::RoundFigure outlined =
        ShapeGeometry::roundRectangle({frame, "Right", lineWidth}, true);
    QCOMPARE(outlined.fill, outline);
    QCOMPARE(outlined.outline, outline);
    const ShapeGeometry::RoundFigure plain =
        ShapeGeometry::roundRectangle({frame, "Right", lineWidth}, false);
    QCOMPARE(plain.fill, QRectF(QPointF(0, 0), frame));
    QCOMPARE(ShapeGeometry::cornerRadius, 10.0);
}

void tst_ShapeGeometry::squareIsPlacedByItsAlignment_data()
{
    QTest::addColumn<QSize>("frame");
    QTest::addColumn<QString>("align");
    QTest::addColumn<int>("lineWidth");
    QTest::addColumn<QPoint>("fill");
    QTest::addColumn<QPoint>("outline");
    const QSize wide(200, 100);
    QTest::newRow("wide left") << wide << "Left" << 4 << QPoint(0, 0) << QPoint(2, 2);
    QTest::newRow("wide left odd") << wide << "Left" << 5 << QPoint(0, 0) << QPoint(2, 2);
    QTest::newRow("wide right") << wide << "Right" << 4 << QPoint(100, 0) << QPoint(102, 2);
    QTest::newRow("wide right odd") << wide << "Right" << 5 << QPoint(100, 0) << QPoint(102, 2);
    QTest::newRow("wide centre") << wide << "Center" << 4 << QPoint(50, 0) << QPoint(52, 2);
    QTest::newRow("wide centre odd") << wide << "Center" << 5 << QPoint(50, 0) << QPoint(52, 2);
    QTest::newRow("wide top centres") << wide << "Top" << 4 << QPoint(50, 0) << QPoint(52, 2);
    QTest::newRow("wide bottom centres") << wide << "Bottom" << 4 << QPoint(50, 0) << QPoint(52, 2);
    QTest::newRow("wide unknown centres") << wide << "Middle" << 4 << QPoint(50, 0) << QPoint(52, 2);
    QTest::newRow("wide, odd room") << QSize(203, 100) << "Center" << 2 << QPoint(51, 0) << QPoint(52, 1);
    QTest::newRow("wide, odd room, odd line")
        << QSize(203, 100) << "Center" << 3 << QPoint(51, 0) << QPoint(53, 1);
    const QSize tall(100, 200);
    QTest::newRow("tall top") << tall << "Top" << 4 << QPoint(0, 0) << QPoint(2, 2);
    QTest::newRow("tall bottom") << tall << "Bottom" << 4 << QPoint(0, 100) << QPoint(2, 102);
    QTest::newRow("tall bottom odd") << tall << "Bottom" << 7 << QPoint(0, 100) << QPoint(3, 103);
    QTest::newRow("tall centre") << tall << "Center" << 4 << QPoint(0, 50) << QPoint(2, 52);
    QTest::newRow("tall left centres") << tall << "Left" << 4 << QPoint(0, 50) << QPoint(2, 52);
    QTest::newRow("tall right centres") << tall << "Right" << 4 << QPoint(0, 50) << QPoint(2, 52);
    QTest::newRow("tall unknown centres") << tall << "" << 4 << QPoint(0, 50) << QPoint(2, 52);
    const QSize square(100, 100);
    QTest::newRow("square counts as wide: left") << square << "Left" << 6 << QPoint(0, 0) << QPoint(3, 3);
    QTest::newRow("square counts as wide: right") << square << "Right" << 6 << QPoint(0, 0) << QPoint(3, 3);
    QTest::newRow("square bottom centres") << square << "Bottom" << 6 << QPoint(0, 0) << QPoint(3, 3);
    QTest::newRow("alignment is spelled exactly") << wide << "left" << 4 << QPoint(50, 0) << QPoint(52, 2);
    QTest::newRow("negative line") << wide << "Right" << -3 << QPoint(100, 0) << QPoint(98, -1);
    QTest::newRow("negative line, centre") << square << "Center" << -3 << QPoint(0, 0) << QPoint(-1, -1);
}

void tst_ShapeGeometry::squareIsPlacedByItsAlignment()
{
    QFETCH(QSize, frame);
    QFETCH(QString, align);
    QFETCH(int, lineWidth);
    QFETCH(QPoint, fill);
    QFETCH(QPoint, outline);
    const ShapeGeometry::Figure figure = ShapeGeometry::square({frame, align, lineWidth});
    QCOMPARE(figure.fill, QRect(fill, QSize(100, 100)));
    QCOMPARE(figure.outline, QRect(outline, QSize(100 - lineWidth, 100 - lineWidth)));
}

void tst_ShapeGeometry::roundSquareIsPlacedByItsAlignment_data()
{
    QTest::addColumn<QSize>("frame");
    QTest::addColumn<QString>("align");
    QTest::addColumn<int>("lineWidth");
    QTest::addColumn<QPointF>("anchor");
    QTest::addColumn<QPointF>("plainFill");
    const QSize wide(200, 100);
    QTest::newRow("wide left") << wide << "Left" << 4 << QPointF(2, 2) << QPointF(0, 0);
    QTest::newRow("wide left odd") << wide << "Left" << 5 << QPointF(2, 2) << QPointF(-0.5, -0.5);
    QTest::newRow("wide right goes down") << wide << "Right" << 4 << QPointF(2, 102) << QPointF(0, 100);
    QTest::newRow("wide right odd goes down")
        << wide << "Right" << 5 << QPointF(2, 102) << QPointF(-0.5, 99.5);
    QTest::newRow("wide centre") << wide << "Center" << 4 << QPointF(52, 2) << QPointF(50, 0);
    QTest::newRow("wide centre odd") << wide << "Center" << 5 << QPointF(52, 2) << QPointF(49.5, -0.5);
    QTest::newRow("wide top centres") << wide << "Top" << 4 << QPointF(52, 2) << QPointF(50, 0);
    QTest::newRow("wide bottom centres") << wide << "Bottom" << 4 << QPointF(52, 2) << QPointF(50, 0);
    QTest::newRow("wide unknown centres") << wide << "Middle" << 4 << QPointF(52, 2) << QPointF(50, 0);
    QTest::newRow("wide, odd room, odd line")
        << QSize(203, 100) << "Top" << 3 << QPointF(53, 1) << QPointF(51.5, -0.5);
    const QSize tall(100, 200);
    QTest::newRow("tall top") << tall << "Top" << 4 << QPointF(2, 2) << QPointF(0, 0);
    QTest::newRow("tall bottom") << tall << "Bottom" << 4 << QPointF(2, 102) << QPointF(0, 100);
    QTest::newRow("tall bottom odd") << tall << "Bottom" << 7 << QPointF(3, 103) << QPointF(-0.5, 99.5);
    QTest::newRow("tall centre") << tall << "Center" << 4 << QPointF(2, 52) << QPointF(0, 50);
    QTest::newRow("tall left centres") << tall << "Left" << 4 << QPointF(2, 52) << QPointF(0, 50);
    QTest::newRow("tall right centres") << tall << "Right" << 4 << QPointF(2, 52) << QPointF(0, 50);
    const QSize square(100, 100);
    QTest::newRow("square counts as wide: right") << square << "Right" << 6 << QPointF(3, 3) << QPointF(0, 0);
    QTest::newRow("square bottom centres") << square << "Bottom" << 6 << QPointF(3, 3) << QPointF(0, 0);
    QTest::newRow("no line") << wide << "Center" << 0 << QPointF(50, 0) << QPointF(50, 0);
    QTest::newRow("a line of -1 is cut to zero")
        << wide << "Left" << -1 << QPointF(0, 0) << QPointF(0.5, 0.5);
}

void tst_ShapeGeometry::roundSquareIsPlacedByItsAlignment()
{
    QFETCH(QSize, frame);
    QFETCH(QString, align);
    QFETCH(int, lineWidth);
    QFETCH(QPointF, anchor);
    QFETCH(QPointF, plainFill);
    const QRectF inset(anchor, QSizeF(100 - lineWidth, 100 - lineWidth));
    const auto outlined = ShapeGeometry::roundSquare({frame, align, lineWidth}, true);
    QVERIFY(outlined);
    QCOMPARE(outlined->fill, inset);
    QCOMPARE(outlined->outline, inset);
    const auto plain = ShapeGeometry::roundSquare({frame, align, lineWidth}, false);
    QVERIFY(plain);
    QCOMPARE(plain->fill, QRectF(plainFill, QSizeF(100, 100)));
}

void tst_ShapeGeometry::roundSquareIsNothingAtANegativeAnchor_data()
{
    QTest::addColumn<QSize>("frame");
    QTest::addColumn<QString>("align");
    QTest::addColumn<bool>("isDrawn");
    QTest::newRow("wide left") << QSize(200, 100) << "Left" << false;
    QTest::newRow("wide centre: y is negative") << QSize(200, 100) << "Center" << false;
    QTest::newRow("tall centre: x is negative") << QSize(100, 200) << "Center" << false;
    QTest::newRow("tall bottom: x is negative") << QSize(100, 200) << "Bottom" << false;
    QTest::newRow("wide right: x is negative") << QSize(200, 100) << "Right" << false;
}

void tst_ShapeGeometry::roundSquareIsNothingAtANegativeAnchor()
{
    QFETCH(QSize, frame);
    QFETCH(QString, align);
    QTEST(ShapeGeometry::roundSquare({frame, align, -2}, false).has_value(), "isDrawn");
    QVERIFY(ShapeGeometry::roundSquare({frame, align, 0}, false).has_value());
}

void tst_ShapeGeometry::verticalLineRunsFromTopToBottom_data()
{
    QTest::addColumn<QString>("align");
    QTest::addColumn<int>("lineWidth");
    QTest::addColumn<int>("x");
    QTest::newRow("left") << "Left" << 4 << 2;
    QTest::newRow("left odd") << "Left" << 5 << 2;
    QTest::newRow("left thin") << "Left" << 1 << 0;
    QTest::newRow("right") << "Right" << 4 << 199;
    QTest::newRow("right odd") << "Right" << 5 << 198;
    QTest::newRow("right thin") << "Right" << 1 << 200;
    QTest::newRow("right no line") << "Right" << 0 << 201;
    QTest::newRow("centre") << "Center" << 5 << 100;
    QTest::newRow("top centres") << "Top" << 5 << 100;
    QTest::newRow("bottom centres") << "Bottom" << 5 << 100;
    QTest::newRow("unknown centres") << "right" << 5 << 100;
    QTest::newRow("left negative") << "Left" << -5 << -2;
    QTest::newRow("right negative") << "Right" << -5 << 203;
}

void tst_ShapeGeometry::verticalLineRunsFromTopToBottom()
{
    QFETCH(QString, align);
    QFETCH(int, lineWidth);
    QFETCH(int, x);
    QCOMPARE(ShapeGeometry::verticalLine({QSize(201, 60), align, lineWidth}), QLine(x, 0, x, 60));
}

void tst_ShapeGeometry::horizontalLineRunsFromLeftToRight_data()
{
    QTest::addColumn<QString>("align");
    QTest::addColumn<int>("lineWidth");
    QTest::addColumn<int>("y");
    QTest::newRow("top") << "Top" << 4 << 2;
    QTest::newRow("top odd") << "Top" << 5 << 2;
    QTest::newRow("bottom") << "Bottom" << 4 << 199;
    QTest::newRow("bottom odd") << "Bottom" << 5 << 198;
    QTest::newRow("bottom no line") << "Bottom" << 0 << 201;
    QTest::newRow("centre") << "Center" << 5 << 100;
    QTest::newRow("left centres") << "Left" << 5 << 100;
    QTest::newRow("right centres") << "Right" << 5 << 100;
    QTest::newRow("unknown centres") << "bottom" << 5 << 100;
    QTest::newRow("top negative") << "Top" << -5 << -2;
    QTest::newRow("bottom negative") << "Bottom" << -5 << 203;
}

void tst_ShapeGeometry::horizontalLineRunsFromLeftToRight()
{
    QFETCH(QString, align);
    QFETCH(int, lineWidth);
    QFETCH(int, y);
    QCOMPARE(ShapeGeometry::horizontalLine({QSize(60, 201), align, lineWidth}), QLine(0, y, 60, y));
}

void tst_ShapeGeometry::staysDefinedAtTheLimits_data()
{
    QTest::addColumn<int>("lineWidth");
    QTest::newRow("widest") << 16777215;
    QTest::newRow("most negative") << -16777215;
}

/// The sanitizers watch the arithmetic; the numbers are those of single precision.
void tst_ShapeGeometry::staysDefinedAtTheLimits()
{
    QFETCH(int, lineWidth);
    for (const QSize frame :
         {QSize(0, 0), QSize(1, 16777215), QSize(16777215, 1), QSize(16777215, 16777215)}) {
        for (const char *align : {"Left", "Right", "Top", "Bottom", "Center"}) {
            const ShapeGeometry::Placement placement = {frame, align, lineWidth};
            QCOMPARE(ShapeGeometry::rectangle(placement).fill.size(), frame);
            const int side = qMin(frame.width(), frame.height());
            QCOMPARE(ShapeGeometry::square(placement).outline.width(), side - lineWidth);
            QCOMPARE(ShapeGeometry::roundRectangle(placement, true).outline.left(), lineWidth / 2.0);
            QCOMPARE(ShapeGeometry::roundSquare(placement, true).has_value(), lineWidth > 0);
            QCOMPARE(ShapeGeometry::verticalLine(placement).y2(), frame.height());
            QCOMPARE(ShapeGeometry::horizontalLine(placement).x2(), frame.width());
        }
    }
}

QTEST_APPLESS_MAIN(tst_ShapeGeometry)
#include "tst_shapegeometry.moc"
