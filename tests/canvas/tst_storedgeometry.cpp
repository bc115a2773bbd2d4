#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "pictures/itemgeometry.h"
#include "tests/canvas/shownscreen.h"
#include "tests/support/boards.h"
#include "tests/support/samples.h"
#include "tests/support/strictmain.h"

#include <QFile>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QRandomGenerator>
#include <QSignalSpy>

#include <array>

/// Where items that are read from a file or from the clipboard come to lie.
class tst_StoredGeometry : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void itemsOnTheScreenComeBackAsStored_data();
    void itemsOnTheScreenComeBackAsStored();
    void itemsBeyondTheScreenPassTheClamps_data();
    void itemsBeyondTheScreenPassTheClamps();
    void itemsLieWhereAPictureShowsThem_data();
    void itemsLieWhereAPictureShowsThem();
    void fractionsAreRoundedFirst();
    void missingLengthsAreNone();
    void laterValuesLeaveTheGeometry_data();
    void laterValuesLeaveTheGeometry();
    void showingAgainLeavesTheGeometry();
    void laterResizesAreClamped_data();
    void laterResizesAreClamped();
    void openPanelsFollow();
    void readingMarksTheLayoutModified();
    void samplesComeBackAsStored_data();
    void samplesComeBackAsStored();
};

namespace
{
const std::array<const char *, 4> kinds = {"Shape", "Text", "Image Viewer", "Animation Viewer"};

/// Taller than the room beside it: a resize to this is clamped to 150 x 300.
const QRect tall(650, 50, 50, 300);

QJsonObject itemObject(const QString &kind, const QRect &geometry)
{
    return shapeObject(kind, geometry, {{"Type", kind}, {"Size", 12}, {"Font", "Arimo"}, {"Align_int", 11}});
}

QJsonObject layoutOf(const QJsonArray &items, QSize size)
{
    return board(items,
                 {{"Background Color", "#000000"}, {"Width", size.width()}, {"Height", size.height()}});
}

QRect valuesOf(ScreenItem &item)
{
    const QJsonObject object = item.toJson();
    return {object["X"].toInt(-1), object["Y"].toInt(-1), object["W"].toInt(-1), object["H"].toInt(-1)};
}

/// Each item lies where it is to lie, holds that and fills itself with its content, which a canvas that was
/// never shown leaves for later.
void verifyLieAt(const QList<ScreenItem *> &items, const QRect &geometry)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    const QRect whole(QPoint(0, 0), geometry.size());
    for (ScreenItem *item : items) {
        QVERIFY2(item->geometry() == geometry, qPrintable(item->name()));
        QVERIFY2(valuesOf(*item) == geometry, qPrintable(item->name()));
        QVERIFY2(!item->isVisible() || item->content()->geometry() == whole, qPrintable(item->name()));
    }
}

void verifyEveryRoad(Screen &screen, const QJsonArray &items, QSize size, const QRect &geometry)
{
    const int count = items.size();
    screen.loadLayout(layoutOf(items, size));
    QCOMPARE(screen.items().size(), count);
    verifyLieAt(screen.items(), geometry);
    screen.selectAllShortcutActivated();
    screen.copyShortcutActivated();
    screen.pasteShortcutActivated();
    QCOMPARE(screen.items().size(), 2 * count);
    verifyLieAt(screen.items(), geometry);
    screen.duplicateSelection();
    QCOMPARE(screen.items().size(), 3 * count);
    verifyLieAt(screen.items(), geometry);
    const QByteArray saved = QJsonDocument(screen.saveLayout()).toJson();
    screen.loadLayout(QJsonDocument::fromJson(saved).object());
    QCOMPARE(screen.items().size(), 3 * count);
    verifyLieAt(screen.items(), geometry);
    QCoreApplication::processEvents();
    verifyLieAt(screen.items(), geometry);
}

QList<QRect> rectanglesOn(QSize screen)
{
    const int w = screen.width();
    const int h = screen.height();
    return {{0, 0, w, h},         {w - 10, 0, 10, h},
            {0, h - 10, w, 10},   {w / 2, 0, w / 2, h},
            {1, 1, 1, 1},         {w - 20, h / 4, 9, h / 2},
            {3, 2, 4, h - 2},     {w / 3, h / 3, 0, h / 2},
            {0, 0, 0, 0},         {w, h, 0, 0},
            {w - 1, h - 1, 1, 1}, {0, 0, 100 % w, 50},
            {5, 1, 10, 60}};
}

