#include "editors/panels/settingseditor.h"

#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "editors/filepathedit.h"
#include "editors/propertypanel.h"
#include "model/applicationstyle.h"
#include "tests/canvas/shownscreen.h"
#include "tests/editors/coloranswers.h"
#include "tests/support/boards.h"
#include "tests/support/strictmain.h"
#include "viewers/shape.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>

#include <new>

// The column in which the active item is edited.
class tst_SettingsEditor : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void slotsKeepTheirOrder();
    void isAScrollAreaOfFixedWidth();
    void nameRowStandsAboveThePanel();
    void showsNothingAtFirst();
    void showsNameAndPanelOfTheItem();
    void opensNoWindowOfItsOwn();
    void keepsThePanelOfTheActiveItem();
    void noneEmptiesThePanel();
    void itemThatComesBackGetsAPanelOfItsValuesNow();
    void frameWithoutContentShowsItsName();
    void typingRenamesTheItemAtEveryKeystroke();
    void typedNameMarksTheLayoutModified();
    void formerItemKeepsItsName();
    void editReachesTheItemAtOnce();
    void moveOnTheCanvasShowsInTheEditors();
    void tabGoesFromTheNameIntoThePanel_data();
    void tabGoesFromTheNameIntoThePanel();
    void deletedItemEmptiesThePanel();
    void itemDeletedKeepsTheActiveItem();
    void itemDeletedWithoutAPanelDoesNothing();
    void formerItemThatIsDeletedLeavesThePanelAlone();
    void formerItemThatIsGoingLeavesThePanelAlone();
    void formerPanelIsOutOfSightAtOnce();
    void formerPanelHearsNothingMore();
    void switchingLeavesNothingBehind();
    void survivesDeletionWhileAnEditorHasTheFocus_data();
    void survivesDeletionWhileAnEditorHasTheFocus();
    void survivesDeletionWhileTheNameHasTheFocus();
    void survivesDeletionWhileTheColourDialogIsOpen();
    void survivesDeletionWhileTheFileDialogIsOpen();
    void survivesAnotherItemWhileTheColourDialogIsOpen();
    void survivesDeletionWhileADragRuns();
    void survivesALoadWhileAPanelIsOpen();
    void survivesALoadWhileTheColourDialogIsOpen();
    void survivesAPanelRebuiltFromItsOwnSignal_data();
    void survivesAPanelRebuiltFromItsOwnSignal();
    void survivesDeletionFromItsOwnSignal();
    void itemAtADeadItemsAddressGetsItsOwnPanel();
    void leavesNothingToTheNextStyleSheet();
};

namespace
{
/// A content with a path, as pictures have one.
class Poster : public Shape
{
public:
    using Shape::Shape;

    void buildSettingsPanel(QWidget *host) override
    {
        auto *panel = new PropertyPanel(this, host);
        auto *path = new FilePathEdit(panel);
        panel->bind(path, "Path");
        panel->addCategory("Basic Properties")->addWidget(path, 0, 0, 1, 2);
    }
};

/// A canvas and, beside it, the column for its active item.
struct Desk : ShownScreen {
    Desk()
    {
        window.resize(1200, 700);
        editor.setGeometry(860, 0, 320, 700);
        QObject::connect(&screen, &Screen::showSettingsFor, &editor, &SettingsEditor::setActiveItem);
        editor.show();
        QCoreApplication::processEvents();
    }

    template <typename Content = Shape>
    ScreenItem *add(const QString &name, const QRect &geometry)
    {
        auto *item = new ScreenItem(&screen);
        new Content(item);
        item->setGeometry(geometry);
        item->setMyName(name);
        return item;
    }

    /// A shape whose panel is open.
    ScreenItem *addActive(const QString &name = "One", const QRect &geometry = {10, 20, 100, 50})
    {
        ScreenItem *item = add(name, geometry);
        item->activate();
        return item;
    }

