#include "viewers/shape.h"

#include "tests/support/strictmain.h"

#include <QLoggingCategory>
#include <QPainter>
#include <QPainterPath>

namespace
{
using Values = QMap<QString, QVariant>;

Values valuesOf(const QString &kind, const QString &align)
{
    return {{"Shape", kind},  {"Align", align}, {"Opacity", 100},  {"Fill", true},
            {"Color", "red"}, {"Border", true}, {"Line Width", 1}, {"Border Color", "white"}};
}

/// Paints one shape by plain calls of the toolkit, apart from the product.
class Draughtsman
{
public:
    Draughtsman(QImage &picture, const Values &values)
        : m_painter(&picture),
          m_values(values),
          m_align(values["Align"].toString()),
          m_w(picture.width()),
          m_h(picture.height()),
          m_lw(values["Line Width"].toInt())
    {
        m_painter.setRenderHint(QPainter::Antialiasing);
        QPen pen(colour("Border Color"));
        pen.setJoinStyle(Qt::MiterJoin);
        pen.setWidth(m_lw < 0 ? 0 : m_lw); // a line without a width is a cosmetic one
        m_painter.setPen(pen);
    }

    void draw(const QString &kind)
    {
        if (kind == "Round Square")
            drawRoundSquare();
        if (kind == "Square")
            drawSquare();
        if (kind == "Rectangle")
            drawFigure(QRect(0, 0, m_w, m_h), QRect(r(), r(), m_w - m_lw, m_h - m_lw));
        if (kind == "Round Rectangle")
            drawRoundRectangle();
        if (kind == "Vertical Line")
            drawVerticalLine();
        if (kind == "Horizontal Line")
            drawHorizontalLine();
    }

private:
    static int trunc(float value) { return static_cast<int>(value); }
    int r() const { return trunc(float(m_lw) * 0.5f); }
    bool hasOutline() const { return m_values["Border"].toBool() && m_lw >= 1; }
    bool hasFill() const { return m_values["Fill"].toBool(); }

    QColor colour(const char *key) const
    {
        const QString name = m_values[key].toString();
        return QColor::isValidColor(name) ? QColor(name) : QColor();
    }

    void drawFigure(const QRect &fill, const QRect &outline)
    {
        if (hasFill()) {
            m_painter.setOpacity(m_values["Opacity"].toInt() * 0.01);
            m_painter.fillRect(fill, colour("Color"));
            m_painter.setOpacity(1.0);
        }
        if (hasOutline())
            m_painter.drawRects(QVector<QRect>{outline});
    }

    void drawRoundFigure(const QRectF &fill, const QRectF &outline)
    {
        if (hasFill()) {
            QPainterPath path;
            path.addRoundedRect(fill, 10, 10, Qt::AbsoluteSize);
            m_painter.setOpacity(m_values["Opacity"].toInt() * 0.01);
            m_painter.fillPath(path, QBrush(colour("Color"), Qt::SolidPattern));
            m_painter.setOpacity(1.0);
        }
        if (hasOutline()) {
            QPainterPath path;
            path.addRoundedRect(outline, 10, 10, Qt::AbsoluteSize);
            m_painter.drawPath(path);
        }
    }

    void drawRoundRectangle()
    {
        const QRectF inset(m_lw / 2.0, m_lw / 2.0, m_w - m_lw, m_h - m_lw);
        drawRoundFigure(hasOutline() ? inset : QRectF(0, 0, m_w, m_h), inset);
    }

    void drawSquare()
    {
        const int s = qMin(m_w, m_h);
        QPoint fill(trunc(float(m_w - s) * 0.5f), trunc(float(m_h - s) * 0.5f));
        QPoint outline(trunc(float(m_w - s + m_lw) * 0.5f), trunc(float(m_h - s + m_lw) * 0.5f));
        const bool wide = m_w >= m_h;
        if ((wide && m_align == "Left") || (!wide && m_align == "Top")) {
            fill = QPoint(0, 0);
            outline = QPoint(r(), r());
        } else if (wide && m_align == "Right") {
            fill = QPoint(m_w - s, 0);
            outline = QPoint(trunc(float(m_w - s) + float(m_lw) * 0.5f), r());
        } else if (!wide && m_align == "Bottom") {
            fill = QPoint(0, m_h - s);
            outline = QPoint(r(), trunc(float(m_h - s) + float(m_lw) * 0.5f));
        }
        drawFigure(QRect(fill, QSize(s, s)), QRect(outline, QSize(s - m_lw, s - m_lw)));
    }

