#include "app/mainwindow.h"

#include "app/screencontainer.h"
#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "editors/coloredit.h"
#include "editors/panels/screensettings.h"
#include "editors/panels/settingseditor.h"
#include "editors/propertypanel.h"
#include "tests/app/commandtest.h"
#include "toolbars/itemtypesdragbar.h"
#include "toolbars/toolbarforscreenitem.h"
#include "toolbars/toolbaritem.h"

#include <QAbstractButton>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSpinBox>
#include <QVBoxLayout>

// The docks of the window: where they lie, and how their panels and the canvas work together.
class tst_Docks : public CommandTest
{
    Q_OBJECT

private slots:
    void hasOneDockForEachPanel();
    void docksAreFixedAndShowNoTitle();
    void settingsDockTakesTheWidthOfItsColumn();
    void settingsColumnRunsTheFullHeight();
    void itemBarLiesAlongTheTop();
    void screenSettingsLieBelowTheCanvas();
    void layerToolBarLiesAboveTheCanvas();
    void itemButtonsKeepTheirSize();
    void canvasIsCentredAfterEveryResize_data();
    void canvasIsCentredAfterEveryResize();
    void clickInTheItemBarAddsAnItemAndShowsItsPanel();
    void layerToolBarActsOnTheItemJustAdded();
    void deletingByTheToolBarEmptiesThePanel();
    void buttonsWithoutWordsHaveNames();
    void limitsOnlyTheWidthOfTheSettingsDock();
    void offersFourKindsInOrder();
    void startsWithTheValuesOfTheCanvas();
    void clickOnAShapeShowsItsNameAndPanel();
    void clickOnTheBackgroundEmptiesThePanel();
    void newItemShowsItsPanel();
    void severalSelectedItemsShowNoPanel();
    void deletingTheItemEmptiesThePanel();
    void editMarksTheLayoutModified();
    void panelFitsTheColumn();
    void everyLoadReadsTheScreenAgain();
    void loadWritesClampedLengthsBack();
    void failedLoadKeepsWhatIsShown();
    void heightAndWidthAreEditedInTheBar();
    void loadingKeepsTheArrangement();

private:
    SettingsEditor *column() const { return window().findChild<SettingsEditor *>(); }
    ScreenSettings *bar() const { return window().findChild<ScreenSettings *>(); }
    ItemTypesDragBar *itemBar() const { return window().findChild<ItemTypesDragBar *>(); }
    ToolBarForScreenItem *layerToolBar() const { return window().findChild<ToolBarForScreenItem *>(); }
    ScreenContainer *container() const { return window().findChild<ScreenContainer *>(); }
    QDockWidget *dockOf(const QWidget *panel) const
    {
        return qobject_cast<QDockWidget *>(panel->parentWidget());
    }

    QLineEdit *nameEdit() const
    {
        return column()->widget()->findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly);
    }
    QSize shownSize() const;
    VariableEdit *edit(const QString &key) const;
    bool isEmpty() const;
    QRect inWindow(const QWidget *widget) const;
    void click(QPoint position, Qt::KeyboardModifiers modifiers = {}) const;
    void clickOn(const QWidget *widget) const;
    QAbstractButton *itemButton(const QString &type) const;
    ToolBarItem *toolBarItem(const QString &tip) const;
    void open(const QJsonObject &document);
};

QSize tst_Docks::shownSize() const
{
    const QList<QSpinBox *> boxes = bar()->findChildren<QSpinBox *>();
    return {boxes.at(1)->value(), boxes.at(0)->value()};
}

VariableEdit *tst_Docks::edit(const QString &key) const
{
    const QList<VariableEdit *> edits = column()->findChildren<VariableEdit *>();
    for (VariableEdit *edit : edits) {
        if (edit->isVisible() && edit->getKey() == key)
            return edit;
    }
    return nullptr;
}

