#include "editors/fileselection.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QPointer>

std::optional<QString> selectFile(QWidget *parent)
{
    // A child, not the static function's dialog on the stack: it goes with a parent that is deleted
    // meanwhile.
    const QString caption = QCoreApplication::translate("FileSelection", "Select any file...");
    const QPointer<QFileDialog> dialog = new QFileDialog(parent, caption);
    dialog->setFileMode(QFileDialog::ExistingFile);
    const bool isChosen = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return std::nullopt;
    const QString path = isChosen ? dialog->selectedFiles().value(0) : QString();
    delete dialog.data();
    return path;
}
