#include "toolbars/toolbaritem.h"

#include "model/applicationstyle.h"
#include "tests/support/strictmain.h"
#include "tests/toolbars/pointing.h"
#include "toolbars/toolbarforscreenitem.h"

#include <QAccessible>
#include <QMetaMethod>
#include <QPainter>
#include <QSignalSpy>

Q_DECLARE_METATYPE(Qt::MouseButton)

// A button of the layer toolbar.
class tst_ToolBarItem : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void clickedIsItsOneMethod();
    void carriesTheStyleSheetOfItsImage();
    void carriesItsClassName();
    void keepsItsSize();
    void showsItsToolTipForLong();
    void separatorHasNoToolTip();
    void pressOfAnyButtonIsAClick_data();
    void pressOfAnyButtonIsAClick();
    void releaseIsNoClick();
    void doubleClickIsTwoClicks();
    void takesNoFocus();
    void showsItsImage();
    void changesColourUnderThePointer();
    void isAButtonForAssistiveTools();
    void assistiveToolsCanPressIt();
    void separatorIsNoButtonForAssistiveTools();
};

namespace
{
const auto image = QStringLiteral(":/assets/interface/layerToolBarSettings/alignLeft.png");
constexpr QRgb background = 0xff454545;
constexpr QRgb hover = 0xff6f6f6f;

/// An item on a window of its own.
struct ShownItem {
    ShownItem()
    {
        window.resize(200, 100);
        item.setParent(&window);
        item.move(50, 20);
        window.show();
        ready = QTest::qWaitForWindowActive(&window);
    }

    QPoint centre() const { return item.geometry().center(); }

    QWidget window;
    ToolBarItem item{image, "Align Left", nullptr};
    QSignalSpy clicks{&item, &ToolBarItem::clicked};
    bool ready = false;
};

QImage imageOn(QRgb color)
{
    QImage picture(30, 30, QImage::Format_RGB32);
    picture.fill(color);
    QPainter(&picture).drawPixmap(0, 0, QPixmap(image));
    return picture;
}

QImage pictureOf(QWidget &widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}
} // namespace

void tst_ToolBarItem::initTestCase()
{
    applyApplicationStyle();
}

void tst_ToolBarItem::clickedIsItsOneMethod()
{
    const QMetaObject &meta = ToolBarItem::staticMetaObject;
    QCOMPARE(meta.superClass()->className(), "QWidget");
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod method = meta.method(meta.methodOffset());
    QCOMPARE(method.methodSignature(), QByteArray("clicked(ToolBarItem*)"));
    QCOMPARE(method.methodType(), QMetaMethod::Signal);
    QCOMPARE(method.parameterNames(), QList<QByteArray>({"me"}));
}

void tst_ToolBarItem::carriesTheStyleSheetOfItsImage()
{
    const ToolBarItem item(":/a b/%1.png", "Tip", nullptr);
    QCOMPARE(item.styleSheet(),
             QString("ToolBarItem{background-image:url(\":/a b/%1.png\");background-repeat:no-repeat;"
                     "background-position:center;}"));
}

void tst_ToolBarItem::carriesItsClassName()
{
    const ToolBarItem item(image, "Tip", nullptr);
    QCOMPARE(item.property("class"), QVariant(QString("ToolBarItem")));
}

void tst_ToolBarItem::keepsItsSize()
{
    const ShownItem shown;
    QCOMPARE(shown.item.size(), QSize(30, 30));
    QCOMPARE(shown.item.minimumSize(), QSize(30, 30));
    QCOMPARE(shown.item.maximumSize(), QSize(30, 30));
}

void tst_ToolBarItem::showsItsToolTipForLong()
{
    const ToolBarItem item(image, "Align Left", nullptr);
    QCOMPARE(item.toolTip(), QString("Align Left"));
    QCOMPARE(item.toolTipDuration(), 100000);
}

void tst_ToolBarItem::separatorHasNoToolTip()
{
    const ToolBarItem item(image, "", nullptr);
    QCOMPARE(item.toolTip(), QString());
    QCOMPARE(item.toolTipDuration(), 100000);
}

void tst_ToolBarItem::pressOfAnyButtonIsAClick_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
    QTest::newRow("back") << Qt::BackButton;
}

void tst_ToolBarItem::pressOfAnyButtonIsAClick()
{
    QFETCH(Qt::MouseButton, button);

    ShownItem shown;
    QVERIFY(shown.ready);
    QTest::mousePress(shown.window.windowHandle(), button, {}, shown.centre());
    QCOMPARE(shown.clicks.size(), 1);
    QCOMPARE(shown.clicks.first().first().value<ToolBarItem *>(), &shown.item);
}

void tst_ToolBarItem::releaseIsNoClick()
{
    ShownItem shown;
    QVERIFY(shown.ready);
    QTest::mousePress(shown.window.windowHandle(), Qt::LeftButton, {}, shown.centre());
    shown.clicks.clear();
    QTest::mouseRelease(shown.window.windowHandle(), Qt::LeftButton, {}, shown.centre());
    QVERIFY(shown.clicks.isEmpty());
}

void tst_ToolBarItem::doubleClickIsTwoClicks()
{
    ShownItem shown;
    QVERIFY(shown.ready);
    QTest::mouseDClick(shown.window.windowHandle(), Qt::LeftButton, {}, shown.centre());
    QCOMPARE(shown.clicks.size(), 2);
}

void tst_ToolBarItem::takesNoFocus()
{
    const ToolBarItem item(image, "Tip", nullptr);
    QCOMPARE(item.focusPolicy(), Qt::NoFocus);
}

void tst_ToolBarItem::showsItsImage()
{
    ShownItem shown;
    QVERIFY(shown.ready);
    QTRY_COMPARE(pictureOf(shown.item), imageOn(background));
}

void tst_ToolBarItem::changesColourUnderThePointer()
{
    ShownItem shown;
    QVERIFY(shown.ready);
    pointAt(shown.window, shown.centre());
    QTRY_COMPARE(pictureOf(shown.item), imageOn(hover));
    pointElsewhere(shown.window);
    QTRY_COMPARE(pictureOf(shown.item), imageOn(background));
}

void tst_ToolBarItem::isAButtonForAssistiveTools()
{
    ToolBarItem item(image, "Align Left", nullptr);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&item);
    QCOMPARE(accessible->role(), QAccessible::Button);
    QCOMPARE(accessible->text(QAccessible::Name), QString("Align Left"));
    QCOMPARE(accessible->actionInterface()->actionNames(),
             QStringList(QAccessibleActionInterface::pressAction()));
}

void tst_ToolBarItem::assistiveToolsCanPressIt()
{
    ToolBarItem item(image, "Align Left", nullptr);
    const QSignalSpy clicks(&item, &ToolBarItem::clicked);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&item);
    accessible->actionInterface()->doAction("no such action");
    QVERIFY(clicks.isEmpty());
    accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicks.size(), 1);
    QCOMPARE(clicks.first().first().value<ToolBarItem *>(), &item);
}

void tst_ToolBarItem::separatorIsNoButtonForAssistiveTools()
{
    ToolBarItem item(image, "", nullptr);
    QCOMPARE(QAccessible::queryAccessibleInterface(&item)->role(), QAccessible::Separator);
}

BOARDWRIGHT_TEST_MAIN(tst_ToolBarItem)
#include "tst_toolbaritem.moc"
