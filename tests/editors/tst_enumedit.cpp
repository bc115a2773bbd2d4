#include "editors/enumedit.h"

#include "tests/editors/editlog.h"
#include "tests/support/strictmain.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>

namespace
{
/// A shown editor and what it is made of.
struct Shown {
    Shown()
    {
        edit.setAvailableValues({"Ellipse", "Line", "Rectangle"});
        edit.setValue("Shape", "Line");
        edit.show();
    }

    QStringList choices() const
    {
        QStringList texts;
        for (int i = 0; i < comboBox->count(); ++i)
            texts << comboBox->itemText(i);
        return texts;
    }

    EnumEdit edit;
    QComboBox *comboBox = edit.findChild<QComboBox *>();
    QLabel *label = edit.findChild<QLabel *>();
};
} // namespace

class tst_EnumEdit : public QObject
{
    Q_OBJECT

private slots:
    void tellsClassAndType();
    void startsWithoutChoicesAndKey();
    void liesInOneRow();
    void showsKeyAndValue();
    void hidesLabelOfEmptyKey();
    void keepsKeyUnderAnotherLabel();
    void keepsLabelUntilKeyChanges();

    void appendsChoicesBehindThoseThere();
    void tellsFirstOfAllChoices();

    void tellsChoiceMadeByKeys();
    void tellsChoiceMadeByLetter();
    void tellsChoiceMadeInList();
    void writesDebugLineBeforeItTells();
    void tellsChoiceMadeByTheProgram();
    void tellsProgrammedChoiceUnderTheNewKey();
    void staysSilentWhenChoiceIsTheCurrentOne();
    void keepsChoiceWhenValueIsNone_data();
    void keepsChoiceWhenValueIsNone();

    void hasFocusInItsComboBox();
    void namesItsComboBoxByTheKey();
    void isLabelledForScreenReaders();
};

void tst_EnumEdit::tellsClassAndType()
{
    EnumEdit edit;
    QCOMPARE(edit.property("class"), QVariant(QString("EnumEdit")));
    QCOMPARE(edit.getType(), 2);
}

void tst_EnumEdit::startsWithoutChoicesAndKey()
{
    EnumEdit edit;
    QCOMPARE(edit.getKey(), QString());
    QCOMPARE(edit.getValue(), QVariant(QString()));
    QCOMPARE(edit.findChild<QComboBox *>()->count(), 0);
    QVERIFY(edit.findChild<QLabel *>()->isHidden());
}

void tst_EnumEdit::liesInOneRow()
{
    Shown shown;
    QVERIFY(qobject_cast<QHBoxLayout *>(shown.edit.layout()));
    QVERIFY(shown.label->geometry().right() < shown.comboBox->geometry().left());
}

void tst_EnumEdit::showsKeyAndValue()
{
    Shown shown;
    QCOMPARE(shown.edit.getKey(), QString("Shape"));
    QCOMPARE(shown.edit.getValue(), QVariant(QString("Line")));
    QCOMPARE(shown.comboBox->currentText(), QString("Line"));
    QCOMPARE(shown.label->text(), QString("Shape"));
    QVERIFY(shown.label->isVisible());
}

void tst_EnumEdit::hidesLabelOfEmptyKey()
{
    Shown shown;
    shown.edit.setValue("", "Line");
    QVERIFY(shown.label->isHidden());
    shown.edit.setValue("Align", "Line");
    QVERIFY(shown.label->isVisible());
}

void tst_EnumEdit::keepsKeyUnderAnotherLabel()
{
    Shown shown;
    EditLog log(&shown.edit);
    shown.edit.setLabelText("Form");
    QCOMPARE(shown.label->text(), QString("Form"));
    QCOMPARE(shown.edit.getKey(), QString("Shape"));
    QTest::keyClick(shown.comboBox, Qt::Key_Down);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Shape QString Rectangle"));
    shown.edit.setLabelText("");
    QVERIFY(shown.label->isHidden());
}

void tst_EnumEdit::keepsLabelUntilKeyChanges()
{
    Shown shown;
    shown.edit.setLabelText("Form");
    shown.edit.setValue("Shape", "Ellipse");
    QCOMPARE(shown.label->text(), QString("Form"));
    shown.edit.setValue("Align", "Ellipse");
    QCOMPARE(shown.label->text(), QString("Align"));
}

