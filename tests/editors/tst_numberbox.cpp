#include "editors/numberbox.h"

#include "tests/support/strictmain.h"

#include <QLineEdit>
#include <QSignalSpy>

#include <utility>

class tst_NumberBox : public QObject
{
    Q_OBJECT

private slots:
    void takesNumberBeyondLimitsAtTheEnd_data();
    void takesNumberBeyondLimitsAtTheEnd();
    void endsWithReturn();
    void endsWhenItIsHidden();
    void keepsValueForWhatIsNoNumber_data();
    void keepsValueForWhatIsNoNumber();
    void refusesWhatIsNoNumber_data();
    void refusesWhatIsNoNumber();
    void stepsFromTheNearestLimit();
    void keepsShownValueBeyondTypingLimits();
    void rangeGrowsForTypingLimits();
    void lowestHoldsWhenLimitsCross();
    void tellsThatAnEditBegins();
};

namespace
{
/// A shown box from 0 to 660 that shows 50, with the focus, and the values that it has told.
struct ShownBox {
    ShownBox()
    {
        box.setRange(0, 660);
        box.setValue(50);
        box.show();
        QObject::connect(&box, QOverload<int>::of(&QSpinBox::valueChanged), &box,
                         [this](int value) { told.append(value); });
        isReady = QTest::qWaitForWindowActive(&box);
        box.setFocus();
    }

    void type(const QString &text)
    {
        box.selectAll();
        QTest::keyClicks(&box, text);
    }

    QList<int> takeTold() { return std::exchange(told, {}); }

    NumberBox box;
    QList<int> told;
    bool isReady = false;
};
} // namespace

void tst_NumberBox::takesNumberBeyondLimitsAtTheEnd_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QList<int>>("toldAtOnce");
    QTest::addColumn<QList<int>>("toldAtTheEnd");
    using Numbers = QList<int>;
    QTest::newRow("a digit too many") << "700" << Numbers{7, 70} << Numbers{660};
    QTest::newRow("two digits too many") << "7000" << Numbers{7, 70} << Numbers{660};
    QTest::newRow("beyond any box") << "99999999999" << Numbers{9, 99} << Numbers{660};
    QTest::newRow("negative") << "-5" << Numbers{} << Numbers{0};
    QTest::newRow("negative zero") << "-0" << Numbers{} << Numbers{0};
    QTest::newRow("the limit itself") << "660" << Numbers{6, 66, 660} << Numbers{};
}

void tst_NumberBox::takesNumberBeyondLimitsAtTheEnd()
{
    QFETCH(QString, typed);
    ShownBox shown;
    QVERIFY(shown.isReady);
    shown.type(typed);
    QCOMPARE(shown.box.text(), typed);
    QTEST(shown.takeTold(), "toldAtOnce");
    shown.box.clearFocus();
    QTEST(shown.takeTold(), "toldAtTheEnd");
    QCOMPARE(shown.box.text(), QString::number(shown.box.value()));
}

void tst_NumberBox::endsWithReturn()
{
    ShownBox shown;
    shown.type("700");
    shown.takeTold();
    QTest::keyClick(&shown.box, Qt::Key_Return);
    QCOMPARE(shown.takeTold(), QList<int>{660});
    QCOMPARE(shown.box.text(), QString("660"));
}

void tst_NumberBox::endsWhenItIsHidden()
{
    ShownBox shown;
    shown.type("700");
    shown.takeTold();
    shown.box.hide();
    QCOMPARE(shown.takeTold(), QList<int>{660});
}

void tst_NumberBox::keepsValueForWhatIsNoNumber_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("nothing") << "";
    QTest::newRow("minus") << "-";
    QTest::newRow("plus") << "+";
}

void tst_NumberBox::keepsValueForWhatIsNoNumber()
{
    QFETCH(QString, typed);
    ShownBox shown;
    QVERIFY(shown.isReady);
    shown.box.selectAll();
    QTest::keyClick(&shown.box, Qt::Key_Delete);
    QTest::keyClicks(&shown.box, typed);
    QCOMPARE(shown.box.text(), typed);
    shown.box.clearFocus();
    QCOMPARE(shown.box.text(), QString("50"));
    QCOMPARE(shown.takeTold(), QList<int>());
}

void tst_NumberBox::refusesWhatIsNoNumber_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("left");
    QTest::newRow("a letter") << "7x"
                              << "7";
    QTest::newRow("a point") << "7.5"
                             << "75";
    QTest::newRow("two signs") << "--3"
                               << "-3";
    QTest::newRow("a letter beyond the limit") << "700x"
                                               << "700";
}

void tst_NumberBox::refusesWhatIsNoNumber()
{
    QFETCH(QString, typed);
    ShownBox shown;
    shown.type(typed);
    QTEST(shown.box.text(), "left");
}

void tst_NumberBox::stepsFromTheNearestLimit()
{
    ShownBox shown;
    shown.type("700");
    shown.takeTold();
    QTest::keyClick(&shown.box, Qt::Key_Down);
    QCOMPARE(shown.takeTold(), QList<int>({660, 659}));
    shown.type("700");
    shown.takeTold();
    QTest::keyClick(&shown.box, Qt::Key_Up);
    QCOMPARE(shown.takeTold(), QList<int>{660});
    shown.box.selectAll();
    QTest::keyClick(&shown.box, Qt::Key_Delete);
    QTest::keyClick(&shown.box, Qt::Key_Down);
    QCOMPARE(shown.takeTold(), QList<int>());
}

void tst_NumberBox::keepsShownValueBeyondTypingLimits()
{
    ShownBox shown;
    QVERIFY(shown.isReady);
    shown.box.limitTyping(60, 70);
    QCOMPARE(shown.box.value(), 50);
    shown.box.clearFocus();
    QCOMPARE(shown.box.text(), QString("50"));
    shown.box.setFocus();
    QTest::keyClick(&shown.box, Qt::Key_End);
    QTest::keyClicks(&shown.box, "1");
    QTest::keyClick(&shown.box, Qt::Key_Backspace);
    shown.box.clearFocus();
    QCOMPARE(shown.takeTold(), QList<int>());
    shown.box.setFocus();
    shown.type("9");
    shown.box.clearFocus();
    QCOMPARE(shown.takeTold(), QList<int>{60});
}

void tst_NumberBox::rangeGrowsForTypingLimits()
{
    ShownBox shown;
    shown.box.limitTyping(-10, 860);
    QCOMPARE(shown.box.minimum(), -10);
    QCOMPARE(shown.box.maximum(), 860);
    shown.box.limitTyping(0, 100);
    QCOMPARE(shown.box.minimum(), -10);
    QCOMPARE(shown.box.maximum(), 860);
    shown.type("101");
    QTest::keyClick(&shown.box, Qt::Key_Return);
    QCOMPARE(shown.takeTold(), QList<int>({1, 10, 100}));
}

void tst_NumberBox::lowestHoldsWhenLimitsCross()
{
    ShownBox shown;
    shown.box.limitTyping(20, -50);
    shown.type("7");
    QTest::keyClick(&shown.box, Qt::Key_Return);
    QCOMPARE(shown.takeTold(), QList<int>{20});
}

void tst_NumberBox::tellsThatAnEditBegins()
{
    ShownBox shown;
    QVERIFY(shown.isReady);
    shown.box.clearFocus();
    const QSignalSpy begun(&shown.box, &NumberBox::editBegins);
    shown.box.setFocus();
    QCOMPARE(begun.size(), 1);
}

BOARDWRIGHT_TEST_MAIN(tst_NumberBox)
#include "tst_numberbox.moc"
