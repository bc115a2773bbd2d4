#pragma once

#include "editors/variableedit.h"

class KeyLabel;
class NumberBox;

/// Edits a whole number in a spin box with a label. Its range follows the limits that are asked for at every
/// edit; a number that is typed beyond them becomes the nearest of them when the edit ends, and is not told
/// before.
class IntEdit : public VariableEdit
{
    Q_OBJECT

public:
    /// Starts at 0 within -268435455 to 268435455.
    explicit IntEdit(QWidget *parent = nullptr);

    /// Tells nobody. A value beyond the range is shown as its nearest limit, one that is no number as 0 or as
    /// the limit nearest to that.
    void setValue(QString key, QVariant value) override;
    QString getKey() override;
    QVariant getValue() override;
    int getType() override;

    /// Replaces the label until the next key; none hides it. The key stays.
    void setLabelText(const QString &text);

    /// Starts with a lower limit, for as long as nobody answers with another one. Tells nobody.
    void setMinimum(int minimum);

private slots:
    void valueChanged(int value);

private:
    void adoptKey(const QString &key);
    void askLimits();
    void askTypingLimits();

    KeyLabel *m_label;
    NumberBox *m_spinBox;
    QString m_key;
};
