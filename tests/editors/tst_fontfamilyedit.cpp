#include "editors/fontfamilyedit.h"

#include "model/fontfamilies.h"
#include "tests/editors/editlog.h"
#include "tests/support/strictmain.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>

namespace
{
const char longestName[] =
    "Zebra Extra Compressed Display With A Name That No Panel Has Room For Without Being Cut";

/// A shown editor and what it is made of.
struct Shown {
    Shown()
    {
        edit.setValue("Font", "Oswald");
        edit.show();
    }

    QStringList choices() const
    {
        QStringList texts;
        for (int i = 0; i < comboBox->count(); ++i)
            texts << comboBox->itemText(i);
        return texts;
    }

    FontFamilyEdit edit;
    QComboBox *comboBox = edit.findChild<QComboBox *>();
};
} // namespace

class tst_FontFamilyEdit : public QObject
{
    Q_OBJECT

private slots:
    void startsEmptyBeforeFamiliesAreLoaded();
    void listsLoadedFamiliesInTheirOrder();

    void tellsClassAndType();
    void liesInOneRowWithoutLabel();
    void showsValueAndStoresKey();
    void appendsFamiliesBehindThoseThere();
    void knowsNoFamilyThatIsLoadedLater();
    void staysNarrowWhateverTheNames();
    void showsNamesInFullInItsList();

    void tellsFamilyChosenByKeys();
    void tellsFamilyChosenInList();
    void writesDebugLineBeforeItTells();
    void tellsFamilyChosenByTheProgram();
    void tellsProgrammedFamilyUnderTheNewKey();
    void staysSilentWhenFamilyIsTheCurrentOne();
    void keepsFamilyWhenValueIsNone_data();
    void keepsFamilyWhenValueIsNone();

    void hasFocusInItsComboBox();
    void namesItsComboBoxByTheKey();
};

void tst_FontFamilyEdit::startsEmptyBeforeFamiliesAreLoaded()
{
    FontFamilyEdit edit;
    QCOMPARE(edit.findChild<QComboBox *>()->count(), 0);
    QCOMPARE(edit.getValue(), QVariant(QString()));
}

/// From here on the families are those for all tests below.
void tst_FontFamilyEdit::listsLoadedFamiliesInTheirOrder()
{
    FontFamilies::append({"Raleway", "Oswald", "Amino"});
    Shown shown;
    QCOMPARE(shown.choices(), QStringList({"Raleway", "Oswald", "Amino"}));
}

void tst_FontFamilyEdit::tellsClassAndType()
{
    FontFamilyEdit edit;
    QCOMPARE(edit.property("class"), QVariant(QString("FontFamilyEdit")));
    QCOMPARE(edit.getType(), 3);
}

void tst_FontFamilyEdit::liesInOneRowWithoutLabel()
{
    Shown shown;
    QVERIFY(qobject_cast<QHBoxLayout *>(shown.edit.layout()));
    QCOMPARE(shown.edit.layout()->count(), 1);
    QVERIFY(!shown.edit.findChild<QLabel *>());
}

void tst_FontFamilyEdit::showsValueAndStoresKey()
{
    FontFamilyEdit edit;
    QCOMPARE(edit.getKey(), QString());
    edit.setValue("Font", "Amino");
    QCOMPARE(edit.getKey(), QString("Font"));
    QCOMPARE(edit.getValue(), QVariant(QString("Amino")));
    QCOMPARE(edit.findChild<QComboBox *>()->currentText(), QString("Amino"));
}

void tst_FontFamilyEdit::appendsFamiliesBehindThoseThere()
{
    Shown shown;
    EditLog log(&shown.edit);
    shown.edit.setAvailableValues({"Oswald", "Bangers"});
    QCOMPARE(shown.choices(), QStringList({"Raleway", "Oswald", "Amino", "Oswald", "Bangers"}));
    shown.edit.setAvailableValues({"Bangers"});
    QCOMPARE(shown.choices(), QStringList({"Raleway", "Oswald", "Amino", "Oswald", "Bangers", "Bangers"}));
    QCOMPARE(log.takeLines(), QStringList());
}

void tst_FontFamilyEdit::knowsNoFamilyThatIsLoadedLater()
{
    Shown shown;
    FontFamilies::append({"Slabo"});
    QCOMPARE(shown.choices(), QStringList({"Raleway", "Oswald", "Amino"}));
}

