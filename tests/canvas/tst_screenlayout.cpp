#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "tests/canvas/shownscreen.h"
#include "tests/support/boards.h"
#include "tests/support/strictmain.h"

#include <QFile>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QPointer>
#include <QSignalSpy>

/// Saving, loading and the item factory.
class tst_ScreenLayout : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void writesTwoKeys();
    void writesTheScreensParameters_data();
    void writesTheScreensParameters();
    void writesItemsInLayerOrder();
    void writesTheKeysOfAnItemAndNoOther();
    void writesAnUnnamedFrameWithoutContent();
    void leavesTheModifiedFlagWhenSaving();
    void keepsTheEmptyTemplate();
    void givesBackWhatWasSaved();
    void readsTheSameFromBytes();
    void loadsSizeAndColour();
    void replacesWhatWasThere();
    void deletesOldItemsAtOnce();
    void clearsTheFlagLast();
    void staysUnmodifiedOnceShown();
    void stacksItemsInFileOrder();
    void startsAnItemFromItsDefaults();
    void raisesAFactoryItemAboveTheOthers();
    void createsNothingForOtherTypes_data();
    void createsNothingForOtherTypes();
    void skipsUnknownItemsAmongOthers();
    void readsAMissingNameAsEmpty();
    void readsMissingValuesAsNothing();
    void readsNumbersWithAndWithoutFraction();
    void ignoresKeysThatAreNotDefined();
    void readsParametersOfAnyKind_data();
    void readsParametersOfAnyKind();
    void readsItemsOfAnyKind_data();
    void readsItemsOfAnyKind();
    void holdsItemGeometryInBounds_data();
    void holdsItemGeometryInBounds();
    void survivesAValueAsDeepAsAFileCanHold();
    void savesTheSameAfterBadInput();
};

namespace
{
QJsonObject saved(const QJsonObject &layout)
{
    Screen screen;
    screen.loadLayout(layout);
    return screen.saveLayout();
}

QJsonObject parametersOf(const QJsonObject &layout)
{
    return layout.value("parameters").toObject();
}

const QRect somewhere(30, 20, 120, 80);
} // namespace

void tst_ScreenLayout::initTestCase()
{
    QLoggingCategory::setFilterRules("default.debug=false");
}

void tst_ScreenLayout::writesTwoKeys()
{
    QCOMPARE(Screen().saveLayout().keys(), QStringList({"items", "parameters"}));
    QCOMPARE(parametersOf(Screen().saveLayout()).keys(),
             QStringList({"Background Color", "Height", "Width"}));
}

void tst_ScreenLayout::writesTheScreensParameters_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("written");
    QTest::newRow("black") << QColor(Qt::black) << "#000000";
    QTest::newRow("lower-case digits") << QColor(0xAB, 0xCD, 0xEF) << "#abcdef";
    QTest::newRow("without alpha") << QColor(1, 2, 3, 4) << "#010203";
    QTest::newRow("from another colour model") << QColor::fromHsv(120, 255, 255) << "#00ff00";
    QTest::newRow("invalid") << QColor() << "#000000";
}

void tst_ScreenLayout::writesTheScreensParameters()
{
    QFETCH(QColor, color);
    QFETCH(QString, written);
    Screen screen;
    screen.setWidgth(1920);
    screen.setHeight(96);
    screen.setBackgrounColor(color);
    const QJsonObject expected = {{"Background Color", written}, {"Height", 96}, {"Width", 1920}};
    QCOMPARE(parametersOf(screen.saveLayout()), expected);
}

void tst_ScreenLayout::writesItemsInLayerOrder()
{
    Screen screen;
    for (const char *name : {"A", "B", "C"})
        screen.createItem(shapeObject(name, somewhere));
    screen.bringToFront(screen.items().first());
    const QJsonArray items = screen.saveLayout().value("items").toArray();
    QCOMPARE(items, QJsonArray({shapeObject("B", somewhere), shapeObject("C", somewhere),
                                shapeObject("A", somewhere)}));
}

