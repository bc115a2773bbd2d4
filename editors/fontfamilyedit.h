#pragma once

#include "editors/variableedit.h"

class QComboBox;

/// Chooses a font family in a combo box that shows no key.
class FontFamilyEdit : public VariableEdit
{
    Q_OBJECT

public:
    /// Starts with the families that the program has loaded by now.
    explicit FontFamilyEdit(QWidget *parent = nullptr);

    /// A family other than the current one is told like an edit. One that is not among the choices joins them
    /// as the last one; an empty name shows none.
    void setValue(QString key, QVariant value) override;
    QString getKey() override;
    QVariant getValue() override;
    int getType() override;

    /// Appends families to those already there, repeated ones too.
    void setAvailableValues(const QStringList &values);

private slots:
    void valueChanged(const QString &value);

private:
    void showFamily(const QString &family);

    QComboBox *m_comboBox;
    QString m_key;
};
