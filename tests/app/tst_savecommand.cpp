#include "tests/app/commandtest.h"
#include "tests/support/apart.h"

#include <QDir>

#include <unistd.h>

// Saving and saving under another name.
class tst_SaveCommand : public CommandTest
{
    Q_OBJECT

private slots:
    void savingWritesTheIndentedDocument();
    void savingKeepsTheModifiedFlag();
    void savingNoPathOnlyLogs();
    void savingReplacesALongerFile();
    void savingKeepsTheOtherNamesOfAFile();
    void savingFailsInABox_data();
    void savingFailsInABox();
    void savingToAFullDiskTellsIt();
    void savingToAFullDiskLeavesTheOldFileWhole();
    void saveCommandAsksForAPathAtFirst();
    void saveCommandAsksAgainAfterNew();
    void saveCommandWritesBackWithoutAsking();
    void saveCommandDoesNothingWhenCancelled();
    void saveAsAlwaysAsks();
    void saveAsAddsNoSuffix();
    void saveAsAsksBeforeReplacingAFile();
    void saveAsChangesNothingWhenCancelled();
};

namespace
{
const char *const layFilter = "Lay file (*.lay)";
}

void tst_SaveCommand::savingWritesTheIndentedDocument()
{
    openSmallBoard();
    expectLog("saveFile");
    window().saveFile(path("copy.lay"));
    QCOMPARE(readFile(path("copy.lay")), bytesOf(smallBoard()));
    QCOMPARE(window().currentPath(), path("copy.lay"));
}

void tst_SaveCommand::savingKeepsTheModifiedFlag()
{
    window().saveFile(path("unchanged.lay"));
    QVERIFY(!canvas().isModified());
    canvas().newItem("Shape");
    window().saveFile(path("changed.lay"));
    QVERIFY(canvas().isModified());
}

void tst_SaveCommand::savingNoPathOnlyLogs()
{
    const QString before = openSmallBoard();
    const DialogAnswers none;
    expectLog("saveFile");
    window().saveFile(QString());
    QVERIFY(none.areUsedUp());
    QCOMPARE(window().currentPath(), before);
    QCOMPARE(files(), QStringList("small.lay"));
}

void tst_SaveCommand::savingReplacesALongerFile()
{
    writeFile(path("long.lay"), QByteArray(100000, ' '));
    window().saveFile(path("long.lay"));
    QCOMPARE(readFile(path("long.lay")), bytesOf(canvas().saveLayout()));
    QCOMPARE(files(), QStringList("long.lay"));
}

void tst_SaveCommand::savingKeepsTheOtherNamesOfAFile()
{
    const QString file = openSmallBoard();
    QCOMPARE(::link(qPrintable(file), qPrintable(path("other.lay"))), 0);
    canvas().newItem("Shape");
    triggerSave();
    QCOMPARE(readFile(path("other.lay")), bytesOf(canvas().saveLayout()));
}

void tst_SaveCommand::savingFailsInABox_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("folder is missing") << "missing/board.lay";
    QTest::newRow("is a folder") << ".";
}

void tst_SaveCommand::savingFailsInABox()
{
    QFETCH(QString, name);

    const QString before = openSmallBoard();
    QFile file(path(name));
    QVERIFY(!file.open(QIODevice::WriteOnly));
    DialogAnswers answers;
    answers.press("OK");
    expectLog("saveFile");
    window().saveFile(path(name));
    QVERIFY(answers.areUsedUp());
    const SeenDialog box = answers.seen().first();
    QCOMPARE(box.title, QString("Error"));
    QCOMPARE(box.text, file.errorString());
    QCOMPARE(box.icon, QMessageBox::Critical);
    QCOMPARE(box.buttons, QStringList("OK"));
    QCOMPARE(window().currentPath(), before);
}

void tst_SaveCommand::savingToAFullDiskTellsIt()
{
    if (!QFile::exists("/dev/full"))
        QSKIP("no device that is always full");
    const QString before = openSmallBoard();
    DialogAnswers answers;
    answers.press("OK");
    window().saveFile("/dev/full");
    QVERIFY(answers.areUsedUp());
    QCOMPARE(answers.seen().first().title, QString("Error"));
    QCOMPARE(answers.seen().first().text, QString("No space left on device"));
    QCOMPARE(window().currentPath(), before);
}

