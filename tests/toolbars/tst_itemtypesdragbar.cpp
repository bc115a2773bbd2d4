#include "toolbars/itemtypesdragbar.h"

#include "model/applicationstyle.h"
#include "tests/canvas/shownscreen.h"
#include "tests/support/strictmain.h"
#include "tests/toolbars/pointing.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QMetaMethod>
#include <QPushButton>
#include <QSignalSpy>

// The row of buttons that add items.
class tst_ItemTypesDragBar : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void signalNewItemIsItsOneMethod();
    void startsWithASpacerOnly();
    void acceptsDrops();
    void showsAButtonForEachKindInOrder();
    void laterKindsComeBehindTheFirst();
    void buttonIsALargeIconWithoutWords_data();
    void buttonIsALargeIconWithoutWords();
    void buttonTellsItsKindToAssistiveTools();
    void buttonHasItsSizeBeforeItIsShown();
    void buttonKeepsItsSize_data();
    void buttonKeepsItsSize();
    void buttonShowsItsImageWithoutBorder();
    void buttonChangesColourUnderThePointer();
    void buttonsGatherAtTheLeft();
    void clickTellsTheKind_data();
    void clickTellsTheKind();
    void clickWithoutLeftButtonTellsNothing();
    void everyClickAddsAnItemToTheCanvas();
    void pressThatLeavesTheButtonTellsNothing();
};

namespace
{
using Types = QVector<QPair<QString, QString>>;

const Types &fourTypes()
{
    static const Types types = {{"Text", ":/assets/interface/text.png"},
                                {"Shape", ":/assets/interface/shapes.png"},
                                {"Image Viewer", ":/assets/interface/image.png"},
                                {"Animation Viewer", ":/assets/interface/gif.png"}};
    return types;
}

void addRowForEachType()
{
    QTest::addColumn<int>("place");
    for (int place = 0; place < fourTypes().size(); ++place)
        QTest::newRow(qPrintable(fourTypes().at(place).first)) << place;
}

/// A bar of the four kinds in the corner of a shown window.
struct ShownBar {
    ShownBar()
    {
        bar.addItemTypes(fourTypes());
        bar.resize(600, bar.sizeHint().height());
        window.resize(700, 400);
        window.show();
        ready = QTest::qWaitForWindowActive(&window);
    }

    QPushButton *button(int place) const
    {
        return qobject_cast<QPushButton *>(bar.layout()->itemAt(place)->widget());
    }

    void click(int place, Qt::MouseButton mouseButton = Qt::LeftButton)
    {
        QTest::mouseClick(window.windowHandle(), mouseButton, {}, button(place)->geometry().center());
    }

    QWidget window;
    ItemTypesDragBar bar{&window};
    bool ready = false;
};
} // namespace

void tst_ItemTypesDragBar::initTestCase()
{
    applyApplicationStyle();
}

void tst_ItemTypesDragBar::signalNewItemIsItsOneMethod()
{
    const QMetaObject &meta = ItemTypesDragBar::staticMetaObject;
    QCOMPARE(meta.superClass()->className(), "QWidget");
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod method = meta.method(meta.methodOffset());
    QCOMPARE(method.methodSignature(), QByteArray("signalNewItem(QString)"));
    QCOMPARE(method.methodType(), QMetaMethod::Signal);
    QCOMPARE(method.parameterNames(), QList<QByteArray>({"str"}));
}

void tst_ItemTypesDragBar::startsWithASpacerOnly()
{
    const ItemTypesDragBar bar(nullptr);
    const auto *layout = qobject_cast<QHBoxLayout *>(bar.layout());
    QVERIFY(layout);
    QCOMPARE(layout->count(), 1);
    QVERIFY(layout->itemAt(0)->spacerItem());
    QCOMPARE(layout->itemAt(0)->sizeHint(), QSize(10, 50));
    QCOMPARE(layout->itemAt(0)->expandingDirections(), Qt::Orientations(Qt::Horizontal));
}

