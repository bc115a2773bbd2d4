#include "canvas/hiddenwhilefilling.h"
#include "tests/support/strictmain.h"

#include <QEventLoop>
#include <QVBoxLayout>

namespace
{
/// Counts the requests that a widget posts to itself and that are delivered in the end.
class RequestCounter : public QWidget
{
public:
    using QWidget::QWidget;
    int requests = 0;

protected:
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::PolishRequest || event->type() == QEvent::LayoutRequest)
            ++requests;
        return QWidget::event(event);
    }
};

/// Counts how often an item is painted.
class PaintCounter : public QWidget
{
public:
    PaintCounter(int &paints, QWidget *canvas) : QWidget(canvas), m_paints(paints)
    {
        resize(20, 20);
        show();
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        Q_UNUSED(event)
        ++m_paints;
    }

private:
    int &m_paints;
};

/// A canvas in a window of its own.
struct Board {
    Board() { window.show(); }

    bool isInView() { return QTest::qWaitForWindowExposed(&window); }

    /// Makes an item that counts its paints while the canvas is hidden; the canvas owns it.
    QWidget *fill(int &paints)
    {
        const HiddenWhileFilling filling(canvas, 2);
        return new PaintCounter(paints, &canvas);
    }

    QWidget window;
    QWidget canvas{&window};
};
} // namespace

class tst_HiddenWhileFilling : public QObject
{
    Q_OBJECT

private slots:
    void hidesACanvasInViewForSeveralItems()
    {
        QWidget canvas;
        canvas.show();
        {
            const HiddenWhileFilling filling(canvas, 2);
            QVERIFY(!canvas.isVisible());
        }
        QVERIFY(canvas.isVisible());
    }

    void keepsACanvasInViewForOneItem()
    {
        QWidget canvas;
        canvas.show();
        const HiddenWhileFilling filling(canvas, 1);
        QVERIFY(canvas.isVisible());
    }

    void doesNotShowACanvasThatWasOutOfView()
    {
        QWidget canvas;
        {
            const HiddenWhileFilling filling(canvas, 2);
        }
        QVERIFY(!canvas.isVisible());
    }

    void keepsTheFocusInTheCanvas()
    {
        QWidget window;
        QWidget neighbour(&window);
        neighbour.setFocusPolicy(Qt::StrongFocus);
        QWidget canvas(&window);
        QWidget item(&canvas);
        item.setFocusPolicy(Qt::StrongFocus);
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        item.setFocus();
        {
            const HiddenWhileFilling filling(canvas, 2);
        }
        QVERIFY(!neighbour.hasFocus());
    }

    void dropsTheRequestsOfANewItemAndItsParts()
    {
        QWidget canvas;
        canvas.show();
        RequestCounter item(&canvas);
        RequestCounter part(&item);
        {
            HiddenWhileFilling filling(canvas, 2);
            filling.itemMade(item);
        }
        QCoreApplication::sendPostedEvents();
        QCOMPARE(item.requests + part.requests, 0);
    }

    void leavesTheRequestsOfAnItemInView()
    {
        QWidget canvas;
        canvas.show();
        RequestCounter item(&canvas);
        HiddenWhileFilling filling(canvas, 1);
        filling.itemMade(item);
        QCoreApplication::sendPostedEvents();
        QVERIFY(item.requests > 0);
    }

    void laysANewItemOutAllTheSame()
    {
        QWidget canvas;
        canvas.resize(200, 200);
        canvas.show();
        QWidget item(&canvas);
        item.resize(100, 50);
        QVBoxLayout layout(&item);
        layout.setContentsMargins(0, 0, 0, 0);
        auto *part = new QWidget;
        {
            HiddenWhileFilling filling(canvas, 2);
            layout.addWidget(part);
            item.show();
            filling.itemMade(item);
        }
        QCOMPARE(part->size(), QSize(100, 50));
    }

    void paintsNewItemsOnceWhenTheCanvasIsPaintedAtOnce()
    {
        Board board;
        QVERIFY(board.isInView());
        int paints = 0;
        {
            const HiddenWhileFilling filling(board.canvas, 2);
            new PaintCounter(paints, &board.canvas);
            new PaintCounter(paints, &board.canvas);
        }
        board.canvas.repaint();
        QCoreApplication::processEvents();
        QCOMPARE(paints, 2);
    }

    void deletesNewItemsBeforeTheyArePainted()
    {
        Board board;
        QVERIFY(board.isInView());
        int paints = 0;
        QWidget *item = board.fill(paints);
        item->deleteLater();
        QEventLoop loop;
        connect(item, &QObject::destroyed, &loop, &QEventLoop::quit);
        loop.exec();
        QCOMPARE(paints, 0);
    }

    void paintsNewItemsInTheEnd()
    {
        Board board;
        QVERIFY(board.isInView());
        int paints = 0;
        board.fill(paints);
        QTRY_COMPARE(paints, 1);
    }
};

BOARDWRIGHT_TEST_MAIN(tst_HiddenWhileFilling)

#include "tst_hiddenwhilefilling.moc"