    void drawRoundSquare()
    {
        const int s = qMin(m_w, m_h);
        int ax = trunc(float(m_w - s) * 0.5f + float(m_lw) * 0.5f);
        int ay = trunc(float(m_h - s) * 0.5f + float(m_lw) * 0.5f);
        const bool wide = m_w >= m_h;
        if ((wide && m_align == "Left") || (!wide && m_align == "Top")) {
            ax = r();
            ay = r();
        } else if (wide && m_align == "Right") {
            ax = r();
            ay = trunc(float(m_w - s) + float(m_lw) * 0.5f);
        } else if (!wide && m_align == "Bottom") {
            ax = trunc(float(m_w - s) + float(m_lw) * 0.5f);
            ay = trunc(float(m_h - s) + float(m_lw) * 0.5f);
        }
        if (ax < 0 || ay < 0)
            return;
        const QRectF inset(ax, ay, s - m_lw, s - m_lw);
        drawRoundFigure(hasOutline() ? inset : QRectF(ax - m_lw / 2.0, ay - m_lw / 2.0, s, s), inset);
    }

    void drawVerticalLine()
    {
        int x = trunc(float(m_w) * 0.5f);
        if (m_align == "Left")
            x = r();
        if (m_align == "Right")
            x = trunc(float(m_w) - float(m_lw) * 0.5f);
        m_painter.drawLine(x, 0, x, m_h);
    }

    void drawHorizontalLine()
    {
        int y = trunc(float(m_h) * 0.5f);
        if (m_align == "Top")
            y = r();
        if (m_align == "Bottom")
            y = trunc(float(m_h) - float(m_lw) * 0.5f);
        m_painter.drawLine(0, y, m_w, y);
    }

    QPainter m_painter;
    Values m_values;
    QString m_align;
    int m_w;
    int m_h;
    int m_lw;
};

QImage emptyPicture(QSize size)
{
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(QColor(0, 90, 160));
    return picture;
}

QImage expectedPicture(QSize size, const Values &values)
{
    QImage picture = emptyPicture(size);
    Draughtsman(picture, values).draw(values["Shape"].toString());
    return picture;
}

QString describe(QSize size, const Values &values)
{
    QString text = QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        text += QStringLiteral(", %1: %2").arg(it.key(), it.value().toString());
    return text;
}

const QVector<QSize> &frames()
{
    static const QVector<QSize> sizes = {{1, 1}, {5, 3}, {40, 40}, {90, 31}, {31, 90}, {64, 33}};
    return sizes;
}
} // namespace

class tst_ShapePainting : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void isPaintedByPlainCalls_data();
    void isPaintedByPlainCalls();
    void paintsFillsOfEveryOpacityAndColour_data();
    void paintsFillsOfEveryOpacityAndColour();
    void readsWhateverTheMapHolds_data();
    void readsWhateverTheMapHolds();

    void fillIsTranslucentAndOutlineOpaque();
    void squareOnTheRightIsOutlinedInsideItsFill();
    void roundSquareOnTheRightIsOutOfSight();
    void lineWidthZeroDrawsNoOutline_data();
    void lineWidthZeroDrawsNoOutline();
    void roundRectangleWithoutOutlineFillsTheFrame();
    void lineIgnoresFillBorderAndOpacity_data();
    void lineIgnoresFillBorderAndOpacity();
    void lineWithoutWidthIsHairThin_data();
    void lineWithoutWidthIsHairThin();
    void lineWithoutWidthIsHairThinWhenMagnified();
    void unknownKindDrawsNothing_data();
    void unknownKindDrawsNothing();
    void survivesHostileValues_data();
    void survivesHostileValues();

