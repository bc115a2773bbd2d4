#include "editors/filepathedit.h"

#include <QFileDialog>
#include <QLayout>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

FilePathEdit::FilePathEdit(QWidget *parent) : LineValueEdit("FilePathEdit", parent)
{
    auto *button = new QPushButton(QStringLiteral("..."), this);
    button->setAccessibleName(tr("Select file"));
    layout()->addWidget(button);
    connect(button, &QPushButton::clicked, this, &FilePathEdit::selectFileButtonClicked);
}

int FilePathEdit::getType()
{
    return ContentViewer::Parameters::FilePath;
}

void FilePathEdit::selectFileButtonClicked(bool)
{
    // A child, not the static function's dialog on the stack: it goes with an editor that is deleted
    // meanwhile.
    const QPointer<QFileDialog> dialog = new QFileDialog(this, tr("Select any file..."));
    dialog->setFileMode(QFileDialog::ExistingFile);
    const bool isChosen = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return;
    const QString path = isChosen ? dialog->selectedFiles().value(0) : QString();
    delete dialog.data();
    // Written in any case: a cancelled dialog is to clear the path.
    lineEdit()->setText(path);
}
