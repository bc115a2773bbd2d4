#include "editors/filepathedit.h"

#include "tests/editors/editlog.h"
#include "tests/support/dialoganswers.h"
#include "tests/support/files.h"
#include "tests/support/strictmain.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

namespace
{
QString accessibleName(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

QString fileIn(const QTemporaryDir &folder)
{
    const QString path = folder.filePath("logo.png");
    return writeFile(path, "picture") ? path : QString();
}
} // namespace

class tst_FilePathEdit : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_edit.reset(); }

    void tellsClassAndType();
    void liesInOneRow();
    void showsKeyInItsLabelAndPath();
    void hidesLabelOfEmptyKey();
    void tellsEveryTypedLetter();
    void writesDebugLineBeforeItTells();
    void tellsOtherPathUnderNewKey();
    void staysSilentWhenShownPathIsSet();
    void showsNothingForInvalidValue();

    void opensDialogForAnyExistingFile();
    void dialogLooksLikeTheApplication();
    void startsDialogWhereStaticFunctionDoes();
    void tellsChosenFile();
    void opensDialogBySpaceKey();
    void staysSilentWhenShownFileIsChosenAgain();
    void cancellingClearsThePath();
    void cancellingClearsThePathThoughAFileIsSelected();
    void cancellingStaysSilentWithoutPath();
    void leavesNoDialogBehind();
    void survivesItsDeletionUnderDialog();

    void hasFocusInItsLineThenItsButton();
    void namesItsParts();

private:
    QPushButton *button() const { return m_edit->findChild<QPushButton *>(); }
    QLineEdit *line() const { return m_edit->findChild<QLineEdit *>(); }
    void clickButton() const { QTest::mouseClick(button(), Qt::LeftButton); }

    std::unique_ptr<FilePathEdit> m_edit;
};

void tst_FilePathEdit::init()
{
    m_edit = std::make_unique<FilePathEdit>();
    m_edit->setValue("Path", "/old.png");
    m_edit->show();
}

void tst_FilePathEdit::tellsClassAndType()
{
    QCOMPARE(m_edit->property("class").toString(), QString("FilePathEdit"));
    QCOMPARE(m_edit->getType(), 6);
}

void tst_FilePathEdit::liesInOneRow()
{
    const auto *row = qobject_cast<QHBoxLayout *>(m_edit->layout());
    QVERIFY(row);
    QCOMPARE(row->count(), 3);
    QCOMPARE(button()->text(), QString("..."));
    QVERIFY(m_edit->findChild<QLabel *>()->x() < line()->x());
    QVERIFY(line()->x() < button()->x());
}

void tst_FilePathEdit::showsKeyInItsLabelAndPath()
{
    const auto *label = m_edit->findChild<QLabel *>();
    QCOMPARE(label->text(), QString("Path"));
    QVERIFY(label->isVisible());
    QCOMPARE(line()->text(), QString("/old.png"));
    QCOMPARE(m_edit->getKey(), QString("Path"));
    QCOMPARE(m_edit->getValue(), QVariant("/old.png"));
}

void tst_FilePathEdit::hidesLabelOfEmptyKey()
{
    const auto *label = m_edit->findChild<QLabel *>();
    m_edit->setValue("", "/old.png");
    QVERIFY(!label->isVisible());
    QCOMPARE(m_edit->getKey(), QString());
    m_edit->setValue("Path", "/old.png");
    QVERIFY(label->isVisible());
    QVERIFY(FilePathEdit().findChild<QLabel *>()->isHidden());
}

void tst_FilePathEdit::tellsEveryTypedLetter()
{
    EditLog log(m_edit.get());
    line()->selectAll();
    QTest::keyClicks(line(), "/a");
    QCOMPARE(log.takeEdits(), QStringList({"valueEdited Path QString /", "valueEdited Path QString /a"}));
    QTest::keyClick(line(), Qt::Key_Backspace);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Path QString /"));
}

void tst_FilePathEdit::writesDebugLineBeforeItTells()
{
    EditLog log(m_edit.get());
    QTest::keyClicks(line(), "x");
    QCOMPARE(log.takeLines(), QStringList({"debug: void FilePathEdit::valueChanged(QString value)",
                                           "valueEdited Path QString /old.pngx"}));
}

void tst_FilePathEdit::tellsOtherPathUnderNewKey()
{
    EditLog log(m_edit.get());
    m_edit->setValue("Other", "/new.png");
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Other QString /new.png"));
}

void tst_FilePathEdit::staysSilentWhenShownPathIsSet()
{
    EditLog log(m_edit.get());
    m_edit->setValue("Other", "/old.png");
    QCOMPARE(log.takeLines(), QStringList());
}

void tst_FilePathEdit::showsNothingForInvalidValue()
{
    m_edit->setValue("Path", QVariant());
    QCOMPARE(m_edit->getValue(), QVariant(""));
}

