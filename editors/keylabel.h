#pragma once

#include <QLabel>

/// The label of an editor: hidden whenever it has no text.
class KeyLabel : public QLabel
{
    Q_OBJECT

public:
    explicit KeyLabel(QWidget *parent);

    /// Shows the text, or hides the label when there is none.
    void showText(const QString &text);
};
