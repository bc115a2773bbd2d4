#include "editors/intedit.h"

#include "tests/editors/editlog.h"
#include "tests/support/eventcounter.h"
#include "tests/support/strictmain.h"
#include "tests/support/wheel.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QStyleOptionSpinBox>

namespace
{
constexpr int widestLimit = 268435455;

/// A shown editor and what it is made of.
struct Shown {
    Shown()
    {
        edit.setValue("X", 5);
        edit.resize(200, 30);
        edit.show();
    }

    void type(const QString &text)
    {
        spinBox->selectAll();
        QTest::keyClicks(spinBox, text);
    }

    QPoint arrow(QStyle::SubControl which) const
    {
        QStyleOptionSpinBox option;
        option.initFrom(spinBox);
        option.subControls = QStyle::SC_All;
        return spinBox->style()->subControlRect(QStyle::CC_SpinBox, &option, which, spinBox).center();
    }

    IntEdit edit;
    QSpinBox *spinBox = edit.findChild<QSpinBox *>();
    QLabel *label = edit.findChild<QLabel *>();
};
} // namespace

class tst_IntEdit : public QObject
{
    Q_OBJECT

private slots:
    void tellsClassAndType();
    void startsAtZeroWithoutKeyInTheWidestRange();
    void liesInOneRowWithoutGaps();

    void showsKeyAndValueInSilence();
    void readsValueAsInteger_data();
    void readsValueAsInteger();
    void showsClampedValueInSilence_data();
    void showsClampedValueInSilence();
    void paintsNothingAnewForTheShownValue();
    void finishesHalfAnEntryWithTheValueItHas_data();
    void finishesHalfAnEntryWithTheValueItHas();
    void hidesLabelOfEmptyKey();
    void keepsKeyUnderAnotherLabel();
    void keepsLabelUntilKeyChanges();

    void tellsEveryTypedDigit();
    void stepsByKeys_data();
    void stepsByKeys();
    void stepsByArrows();
    void stepsByWheelWithTheFocusAlone();
    void stepsOnWhileArrowIsHeld();
    void staysSilentWhenTypedValueIsTheShownOne();

    void asksMaximumThenMinimumThenTells();
    void setsNoLimitBeforeBothAreAsked();
    void setsLimitsBeforeItTells();
    void keepsLimitThatIsNotAnswered_data();
    void keepsLimitThatIsNotAnswered();
    void keepsLimitsThatNobodyAnswers();
    void asksAfreshAtEachEdit();
    void tellsTypedValueThatNewLimitClamps();
    void tellsOnceWhenLimitsCross();
    void tellsNumberBeyondLimitAtTheEnd_data();
    void tellsNumberBeyondLimitAtTheEnd();
    void tellsNothingWhenTheLimitIsShownAlready();
    void asksForLimitsWhenItGetsTheFocus();
    void getsFreshLimitsAfterAnEarlierEdit();
    void keepsShownValueBeyondLimits();
    void startsWithGivenMinimumInSilence();

    void hasFocusInItsSpinBox();
    void namesItsSpinBoxByTheKey();
};

void tst_IntEdit::tellsClassAndType()
{
    IntEdit edit;
    QCOMPARE(edit.property("class"), QVariant(QString("IntEdit")));
    QCOMPARE(edit.getType(), 0);
}

void tst_IntEdit::startsAtZeroWithoutKeyInTheWidestRange()
{
    IntEdit edit;
    QCOMPARE(edit.getKey(), QString());
    QCOMPARE(edit.getValue(), QVariant(0));
    QVERIFY(edit.findChild<QLabel *>()->isHidden());
    QCOMPARE(edit.findChild<QSpinBox *>()->minimum(), -widestLimit);
    QCOMPARE(edit.findChild<QSpinBox *>()->maximum(), widestLimit);
}

void tst_IntEdit::liesInOneRowWithoutGaps()
{
    Shown shown;
    QVERIFY(qobject_cast<QHBoxLayout *>(shown.edit.layout()));
    QCOMPARE(shown.edit.layout()->contentsMargins(), QMargins());
    QCOMPARE(shown.edit.layout()->spacing(), 0);
    QCOMPARE(shown.label->geometry().topLeft(), QPoint(0, 0));
    QCOMPARE(shown.label->width(), shown.spinBox->x());
    QCOMPARE(shown.spinBox->geometry().bottomRight(), shown.edit.rect().bottomRight());
}