void tst_EnumEdit::appendsChoicesBehindThoseThere()
{
    Shown shown;
    EditLog log(&shown.edit);
    shown.edit.setAvailableValues({"Ellipse", "Arc"});
    QCOMPARE(shown.choices(), QStringList({"Ellipse", "Line", "Rectangle", "Ellipse", "Arc"}));
    shown.edit.setAvailableValues({"Ellipse", "Arc"});
    QCOMPARE(shown.choices(),
             QStringList({"Ellipse", "Line", "Rectangle", "Ellipse", "Arc", "Ellipse", "Arc"}));
    QCOMPARE(log.takeLines(), QStringList());
}

void tst_EnumEdit::tellsFirstOfAllChoices()
{
    EnumEdit edit;
    EditLog log(&edit);
    edit.setAvailableValues({"Ellipse", "Line"});
    QCOMPARE(log.takeEdits(), QStringList("valueEdited  QString Ellipse"));
}

void tst_EnumEdit::tellsChoiceMadeByKeys()
{
    Shown shown;
    EditLog log(&shown.edit);
    QTest::keyClick(shown.comboBox, Qt::Key_Home);
    QTest::keyClick(shown.comboBox, Qt::Key_Up);
    QTest::keyClick(shown.comboBox, Qt::Key_End);
    QCOMPARE(log.takeEdits(),
             QStringList({"valueEdited Shape QString Ellipse", "valueEdited Shape QString Rectangle"}));
}

void tst_EnumEdit::tellsChoiceMadeByLetter()
{
    Shown shown;
    EditLog log(&shown.edit);
    QTest::keyClick(shown.comboBox, 'r');
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Shape QString Rectangle"));
}

void tst_EnumEdit::tellsChoiceMadeInList()
{
    Shown shown;
    EditLog log(&shown.edit);
    QTest::mouseClick(shown.comboBox, Qt::LeftButton);
    QAbstractItemView *list = shown.comboBox->view();
    QTRY_VERIFY(list->isVisible());
    QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(log.takeLines(), QStringList());
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Shape QString Rectangle"));
    QVERIFY(!list->isVisible());
}

void tst_EnumEdit::writesDebugLineBeforeItTells()
{
    Shown shown;
    EditLog log(&shown.edit);
    QTest::keyClick(shown.comboBox, Qt::Key_Up);
    QCOMPARE(log.takeLines(), QStringList({"debug: void EnumEdit::valueChanged(QString value)",
                                           "valueEdited Shape QString Ellipse"}));
}

void tst_EnumEdit::tellsChoiceMadeByTheProgram()
{
    Shown shown;
    EditLog log(&shown.edit);
    shown.edit.setValue("Shape", "Rectangle");
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Shape QString Rectangle"));
}

void tst_EnumEdit::tellsProgrammedChoiceUnderTheNewKey()
{
    Shown shown;
    EditLog log(&shown.edit);
    shown.edit.setValue("Form", "Rectangle");
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Form QString Rectangle"));
}

void tst_EnumEdit::staysSilentWhenChoiceIsTheCurrentOne()
{
    Shown shown;
    EditLog log(&shown.edit);
    shown.edit.setValue("Form", "Line");
    QCOMPARE(log.takeLines(), QStringList());
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
    Shown shown;
    EditLog log(&shown.edit);
    shown.edit.setValue("Shape", value);
    QCOMPARE(shown.edit.getValue(), QVariant(QString("Line")));
    QCOMPARE(log.takeLines(), QStringList());
}

void tst_EnumEdit::hasFocusInItsComboBox()
{
    Shown shown;
    QVERIFY(QTest::qWaitForWindowActive(&shown.edit));
    shown.edit.setFocus();
    QVERIFY(shown.comboBox->hasFocus());
}

void tst_EnumEdit::namesItsComboBoxByTheKey()
{
    Shown shown;
    shown.edit.setLabelText("Form");
    QCOMPARE(shown.comboBox->accessibleName(), QString("Shape"));
}

void tst_EnumEdit::isLabelledForScreenReaders()
{
    Shown shown;
    const auto labels = QAccessible::queryAccessibleInterface(shown.comboBox)->relations(QAccessible::Label);
    QCOMPARE(labels.size(), 1);
    QCOMPARE(labels.first().first->text(QAccessible::Name), QString("Shape"));
}

BOARDWRIGHT_TEST_MAIN(tst_EnumEdit)
#include "tst_enumedit.moc"