bool tst_Docks::isEmpty() const
{
    const auto *panel = column()->findChild<PropertyPanel *>();
    return !nameEdit()->isVisible() && (!panel || !panel->isVisible());
}

QRect tst_Docks::inWindow(const QWidget *widget) const
{
    return {widget->mapTo(&window(), QPoint(0, 0)), widget->size()};
}

void tst_Docks::click(QPoint position, Qt::KeyboardModifiers modifiers) const
{
    QTest::mouseClick(window().windowHandle(), Qt::LeftButton, modifiers,
                      canvas().mapTo(&window(), position));
}

void tst_Docks::clickOn(const QWidget *widget) const
{
    QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, inWindow(widget).center());
}

QAbstractButton *tst_Docks::itemButton(const QString &type) const
{
    const QList<QAbstractButton *> buttons = itemBar()->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        if (button->accessibleName() == type)
            return button;
    }
    return nullptr;
}

ToolBarItem *tst_Docks::toolBarItem(const QString &tip) const
{
    const QList<ToolBarItem *> items = layerToolBar()->findChildren<ToolBarItem *>();
    for (ToolBarItem *item : items) {
        if (item->toolTip() == tip)
            return item;
    }
    return nullptr;
}

void tst_Docks::open(const QJsonObject &document)
{
    writeFile(path("board.lay"), bytesOf(document));
    window().openFile(path("board.lay"));
}

void tst_Docks::hasOneDockForEachPanel()
{
    QCOMPARE(window().findChildren<QDockWidget *>().size(), 3);
    QCOMPARE(dockOf(column())->widget(), column());
    QCOMPARE(dockOf(bar())->widget(), bar());
    QCOMPARE(dockOf(itemBar())->widget(), itemBar());
    QCOMPARE(window().dockWidgetArea(dockOf(column())), Qt::RightDockWidgetArea);
    QCOMPARE(window().dockWidgetArea(dockOf(bar())), Qt::BottomDockWidgetArea);
    QCOMPARE(window().dockWidgetArea(dockOf(itemBar())), Qt::TopDockWidgetArea);
    QCOMPARE(window().corner(Qt::BottomRightCorner), Qt::RightDockWidgetArea);
    QCOMPARE(window().corner(Qt::TopRightCorner), Qt::TopDockWidgetArea);
}

void tst_Docks::docksAreFixedAndShowNoTitle()
{
    const QList<QDockWidget *> docks = window().findChildren<QDockWidget *>();
    for (const QDockWidget *fixed : docks) {
        QCOMPARE(fixed->features(), QDockWidget::DockWidgetFeatures(QDockWidget::NoDockWidgetFeatures));
        QVERIFY(fixed->titleBarWidget());
        QCOMPARE(fixed->titleBarWidget()->metaObject()->className(), "QWidget");
        QVERIFY(fixed->titleBarWidget()->children().isEmpty());
        QCOMPARE(fixed->titleBarWidget()->height(), 0);
        QCOMPARE(fixed->windowTitle(), QString());
        QVERIFY(fixed->isVisible());
        QVERIFY(!fixed->isFloating());
    }
}

void tst_Docks::settingsDockTakesTheWidthOfItsColumn()
{
    QVERIFY(dockOf(column())->minimumWidth() >= 250);
    QCOMPARE(dockOf(column())->width(), 320);
    QCOMPARE(column()->width(), 320);
}

void tst_Docks::settingsColumnRunsTheFullHeight()
{
    const QRect settings = inWindow(dockOf(column()));
    const QRect items = inWindow(dockOf(itemBar()));
    // Nothing but the line between two docks lies above it, and nothing below.
    QVERIFY(settings.top() > items.bottom());
    QVERIFY(settings.top() <= items.bottom() + 10);
    QCOMPARE(settings.bottom(), window().rect().bottom());
    QCOMPARE(settings.right(), window().rect().right());
}