void tst_IntEdit::showsKeyAndValueInSilence()
{
    IntEdit edit;
    edit.show();
    EditLog log(&edit);
    edit.setValue("Line Width", -12);
    QCOMPARE(edit.getKey(), QString("Line Width"));
    QCOMPARE(edit.getValue(), QVariant(-12));
    QCOMPARE(edit.findChild<QSpinBox *>()->text(), QString("-12"));
    QCOMPARE(edit.findChild<QLabel *>()->text(), QString("Line Width"));
    QVERIFY(edit.findChild<QLabel *>()->isVisible());
    QCOMPARE(log.takeLines(), QStringList());
}

void tst_IntEdit::readsValueAsInteger_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("shown");

    QTest::newRow("digits") << QVariant("42") << 42;
    QTest::newRow("fraction") << QVariant(2.6) << 3;
    QTest::newRow("truth") << QVariant(true) << 1;
    QTest::newRow("words") << QVariant("wide") << 0;
    QTest::newRow("nothing") << QVariant() << 0;
    QTest::newRow("beyond the widest range") << QVariant(300000000) << widestLimit;
    QTest::newRow("below the widest range") << QVariant(-300000000) << -widestLimit;
}

void tst_IntEdit::readsValueAsInteger()
{
    QFETCH(QVariant, value);
    IntEdit edit;
    edit.setValue("X", 7);
    edit.setValue("X", value);
    QTEST(edit.getValue().toInt(), "shown");
}

void tst_IntEdit::showsClampedValueInSilence_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("shown");

    QTest::newRow("below") << 5 << 10;
    QTest::newRow("within") << 15 << 15;
    QTest::newRow("above") << 25 << 20;
}

void tst_IntEdit::showsClampedValueInSilence()
{
    QFETCH(int, value);
    Shown shown;
    EditLog log(&shown.edit);
    log.minimum = 10;
    log.maximum = 20;
    shown.type("12");
    log.takeLines();
    shown.edit.setValue("X", value);
    QTEST(shown.edit.getValue().toInt(), "shown");
    QCOMPARE(log.takeLines(), QStringList());
}

void tst_IntEdit::paintsNothingAnewForTheShownValue()
{
    Shown shown;
    QVERIFY(QTest::qWaitForWindowExposed(&shown.edit));
    QCoreApplication::processEvents();
    EventCounter paints(shown.spinBox, QEvent::Paint);
    shown.edit.setValue("X", 5);
    QCoreApplication::processEvents();
    QCOMPARE(paints.count, 0);
    shown.edit.setValue("X", 6);
    QTRY_VERIFY(paints.count > 0);
}

void tst_IntEdit::finishesHalfAnEntryWithTheValueItHas_data()
{
    QTest::addColumn<QString>("entry");

    QTest::newRow("nothing") << "";
    QTest::newRow("leading zeros") << "005";
}

void tst_IntEdit::finishesHalfAnEntryWithTheValueItHas()
{
    QFETCH(QString, entry);
    Shown shown;
    shown.spinBox->findChild<QLineEdit *>()->clear();
    QTest::keyClicks(shown.spinBox, entry);
    QCOMPARE(shown.spinBox->text(), entry);
    shown.edit.setValue("X", 5);
    QCOMPARE(shown.spinBox->text(), QString("5"));
}

void tst_IntEdit::hidesLabelOfEmptyKey()
{
    Shown shown;
    QVERIFY(shown.label->isVisible());
    shown.edit.setValue("", 1);
    QVERIFY(shown.label->isHidden());
    shown.edit.setValue("Y", 1);
    QVERIFY(shown.label->isVisible());
}

void tst_IntEdit::keepsKeyUnderAnotherLabel()
{
    Shown shown;
    EditLog log(&shown.edit);
    shown.edit.setLabelText("Left");
    QCOMPARE(shown.label->text(), QString("Left"));
    QVERIFY(shown.label->isVisible());
    shown.edit.setLabelText("");
    QVERIFY(shown.label->isHidden());
    QCOMPARE(shown.edit.getKey(), QString("X"));
    shown.type("8");
    QCOMPARE(log.takeEdits(), QStringList("valueEdited X int 8"));
}