void tst_ScreenLayout::writesTheKeysOfAnItemAndNoOther()
{
    Screen screen;
    ScreenItem *item = screen.createItem(shapeObject("A", somewhere));
    item->setValue("Note", "kept in the map");
    const QJsonObject written = screen.saveLayout().value("items").toArray().first().toObject();
    QCOMPARE(written.keys(),
             QStringList({"Align", "Border", "Border Color", "Color", "Fill", "H", "Line Width", "Opacity",
                          "ScreenItemName", "Shape", "Type", "W", "X", "Y"}));
}

void tst_ScreenLayout::writesAnUnnamedFrameWithoutContent()
{
    Screen screen;
    auto *item = new ScreenItem(&screen);
    QCOMPARE(item->toJson(), QJsonObject({{"ScreenItemName", ""}}));
    QCOMPARE(screen.saveLayout().value("items").toArray(), QJsonArray({item->toJson()}));
    QJsonObject object = {{"ScreenItemName", "Named"}, {"X", 1}};
    QVERIFY(!item->fromJson(object));
    QCOMPARE(item->name(), QString("Named"));
    QCOMPARE(object, QJsonObject({{"X", 1}}));
}

void tst_ScreenLayout::leavesTheModifiedFlagWhenSaving()
{
    Screen screen;
    screen.saveLayout();
    QVERIFY(!screen.isModified());
    screen.newItem("Shape");
    screen.saveLayout();
    QVERIFY(screen.isModified());
}

void tst_ScreenLayout::keepsTheEmptyTemplate()
{
    QFile file(BOARDWRIGHT_SOURCE_DIR "/assets/resources/empty.lay");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonObject layout = QJsonDocument::fromJson(file.readAll()).object();
    Screen screen;
    screen.loadLayout(layout);
    QCOMPARE(screen.size(), QSize(800, 400));
    QCOMPARE(screen.backgroundColor(), QColor(Qt::black));
    QVERIFY(screen.items().isEmpty());
    QCOMPARE(screen.saveLayout(), layout);
}

void tst_ScreenLayout::givesBackWhatWasSaved()
{
    const QJsonObject layout =
        board(manyShapes(20), {{"Background Color", "#112233"}, {"Height", 400}, {"Width", 800}});
    QCOMPARE(saved(layout), layout);
}

void tst_ScreenLayout::readsTheSameFromBytes()
{
    const QByteArray bytes = QJsonDocument(saved(board(manyShapes(3)))).toJson();
    const QJsonObject read = QJsonDocument::fromJson(bytes).object();
    QCOMPARE(QJsonDocument(saved(read)).toJson(), bytes);
    QVERIFY(bytes.startsWith("{\n    \"items\": [\n        {\n            \"Align\": \"Top\",\n"));
}

void tst_ScreenLayout::loadsSizeAndColour()
{
    Screen screen;
    QSignalSpy resized(&screen, &Screen::meResized);
    screen.loadLayout(board({}, {{"Width", 128}, {"Height", 64}, {"Background Color", "Navy"}}));
    QCOMPARE(screen.size(), QSize(128, 64));
    QCOMPARE(screen.minimumSize(), QSize(128, 64));
    QCOMPARE(screen.maximumSize(), QSize(128, 64));
    QCOMPARE(screen.backgroundColor(), QColor("navy"));
}

void tst_ScreenLayout::replacesWhatWasThere()
{
    Screen screen;
    screen.loadLayout(board({shapeObject("Old", somewhere)}));
    screen.selectAllShortcutActivated();
    screen.loadLayout(board({shapeObject("New", somewhere)}));
    QCOMPARE(namesOf(screen.items()), QStringList("New"));
    QCOMPARE(stackedNames(screen), QStringList("New"));
    QVERIFY(screen.selection().isEmpty());
}

void tst_ScreenLayout::deletesOldItemsAtOnce()
{
    Screen screen;
    const QPointer<ScreenItem> old = screen.createItem(shapeObject("Old", somewhere));
    const QPointer<ContentViewer> content = old->content();
    screen.loadLayout({});
    QVERIFY(old.isNull());
    QVERIFY(content.isNull());
    QVERIFY(screen.items().isEmpty());
}

void tst_ScreenLayout::clearsTheFlagLast()
{
    Screen screen;
    screen.markModified();
    screen.loadLayout(board(manyShapes(2), {{"Width", 321}, {"Height", 123}}));
    QVERIFY(!screen.isModified());
    QCoreApplication::processEvents();
    QVERIFY(!screen.isModified());
}

