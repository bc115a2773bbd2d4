#pragma once

#include "editors/variableedit.h"

class KeyLabel;
class QLineEdit;

/// Edits one line of text with a label that holds the key.
class TextEdit : public VariableEdit
{
    Q_OBJECT

public:
    explicit TextEdit(QWidget *parent = nullptr);

    /// A text other than the shown one is told like an edit. A value that is no text shows none.
    void setValue(QString key, QVariant value) override;
    QString getKey() override;
    QVariant getValue() override;
    int getType() override;

private slots:
    void valueChanged(const QString &value);

private:
    KeyLabel *m_label;
    QLineEdit *m_lineEdit;
};