    /// The column's own line edit and label lie directly in the scrolled widget.
    template <typename Widget>
    Widget *ofNameRow() const
    {
        return editor.widget()->findChild<Widget *>(QString(), Qt::FindDirectChildrenOnly);
    }
    QString shownName() const
    {
        return ofNameRow<QLineEdit>()->isVisible() ? ofNameRow<QLineEdit>()->text() : QString();
    }

    /// The one panel there is; null when there is none.
    PropertyPanel *panel() const
    {
        deleteScheduled();
        const QList<PropertyPanel *> panels = editor.findChildren<PropertyPanel *>();
        return panels.size() == 1 ? panels.first() : nullptr;
    }

    VariableEdit *edit(const QString &key) const { return editOf(panel(), key); }
    int number(const QString &key) const { return edit(key)->getValue().toInt(); }

    static VariableEdit *editOf(const PropertyPanel *panel, const QString &key)
    {
        const QList<VariableEdit *> edits = panel->findChildren<VariableEdit *>();
        for (VariableEdit *edit : edits) {
            if (edit->getKey() == key)
                return edit;
        }
        return nullptr;
    }

    bool isEmpty() const
    {
        deleteScheduled();
        return !ofNameRow<QLineEdit>()->isVisible() && !ofNameRow<QLabel>()->isVisible() &&
               editor.findChildren<PropertyPanel *>().isEmpty() && editor.widget()->layout()->count() == 1;
    }

    SettingsEditor editor{&window};
};

/// Counts the windows that are shown while it lives.
class ShownWindows : public QObject
{
public:
    ShownWindows() { qApp->installEventFilter(this); }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isShown = event->type() == QEvent::Show && watched->isWidgetType();
        count += isShown && static_cast<QWidget *>(watched)->isWindow();
        return QObject::eventFilter(watched, event);
    }
    int count = 0;
};

QList<QMetaMethod> slotsOf(const QMetaObject &meta)
{
    QList<QMetaMethod> found;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index)
        found.append(meta.method(index));
    return found;
}

/// Opens the dialog behind the button of an editor, does something while it is open, and waits for its end.
void actWhileOpen(VariableEdit *edit, const std::function<void()> &act)
{
    DialogAnswers answers;
    answers.act([&act](QDialog *) {
        // The dialog goes with its editor, soon after.
        act();
        return true;
    });
    QTest::mouseClick(edit->findChild<QPushButton *>(), Qt::LeftButton);
    QVERIFY(answers.areUsedUp());
    QVERIFY(!QApplication::activeModalWidget());
}
} // namespace

void tst_SettingsEditor::initTestCase()
{
    applyApplicationStyle();
}

void tst_SettingsEditor::slotsKeepTheirOrder()
{
    const QList<QMetaMethod> found = slotsOf(SettingsEditor::staticMetaObject);
    QCOMPARE(found.size(), 2);
    QCOMPARE(found.at(0).methodSignature(), QByteArray("setActiveItem(ScreenItem*)"));
    QCOMPARE(found.at(0).parameterNames().first(), QByteArray("item"));
    QCOMPARE(found.at(1).methodSignature(), QByteArray("itemDeleted(QObject*)"));
    QCOMPARE(found.at(1).parameterNames().first(), QByteArray("sndr"));
    for (const QMetaMethod &slot : found)
        QCOMPARE(slot.access(), QMetaMethod::Public);
}