private:
    QImage pictureOf(QSize size, const Values &values);
    int markedPixelsWhenMagnified(const Values &values);
    void addKindsAndAlignments();
    void compare(QSize size, const Values &values);
    void compareBorders(QSize size, Values values);

    Shape *m_shape = nullptr;
};

void tst_ShapePainting::initTestCase()
{
    QLoggingCategory::setFilterRules("default.debug=false");
    m_shape = new Shape(nullptr);
}

void tst_ShapePainting::cleanupTestCase()
{
    delete m_shape;
}

QImage tst_ShapePainting::pictureOf(QSize size, const Values &values)
{
    m_shape->resize(size);
    m_shape->setValues(values);
    QImage picture = emptyPicture(size);
    m_shape->render(&picture, QPoint(), QRegion(), QWidget::RenderFlags());
    return picture;
}

void tst_ShapePainting::compare(QSize size, const Values &values)
{
    if (pictureOf(size, values) != expectedPicture(size, values))
        QFAIL(qPrintable(QStringLiteral("painted otherwise: ") + describe(size, values)));
}

void tst_ShapePainting::addKindsAndAlignments()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("align");
    for (const char *kind :
         {"Rectangle", "Round Rectangle", "Square", "Round Square", "Horizontal Line", "Vertical Line"}) {
        for (const char *align : {"Top", "Center", "Bottom", "Right", "Left", "elsewhere"})
            QTest::addRow("%s %s", kind, align) << kind << align;
    }
}

void tst_ShapePainting::isPaintedByPlainCalls_data()
{
    addKindsAndAlignments();
}

void tst_ShapePainting::isPaintedByPlainCalls()
{
    QFETCH(QString, kind);
    QFETCH(QString, align);
    Values values = valuesOf(kind, align);
    for (const QSize size : frames()) {
        for (int lineWidth = -3; lineWidth <= 20; ++lineWidth) {
            values["Line Width"] = lineWidth;
            compareBorders(size, values);
        }
    }
}

void tst_ShapePainting::compareBorders(QSize size, Values values)
{
    for (const bool fill : {true, false}) {
        for (const bool border : {true, false}) {
            values["Fill"] = fill;
            values["Border"] = border;
            compare(size, values);
        }
    }
}

void tst_ShapePainting::paintsFillsOfEveryOpacityAndColour_data()
{
    addKindsAndAlignments();
}

void tst_ShapePainting::paintsFillsOfEveryOpacityAndColour()
{
    QFETCH(QString, kind);
    QFETCH(QString, align);
    Values values = valuesOf(kind, align);
    values["Line Width"] = 4;
    for (const int opacity : {0, 1, 50, 99, 100, 150, -5}) {
        for (const char *color : {"black", "#12ab9f", "#80ff8000", "no colour", ""}) {
            values["Opacity"] = opacity;
            values["Color"] = color;
            values["Border Color"] = opacity == 50 ? "no colour" : "yellow";
            compare(QSize(90, 31), values);
        }
    }
}

void tst_ShapePainting::readsWhateverTheMapHolds_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QVariant>("meant");
    QTest::newRow("width as a double") << "Line Width" << QVariant(5.0) << QVariant(5);
    QTest::newRow("width as digits") << "Line Width" << QVariant("5") << QVariant(5);
    QTest::newRow("no width") << "Line Width" << QVariant() << QVariant(0);
    QTest::newRow("opacity as a double") << "Opacity" << QVariant(50.0) << QVariant(50);
    QTest::newRow("no opacity") << "Opacity" << QVariant() << QVariant(0);
    QTest::newRow("no fill") << "Fill" << QVariant() << QVariant(false);
    QTest::newRow("fill as a number") << "Fill" << QVariant(1.0) << QVariant(true);
    QTest::newRow("no border") << "Border" << QVariant() << QVariant(false);
    QTest::newRow("border as a word") << "Border" << QVariant("false") << QVariant(false);
    QTest::newRow("no colour") << "Color" << QVariant() << QVariant("black");
    QTest::newRow("list as a colour") << "Border Color" << QVariant(QVariantList()) << QVariant("black");
    QTest::newRow("no alignment") << "Align" << QVariant() << QVariant("Center");
}

