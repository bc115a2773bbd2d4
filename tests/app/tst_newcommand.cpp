#include "tests/app/commandtest.h"

#include <QDir>
#include <QPushButton>

// A new layout, and the question about the old one.
class tst_NewCommand : public CommandTest
{
    Q_OBJECT

private slots:
    void newLoadsTheTemplateWithoutAskingWhenUnchanged();
    void newAsksWhenChanged();
    void newYesSavesFirst();
    void newYesLoadsTheTemplateAlthoughSavingWasCancelled();
    void newYesKeepsTheBoardWhenSavingFails();
    void newYesAsksAnewAfterAFailure();
    void newNoLoadsTheTemplate();
    void newCancelChangesNothing();
    void newBoxHasNoEscapeButton();
    void newTreatsAnyOtherAnswerAsUnchanged();
};

namespace
{
/// Nothing can be saved under this path any more, whoever runs the test.
void replaceByAFolder(const QString &file)
{
    QVERIFY(QFile::remove(file));
    QVERIFY(QDir().mkdir(file));
}
} // namespace

void tst_NewCommand::newLoadsTheTemplateWithoutAskingWhenUnchanged()
{
    openSmallBoard();
    const DialogAnswers none;
    expectLog("newFileActionTriggered");
    triggerNew();
    QVERIFY(none.areUsedUp());
    verifyIsTemplate();
}

void tst_NewCommand::newAsksWhenChanged()
{
    canvas().newItem("Shape");
    DialogAnswers answers;
    answers.press("Cancel");
    expectLog("newFileActionTriggered");
    triggerNew();
    QVERIFY(answers.areUsedUp());
    const SeenDialog box = answers.seen().first();
    QCOMPARE(box.title, QString("Layout edited"));
    QCOMPARE(box.text, QString("Save layout file?"));
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.buttons, QStringList({"Yes", "No", "Cancel"}));
    QCOMPARE(box.defaultButton, QString("Yes"));
}

void tst_NewCommand::newYesSavesFirst()
{
    const QString file = openSmallBoard();
    canvas().newItem("Shape");
    const QByteArray changed = bytesOf(canvas().saveLayout());
    DialogAnswers answers;
    answers.press("Yes");
    triggerNew();
    QVERIFY(answers.areUsedUp());
    QCOMPARE(readFile(file), changed);
    verifyIsTemplate();
}

void tst_NewCommand::newYesLoadsTheTemplateAlthoughSavingWasCancelled()
{
    canvas().newItem("Shape");
    DialogAnswers answers;
    answers.press("Yes").press("Cancel");
    triggerNew();
    QVERIFY(answers.areUsedUp());
    QCOMPARE(answers.seen().at(1).title, QString("Input lay file path"));
    QCOMPARE(files(), QStringList());
    verifyIsTemplate();
}

void tst_NewCommand::newYesKeepsTheBoardWhenSavingFails()
{
    const QString file = openSmallBoard();
    canvas().newItem("Shape");
    const QJsonObject changed = canvas().saveLayout();
    replaceByAFolder(file);
    DialogAnswers answers;
    answers.press("Yes").press("OK");
    expectLog("newFileActionTriggered");
    triggerNew();
    QVERIFY(answers.areUsedUp());
    QCOMPARE(answers.seen().at(1).title, QString("Error"));
    QCOMPARE(canvas().saveLayout(), changed);
    QCOMPARE(window().currentPath(), file);
    QVERIFY(canvas().isModified());
}

void tst_NewCommand::newYesAsksAnewAfterAFailure()
{
    const QString file = openSmallBoard();
    canvas().newItem("Shape");
    replaceByAFolder(file);
    DialogAnswers answers;
    answers.press("Yes").press("OK");
    triggerNew();
    QCOMPARE(canvas().items().size(), 3);
    QVERIFY(QDir().rmdir(file));
    answers.press("Yes");
    triggerNew();
    QVERIFY(answers.areUsedUp());
    QVERIFY(QFileInfo(file).isFile());
    verifyIsTemplate();
}

void tst_NewCommand::newNoLoadsTheTemplate()
{
    const QString file = openSmallBoard();
    const QByteArray before = readFile(file);
    canvas().newItem("Shape");
    DialogAnswers answers;
    answers.press("No");
    triggerNew();
    QVERIFY(answers.areUsedUp());
    QCOMPARE(readFile(file), before);
    verifyIsTemplate();
}

void tst_NewCommand::newCancelChangesNothing()
{
    const QString file = openSmallBoard();
    canvas().newItem("Shape");
    DialogAnswers answers;
    answers.press("Cancel");
    triggerNew();
    QVERIFY(answers.areUsedUp());
    QCOMPARE(window().currentPath(), file);
    QCOMPARE(canvas().items().size(), 3);
    QVERIFY(canvas().isModified());
}

void tst_NewCommand::newBoxHasNoEscapeButton()
{
    canvas().newItem("Shape");
    bool stayed = false;
    DialogAnswers answers;
    answers.act([&stayed](QDialog *box) {
        QTest::keyClick(box, Qt::Key_Escape);
        box->close();
        stayed = box->isVisible();
        box->findChildren<QPushButton *>().constLast()->click();
        return true;
    });
    triggerNew();
    QVERIFY(answers.areUsedUp());
    QVERIFY(stayed);
}

void tst_NewCommand::newTreatsAnyOtherAnswerAsUnchanged()
{
    const QString file = openSmallBoard();
    canvas().newItem("Shape");
    DialogAnswers answers;
    answers.act([](QDialog *box) {
        box->done(-1);
        return true;
    });
    triggerNew();
    QVERIFY(answers.areUsedUp());
    QCOMPARE(readFile(file), bytesOf(smallBoard()));
    verifyIsTemplate();
}

BOARDWRIGHT_TEST_MAIN(tst_NewCommand)
#include "tst_newcommand.moc"