QByteArray nameOf(QSize screen, const QRect &rectangle)
{
    return QString("%1x%2: %3,%4 %5x%6")
        .arg(screen.width())
        .arg(screen.height())
        .arg(rectangle.x())
        .arg(rectangle.y())
        .arg(rectangle.width())
        .arg(rectangle.height())
        .toUtf8();
}

/// The one item of a board: it is taller than the room beside it, and has come back as it is stored.
ScreenItem *readTall(Screen &screen, const QString &kind = "Shape")
{
    screen.loadLayout(layoutOf({itemObject(kind, tall)}, QSize(800, 400)));
    return screen.items().first();
}
} // namespace

void tst_StoredGeometry::initTestCase()
{
    QLoggingCategory::setFilterRules("default.debug=false");
}

void tst_StoredGeometry::itemsOnTheScreenComeBackAsStored_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("geometry");
    for (const QSize size : {QSize(800, 400), QSize(128, 256), QSize(64, 512)}) {
        const QList<QRect> rectangles = rectanglesOn(size);
        for (const QRect &geometry : rectangles)
            QTest::newRow(nameOf(size, geometry)) << size << geometry;
    }
    QTest::newRow("beside a tall shape") << QSize(800, 400) << tall;
    QTest::newRow("on a portrait board") << QSize(128, 256) << QRect(20, 20, 60, 150);
}

void tst_StoredGeometry::itemsOnTheScreenComeBackAsStored()
{
    QFETCH(QSize, size);
    QFETCH(QRect, geometry);
    QJsonArray allKinds;
    Screen neverShown;
    ShownScreen shown;
    QVERIFY(shown.ready);
    for (const char *kind : kinds) {
        const QJsonObject item = itemObject(kind, geometry);
        allKinds.append(item);
        // One item is read in view, several while the canvas is hidden.
        verifyEveryRoad(shown.screen, {item}, size, geometry);
        verifyEveryRoad(neverShown, {item}, size, geometry);
    }
    verifyEveryRoad(shown.screen, allKinds, size, geometry);
    verifyEveryRoad(neverShown, allKinds, size, geometry);
}

void tst_StoredGeometry::itemsBeyondTheScreenPassTheClamps_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("stored");
    QTest::addColumn<QRect>("landed");
    QTest::addColumn<QRect>("mediaLanded");
    const auto row = [](QSize size, const QRect &stored, const QRect &landed, const QRect &mediaLanded) {
        QTest::newRow(nameOf(size, stored)) << size << stored << landed << mediaLanded;
    };
    // Texts and shapes apply each value as it is read, pictures and animations all of them at once.
    const QSize wide(800, 400);
    row(wide, {750, 10, 100, 50}, {750, 10, 100, 50}, {750, 10, 100, 50});
    row(wide, {10, 380, 100, 50}, {10, 380, 100, 50}, {10, 380, 100, 50});
    row(wide, {700, 350, 300, 300}, {700, 350, 300, 50}, {700, 350, 300, 300});
    row(wide, {-50, -30, 100, 50}, {-50, -30, 100, 50}, {-50, -30, 100, 50});
    row(wide, {-10, 20, 60, 350}, {-10, 20, 60, 350}, {-10, 20, 60, 350});
    row(wide, {100, 100, 20, 700}, {100, 100, 20, 300}, {100, 100, 20, 400});
    row(wide, {900, 500, 100, 50}, {900, 500, 100, 50}, {900, 500, 100, 50});
    row(wide, {0, 0, 900, 500}, {0, 0, 900, 400}, {0, 0, 900, 400});
    row(wide, {650, 150, 50, 300}, {650, 150, 150, 250}, {650, 150, 50, 300});
    row(wide, {10, -5, 900, 100}, {10, -5, 900, 100}, {10, -5, 900, 100});
    row(wide, {600, 10, 201, 300}, {600, 10, 200, 300}, {600, 10, 201, 300});
    row(wide, {10, 10, -5, 30}, {10, 10, 0, 30}, {10, 10, 0, 30});
    row(wide, {10, 10, 30, -6}, {10, 10, 30, 0}, {10, 10, 30, 0});
    row(wide, {600, 10, -5, 300}, {600, 10, 200, 300}, {600, 10, 0, 300});
    const QSize portrait(128, 256);
    row(portrait, {20, 20, 109, 150}, {20, 20, 108, 150}, {20, 20, 128, 150});
    row(portrait, {20, 120, 60, 150}, {20, 120, 108, 136}, {20, 120, 128, 150});
    row(portrait, {-1, 20, 60, 150}, {-1, 20, 129, 150}, {-1, 20, 128, 150});
    row(portrait, {20, -1, 60, 150}, {20, -1, 108, 150}, {20, -1, 128, 150});
    row(portrait, {100, 200, 60, 150}, {100, 200, 28, 56}, {100, 200, 128, 150});
    row(portrait, {20, 20, -5, 150}, {20, 20, 108, 150}, {20, 20, 128, 150});
    row(portrait, {0, 0, 129, 257}, {0, 0, 128, 256}, {0, 0, 128, 256});
    row(portrait, {200, 300, 10, 10}, {200, 300, 0, 0}, {200, 300, 10, 10});
    const QSize strip(64, 512);
    row(strip, {10, 10, 55, 300}, {10, 10, 54, 300}, {10, 10, 64, 300});
    row(strip, {10, 300, 20, 300}, {10, 300, 54, 212}, {10, 300, 64, 300});
    row(strip, {-1, 10, 20, 300}, {-1, 10, 65, 300}, {-1, 10, 64, 300});
    row(strip, {10, -1, 20, 300}, {10, -1, 54, 300}, {10, -1, 64, 300});
    row(strip, {60, 500, 20, 300}, {60, 500, 4, 12}, {60, 500, 64, 300});
    row(strip, {10, 10, -1, 300}, {10, 10, 54, 300}, {10, 10, 64, 300});
    row(strip, {0, 0, 65, 513}, {0, 0, 64, 512}, {0, 0, 64, 512});
    row(strip, {100, 600, 10, 10}, {100, 600, 10, 0}, {100, 600, 10, 10});
}

