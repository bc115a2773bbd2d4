#include "editors/checkedit.h"

#include "tests/editors/editlog.h"
#include "tests/support/strictmain.h"

#include <QCheckBox>
#include <QVBoxLayout>

class tst_CheckEdit : public QObject
{
    Q_OBJECT

private slots:
    void tellsClassAndType();
    void liesInOneColumn();
    void showsKeyAsTextAndValueAsState();
    void readsValueAsBoolean_data();
    void readsValueAsBoolean();
    void tellsEveryClick();
    void tellsSpaceKey();
    void writesDebugLineBeforeItTells();
    void tellsOtherValueUnderNewKey();
    void staysSilentWhenShownValueIsSet();
    void hasFocusInItsCheckBox();
};

void tst_CheckEdit::tellsClassAndType()
{
    CheckEdit edit;
    QCOMPARE(edit.property("class").toString(), QString("CheckEdit"));
    QCOMPARE(edit.getType(), 4);
    QCOMPARE(edit.getKey(), QString());
    QCOMPARE(edit.getValue(), QVariant(false));
}

void tst_CheckEdit::liesInOneColumn()
{
    CheckEdit edit;
    const auto *column = qobject_cast<QVBoxLayout *>(edit.layout());
    QVERIFY(column);
    QCOMPARE(column->count(), 1);
    QCOMPARE(column->itemAt(0)->widget(), edit.findChild<QCheckBox *>());
}

void tst_CheckEdit::showsKeyAsTextAndValueAsState()
{
    CheckEdit edit;
    const auto *box = edit.findChild<QCheckBox *>();
    edit.setValue("Fill", true);
    QCOMPARE(box->text(), QString("Fill"));
    QVERIFY(box->isChecked());
    QCOMPARE(edit.getKey(), QString("Fill"));
    QCOMPARE(edit.getValue(), QVariant(true));
    edit.setValue("Border", false);
    QCOMPARE(box->text(), QString("Border"));
    QVERIFY(!box->isChecked());
    QCOMPARE(edit.getValue(), QVariant(false));
}

void tst_CheckEdit::readsValueAsBoolean_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("checked");
    QTest::newRow("one") << QVariant(1) << true;
    QTest::newRow("zero") << QVariant(0) << false;
    QTest::newRow("true as text") << QVariant("true") << true;
    QTest::newRow("false as text") << QVariant("false") << false;
    QTest::newRow("empty text") << QVariant("") << false;
    QTest::newRow("invalid") << QVariant() << false;
}

void tst_CheckEdit::readsValueAsBoolean()
{
    QFETCH(QVariant, value);
    QFETCH(bool, checked);
    CheckEdit edit;
    edit.setValue("Fill", !checked);
    edit.setValue("Fill", value);
    QCOMPARE(edit.getValue(), QVariant(checked));
}

void tst_CheckEdit::tellsEveryClick()
{
    CheckEdit edit;
    edit.setValue("Fill", false);
    edit.show();
    auto *box = edit.findChild<QCheckBox *>();
    EditLog log(&edit);
    const QPoint indicator(8, box->height() / 2);
    QTest::mouseClick(box, Qt::LeftButton, {}, indicator);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Fill bool true"));
    QTest::mouseClick(box, Qt::LeftButton, {}, indicator);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Fill bool false"));
}

void tst_CheckEdit::tellsSpaceKey()
{
    CheckEdit edit;
    edit.setValue("Fill", true);
    edit.show();
    EditLog log(&edit);
    QTest::keyClick(edit.focusProxy(), Qt::Key_Space);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Fill bool false"));
}

void tst_CheckEdit::writesDebugLineBeforeItTells()
{
    CheckEdit edit;
    edit.setValue("Fill", false);
    EditLog log(&edit);
    QTest::keyClick(edit.focusProxy(), Qt::Key_Space);
    QCOMPARE(log.takeLines(),
             QStringList({"debug: void CheckEdit::valueChanged()", "valueEdited Fill bool true"}));
}

void tst_CheckEdit::tellsOtherValueUnderNewKey()
{
    CheckEdit edit;
    edit.setValue("Fill", false);
    EditLog log(&edit);
    edit.setValue("Border", true);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Border bool true"));
}

void tst_CheckEdit::staysSilentWhenShownValueIsSet()
{
    CheckEdit edit;
    edit.setValue("Fill", true);
    EditLog log(&edit);
    edit.setValue("Border", true);
    QCOMPARE(log.takeLines(), QStringList());
}

void tst_CheckEdit::hasFocusInItsCheckBox()
{
    CheckEdit edit;
    QCOMPARE(edit.focusProxy(), edit.findChild<QCheckBox *>());
}

BOARDWRIGHT_TEST_MAIN(tst_CheckEdit)
#include "tst_checkedit.moc"
