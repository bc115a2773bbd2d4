#include "assets/assets.h"
#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "editors/panels/settingseditor.h"
#include "editors/variableedit.h"
#include "tests/canvas/shownscreen.h"
#include "tests/support/boards.h"
#include "tests/support/strictmain.h"
#include "tests/support/wheel.h"

#include <QComboBox>
#include <QLoggingCategory>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>

// The number and list boxes of an item's panel, as they act on the item.
class tst_PanelBoxes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void numberBeyondTheRoomIsTakenAtTheEnd_data();
    void numberBeyondTheRoomIsTakenAtTheEnd();
    void unfinishedNumberIsTakenWhenThePanelGoes();
    void unfinishedNumberGoesWithItsItem();
    void leavingABoxLeavesAnItemBeyondTheScreen();
    void wheelScrollsThePanel_data();
    void wheelScrollsThePanel();
    void wheelChangesTheFocusedBox();
};

namespace
{
/// A canvas of 960 x 400 px with one item, and beside it the column with the item's panel.
struct OpenPanel : ShownScreen {
    explicit OpenPanel(const QString &kind, const QRect &geometry = {20, 30, 300, 200})
    {
        screen.setWidgth(960);
        window.resize(1300, 700);
        column.setGeometry(970, 0, 320, 600);
        QObject::connect(&screen, &Screen::showSettingsFor, &column, &SettingsEditor::setActiveItem);
        item = screen.createItem(
            shapeObject("One", geometry, {{"Type", kind}, {"Size", 20}, {"Font", "Arimo"}}));
        item->activate();
        column.show();
        QCoreApplication::processEvents();
    }

    template <typename Box>
    Box *box(const QString &key) const
    {
        const auto edits = column.findChildren<VariableEdit *>();
        for (const VariableEdit *edit : edits) {
            if (const_cast<VariableEdit *>(edit)->getKey() == key)
                return edit->findChild<Box *>();
        }
        return nullptr;
    }

    void type(const QString &key, const QString &text) const
    {
        box<QSpinBox>(key)->setFocus();
        box<QSpinBox>(key)->selectAll();
        QTest::keyClicks(box<QSpinBox>(key), text);
    }

    /// How far the column and what is in it are scrolled down.
    int scrolled() const
    {
        int sum = 0;
        const auto areas = column.findChildren<QAbstractScrollArea *>();
        for (const QAbstractScrollArea *area : areas)
            sum += area->verticalScrollBar()->value();
        return sum + column.verticalScrollBar()->value();
    }

    SettingsEditor column{&window};
    ScreenItem *item = nullptr;
};
} // namespace

void tst_PanelBoxes::initTestCase()
{
    initAssets();
    QLoggingCategory::setFilterRules("default.debug=false");
}

void tst_PanelBoxes::numberBeyondTheRoomIsTakenAtTheEnd_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("after");
    for (const char *kind : {"Shape", "Text", "Image Viewer", "Animation Viewer"}) {
        QTest::addRow("X of %s", kind) << kind << "X"
                                       << "700" << 660;
        QTest::addRow("Y of %s", kind) << kind << "Y"
                                       << "2000" << 200;
        QTest::addRow("W of %s", kind) << kind << "W"
                                       << "9500" << 940;
        QTest::addRow("H of %s", kind) << kind << "H"
                                       << "371" << 370;
        QTest::addRow("negative X of %s", kind) << kind << "X"
                                                << "-5" << 0;
    }
    QTest::newRow("large letters") << "Text"
                                   << "Size"
                                   << "600" << 512;
    QTest::newRow("no letters") << "Text"
                                << "Size"
                                << "0" << 1;
    QTest::newRow("opacity") << "Shape"
                             << "Opacity"
                             << "150" << 100;
}