void tst_FilePathEdit::opensDialogForAnyExistingFile()
{
    DialogAnswers answers;
    QWidget *parent = nullptr;
    answers.act([&parent](QDialog *dialog) {
        parent = dialog->parentWidget();
        dialog->reject();
        return true;
    });
    clickButton();
    QCOMPARE(parent, m_edit.get());
    const SeenDialog seen = answers.seen().value(0);
    QCOMPARE(seen.className, QString("QFileDialog"));
    QCOMPARE(seen.title, QString("Select any file..."));
    QCOMPARE(seen.acceptMode, QFileDialog::AcceptOpen);
    QCOMPARE(seen.fileMode, QFileDialog::ExistingFile);
}

void tst_FilePathEdit::dialogLooksLikeTheApplication()
{
    qApp->setStyleSheet("QWidget{background-color:#123456}");
    m_edit->setStyleSheet("background:transparent;");
    DialogAnswers answers;
    QColor color;
    answers.act([&color](QDialog *dialog) {
        color = dialog->grab().toImage().pixelColor(1, 1);
        dialog->reject();
        return true;
    });
    clickButton();
    qApp->setStyleSheet(QString());
    QCOMPARE(color, QColor(0x12, 0x34, 0x56));
}

void tst_FilePathEdit::startsDialogWhereStaticFunctionDoes()
{
    DialogAnswers answers;
    answers.escape().escape();
    clickButton();
    QFileDialog::getOpenFileName(m_edit.get(), "Select any file...", "", "");
    QCOMPARE(answers.seen().size(), 2);
    const SeenDialog ours = answers.seen().at(0);
    const SeenDialog theirs = answers.seen().at(1);
    QCOMPARE(ours.directory, theirs.directory);
    QCOMPARE(ours.nameFilters, theirs.nameFilters);
}

void tst_FilePathEdit::tellsChosenFile()
{
    const QTemporaryDir folder;
    const QString path = fileIn(folder);
    EditLog log(m_edit.get());
    DialogAnswers answers;
    answers.choose(path);
    clickButton();
    QVERIFY(answers.areUsedUp());
    QCOMPARE(line()->text(), path);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Path QString " + path));
}

void tst_FilePathEdit::opensDialogBySpaceKey()
{
    DialogAnswers answers;
    answers.escape();
    QTest::keyClick(button(), Qt::Key_Space);
    QVERIFY(answers.areUsedUp());
}

void tst_FilePathEdit::staysSilentWhenShownFileIsChosenAgain()
{
    const QTemporaryDir folder;
    const QString path = fileIn(folder);
    m_edit->setValue("Path", path);
    EditLog log(m_edit.get());
    DialogAnswers answers;
    answers.choose(path);
    clickButton();
    QVERIFY(answers.areUsedUp());
    QCOMPARE(log.takeEdits(), QStringList());
}

void tst_FilePathEdit::cancellingClearsThePath()
{
    EditLog log(m_edit.get());
    DialogAnswers answers;
    answers.press("Cancel");
    clickButton();
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Path QString "));
    QCOMPARE(m_edit->getValue(), QVariant(""));
}

void tst_FilePathEdit::cancellingClearsThePathThoughAFileIsSelected()
{
    const QTemporaryDir folder;
    const QString path = fileIn(folder);
    QStringList selected;
    DialogAnswers answers;
    answers.act([&](QDialog *dialog) {
        dialog->findChild<QLineEdit *>("fileNameEdit")->setText(path);
        selected = qobject_cast<QFileDialog *>(dialog)->selectedFiles();
        dialog->reject();
        return true;
    });
    clickButton();
    QCOMPARE(selected, QStringList(path));
    QCOMPARE(m_edit->getValue(), QVariant(""));
}

void tst_FilePathEdit::cancellingStaysSilentWithoutPath()
{
    m_edit->setValue("Path", "");
    EditLog log(m_edit.get());
    DialogAnswers answers;
    answers.escape();
    clickButton();
    QVERIFY(answers.areUsedUp());
    QCOMPARE(log.takeEdits(), QStringList());
}

void tst_FilePathEdit::leavesNoDialogBehind()
{
    DialogAnswers answers;
    answers.escape();
    clickButton();
    QVERIFY(answers.areUsedUp());
    QVERIFY(!m_edit->findChild<QDialog *>());
}

void tst_FilePathEdit::survivesItsDeletionUnderDialog()
{
    const QSignalSpy edits(m_edit.get(), &VariableEdit::valueEdited);
    DialogAnswers answers;
    answers.act([this](QDialog *) {
        m_edit.reset();
        return true;
    });
    clickButton();
    QVERIFY(answers.areUsedUp());
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(edits.count(), 0);
}

void tst_FilePathEdit::hasFocusInItsLineThenItsButton()
{
    QVERIFY(QTest::qWaitForWindowActive(m_edit.get()));
    m_edit->setFocus();
    QVERIFY(line()->hasFocus());
    QTest::keyClick(line(), Qt::Key_Tab);
    QVERIFY(button()->hasFocus());
}

void tst_FilePathEdit::namesItsParts()
{
    QCOMPARE(accessibleName(line()), QString("Path"));
    QCOMPARE(accessibleName(button()), QString("Select file"));
}

BOARDWRIGHT_TEST_MAIN(tst_FilePathEdit)
#include "tst_filepathedit.moc"