void tst_ScreenLayout::staysUnmodifiedOnceShown()
{
    QWidget window;
    Screen screen(&window);
    screen.loadLayout(
        board({shapeObject("Beyond", QRect(700, 350, 300, 300)), shapeObject("Inside", somewhere)}));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
    QVERIFY(!screen.isModified());
}

void tst_ScreenLayout::stacksItemsInFileOrder()
{
    Screen screen;
    screen.loadLayout(
        board({shapeObject("A", somewhere), shapeObject("B", somewhere), shapeObject("C", somewhere)}));
    QCOMPARE(namesOf(screen.items()), QStringList({"A", "B", "C"}));
    QCOMPARE(stackedNames(screen), QStringList({"A", "B", "C"}));
}

void tst_ScreenLayout::startsAnItemFromItsDefaults()
{
    Screen screen;
    ScreenItem *item = screen.createItem({{"Type", "Shape"}, {"X", 5}, {"Y", 6}, {"W", 70}, {"H", 8}});
    QCOMPARE(item->geometry(), QRect(5, 6, 70, 8));
    QCOMPARE(item->getValue("Type"), QVariant("Shape"));
    QVERIFY(!item->isHidden());
    QVERIFY(!item->content()->isHidden());
    QVERIFY(!item->isSelected());
    QVERIFY(!item->isActive());
    QVERIFY(screen.isModified());
}

void tst_ScreenLayout::raisesAFactoryItemAboveTheOthers()
{
    Screen screen;
    screen.loadLayout(board({shapeObject("A", somewhere), shapeObject("B", somewhere)}));
    screen.bringToFront(screen.items().first());
    screen.createItem(shapeObject("C", somewhere));
    QCOMPARE(namesOf(screen.items()), QStringList({"B", "A", "C"}));
    QCOMPARE(stackedNames(screen), QStringList({"B", "A", "C"}));
}

void tst_ScreenLayout::createsNothingForOtherTypes_data()
{
    QTest::addColumn<QJsonValue>("type");
    QTest::newRow("video") << QJsonValue("Video Viewer");
    QTest::newRow("other case") << QJsonValue("shape");
    QTest::newRow("unknown") << QJsonValue("Clock");
    QTest::newRow("empty") << QJsonValue("");
    QTest::newRow("number") << QJsonValue(1);
    QTest::newRow("null") << QJsonValue();
    QTest::newRow("array") << QJsonValue(QJsonArray({"Shape"}));
    QTest::newRow("missing") << QJsonValue(QJsonValue::Undefined);
}

void tst_ScreenLayout::createsNothingForOtherTypes()
{
    QFETCH(QJsonValue, type);
    Screen screen;
    QJsonObject object = shapeObject("A", somewhere);
    // An undefined value removes the key.
    object.insert("Type", type);
    QCOMPARE(screen.createItem(object), nullptr);
    QVERIFY(screen.items().isEmpty());
    QVERIFY(!screen.isModified());
}

void tst_ScreenLayout::skipsUnknownItemsAmongOthers()
{
    Screen screen;
    screen.loadLayout(
        board({shapeObject("A", somewhere), shapeObject("V", somewhere, {{"Type", "Video Viewer"}}),
               shapeObject("B", somewhere)}));
    QCOMPARE(namesOf(screen.items()), QStringList({"A", "B"}));
}

void tst_ScreenLayout::readsAMissingNameAsEmpty()
{
    Screen screen;
    QJsonObject object = shapeObject("A", somewhere);
    object.remove("ScreenItemName");
    QCOMPARE(screen.createItem(object)->name(), QString());
    object.insert("ScreenItemName", 7);
    QCOMPARE(screen.createItem(object)->name(), QString());
}

void tst_ScreenLayout::readsMissingValuesAsNothing()
{
    Screen screen;
    QJsonObject object = shapeObject("A", somewhere);
    for (const char *key : {"X", "Fill", "Color"})
        object.remove(key);
    ScreenItem *item = screen.createItem(object);
    QCOMPARE(item->geometry(), QRect(0, 20, 120, 80));
    QVERIFY(!item->getValue("Fill").toBool());
    QVERIFY(!item->getValue("Color").isValid());
    QCOMPARE(item->toJson().value("Color"), QJsonValue());
    QCOMPARE(item->toJson().value("X"), QJsonValue(0));
}