void tst_PanelBoxes::numberBeyondTheRoomIsTakenAtTheEnd()
{
    QFETCH(QString, kind);
    QFETCH(QString, key);
    QFETCH(QString, typed);
    OpenPanel open(kind);
    QVERIFY(open.ready);
    open.type(key, typed.left(typed.size() - 1));
    const QVariant before = open.item->getValue(key);
    QTest::keyClicks(open.box<QSpinBox>(key), typed.right(1));
    QCOMPARE(open.box<QSpinBox>(key)->text(), typed);
    QCOMPARE(open.item->getValue(key), before);
    open.neighbour.setFocus();
    QTEST(open.item->getValue(key).toInt(), "after");
    QCOMPARE(open.box<QSpinBox>(key)->value(), open.item->getValue(key).toInt());
}

void tst_PanelBoxes::unfinishedNumberIsTakenWhenThePanelGoes()
{
    OpenPanel open("Shape");
    QVERIFY(open.ready);
    open.type("X", "700");
    QCOMPARE(open.item->x(), 70);
    QTest::mouseClick(&open.screen, Qt::LeftButton, {}, {900, 390});
    QVERIFY(!open.item->isSelected());
    QCOMPARE(open.item->x(), 660);
}

void tst_PanelBoxes::unfinishedNumberGoesWithItsItem()
{
    OpenPanel open("Shape");
    QVERIFY(open.ready);
    open.type("X", "700");
    delete open.item;
    deleteScheduled();
    QVERIFY(open.screen.items().isEmpty());
    QVERIFY(open.column.findChildren<VariableEdit *>().isEmpty());
}

void tst_PanelBoxes::leavingABoxLeavesAnItemBeyondTheScreen()
{
    OpenPanel open("Shape");
    QVERIFY(open.ready);
    const QRect beyond(-40, 350, 300, 200);
    open.item->move(beyond.topLeft());
    QSignalSpy told(open.item, &ScreenItem::newGeometry);
    for (const char *key : {"X", "Y", "W", "H"})
        open.box<QSpinBox>(key)->setFocus();
    open.neighbour.setFocus();
    QVERIFY(told.isEmpty());
    QCOMPARE(open.item->geometry(), beyond);
    QCOMPARE(open.box<QSpinBox>("X")->value(), -40);
}

void tst_PanelBoxes::wheelScrollsThePanel_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("isList");
    QTest::newRow("number of the area") << "X" << false;
    QTest::newRow("number of a text") << "Size" << false;
    QTest::newRow("list of fonts") << "Font" << true;
    QTest::newRow("list of fields") << "Text Type" << true;
}

void tst_PanelBoxes::wheelScrollsThePanel()
{
    QFETCH(QString, key);
    QFETCH(bool, isList);
    OpenPanel open("Text");
    QVERIFY(open.ready);
    open.column.resize(320, 150);
    QCoreApplication::processEvents();
    open.neighbour.setFocus();
    const QMap<QString, QVariant> before = open.item->getValues();
    QWidget *box = isList ? static_cast<QWidget *>(open.box<QComboBox>(key)) : open.box<QSpinBox>(key);
    turnWheel(box, false);
    QVERIFY(open.scrolled() > 0);
    turnWheel(box, true);
    QCOMPARE(open.scrolled(), 0);
    QVERIFY(open.neighbour.hasFocus());
    QCOMPARE(open.item->getValues(), before);
}

void tst_PanelBoxes::wheelChangesTheFocusedBox()
{
    OpenPanel open("Text");
    QVERIFY(open.ready);
    open.box<QSpinBox>("X")->setFocus();
    turnWheel(open.box<QSpinBox>("X"), true);
    QCOMPARE(open.item->x(), 21);
    auto *fields = open.box<QComboBox>("Text Type");
    fields->setCurrentIndex(0);
    fields->setFocus();
    turnWheel(fields, false);
    QCOMPARE(open.item->getValue("Text Type").toString(), fields->itemText(1));
}

BOARDWRIGHT_TEST_MAIN(tst_PanelBoxes)
#include "tst_panelboxes.moc"
