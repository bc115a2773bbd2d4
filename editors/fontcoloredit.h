#pragma once

#include "editors/colorvalueedit.h"

/// Edits the colour of a text by a button whose letter A shows it.
class FontColorEdit : public ColorValueEdit
{
    Q_OBJECT

public:
    explicit FontColorEdit(QWidget *parent = nullptr);

    /// The caption " A  " on purpose, though edits are told under the key: who looks for editors by key is
    /// not to find this one.
    QString getKey() override;
};