void tst_ItemTypesDragBar::acceptsDrops()
{
    const ItemTypesDragBar bar(nullptr);
    QVERIFY(bar.acceptDrops());
}

void tst_ItemTypesDragBar::showsAButtonForEachKindInOrder()
{
    const ShownBar shown;
    QCOMPARE(shown.bar.findChildren<QPushButton *>().size(), 4);
    QCOMPARE(shown.bar.layout()->count(), 5);
    for (int place = 0; place < 4; ++place)
        QCOMPARE(shown.button(place)->accessibleName(), fourTypes().at(place).first);
    QVERIFY(shown.bar.layout()->itemAt(4)->spacerItem());
}

void tst_ItemTypesDragBar::laterKindsComeBehindTheFirst()
{
    ItemTypesDragBar bar(nullptr);
    bar.addItemTypes(fourTypes().mid(0, 1));
    bar.addItemTypes(fourTypes().mid(1));
    QStringList names;
    for (int place = 0; place < 4; ++place)
        names.append(bar.layout()->itemAt(place)->widget()->accessibleName());
    QCOMPARE(names, QStringList({"Text", "Shape", "Image Viewer", "Animation Viewer"}));
    QVERIFY(bar.layout()->itemAt(4)->spacerItem());
}

void tst_ItemTypesDragBar::buttonIsALargeIconWithoutWords_data()
{
    addRowForEachType();
}

void tst_ItemTypesDragBar::buttonIsALargeIconWithoutWords()
{
    QFETCH(int, place);

    const ShownBar shown;
    const QPushButton *button = shown.button(place);
    QCOMPARE(button->parentWidget(), &shown.bar);
    QCOMPARE(button->objectName(), QString("ItemType"));
    QCOMPARE(button->text(), QString());
    QCOMPARE(button->toolTip(), QString());
    QCOMPARE(button->iconSize(), QSize(45, 45));
    QCOMPARE(button->icon().pixmap(45, 45).toImage(), QPixmap(fourTypes().at(place).second).toImage());
}

void tst_ItemTypesDragBar::buttonTellsItsKindToAssistiveTools()
{
    const ShownBar shown;
    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(shown.button(2));
    QCOMPARE(accessible->role(), QAccessible::Button);
    QCOMPARE(accessible->text(QAccessible::Name), QString("Image Viewer"));
}

void tst_ItemTypesDragBar::buttonHasItsSizeBeforeItIsShown()
{
    ItemTypesDragBar bar(nullptr);
    bar.addItemTypes(fourTypes().mid(0, 1));
    const auto *button = bar.findChild<QPushButton *>();
    QCOMPARE(button->minimumSize(), QSize(50, 50));
    QCOMPARE(button->maximumSize(), QSize(50, 50));
}

void tst_ItemTypesDragBar::buttonKeepsItsSize_data()
{
    QTest::addColumn<QSize>("barSize");
    QTest::newRow("roomy") << QSize(900, 300);
    QTest::newRow("as it asks for") << QSize(0, 0);
    QTest::newRow("squeezed") << QSize(1, 1);
}

void tst_ItemTypesDragBar::buttonKeepsItsSize()
{
    QFETCH(QSize, barSize);

    ShownBar shown;
    QVERIFY(shown.ready);
    shown.bar.resize(barSize.isNull() ? shown.bar.sizeHint() : barSize);
    QCoreApplication::processEvents();
    for (int place = 0; place < 4; ++place)
        QCOMPARE(shown.button(place)->size(), QSize(50, 50));
    // A sheet that comes later sets the least heights once more.
    applyApplicationStyle();
    shown.bar.resize(shown.bar.size() + QSize(1, 1));
    QCoreApplication::processEvents();
    for (int place = 0; place < 4; ++place)
        QCOMPARE(shown.button(place)->size(), QSize(50, 50));
}

