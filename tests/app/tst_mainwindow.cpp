#include "app/mainwindow.h"

#include "app/screencontainer.h"
#include "canvas/screen.h"
#include "model/fontfamilies.h"
#include "model/layoutfile.h"
#include "tests/app/commands.h"
#include "tests/model/bundledfonts.h"
#include "tests/support/dialoganswers.h"
#include "tests/support/strictmain.h"

#include <QChildEvent>
#include <QMetaMethod>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalSpy>
#include <QVBoxLayout>

// The window: how it is put together, its menus and its keys. What the file commands do has a test of its
// own.
class tst_MainWindow : public QObject
{
    Q_OBJECT

private slots:
    void dressesTheApplicationAndLoadsFontsBeforeTheFirstWidget();
    void buildsTheMenuBarBeforeTheCentralArea();
    void answersACopyOfTheFontFamilies();
    void letsFontsThatCannotBeBundledHaveStandIns();
    void slotsKeepOrderSpellingAndAccess_data();
    void slotsKeepOrderSpellingAndAccess();
    void startsWithAnEmptyBoardAndNoFile();
    void centralAreaHoldsTheScrollAreaWithoutMargin();
    void scrollAreaIsResizableAndHasAnEnabledHorizontalBar();
    void centresTheCanvasInTheShownWindow();
    void menuBarHoldsFileThenHelp();
    void menuEntriesKeepTheirTexts_data();
    void menuEntriesKeepTheirTexts();
    void entriesCarryNoKeyOfTheirOwn();
    void hasFiveShortcutsOnTheWindow();
    void keyGivesTheCommand_data();
    void keyGivesTheCommand();
    void newKeyLoadsTheEmptyLayout();
    void exitKeyQuits();
    void checkForUpdatesIsConnected();
    void aboutShowsTheToolkitsOwnBox();
    void closingQuitsWithoutAsking();
};

namespace
{
/// Notes the widgets that join a widget, and what was in force when the first one did.
class FirstWidgets : public QObject
{
public:
    FirstWidgets() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::ChildAdded && watched->isWidgetType())
            note(static_cast<QChildEvent *>(event)->child());
        return QObject::eventFilter(watched, event);
    }

    QObjectList widgets;
    bool wereDressed = false;
    QStringList families;

private:
    void note(QObject *child)
    {
        if (!child->isWidgetType())
            return;
        if (widgets.isEmpty()) {
            wereDressed = !qApp->styleSheet().isEmpty();
            families = FontFamilies::list();
        }
        widgets.append(child);
    }
};

struct ShownWindow : MainWindow {
    ShownWindow()
    {
        resize(1200, 700);
        show();
    }
};

QList<QMetaMethod> slotsOf(const QMetaObject &meta)
{
    QList<QMetaMethod> found;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        if (meta.method(index).methodType() == QMetaMethod::Slot)
            found.append(meta.method(index));
    }
    return found;
}
} // namespace

// The families cannot be unloaded, so this has to come first.
void tst_MainWindow::dressesTheApplicationAndLoadsFontsBeforeTheFirstWidget()
{
    REQUIRE_BUNDLED_FONTS();
    QVERIFY(MainWindow::fontFamilies().isEmpty());
    FirstWidgets first;
    const MainWindow window(nullptr);
    QVERIFY(first.wereDressed);
    QVERIFY(!first.families.isEmpty());
    QCOMPARE(first.families, MainWindow::fontFamilies());
    QVERIFY(qApp->styleSheet().contains("#454545"));
}

void tst_MainWindow::buildsTheMenuBarBeforeTheCentralArea()
{
    FirstWidgets first;
    const MainWindow window(nullptr);
    const int menuBar = first.widgets.indexOf(window.menuBar());
    const int central = first.widgets.indexOf(window.centralWidget());
    QVERIFY(menuBar >= 0);
    QVERIFY(central > menuBar);
}

void tst_MainWindow::answersACopyOfTheFontFamilies()
{
    QStringList copy = MainWindow::fontFamilies();
    copy.append("not a family of this program");
    QVERIFY(copy != MainWindow::fontFamilies());
    QCOMPARE(MainWindow::fontFamilies(), FontFamilies::list());
}

void tst_MainWindow::letsFontsThatCannotBeBundledHaveStandIns()
{
    QFont::removeSubstitutions("scoreboard");
    const MainWindow window(nullptr);
    QVERIFY(QFont::substitutes("scoreboard").contains("Handjet", Qt::CaseInsensitive));
}

