#include "canvas/itemclipboard.h"
#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "tests/canvas/shownscreen.h"
#include "tests/support/boards.h"
#include "tests/support/strictmain.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QMimeData>

/// The commands on selected items and on layers.
class tst_ScreenCommands : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void selectsAllInLayerOrder();
    void copiesInLayerOrder();
    void leavesTheClipboardWhenNothingIsSelected();
    void cutsTheSelection();
    void pastesInPlaceAndSelects();
    void pastesSomeOfAMixture();
    void deselectsWhenOnlyUnknownKindsArePasted_data();
    void deselectsWhenOnlyUnknownKindsArePasted();
    void pastesIntoTheNextLayout();
    void keepsPastedItemsOnASmallerScreen();
    void ignoresAForeignClipboard_data();
    void ignoresAForeignClipboard();
    void duplicatesTheSelectionOnTop();
    void duplicatesADuplicate();
    void duplicatesNothingWithoutSelection();
    void deletesTheFrameAndTheSelection();
    void deletesTheFrameItselfLast();
    void deletesTheFrameAlone();
    void showsTheSettingsOfWhatIsSelected_data();
    void showsTheSettingsOfWhatIsSelected();
    void ignoredPasteShowsNothingElse();
    void movesLayers_data();
    void movesLayers();
    void ignoresFramesThatAreNotListed();
    void followsTheShortcuts();
    void leavesTheKeysToAWidgetThatEditsText();
    void deletesByKeyWhatTheFocusSays_data();
    void deletesByKeyWhatTheFocusSays();

private:
    QStringList m_destroyed; // names of the frames that are gone, in order
};

namespace
{
/// A canvas with the layers A, B, C and D, bottom first, and no modification.
class Board : public Screen
{
public:
    explicit Board(QWidget *parent = nullptr) : Screen(parent)
    {
        loadLayout(board({shapeObject("A", QRect(10, 10, 60, 40)), shapeObject("B", QRect(30, 20, 60, 40)),
                          shapeObject("C", QRect(50, 30, 60, 40)), shapeObject("D", QRect(70, 40, 60, 40))}));
    }

    ScreenItem *item(const QString &name) const
    {
        const auto found = std::find_if(items().begin(), items().end(),
                                        [&name](const ScreenItem *item) { return item->name() == name; });
        return found == items().end() ? nullptr : *found;
    }

    void select(const QStringList &names)
    {
        clearSelection();
        for (const QString &name : names)
            item(name)->select();
    }

    QStringList layers() const { return namesOf(items()); }
    QStringList selected() const { return namesOf(selection()); }
    bool isConsistent() const { return selectionIsConsistent(*this) && stackedNames(*this) == layers(); }
};

/// The frame's commands are private slots, addressed by name as its menu and the toolbar do.
void command(ScreenItem *item, const char *slot)
{
    QVERIFY(QMetaObject::invokeMethod(item, slot, Qt::DirectConnection));
}

QStringList clipboardNames()
{
    QStringList names;
    const QJsonArray items = ItemClipboard::items();
    for (const QJsonValue &item : items)
        names.append(item.toObject().value("ScreenItemName").toString());
    return names;
}

void putOnClipboard(const QString &format, const QByteArray &bytes)
{
    auto *data = new QMimeData;
    data->setData(format, bytes);
    QGuiApplication::clipboard()->setMimeData(data);
}
} // namespace

void tst_ScreenCommands::initTestCase()
{
    QLoggingCategory::setFilterRules("default.debug=false");
}

void tst_ScreenCommands::init()
{
    QGuiApplication::clipboard()->clear();
}

void tst_ScreenCommands::selectsAllInLayerOrder()
{
    Board board;
    board.select({"C", "A"});
    board.selectAllShortcutActivated();
    QCOMPARE(board.selected(), QStringList({"A", "B", "C", "D"}));
    QVERIFY(board.isConsistent());
    QVERIFY(!board.isModified());
}

void tst_ScreenCommands::copiesInLayerOrder()
{
    Board board;
    board.select({"D", "A", "C"});
    board.copyShortcutActivated();
    QCOMPARE(clipboardNames(), QStringList({"A", "C", "D"}));
    QCOMPARE(ItemClipboard::items().first().toObject(), board.item("A")->toJson());
    QCOMPARE(board.selected(), QStringList({"D", "A", "C"}));
    QVERIFY(!board.isModified());
}