void tst_ScreenLayout::readsNumbersWithAndWithoutFraction()
{
    Screen screen;
    ScreenItem *whole = screen.createItem(shapeObject("A", somewhere, {{"Line Width", 10}}));
    ScreenItem *real = screen.createItem(shapeObject("A", somewhere, {{"Line Width", 10.0}, {"X", 30.0}}));
    QCOMPARE(whole->toJson(), real->toJson());
    QCOMPARE(whole->getValue("Line Width").toInt(), 10);
    QCOMPARE(whole->getValue("Fill").userType(), int(QMetaType::Bool));
}

void tst_ScreenLayout::ignoresKeysThatAreNotDefined()
{
    Screen screen;
    ScreenItem *item = screen.createItem(shapeObject("A", somewhere, {{"Note", "n"}, {"Size", 12}}));
    QVERIFY(!item->getValues().contains("Note"));
    QVERIFY(item->getValue("Size") != QVariant(12));
}

void tst_ScreenLayout::readsParametersOfAnyKind_data()
{
    QTest::addColumn<QJsonValue>("parameters");
    QTest::addColumn<QSize>("size");
    const auto width = [](const QJsonValue &value) {
        return QJsonValue(QJsonObject({{"Width", value}, {"Height", 64}}));
    };
    QTest::newRow("missing") << QJsonValue(QJsonValue::Undefined) << QSize(0, 0);
    QTest::newRow("null") << QJsonValue() << QSize(0, 0);
    QTest::newRow("array") << QJsonValue(QJsonArray({1, 2})) << QSize(0, 0);
    QTest::newRow("text") << QJsonValue("800x400") << QSize(0, 0);
    QTest::newRow("empty") << QJsonValue(QJsonObject()) << QSize(0, 0);
    QTest::newRow("one length") << QJsonValue(QJsonObject({{"Height", 64}})) << QSize(0, 64);
    QTest::newRow("text for a number") << width("800") << QSize(0, 64);
    QTest::newRow("whole real") << width(800.0) << QSize(800, 64);
    QTest::newRow("real") << width(800.5) << QSize(801, 64);
    QTest::newRow("truth for a number") << width(true) << QSize(0, 64);
    QTest::newRow("negative") << width(-1) << QSize(0, 64);
    QTest::newRow("negative real") << width(-0.6) << QSize(0, 64);
    QTest::newRow("a billion") << width(1e9) << QSize(16777215, 64);
    QTest::newRow("beyond any integer") << width(1e308) << QSize(0, 64);
    QTest::newRow("object") << width(QJsonObject()) << QSize(0, 64);
}

void tst_ScreenLayout::readsParametersOfAnyKind()
{
    QFETCH(QJsonValue, parameters);
    QFETCH(QSize, size);
    ShownScreen shown;
    QVERIFY(shown.ready);
    QJsonObject layout = {{"items", QJsonArray({shapeObject("A", somewhere)})}};
    layout.insert("parameters", parameters);
    shown.screen.loadLayout(layout);
    QCOMPARE(shown.screen.size(), size);
    QCOMPARE(parametersOf(shown.screen.saveLayout()).value("Background Color"), QJsonValue("#000000"));
    QCOMPARE(shown.screen.items().size(), 1);
    QVERIFY(!shown.screen.isModified());
    QCoreApplication::processEvents();
}

void tst_ScreenLayout::readsItemsOfAnyKind_data()
{
    QTest::addColumn<QJsonValue>("items");
    QTest::addColumn<int>("count");
    const QJsonObject shape = shapeObject("A", somewhere);
    QTest::newRow("missing") << QJsonValue(QJsonValue::Undefined) << 0;
    QTest::newRow("null") << QJsonValue() << 0;
    QTest::newRow("object") << QJsonValue(shape) << 0;
    QTest::newRow("text") << QJsonValue("items") << 0;
    QTest::newRow("empty") << QJsonValue(QJsonArray()) << 0;
    QTest::newRow("no objects") << QJsonValue(QJsonArray({1, -1e308, "Shape", true, QJsonValue(),
                                                          QJsonArray({shape}), QJsonObject()}))
                                << 0;
    QTest::newRow("no objects around one") << QJsonValue(QJsonArray({1, shape, "Shape"})) << 1;
    QTest::newRow("a type and nothing else")
        << QJsonValue(QJsonArray({QJsonObject({{"Type", "Shape"}})})) << 1;
    QTest::newRow("ten thousand") << QJsonValue(manyShapes(10000)) << 10000;
}

