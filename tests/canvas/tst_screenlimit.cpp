#include "canvas/itemclipboard.h"
#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "model/layoutfile.h"
#include "tests/canvas/shownscreen.h"
#include "tests/support/boards.h"
#include "tests/support/strictmain.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLoggingCategory>
#include <QMimeData>

/// The canvas takes so many items and no more, whatever the road. One full canvas serves all the functions.
class tst_ScreenLimit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();
    void tellsADocumentWithTooManyItems();
    void loadsUpToTheLimit();
    void clicksNothingOnAFullCanvas();
    void dropsNothingOnAFullCanvas();
    void readsNothingOntoAFullCanvas();
    void pastesNothingOnAFullCanvas();
    void duplicatesNothingOnAFullCanvas();
    void fillsTheRoomThatIsLeft();
    void deletesAllOfThem();

private:
    void makeRoomFor(int count);

    ShownScreen *m_shown = nullptr;
};

namespace
{
const int limit = 16384;

/// Small items, since it is the number that counts.
QJsonArray tinyItems(int count)
{
    QJsonArray items;
    for (int i = 0; i < count; ++i)
        items.append(QJsonObject({{"Type", "Shape"}, {"X", i % 800}, {"Y", i % 400}, {"W", 2}, {"H", 2}}));
    return items;
}

bool drop(Screen &screen)
{
    QMimeData data;
    data.setData("screen/screenItem", "Shape");
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&screen, &enter);
    QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(&screen, &event);
    return event.isAccepted();
}
} // namespace

void tst_ScreenLimit::initTestCase()
{
    QLoggingCategory::setFilterRules("default.debug=false");
    QCOMPARE(LayoutFile::maximumItems, limit);
    m_shown = new ShownScreen;
    QVERIFY(m_shown->ready);
    m_shown->screen.loadLayout(board(tinyItems(limit + 5)));
}

void tst_ScreenLimit::init()
{
    QCOMPARE(m_shown->screen.items().size(), limit);
    QVERIFY(m_shown->screen.items().last()->hasFocus());
}

void tst_ScreenLimit::cleanupTestCase()
{
    delete m_shown;
}

void tst_ScreenLimit::makeRoomFor(int count)
{
    for (int i = 0; i < count; ++i)
        delete m_shown->screen.items().first();
    QCOMPARE(m_shown->screen.items().size(), limit - count);
}

void tst_ScreenLimit::tellsADocumentWithTooManyItems()
{
    QVERIFY(!LayoutFile::hasTooManyItems(board(tinyItems(limit))));
    QVERIFY(LayoutFile::hasTooManyItems(board(tinyItems(limit + 1))));
    QVERIFY(!LayoutFile::hasTooManyItems({}));
    QVERIFY(!LayoutFile::hasTooManyItems({{"items", "many"}}));
}

void tst_ScreenLimit::loadsUpToTheLimit()
{
    QVERIFY(!m_shown->screen.isModified());
    QVERIFY(m_shown->screen.isVisible());
    // Painting so many siblings is what the limit is for.
    QVERIFY(!m_shown->window.grab().isNull());
}

void tst_ScreenLimit::clicksNothingOnAFullCanvas()
{
    m_shown->screen.newItem("Shape");
    QCOMPARE(m_shown->screen.items().size(), limit);
    makeRoomFor(1);
    m_shown->screen.newItem("Shape");
    QCOMPARE(m_shown->screen.items().last()->name(), QString("Shape 0"));
}

void tst_ScreenLimit::dropsNothingOnAFullCanvas()
{
    QVERIFY(!drop(m_shown->screen));
    QCOMPARE(m_shown->screen.items().size(), limit);
    makeRoomFor(1);
    QVERIFY(drop(m_shown->screen));
}

void tst_ScreenLimit::readsNothingOntoAFullCanvas()
{
    QCOMPARE(m_shown->screen.createItem(tinyItems(1).first().toObject()), nullptr);
}

void tst_ScreenLimit::pastesNothingOnAFullCanvas()
{
    ItemClipboard::put(tinyItems(3));
    m_shown->screen.pasteShortcutActivated();
    QCOMPARE(m_shown->screen.items().size(), limit);
    QVERIFY(m_shown->screen.selection().isEmpty());
}

void tst_ScreenLimit::duplicatesNothingOnAFullCanvas()
{
    ScreenItem *item = m_shown->screen.items().first();
    item->select();
    m_shown->screen.items().at(1)->select();
    m_shown->screen.duplicateSelection();
    QCOMPARE(m_shown->screen.items().size(), limit);
}

void tst_ScreenLimit::fillsTheRoomThatIsLeft()
{
    makeRoomFor(2);
    ItemClipboard::put(tinyItems(5));
    m_shown->screen.pasteShortcutActivated();
    QCOMPARE(m_shown->screen.selection(), m_shown->screen.items().mid(limit - 2));
}

void tst_ScreenLimit::deletesAllOfThem()
{
    Screen &screen = m_shown->screen;
    screen.selectAllShortcutActivated();
    QCOMPARE(screen.selection().size(), limit);
    QTest::keyClick(&screen, Qt::Key_Delete);
    QVERIFY(screen.selection().isEmpty());
    deleteScheduled();
    QVERIFY(screen.items().isEmpty());
    QVERIFY(stackedNames(screen).isEmpty());
}

BOARDWRIGHT_TEST_MAIN(tst_ScreenLimit)
#include "tst_screenlimit.moc"
