#include "editors/coloredit.h"
#include "editors/fontcoloredit.h"

#include "tests/editors/coloranswers.h"
#include "tests/editors/editlog.h"
#include "tests/support/eventcounter.h"
#include "tests/support/strictmain.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QSignalSpy>

#include <memory>

namespace
{
/// An editor of the class that the row names, with the key "Color".
std::unique_ptr<ColorValueEdit> newEdit(const QVariant &value)
{
    std::unique_ptr<ColorValueEdit> edit;
    if (QTest::currentDataTag() == QByteArray("ColorEdit"))
        edit = std::make_unique<ColorEdit>();
    else
        edit = std::make_unique<FontColorEdit>();
    edit->setValue("Color", value);
    edit->show();
    return edit;
}

QAbstractButton *buttonOf(const ColorValueEdit &edit)
{
    return edit.findChild<QAbstractButton *>();
}

void click(const ColorValueEdit &edit)
{
    QTest::mouseClick(buttonOf(edit), Qt::LeftButton);
}

void addBothEditors()
{
    QTest::addColumn<int>("none");
    QTest::newRow("ColorEdit") << 0;
    QTest::newRow("FontColorEdit") << 0;
}
} // namespace

// What the two editors of a colour share, checked with both of them.
class tst_ColorValueEdit : public QObject
{
    Q_OBJECT

private slots:
    void hasColorSignalAfterThoseOfEveryEditor();
    void startsWithoutColor();
    void writesColorInSixLowerCaseDigits_data();
    void writesColorInSixLowerCaseDigits();

    void takesValueInSilence_data() { addBothEditors(); }
    void takesValueInSilence();
    void opensDialogWithItsColor_data() { addBothEditors(); }
    void opensDialogWithItsColor();
    void tellsChosenColorThenItsObject_data() { addBothEditors(); }
    void tellsChosenColorThenItsObject();
    void wearsItsColorBeforeItTells_data() { addBothEditors(); }
    void wearsItsColorBeforeItTells();
    void opensDialogBySpaceKey_data() { addBothEditors(); }
    void opensDialogBySpaceKey();
    void tellsAcceptedColorThoughItIsTheSame_data() { addBothEditors(); }
    void tellsAcceptedColorThoughItIsTheSame();
    void cancellingGivesBlack_data() { addBothEditors(); }
    void cancellingGivesBlack();
    void cancellingByButtonGivesBlack_data() { addBothEditors(); }
    void cancellingByButtonGivesBlack();
    void writesDebugLineBeforeItTells_data() { addBothEditors(); }
    void writesDebugLineBeforeItTells();
    void leavesNoDialogBehind_data() { addBothEditors(); }
    void leavesNoDialogBehind();
    void survivesItsDeletionUnderDialog_data() { addBothEditors(); }
    void survivesItsDeletionUnderDialog();
    void survivesItsDeletionByListener_data() { addBothEditors(); }
    void survivesItsDeletionByListener();
    void keepsDressOfSameColor_data() { addBothEditors(); }
    void keepsDressOfSameColor();
    void namesItsButtonByTheKey_data() { addBothEditors(); }
    void namesItsButtonByTheKey();
};

void tst_ColorValueEdit::hasColorSignalAfterThoseOfEveryEditor()
{
    const QMetaObject &meta = ColorValueEdit::staticMetaObject;
    QVERIFY(meta.indexOfSignal("colorChanged(QColor)") > meta.indexOfSignal("valueEdited(QString,QVariant)"));
}

void tst_ColorValueEdit::startsWithoutColor()
{
    ColorEdit edit;
    QCOMPARE(edit.getValue(), QVariant("#000000"));
    QCOMPARE(edit.getType(), 5);
    FontColorEdit fontEdit;
    QCOMPARE(fontEdit.getValue(), QVariant("#000000"));
    QCOMPARE(fontEdit.getType(), 5);
}

void tst_ColorValueEdit::writesColorInSixLowerCaseDigits_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("name") << QVariant("white") << "#ffffff";
    QTest::newRow("capitals") << QVariant("#0A1B2C") << "#0a1b2c";
    QTest::newRow("leading zeros") << QVariant("#000001") << "#000001";
    QTest::newRow("three digits") << QVariant("#f80") << "#ff8800";
    QTest::newRow("alpha in front") << QVariant("#80ff0102") << "#ff0102";
    QTest::newRow("transparent") << QVariant("transparent") << "#000000";
    QTest::newRow("a colour object") << QVariant(QColor(1, 2, 254)) << "#0102fe";
    QTest::newRow("no colour") << QVariant("no such colour") << "#000000";
    QTest::newRow("empty") << QVariant("") << "#000000";
    QTest::newRow("invalid") << QVariant() << "#000000";
}

void tst_ColorValueEdit::writesColorInSixLowerCaseDigits()
{
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    ColorEdit edit;
    edit.setValue("Color", "#123456");
    edit.setValue("Color", value);
    QCOMPARE(edit.getValue(), QVariant(text));
}

void tst_ColorValueEdit::takesValueInSilence()
{
    const auto edit = newEdit("white");
    const QSignalSpy changes(edit.get(), &ColorValueEdit::colorChanged);
    EditLog log(edit.get());
    edit->setValue("Color", "red");
    QCOMPARE(edit->getValue(), QVariant("#ff0000"));
    QCOMPARE(log.takeLines(), QStringList());
    QCOMPARE(changes.count(), 0);
}

void tst_ColorValueEdit::opensDialogWithItsColor()
{
    const auto edit = newEdit("#12ab9f");
    QColor start;
    DialogAnswers answers;
    lookAtColor(answers, start);
    click(*edit);
    QVERIFY(answers.areUsedUp());
    QCOMPARE(start.rgb(), QColor(0x12, 0xab, 0x9f).rgb());
    QCOMPARE(answers.seen().at(0).className, QString("QColorDialog"));
}