void tst_SaveCommand::savingToAFullDiskLeavesTheOldFileWhole()
{
    const QString file = openSmallBoard();
    canvas().newItem("Shape");
    DialogAnswers answers;
    answers.press("OK");
    {
        const FullDisk disk(256);
        triggerSave();
    }
    QVERIFY(answers.areUsedUp());
    QCOMPARE(answers.seen().first().text, QString("File too large"));
    QCOMPARE(readFile(file), bytesOf(smallBoard()));
}

void tst_SaveCommand::saveCommandAsksForAPathAtFirst()
{
    MainWindow fresh(nullptr);
    fresh.show();
    QCOMPARE(fresh.currentPath(), QString());
    DialogAnswers answers;
    answers.choose(path("first.lay"));
    commandOf(fresh, "Save... (Ctrl+S)")->trigger();
    QVERIFY(answers.areUsedUp());
    const SeenDialog dialog = answers.seen().first();
    QCOMPARE(dialog.title, QString("Input lay file path"));
    QCOMPARE(dialog.nameFilters, QStringList(layFilter));
    QCOMPARE(dialog.acceptMode, QFileDialog::AcceptSave);
    QCOMPARE(fresh.currentPath(), path("first.lay"));
    QVERIFY(QFile::exists(path("first.lay")));
}

void tst_SaveCommand::saveCommandAsksAgainAfterNew()
{
    openSmallBoard();
    triggerNew();
    DialogAnswers answers;
    answers.choose(path("new.lay"));
    triggerSave();
    QVERIFY(answers.areUsedUp());
    QCOMPARE(window().currentPath(), path("new.lay"));
    QCOMPARE(readFile(path("small.lay")), bytesOf(smallBoard()));
}

void tst_SaveCommand::saveCommandWritesBackWithoutAsking()
{
    const QString file = openSmallBoard();
    canvas().newItem("Shape");
    const DialogAnswers none;
    triggerSave();
    QVERIFY(none.areUsedUp());
    QCOMPARE(readFile(file), bytesOf(canvas().saveLayout()));
}

void tst_SaveCommand::saveCommandDoesNothingWhenCancelled()
{
    DialogAnswers answers;
    answers.press("Cancel");
    expectLog("saveFile");
    triggerSave();
    QVERIFY(answers.areUsedUp());
    QCOMPARE(files(), QStringList());
    QCOMPARE(window().currentPath(), LayoutFile::emptyTemplate());
}

void tst_SaveCommand::saveAsAlwaysAsks()
{
    const QString file = openSmallBoard();
    canvas().newItem("Shape");
    DialogAnswers answers;
    answers.choose(path("other.lay"));
    triggerSaveAs();
    QVERIFY(answers.areUsedUp());
    const SeenDialog dialog = answers.seen().first();
    QCOMPARE(dialog.title, QString("Input lay file path"));
    QCOMPARE(dialog.nameFilters, QStringList(layFilter));
    QCOMPARE(dialog.directory, QDir::currentPath());
    QCOMPARE(dialog.acceptMode, QFileDialog::AcceptSave);
    QCOMPARE(window().currentPath(), path("other.lay"));
    QCOMPARE(readFile(path("other.lay")), bytesOf(canvas().saveLayout()));
    QCOMPARE(readFile(file), bytesOf(smallBoard()));
}

void tst_SaveCommand::saveAsAddsNoSuffix()
{
    DialogAnswers answers;
    answers.choose(path("bare"));
    triggerSaveAs();
    QVERIFY(answers.areUsedUp());
    QCOMPARE(files(), QStringList("bare"));
}

void tst_SaveCommand::saveAsAsksBeforeReplacingAFile()
{
    const QString file = openSmallBoard();
    triggerNew();
    DialogAnswers answers;
    answers.choose(file).press("No").choose(file).press("Yes");
    triggerSaveAs();
    QVERIFY(answers.areUsedUp());
    QCOMPARE(readFile(file), bytesOf(canvas().saveLayout()));
}

void tst_SaveCommand::saveAsChangesNothingWhenCancelled()
{
    const QString file = openSmallBoard();
    DialogAnswers answers;
    answers.press("Cancel");
    triggerSaveAs();
    QVERIFY(answers.areUsedUp());
    QCOMPARE(window().currentPath(), file);
}

BOARDWRIGHT_TEST_MAIN(tst_SaveCommand)
#include "tst_savecommand.moc"