void tst_IntEdit::keepsLabelUntilKeyChanges()
{
    Shown shown;
    shown.edit.setLabelText("");
    shown.edit.setValue("X", 9);
    QVERIFY(shown.label->isHidden());
    shown.edit.setValue("Y", 9);
    QVERIFY(shown.label->isVisible());
    QCOMPARE(shown.label->text(), QString("Y"));
}

void tst_IntEdit::tellsEveryTypedDigit()
{
    Shown shown;
    EditLog log(&shown.edit);
    shown.type("-120");
    QCOMPARE(log.takeEdits(),
             QStringList({"valueEdited X int -1", "valueEdited X int -12", "valueEdited X int -120"}));
    QCOMPARE(shown.edit.getValue(), QVariant(-120));
}

void tst_IntEdit::stepsByKeys_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<int>("value");

    QTest::newRow("up") << Qt::Key_Up << 6;
    QTest::newRow("down") << Qt::Key_Down << 4;
    QTest::newRow("page up") << Qt::Key_PageUp << 15;
    QTest::newRow("page down") << Qt::Key_PageDown << -5;
}

void tst_IntEdit::stepsByKeys()
{
    QFETCH(Qt::Key, key);
    QFETCH(int, value);
    Shown shown;
    EditLog log(&shown.edit);
    QTest::keyClick(shown.spinBox, key);
    QCOMPARE(log.takeEdits(), QStringList(QString("valueEdited X int %1").arg(value)));
}

void tst_IntEdit::stepsByArrows()
{
    Shown shown;
    EditLog log(&shown.edit);
    QTest::mouseClick(shown.spinBox, Qt::LeftButton, {}, shown.arrow(QStyle::SC_SpinBoxUp));
    QCOMPARE(log.takeEdits(), QStringList("valueEdited X int 6"));
    QTest::mouseClick(shown.spinBox, Qt::LeftButton, {}, shown.arrow(QStyle::SC_SpinBoxDown));
    QCOMPARE(log.takeEdits(), QStringList("valueEdited X int 5"));
}

void tst_IntEdit::stepsByWheelWithTheFocusAlone()
{
    Shown shown;
    EditLog log(&shown.edit);
    QVERIFY(QTest::qWaitForWindowActive(&shown.edit));
    shown.spinBox->setFocus();
    turnWheel(shown.spinBox, true);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited X int 6"));
    shown.spinBox->clearFocus();
    turnWheel(shown.spinBox, true);
    QVERIFY(!shown.spinBox->hasFocus());
    QCOMPARE(log.takeEdits(), QStringList());
}

void tst_IntEdit::stepsOnWhileArrowIsHeld()
{
    Shown shown;
    EditLog log(&shown.edit);
    log.minimum = 0;
    log.maximum = 600;
    shown.type("6");
    const QPoint up = shown.arrow(QStyle::SC_SpinBoxUp);
    QTest::mousePress(shown.spinBox, Qt::LeftButton, {}, up);
    QTRY_VERIFY(shown.edit.getValue().toInt() >= 9);
    QTest::mouseRelease(shown.spinBox, Qt::LeftButton, {}, up);
}

void tst_IntEdit::staysSilentWhenTypedValueIsTheShownOne()
{
    Shown shown;
    EditLog log(&shown.edit);
    shown.type("5");
    QCOMPARE(log.takeLines(), QStringList());
}

void tst_IntEdit::asksMaximumThenMinimumThenTells()
{
    Shown shown;
    EditLog log(&shown.edit);
    shown.type("8");
    QCOMPARE(log.takeLines(), QStringList({"debug: void IntEdit::valueChanged(int value)", "getMax X",
                                           "getMin X", "valueEdited X int 8"}));
}

