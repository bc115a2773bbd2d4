#include "app/screencontainer.h"

#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "tests/support/strictmain.h"

#include <QMetaMethod>
#include <QPointer>
#include <QScrollBar>

// The scroll area around the canvas.
class tst_ScreenContainer : public QObject
{
    Q_OBJECT

private slots:
    void areaIsAPlainTransparentWidget();
    void calculateGeometryIsItsOneSlot();
    void calculatingWithoutAScreenDoesNothing();
    void setScreenTakesTheScreenIntoTheArea();
    void setScreenDeletesTheScreenBefore();
    void setScreenTakesAScreenThatWasAWindow();
    void setScreenTwiceKeepsTheScreen();
    void setScreenOfNoneLeavesNoScreen();
    void forgetsAScreenThatIsDeletedElsewhere();
    void barsFollowTheViewWithoutAScreen();
    void deletesTheScreenAtTheEnd();
    void centresASmallScreen_data();
    void centresASmallScreen();
    void areaTakesTheSizeOfTheContainer();
    void areaIsNeverSmallerThanTheScreen();
    void showsNoBarsForASmallScreen();
    void opensALargeScreenScrolledToItsMiddle_data();
    void opensALargeScreenScrolledToItsMiddle();
    void scrollsToTheMiddleAfterEveryResizeOfTheScreen();
    void scrollsToTheMiddleAfterEveryResizeOfTheView();
    void screenThatShrinksIsCentredAgain();
    void calculateGeometrySetsMinimumAndPlace();
    void wideScreenIsCentredVertically();
    void pressBesideTheScreenLeavesTheItems_data();
    void pressBesideTheScreenLeavesTheItems();
    void otherPressesLeaveTheSelection_data();
    void otherPressesLeaveTheSelection();
    void pressWithoutAScreenDoesNothing();
};

namespace
{
/// A container without frame, shown with the screen as the main window sets it up.
struct View {
    explicit View(QSize viewSize, QSize screenSize)
    {
        container.setFrameShape(QFrame::NoFrame);
        container.setScreen(screen);
        container.setWidgetResizable(true);
        screen->setFixedSize(screenSize);
        container.resize(viewSize);
        container.show();
    }

    bool isShown() { return QTest::qWaitForWindowExposed(&container); }
    QPoint place() const { return screen->mapTo(&container, QPoint(0, 0)); }

    ScreenContainer container;
    Screen *screen = new Screen;
};

/// A view with a selected item, and what its screen tells.
struct SelectedItem : View {
    SelectedItem(QSize viewSize, QSize screenSize) : View(viewSize, screenSize)
    {
        item->setGeometry(10, 10, 50, 20);
        item->activate();
        QObject::connect(screen, &Screen::deactivateFor, &container,
                         [this](ScreenItem *told) { lines << (told ? "deactivate" : "deactivate all"); });
        QObject::connect(screen, &Screen::showSettingsFor, &container, [this](ScreenItem *told) {
            lines << (told ? "show" : "show none");
            selectedWhenShown = item->isSelected();
        });
    }

    void press(QPoint position, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(container.windowHandle(), button, {}, position);
    }

    ScreenItem *item = new ScreenItem(screen);
    QStringList lines;
    bool selectedWhenShown = true;
};

bool isInMiddle(const QScrollBar *bar)
{
    return bar->isVisible() && bar->maximum() > 0 && bar->value() == bar->maximum() / 2;
}
} // namespace

void tst_ScreenContainer::areaIsAPlainTransparentWidget()
{
    const ScreenContainer container;
    QVERIFY(container.widget());
    QCOMPARE(container.widget()->metaObject()->className(), "QWidget");
    QCOMPARE(container.widget()->styleSheet(), QString("background:transparent;"));
}

void tst_ScreenContainer::calculateGeometryIsItsOneSlot()
{
    const QMetaObject &meta = ScreenContainer::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("calculateGeometry()"));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Slot);
    QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QScrollArea"));
}

