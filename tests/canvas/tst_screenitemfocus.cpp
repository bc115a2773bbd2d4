#include "canvas/screen.h"
#include "canvas/screenitem.h"

#include "tests/canvas/boardfixture.h"
#include "tests/support/strictmain.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTest>

namespace
{
const QRect first(100, 100, 80, 60);
const QRect second(300, 100, 80, 60);

/// Notes why widgets get the focus.
class FocusReasons : public QObject
{
public:
    FocusReasons() { qApp->installEventFilter(this); }

    QList<int> noted() const { return m_noted; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::FocusIn && watched->isWidgetType())
            m_noted.append(static_cast<QFocusEvent *>(event)->reason());
        return false;
    }

private:
    QList<int> m_noted;
};

void sendFocus(QWidget *widget, QEvent::Type type)
{
    QFocusEvent event(type);
    QCoreApplication::sendEvent(widget, &event);
}
} // namespace

class tst_ScreenItemFocus : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void clickGivesFocusAndActivity_data();
    void clickGivesFocusAndActivity();
    void focusMovesActivity();
    void focusInTellsOnceActive();
    void focusOutTellsBeforeActivityEnds();
    void focusKeepsSelection();
    void freshFrameTakesActivityFromTheFormer();
    void freshFrameTakesFocusForNoParticularReason();
    void renderModeDoesNotReactToFocus();
    void focusInWithoutCanvasIsIgnored();

private:
    QScopedPointer<BoardFixture> m_board;
    ScreenItem *m_first = nullptr;
    ScreenItem *m_second = nullptr;
    bool m_wasActive = false;
};

void tst_ScreenItemFocus::init()
{
    m_board.reset(new BoardFixture);
    QVERIFY(m_board->isReady());
    m_first = m_board->addShape(first);
    m_second = m_board->addShape(second);
}

void tst_ScreenItemFocus::cleanup()
{
    m_board.reset();
}

void tst_ScreenItemFocus::clickGivesFocusAndActivity_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("left") << static_cast<int>(Qt::LeftButton);
    QTest::newRow("middle") << static_cast<int>(Qt::MiddleButton);
}

void tst_ScreenItemFocus::clickGivesFocusAndActivity()
{
    QFETCH(int, button);
    const QSignalSpy focused(m_first, &ScreenItem::inFocus);
    m_board->click(first.center(), static_cast<Qt::MouseButton>(button));
    QVERIFY(m_first->hasFocus());
    QVERIFY(m_first->isActive());
    QCOMPARE(focused.size(), 1);
    QCOMPARE(focused.first().first().toBool(), true);
}

void tst_ScreenItemFocus::focusMovesActivity()
{
    m_board->click(first.center());
    const QSignalSpy left(m_first, &ScreenItem::outFocus);
    m_board->click(second.center());
    QVERIFY(!m_first->isActive());
    QVERIFY(m_second->isActive());
    QCOMPARE(left.size(), 1);
    QCOMPARE(left.first().first().toBool(), false);
}

void tst_ScreenItemFocus::focusInTellsOnceActive()
{
    m_wasActive = false;
    connect(m_first, &ScreenItem::inFocus, this, [this] { m_wasActive = m_first->isActive(); });
    m_board->click(first.center());
    QVERIFY(m_wasActive);
}

void tst_ScreenItemFocus::focusOutTellsBeforeActivityEnds()
{
    m_board->click(first.center());
    m_wasActive = false;
    connect(m_first, &ScreenItem::outFocus, this, [this] { m_wasActive = m_first->isActive(); });
    m_first->clearFocus();
    QVERIFY(m_wasActive);
    QVERIFY(!m_first->isActive());
}

void tst_ScreenItemFocus::focusKeepsSelection()
{
    m_board->click(first.center());
    m_first->clearFocus();
    QVERIFY(m_first->isSelected());
}

void tst_ScreenItemFocus::freshFrameTakesActivityFromTheFormer()
{
    m_board->click(first.center());
    const ScreenItem *fresh = m_board->addShape(QRect(0, 0, 50, 50));
    QVERIFY(!m_first->isActive());
    QVERIFY(fresh->hasFocus() && !fresh->isActive());
}

void tst_ScreenItemFocus::freshFrameTakesFocusForNoParticularReason()
{
    const FocusReasons reasons;
    m_board->addShape(QRect(0, 0, 50, 50));
    QCOMPARE(reasons.noted(), QList<int>{Qt::OtherFocusReason});
}

void tst_ScreenItemFocus::renderModeDoesNotReactToFocus()
{
    m_board->click(first.center());
    m_board->screen()->goToRenderMode();
    const QSignalSpy entered(m_second, &ScreenItem::inFocus);
    const QSignalSpy left(m_first, &ScreenItem::outFocus);
    m_second->setFocus();
    QVERIFY(m_first->isActive());
    QVERIFY(!m_second->isActive());
    QVERIFY(entered.isEmpty() && left.isEmpty());
}

void tst_ScreenItemFocus::focusInWithoutCanvasIsIgnored()
{
    ScreenItem frame(nullptr);
    const QSignalSpy entered(&frame, &ScreenItem::inFocus);
    sendFocus(&frame, QEvent::FocusIn);
    QVERIFY(!frame.isActive());
    QVERIFY(entered.isEmpty());
}

BOARDWRIGHT_TEST_MAIN(tst_ScreenItemFocus)
#include "tst_screenitemfocus.moc"