void tst_MainWindow::slotsKeepOrderSpellingAndAccess_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<QByteArray>("parameter");
    QTest::addColumn<bool>("isPublic");

    const QByteArray none;
    QTest::newRow("open a file") << 0 << QByteArray("openFile(QString)") << QByteArray("filePath") << true;
    QTest::newRow("save a file") << 1 << QByteArray("saveFile(QString)") << QByteArray("filePath") << true;
    QTest::newRow("Save As") << 2 << QByteArray("saveAsActionTriggered()") << none << false;
    QTest::newRow("Open") << 3 << QByteArray("openActionTriggered()") << none << false;
    QTest::newRow("New") << 4 << QByteArray("newFileActionTriggered()") << none << false;
    QTest::newRow("Save") << 5 << QByteArray("saveActionTriggered()") << none << false;
    QTest::newRow("Export") << 6 << QByteArray("exportActionTriggered()") << none << false;
    QTest::newRow("Exit") << 7 << QByteArray("exitActionTriggered()") << none << false;
    QTest::newRow("Check for Updates, misspelled on purpose")
        << 8 << QByteArray("getUpdatesActionTrggered()") << none << false;
}

void tst_MainWindow::slotsKeepOrderSpellingAndAccess()
{
    QFETCH(int, place);
    QFETCH(QByteArray, signature);
    QFETCH(QByteArray, parameter);
    QFETCH(bool, isPublic);

    const QList<QMetaMethod> found = slotsOf(MainWindow::staticMetaObject);
    QCOMPARE(found.size(), 9);
    QCOMPARE(found.at(place).methodSignature(), signature);
    QCOMPARE(found.at(place).parameterNames().value(0), parameter);
    QCOMPARE(found.at(place).access(), isPublic ? QMetaMethod::Public : QMetaMethod::Protected);
}

void tst_MainWindow::startsWithAnEmptyBoardAndNoFile()
{
    const MainWindow window(nullptr);
    QVERIFY(window.isWindow());
    QCOMPARE(window.currentPath(), QString());
    QCOMPARE(window.canvas()->minimumSize(), QSize(800, 400));
    QCOMPARE(window.canvas()->maximumSize(), QSize(800, 400));
    QCOMPARE(window.canvas()->backgroundColor(), QColor(Qt::black));
    QVERIFY(window.canvas()->items().isEmpty());
    QVERIFY(!window.canvas()->isModified());
}

void tst_MainWindow::centralAreaHoldsTheScrollAreaWithoutMargin()
{
    const MainWindow window(nullptr);
    QWidget *central = window.centralWidget();
    QCOMPARE(central->metaObject()->className(), "QWidget");
    auto *layout = qobject_cast<QVBoxLayout *>(central->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    auto *container = central->findChild<ScreenContainer *>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(container);
    QCOMPARE(layout->itemAt(layout->count() - 1)->widget(), container);
    QCOMPARE(window.canvas()->parentWidget(), container->widget());
}

void tst_MainWindow::scrollAreaIsResizableAndHasAnEnabledHorizontalBar()
{
    const MainWindow window(nullptr);
    const auto *container = window.findChild<ScreenContainer *>();
    QVERIFY(container->widgetResizable());
    QCOMPARE(container->horizontalScrollBar()->orientation(), Qt::Horizontal);
    QVERIFY(container->horizontalScrollBar()->isEnabled());
}

void tst_MainWindow::centresTheCanvasInTheShownWindow()
{
    ShownWindow window;
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const auto *container = window.findChild<ScreenContainer *>();
    const QSize rest = container->size() - QSize(800, 400);
    QCOMPARE(window.canvas()->mapTo(container, QPoint(0, 0)), QPoint(rest.width() / 2, rest.height() / 2));
    QCOMPARE(container->width(), window.centralWidget()->width());
}

void tst_MainWindow::menuBarHoldsFileThenHelp()
{
    const MainWindow window(nullptr);
    const QList<QAction *> menus = window.menuBar()->actions();
    QCOMPARE(menus.size(), 2);
    QCOMPARE(menus.at(0)->text(), QString("File"));
    QCOMPARE(menus.at(1)->text(), QString("Help"));
    QCOMPARE(menuOf(window, "File")->actions().size(), 6);
    QCOMPARE(menuOf(window, "Help")->actions().size(), 2);
}

void tst_MainWindow::menuEntriesKeepTheirTexts_data()
{
    QTest::addColumn<QString>("menu");
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("text");

    QTest::newRow("New") << "File" << 0 << "New... (Ctrl + N)";
    QTest::newRow("Open") << "File" << 1 << "Open... (Ctrl + O)";
    QTest::newRow("Save") << "File" << 2 << "Save... (Ctrl+S)";
    QTest::newRow("Save As") << "File" << 3 << "Save As... (Ctrl+Shift+S)";
    QTest::newRow("Export") << "File" << 4 << "Export";
    QTest::newRow("Exit") << "File" << 5 << "Exit (Ctrl + Q)";
    QTest::newRow("Check for Updates") << "Help" << 0 << "Check for Updates";
    QTest::newRow("About") << "Help" << 1 << "About";
}

void tst_MainWindow::menuEntriesKeepTheirTexts()
{
    QFETCH(QString, menu);
    QFETCH(int, place);
    QFETCH(QString, text);

    const MainWindow window(nullptr);
    QCOMPARE(menuOf(window, menu)->actions().at(place)->text(), text);
}

void tst_MainWindow::entriesCarryNoKeyOfTheirOwn()
{
    const MainWindow window(nullptr);
    for (const QString &menu : {QString("File"), QString("Help")}) {
        const QList<QAction *> entries = menuOf(window, menu)->actions();
        for (const QAction *entry : entries)
            QVERIFY2(entry->shortcut().isEmpty(), qPrintable(entry->text()));
    }
}

void tst_MainWindow::hasFiveShortcutsOnTheWindow()
{
    const MainWindow window(nullptr);
    const QList<QShortcut *> shortcuts =
        window.findChildren<QShortcut *>(QString(), Qt::FindDirectChildrenOnly);
    QList<QKeySequence> keys;
    for (const QShortcut *shortcut : shortcuts) {
        QCOMPARE(shortcut->context(), Qt::WindowShortcut);
        keys.append(shortcut->key());
    }
    const QList<QKeySequence> expected = {QKeySequence("Ctrl+N"), QKeySequence("Ctrl+O"),
                                          QKeySequence("Ctrl+S"), QKeySequence("Ctrl+Shift+S"),
                                          QKeySequence("Ctrl+Q")};
    QCOMPARE(keys, expected);
}

void tst_MainWindow::keyGivesTheCommand_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("dialog");

    const int control = Qt::ControlModifier;
    const int shift = Qt::ShiftModifier;
    QTest::newRow("open") << int(Qt::Key_O) << control << "Open... (Ctrl + O)"
                          << "Select lay file";
    QTest::newRow("save") << int(Qt::Key_S) << control << "Save... (Ctrl+S)"
                          << "Input lay file path";
    QTest::newRow("save as") << int(Qt::Key_S) << (control | shift) << "Save As... (Ctrl+Shift+S)"
                             << "Input lay file path";
}