void tst_ScreenContainer::calculatingWithoutAScreenDoesNothing()
{
    ScreenContainer container;
    container.calculateGeometry();
    QCOMPARE(container.widget()->minimumSize(), QSize(0, 0));
}

void tst_ScreenContainer::setScreenTakesTheScreenIntoTheArea()
{
    View view({600, 400}, {200, 100});
    QVERIFY(view.isShown());
    QCOMPARE(view.screen->parentWidget(), view.container.widget());
    QVERIFY(view.screen->isVisible());
}

void tst_ScreenContainer::setScreenDeletesTheScreenBefore()
{
    View view({600, 400}, {200, 100});
    const QPointer<Screen> before = view.screen;
    auto *next = new Screen;
    next->setFixedSize(100, 50);
    view.container.setScreen(next);
    QVERIFY(!before);
    QCOMPARE(next->parentWidget(), view.container.widget());
    QCOMPARE(next->mapTo(&view.container, QPoint(0, 0)), QPoint(250, 175));
    QVERIFY(next->isVisible());
}

void tst_ScreenContainer::setScreenTakesAScreenThatWasAWindow()
{
    View view({600, 400}, {200, 100});
    auto *next = new Screen;
    next->setFixedSize(100, 50);
    next->show();
    QVERIFY(QTest::qWaitForWindowExposed(next));
    view.container.setScreen(next);
    QCOMPARE(next->mapTo(&view.container, QPoint(0, 0)), QPoint(250, 175));
    QVERIFY(next->isVisible());
}

void tst_ScreenContainer::setScreenTwiceKeepsTheScreen()
{
    View view({600, 400}, {200, 100});
    const QPointer<Screen> screen = view.screen;
    view.container.setScreen(view.screen);
    QVERIFY(screen);
    QCOMPARE(view.place(), QPoint(200, 150));
}

void tst_ScreenContainer::setScreenOfNoneLeavesNoScreen()
{
    View view({600, 400}, {200, 100});
    const QPointer<Screen> before = view.screen;
    view.container.setScreen(nullptr);
    QVERIFY(!before);
    view.container.calculateGeometry();
    view.container.resize(500, 300);
}

void tst_ScreenContainer::forgetsAScreenThatIsDeletedElsewhere()
{
    View view({600, 400}, {200, 100});
    QVERIFY(view.isShown());
    delete view.screen;
    const QSize minimum = view.container.widget()->minimumSize();
    view.container.calculateGeometry();
    view.container.resize(100, 100);
    QCOMPARE(view.container.widget()->minimumSize(), minimum);
    // Nothing is left to be deleted a second time.
    auto *next = new Screen;
    view.container.setScreen(next);
    QCOMPARE(next->parentWidget(), view.container.widget());
}

// The area keeps the size that the screen gave it, so that the resize of the view alone moves the ranges.
void tst_ScreenContainer::barsFollowTheViewWithoutAScreen()
{
    View view({300, 200}, {800, 400});
    QVERIFY(view.isShown());
    delete view.screen;
    view.container.resize(400, 250);
    QTRY_COMPARE(view.container.size(), QSize(400, 250));
    const QSize rest = QSize(800, 400) - view.container.viewport()->size();
    QCOMPARE(view.container.horizontalScrollBar()->maximum(), rest.width());
    QCOMPARE(view.container.verticalScrollBar()->maximum(), rest.height());
}

void tst_ScreenContainer::deletesTheScreenAtTheEnd()
{
    QPointer<Screen> screen = new Screen;
    {
        ScreenContainer container;
        container.setScreen(screen);
    }
    QVERIFY(!screen);
}

void tst_ScreenContainer::centresASmallScreen_data()
{
    QTest::addColumn<QSize>("viewSize");
    QTest::addColumn<QPoint>("place");

    QTest::newRow("even rest") << QSize(600, 400) << QPoint(200, 150);
    QTest::newRow("odd rest leaves the extra pixel right and below") << QSize(601, 401) << QPoint(200, 150);
    QTest::newRow("next even rest") << QSize(602, 402) << QPoint(201, 151);
    QTest::newRow("odd width only") << QSize(205, 400) << QPoint(2, 150);
    QTest::newRow("exactly the screen") << QSize(200, 100) << QPoint(0, 0);
}

