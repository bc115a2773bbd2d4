#pragma once

#include "editors/variableedit.h"

class QCheckBox;

/// Edits a yes or no in a check box that is nothing but an image. It starts without images.
class StyledCheckEdit : public VariableEdit
{
    Q_OBJECT

public:
    explicit StyledCheckEdit(QWidget *parent = nullptr);

    /// A state other than the shown one is told like an edit. What is no boolean counts as unchecked.
    void setValue(QString key, QVariant value) override;
    QString getKey() override;
    QVariant getValue() override;
    int getType() override;

    /// The paths of the images that are shown, the last one under the pointer; a missing file shows none.
    void setImages(const QString &checked, const QString &unchecked, const QString &uncheckedHover);

private slots:
    void valueChanged();

private:
    QCheckBox *m_checkBox;
    QString m_key;
};
