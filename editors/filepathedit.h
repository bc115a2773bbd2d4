#pragma once

#include "editors/variableedit.h"

class KeyLabel;
class QLineEdit;

/// Edits the path of a file, typed or chosen in the toolkit's dialog, with a label that holds the key.
class FilePathEdit : public VariableEdit
{
    Q_OBJECT

public:
    explicit FilePathEdit(QWidget *parent = nullptr);

    /// A path other than the shown one is told like an edit. A value that is no text shows none.
    void setValue(QString key, QVariant value) override;
    QString getKey() override;
    QVariant getValue() override;
    int getType() override;

private slots:
    void valueChanged(const QString &value);

    /// Asks for an existing file. Cancelling clears the path: on purpose.
    void selectFileButtonClicked(bool checked);

private:
    KeyLabel *m_label;
    QLineEdit *m_lineEdit;
};