void tst_ScreenLayout::readsItemsOfAnyKind()
{
    QFETCH(QJsonValue, items);
    QFETCH(int, count);
    ShownScreen shown;
    QVERIFY(shown.ready);
    QJsonObject layout = board({});
    layout.insert("items", items);
    shown.screen.loadLayout(layout);
    QCOMPARE(shown.screen.items().size(), count);
    QVERIFY(!shown.screen.isModified());
    QCoreApplication::processEvents();
}

void tst_ScreenLayout::holdsItemGeometryInBounds_data()
{
    QTest::addColumn<QJsonObject>("values");
    QTest::addColumn<QRect>("geometry");
    const auto all = [](const QJsonValue &value) {
        return QJsonObject({{"X", value}, {"Y", value}, {"W", value}, {"H", value}});
    };
    QTest::newRow("text") << all("12") << QRect(12, 12, 12, 12);
    QTest::newRow("words") << all("wide") << QRect(0, 0, 0, 0);
    QTest::newRow("null") << all(QJsonValue()) << QRect(0, 0, 0, 0);
    QTest::newRow("array") << all(QJsonArray({1, 2, 3})) << QRect(0, 0, 0, 0);
    QTest::newRow("negative size") << QJsonObject({{"W", -1}, {"H", -1}}) << QRect(30, 20, 0, 0);
    QTest::newRow("negative place") << QJsonObject({{"X", -5}, {"Y", -6}}) << QRect(-5, -6, 120, 80);
}

void tst_ScreenLayout::holdsItemGeometryInBounds()
{
    QFETCH(QJsonObject, values);
    QFETCH(QRect, geometry);
    Screen screen;
    screen.loadLayout(board({shapeObject("A", somewhere, values)}));
    QCOMPARE(screen.items().first()->geometry(), geometry);
}

void tst_ScreenLayout::survivesAValueAsDeepAsAFileCanHold()
{
    const QByteArray deep = QByteArray(1000, '[') + QByteArray(1000, ']');
    const QByteArray bytes = "{\"items\": [{\"Type\": \"Shape\", \"X\": " + deep + ", \"Color\": " + deep +
                             ", \"Deep\": " + deep + "}], \"parameters\": {\"Width\": " + deep + "}}";
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    QVERIFY(document.isObject());
    Screen screen;
    screen.loadLayout(document.object());
    QCOMPARE(screen.items().size(), 1);
    QCOMPARE(screen.items().first()->x(), 0);
    QVERIFY(!screen.saveLayout().isEmpty());
    QVERIFY(!screen.grab().toImage().isNull() || screen.size().isEmpty());
}

void tst_ScreenLayout::savesTheSameAfterBadInput()
{
    QJsonArray items;
    for (const QJsonValue &value : {QJsonValue(-1), QJsonValue(1e9), QJsonValue(1e308), QJsonValue(-1e308),
                                    QJsonValue(0.5), QJsonValue("x"), QJsonValue(true), QJsonValue()}) {
        for (const char *key : {"X", "Y", "W", "H", "Line Width", "Opacity", "Color", "Shape", "Fill"})
            items.append(shapeObject(key, somewhere, {{key, value}}));
    }
    ShownScreen shown;
    QVERIFY(shown.ready);
    shown.screen.loadLayout(board(items));
    QCOMPARE(shown.screen.items().size(), items.size());
    QVERIFY(!shown.screen.grab().isNull());
    const QJsonObject once = shown.screen.saveLayout();
    QCOMPARE(saved(once), once);
}

BOARDWRIGHT_TEST_MAIN(tst_ScreenLayout)
#include "tst_screenlayout.moc"
