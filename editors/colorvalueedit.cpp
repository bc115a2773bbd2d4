#include "editors/colorvalueedit.h"

#include "model/namedcolor.h"

#include <QAbstractButton>
#include <QColorDialog>
#include <QDebug>
#include <QPointer>

ColorValueEdit::ColorValueEdit(const char *className, QAbstractButton *button, const QString &sheetTemplate,
                               QWidget *parent)
    : VariableEdit(className, parent),
      m_button(button),
      m_sheetTemplate(sheetTemplate)
{
    m_button->setParent(this);
    setFocusProxy(m_button);
    connect(m_button, &QAbstractButton::clicked, this, &ColorValueEdit::colorSelectorClicked);
}

void ColorValueEdit::setValue(QString key, QVariant value)
{
    m_key = key;
    m_button->setAccessibleName(key);
    setToolTip(key);
    takeColor(namedColor(value.toString()));
}

QVariant ColorValueEdit::getValue()
{
    return m_color.name(QColor::HexRgb);
}

int ColorValueEdit::getType()
{
    return ContentViewer::Parameters::Color;
}

void ColorValueEdit::colorSelectorClicked()
{
    qDebug("void %s::colorSelectorClicked()", metaObject()->className());
    // A child, not the static function's dialog on the stack: it goes with an editor that is deleted
    // meanwhile.
    const QPointer<QColorDialog> dialog = new QColorDialog(m_color, this);
    dialog->exec();
    if (!dialog)
        return;
    // Taken without a look at whether it is valid: a cancelled dialog is to give black.
    const QColor color = dialog->selectedColor();
    delete dialog.data();
    takeColor(color);
    const QPointer<ColorValueEdit> self = this;
    emit valueEdited(m_key, getValue());
    if (self)
        emit colorChanged(color);
}

void ColorValueEdit::takeColor(const QColor &color)
{
    m_color = color;
    const QString sheet = m_sheetTemplate.arg(getValue().toString());
    // Dressing a button anew is dear, even in the same sheet.
    if (sheet != m_button->styleSheet())
        m_button->setStyleSheet(sheet);
}
