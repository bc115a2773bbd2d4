#include "model/widgetgeometry.h"

#include "tests/support/strictmain.h"

#include <QMoveEvent>
#include <QResizeEvent>
#include <QWidget>

#include <functional>

namespace
{
/// Notes the geometry events that it is sent; onResize may resize it once more.
class Listener : public QWidget
{
public:
    using QWidget::QWidget;

    QStringList heard;
    QSize formerSize;
    std::function<void(Listener &)> onResize;

protected:
    void moveEvent(QMoveEvent *event) override
    {
        heard << QStringLiteral("at %1,%2").arg(event->pos().x()).arg(event->pos().y());
    }
    void resizeEvent(QResizeEvent *event) override
    {
        formerSize = event->oldSize();
        heard << QStringLiteral("%1x%2").arg(event->size().width()).arg(event->size().height());
        if (onResize)
            onResize(*this);
    }
};
} // namespace

class tst_WidgetGeometry : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void tellsAHiddenWidgetAtOnce_data();
    void tellsAHiddenWidgetAtOnce();
    void tellsNothingWhenNothingChanges();
    void tellsNothingTwiceWhenTheWidgetIsShown();
    void turnsNegativeLengthsIntoZero();
    void deliversWhatAHandlerResizesAgain();
    void endsWhenAHandlerResizesToTheSameSize();
    void deliversHeldEventsOnceAndOnlyThose();
    void tellsNoFormerSize();

private:
    void showParent();

    QWidget *m_parent = nullptr;
    Listener *m_widget = nullptr;
};

void tst_WidgetGeometry::init()
{
    m_parent = new QWidget;
    m_parent->resize(200, 200);
    m_widget = new Listener(m_parent);
    m_widget->setGeometry(1, 2, 30, 40);
    sendHeldGeometryEvents(m_widget);
    m_widget->heard.clear();
}

void tst_WidgetGeometry::cleanup()
{
    delete m_parent;
}

void tst_WidgetGeometry::showParent()
{
    m_parent->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_parent));
}

void tst_WidgetGeometry::tellsAHiddenWidgetAtOnce_data()
{
    QTest::addColumn<bool>("isShown");
    QTest::newRow("hidden") << false;
    QTest::newRow("shown") << true;
}

void tst_WidgetGeometry::tellsAHiddenWidgetAtOnce()
{
    QFETCH(bool, isShown);
    if (isShown)
        showParent();
    m_widget->heard.clear();
    moveNow(m_widget, QPoint(5, -6));
    QCOMPARE(m_widget->heard, QStringList({"at 5,-6"}));
    resizeNow(m_widget, QSize(70, 80));
    QCOMPARE(m_widget->heard, QStringList({"at 5,-6", "70x80"}));
    QCOMPARE(m_widget->geometry(), QRect(5, -6, 70, 80));
}

void tst_WidgetGeometry::tellsNothingWhenNothingChanges()
{
    moveNow(m_widget, QPoint(1, 2));
    resizeNow(m_widget, QSize(30, 40));
    sendHeldGeometryEvents(m_widget);
    QCOMPARE(m_widget->heard, QStringList());
}

void tst_WidgetGeometry::tellsNothingTwiceWhenTheWidgetIsShown()
{
    moveNow(m_widget, QPoint(5, 6));
    resizeNow(m_widget, QSize(70, 80));
    m_widget->heard.clear();
    showParent();
    QCOMPARE(m_widget->heard, QStringList());
}

void tst_WidgetGeometry::turnsNegativeLengthsIntoZero()
{
    resizeNow(m_widget, QSize(-5, 10));
    QCOMPARE(m_widget->size(), QSize(0, 10));
    QCOMPARE(m_widget->heard, QStringList({"0x10"}));
}

void tst_WidgetGeometry::deliversWhatAHandlerResizesAgain()
{
    m_widget->onResize = [](Listener &widget) {
        widget.resize(widget.size().boundedTo(QSize(60, 50)));
    };
    resizeNow(m_widget, QSize(70, 80));
    QCOMPARE(m_widget->heard, QStringList({"70x80", "60x50"}));
    QCOMPARE(m_widget->size(), QSize(60, 50));
}

void tst_WidgetGeometry::endsWhenAHandlerResizesToTheSameSize()
{
    m_widget->onResize = [](Listener &widget) {
        widget.resize(widget.size());
    };
    resizeNow(m_widget, QSize(70, 80));
    QCOMPARE(m_widget->heard, QStringList({"70x80"}));
    QVERIFY(!m_widget->testAttribute(Qt::WA_PendingResizeEvent));
}

void tst_WidgetGeometry::deliversHeldEventsOnceAndOnlyThose()
{
    m_widget->move(9, 9);
    QCOMPARE(m_widget->heard, QStringList());
    sendHeldGeometryEvents(m_widget);
    QCOMPARE(m_widget->heard, QStringList({"at 9,9"}));
    sendHeldGeometryEvents(m_widget);
    QCOMPARE(m_widget->heard, QStringList({"at 9,9"}));
}

void tst_WidgetGeometry::tellsNoFormerSize()
{
    m_widget->formerSize = QSize(30, 40);
    resizeNow(m_widget, QSize(50, 60));
    QVERIFY(!m_widget->formerSize.isValid());
}

BOARDWRIGHT_TEST_MAIN(tst_WidgetGeometry)
#include "tst_widgetgeometry.moc"
