#pragma once

#include "editors/linevalueedit.h"

/// Edits one line of text.
class TextEdit : public LineValueEdit
{
    Q_OBJECT

public:
    explicit TextEdit(QWidget *parent = nullptr);

    int getType() override;
};
