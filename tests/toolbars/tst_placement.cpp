#include "toolbars/placement.h"

#include "tests/support/strictmain.h"

using Rule = QRect (*)(const QRect &, QSize);
Q_DECLARE_METATYPE(Rule)

// Where the fits and alignments put an item.
class tst_Placement : public QObject
{
    Q_OBJECT

private slots:
    void putsTheItem_data();
    void putsTheItem();
};

void tst_Placement::putsTheItem_data()
{
    QTest::addColumn<Rule>("rule");
    QTest::addColumn<QRect>("item");
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QRect>("expected");

    const auto row = [](const char *name, Rule rule, const QRect &item, const QRect &expected,
                        QSize screen = QSize(800, 400)) {
        QTest::newRow(name) << rule << item << screen << expected;
    };
    const QRect item(30, 40, 100, 50);
    const QRect large(-7, -9, 811, 421);
    const QRect outside(-500, 900, 100, 50);
    const QRect empty(30, 40, 0, 0);

    row("fill", Placement::filled, item, {0, 0, 800, 400});
    row("fill with a larger item", Placement::filled, large, {0, 0, 800, 400});
    row("fill a screen of one pixel", Placement::filled, item, {0, 0, 1, 1}, {1, 1});
    row("fit horizontally", Placement::fittedHorizontally, item, {0, 40, 800, 50});
    row("fit a larger item horizontally", Placement::fittedHorizontally, large, {0, -9, 800, 421});
    row("fit an item outside horizontally", Placement::fittedHorizontally, outside, {0, 900, 800, 50});
    row("fit vertically", Placement::fittedVertically, item, {30, 0, 100, 400});
    row("fit a larger item vertically", Placement::fittedVertically, large, {-7, 0, 811, 400});
    row("fit an item outside vertically", Placement::fittedVertically, outside, {-500, 0, 100, 400});

    row("top", Placement::alignedTop, item, {30, 0, 100, 50});
    row("top of an item outside", Placement::alignedTop, outside, {-500, 0, 100, 50});
    row("bottom", Placement::alignedBottom, item, {30, 350, 100, 50});
    row("bottom of a larger item", Placement::alignedBottom, large, {-7, -21, 811, 421});
    row("bottom of an empty item", Placement::alignedBottom, empty, {30, 400, 0, 0});
    row("left", Placement::alignedLeft, item, {0, 40, 100, 50});
    row("left of an item outside", Placement::alignedLeft, outside, {0, 900, 100, 50});
    row("right", Placement::alignedRight, item, {700, 40, 100, 50});
    row("right of a larger item", Placement::alignedRight, large, {-11, -9, 811, 421});
    row("right of an empty item", Placement::alignedRight, empty, {800, 40, 0, 0});

    row("centre, even rest", Placement::centeredVertically, item, {30, 175, 100, 50});
    row("centre, odd rest to the lower offset", Placement::centeredVertically, {30, 40, 100, 51},
        {30, 174, 100, 51});
    row("centre, one pixel left", Placement::centeredVertically, {30, 40, 100, 399}, {30, 0, 100, 399});
    row("centre, one pixel over, towards zero", Placement::centeredVertically, {30, 40, 100, 401},
        {30, 0, 100, 401});
    row("centre, three pixels over, towards zero", Placement::centeredVertically, {30, 40, 100, 403},
        {30, -1, 100, 403});
    row("centre a larger item", Placement::centeredVertically, large, {-7, -10, 811, 421});
    row("centre across, even rest", Placement::centeredHorizontally, item, {350, 40, 100, 50});
    row("centre across, odd rest to the lower offset", Placement::centeredHorizontally, {30, 40, 101, 50},
        {349, 40, 101, 50});
    row("centre across, one pixel over, towards zero", Placement::centeredHorizontally, {30, 40, 801, 50},
        {0, 40, 801, 50});
    row("centre across, three pixels over, towards zero", Placement::centeredHorizontally, {30, 40, 803, 50},
        {-1, 40, 803, 50});
    row("centre across, four pixels over", Placement::centeredHorizontally, {30, 40, 804, 50},
        {-2, 40, 804, 50});
    row("centre across a larger item", Placement::centeredHorizontally, large, {-5, -9, 811, 421});
}

void tst_Placement::putsTheItem()
{
    QFETCH(Rule, rule);
    QFETCH(QRect, item);
    QFETCH(QSize, screen);
    QFETCH(QRect, expected);

    QCOMPARE(rule(item, screen), expected);
}

BOARDWRIGHT_TEST_MAIN(tst_Placement)
#include "tst_placement.moc"
