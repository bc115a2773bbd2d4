#include "canvas/screen.h"
#include "canvas/screenitem.h"

#include "tests/canvas/boardfixture.h"
#include "tests/support/menuuser.h"
#include "tests/support/strictmain.h"

#include <QMouseEvent>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTest>

#include <functional>

namespace
{
const QRect first(100, 100, 80, 60);
const QRect second(300, 100, 80, 60);

QStringList texts(const QMenu &menu)
{
    QStringList result;
    const QList<QAction *> actions = menu.actions();
    for (const QAction *action : actions)
        result.append(action->text());
    return result;
}

void sendRightPress(QWidget *widget)
{
    QMouseEvent event(QEvent::MouseButtonPress, QPointF(5, 5), Qt::RightButton, Qt::RightButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

QString layerNames(const Screen &screen)
{
    QStringList names;
    for (const ScreenItem *item : screen.items())
        names.append(item->name());
    return names.join(QLatin1Char(' '));
}
} // namespace

class tst_ScreenItemMenu : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void namesTheItem_data();
    void namesTheItem();
    void namesNoItemWhenSeveralAreSelected();
    void namesTheItemAgain();
    void opensAtThePress();
    void keepsSelectionOfOthers();
    void doesWhatTheEntrySays_data();
    void doesWhatTheEntrySays();
    void deletesSelectionAndFrame();
    void duplicatesWholeSelection();
    void keepsItemActiveWhileOpen();
    void letsFocusGoAfterwards();
    void survivesScheduledDeletionOfItsItem();
    void survivesSuddenDeletionOfItsItem();
    void staysClosedWhenEmpty();
    void staysClosedInRenderMode();
    void staysClosedWithoutActivity();

private:
    /// Presses the right button and answers whether a menu opened.
    bool openMenu(QPoint position, const std::function<void(QMenu &)> &use);
    QStringList menuTexts(QPoint position);

    QScopedPointer<BoardFixture> m_board;
    Screen *m_screen = nullptr;
    ScreenItem *m_first = nullptr;
    ScreenItem *m_second = nullptr;
};

void tst_ScreenItemMenu::init()
{
    m_board.reset(new BoardFixture);
    QVERIFY(m_board->isReady());
    m_screen = m_board->screen();
    m_first = m_board->addShape(first, "Title");
    m_second = m_board->addShape(second, "Clock");
}

void tst_ScreenItemMenu::cleanup()
{
    m_board.reset();
}

bool tst_ScreenItemMenu::openMenu(QPoint position, const std::function<void(QMenu &)> &use)
{
    const MenuUser user(use);
    m_board->press(position, Qt::RightButton);
    m_board->release(Qt::RightButton);
    QCoreApplication::processEvents();
    return user.hasSeenMenu();
}

QStringList tst_ScreenItemMenu::menuTexts(QPoint position)
{
    QStringList result;
    openMenu(position, [&result](QMenu &menu) { result = texts(menu); });
    return result;
}

void tst_ScreenItemMenu::namesTheItem_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    QTest::newRow("usual") << "Title"
                           << "Title";
    QTest::newRow("none") << ""
                          << "";
    QTest::newRow("place holder") << "100 %1"
                                  << "100 %1";
    QTest::newRow("shortcut mark") << "R&B"
                                   << "R&&B";
    QTest::newRow("as long as can be shown") << QString(2000, 'x') << QString(2000, 'x');
    QTest::newRow("longer than any screen is wide")
        << QString(10 * 1024 * 1024, 'x') << QString(2000, 'x') + QChar(0x2026);
}

void tst_ScreenItemMenu::namesTheItem()
{
    QFETCH(QString, name);
    QFETCH(QString, shown);
    m_first->setMyName(name);
    QCOMPARE(menuTexts(first.center()),
             (QStringList{"Bring to Front", "Send to Back", "Duplicate Layer \"" + shown + "\"",
                          "Delete Layer \"" + shown + "\""}));
}

void tst_ScreenItemMenu::namesNoItemWhenSeveralAreSelected()
{
    m_screen->selectAllShortcutActivated();
    QCOMPARE(menuTexts(first.center()),
             (QStringList{"Bring to Front", "Send to Back", "Duplicate Layers", "Delete Layers"}));
}

void tst_ScreenItemMenu::namesTheItemAgain()
{
    m_screen->selectAllShortcutActivated();
    menuTexts(first.center());
    m_screen->clearSelection();
    QCOMPARE(menuTexts(first.center()).mid(2),
             (QStringList{"Duplicate Layer \"Title\"", "Delete Layer \"Title\""}));
}

