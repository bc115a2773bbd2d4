#pragma once

#include "editors/linevalueedit.h"

/// Edits the path of a file, typed or chosen in the toolkit's dialog.
class FilePathEdit : public LineValueEdit
{
    Q_OBJECT

public:
    explicit FilePathEdit(QWidget *parent = nullptr);

    int getType() override;

private slots:
    /// Asks for an existing file. Cancelling clears the path: on purpose.
    void selectFileButtonClicked(bool checked);
};
