#include "app/flowlayout.h"

#include "tests/support/strictmain.h"

#include <QPointer>
#include <QProxyStyle>
#include <QVBoxLayout>
#include <QWidget>
#include <QWidgetItem>

// The layout of wrapping rows.
class tst_FlowLayout : public QObject
{
    Q_OBJECT

private slots:
    void setsAllFourMargins();
    void takesGivenSpacings_data();
    void takesGivenSpacings();
    void takesSpacingsOfTheParentsStyle();
    void takesSpacingsOfTheParentLayout();
    void hasNoSpacingWithoutParent();
    void takesSpacingsBetweenPushButtonsAtLast();
    void wrapsAtTheRightEdge_data();
    void wrapsAtTheRightEdge();
    void rowIsAsHighAsItsHighestItem();
    void wideItemStaysInAnEmptyRow();
    void shrinksTheRectangleByTheMargins();
    void givesEachItemItsSizeHint();
    void measuresTheHeightForAWidth_data();
    void measuresTheHeightForAWidth();
    void measuringMovesNothing();
    void laysOutTheWidgetsOfAShownParent();
    void hintsTheLargestItemAndTheMargins();
    void expandsNowhere();
    void itemAtAnswersNullOutOfRange();
    void takeAtHandsItemsOver();
    void takeAtAnswersNullOutOfRange();
    void deletesItsItems();
};

namespace
{
constexpr int horizontalMetric = 11;
constexpr int verticalMetric = 13;
constexpr int betweenColumns = 3;
constexpr int betweenRows = 4;

/// Tells other spacings for a layout than between two push buttons.
class SpacedStyle : public QProxyStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        if (metric == PM_LayoutHorizontalSpacing)
            return m_hasMetrics ? horizontalMetric : -1;
        if (metric == PM_LayoutVerticalSpacing)
            return m_hasMetrics ? verticalMetric : -1;
        return QProxyStyle::pixelMetric(metric, option, widget);
    }

    int layoutSpacing(QSizePolicy::ControlType one, QSizePolicy::ControlType other,
                      Qt::Orientation orientation, const QStyleOption *option,
                      const QWidget *widget) const override
    {
        Q_UNUSED(option)
        Q_UNUSED(widget)
        if (one != QSizePolicy::PushButton || other != QSizePolicy::PushButton)
            return 50;
        return orientation == Qt::Horizontal ? betweenColumns : betweenRows;
    }

    void dropMetrics() { m_hasMetrics = false; }

private:
    bool m_hasMetrics = true;
};

/// An item without widget that remembers where it was put.
class Box : public QLayoutItem
{
public:
    explicit Box(QSize size) : m_size(size) {}

    QSize sizeHint() const override { return m_size; }
    QSize minimumSize() const override { return m_size; }
    QSize maximumSize() const override { return m_size; }
    Qt::Orientations expandingDirections() const override { return {}; }
    void setGeometry(const QRect &rect) override { m_geometry = rect; }
    QRect geometry() const override { return m_geometry; }
    bool isEmpty() const override { return false; }

private:
    QSize m_size;
    QRect m_geometry;
};

/// A layout with a box of each size.
struct Boxes : FlowLayout {
    Boxes(const QList<QSize> &sizes, int margin, int hSpacing, int vSpacing)
        : FlowLayout(margin, hSpacing, vSpacing)
    {
        for (const QSize size : sizes)
            addItem(new Box(size));
    }

    QList<QPoint> placesIn(const QRect &rect)
    {
        setGeometry(rect);
        QList<QPoint> places;
        for (int index = 0; index < count(); ++index)
            places.append(itemAt(index)->geometry().topLeft());
        return places;
    }
};

struct SizedWidget : QWidget {
    using QWidget::QWidget;
    QSize sizeHint() const override { return {40, 20}; }
};

using Places = QList<QPoint>;
const QSize boxSize(40, 20);
} // namespace

Q_DECLARE_METATYPE(Places)

void tst_FlowLayout::setsAllFourMargins()
{
    QWidget parent;
    const FlowLayout ofWidget(&parent, 7, 1, 1);
    const FlowLayout alone(9, 1, 1);
    QCOMPARE(ofWidget.contentsMargins(), QMargins(7, 7, 7, 7));
    QCOMPARE(alone.contentsMargins(), QMargins(9, 9, 9, 9));
    QCOMPARE(parent.layout(), &ofWidget);
}

void tst_FlowLayout::takesGivenSpacings_data()
{
    QTest::addColumn<int>("horizontal");
    QTest::addColumn<int>("vertical");

    QTest::newRow("none") << 0 << 0;
    QTest::newRow("different") << 5 << 8;
}

