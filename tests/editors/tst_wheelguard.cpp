#include "editors/wheelguard.h"

#include "tests/support/strictmain.h"
#include "tests/support/wheel.h"

#include <QComboBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QVBoxLayout>

class tst_WheelGuard : public QObject
{
    Q_OBJECT

private slots:
    void scrollsWhatIsAroundTheBoxWithoutFocus();
    void changesTheBoxWithTheFocus();
    void goesWithItsBox();
};

namespace
{
/// A number and a list in an area that is too low for them, and the guard of each.
struct ShownArea {
    ShownArea()
    {
        auto *tall = new QWidget;
        auto *column = new QVBoxLayout(tall);
        column->addWidget(number);
        column->addWidget(list);
        column->addWidget(other);
        number->setValue(5);
        list->addItems({"one", "two", "three"});
        list->setCurrentIndex(1);
        tall->setMinimumHeight(1000);
        area.setWidget(tall);
        area.setWidgetResizable(true);
        area.resize(200, 200);
        new WheelGuard(number);
        new WheelGuard(list);
        area.show();
    }

    int scrolled() const { return area.verticalScrollBar()->value(); }

    QScrollArea area;
    QSpinBox *number = new QSpinBox;
    QComboBox *list = new QComboBox;
    QSpinBox *other = new QSpinBox;
};
} // namespace

void tst_WheelGuard::scrollsWhatIsAroundTheBoxWithoutFocus()
{
    const ShownArea shown;
    QVERIFY(QTest::qWaitForWindowActive(shown.area.windowHandle()));
    shown.other->setFocus();
    int scrolled = 0;
    auto *digits = shown.number->findChild<QWidget *>("qt_spinbox_lineedit");
    const QWidgetList boxes = {shown.number, digits, shown.list};
    for (QWidget *box : boxes) {
        turnWheel(box, false);
        QVERIFY(shown.scrolled() > scrolled);
        scrolled = shown.scrolled();
        QVERIFY(shown.other->hasFocus());
    }
    QCOMPARE(shown.number->value(), 5);
    QCOMPARE(shown.list->currentIndex(), 1);
}

void tst_WheelGuard::changesTheBoxWithTheFocus()
{
    const ShownArea shown;
    QVERIFY(QTest::qWaitForWindowActive(shown.area.windowHandle()));
    shown.number->setFocus();
    turnWheel(shown.number, false);
    shown.list->setFocus();
    turnWheel(shown.list, false);
    QCOMPARE(shown.number->value(), 4);
    QCOMPARE(shown.list->currentIndex(), 2);
    QCOMPARE(shown.scrolled(), 0);
}

void tst_WheelGuard::goesWithItsBox()
{
    auto *box = new QSpinBox;
    const QPointer<WheelGuard> guard = new WheelGuard(box);
    delete box;
    QVERIFY(guard.isNull());
}

BOARDWRIGHT_TEST_MAIN(tst_WheelGuard)
#include "tst_wheelguard.moc"