void tst_ScreenContainer::centresASmallScreen()
{
    QFETCH(QSize, viewSize);
    QFETCH(QPoint, place);

    View view({700, 500}, {200, 100});
    QVERIFY(view.isShown());
    view.container.resize(viewSize);
    QTRY_COMPARE(view.container.size(), viewSize);
    QCOMPARE(view.place(), place);
    QCOMPARE(view.container.widget()->size(), viewSize);
}

// The toolkit would see to this only once the area was made resizable.
void tst_ScreenContainer::areaTakesTheSizeOfTheContainer()
{
    View view({600, 400}, {200, 100});
    QVERIFY(view.isShown());
    view.container.setWidgetResizable(false);
    view.container.resize(500, 301);
    QTRY_COMPARE(view.container.widget()->size(), QSize(500, 301));
    QCOMPARE(view.place(), QPoint(150, 100));
}

void tst_ScreenContainer::areaIsNeverSmallerThanTheScreen()
{
    View view({300, 200}, {800, 400});
    QVERIFY(view.isShown());
    QCOMPARE(view.container.widget()->minimumSize(), QSize(800, 400));
    QCOMPARE(view.container.widget()->size(), QSize(800, 400));
    QCOMPARE(view.screen->pos(), QPoint(0, 0));
}

void tst_ScreenContainer::showsNoBarsForASmallScreen()
{
    View view({300, 200}, {300, 200});
    QVERIFY(view.isShown());
    QVERIFY(!view.container.horizontalScrollBar()->isVisible());
    QVERIFY(!view.container.verticalScrollBar()->isVisible());
}

void tst_ScreenContainer::opensALargeScreenScrolledToItsMiddle_data()
{
    QTest::addColumn<QSize>("screenSize");

    QTest::newRow("default board") << QSize(800, 400);
    QTest::newRow("odd lengths") << QSize(801, 433);
    QTest::newRow("largest board") << QSize(10000, 10000);
}

void tst_ScreenContainer::opensALargeScreenScrolledToItsMiddle()
{
    QFETCH(QSize, screenSize);

    View view({300, 200}, screenSize);
    QVERIFY(view.isShown());
    const QSize rest = screenSize - view.container.viewport()->size();
    QCOMPARE(view.container.horizontalScrollBar()->maximum(), rest.width());
    QCOMPARE(view.container.verticalScrollBar()->maximum(), rest.height());
    QVERIFY(isInMiddle(view.container.horizontalScrollBar()));
    QVERIFY(isInMiddle(view.container.verticalScrollBar()));
}

void tst_ScreenContainer::scrollsToTheMiddleAfterEveryResizeOfTheScreen()
{
    View view({300, 200}, {800, 400});
    QVERIFY(view.isShown());
    for (const QSize size : {QSize(1000, 700), QSize(2000, 700), QSize(900, 501)}) {
        view.container.horizontalScrollBar()->setValue(0);
        view.container.verticalScrollBar()->setValue(0);
        view.screen->setFixedSize(size);
        QVERIFY(isInMiddle(view.container.horizontalScrollBar()));
        QVERIFY(isInMiddle(view.container.verticalScrollBar()));
        QCOMPARE(view.container.horizontalScrollBar()->maximum(),
                 size.width() - view.container.viewport()->width());
    }
}

void tst_ScreenContainer::scrollsToTheMiddleAfterEveryResizeOfTheView()
{
    View view({300, 200}, {800, 400});
    QVERIFY(view.isShown());
    view.container.horizontalScrollBar()->setValue(0);
    view.container.resize(400, 250);
    QTRY_COMPARE(view.container.size(), QSize(400, 250));
    QVERIFY(isInMiddle(view.container.horizontalScrollBar()));
    QVERIFY(isInMiddle(view.container.verticalScrollBar()));
}