void tst_FlowLayout::takesGivenSpacings()
{
    QFETCH(int, horizontal);
    QFETCH(int, vertical);

    QWidget parent;
    const FlowLayout layout(&parent, 0, horizontal, vertical);
    QCOMPARE(layout.horizontalSpacing(), horizontal);
    QCOMPARE(layout.verticalSpacing(), vertical);
}

void tst_FlowLayout::takesSpacingsOfTheParentsStyle()
{
    SpacedStyle style;
    QWidget parent;
    parent.setStyle(&style);
    const FlowLayout layout(&parent, 0, -1, -1);
    QCOMPARE(layout.horizontalSpacing(), horizontalMetric);
    QCOMPARE(layout.verticalSpacing(), verticalMetric);
}

void tst_FlowLayout::takesSpacingsOfTheParentLayout()
{
    QWidget parent;
    QVBoxLayout outer(&parent);
    outer.setSpacing(17);
    auto *inner = new FlowLayout(0, -1, -1);
    outer.addLayout(inner);
    QCOMPARE(inner->horizontalSpacing(), 17);
    QCOMPARE(inner->verticalSpacing(), 17);
}

void tst_FlowLayout::hasNoSpacingWithoutParent()
{
    const FlowLayout layout(0, -1, -1);
    QCOMPARE(layout.horizontalSpacing(), -1);
    QCOMPARE(layout.verticalSpacing(), -1);
}

void tst_FlowLayout::takesSpacingsBetweenPushButtonsAtLast()
{
    SpacedStyle style;
    style.dropMetrics();
    QWidget parent;
    parent.setStyle(&style);
    FlowLayout layout(&parent, 0, -1, -1);
    QList<QWidget *> widgets;
    for (int index = 0; index < 3; ++index) {
        widgets.append(new SizedWidget(&parent));
        widgets.last()->setStyle(&style);
        layout.addWidget(widgets.last());
    }
    QCOMPARE(layout.horizontalSpacing(), -1);
    layout.setGeometry(QRect(0, 0, 100, 100));
    QCOMPARE(widgets.at(1)->pos(), QPoint(40 + betweenColumns, 0));
    QCOMPARE(widgets.at(2)->pos(), QPoint(0, 20 + betweenRows));
}

void tst_FlowLayout::wrapsAtTheRightEdge_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<Places>("places");

    // Three boxes of 40 x 20 with 5 px between columns and 3 px between rows.
    QTest::newRow("all in one row") << QRect(0, 0, 200, 100) << Places({{0, 0}, {45, 0}, {90, 0}});
    QTest::newRow("last pixel but one of the rectangle is in use")
        << QRect(0, 0, 131, 100) << Places({{0, 0}, {45, 0}, {90, 0}});
    QTest::newRow("an item that ends with the rectangle wraps")
        << QRect(0, 0, 130, 100) << Places({{0, 0}, {45, 0}, {0, 23}});
    QTest::newRow("one in each row") << QRect(0, 0, 60, 100) << Places({{0, 0}, {0, 23}, {0, 46}});
    QTest::newRow("starts in the rectangle's corner")
        << QRect(10, 30, 100, 100) << Places({{10, 30}, {55, 30}, {10, 53}});
}

void tst_FlowLayout::wrapsAtTheRightEdge()
{
    QFETCH(QRect, rect);
    QFETCH(Places, places);

    Boxes boxes({boxSize, boxSize, boxSize}, 0, 5, 3);
    QCOMPARE(boxes.placesIn(rect), places);
}

void tst_FlowLayout::rowIsAsHighAsItsHighestItem()
{
    Boxes boxes({{40, 10}, {40, 30}, {40, 20}, {40, 10}}, 0, 0, 2);
    QCOMPARE(boxes.placesIn(QRect(0, 0, 100, 100)), Places({{0, 0}, {40, 0}, {0, 32}, {40, 32}}));
}

void tst_FlowLayout::wideItemStaysInAnEmptyRow()
{
    Boxes boxes({{300, 10}, {300, 10}}, 0, 0, 5);
    QCOMPARE(boxes.placesIn(QRect(0, 0, 100, 100)), Places({{0, 0}, {0, 15}}));
}

void tst_FlowLayout::shrinksTheRectangleByTheMargins()
{
    Boxes boxes({boxSize, boxSize}, 6, 0, 0);
    QCOMPARE(boxes.placesIn(QRect(0, 0, 93, 100)), Places({{6, 6}, {46, 6}}));
    QCOMPARE(boxes.placesIn(QRect(0, 0, 92, 100)), Places({{6, 6}, {6, 26}}));
}