void tst_IntEdit::setsNoLimitBeforeBothAreAsked()
{
    Shown shown;
    EditLog log(&shown.edit);
    log.maximum = 600;
    int maximumAtSecondQuestion = 0;
    connect(&shown.edit, &VariableEdit::getMin, this, [&] {
        maximumAtSecondQuestion = shown.spinBox->maximum();
        return QVariant();
    });
    shown.type("8");
    QCOMPARE(maximumAtSecondQuestion, widestLimit);
}

void tst_IntEdit::setsLimitsBeforeItTells()
{
    Shown shown;
    EditLog log(&shown.edit);
    log.minimum = -3;
    log.maximum = 600;
    QList<int> limitsWhenTold;
    connect(&shown.edit, &VariableEdit::valueEdited, this,
            [&] { limitsWhenTold << shown.spinBox->minimum() << shown.spinBox->maximum(); });
    shown.type("8");
    QCOMPARE(limitsWhenTold, QList<int>({-3, 600}));
}

void tst_IntEdit::keepsLimitThatIsNotAnswered_data()
{
    QTest::addColumn<QVariant>("minimum");
    QTest::addColumn<QVariant>("maximum");
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");

    QTest::newRow("neither") << QVariant() << QVariant() << 1 << 50;
    QTest::newRow("upper alone") << QVariant() << QVariant(40) << 1 << 40;
    QTest::newRow("lower alone") << QVariant(-2) << QVariant() << -2 << 50;
    QTest::newRow("both, as text") << QVariant("2") << QVariant("60") << 2 << 60;
}

void tst_IntEdit::keepsLimitThatIsNotAnswered()
{
    QFETCH(QVariant, minimum);
    QFETCH(QVariant, maximum);
    Shown shown;
    EditLog log(&shown.edit);
    log.minimum = 1;
    log.maximum = 50;
    shown.type("8");
    log.minimum = minimum;
    log.maximum = maximum;
    shown.type("9");
    QTEST(shown.spinBox->minimum(), "lowest");
    QTEST(shown.spinBox->maximum(), "highest");
}

void tst_IntEdit::keepsLimitsThatNobodyAnswers()
{
    Shown shown;
    shown.type("8");
    QCOMPARE(shown.spinBox->minimum(), -widestLimit);
    QCOMPARE(shown.spinBox->maximum(), widestLimit);
}

void tst_IntEdit::asksAfreshAtEachEdit()
{
    Shown shown;
    EditLog log(&shown.edit);
    log.maximum = 60;
    shown.type("8");
    QCOMPARE(shown.spinBox->maximum(), 60);
    log.maximum = 700;
    shown.type("9");
    QCOMPARE(shown.spinBox->maximum(), 700);
}

void tst_IntEdit::tellsTypedValueThatNewLimitClamps()
{
    Shown shown;
    EditLog log(&shown.edit);
    log.maximum = 6;
    shown.type("9");
    QCOMPARE(log.takeEdits(), QStringList("valueEdited X int 9"));
    QCOMPARE(shown.edit.getValue(), QVariant(6));
    QCOMPARE(shown.spinBox->text(), QString("6"));
}

void tst_IntEdit::tellsOnceWhenLimitsCross()
{
    Shown shown;
    EditLog log(&shown.edit);
    log.minimum = 0;
    log.maximum = -50;
    QTest::keyClick(shown.spinBox, Qt::Key_Up);
    QCOMPARE(log.takeLines(), QStringList({"debug: void IntEdit::valueChanged(int value)", "getMax X",
                                           "getMin X", "valueEdited X int 6"}));
    QCOMPARE(shown.edit.getValue(), QVariant(0));
}

void tst_IntEdit::tellsNumberBeyondLimitAtTheEnd_data()
{
    QTest::addColumn<bool>("isReturn");
    QTest::newRow("return") << true;
    QTest::newRow("another widget gets the focus") << false;
}

void tst_IntEdit::tellsNumberBeyondLimitAtTheEnd()
{
    QFETCH(bool, isReturn);
    Shown shown;
    EditLog log(&shown.edit);
    log.maximum = 600;
    QVERIFY(QTest::qWaitForWindowActive(&shown.edit));
    shown.spinBox->setFocus();
    shown.type("700");
    QCOMPARE(log.takeEdits(), QStringList({"valueEdited X int 7", "valueEdited X int 70"}));
    QCOMPARE(shown.edit.getValue(), QVariant(70));
    QCOMPARE(shown.spinBox->text(), QString("700"));
    if (isReturn)
        QTest::keyClick(shown.spinBox, Qt::Key_Return);
    else
        shown.spinBox->clearFocus();
    QCOMPARE(log.takeEdits(), QStringList("valueEdited X int 600"));
    QCOMPARE(shown.spinBox->text(), QString("600"));
}