void tst_Docks::itemBarLiesAlongTheTop()
{
    const QRect items = inWindow(dockOf(itemBar()));
    QCOMPARE(items.top(), window().menuBar()->height());
    QCOMPARE(items.left(), 0);
    QCOMPARE(items.right(), window().rect().right());
}

void tst_Docks::screenSettingsLieBelowTheCanvas()
{
    const QRect settings = inWindow(dockOf(bar()));
    QCOMPARE(settings.left(), 0);
    QCOMPARE(settings.bottom(), window().rect().bottom());
    QVERIFY(settings.right() < inWindow(dockOf(column())).left());
    QVERIFY(settings.top() > inWindow(window().centralWidget()).bottom());
}

void tst_Docks::layerToolBarLiesAboveTheCanvas()
{
    const auto *layout = qobject_cast<QVBoxLayout *>(window().centralWidget()->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->itemAt(0)->widget(), layerToolBar());
    QCOMPARE(layout->itemAt(1)->widget(), container());
    QVERIFY(layerToolBar()->isVisible());
    QCOMPARE(layerToolBar()->pos(), QPoint(0, 0));
    QCOMPARE(layerToolBar()->size(), QSize(window().centralWidget()->width(), 30));
    QVERIFY(inWindow(layerToolBar()).top() > inWindow(itemBar()).bottom());
}

void tst_Docks::itemButtonsKeepTheirSize()
{
    for (const QSize size : {QSize(1000, 700), QSize(1600, 1000), QSize(1, 1)}) {
        window().resize(size);
        QCoreApplication::processEvents();
        const QList<QAbstractButton *> buttons = itemBar()->findChildren<QAbstractButton *>();
        QVERIFY(!buttons.isEmpty());
        for (const QAbstractButton *button : buttons)
            QCOMPARE(button->size(), QSize(50, 50));
    }
}

void tst_Docks::canvasIsCentredAfterEveryResize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("room for the canvas") << QSize(1366, 768);
    QTest::newRow("more room") << QSize(1920, 1080);
    QTest::newRow("odd lengths") << QSize(1501, 901);
    QTest::newRow("bars at the bottom and right") << QSize(900, 500);
}

void tst_Docks::canvasIsCentredAfterEveryResize()
{
    QFETCH(QSize, size);

    window().resize(size);
    QTRY_COMPARE(window().size(), size);
    const QSize rest = container()->viewport()->size() - QSize(800, 400);
    const auto place = [](int free) {
        return free >= 0 ? free / 2 : -(-free / 2);
    };
    const QPoint expected(place(rest.width()), place(rest.height()));
    QTRY_COMPARE(canvas().mapTo(container()->viewport(), QPoint(0, 0)), expected);
}

void tst_Docks::clickInTheItemBarAddsAnItemAndShowsItsPanel()
{
    clickOn(itemButton("Shape"));
    QCOMPARE(canvas().items().size(), 1);
    QCOMPARE(canvas().items().first()->geometry(), QRect(0, 0, 100, 50));
    QCOMPARE(nameEdit()->text(), QString("Shape 0"));
    QCOMPARE(edit("W")->getValue().toInt(), 100);
    QVERIFY(canvas().isModified());
    clickOn(itemButton("Shape"));
    QCOMPARE(nameEdit()->text(), QString("Shape 1"));
    QCOMPARE(canvas().selection(), QList<ScreenItem *>({canvas().items().last()}));
}

void tst_Docks::layerToolBarActsOnTheItemJustAdded()
{
    clickOn(itemButton("Shape"));
    clickOn(toolBarItem("Align Right"));
    clickOn(toolBarItem("Fit the Screen Vertically"));
    QCOMPARE(canvas().items().first()->geometry(), QRect(700, 0, 100, 400));
    QCOMPARE(edit("X")->getValue().toInt(), 700);
    QCOMPARE(edit("H")->getValue().toInt(), 400);
    QTest::keyClick(window().windowHandle(), Qt::Key_Left, Qt::ControlModifier);
    QCOMPARE(canvas().items().first()->x(), 699);
}