void tst_FlowLayout::givesEachItemItsSizeHint()
{
    Boxes boxes({{40, 10}, {30, 30}}, 0, 0, 0);
    boxes.setGeometry(QRect(0, 0, 500, 500));
    QCOMPARE(boxes.itemAt(0)->geometry().size(), QSize(40, 10));
    QCOMPARE(boxes.itemAt(1)->geometry().size(), QSize(30, 30));
    QCOMPARE(boxes.geometry(), QRect(0, 0, 500, 500));
}

void tst_FlowLayout::measuresTheHeightForAWidth_data()
{
    QTest::addColumn<int>("margin");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");

    QTest::newRow("one row") << 0 << 200 << 20;
    QTest::newRow("two rows") << 0 << 100 << 43;
    QTest::newRow("three rows") << 0 << 50 << 66;
    QTest::newRow("margins above and below") << 6 << 212 << 32;
    QTest::newRow("margins narrow the rows") << 6 << 130 << 55;
}

void tst_FlowLayout::measuresTheHeightForAWidth()
{
    QFETCH(int, margin);
    QFETCH(int, width);
    QFETCH(int, height);

    const Boxes boxes({boxSize, boxSize, boxSize}, margin, 5, 3);
    QVERIFY(boxes.hasHeightForWidth());
    QCOMPARE(boxes.heightForWidth(width), height);
}

void tst_FlowLayout::measuringMovesNothing()
{
    Boxes boxes({boxSize, boxSize}, 0, 0, 0);
    const Places places = boxes.placesIn(QRect(10, 10, 200, 100));
    boxes.heightForWidth(50);
    QCOMPARE(boxes.itemAt(1)->geometry().topLeft(), places.at(1));
}

void tst_FlowLayout::laysOutTheWidgetsOfAShownParent()
{
    QWidget parent;
    auto *layout = new FlowLayout(&parent, 0, 0, 0);
    auto *one = new SizedWidget;
    auto *other = new SizedWidget;
    layout->addWidget(one);
    layout->addWidget(other);
    parent.resize(200, 100);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    QCOMPARE(one->geometry(), QRect(0, 0, 40, 20));
    QCOMPARE(other->geometry(), QRect(40, 0, 40, 20));
    parent.resize(60, 100);
    QTRY_COMPARE(other->geometry(), QRect(0, 20, 40, 20));
}

void tst_FlowLayout::hintsTheLargestItemAndTheMargins()
{
    const Boxes boxes({{40, 10}, {30, 30}}, 6, 0, 0);
    QCOMPARE(boxes.minimumSize(), QSize(52, 42));
    QCOMPARE(boxes.sizeHint(), QSize(52, 42));
}

void tst_FlowLayout::expandsNowhere()
{
    const FlowLayout layout(0, 0, 0);
    QCOMPARE(layout.expandingDirections(), Qt::Orientations());
}

void tst_FlowLayout::itemAtAnswersNullOutOfRange()
{
    const Boxes boxes({boxSize}, 0, 0, 0);
    QCOMPARE(boxes.count(), 1);
    QVERIFY(boxes.itemAt(0));
    QVERIFY(!boxes.itemAt(-1));
    QVERIFY(!boxes.itemAt(1));
}

void tst_FlowLayout::takeAtHandsItemsOver()
{
    Boxes boxes({{1, 1}, {2, 2}, {3, 3}}, 0, 0, 0);
    const QScopedPointer<QLayoutItem> taken(boxes.takeAt(1));
    QCOMPARE(taken->sizeHint(), QSize(2, 2));
    QCOMPARE(boxes.count(), 2);
    QCOMPARE(boxes.itemAt(1)->sizeHint(), QSize(3, 3));
}

void tst_FlowLayout::takeAtAnswersNullOutOfRange()
{
    Boxes boxes({boxSize}, 0, 0, 0);
    QVERIFY(!boxes.takeAt(-1));
    QVERIFY(!boxes.takeAt(1));
    QCOMPARE(boxes.count(), 1);
}

void tst_FlowLayout::deletesItsItems()
{
    struct Noting : Box {
        explicit Noting(int &deleted) : Box(boxSize), m_deleted(deleted) {}
        ~Noting() override { ++m_deleted; }
        Q_DISABLE_COPY(Noting)

        int &m_deleted;
    };
    int deleted = 0;
    {
        FlowLayout layout(0, 0, 0);
        layout.addItem(new Noting(deleted));
        layout.addItem(new Noting(deleted));
    }
    QCOMPARE(deleted, 2);
}

BOARDWRIGHT_TEST_MAIN(tst_FlowLayout)
#include "tst_flowlayout.moc"
