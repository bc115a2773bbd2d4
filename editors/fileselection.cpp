#include "editors/fileselection.h"

#include <QApplication>
#include <QFileDialog>
#include <QPointer>

std::optional<QString> selectFile(QWidget *parent)
{
    // A child, not the static function's dialog on the stack: it goes with a parent that is deleted
    // meanwhile.
    const QString caption = QCoreApplication::translate("FileSelection", "Select any file...");
    const QPointer<QFileDialog> dialog = new QFileDialog(parent, caption);
    // Whatever sheets the parent lies under, the see-through one around the canvas among them.
    dialog->setStyleSheet(qApp->styleSheet());
    dialog->setFileMode(QFileDialog::ExistingFile);
    const bool isChosen = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return std::nullopt;
    const QString path = isChosen ? dialog->selectedFiles().value(0) : QString();
    delete dialog.data();
    return path;
}
