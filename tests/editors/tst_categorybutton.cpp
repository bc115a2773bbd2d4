#include "editors/categorybutton.h"

#include "assets/assets.h"
#include "tests/support/eventcounter.h"
#include "tests/support/strictmain.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QTreeWidget>

namespace
{
const char *const openSheet = "background:url(\":/assets/interface/widget_down.png\"); "
                              "background-position:center; background-repeat:no-repeat;";
const char *const closedSheet = "background:url(\":/assets/interface/widget_right.png\"); "
                                "background-position:center; background-repeat:no-repeat;";

/// A shown tree with one category of one row, made as a panel makes it.
struct ShownCategory {
    ShownCategory()
    {
        tree.setItemWidget(item, 0, button);
        row = new QTreeWidgetItem(item);
        tree.show();
    }

    bool rowIsVisible() const { return !tree.visualItemRect(row).isEmpty(); }
    QLabel *text() const { return part(0); }
    QLabel *icon() const { return part(1); }
    QString sheet() const { return icon()->styleSheet(); }
    QAccessibleInterface *accessible() const { return QAccessible::queryAccessibleInterface(button); }

    QLabel *part(int index) const
    {
        return qobject_cast<QLabel *>(button->layout()->itemAt(index)->widget());
    }

    QTreeWidget tree;
    QTreeWidgetItem *item = new QTreeWidgetItem(&tree);
    CategoryButton *button = new CategoryButton("Area (px)", &tree, item);
    QTreeWidgetItem *row = nullptr;
};

/// True when the outermost pixels of a picture all have one colour.
bool hasPlainEdge(const QImage &picture)
{
    for (int x = 0; x < picture.width(); ++x) {
        if (picture.pixel(x, 0) != picture.pixel(0, 1))
            return false;
    }
    return true;
}
} // namespace

class tst_CategoryButton : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initAssets(); }

    void isARowOf30Pixels();
    void showsItsTextInThinLetters();
    void hasAnIconOf15PixelsThenASpacer();
    void isAddressedByItsClassAndTransparent();
    void opensItsItemAtOnce();
    void togglesAtEveryPress();
    void togglesByKeys_data();
    void togglesByKeys();
    void leavesOtherKeysToTheTree();
    void followsItemThatTreeOpensAndCloses();
    void togglesBySlotOfThisName();
    void togglesItsOwnItemAlone();
    void isAButtonToScreenReaders();
    void isToggledByScreenReaders();
    void isGivenTheFocusByScreenReaders();
    void showsThatItHasTheFocus();
    void leavesTheFocusWhereItIsWhenPressed();
};

void tst_CategoryButton::isARowOf30Pixels()
{
    const ShownCategory shown;
    QVERIFY(qobject_cast<QHBoxLayout *>(shown.button->layout()));
    QCOMPARE(shown.button->layout()->contentsMargins(), QMargins());
    QCOMPARE(shown.button->minimumHeight(), 30);
    QCOMPARE(shown.button->maximumHeight(), 30);
    QCOMPARE(shown.button->height(), 30);
}

void tst_CategoryButton::showsItsTextInThinLetters()
{
    const ShownCategory shown;
    QCOMPARE(shown.text()->text(), QString("Area (px)"));
    QCOMPARE(shown.text()->font().weight(), 12);
    QFont ownFont = shown.text()->font();
    ownFont.setWeight(QApplication::font(shown.text()).weight());
    QCOMPARE(ownFont, QApplication::font(shown.text()));
}

void tst_CategoryButton::hasAnIconOf15PixelsThenASpacer()
{
    const ShownCategory shown;
    const QLayout *row = shown.button->layout();
    QCOMPARE(row->count(), 3);
    QVERIFY(shown.text() && shown.icon());
    QVERIFY(row->itemAt(2)->spacerItem());
    QCOMPARE(shown.icon()->minimumWidth(), 15);
    QCOMPARE(shown.icon()->maximumWidth(), 15);
}

void tst_CategoryButton::isAddressedByItsClassAndTransparent()
{
    const ShownCategory shown;
    QCOMPARE(shown.button->property("class").toString(), QString("CategoryButton"));
    QCOMPARE(shown.button->styleSheet(), QString("background: transparent;"));
}

void tst_CategoryButton::opensItsItemAtOnce()
{
    const ShownCategory shown;
    QVERIFY(shown.item->isExpanded());
    QCOMPARE(shown.sheet(), QString(openSheet));
    QVERIFY(shown.rowIsVisible());
}

void tst_CategoryButton::togglesAtEveryPress()
{
    const ShownCategory shown;
    QTest::mousePress(shown.button, Qt::LeftButton);
    QVERIFY(!shown.item->isExpanded());
    QVERIFY(!shown.rowIsVisible());
    QCOMPARE(shown.sheet(), QString(closedSheet));
    QTest::mouseRelease(shown.button, Qt::LeftButton);
    QVERIFY(!shown.item->isExpanded());
    QTest::mousePress(shown.text(), Qt::LeftButton);
    QVERIFY(shown.item->isExpanded());
    QVERIFY(shown.rowIsVisible());
    QCOMPARE(shown.sheet(), QString(openSheet));
}

