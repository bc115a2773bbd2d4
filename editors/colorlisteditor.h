#pragma once

#include <QColor>
#include <QComboBox>

/// Lists every colour that has a name. A spare widget: no panel uses it.
class ColorListEditor : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    explicit ColorListEditor(QWidget *parent = nullptr);

    /// The colour of the current item; invalid without one.
    QColor color() const;

    /// Selects the first item of this colour; without such an item none is selected.
    void setColor(const QColor &color);

signals:
    void colorChanged(QColor color);
};