void tst_Docks::deletingByTheToolBarEmptiesThePanel()
{
    openSmallBoard();
    click({15, 15});
    QVERIFY(!isEmpty());
    clickOn(toolBarItem("Delete"));
    QTRY_COMPARE(canvas().items().size(), 1);
    QVERIFY(isEmpty());
    QVERIFY(canvas().isModified());
}

void tst_Docks::buttonsWithoutWordsHaveNames()
{
    for (const char *kind : {"Shape", "Text"}) {
        canvas().newItem(kind);
        QVERIFY(edit("X"));
        const QList<QAbstractButton *> buttons = window().findChildren<QAbstractButton *>();
        for (const QAbstractButton *button : buttons) {
            if (button->isVisible() && button->text().isEmpty())
                QVERIFY2(!button->accessibleName().isEmpty(), button->metaObject()->className());
        }
    }
    const QList<ToolBarItem *> items = layerToolBar()->findChildren<ToolBarItem *>();
    QCOMPARE(items.size(), 15);
    for (const ToolBarItem *item : items)
        QCOMPARE(item->accessibleName(), item->toolTip());
}

void tst_Docks::limitsOnlyTheWidthOfTheSettingsDock()
{
    // Once shown, each dock takes over the limits of what it holds.
    const MainWindow fresh(nullptr);
    const auto least = [](const QWidget *panel) {
        return panel->parentWidget()->minimumSize();
    };
    QCOMPARE(least(fresh.findChild<SettingsEditor *>()), QSize(250, 0));
    QCOMPARE(least(fresh.findChild<ScreenSettings *>()), QSize(0, 0));
    QCOMPARE(least(fresh.findChild<ItemTypesDragBar *>()), QSize(0, 0));
}

void tst_Docks::offersFourKindsInOrder()
{
    QStringList kinds;
    const QLayout *row = itemBar()->layout();
    for (int place = 0; place + 1 < row->count(); ++place)
        kinds.append(row->itemAt(place)->widget()->accessibleName());
    QCOMPARE(kinds, QStringList({"Text", "Shape", "Image Viewer", "Animation Viewer"}));
}

void tst_Docks::startsWithTheValuesOfTheCanvas()
{
    const MainWindow fresh(nullptr);
    const QList<QSpinBox *> boxes = fresh.findChild<ScreenSettings *>()->findChildren<QSpinBox *>();
    QCOMPARE(boxes.at(0)->value(), 400);
    QCOMPARE(boxes.at(1)->value(), 800);
    auto *color = fresh.findChild<ScreenSettings *>()->findChild<ColorEdit *>();
    QCOMPARE(color->getValue().toString(), QString("#000000"));
    QVERIFY(!fresh.canvas()->isModified());
}

void tst_Docks::clickOnAShapeShowsItsNameAndPanel()
{
    openSmallBoard();
    QVERIFY(isEmpty());
    click({15, 15});
    QVERIFY(nameEdit()->isVisible());
    QCOMPARE(nameEdit()->text(), QString("Lower"));
    QCOMPARE(edit("X")->getValue().toInt(), 10);
    click({80, 50});
    QCOMPARE(nameEdit()->text(), QString("Upper"));
    QCOMPARE(edit("X")->getValue().toInt(), 30);
    QVERIFY(!canvas().isModified());
}

void tst_Docks::clickOnTheBackgroundEmptiesThePanel()
{
    openSmallBoard();
    click({15, 15});
    QVERIFY(!isEmpty());
    click({150, 90});
    QVERIFY(isEmpty());
}

void tst_Docks::newItemShowsItsPanel()
{
    canvas().newItem("Shape");
    QCOMPARE(nameEdit()->text(), canvas().items().first()->name());
    QVERIFY(edit("X"));
}

void tst_Docks::severalSelectedItemsShowNoPanel()
{
    openSmallBoard();
    click({15, 15});
    click({80, 50}, Qt::ControlModifier);
    QCOMPARE(canvas().selection().size(), 2);
    QVERIFY(isEmpty());
}

