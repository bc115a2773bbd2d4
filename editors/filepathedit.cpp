#include "editors/filepathedit.h"

#include "editors/keylabel.h"

#include <QDebug>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

FilePathEdit::FilePathEdit(QWidget *parent)
    : VariableEdit("FilePathEdit", parent),
      m_label(new KeyLabel(this)),
      m_lineEdit(new QLineEdit(this))
{
    auto *button = new QPushButton(QStringLiteral("..."), this);
    button->setAccessibleName(tr("Select file"));
    auto *row = new QHBoxLayout(this);
    row->addWidget(m_label);
    row->addWidget(m_lineEdit, 1);
    row->addWidget(button);
    setFocusProxy(m_lineEdit);
    connect(m_lineEdit, &QLineEdit::textChanged, this, &FilePathEdit::valueChanged);
    connect(button, &QPushButton::clicked, this, &FilePathEdit::selectFileButtonClicked);
}

void FilePathEdit::setValue(QString key, QVariant value)
{
    m_label->showText(key);
    m_lineEdit->setAccessibleName(key);
    // Heard on purpose: a path set by the program is told like one that was typed.
    m_lineEdit->setText(value.toString());
}

QString FilePathEdit::getKey()
{
    return m_label->text();
}

QVariant FilePathEdit::getValue()
{
    return m_lineEdit->text();
}

int FilePathEdit::getType()
{
    return ContentViewer::Parameters::FilePath;
}

void FilePathEdit::valueChanged(const QString &value)
{
    qDebug("void FilePathEdit::valueChanged(QString value)");
    emit valueEdited(getKey(), value);
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
    m_lineEdit->setText(path);
}
