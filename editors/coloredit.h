#pragma once

#include "editors/colorvalueedit.h"

/// Edits a colour by a small button filled with it. The button's text is the key, for which it has no room.
class ColorEdit : public ColorValueEdit
{
    Q_OBJECT

public:
    explicit ColorEdit(QWidget *parent = nullptr);

    void setValue(QString key, QVariant value) override;
    QString getKey() override;
};