void tst_ScreenItemMenu::opensAtThePress()
{
    QPoint place;
    QVERIFY(openMenu(first.topLeft() + QPoint(7, 9), [&place](QMenu &menu) { place = menu.pos(); }));
    QCOMPARE(place, m_board->globalPosition(first.topLeft() + QPoint(7, 9)));
}

void tst_ScreenItemMenu::keepsSelectionOfOthers()
{
    m_second->select();
    QCOMPARE(menuTexts(first.center()).constLast(), QString("Delete Layer \"Title\""));
    QCOMPARE(m_screen->selection(), QList<ScreenItem *>{m_second});
}

void tst_ScreenItemMenu::doesWhatTheEntrySays_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<QString>("layers");
    QTest::newRow("bring to front") << 0 << "Clock Crest Title";
    QTest::newRow("send to back") << 1 << "Title Clock Crest";
    QTest::newRow("duplicate") << 2 << "Title Clock Crest Title duplicate";
    QTest::newRow("delete") << 3 << "Clock Crest";
}

void tst_ScreenItemMenu::doesWhatTheEntrySays()
{
    QFETCH(int, entry);
    QFETCH(QString, layers);
    m_board->addShape(QRect(500, 100, 80, 60), "Crest");
    m_board->click(first.center());
    QVERIFY(openMenu(first.center(), [entry](QMenu &menu) { choose(menu, entry); }));
    QTRY_COMPARE(layerNames(*m_screen), layers);
}

void tst_ScreenItemMenu::deletesSelectionAndFrame()
{
    m_board->addShape(QRect(500, 100, 80, 60), "Crest")->select();
    m_second->select();
    QVERIFY(openMenu(first.center(), [](QMenu &menu) { choose(menu, 3); }));
    QTRY_VERIFY(m_screen->items().isEmpty());
}

void tst_ScreenItemMenu::duplicatesWholeSelection()
{
    m_screen->selectAllShortcutActivated();
    QVERIFY(openMenu(first.center(), [](QMenu &menu) { choose(menu, 2); }));
    QCOMPARE(layerNames(*m_screen), QString("Title Clock Title duplicate Clock duplicate"));
}

void tst_ScreenItemMenu::keepsItemActiveWhileOpen()
{
    m_board->click(first.center());
    m_board->moveTo(first.topLeft());
    const QSignalSpy left(m_first, &ScreenItem::outFocus);
    bool wasActive = false;
    QVERIFY(openMenu(first.topLeft(), [&](QMenu &) { wasActive = m_first->isActive(); }));
    QVERIFY(wasActive);
    QVERIFY(m_first->isActive());
    QVERIFY(left.isEmpty());
    QCOMPARE(m_first->cursor().shape(), Qt::SizeFDiagCursor);
}

void tst_ScreenItemMenu::letsFocusGoAfterwards()
{
    menuTexts(first.center());
    QVERIFY(m_board->isReady());
    QVERIFY(m_first->isActive());
    m_second->setFocus();
    QVERIFY(!m_first->isActive());
}

void tst_ScreenItemMenu::survivesScheduledDeletionOfItsItem()
{
    QVERIFY(openMenu(first.center(), [this](QMenu &) { m_first->deleteLater(); }));
    QTRY_COMPARE(m_screen->items(), QList<ScreenItem *>{m_second});
    QVERIFY(!QApplication::activePopupWidget());
    m_board->click(second.center());
    QVERIFY(m_second->isSelected());
}

void tst_ScreenItemMenu::survivesSuddenDeletionOfItsItem()
{
    m_board->click(first.center());
    const MenuUser user([this](QMenu &) { delete m_first; });
    // Not through the window: the toolkit itself would send one more event to the item that was pressed.
    sendRightPress(m_first);
    QVERIFY(user.hasSeenMenu());
    QCOMPARE(m_screen->items(), QList<ScreenItem *>{m_second});
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_ScreenItemMenu::staysClosedWhenEmpty()
{
    m_first->findChild<QMenu *>()->clear();
    QVERIFY(!openMenu(first.center(), [](QMenu &) {}));
}

void tst_ScreenItemMenu::staysClosedInRenderMode()
{
    m_board->click(first.center());
    m_first->enterRenderMode();
    QVERIFY(!openMenu(first.center(), [](QMenu &) {}));
}

void tst_ScreenItemMenu::staysClosedWithoutActivity()
{
    const MenuUser user([](QMenu &) {});
    sendRightPress(m_first);
    QCoreApplication::processEvents();
    QVERIFY(!user.hasSeenMenu());
    QVERIFY(!m_first->isActive());
}

BOARDWRIGHT_TEST_MAIN(tst_ScreenItemMenu)
#include "tst_screenitemmenu.moc"