void tst_ScreenCommands::leavesTheClipboardWhenNothingIsSelected()
{
    Board board;
    QGuiApplication::clipboard()->setText("Home 12");
    board.copyShortcutActivated();
    board.cutShortcutActivated();
    deleteScheduled();
    QCOMPARE(QGuiApplication::clipboard()->text(), QString("Home 12"));
    QCOMPARE(board.layers(), QStringList({"A", "B", "C", "D"}));
}

void tst_ScreenCommands::cutsTheSelection()
{
    Board board;
    board.select({"D", "B"});
    board.cutShortcutActivated();
    QCOMPARE(clipboardNames(), QStringList({"B", "D"}));
    QVERIFY(board.selected().isEmpty());
    QCOMPARE(board.layers().size(), 4);
    QVERIFY(!board.isModified());
    deleteScheduled();
    QCOMPARE(board.layers(), QStringList({"A", "C"}));
    QVERIFY(board.isModified());
}

void tst_ScreenCommands::pastesInPlaceAndSelects()
{
    Board board;
    board.select({"C", "A"});
    board.copyShortcutActivated();
    board.select({"D"});
    board.pasteShortcutActivated();
    QCOMPARE(board.layers(), QStringList({"A", "B", "C", "D", "A", "C"}));
    QCOMPARE(board.selection(), board.items().mid(4));
    QCOMPARE(board.items().at(4)->toJson(), board.items().at(0)->toJson());
    QCOMPARE(board.items().at(5)->toJson(), board.items().at(2)->toJson());
    QVERIFY(board.isConsistent());
    QVERIFY(board.isModified());
    board.pasteShortcutActivated();
    QCOMPARE(board.layers(), QStringList({"A", "B", "C", "D", "A", "C", "A", "C"}));
    QCOMPARE(board.selection(), board.items().mid(6));
}

void tst_ScreenCommands::pastesSomeOfAMixture()
{
    Board board;
    ItemClipboard::put({1, shapeObject("V", QRect(1, 2, 3, 4), {{"Type", "Video Viewer"}}),
                        shapeObject("S", QRect(1, 2, 3, 4)), "Shape", QJsonObject()});
    board.select({"A"});
    board.pasteShortcutActivated();
    QCOMPARE(board.selected(), QStringList("S"));
    QCOMPARE(board.items().size(), 5);
    QVERIFY(board.isConsistent());
}

void tst_ScreenCommands::deselectsWhenOnlyUnknownKindsArePasted_data()
{
    QTest::addColumn<QJsonArray>("items");
    QTest::newRow("kind that files do not hold") << QJsonArray({QJsonObject({{"Type", "Video Viewer"}})});
    QTest::newRow("kind of another case") << QJsonArray({QJsonObject({{"Type", "shape"}})});
    QTest::newRow("kind that is no text") << QJsonArray({QJsonObject({{"Type", 1}})});
    QTest::newRow("no kind") << QJsonArray({QJsonObject()});
    QTest::newRow("no objects") << QJsonArray({1, "Shape", QJsonArray({"Shape"}), QJsonValue::Null});
}

void tst_ScreenCommands::deselectsWhenOnlyUnknownKindsArePasted()
{
    QFETCH(QJsonArray, items);
    Board board;
    board.select({"B", "A"});
    ItemClipboard::put(items);
    board.pasteShortcutActivated();
    QCOMPARE(board.layers(), QStringList({"A", "B", "C", "D"}));
    QVERIFY(board.selected().isEmpty());
    QVERIFY(board.isConsistent());
    QVERIFY(!board.isModified());
}

void tst_ScreenCommands::pastesIntoTheNextLayout()
{
    Board screen;
    screen.select({"D", "B"});
    const QJsonArray copied = {screen.item("B")->toJson(), screen.item("D")->toJson()};
    screen.copyShortcutActivated();
    screen.loadLayout(board({shapeObject("X", QRect(0, 0, 20, 20))}));
    screen.pasteShortcutActivated();
    QCOMPARE(screen.layers(), QStringList({"X", "B", "D"}));
    QCOMPARE(screen.saveLayout().value("items").toArray().at(1), copied.at(0));
    QCOMPARE(screen.saveLayout().value("items").toArray().at(2), copied.at(1));
    QVERIFY(screen.isModified());
}