void tst_SettingsEditor::isAScrollAreaOfFixedWidth()
{
    const SettingsEditor editor;
    QCOMPARE(QByteArray(SettingsEditor::staticMetaObject.superClass()->className()),
             QByteArray("QScrollArea"));
    QCOMPARE(editor.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    QVERIFY(editor.widgetResizable());
    QCOMPARE(editor.objectName(), QString("SettingsEditor"));
    QCOMPARE(editor.styleSheet(), QString("background-color:#454545;"));
    QCOMPARE(editor.minimumWidth(), 320);
    QCOMPARE(editor.maximumWidth(), 320);
}

void tst_SettingsEditor::nameRowStandsAboveThePanel()
{
    Desk desk;
    desk.addActive();
    const auto *column = qobject_cast<QVBoxLayout *>(desk.editor.widget()->layout());
    QVERIFY(column);
    QCOMPARE(column->count(), 2);
    const auto *row = qobject_cast<QHBoxLayout *>(column->itemAt(0)->layout());
    QVERIFY(row);
    QCOMPARE(row->spacing(), 10);
    QCOMPARE(row->count(), 2);
    const auto *label = qobject_cast<QLabel *>(row->itemAt(0)->widget());
    QCOMPARE(label->text(), QString("Name"));
    QCOMPARE(label->buddy(), row->itemAt(1)->widget());
    QCOMPARE(row->itemAt(1)->widget(), desk.ofNameRow<QLineEdit>());
    QCOMPARE(column->itemAt(1)->widget(), desk.panel()->parentWidget());
    QCoreApplication::processEvents();
    QVERIFY(desk.ofNameRow<QLineEdit>()->y() < desk.ofNameRow<QLineEdit>()->height());
    QVERIFY(desk.panel()->height() > desk.editor.height() / 2);
}

void tst_SettingsEditor::showsNothingAtFirst()
{
    Desk desk;
    QVERIFY(desk.isEmpty());
    desk.editor.setActiveItem(nullptr);
    QVERIFY(desk.isEmpty());
}

void tst_SettingsEditor::showsNameAndPanelOfTheItem()
{
    Desk desk;
    desk.addActive("Scores", {30, 40, 110, 60});
    QCOMPARE(desk.shownName(), QString("Scores"));
    QVERIFY(desk.ofNameRow<QLabel>()->isVisible());
    QVERIFY(desk.panel()->isVisible());
    QCOMPARE(desk.number("X"), 30);
    QCOMPARE(desk.number("Y"), 40);
    QCOMPARE(desk.number("W"), 110);
    QCOMPARE(desk.number("H"), 60);
}

void tst_SettingsEditor::opensNoWindowOfItsOwn()
{
    Desk desk;
    ScreenItem *other = desk.add("Two", {200, 20, 100, 50});
    const ShownWindows windows;
    desk.addActive();
    other->activate();
    desk.editor.setActiveItem(nullptr);
    QCoreApplication::processEvents();
    QCOMPARE(windows.count, 0);
}

void tst_SettingsEditor::keepsThePanelOfTheActiveItem()
{
    Desk desk;
    ScreenItem *item = desk.addActive();
    const QPointer<PropertyPanel> panel = desk.panel();
    QVERIFY(panel);
    desk.ofNameRow<QLineEdit>()->setCursorPosition(1);
    item->activate();
    QCOMPARE(desk.panel(), panel.data());
    QVERIFY(panel->isVisible());
    QCOMPARE(desk.ofNameRow<QLineEdit>()->cursorPosition(), 1);
}

void tst_SettingsEditor::noneEmptiesThePanel()
{
    Desk desk;
    ScreenItem *item = desk.addActive();
    desk.editor.setActiveItem(nullptr);
    QVERIFY(desk.isEmpty());
    // The item was forgotten, so it is not taken for the active one.
    item->activate();
    QCOMPARE(desk.shownName(), QString("One"));
    QVERIFY(desk.panel());
}

void tst_SettingsEditor::itemThatComesBackGetsAPanelOfItsValuesNow()
{
    Desk desk;
    ScreenItem *item = desk.addActive();
    const QPointer<PropertyPanel> panel = desk.panel();
    desk.addActive("Two", {200, 20, 100, 50});
    item->move(55, 66);
    item->setMyName("Another");
    item->activate();
    QVERIFY(desk.panel());
    QVERIFY(!panel);
    QCOMPARE(desk.shownName(), QString("Another"));
    QCOMPARE(desk.number("X"), 55);
    QCOMPARE(desk.number("Y"), 66);
}

void tst_SettingsEditor::frameWithoutContentShowsItsName()
{
    Desk desk;
    auto *item = new ScreenItem(&desk.screen);
    item->setMyName("Bare");
    item->activate();
    QCOMPARE(desk.shownName(), QString("Bare"));
    QVERIFY(!desk.panel());
    QCoreApplication::processEvents();
    QVERIFY(desk.ofNameRow<QLineEdit>()->y() < desk.ofNameRow<QLineEdit>()->height());
    delete item;
    QVERIFY(desk.isEmpty());
}

void tst_SettingsEditor::typingRenamesTheItemAtEveryKeystroke()
{
    Desk desk;
    QVERIFY(desk.ready);
    const ScreenItem *item = desk.addActive();
    auto *name = desk.ofNameRow<QLineEdit>();
    QTest::keyClick(name, Qt::Key_S);
    QCOMPARE(item->name(), QString("Ones"));
    QTest::keyClick(name, Qt::Key_Backspace);
    QCOMPARE(item->name(), QString("One"));
    QTest::keyClick(name, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(name, Qt::Key_Delete);
    QCOMPARE(item->name(), QString());
}

void tst_SettingsEditor::typedNameMarksTheLayoutModified()
{
    Desk desk;
    QVERIFY(desk.ready);
    desk.screen.loadLayout(board({shapeObject("Loaded", {10, 20, 100, 50})}));
    desk.screen.items().first()->activate();
    QVERIFY(!desk.screen.isModified());
    QTest::keyClick(desk.ofNameRow<QLineEdit>(), Qt::Key_Left);
    QVERIFY(!desk.screen.isModified());
    QTest::keyClick(desk.ofNameRow<QLineEdit>(), Qt::Key_S);
    QVERIFY(desk.screen.isModified());
}

void tst_SettingsEditor::formerItemKeepsItsName()
{
    Desk desk;
    const ScreenItem *former = desk.addActive();
    const ScreenItem *item = desk.addActive("Two");
    QCOMPARE(former->name(), QString("One"));
    QTest::keyClicks(desk.ofNameRow<QLineEdit>(), "!");
    QCOMPARE(former->name(), QString("One"));
    QCOMPARE(item->name(), QString("Two!"));
}

void tst_SettingsEditor::editReachesTheItemAtOnce()
{
    Desk desk;
    QVERIFY(desk.ready);
    ScreenItem *item = desk.addActive();
    desk.screen.loadLayout(board({shapeObject("Loaded", {10, 20, 100, 50})}));
    item = desk.screen.items().first();
    item->activate();
    QVERIFY(!desk.screen.isModified());
    auto *box = desk.edit("X")->findChild<QSpinBox *>();
    box->selectAll();
    QTest::keyClicks(box, "3");
    QCOMPARE(item->x(), 3);
    QVERIFY(desk.screen.isModified());
    QTest::keyClicks(box, "7");
    QCOMPARE(item->x(), 37);
}

void tst_SettingsEditor::moveOnTheCanvasShowsInTheEditors()
{
    Desk desk;
    QVERIFY(desk.ready);
    ScreenItem *item = desk.addActive();
    item->setGeometry(71, 82, 93, 64);
    QCOMPARE(desk.number("X"), 71);
    QCOMPARE(desk.number("Y"), 82);
    QCOMPARE(desk.number("W"), 93);
    QCOMPARE(desk.number("H"), 64);
}

void tst_SettingsEditor::tabGoesFromTheNameIntoThePanel_data()
{
    QTest::addColumn<int>("items");
    QTest::newRow("first panel") << 1;
    QTest::newRow("second panel") << 2;
}

void tst_SettingsEditor::tabGoesFromTheNameIntoThePanel()
{
    QFETCH(int, items);
    Desk desk;
    QVERIFY(desk.ready);
    QSpinBox ofAnotherBar(&desk.window);
    ofAnotherBar.show();
    for (int i = 0; i < items; ++i)
        desk.addActive();
    desk.ofNameRow<QLineEdit>()->setFocus();
    QTest::keyClick(desk.window.windowHandle(), Qt::Key_Tab);
    QVERIFY(desk.panel()->isAncestorOf(QApplication::focusWidget()));
    QTest::keyClick(desk.window.windowHandle(), Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), desk.ofNameRow<QLineEdit>());
}

void tst_SettingsEditor::deletedItemEmptiesThePanel()
{
    Desk desk;
    const ScreenItem *item = desk.addActive();
    delete item;
    QVERIFY(desk.isEmpty());
    desk.editor.setActiveItem(nullptr);
    QVERIFY(desk.isEmpty());
}

void tst_SettingsEditor::itemDeletedKeepsTheActiveItem()
{
    Desk desk;
    ScreenItem *item = desk.addActive();
    desk.editor.itemDeleted(item);
    QVERIFY(desk.isEmpty());
    item->activate();
    QVERIFY(desk.isEmpty());
    desk.addActive("Two");
    QCOMPARE(desk.shownName(), QString("Two"));
    QVERIFY(desk.panel());
}

void tst_SettingsEditor::itemDeletedWithoutAPanelDoesNothing()
{
    Desk desk;
    desk.editor.itemDeleted(nullptr);
    QVERIFY(desk.isEmpty());
}

void tst_SettingsEditor::formerItemThatIsDeletedLeavesThePanelAlone()
{
    Desk desk;
    const ScreenItem *former = desk.addActive();
    desk.addActive("Two");
    const QPointer<PropertyPanel> panel = desk.panel();
    delete former;
    QVERIFY(panel);
    QCOMPARE(desk.panel(), panel.data());
    QCOMPARE(desk.shownName(), QString("Two"));
}

// A frame's content goes before the frame tells its own end.
void tst_SettingsEditor::formerItemThatIsGoingLeavesThePanelAlone()
{
    Desk desk;
    ScreenItem *next = desk.add("Two", {200, 20, 100, 50});
    const ScreenItem *former = desk.addActive();
    connect(former->content(), &QObject::destroyed, &desk.editor,
            [editor = &desk.editor, next] { editor->setActiveItem(next); });
    delete former;
    QCOMPARE(desk.shownName(), QString("Two"));
    QVERIFY(desk.panel());
    QCOMPARE(desk.number("X"), 200);
}

void tst_SettingsEditor::formerPanelIsOutOfSightAtOnce()
{
    Desk desk;
    desk.addActive();
    const QPointer<PropertyPanel> panel = desk.panel();
    desk.addActive("Two");
    QVERIFY(!panel || !panel->isVisible());
    const QPointer<PropertyPanel> second = desk.panel();
    desk.editor.setActiveItem(nullptr);
    QVERIFY(!second || !second->isVisible());
}

void tst_SettingsEditor::formerPanelHearsNothingMore()
{
    Desk desk;
    ScreenItem *former = desk.addActive();
    const QPointer<VariableEdit> edit = desk.edit("X");
    // The panel itself goes a little later.
    desk.editor.setActiveItem(nullptr);
    QVERIFY(edit);
    former->move(77, 20);
    QCOMPARE(edit->getValue().toInt(), 10);
}

void tst_SettingsEditor::switchingLeavesNothingBehind()
{
    Desk desk;
    ScreenItem *one = desk.addActive();
    ScreenItem *two = desk.addActive("Two");
    QVERIFY(desk.panel());
    const int children = desk.editor.findChildren<QObject *>().size();
    for (int round = 0; round < 20; ++round) {
        one->activate();
        two->activate();
        deleteScheduled();
    }
    QCOMPARE(desk.editor.findChildren<QObject *>().size(), children);
    QCOMPARE(desk.editor.widget()->layout()->count(), 2);
}

void tst_SettingsEditor::survivesDeletionWhileAnEditorHasTheFocus_data()
{
    QTest::addColumn<QString>("key");
    for (const char *key : {"X", "Opacity", "Shape", "Fill", "Color"})
        QTest::newRow(key) << key;
}

void tst_SettingsEditor::survivesDeletionWhileAnEditorHasTheFocus()
{
    QFETCH(QString, key);

    Desk desk;
    QVERIFY(desk.ready);
    const ScreenItem *item = desk.addActive();
    desk.edit(key)->setFocus();
    QVERIFY(desk.panel()->isAncestorOf(QApplication::focusWidget()));
    // Half an entry: the editor would like to finish it when it loses the focus.
    if (auto *box = desk.edit(key)->findChild<QSpinBox *>())
        box->clear();
    delete item;
    QTest::keyClick(desk.window.windowHandle(), Qt::Key_5);
    QVERIFY(desk.isEmpty());
    desk.addActive("Next");
    QVERIFY(desk.panel());
}

void tst_SettingsEditor::survivesDeletionWhileTheNameHasTheFocus()
{
    Desk desk;
    QVERIFY(desk.ready);
    const ScreenItem *item = desk.addActive();
    desk.ofNameRow<QLineEdit>()->setFocus();
    delete item;
    QTest::keyClicks(desk.ofNameRow<QLineEdit>(), "typed on");
    QVERIFY(desk.isEmpty());
    const ScreenItem *next = desk.addActive("Next");
    QCOMPARE(desk.shownName(), QString("Next"));
    QCOMPARE(next->name(), QString("Next"));
}

void tst_SettingsEditor::survivesDeletionWhileTheColourDialogIsOpen()
{
    Desk desk;
    QVERIFY(desk.ready);
    const ScreenItem *item = desk.addActive();
    actWhileOpen(desk.edit("Color"), [item] { delete item; });
    QVERIFY(desk.isEmpty());
}

void tst_SettingsEditor::survivesDeletionWhileTheFileDialogIsOpen()
{
    Desk desk;
    QVERIFY(desk.ready);
    ScreenItem *item = desk.add<Poster>("Poster", {10, 20, 100, 50});
    item->activate();
    actWhileOpen(desk.edit("Path"), [item] { delete item; });
    QVERIFY(desk.isEmpty());
}

void tst_SettingsEditor::survivesAnotherItemWhileTheColourDialogIsOpen()
{
    Desk desk;
    QVERIFY(desk.ready);
    ScreenItem *next = desk.add("Two", {200, 20, 100, 50});
    ScreenItem *item = desk.addActive();
    const QVariant before = item->getValue("Color");
    actWhileOpen(desk.edit("Color"), [next] { next->activate(); });
    QCOMPARE(desk.shownName(), QString("Two"));
    QVERIFY(desk.panel());
    QCOMPARE(item->getValue("Color"), before);
    QCOMPARE(next->getValue("Color"), before);
}

void tst_SettingsEditor::survivesDeletionWhileADragRuns()
{
    Desk desk;
    QVERIFY(desk.ready);
    ScreenItem *item = desk.addActive();
    QWindow *window = desk.window.windowHandle();
    QTest::mouseClick(window, Qt::LeftButton, {}, {50, 40});
    QTest::mouseMove(window, {51, 40});
    QTest::mousePress(window, Qt::LeftButton, {}, {51, 40});
    QTest::mouseMove(window, {71, 50});
    QCOMPARE(item->pos(), QPoint(30, 30));
    QCOMPARE(desk.number("X"), 30);
    delete item;
    QTest::mouseMove(window, {91, 60});
    QTest::mouseRelease(window, Qt::LeftButton, {}, {91, 60});
    QVERIFY(desk.isEmpty());
    QVERIFY(desk.screen.items().isEmpty());
}

void tst_SettingsEditor::survivesALoadWhileAPanelIsOpen()
{
    Desk desk;
    QVERIFY(desk.ready);
    desk.addActive();
    desk.edit("X")->setFocus();
    desk.screen.loadLayout(board({shapeObject("Loaded", {60, 70, 100, 50})}));
    QVERIFY(!desk.screen.isModified());
    QVERIFY(desk.isEmpty());
    desk.screen.items().first()->activate();
    QCOMPARE(desk.shownName(), QString("Loaded"));
    QCOMPARE(desk.number("X"), 60);
}

void tst_SettingsEditor::survivesALoadWhileTheColourDialogIsOpen()
{
    Desk desk;
    QVERIFY(desk.ready);
    desk.addActive();
    actWhileOpen(desk.edit("Color"), [&desk] {
        desk.screen.loadLayout(board({shapeObject("Loaded", {60, 70, 100, 50})}));
    });
    QVERIFY(desk.isEmpty());
    QVERIFY(!desk.screen.isModified());
}

void tst_SettingsEditor::survivesAPanelRebuiltFromItsOwnSignal_data()
{
    QTest::addColumn<QString>("key");
    for (const char *key : {"X", "Opacity", "Shape", "Fill"})
        QTest::newRow(key) << key;
}

void tst_SettingsEditor::survivesAPanelRebuiltFromItsOwnSignal()
{
    QFETCH(QString, key);

    Desk desk;
    QVERIFY(desk.ready);
    ScreenItem *item = desk.addActive();
    const QPointer<PropertyPanel> before = desk.panel();
    VariableEdit *edit = desk.edit(key);
    const QVariant start = edit->getValue();
    connect(edit, &VariableEdit::valueEdited, &desk.editor, [editor = &desk.editor, item] {
        editor->setActiveItem(nullptr);
        editor->setActiveItem(item);
    });
    edit->setFocus();
    const bool isSwitch = edit->findChild<QCheckBox *>();
    QTest::keyClick(desk.window.windowHandle(), isSwitch ? Qt::Key_Space : Qt::Key_Down);
    QVERIFY(desk.panel());
    QVERIFY(!before);
    QVERIFY(desk.edit(key)->getValue() != start);
    QCOMPARE(desk.edit(key)->getValue(), item->getValue(key));
}

void tst_SettingsEditor::survivesDeletionFromItsOwnSignal()
{
    Desk desk;
    QVERIFY(desk.ready);
    const ScreenItem *item = desk.addActive();
    VariableEdit *edit = desk.edit("X");
    connect(edit, &VariableEdit::valueEdited, &desk.editor, [item] { delete item; });
    edit->setFocus();
    QTest::keyClick(desk.window.windowHandle(), Qt::Key_Up);
    QVERIFY(desk.isEmpty());
    QVERIFY(desk.screen.items().isEmpty());
}

void tst_SettingsEditor::itemAtADeadItemsAddressGetsItsOwnPanel()
{
    Desk desk;
    alignas(ScreenItem) unsigned char room[sizeof(ScreenItem)];
    const auto make = [&](const QString &name, int x) {
        auto *item = new (room) ScreenItem(&desk.screen);
        new Shape(item);
        item->move(x, 20);
        item->setMyName(name);
        item->activate();
        return item;
    };
    make("Dead", 10)->~ScreenItem();
    QVERIFY(desk.isEmpty());
    ScreenItem *item = make("New", 70);
    QCOMPARE(desk.shownName(), QString("New"));
    QVERIFY(desk.panel());
    QCOMPARE(desk.number("X"), 70);
    item->~ScreenItem();
    QVERIFY(desk.isEmpty());
}

// A style sheet visits every widget that has not told its end.
void tst_SettingsEditor::leavesNothingToTheNextStyleSheet()
{
    QScopedPointer<Desk> desk(new Desk);
    desk->addActive();
    desk->addActive("Two");
    const QPointer<QLineEdit> name = desk->ofNameRow<QLineEdit>();
    QSignalSpy ended(name, &QObject::destroyed);
    desk->addActive("Three");
    desk.reset();
    QCOMPARE(ended.size(), 1);
    applyApplicationStyle();
}

BOARDWRIGHT_TEST_MAIN(tst_SettingsEditor)
#include "tst_settingseditor.moc"
