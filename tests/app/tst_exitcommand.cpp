#include "tests/app/commandtest.h"

// The end of the program, and the box with "No" alone.
class tst_ExitCommand : public CommandTest
{
    Q_OBJECT

private slots:
    void exitQuitsWithoutAskingWhenUnchanged();
    void exitShowsABoxWithNoAlone();
    void exitQuitsAfterTheBox_data();
    void exitQuitsAfterTheBox();
    void exitAsksAfterASaveToo();
    void exitWouldSaveIfTheBoxAnsweredSo();
};

void tst_ExitCommand::exitQuitsWithoutAskingWhenUnchanged()
{
    const DialogAnswers none;
    QCOMPARE(runUntilExit(), 0);
    QVERIFY(none.areUsedUp());
}

void tst_ExitCommand::exitShowsABoxWithNoAlone()
{
    canvas().newItem("Shape");
    DialogAnswers answers;
    answers.press("No");
    QCOMPARE(runUntilExit(), 0);
    QVERIFY(answers.areUsedUp());
    const SeenDialog box = answers.seen().first();
    QCOMPARE(box.title, QString("Layout edited"));
    QCOMPARE(box.text, QString("Save layout file?"));
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.buttons, QStringList("No"));
}

void tst_ExitCommand::exitQuitsAfterTheBox_data()
{
    QTest::addColumn<bool>("byKey");

    QTest::newRow("by the button") << false;
    QTest::newRow("by Escape") << true;
}

void tst_ExitCommand::exitQuitsAfterTheBox()
{
    QFETCH(bool, byKey);

    const QString file = openSmallBoard();
    canvas().newItem("Shape");
    DialogAnswers answers;
    byKey ? answers.escape() : answers.press("No");
    QCOMPARE(runUntilExit(), 0);
    QVERIFY(answers.areUsedUp());
    QCOMPARE(readFile(file), bytesOf(smallBoard()));
}

void tst_ExitCommand::exitAsksAfterASaveToo()
{
    openSmallBoard();
    canvas().newItem("Shape");
    triggerSave();
    DialogAnswers answers;
    answers.press("No");
    QCOMPARE(runUntilExit(), 0);
    QVERIFY(answers.areUsedUp());
}

// No button of the box answers this; a desktop's own box might.
void tst_ExitCommand::exitWouldSaveIfTheBoxAnsweredSo()
{
    const QString file = openSmallBoard();
    canvas().newItem("Shape");
    DialogAnswers answers;
    answers.act([](QDialog *box) {
        box->done(QMessageBox::Save);
        return true;
    });
    QCOMPARE(runUntilExit(), 0);
    QVERIFY(answers.areUsedUp());
    QCOMPARE(readFile(file), bytesOf(canvas().saveLayout()));
}

BOARDWRIGHT_TEST_MAIN(tst_ExitCommand)
#include "tst_exitcommand.moc"
