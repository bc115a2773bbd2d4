#pragma once

#include "editors/variableedit.h"

class KeyLabel;
class QLineEdit;

/// What the editors of one line of text have in common: a line edit with a label that holds the key.
class LineValueEdit : public VariableEdit
{
    Q_OBJECT

public:
    /// A text other than the shown one is told like an edit. A value that is no text shows none.
    void setValue(QString key, QVariant value) override;
    QString getKey() override;
    QVariant getValue() override;

protected:
    LineValueEdit(const char *className, QWidget *parent);

    QLineEdit *lineEdit() const { return m_lineEdit; }

private slots:
    void valueChanged(const QString &value);

private:
    KeyLabel *m_label;
    QLineEdit *m_lineEdit;
};
