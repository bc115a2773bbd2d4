#include "tests/editors/choicetest.h"

#include <QAbstractItemView>
#include <QHBoxLayout>

void ChoiceTest::init()
{
    m_edit = newEdit();
    offer(edit(), {"Ellipse", "Line", "Rectangle"});
    m_edit->setValue("Shape", "Line");
    m_edit->show();
}

QStringList ChoiceTest::choices() const
{
    QStringList texts;
    for (int i = 0; i < comboBox()->count(); ++i)
        texts << comboBox()->itemText(i);
    return texts;
}

void ChoiceTest::liesInOneRow()
{
    QVERIFY(qobject_cast<QHBoxLayout *>(edit().layout()));
}

void ChoiceTest::showsKeyAndValue()
{
    QCOMPARE(edit().getKey(), QString("Shape"));
    QCOMPARE(edit().getValue(), QVariant(QString("Line")));
    QCOMPARE(comboBox()->currentText(), QString("Line"));
}

void ChoiceTest::appendsChoicesBehindThoseThere()
{
    EditLog log(&edit());
    offer(edit(), {"Ellipse", "Arc"});
    QCOMPARE(choices(), QStringList({"Ellipse", "Line", "Rectangle", "Ellipse", "Arc"}));
    offer(edit(), {"Ellipse", "Arc"});
    QCOMPARE(choices(), QStringList({"Ellipse", "Line", "Rectangle", "Ellipse", "Arc", "Ellipse", "Arc"}));
    QCOMPARE(log.takeLines(), QStringList());
}

void ChoiceTest::tellsChoiceMadeByKeys()
{
    EditLog log(&edit());
    QTest::keyClick(comboBox(), Qt::Key_Home);
    QTest::keyClick(comboBox(), Qt::Key_Up);
    QTest::keyClick(comboBox(), Qt::Key_End);
    QCOMPARE(log.takeEdits(),
             QStringList({"valueEdited Shape QString Ellipse", "valueEdited Shape QString Rectangle"}));
}

void ChoiceTest::tellsChoiceMadeByLetter()
{
    EditLog log(&edit());
    QTest::keyClick(comboBox(), 'r');
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Shape QString Rectangle"));
}

void ChoiceTest::tellsChoiceMadeInList()
{
    EditLog log(&edit());
    QTest::mouseClick(comboBox(), Qt::LeftButton);
    QAbstractItemView *list = comboBox()->view();
    QTRY_VERIFY(list->isVisible());
    QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(log.takeLines(), QStringList());
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Shape QString Rectangle"));
    QVERIFY(!list->isVisible());
}

void ChoiceTest::writesDebugLineBeforeItTells()
{
    EditLog log(&edit());
    QTest::keyClick(comboBox(), Qt::Key_Up);
    const QString slot =
        QString("void %1::valueChanged(QString value)").arg(edit().metaObject()->className());
    QCOMPARE(log.takeLines(), QStringList({"debug: " + slot, "valueEdited Shape QString Ellipse"}));
}

void ChoiceTest::tellsChoiceMadeByTheProgram()
{
    EditLog log(&edit());
    edit().setValue("Shape", "Rectangle");
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Shape QString Rectangle"));
}

void ChoiceTest::tellsProgrammedChoiceUnderTheNewKey()
{
    EditLog log(&edit());
    edit().setValue("Form", "Rectangle");
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Form QString Rectangle"));
}

void ChoiceTest::staysSilentWhenChoiceIsTheCurrentOne()
{
    EditLog log(&edit());
    edit().setValue("Form", "Line");
    QCOMPARE(log.takeLines(), QStringList());
}

void ChoiceTest::hasFocusInItsComboBox()
{
    QVERIFY(QTest::qWaitForWindowActive(&edit()));
    edit().setFocus();
    QVERIFY(comboBox()->hasFocus());
}

void ChoiceTest::namesItsComboBoxByTheKey()
{
    QCOMPARE(comboBox()->accessibleName(), QString("Shape"));
}
