#pragma once

#include "editors/variableedit.h"

class KeyLabel;
class QComboBox;

/// Chooses one of a list of words in a combo box with a label.
class EnumEdit : public VariableEdit
{
    Q_OBJECT

public:
    /// Starts without choices.
    explicit EnumEdit(QWidget *parent = nullptr);

    /// A choice other than the current one is told like an edit. A value that is not among the choices leaves
    /// the current one.
    void setValue(QString key, QVariant value) override;
    QString getKey() override;
    QVariant getValue() override;
    int getType() override;

    /// Appends choices to those already there, repeated ones too. The first of all becomes the current one.
    void setAvailableValues(const QStringList &values);

    /// Replaces the label until the next key; none hides it. The key stays.
    void setLabelText(const QString &text);

private slots:
    void valueChanged(const QString &value);

private:
    void adoptKey(const QString &key);

    KeyLabel *m_label;
    QComboBox *m_comboBox;
    QString m_key;
};
