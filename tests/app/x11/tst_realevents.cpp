#include "app/mainwindow.h"
#include "app/screencontainer.h"
#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "tests/app/x11/displaymain.h"
#include "tests/app/x11/pointer.h"
#include "tests/support/boards.h"
#include "tests/support/dialoganswers.h"
#include "tests/support/files.h"

#include <QCursor>
#include <QJsonDocument>
#include <QLineEdit>
#include <QTemporaryDir>

#include <algorithm>

// An operator's session with a real mouse and keyboard, on a real X display under a window manager.
class tst_RealEvents : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void windowIsMaximisedAndTheCanvasCentred();
    void clickSelectsAnItemAndTheBackgroundNone();
    void dragMovesAnItem();
    void dragStopsAtTheEdgeOfTheScreen();
    void handleResizesAnItem_data();
    void handleResizesAnItem();
    void cursorTellsWhatADragWouldDo_data();
    void cursorTellsWhatADragWouldDo();
    void controlArrowMovesAndShiftArrowResizes();
    void deleteKeyRemovesTheItem();
    void itemBarAddsAndLayerToolBarPlacesAnItem();
    void controlSAsksForAPathAndWritesTheBoard();
    void controlOOpensTheBoardThatIsTyped();

private:
    Screen &canvas() const { return *m_window->canvas(); }
    QPoint global(QPoint onCanvas) const { return canvas().mapToGlobal(onCanvas); }
    QPoint middleOf(const QString &button) const;
    ScreenItem *item() const { return canvas().items().constFirst(); }
    bool makeActive();

    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<MainWindow> m_window;
};

namespace
{
const QRect itemGeometry(200, 100, 120, 60);
const QPoint itemCentre(260, 130);
const QPoint background(20, 20);

/// Types the path into the file dialog as soon as that has the keyboard.
bool typeInto(QDialog *dialog, const QString &path)
{
    const bool hasKeyboard =
        dialog->isActiveWindow() && qobject_cast<QLineEdit *>(QApplication::focusWidget());
    return hasKeyboard && typeText(path) && pressKey("Return");
}
} // namespace

void tst_RealEvents::init()
{
    m_folder.reset(new QTemporaryDir);
    m_window.reset(new MainWindow(nullptr));
    m_window->showMaximized();
    QVERIFY(QTest::qWaitForWindowActive(m_window.data(), 30000));
    QTRY_VERIFY_WITH_TIMEOUT(m_window->height() > 600, 30000);
    canvas().loadLayout(board({shapeObject("Bar", itemGeometry)}));
    QVERIFY(click(global(background)));
    QTRY_VERIFY(canvas().selection().isEmpty());
}

void tst_RealEvents::cleanup()
{
    m_window.reset();
}

/// Clicks the item until it is the one to be edited.
bool tst_RealEvents::makeActive()
{
    return click(global(itemCentre)) && QTest::qWaitFor([this] { return item()->isActive(); }, 30000);
}

void tst_RealEvents::windowIsMaximisedAndTheCanvasCentred()
{
    QVERIFY(m_window->isMaximized());
    QTRY_COMPARE(m_window->frameGeometry().width(), 1280);
    const QWidget *view = canvas().parentWidget();
    const QSize rest = view->size() - QSize(800, 400);
    QCOMPARE(canvas().pos(), QPoint(rest.width() / 2, rest.height() / 2));
    // All the width that the settings column leaves.
    QVERIFY(view->width() >= 1270 - 330);
}

void tst_RealEvents::clickSelectsAnItemAndTheBackgroundNone()
{
    QVERIFY(click(global(itemCentre)));
    QTRY_COMPARE(canvas().selection(), QList<ScreenItem *>({item()}));
    QTRY_VERIFY(item()->isActive());
    QVERIFY(click(global(background)));
    QTRY_VERIFY(canvas().selection().isEmpty());
    QVERIFY(!item()->isSelected());
}

void tst_RealEvents::dragMovesAnItem()
{
    QVERIFY(makeActive());
    QVERIFY(drag(global(itemCentre), global(itemCentre + QPoint(37, -21))));
    QTRY_COMPARE(item()->geometry(), itemGeometry.translated(37, -21));
    QCOMPARE(item()->getValue("X").toInt(), 237);
    QCOMPARE(item()->getValue("Y").toInt(), 79);
}

void tst_RealEvents::dragStopsAtTheEdgeOfTheScreen()
{
    QVERIFY(makeActive());
    QVERIFY(drag(global(itemCentre), global(itemCentre + QPoint(-230, 300))));
    QTRY_COMPARE(item()->geometry(), QRect(QPoint(0, 400 - 60), itemGeometry.size()));
}

void tst_RealEvents::handleResizesAnItem_data()
{
    QTest::addColumn<QPoint>("handle");
    QTest::addColumn<QPoint>("step");
    QTest::addColumn<QRect>("geometry");

    // A right or bottom edge goes where the pointer is, a left or top edge as far as the pointer went.
    QTest::newRow("bottom right") << QPoint(319, 159) << QPoint(31, 21) << QRect(200, 100, 150, 80);
    QTest::newRow("right") << QPoint(319, 130) << QPoint(-19, 0) << QRect(200, 100, 100, 60);
    QTest::newRow("top left") << QPoint(201, 101) << QPoint(-20, -10) << QRect(180, 90, 140, 70);
    QTest::newRow("bottom, down to the least height")
        << QPoint(260, 159) << QPoint(0, -80) << QRect(200, 100, 120, 4);
}