void tst_ItemTypesDragBar::buttonShowsItsImageWithoutBorder()
{
    ShownBar shown;
    QVERIFY(shown.ready);
    const QImage picture = shown.button(1)->grab().toImage();
    const QColor background(0x45, 0x45, 0x45);
    for (int offset = 3; offset < 47; ++offset) {
        QCOMPARE(picture.pixelColor(offset, 0), background);
        QCOMPARE(picture.pixelColor(offset, 49), background);
        QCOMPARE(picture.pixelColor(0, offset), background);
        QCOMPARE(picture.pixelColor(49, offset), background);
    }
    QImage plain(picture.size(), picture.format());
    plain.fill(background);
    QVERIFY(picture.copy(3, 3, 44, 44) != plain.copy(3, 3, 44, 44));
}

void tst_ItemTypesDragBar::buttonChangesColourUnderThePointer()
{
    ShownBar shown;
    QVERIFY(shown.ready);
    pointAt(shown.window, shown.button(1)->geometry().center());
    QTRY_COMPARE(shown.button(1)->grab().toImage().pixelColor(25, 0), QColor(0x6f, 0x6f, 0x6f));
}

void tst_ItemTypesDragBar::buttonsGatherAtTheLeft()
{
    ShownBar shown;
    QVERIFY(shown.ready);
    const QLayout *layout = shown.bar.layout();
    QCOMPARE(shown.button(0)->x(), layout->contentsRect().x());
    for (int place = 1; place < 4; ++place)
        QCOMPARE(shown.button(place)->x(), shown.button(place - 1)->x() + 50 + layout->spacing());
}

void tst_ItemTypesDragBar::clickTellsTheKind_data()
{
    addRowForEachType();
}

void tst_ItemTypesDragBar::clickTellsTheKind()
{
    QFETCH(int, place);

    ShownBar shown;
    QVERIFY(shown.ready);
    const QSignalSpy asked(&shown.bar, &ItemTypesDragBar::signalNewItem);
    shown.click(place);
    QCOMPARE(asked, QList<QVariantList>({{fourTypes().at(place).first}}));
    shown.click(place);
    QCOMPARE(asked.size(), 2);
}

void tst_ItemTypesDragBar::clickWithoutLeftButtonTellsNothing()
{
    ShownBar shown;
    QVERIFY(shown.ready);
    const QSignalSpy asked(&shown.bar, &ItemTypesDragBar::signalNewItem);
    shown.click(1, Qt::RightButton);
    QVERIFY(asked.isEmpty());
}

void tst_ItemTypesDragBar::everyClickAddsAnItemToTheCanvas()
{
    const ShownScreen canvas;
    ShownBar shown;
    QVERIFY(shown.ready);
    connect(&shown.bar, &ItemTypesDragBar::signalNewItem, &canvas.screen, &Screen::newItem);
    shown.click(1);
    shown.click(1);
    QCOMPARE(namesOf(canvas.screen.items()), QStringList({"Shape 0", "Shape 1"}));
    QCOMPARE(canvas.screen.items().last()->getValue("Type").toString(), QString("Shape"));
}

void tst_ItemTypesDragBar::pressThatLeavesTheButtonTellsNothing()
{
    ShownBar shown;
    QVERIFY(shown.ready);
    const QSignalSpy asked(&shown.bar, &ItemTypesDragBar::signalNewItem);
    const QPoint start = shown.button(1)->geometry().center();
    QTest::mousePress(shown.window.windowHandle(), Qt::LeftButton, {}, start);
    QTest::mouseMove(shown.window.windowHandle(), start + QPoint(300, 0));
    QTest::mouseRelease(shown.window.windowHandle(), Qt::LeftButton, {}, start + QPoint(300, 0));
    QVERIFY(asked.isEmpty());
}

BOARDWRIGHT_TEST_MAIN(tst_ItemTypesDragBar)
#include "tst_itemtypesdragbar.moc"