void tst_ScreenContainer::screenThatShrinksIsCentredAgain()
{
    View view({600, 400}, {1200, 900});
    QVERIFY(view.isShown());
    view.screen->setFixedSize(200, 100);
    QTRY_VERIFY(!view.container.horizontalScrollBar()->isVisible());
    QCOMPARE(view.place(), QPoint(200, 150));
    QCOMPARE(view.container.widget()->minimumSize(), QSize(200, 100));
}

void tst_ScreenContainer::calculateGeometrySetsMinimumAndPlace()
{
    View view({600, 400}, {200, 100});
    QVERIFY(view.isShown());
    view.screen->move(7, 9);
    view.container.widget()->setMinimumSize(0, 0);
    view.container.calculateGeometry();
    QCOMPARE(view.screen->pos(), QPoint(200, 150));
    QCOMPARE(view.container.widget()->minimumSize(), QSize(200, 100));
}

void tst_ScreenContainer::wideScreenIsCentredVertically()
{
    View view({600, 400}, {1920, 96});
    QVERIFY(view.isShown());
    QVERIFY(isInMiddle(view.container.horizontalScrollBar()));
    QVERIFY(!view.container.verticalScrollBar()->isVisible());
    QCOMPARE(view.screen->y(), (view.container.viewport()->height() - 96) / 2);
}

void tst_ScreenContainer::pressBesideTheScreenLeavesTheItems_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<bool>("isRightButton");
    QTest::newRow("left of it") << QPoint(10, 200) << false;
    QTest::newRow("right of it, with another button") << QPoint(590, 200) << true;
    QTest::newRow("in the corner") << QPoint(0, 1) << false;
    QTest::newRow("just above it") << QPoint(300, 149) << false;
    QTest::newRow("just below it") << QPoint(300, 250) << false;
    // The canvas itself, whose press all others are to equal.
    QTest::newRow("on the bare canvas") << QPoint(390, 240) << false;
}

void tst_ScreenContainer::pressBesideTheScreenLeavesTheItems()
{
    QFETCH(QPoint, position);
    QFETCH(bool, isRightButton);
    SelectedItem view({600, 400}, {200, 100});
    QVERIFY(view.isShown());
    QVERIFY(view.item->isSelected());
    view.press(position, isRightButton ? Qt::RightButton : Qt::LeftButton);
    QCOMPARE(view.lines, QStringList({"deactivate all", "show none"}));
    QVERIFY(view.screen->selection().isEmpty());
    QVERIFY(!view.item->isSelected());
    QVERIFY(!view.selectedWhenShown);
}

void tst_ScreenContainer::otherPressesLeaveTheSelection_data()
{
    QTest::addColumn<QSize>("viewSize");
    QTest::addColumn<bool>("renders");
    QTest::addColumn<QPoint>("position");
    const QSize view(600, 400);
    QTest::newRow("on the item") << view << false << QPoint(230, 165);
    QTest::newRow("on the item in render mode") << view << true << QPoint(230, 165);
    QTest::newRow("on the vertical bar") << QSize(150, 80) << false << QPoint(147, 30);
    QTest::newRow("on the horizontal bar") << QSize(150, 80) << false << QPoint(30, 77);
    QTest::newRow("between the bars") << QSize(150, 80) << false << QPoint(147, 77);
}

void tst_ScreenContainer::otherPressesLeaveTheSelection()
{
    QFETCH(QSize, viewSize);
    QFETCH(bool, renders);
    QFETCH(QPoint, position);
    SelectedItem view(viewSize, {200, 100});
    QVERIFY(view.isShown());
    if (renders)
        view.screen->goToRenderMode();
    view.press(position);
    QCOMPARE(view.screen->selection(), QList<ScreenItem *>{view.item});
    QVERIFY(!view.lines.contains("show none"));
}

void tst_ScreenContainer::pressWithoutAScreenDoesNothing()
{
    View view({600, 400}, {200, 100});
    QVERIFY(view.isShown());
    delete view.screen;
    QTest::mouseClick(view.container.windowHandle(), Qt::LeftButton, {}, {300, 200});
}

BOARDWRIGHT_TEST_MAIN(tst_ScreenContainer)
#include "tst_screencontainer.moc"
