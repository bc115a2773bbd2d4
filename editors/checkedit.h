#pragma once

#include "editors/variableedit.h"

class QCheckBox;

/// Edits a yes or no in a check box that holds the key as its text.
class CheckEdit : public VariableEdit
{
    Q_OBJECT

public:
    explicit CheckEdit(QWidget *parent = nullptr);

    /// A state other than the shown one is told like an edit. What is no boolean counts as unchecked.
    void setValue(QString key, QVariant value) override;
    QString getKey() override;
    QVariant getValue() override;
    int getType() override;

private slots:
    void valueChanged();

private:
    QCheckBox *m_checkBox;
};