void tst_ScreenCommands::keepsPastedItemsOnASmallerScreen()
{
    Board board;
    board.select({"D"});
    board.copyShortcutActivated();
    Screen smaller;
    smaller.setWidgth(120);
    smaller.setHeight(60);
    smaller.pasteShortcutActivated();
    // At the place that it had, cut where the screen ends.
    QCOMPARE(smaller.items().first()->geometry(), QRect(70, 40, 60, 20));
    QCOMPARE(smaller.selection(), smaller.items());
}

void tst_ScreenCommands::ignoresAForeignClipboard_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("text") << "text/plain" << QByteArray("[{\"Type\": \"Shape\"}]");
    QTest::newRow("no bytes") << "Screen/ItemsJson" << QByteArray();
    QTest::newRow("no JSON") << "Screen/ItemsJson" << QByteArray("Home 12");
    QTest::newRow("an object") << "Screen/ItemsJson" << QByteArray("{\"Type\": \"Shape\"}");
    QTest::newRow("an empty array") << "Screen/ItemsJson" << QByteArray("[]");
}

void tst_ScreenCommands::ignoresAForeignClipboard()
{
    QFETCH(QString, format);
    QFETCH(QByteArray, bytes);
    Board board;
    board.select({"B", "A"});
    putOnClipboard(format, bytes);
    board.pasteShortcutActivated();
    QCOMPARE(board.layers(), QStringList({"A", "B", "C", "D"}));
    QCOMPARE(board.selected(), QStringList({"B", "A"}));
    QVERIFY(!board.isModified());
}

void tst_ScreenCommands::duplicatesTheSelectionOnTop()
{
    Board board;
    board.select({"C", "A"});
    command(board.item("B"), "duplicateSlot");
    QCOMPARE(board.layers(), QStringList({"A", "B", "C", "D", "A duplicate", "C duplicate"}));
    QCOMPARE(board.selected(), QStringList({"A duplicate", "C duplicate"}));
    QCOMPARE(board.items().at(5)->geometry(), board.item("C")->geometry());
    QCOMPARE(board.items().at(5)->getValues(), board.item("C")->getValues());
    QVERIFY(board.isConsistent());
    QVERIFY(board.isModified());
}

void tst_ScreenCommands::duplicatesADuplicate()
{
    Board board;
    board.item("C")->setMyName("Logo");
    board.select({"Logo"});
    command(board.item("Logo"), "duplicateSlot");
    QCOMPARE(board.selected(), QStringList("Logo duplicate"));
    command(board.item("Logo"), "duplicateSlot");
    QCOMPARE(board.layers(),
             QStringList({"A", "B", "Logo", "D", "Logo duplicate", "Logo duplicate duplicate"}));
    QCOMPARE(board.selected(), QStringList("Logo duplicate duplicate"));
}

void tst_ScreenCommands::duplicatesNothingWithoutSelection()
{
    Board board;
    command(board.item("B"), "duplicateSlot");
    QCOMPARE(board.layers(), QStringList({"A", "B", "C", "D"}));
    QVERIFY(board.selected().isEmpty());
    QVERIFY(!board.isModified());
}

void tst_ScreenCommands::deletesTheFrameAndTheSelection()
{
    Board board;
    board.select({"A", "C"});
    command(board.item("B"), "deleteSlot");
    QVERIFY(board.selected().isEmpty());
    QVERIFY(board.isConsistent());
    deleteScheduled();
    QCOMPARE(board.layers(), QStringList("D"));
    QVERIFY(board.isModified());
}

void tst_ScreenCommands::deletesTheFrameItselfLast()
{
    Board board;
    board.select({"A", "B", "C"});
    for (const ScreenItem *item : board.items())
        connect(item, &QObject::destroyed, this, [this, name = item->name()] { m_destroyed.append(name); });
    command(board.item("A"), "deleteSlot");
    deleteScheduled();
    QCOMPARE(m_destroyed, QStringList({"B", "C", "A"}));
    QCOMPARE(board.layers(), QStringList("D"));
}

void tst_ScreenCommands::deletesTheFrameAlone()
{
    Board board;
    command(board.item("B"), "deleteSlot");
    deleteScheduled();
    QCOMPARE(board.layers(), QStringList({"A", "C", "D"}));
}

