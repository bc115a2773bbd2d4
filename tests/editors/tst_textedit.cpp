#include "editors/textedit.h"

#include "tests/editors/editlog.h"
#include "tests/support/strictmain.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace
{
/// A shown editor and what it is made of.
struct Shown {
    Shown()
    {
        edit.setValue("Note", "abc");
        edit.show();
    }

    TextEdit edit;
    QLineEdit *lineEdit = edit.findChild<QLineEdit *>();
    QLabel *label = edit.findChild<QLabel *>();
};
} // namespace

class tst_TextEdit : public QObject
{
    Q_OBJECT

private slots:
    void tellsClassAndType();
    void startsEmptyWithoutKey();
    void liesInOneRow();
    void showsKeyAndValue();
    void readsValueAsText_data();
    void readsValueAsText();
    void hidesLabelOfEmptyKey();

    void tellsEveryTypedLetter();
    void tellsDeletedAndPastedText();
    void writesDebugLineBeforeItTells();
    void tellsTextSetByTheProgram();
    void tellsProgrammedTextUnderTheNewKey();
    void staysSilentWhenTextIsTheShownOne();

    void hasFocusInItsLineEdit();
    void namesItsLineEditByTheKey();
};

void tst_TextEdit::tellsClassAndType()
{
    TextEdit edit;
    QCOMPARE(edit.property("class"), QVariant(QString("TextEdit")));
    QCOMPARE(edit.getType(), 1);
}

void tst_TextEdit::startsEmptyWithoutKey()
{
    TextEdit edit;
    QCOMPARE(edit.getKey(), QString());
    QCOMPARE(edit.getValue(), QVariant(QString()));
    QVERIFY(edit.findChild<QLabel *>()->isHidden());
}

void tst_TextEdit::liesInOneRow()
{
    Shown shown;
    QVERIFY(qobject_cast<QHBoxLayout *>(shown.edit.layout()));
    QVERIFY(shown.label->geometry().right() < shown.lineEdit->geometry().left());
}

void tst_TextEdit::showsKeyAndValue()
{
    Shown shown;
    QCOMPARE(shown.edit.getKey(), QString("Note"));
    QCOMPARE(shown.edit.getValue(), QVariant(QString("abc")));
    QCOMPARE(shown.lineEdit->text(), QString("abc"));
    QCOMPARE(shown.label->text(), QString("Note"));
    QVERIFY(shown.label->isVisible());
}

void tst_TextEdit::readsValueAsText_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("number") << QVariant(42) << "42";
    QTest::newRow("truth") << QVariant(true) << "true";
    QTest::newRow("markup stays as it is") << QVariant("<b>A</b>") << "<b>A</b>";
    QTest::newRow("list") << QVariant(QVariantList{1, 2}) << "";
    QTest::newRow("nothing") << QVariant() << "";
}

void tst_TextEdit::readsValueAsText()
{
    QFETCH(QVariant, value);
    Shown shown;
    shown.edit.setValue("Note", value);
    QTEST(shown.edit.getValue().toString(), "text");
}

void tst_TextEdit::hidesLabelOfEmptyKey()
{
    Shown shown;
    shown.edit.setValue("", "abc");
    QVERIFY(shown.label->isHidden());
    QCOMPARE(shown.edit.getKey(), QString());
    shown.edit.setValue("Note", "abc");
    QVERIFY(shown.label->isVisible());
}

void tst_TextEdit::tellsEveryTypedLetter()
{
    Shown shown;
    EditLog log(&shown.edit);
    QTest::keyClicks(shown.lineEdit, "de");
    QCOMPARE(log.takeEdits(),
             QStringList({"valueEdited Note QString abcd", "valueEdited Note QString abcde"}));
    QCOMPARE(shown.edit.getValue(), QVariant(QString("abcde")));
}

void tst_TextEdit::tellsDeletedAndPastedText()
{
    Shown shown;
    EditLog log(&shown.edit);
    QTest::keySequence(shown.lineEdit, QKeySequence::SelectAll);
    QTest::keySequence(shown.lineEdit, QKeySequence::Cut);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Note QString "));
    QTest::keySequence(shown.lineEdit, QKeySequence::Paste);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Note QString abc"));
}

void tst_TextEdit::writesDebugLineBeforeItTells()
{
    Shown shown;
    EditLog log(&shown.edit);
    QTest::keyClick(shown.lineEdit, 'd');
    QCOMPARE(log.takeLines(), QStringList({"debug: void TextEdit::valueChanged(QString value)",
                                           "valueEdited Note QString abcd"}));
}

void tst_TextEdit::tellsTextSetByTheProgram()
{
    Shown shown;
    EditLog log(&shown.edit);
    shown.edit.setValue("Note", "xyz");
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Note QString xyz"));
}

void tst_TextEdit::tellsProgrammedTextUnderTheNewKey()
{
    Shown shown;
    EditLog log(&shown.edit);
    shown.edit.setValue("Title", "xyz");
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Title QString xyz"));
}

void tst_TextEdit::staysSilentWhenTextIsTheShownOne()
{
    Shown shown;
    EditLog log(&shown.edit);
    shown.edit.setValue("Title", "abc");
    QCOMPARE(log.takeLines(), QStringList());
}

void tst_TextEdit::hasFocusInItsLineEdit()
{
    Shown shown;
    QVERIFY(QTest::qWaitForWindowActive(&shown.edit));
    shown.edit.setFocus();
    QVERIFY(shown.lineEdit->hasFocus());
}

void tst_TextEdit::namesItsLineEditByTheKey()
{
    Shown shown;
    QCOMPARE(QAccessible::queryAccessibleInterface(shown.lineEdit)->text(QAccessible::Name), QString("Note"));
}

BOARDWRIGHT_TEST_MAIN(tst_TextEdit)
#include "tst_textedit.moc"