void tst_ShapePainting::readsWhateverTheMapHolds()
{
    QFETCH(QString, key);
    QFETCH(QVariant, stored);
    QFETCH(QVariant, meant);
    Values values = valuesOf("Square", "Left");
    values[key] = stored;
    const QImage picture = pictureOf(QSize(90, 31), values);
    values[key] = meant;
    QCOMPARE(picture, expectedPicture(QSize(90, 31), values));
}

void tst_ShapePainting::fillIsTranslucentAndOutlineOpaque()
{
    Values values = valuesOf("Rectangle", "Center");
    values["Opacity"] = 50;
    values["Line Width"] = 4;
    const QImage picture = pictureOf(QSize(40, 40), values);
    QCOMPARE(picture.pixelColor(1, 20), QColor(Qt::white));
    const QColor middle = picture.pixelColor(20, 20);
    QVERIFY(qAbs(middle.red() - 128) <= 2);
    QVERIFY(qAbs(middle.green() - 45) <= 2);
    QVERIFY(qAbs(middle.blue() - 80) <= 2);
}

void tst_ShapePainting::squareOnTheRightIsOutlinedInsideItsFill()
{
    Values values = valuesOf("Square", "Right");
    values["Line Width"] = 4;
    const QImage picture = pictureOf(QSize(200, 100), values);
    const QColor ground = emptyPicture(QSize(1, 1)).pixelColor(0, 0);
    QCOMPARE(picture.pixelColor(99, 50), ground);
    for (const int x : {100, 103, 196, 199})
        QCOMPARE(picture.pixelColor(x, 50), QColor(Qt::white));
    QCOMPARE(picture.pixelColor(104, 50), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(195, 50), QColor(Qt::red));
}

void tst_ShapePainting::roundSquareOnTheRightIsOutOfSight()
{
    Values values = valuesOf("Round Square", "Right");
    values["Line Width"] = 4;
    QCOMPARE(pictureOf(QSize(200, 100), values), emptyPicture(QSize(200, 100)));
    values["Align"] = "Left";
    QVERIFY(pictureOf(QSize(200, 100), values) != emptyPicture(QSize(200, 100)));
}

void tst_ShapePainting::lineWidthZeroDrawsNoOutline_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"Rectangle", "Round Rectangle", "Square", "Round Square"})
        QTest::newRow(kind) << kind;
}

void tst_ShapePainting::lineWidthZeroDrawsNoOutline()
{
    QFETCH(QString, kind);
    Values values = valuesOf(kind, "Center");
    values["Fill"] = false;
    values["Line Width"] = 0;
    QCOMPARE(pictureOf(QSize(60, 40), values), emptyPicture(QSize(60, 40)));
    values["Line Width"] = 1;
    QVERIFY(pictureOf(QSize(60, 40), values) != emptyPicture(QSize(60, 40)));
}

void tst_ShapePainting::roundRectangleWithoutOutlineFillsTheFrame()
{
    Values values = valuesOf("Round Rectangle", "Center");
    values["Border"] = false;
    values["Line Width"] = 8;
    const QImage picture = pictureOf(QSize(60, 40), values);
    const QColor ground = emptyPicture(QSize(1, 1)).pixelColor(0, 0);
    for (const QPoint edge : {QPoint(0, 20), QPoint(59, 20), QPoint(30, 0), QPoint(30, 39)})
        QCOMPARE(picture.pixelColor(edge), QColor(Qt::red));
    for (const QPoint corner : {QPoint(0, 0), QPoint(59, 0), QPoint(0, 39), QPoint(59, 39)})
        QCOMPARE(picture.pixelColor(corner), ground);
}

void tst_ShapePainting::lineIgnoresFillBorderAndOpacity_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("vertical") << "Vertical Line";
    QTest::newRow("horizontal") << "Horizontal Line";
}