void tst_FontFamilyEdit::staysNarrowWhateverTheNames()
{
    const FontFamilyEdit usual;
    FontFamilyEdit edit;
    edit.setAvailableValues({longestName});
    QCOMPARE(edit.minimumSizeHint(), usual.minimumSizeHint());
    edit.show();
    QCOMPARE(edit.minimumSizeHint(), usual.minimumSizeHint());
}

void tst_FontFamilyEdit::showsNamesInFullInItsList()
{
    Shown shown;
    shown.edit.setAvailableValues({longestName});
    shown.edit.resize(150, 40);
    shown.comboBox->showPopup();
    QAbstractItemView *list = shown.comboBox->view();
    QTRY_VERIFY(list->isVisible());
    QVERIFY(list->viewport()->width() >= list->sizeHintForColumn(0));
    shown.comboBox->hidePopup();
}

void tst_FontFamilyEdit::tellsFamilyChosenByKeys()
{
    Shown shown;
    EditLog log(&shown.edit);
    QTest::keyClick(shown.comboBox, Qt::Key_Down);
    QTest::keyClick(shown.comboBox, 'r');
    QCOMPARE(log.takeEdits(),
             QStringList({"valueEdited Font QString Amino", "valueEdited Font QString Raleway"}));
}

void tst_FontFamilyEdit::tellsFamilyChosenInList()
{
    Shown shown;
    EditLog log(&shown.edit);
    QTest::mouseClick(shown.comboBox, Qt::LeftButton);
    QAbstractItemView *list = shown.comboBox->view();
    QTRY_VERIFY(list->isVisible());
    QTest::keyClick(list, Qt::Key_Up);
    QCOMPARE(log.takeLines(), QStringList());
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Font QString Raleway"));
}

void tst_FontFamilyEdit::writesDebugLineBeforeItTells()
{
    Shown shown;
    EditLog log(&shown.edit);
    QTest::keyClick(shown.comboBox, Qt::Key_Up);
    QCOMPARE(log.takeLines(), QStringList({"debug: void FontFamilyEdit::valueChanged(QString value)",
                                           "valueEdited Font QString Raleway"}));
}

void tst_FontFamilyEdit::tellsFamilyChosenByTheProgram()
{
    Shown shown;
    EditLog log(&shown.edit);
    shown.edit.setValue("Font", "Amino");
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Font QString Amino"));
}

void tst_FontFamilyEdit::tellsProgrammedFamilyUnderTheNewKey()
{
    Shown shown;
    EditLog log(&shown.edit);
    shown.edit.setValue("Title Font", "Amino");
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Title Font QString Amino"));
}

void tst_FontFamilyEdit::staysSilentWhenFamilyIsTheCurrentOne()
{
    Shown shown;
    EditLog log(&shown.edit);
    shown.edit.setValue("Title Font", "Oswald");
    QCOMPARE(log.takeLines(), QStringList());
}

void tst_FontFamilyEdit::keepsFamilyWhenValueIsNone_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("not loaded") << QVariant("Bangers");
    QTest::newRow("other case") << QVariant("amino");
    QTest::newRow("nothing") << QVariant();
}

void tst_FontFamilyEdit::keepsFamilyWhenValueIsNone()
{
    QFETCH(QVariant, value);
    Shown shown;
    EditLog log(&shown.edit);
    shown.edit.setValue("Font", value);
    QCOMPARE(shown.edit.getValue(), QVariant(QString("Oswald")));
    QCOMPARE(log.takeLines(), QStringList());
}

void tst_FontFamilyEdit::hasFocusInItsComboBox()
{
    Shown shown;
    QVERIFY(QTest::qWaitForWindowActive(&shown.edit));
    shown.edit.setFocus();
    QVERIFY(shown.comboBox->hasFocus());
}

void tst_FontFamilyEdit::namesItsComboBoxByTheKey()
{
    Shown shown;
    QCOMPARE(shown.comboBox->accessibleName(), QString("Font"));
    const auto *accessible = QAccessible::queryAccessibleInterface(shown.comboBox);
    QCOMPARE(accessible->text(QAccessible::Description), QString("Font"));
}

BOARDWRIGHT_TEST_MAIN(tst_FontFamilyEdit)
#include "tst_fontfamilyedit.moc"