void tst_RealEvents::handleResizesAnItem()
{
    QFETCH(QPoint, handle);
    QFETCH(QPoint, step);
    QFETCH(QRect, geometry);

    QVERIFY(makeActive());
    // The zone under the pointer is noted while no button is held.
    QVERIFY(movePointer(global(handle)));
    QTRY_VERIFY(item()->cursor().shape() != Qt::ArrowCursor);
    QVERIFY(drag(global(handle), global(handle + step)));
    QTRY_COMPARE(item()->geometry(), geometry);
}

void tst_RealEvents::cursorTellsWhatADragWouldDo_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<int>("shape");

    QTest::newRow("inside") << QPoint(250, 120) << int(Qt::ArrowCursor);
    QTest::newRow("top left") << QPoint(200, 100) << int(Qt::SizeFDiagCursor);
    QTest::newRow("top") << QPoint(260, 102) << int(Qt::SizeVerCursor);
    QTest::newRow("top right") << QPoint(319, 100) << int(Qt::SizeBDiagCursor);
    QTest::newRow("right, two pixels") << QPoint(318, 130) << int(Qt::SizeHorCursor);
    QTest::newRow("three pixels inside the right edge") << QPoint(317, 130) << int(Qt::ArrowCursor);
    QTest::newRow("left, three pixels") << QPoint(202, 130) << int(Qt::SizeHorCursor);
    QTest::newRow("bottom left") << QPoint(200, 159) << int(Qt::SizeBDiagCursor);
}

void tst_RealEvents::cursorTellsWhatADragWouldDo()
{
    QFETCH(QPoint, place);
    QFETCH(int, shape);

    QVERIFY(makeActive());
    QVERIFY(movePointer(global(itemCentre + QPoint(1, 1))));
    QVERIFY(movePointer(global(place)));
    QTRY_COMPARE(QCursor::pos(), global(place));
    QTRY_COMPARE(int(item()->cursor().shape()), shape);
}

void tst_RealEvents::controlArrowMovesAndShiftArrowResizes()
{
    QVERIFY(makeActive());
    QVERIFY(pressKey("ctrl+Right") && pressKey("ctrl+Down"));
    QTRY_COMPARE(item()->geometry(), itemGeometry.translated(1, 1));
    QVERIFY(pressKey("shift+Right") && pressKey("shift+Up"));
    QTRY_COMPARE(item()->geometry(), QRect(201, 101, 121, 59));
}

void tst_RealEvents::deleteKeyRemovesTheItem()
{
    QVERIFY(makeActive());
    QVERIFY(pressKey("Delete"));
    QTRY_VERIFY(canvas().items().isEmpty());
}

/// The middle of the bars' button that assistive tools know by this name.
QPoint tst_RealEvents::middleOf(const QString &button) const
{
    const QList<QWidget *> widgets = m_window->findChildren<QWidget *>();
    const auto found = std::find_if(widgets.begin(), widgets.end(), [&button](const QWidget *widget) {
        return widget->accessibleName() == button;
    });
    return found == widgets.end() ? QPoint() : (*found)->mapToGlobal((*found)->rect().center());
}

void tst_RealEvents::itemBarAddsAndLayerToolBarPlacesAnItem()
{
    QVERIFY(click(middleOf("Shape")));
    QTRY_COMPARE(canvas().items().size(), 2);
    ScreenItem *added = canvas().items().last();
    QVERIFY(click(middleOf("Align Right")) && click(middleOf("Center Vertically")));
    QTRY_COMPARE(added->geometry(), QRect(700, 175, 100, 50));
    QVERIFY(click(middleOf("Move Layer Down")));
    QTRY_COMPARE(canvas().items().first(), added);
    // The keyboard has stayed with the item all the time.
    QVERIFY(pressKey("ctrl+Left"));
    QTRY_COMPARE(added->x(), 699);
    QVERIFY(click(middleOf("Delete")));
    QTRY_COMPARE(canvas().items().size(), 1);
    QCOMPARE(item()->geometry(), itemGeometry);
}

void tst_RealEvents::controlSAsksForAPathAndWritesTheBoard()
{
    QVERIFY(makeActive());
    QVERIFY(drag(global(itemCentre), global(itemCentre + QPoint(10, 5))));
    QTRY_COMPARE(item()->pos(), QPoint(210, 105));
    const QString path = m_folder->filePath("typed.lay");
    DialogAnswers answers;
    answers.act([path](QDialog *dialog) { return typeInto(dialog, path); });
    QVERIFY(pressKey("ctrl+s"));
    QTRY_VERIFY_WITH_TIMEOUT(answers.areUsedUp(), 60000);
    QTRY_COMPARE(m_window->currentPath(), path);
    const QJsonObject expected = board({shapeObject("Bar", itemGeometry.translated(10, 5))});
    QCOMPARE(QJsonDocument::fromJson(readFile(path)).object(), expected);
}

void tst_RealEvents::controlOOpensTheBoardThatIsTyped()
{
    const QString path = m_folder->filePath("other.lay");
    const QJsonArray items = {shapeObject("One", {0, 0, 50, 20}), shapeObject("Two", {60, 0, 50, 20})};
    QVERIFY(writeFile(path, QJsonDocument(board(items)).toJson()));
    DialogAnswers answers;
    answers.act([path](QDialog *dialog) { return typeInto(dialog, path); });
    QVERIFY(pressKey("ctrl+o"));
    QTRY_VERIFY_WITH_TIMEOUT(answers.areUsedUp(), 60000);
    QTRY_COMPARE(canvas().items().size(), 2);
    QCOMPARE(m_window->currentPath(), path);
}

BOARDWRIGHT_DISPLAY_TEST_MAIN(tst_RealEvents)
#include "tst_realevents.moc"