void tst_ShapePainting::lineIgnoresFillBorderAndOpacity()
{
    QFETCH(QString, kind);
    Values values = valuesOf(kind, "Center");
    values["Line Width"] = 4;
    const QImage picture = pictureOf(QSize(41, 41), values);
    QCOMPARE(picture.pixelColor(20, 20), QColor(Qt::white));
    values["Fill"] = false;
    values["Border"] = false;
    values["Opacity"] = 0;
    QCOMPARE(pictureOf(QSize(41, 41), values), picture);
}

void tst_ShapePainting::lineWithoutWidthIsHairThin_data()
{
    QTest::addColumn<int>("lineWidth");
    QTest::newRow("zero") << 0;
    QTest::newRow("negative") << -7;
}

void tst_ShapePainting::lineWithoutWidthIsHairThin()
{
    QFETCH(int, lineWidth);
    Values values = valuesOf("Vertical Line", "Center");
    values["Line Width"] = 1;
    const QImage hair = pictureOf(QSize(40, 40), values);
    values["Line Width"] = lineWidth;
    QCOMPARE(pictureOf(QSize(40, 40), values), hair);
}

void tst_ShapePainting::lineWithoutWidthIsHairThinWhenMagnified()
{
    Values values = valuesOf("Vertical Line", "Center");
    for (const int lineWidth : {0, -7}) {
        values["Line Width"] = lineWidth;
        QCOMPARE(markedPixelsWhenMagnified(values), 2); // between two pixels
    }
    values["Line Width"] = 1;
    QCOMPARE(markedPixelsWhenMagnified(values), 4);
}

/// How many pixels of a row are painted when a pixel of the shape is four wide.
int tst_ShapePainting::markedPixelsWhenMagnified(const Values &values)
{
    m_shape->resize(10, 10);
    m_shape->setValues(values);
    QImage picture = emptyPicture(QSize(40, 40));
    QPainter painter(&picture);
    painter.scale(4, 4);
    m_shape->render(&painter, QPoint(), QRegion(), QWidget::RenderFlags());
    painter.end();
    const QRgb ground = emptyPicture(QSize(1, 1)).pixel(0, 0);
    int marked = 0;
    for (int x = 0; x < picture.width(); ++x)
        marked += picture.pixel(x, 20) != ground ? 1 : 0;
    return marked;
}

void tst_ShapePainting::unknownKindDrawsNothing_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"", "Circle", "rectangle", "Rectangle ", "VerticalLine"})
        QTest::addRow("\"%s\"", kind) << kind;
}

void tst_ShapePainting::unknownKindDrawsNothing()
{
    QFETCH(QString, kind);
    QCOMPARE(pictureOf(QSize(40, 30), valuesOf(kind, "Center")), emptyPicture(QSize(40, 30)));
}

void tst_ShapePainting::survivesHostileValues_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("1e9") << QVariant(1e9);
    QTest::newRow("-1e9") << QVariant(-1e9);
    QTest::newRow("1e308") << QVariant(1e308);
    QTest::newRow("-1e308") << QVariant(-1e308);
    QTest::newRow("32769") << QVariant(32769);
    QTest::newRow("largest integer") << QVariant(2147483647);
    QTest::newRow("smallest integer") << QVariant(-2147483647 - 1);
    QTest::newRow("digits") << QVariant("99999999999999999999");
}

void tst_ShapePainting::survivesHostileValues()
{
    QFETCH(QVariant, value);
    const QStringList kinds = m_shape->getEnumsFor("Shape");
    const QStringList alignments = m_shape->getEnumsFor("Align");
    for (const QString &kind : kinds) {
        for (const QString &align : alignments) {
            Values values = valuesOf(kind, align);
            values["Opacity"] = value;
            const QImage once = pictureOf(QSize(60, 30), values);
            values["Line Width"] = value;
            QCOMPARE(pictureOf(QSize(60, 30), values).size(), once.size());
        }
    }
}

BOARDWRIGHT_TEST_MAIN(tst_ShapePainting)
#include "tst_shapepainting.moc"