void tst_CategoryButton::togglesByKeys_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("space") << Qt::Key_Space;
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("enter") << Qt::Key_Enter;
}

void tst_CategoryButton::togglesByKeys()
{
    QFETCH(Qt::Key, key);
    const ShownCategory shown;
    QTest::keyClick(shown.button, key);
    QCOMPARE(shown.sheet(), QString(closedSheet));
    QTest::keyClick(shown.button, key);
    QCOMPARE(shown.sheet(), QString(openSheet));
}

void tst_CategoryButton::leavesOtherKeysToTheTree()
{
    ShownCategory shown;
    const EventCounter keys(shown.tree.viewport(), QEvent::KeyPress);
    QTest::keyClick(shown.button, Qt::Key_A);
    QVERIFY(shown.item->isExpanded());
    QCOMPARE(keys.count, 1);
    QTest::keyClick(shown.button, Qt::Key_Space);
    QCOMPARE(keys.count, 1);
}

void tst_CategoryButton::followsItemThatTreeOpensAndCloses()
{
    ShownCategory shown;
    shown.tree.collapseAll();
    QCOMPARE(shown.sheet(), QString(closedSheet));
    shown.tree.expandAll();
    QCOMPARE(shown.sheet(), QString(openSheet));
}

void tst_CategoryButton::togglesBySlotOfThisName()
{
    const ShownCategory shown;
    QVERIFY(QMetaObject::invokeMethod(shown.button, "ButtonPressed"));
    QVERIFY(!shown.item->isExpanded());
    const QMetaObject &type = CategoryButton::staticMetaObject;
    QCOMPARE(type.method(type.indexOfSlot("ButtonPressed()")).access(), QMetaMethod::Private);
}

void tst_CategoryButton::togglesItsOwnItemAlone()
{
    ShownCategory shown;
    auto *other = new QTreeWidgetItem(&shown.tree);
    auto *otherButton = new CategoryButton("Basic Properties", &shown.tree, other);
    shown.tree.setItemWidget(other, 0, otherButton);
    const EventCounter dressings(shown.icon(), QEvent::StyleChange);
    QTest::mousePress(otherButton, Qt::LeftButton);
    QVERIFY(shown.item->isExpanded());
    QCOMPARE(shown.sheet(), QString(openSheet));
    QCOMPARE(dressings.count, 0);
    QVERIFY(!other->isExpanded());
}

void tst_CategoryButton::isAButtonToScreenReaders()
{
    const ShownCategory shown;
    QCOMPARE(shown.accessible()->text(QAccessible::Name), QString("Area (px)"));
    QCOMPARE(shown.accessible()->role(), QAccessible::Button);
    QVERIFY(shown.accessible()->state().focusable);
}

void tst_CategoryButton::isToggledByScreenReaders()
{
    const ShownCategory shown;
    QVERIFY(shown.accessible()->state().expandable);
    for (const bool isOpen : {true, false, true}) {
        QCOMPARE(bool(shown.accessible()->state().expanded), isOpen);
        QCOMPARE(bool(shown.accessible()->state().collapsed), !isOpen);
        QCOMPARE(shown.item->isExpanded(), isOpen);
        QAccessibleActionInterface *actions = shown.accessible()->actionInterface();
        QCOMPARE(actions->actionNames().value(0), QAccessibleActionInterface::pressAction());
        actions->doAction(QAccessibleActionInterface::pressAction());
    }
}

void tst_CategoryButton::isGivenTheFocusByScreenReaders()
{
    ShownCategory shown;
    QVERIFY(QTest::qWaitForWindowActive(&shown.tree));
    shown.tree.setFocus();
    QAccessibleActionInterface *actions = shown.accessible()->actionInterface();
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::setFocusAction()));
    actions->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(shown.button->hasFocus());
    QVERIFY(shown.item->isExpanded());
}

void tst_CategoryButton::showsThatItHasTheFocus()
{
    ShownCategory shown;
    QVERIFY(QTest::qWaitForWindowActive(&shown.tree));
    shown.tree.setFocus();
    QVERIFY(hasPlainEdge(shown.button->grab().toImage()));
    QTest::keyClick(&shown.tree, Qt::Key_Tab);
    QVERIFY(shown.button->hasFocus());
    QVERIFY(!hasPlainEdge(shown.button->grab().toImage()));
    shown.tree.setFocus();
    QVERIFY(hasPlainEdge(shown.button->grab().toImage()));
}

void tst_CategoryButton::leavesTheFocusWhereItIsWhenPressed()
{
    ShownCategory shown;
    QVERIFY(QTest::qWaitForWindowActive(&shown.tree));
    shown.tree.setFocus();
    QTest::mouseClick(shown.button, Qt::LeftButton);
    QVERIFY(shown.tree.hasFocus());
}

BOARDWRIGHT_TEST_MAIN(tst_CategoryButton)
#include "tst_categorybutton.moc"