void tst_MainWindow::keyGivesTheCommand()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, entry);
    QFETCH(QString, dialog);

    ShownWindow window;
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QSignalSpy triggered(commandOf(window, entry), &QAction::triggered);
    DialogAnswers answers;
    answers.escape();
    QTest::keyClick(&window, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(triggered.size(), 1);
    QVERIFY(answers.areUsedUp());
    QCOMPARE(answers.seen().first().title, dialog);
}

void tst_MainWindow::newKeyLoadsTheEmptyLayout()
{
    ShownWindow window;
    window.openFile(LayoutFile::emptyTemplate());
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QSignalSpy triggered(commandOf(window, "New... (Ctrl + N)"), &QAction::triggered);
    QTest::keyClick(&window, Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(triggered.size(), 1);
    QCOMPARE(window.currentPath(), LayoutFile::emptyTemplate());
}

void tst_MainWindow::exitKeyQuits()
{
    ShownWindow window;
    window.openFile(LayoutFile::emptyTemplate());
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTimer::singleShot(0, &window, [&window] { QTest::keyClick(&window, Qt::Key_Q, Qt::ControlModifier); });
    QTimer::singleShot(20000, &window, [] { QCoreApplication::exit(1); });
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(window.isVisible());
}

void tst_MainWindow::checkForUpdatesIsConnected()
{
    struct Opened : MainWindow {
        static auto updates() { return &Opened::getUpdatesActionTrggered; }
    };
    const MainWindow window(nullptr);
    // Only a connection that is there can be cut.
    QVERIFY(
        disconnect(commandOf(window, "Check for Updates"), &QAction::triggered, &window, Opened::updates()));
}

void tst_MainWindow::aboutShowsTheToolkitsOwnBox()
{
    ShownWindow window;
    DialogAnswers answers;
    answers.press("OK");
    commandOf(window, "About")->trigger();
    QTRY_VERIFY(answers.areUsedUp());
    QVERIFY2(answers.seen().first().title.contains("Qt"), qPrintable(answers.seen().first().title));
}

void tst_MainWindow::closingQuitsWithoutAsking()
{
    ShownWindow window;
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.canvas()->newItem("Shape");
    QVERIFY(window.canvas()->isModified());
    const DialogAnswers answers;
    QTimer::singleShot(0, &window, &QWidget::close);
    QTimer::singleShot(20000, &window, [] { QCoreApplication::exit(1); });
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(!window.isVisible());
    QVERIFY(answers.areUsedUp());
}

BOARDWRIGHT_TEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
