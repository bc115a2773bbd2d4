#include "editors/enumedit.h"

#include "tests/editors/choicetest.h"

#include <QAccessible>
#include <QLabel>

class tst_EnumEdit : public ChoiceTest
{
    Q_OBJECT

private slots:
    void tellsClassAndType();
    void startsWithoutChoicesAndKey();
    void showsKeyInItsLabelAtTheLeft();
    void hidesLabelOfEmptyKey();
    void keepsKeyUnderAnotherLabel();
    void keepsLabelUntilKeyChanges();
    void tellsFirstOfAllChoices();
    void keepsChoiceWhenValueIsNone_data();
    void keepsChoiceWhenValueIsNone();
    void namesItsComboBoxByTheKeyUnderAnotherLabel();
    void isLabelledForScreenReaders();

protected:
    std::unique_ptr<VariableEdit> newEdit() const override { return std::make_unique<EnumEdit>(); }
    void offer(VariableEdit &edit, const QStringList &choices) const override
    {
        static_cast<EnumEdit &>(edit).setAvailableValues(choices);
    }

private:
    EnumEdit &enumEdit() const { return static_cast<EnumEdit &>(edit()); }
    QLabel *label() const { return edit().findChild<QLabel *>(); }
};

void tst_EnumEdit::tellsClassAndType()
{
    QCOMPARE(edit().property("class"), QVariant(QString("EnumEdit")));
    QCOMPARE(edit().getType(), 2);
}

void tst_EnumEdit::startsWithoutChoicesAndKey()
{
    EnumEdit fresh;
    QCOMPARE(fresh.getKey(), QString());
    QCOMPARE(fresh.getValue(), QVariant(QString()));
    QCOMPARE(fresh.findChild<QComboBox *>()->count(), 0);
    QVERIFY(fresh.findChild<QLabel *>()->isHidden());
}

void tst_EnumEdit::showsKeyInItsLabelAtTheLeft()
{
    QCOMPARE(label()->text(), QString("Shape"));
    QVERIFY(label()->isVisible());
    QVERIFY(label()->geometry().right() < comboBox()->geometry().left());
}

void tst_EnumEdit::hidesLabelOfEmptyKey()
{
    edit().setValue("", "Line");
    QVERIFY(label()->isHidden());
    edit().setValue("Align", "Line");
    QVERIFY(label()->isVisible());
}

void tst_EnumEdit::keepsKeyUnderAnotherLabel()
{
    EditLog log(&edit());
    enumEdit().setLabelText("Form");
    QCOMPARE(label()->text(), QString("Form"));
    QCOMPARE(edit().getKey(), QString("Shape"));
    QTest::keyClick(comboBox(), Qt::Key_Down);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Shape QString Rectangle"));
    enumEdit().setLabelText("");
    QVERIFY(label()->isHidden());
}

void tst_EnumEdit::keepsLabelUntilKeyChanges()
{
    enumEdit().setLabelText("Form");
    edit().setValue("Shape", "Ellipse");
    QCOMPARE(label()->text(), QString("Form"));
    edit().setValue("Align", "Ellipse");
    QCOMPARE(label()->text(), QString("Align"));
}

void tst_EnumEdit::tellsFirstOfAllChoices()
{
    EnumEdit fresh;
    EditLog log(&fresh);
    fresh.setAvailableValues({"Ellipse", "Line"});
    QCOMPARE(log.takeEdits(), QStringList("valueEdited  QString Ellipse"));
}

void tst_EnumEdit::keepsChoiceWhenValueIsNone_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("unknown word") << QVariant("Star");
    QTest::newRow("other case") << QVariant("rectangle");
    QTest::newRow("start of a word") << QVariant("Rect");
    QTest::newRow("nothing") << QVariant();
}

void tst_EnumEdit::keepsChoiceWhenValueIsNone()
{
    QFETCH(QVariant, value);
    EditLog log(&edit());
    edit().setValue("Shape", value);
    QCOMPARE(edit().getValue(), QVariant(QString("Line")));
    QCOMPARE(log.takeLines(), QStringList());
}

void tst_EnumEdit::namesItsComboBoxByTheKeyUnderAnotherLabel()
{
    enumEdit().setLabelText("Form");
    QCOMPARE(comboBox()->accessibleName(), QString("Shape"));
}

void tst_EnumEdit::isLabelledForScreenReaders()
{
    const auto labels = QAccessible::queryAccessibleInterface(comboBox())->relations(QAccessible::Label);
    QCOMPARE(labels.size(), 1);
    QCOMPARE(labels.first().first->text(QAccessible::Name), QString("Shape"));
}

BOARDWRIGHT_TEST_MAIN(tst_EnumEdit)
#include "tst_enumedit.moc"