void tst_StoredGeometry::itemsBeyondTheScreenPassTheClamps()
{
    QFETCH(QSize, size);
    QFETCH(QRect, stored);
    QFETCH(QRect, landed);
    QFETCH(QRect, mediaLanded);
    const QList<QRect> expected = {landed, landed, mediaLanded, mediaLanded};
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        const QJsonArray two = {itemObject(kinds[i], stored), itemObject(kinds[i], stored)};
        Screen screen;
        screen.loadLayout(layoutOf(two, size));
        verifyLieAt(screen.items(), expected.at(int(i)));
        ShownScreen shown;
        QVERIFY(shown.ready);
        shown.screen.loadLayout(layoutOf({two.first()}, size));
        verifyLieAt(shown.screen.items(), expected.at(int(i)));
    }
}

void tst_StoredGeometry::itemsLieWhereAPictureShowsThem_data()
{
    QTest::addColumn<QSize>("size");
    for (QSize size : {QSize(800, 400), QSize(128, 256), QSize(60, 40), QSize(0, 0)})
        QTest::newRow(nameOf(size, QRect()).constData()) << size;
}

void tst_StoredGeometry::itemsLieWhereAPictureShowsThem()
{
    QFETCH(QSize, size);
    QRandomGenerator random(5);
    const auto anywhere = [&random](int length) {
        return random.bounded(2 * length + 40) - length / 2 - 20;
    };
    Screen screen;
    for (int i = 0; i < 500; ++i) {
        const QRect stored(anywhere(size.width()), anywhere(size.height()), anywhere(size.width()),
                           anywhere(size.height()));
        const QString kind = kinds[std::size_t(i) % kinds.size()];
        const auto reading = kind == "Shape" || kind == "Text" ? ItemGeometry::Reading::OneByOne
                                                               : ItemGeometry::Reading::AtOnce;
        screen.loadLayout(layoutOf({itemObject(kind, stored)}, size));
        QCOMPARE(screen.items().first()->geometry(), ItemGeometry::landing(stored, reading, size));
    }
}

void tst_StoredGeometry::fractionsAreRoundedFirst()
{
    Screen screen;
    const QJsonObject fractions = {{"X", 649.5}, {"Y", 50.4}, {"W", 49.5}, {"H", "300"}};
    screen.loadLayout(layoutOf({shapeObject("A", {}, fractions)}, QSize(800, 400)));
    verifyLieAt(screen.items(), tall);
}

void tst_StoredGeometry::missingLengthsAreNone()
{
    Screen screen;
    QJsonObject object = itemObject("Shape", tall);
    object.remove("W");
    screen.loadLayout(layoutOf({object}, QSize(800, 400)));
    verifyLieAt(screen.items(), QRect(650, 50, 0, 300));
}