void tst_ColorValueEdit::tellsChosenColorThenItsObject()
{
    const auto edit = newEdit("white");
    EditLog log(edit.get());
    QList<QColor> colors;
    QStringList linesBefore;
    connect(edit.get(), &ColorValueEdit::colorChanged, edit.get(), [&](const QColor &color) {
        linesBefore = log.takeEdits();
        colors.append(color);
    });
    DialogAnswers answers;
    typeColor(answers, "#12ab9f");
    click(*edit);
    QCOMPARE(linesBefore, QStringList("valueEdited Color QString #12ab9f"));
    QCOMPARE(colors, QList<QColor>({QColor(0x12, 0xab, 0x9f)}));
    QCOMPARE(edit->getValue(), QVariant("#12ab9f"));
    QCOMPARE(log.takeEdits(), QStringList());
}

void tst_ColorValueEdit::wearsItsColorBeforeItTells()
{
    const auto edit = newEdit("white");
    QString value;
    QString dress;
    connect(edit.get(), &VariableEdit::valueEdited, this, [&] {
        value = edit->getValue().toString();
        dress = buttonOf(*edit)->styleSheet();
    });
    DialogAnswers answers;
    typeColor(answers, "#12ab9f");
    click(*edit);
    QCOMPARE(value, QString("#12ab9f"));
    QVERIFY(dress.contains("#12ab9f"));
}

void tst_ColorValueEdit::opensDialogBySpaceKey()
{
    const auto edit = newEdit("white");
    EditLog log(edit.get());
    DialogAnswers answers;
    typeColor(answers, "#000080");
    QTest::keyClick(edit->focusProxy(), Qt::Key_Space);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Color QString #000080"));
}

void tst_ColorValueEdit::tellsAcceptedColorThoughItIsTheSame()
{
    const auto edit = newEdit("#123456");
    EditLog log(edit.get());
    DialogAnswers answers;
    answers.press("OK");
    click(*edit);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Color QString #123456"));
}

void tst_ColorValueEdit::cancellingGivesBlack()
{
    const auto edit = newEdit("white");
    const QSignalSpy changes(edit.get(), &ColorValueEdit::colorChanged);
    EditLog log(edit.get());
    DialogAnswers answers;
    answers.escape();
    click(*edit);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Color QString #000000"));
    QCOMPARE(changes.count(), 1);
    QVERIFY(!changes.at(0).at(0).value<QColor>().isValid());
    QCOMPARE(edit->getValue(), QVariant("#000000"));
    QVERIFY(buttonOf(*edit)->styleSheet().contains("#000000"));
}

void tst_ColorValueEdit::cancellingByButtonGivesBlack()
{
    const auto edit = newEdit("white");
    EditLog log(edit.get());
    DialogAnswers answers;
    answers.press("Cancel");
    click(*edit);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Color QString #000000"));
}

void tst_ColorValueEdit::writesDebugLineBeforeItTells()
{
    const auto edit = newEdit("white");
    EditLog log(edit.get());
    DialogAnswers answers;
    answers.escape();
    click(*edit);
    const QString slot = QString("void %1::colorSelectorClicked()").arg(QTest::currentDataTag());
    QCOMPARE(log.takeLines(), QStringList({"debug: " + slot, "valueEdited Color QString #000000"}));
}

void tst_ColorValueEdit::leavesNoDialogBehind()
{
    const auto edit = newEdit("white");
    DialogAnswers answers;
    typeColor(answers, "#12ab9f");
    answers.escape();
    click(*edit);
    click(*edit);
    QVERIFY(answers.areUsedUp());
    QVERIFY(!edit->findChild<QDialog *>());
}

void tst_ColorValueEdit::survivesItsDeletionUnderDialog()
{
    auto edit = newEdit("white");
    const QSignalSpy edits(edit.get(), &VariableEdit::valueEdited);
    const QSignalSpy changes(edit.get(), &ColorValueEdit::colorChanged);
    DialogAnswers answers;
    answers.act([&edit](QDialog *) {
        edit.reset();
        return true;
    });
    click(*edit);
    QVERIFY(answers.areUsedUp());
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(edits.count(), 0);
    QCOMPARE(changes.count(), 0);
}

void tst_ColorValueEdit::survivesItsDeletionByListener()
{
    auto edit = newEdit("white");
    const QSignalSpy changes(edit.get(), &ColorValueEdit::colorChanged);
    connect(edit.get(), &VariableEdit::valueEdited, this, [&edit] { edit.reset(); });
    DialogAnswers answers;
    typeColor(answers, "#12ab9f");
    click(*edit);
    QVERIFY(!edit);
    QCOMPARE(changes.count(), 0);
}

void tst_ColorValueEdit::keepsDressOfSameColor()
{
    const auto edit = newEdit("white");
    const EventCounter dressings(buttonOf(*edit), QEvent::StyleChange);
    edit->setValue("Color", "#ffffff");
    QCOMPARE(dressings.count, 0);
    edit->setValue("Color", "#fffffe");
    QVERIFY(dressings.count > 0);
}

void tst_ColorValueEdit::namesItsButtonByTheKey()
{
    const auto edit = newEdit("white");
    edit->setValue("Border Color", "white");
    auto *button = buttonOf(*edit);
    QCOMPARE(QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name), QString("Border Color"));
    QCOMPARE(edit->toolTip(), QString("Border Color"));
    QCOMPARE(edit->focusProxy(), button);
    QVERIFY(button->focusPolicy() & Qt::TabFocus);
}

BOARDWRIGHT_TEST_MAIN(tst_ColorValueEdit)
#include "tst_colorvalueedit.moc"
