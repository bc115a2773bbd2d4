#include "editors/filepathedit.h"

#include "editors/fileselection.h"

#include <QLayout>
#include <QLineEdit>
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
    const std::optional<QString> path = selectFile(this);
    if (!path)
        return;
    // Written in any case: a cancelled dialog is to clear the path.
    lineEdit()->setText(*path);
}