void tst_ScreenCommands::showsTheSettingsOfWhatIsSelected_data()
{
    QTest::addColumn<QStringList>("selected");
    QTest::addColumn<QString>("commandName");
    QTest::addColumn<QString>("shown");
    QTest::newRow("one pasted") << QStringList("B") << "paste"
                                << "B";
    QTest::newRow("two pasted") << QStringList({"B", "C"}) << "paste" << QString();
    QTest::newRow("one duplicated") << QStringList("B") << "duplicate"
                                    << "B duplicate";
    QTest::newRow("two duplicated") << QStringList({"B", "C"}) << "duplicate" << QString();
    QTest::newRow("none duplicated") << QStringList() << "duplicate" << QString();
    QTest::newRow("all of four") << QStringList("B") << "all" << QString();
    QTest::newRow("all of one") << QStringList() << "all of one"
                                << "B";
    QTest::newRow("all of none") << QStringList() << "all of none" << QString();
}

void tst_ScreenCommands::showsTheSettingsOfWhatIsSelected()
{
    QFETCH(QStringList, selected);
    QFETCH(QString, commandName);
    QFETCH(QString, shown);
    Board board;
    board.select(selected);
    board.copyShortcutActivated();
    if (commandName.startsWith("all of"))
        qDeleteAll(QList<ScreenItem *>(board.items()).mid(commandName == "all of one" ? 1 : 0));
    if (commandName == "all of one")
        board.items().first()->setMyName("B");
    QList<ScreenItem *> told;
    connect(&board, &Screen::showSettingsFor, this, [&told](ScreenItem *item) { told.append(item); });
    int activations = 0;
    connect(&board, &Screen::deactivateFor, this, [&activations] { ++activations; });
    if (commandName == "paste")
        board.pasteShortcutActivated();
    else if (commandName == "duplicate")
        command(board.items().last(), "duplicateSlot");
    else
        board.selectAllShortcutActivated();
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.first() ? told.first()->name() : QString(), shown);
    QCOMPARE(told.first(), board.selection().size() == 1 ? board.selection().first() : nullptr);
    QCOMPARE(activations, 0);
}

void tst_ScreenCommands::ignoredPasteShowsNothingElse()
{
    Board board;
    board.select({"B"});
    int told = 0;
    connect(&board, &Screen::showSettingsFor, this, [&told] { ++told; });
    board.pasteShortcutActivated();
    putOnClipboard("Screen/ItemsJson", "no JSON");
    board.pasteShortcutActivated();
    QCOMPARE(told, 0);
}

void tst_ScreenCommands::movesLayers_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("layers");
    QTest::addColumn<bool>("modified");
    const QByteArray front("bringToFrontSlot");
    const QByteArray back("sendToBackSlot");
    const QByteArray up("sendToLayerUp");
    const QByteArray down("sendToLayerDown");
    QTest::newRow("bottom to front") << front << "A" << QStringList({"B", "C", "D", "A"}) << true;
    QTest::newRow("middle to front") << front << "C" << QStringList({"A", "B", "D", "C"}) << true;
    QTest::newRow("top to front") << front << "D" << QStringList({"A", "B", "C", "D"}) << true;
    QTest::newRow("top to back") << back << "D" << QStringList({"D", "A", "B", "C"}) << true;
    QTest::newRow("middle to back") << back << "B" << QStringList({"B", "A", "C", "D"}) << true;
    QTest::newRow("bottom to back") << back << "A" << QStringList({"A", "B", "C", "D"}) << true;
    QTest::newRow("bottom up") << up << "A" << QStringList({"B", "A", "C", "D"}) << true;
    QTest::newRow("middle up") << up << "C" << QStringList({"A", "B", "D", "C"}) << true;
    QTest::newRow("top up") << up << "D" << QStringList({"A", "B", "C", "D"}) << false;
    QTest::newRow("top down") << down << "D" << QStringList({"A", "B", "D", "C"}) << true;
    QTest::newRow("middle down") << down << "B" << QStringList({"B", "A", "C", "D"}) << true;
    QTest::newRow("bottom down") << down << "A" << QStringList({"A", "B", "C", "D"}) << false;
}

void tst_ScreenCommands::movesLayers()
{
    QFETCH(QByteArray, slot);
    QFETCH(QString, name);
    Board board;
    board.select({"A", "D"});
    command(board.item(name), slot.constData());
    QTEST(board.layers(), "layers");
    QTEST(board.isModified(), "modified");
    QCOMPARE(board.selected(), QStringList({"A", "D"}));
    QVERIFY(board.isConsistent());
}

