#pragma once

#include "editors/variableedit.h"

#include <QColor>

class QAbstractButton;

/// What the editors of a colour have in common: a button that opens the toolkit's dialog and is dressed in
/// the colour. The colour is invalid at first.
class ColorValueEdit : public VariableEdit
{
    Q_OBJECT

public:
    /// Tells nobody. Takes names and hexadecimal digits; anything else makes the colour invalid.
    void setValue(QString key, QVariant value) override;

    /// The colour as #rrggbb in lower case; an invalid one as "#000000".
    QVariant getValue() override;
    int getType() override;

signals:
    /// Follows valueEdited().
    void colorChanged(QColor color);

public slots:
    /// Asks for a colour. Cancelling makes it invalid, which is told as "#000000": on purpose.
    void colorSelectorClicked();

protected:
    /// The button is wanted without a parent; whoever derives from this class lays it out. The style sheet of
    /// the button holds %1 for the colour.
    ColorValueEdit(const char *className, QAbstractButton *button, const QString &sheetTemplate,
                   QWidget *parent);

    QAbstractButton *button() const { return m_button; }

private:
    void takeColor(const QColor &color);

    QAbstractButton *m_button;
    QString m_sheetTemplate;
    QString m_key;
    QColor m_color;
};