void tst_IntEdit::tellsNothingWhenTheLimitIsShownAlready()
{
    Shown shown;
    EditLog log(&shown.edit);
    log.maximum = 5;
    QVERIFY(QTest::qWaitForWindowActive(&shown.edit));
    shown.spinBox->setFocus();
    shown.type("90");
    shown.spinBox->clearFocus();
    QCOMPARE(log.takeEdits(), QStringList());
    QCOMPARE(shown.spinBox->text(), QString("5"));
}

void tst_IntEdit::asksForLimitsWhenItGetsTheFocus()
{
    Shown shown;
    QVERIFY(QTest::qWaitForWindowActive(&shown.edit));
    shown.spinBox->clearFocus();
    EditLog log(&shown.edit);
    log.minimum = 0;
    log.maximum = 42;
    shown.spinBox->setFocus();
    QCOMPARE(log.takeLines(), QStringList({"getMax X", "getMin X"}));
    // The range is that of the last edit, and of this one once a value is told.
    QCOMPARE(shown.spinBox->maximum(), widestLimit);
    QTest::keyClick(shown.spinBox, Qt::Key_End);
    QTest::keyClicks(shown.spinBox, "9");
    QCOMPARE(log.takeLines(), QStringList());
    QTest::keyClick(shown.spinBox, Qt::Key_Return);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited X int 42"));
}

void tst_IntEdit::getsFreshLimitsAfterAnEarlierEdit()
{
    Shown shown;
    EditLog log(&shown.edit);
    log.minimum = 0;
    log.maximum = 600;
    shown.type("8");
    log.maximum = 860;
    QVERIFY(QTest::qWaitForWindowActive(&shown.edit));
    shown.spinBox->setFocus();
    shown.spinBox->selectAll();
    log.takeLines();
    shown.spinBox->findChild<QLineEdit *>()->insert("700");
    QCOMPARE(log.takeEdits(), QStringList("valueEdited X int 700"));
}

void tst_IntEdit::keepsShownValueBeyondLimits()
{
    Shown shown;
    shown.edit.setValue("X", -20);
    EditLog log(&shown.edit);
    log.minimum = 0;
    log.maximum = 600;
    QVERIFY(QTest::qWaitForWindowActive(&shown.edit));
    shown.spinBox->clearFocus();
    shown.spinBox->setFocus();
    shown.spinBox->clearFocus();
    QCOMPARE(log.takeEdits(), QStringList());
    QCOMPARE(shown.spinBox->text(), QString("-20"));
}

void tst_IntEdit::startsWithGivenMinimumInSilence()
{
    Shown shown;
    EditLog log(&shown.edit);
    shown.edit.setMinimum(7);
    QCOMPARE(log.takeLines(), QStringList());
    QCOMPARE(shown.edit.getValue(), QVariant(7));
    QTest::keyClick(shown.spinBox, Qt::Key_Down);
    QCOMPARE(log.takeLines(), QStringList());
    log.minimum = -1;
    QTest::keyClick(shown.spinBox, Qt::Key_Up);
    QCOMPARE(shown.spinBox->minimum(), -1);
}

void tst_IntEdit::hasFocusInItsSpinBox()
{
    Shown shown;
    QVERIFY(QTest::qWaitForWindowActive(&shown.edit));
    shown.edit.setFocus();
    QVERIFY(shown.spinBox->hasFocus());
}

void tst_IntEdit::namesItsSpinBoxByTheKey()
{
    Shown shown;
    shown.edit.setLabelText("");
    QCOMPARE(QAccessible::queryAccessibleInterface(shown.spinBox)->text(QAccessible::Name), QString("X"));
}

BOARDWRIGHT_TEST_MAIN(tst_IntEdit)
#include "tst_intedit.moc"