void tst_Docks::deletingTheItemEmptiesThePanel()
{
    openSmallBoard();
    click({15, 15});
    QVERIFY(!isEmpty());
    QTest::keyClick(window().windowHandle(), Qt::Key_Delete);
    QTRY_COMPARE(canvas().items().size(), 1);
    QVERIFY(isEmpty());
}

void tst_Docks::editMarksTheLayoutModified()
{
    openSmallBoard();
    click({15, 15});
    QTest::keyClick(edit("X")->findChild<QSpinBox *>(), Qt::Key_Up);
    QCOMPARE(canvas().items().first()->x(), 11);
    QVERIFY(canvas().isModified());
}

void tst_Docks::panelFitsTheColumn()
{
    openSmallBoard();
    click({15, 15});
    const auto *panel = column()->findChild<PropertyPanel *>();
    QTRY_COMPARE(column()->widget()->width(), column()->viewport()->width());
    QVERIFY(!column()->horizontalScrollBar()->isVisible());
    QVERIFY(!panel->horizontalScrollBar()->isVisible());
    const QRect view = inWindow(panel->viewport());
    const QList<VariableEdit *> edits = panel->findChildren<VariableEdit *>();
    QCOMPARE(edits.size(), 12);
    for (const VariableEdit *edit : edits) {
        QVERIFY(inWindow(edit).left() >= view.left());
        QVERIFY(inWindow(edit).right() <= view.right());
        QVERIFY(edit->width() >= edit->minimumSizeHint().width());
    }
}

void tst_Docks::everyLoadReadsTheScreenAgain()
{
    QCOMPARE(shownSize(), QSize(800, 400));
    openSmallBoard();
    QCOMPARE(shownSize(), QSize(200, 100));
    QCOMPARE(bar()->findChild<ColorEdit *>()->getValue().toString(), QString("#102030"));
    QCOMPARE(canvas().size(), QSize(200, 100));
    QVERIFY(!canvas().isModified());
    triggerNew();
    QCOMPARE(shownSize(), QSize(800, 400));
    verifyIsTemplate();
}

void tst_Docks::loadWritesClampedLengthsBack()
{
    open(board({}, {{"Background Color", "#000000"}, {"Height", 12000}, {"Width", 4}}));
    QCOMPARE(shownSize(), QSize(10, 10000));
    QCOMPARE(canvas().size(), QSize(10, 10000));
}

void tst_Docks::failedLoadKeepsWhatIsShown()
{
    openSmallBoard();
    click({15, 15});
    DialogAnswers answers;
    answers.press("OK");
    window().openFile(path("missing.lay"));
    QVERIFY(answers.areUsedUp());
    QCOMPARE(shownSize(), QSize(200, 100));
    QCOMPARE(nameEdit()->text(), QString("Lower"));
    QVERIFY(edit("X"));
}

void tst_Docks::heightAndWidthAreEditedInTheBar()
{
    const QList<QSpinBox *> boxes = bar()->findChildren<QSpinBox *>();
    QTest::keyClick(boxes.at(0), Qt::Key_Up);
    QCOMPARE(canvas().size(), QSize(800, 401));
    QTest::keyClick(boxes.at(1), Qt::Key_Down);
    QCOMPARE(canvas().size(), QSize(799, 401));
    QVERIFY(canvas().isModified());
}

void tst_Docks::loadingKeepsTheArrangement()
{
    const QPointer<SettingsEditor> settings = column();
    const QPointer<ScreenSettings> screen = bar();
    const QPointer<Screen> board = &canvas();
    openSmallBoard();
    QVERIFY(settings && screen && board);
    QCOMPARE(column(), settings.data());
    QCOMPARE(bar(), screen.data());
    QCOMPARE(&canvas(), board.data());
}

BOARDWRIGHT_TEST_MAIN(tst_Docks)
#include "tst_docks.moc"
