#include "editors/fontfamilyedit.h"

#include "model/fontfamilies.h"
#include "tests/editors/choicetest.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QLabel>
#include <QLayout>

namespace
{
const char longestName[] = "Zebra Extra Compressed Display With A Name That No Panel Has Room For";
} // namespace

class tst_FontFamilyEdit : public ChoiceTest
{
    Q_OBJECT

private slots:
    void tellsClassAndType();
    void startsWithoutChoicesAndKey();
    void hasNoLabel();
    void staysNarrowWhateverTheNames();
    void showsNamesInFullInItsList();
    void describesItsComboBoxByTheKey();
    void showsAFamilyThatIsNotThere();
    void tellsAFamilyThatIsNotThere();
    void showsNothingForNoName();
    void listsFamiliesThatAreLoadedByNow();

protected:
    std::unique_ptr<VariableEdit> newEdit() const override { return std::make_unique<FontFamilyEdit>(); }
    void offer(VariableEdit &edit, const QStringList &choices) const override
    {
        static_cast<FontFamilyEdit &>(edit).setAvailableValues(choices);
    }
};

void tst_FontFamilyEdit::tellsClassAndType()
{
    QCOMPARE(edit().property("class"), QVariant(QString("FontFamilyEdit")));
    QCOMPARE(edit().getType(), 3);
}

void tst_FontFamilyEdit::startsWithoutChoicesAndKey()
{
    FontFamilyEdit fresh;
    QCOMPARE(fresh.getKey(), QString());
    QCOMPARE(fresh.getValue(), QVariant(QString()));
    QCOMPARE(fresh.findChild<QComboBox *>()->count(), 0);
}

void tst_FontFamilyEdit::hasNoLabel()
{
    QCOMPARE(edit().layout()->count(), 1);
    QVERIFY(!edit().findChild<QLabel *>());
}

void tst_FontFamilyEdit::staysNarrowWhateverTheNames()
{
    const QSize usual = FontFamilyEdit().minimumSizeHint();
    QCOMPARE(edit().minimumSizeHint(), usual);
    offer(edit(), {longestName});
    QCOMPARE(edit().minimumSizeHint(), usual);
}

void tst_FontFamilyEdit::showsNamesInFullInItsList()
{
    offer(edit(), {longestName});
    edit().resize(150, 40);
    comboBox()->showPopup();
    QAbstractItemView *list = comboBox()->view();
    QTRY_VERIFY(list->isVisible());
    QVERIFY(list->viewport()->width() >= list->sizeHintForColumn(0));
    comboBox()->hidePopup();
}

void tst_FontFamilyEdit::describesItsComboBoxByTheKey()
{
    const auto *accessible = QAccessible::queryAccessibleInterface(comboBox());
    QCOMPARE(accessible->text(QAccessible::Description), QString("Shape"));
}

void tst_FontFamilyEdit::showsAFamilyThatIsNotThere()
{
    edit().setValue("Font", "line");
    QCOMPARE(edit().getValue(), QVariant("line"));
    QCOMPARE(choices(), QStringList({"Ellipse", "Line", "Rectangle", "line"}));
    edit().setValue("Font", "Ellipse");
    edit().setValue("Font", "line");
    QCOMPARE(choices(), QStringList({"Ellipse", "Line", "Rectangle", "line"}));

    FontFamilyEdit empty;
    empty.setValue("Font", "Arial");
    QCOMPARE(empty.getValue(), QVariant("Arial"));
}

void tst_FontFamilyEdit::tellsAFamilyThatIsNotThere()
{
    EditLog log(&edit());
    edit().setValue("Font", "Arial");
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Font QString Arial"));
}

void tst_FontFamilyEdit::showsNothingForNoName()
{
    for (const QVariant &none : {QVariant(), QVariant(QString())}) {
        edit().setValue("Font", none);
        QCOMPARE(edit().getValue(), QVariant(QString()));
        QCOMPARE(choices(), QStringList({"Ellipse", "Line", "Rectangle"}));
        edit().setValue("Font", "Line");
    }
}

/// The last test: what is loaded stays.
void tst_FontFamilyEdit::listsFamiliesThatAreLoadedByNow()
{
    FontFamilies::append({"Raleway", "Oswald", "Amino"});
    FontFamilyEdit later;
    const auto *families = later.findChild<QComboBox *>();
    QCOMPARE(families->count(), 3);
    QCOMPARE(families->itemText(0), QString("Raleway"));
    QCOMPARE(families->itemText(1), QString("Oswald"));
    QCOMPARE(families->itemText(2), QString("Amino"));
    FontFamilies::append({"Slabo"});
    QCOMPARE(families->count(), 3);
    QCOMPARE(choices(), QStringList({"Ellipse", "Line", "Rectangle"}));
}

BOARDWRIGHT_TEST_MAIN(tst_FontFamilyEdit)
#include "tst_fontfamilyedit.moc"