void tst_StoredGeometry::laterValuesLeaveTheGeometry_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("colour of a shape") << "Shape"
                                       << "Color" << QVariant("red");
    QTest::newRow("words of a text") << "Text"
                                     << "Text" << QVariant("Home");
    QTest::newRow("size of a text") << "Text"
                                    << "Size" << QVariant(30);
    QTest::newRow("the same width") << "Shape"
                                    << "W" << QVariant(50);
    QTest::newRow("path of a picture that is not there") << "Image Viewer"
                                                         << "Path" << QVariant("none.png");
}

void tst_StoredGeometry::laterValuesLeaveTheGeometry()
{
    QFETCH(QString, kind);
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    ShownScreen shown;
    QVERIFY(shown.ready);
    ScreenItem *item = readTall(shown.screen, kind);
    item->setValue(key, value);
    verifyLieAt({item}, tall);
    item->setValues(item->getValues());
    verifyLieAt({item}, tall);
    item->setValue("X", 640);
    verifyLieAt({item}, tall.translated(-10, 0));
}

void tst_StoredGeometry::showingAgainLeavesTheGeometry()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    ScreenItem *item = readTall(shown.screen);
    const QWidgetList each = {item, &shown.screen, &shown.window};
    for (QWidget *hidden : each) {
        hidden->hide();
        hidden->show();
        QCoreApplication::processEvents();
        verifyLieAt({item}, tall);
    }
    shown.screen.goToRenderMode();
    shown.screen.grab();
    shown.screen.goOutRenderMode();
    verifyLieAt({item}, tall);
}

void tst_StoredGeometry::laterResizesAreClamped_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("value");
    QTest::addColumn<QRect>("landed");
    QTest::newRow("wider") << "W" << 51 << QRect(650, 50, 150, 300);
    QTest::newRow("lower") << "H" << 299 << QRect(650, 50, 150, 299);
    QTest::newRow("low enough") << "H" << 150 << QRect(650, 50, 50, 150);
}

void tst_StoredGeometry::laterResizesAreClamped()
{
    QFETCH(QString, key);
    QFETCH(int, value);
    QFETCH(QRect, landed);
    Screen screen;
    ScreenItem *item = readTall(screen);
    item->setValue(key, value);
    verifyLieAt({item}, landed);
}

void tst_StoredGeometry::openPanelsFollow()
{
    Screen screen;
    ScreenItem *item = readTall(screen);
    item->setValue("H", 299);
    const QSignalSpy values(item, &ScreenItem::valueChanged);
    const QSignalSpy told(item, &ScreenItem::newGeometry);
    QJsonObject object = itemObject("Shape", tall);
    QVERIFY(item->fromJson(object));
    QCOMPARE(told.last().first().toRect(), tall);
    QMap<QString, QVariant> shown;
    for (const QList<QVariant> &change : values)
        shown.insert(change.at(0).toString(), change.at(1).value<QVariant>());
    const QMap<QString, QVariant> expected = {{"X", 650}, {"Y", 50}, {"W", 50}, {"H", 300}};
    QCOMPARE(shown, expected);
}

void tst_StoredGeometry::readingMarksTheLayoutModified()
{
    Screen screen;
    ScreenItem *item = readTall(screen);
    QVERIFY(!screen.isModified());
    QJsonObject object = itemObject("Shape", QRect(600, 20, 40, 380));
    QVERIFY(item->fromJson(object));
    QCOMPARE(item->geometry(), QRect(600, 20, 40, 380));
    QVERIFY(screen.isModified());
}

void tst_StoredGeometry::samplesComeBackAsStored_data()
{
    addSamples();
}

void tst_StoredGeometry::samplesComeBackAsStored()
{
    QFETCH(QString, sample);
    QFile file(sample);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonObject layout = QJsonDocument::fromJson(file.readAll()).object();
    const QJsonArray items = layout["items"].toArray();
    Screen screen;
    screen.loadLayout(layout);
    QCOMPARE(screen.items().size(), items.size());
    for (int i = 0; i < items.size(); ++i) {
        const QJsonObject item = items.at(i).toObject();
        const QRect stored(item["X"].toInt(), item["Y"].toInt(), item["W"].toInt(), item["H"].toInt());
        verifyLieAt({screen.items().at(i)}, stored);
    }
}

BOARDWRIGHT_TEST_MAIN(tst_StoredGeometry)
#include "tst_storedgeometry.moc"