void tst_ScreenCommands::ignoresFramesThatAreNotListed()
{
    Board board;
    ScreenItem stranger(nullptr);
    for (const char *slot : {"bringToFrontSlot", "sendToBackSlot", "sendToLayerUp", "sendToLayerDown",
                             "duplicateSlot", "deleteSlot"})
        command(&stranger, slot);
    board.moveLayerUp(&stranger);
    board.moveLayerDown(&stranger);
    QCOMPARE(board.layers(), QStringList({"A", "B", "C", "D"}));
    QVERIFY(!board.isModified());
}

void tst_ScreenCommands::followsTheShortcuts()
{
    QWidget window;
    Board board(&window);
    QWidget neighbour(&window);
    neighbour.setFocusPolicy(Qt::StrongFocus);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    neighbour.setFocus();
    const auto strike = [&window](Qt::Key key) {
        QTest::keyClick(window.windowHandle(), key, Qt::ControlModifier);
    };
    strike(Qt::Key_A);
    QCOMPARE(board.selected(), QStringList({"A", "B", "C", "D"}));
    strike(Qt::Key_C);
    QCOMPARE(clipboardNames(), QStringList({"A", "B", "C", "D"}));
    strike(Qt::Key_V);
    QCOMPARE(board.items().size(), 8);
    strike(Qt::Key_X);
    QTRY_COMPARE(board.layers(), QStringList({"A", "B", "C", "D"}));
    QVERIFY(board.selected().isEmpty());
}

void tst_ScreenCommands::leavesTheKeysToAWidgetThatEditsText()
{
    QWidget window;
    Board board(&window);
    QLineEdit neighbour("Home 12", &window);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    board.select({"B"});
    neighbour.setFocus();
    const auto strike = [&window](Qt::Key key) {
        QTest::keyClick(window.windowHandle(), key, Qt::ControlModifier);
    };
    for (const Qt::Key key : {Qt::Key_A, Qt::Key_C, Qt::Key_X, Qt::Key_V, Qt::Key_V})
        strike(key);
    QCOMPARE(neighbour.text(), QString("Home 12Home 12"));
    QCOMPARE(QGuiApplication::clipboard()->text(), QString("Home 12"));
    QCOMPARE(board.selected(), QStringList("B"));
    QCOMPARE(board.layers(), QStringList({"A", "B", "C", "D"}));
}

void tst_ScreenCommands::deletesByKeyWhatTheFocusSays_data()
{
    QTest::addColumn<QStringList>("selected");
    QTest::addColumn<QStringList>("layersByKey");
    QTest::addColumn<QStringList>("selectedAfterKey");
    QTest::addColumn<QStringList>("layersByCommand");
    // Only for one selected frame that is not the focused one do the two differ.
    QTest::newRow("nothing") << QStringList() << QStringList({"A", "C", "D"}) << QStringList()
                             << QStringList({"A", "C", "D"});
    QTest::newRow("the focused one") << QStringList("B") << QStringList({"A", "C", "D"}) << QStringList()
                                     << QStringList({"A", "C", "D"});
    QTest::newRow("another one") << QStringList("D") << QStringList({"A", "C", "D"}) << QStringList("D")
                                 << QStringList({"A", "C"});
    QTest::newRow("two others") << QStringList({"D", "A"}) << QStringList("C") << QStringList()
                                << QStringList("C");
}

void tst_ScreenCommands::deletesByKeyWhatTheFocusSays()
{
    QFETCH(QStringList, selected);
    Board byKey;
    byKey.select(selected);
    QTest::keyClick(byKey.item("B"), Qt::Key_Delete);
    deleteScheduled();
    QTEST(byKey.layers(), "layersByKey");
    QTEST(byKey.selected(), "selectedAfterKey");
    Board byCommand;
    byCommand.select(selected);
    command(byCommand.item("B"), "deleteSlot");
    deleteScheduled();
    QTEST(byCommand.layers(), "layersByCommand");
    QVERIFY(byCommand.selected().isEmpty());
}

BOARDWRIGHT_TEST_MAIN(tst_ScreenCommands)
#include "tst_screencommands.moc"
