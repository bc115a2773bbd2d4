#include "editors/fontfamilyedit.h"

#include "editors/choicebox.h"
#include "model/fontfamilies.h"

#include <QDebug>
#include <QHBoxLayout>

FontFamilyEdit::FontFamilyEdit(QWidget *parent)
    : VariableEdit("FontFamilyEdit", parent),
      m_comboBox(new ChoiceBox(this))
{
    // The longest name of all would make the box wider than a panel.
    m_comboBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    auto *row = new QHBoxLayout(this);
    row->addWidget(m_comboBox);
    setFocusProxy(m_comboBox);
    setAvailableValues(FontFamilies::list());
    connect(m_comboBox, &QComboBox::currentTextChanged, this, &FontFamilyEdit::valueChanged);
}

void FontFamilyEdit::setValue(QString key, QVariant value)
{
    m_key = key;
    m_comboBox->setAccessibleName(key);
    // Screen readers that take the current text for the name find the key here.
    m_comboBox->setToolTip(key);
    showFamily(value.toString());
}

void FontFamilyEdit::showFamily(const QString &family)
{
    // A layout may name a font that is not among those of the program: it is shown as it is.
    if (!family.isEmpty() && m_comboBox->findText(family) < 0)
        m_comboBox->addItem(family);
    // Heard on purpose: a family chosen by the program is told like one of the user.
    m_comboBox->setCurrentIndex(m_comboBox->findText(family));
}

QString FontFamilyEdit::getKey()
{
    return m_key;
}

QVariant FontFamilyEdit::getValue()
{
    return m_comboBox->currentText();
}

int FontFamilyEdit::getType()
{
    return ContentViewer::Parameters::Font;
}

void FontFamilyEdit::setAvailableValues(const QStringList &values)
{
    m_comboBox->addItems(values);
}

void FontFamilyEdit::valueChanged(const QString &value)
{
    qDebug("void FontFamilyEdit::valueChanged(QString value)");
    emit valueEdited(m_key, value);
}
