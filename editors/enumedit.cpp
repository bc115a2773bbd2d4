#include "editors/enumedit.h"

#include "editors/choicebox.h"
#include "editors/keylabel.h"

#include <QDebug>
#include <QHBoxLayout>

EnumEdit::EnumEdit(QWidget *parent)
    : VariableEdit("EnumEdit", parent),
      m_label(new KeyLabel(this)),
      m_comboBox(new ChoiceBox(this))
{
    auto *row = new QHBoxLayout(this);
    row->addWidget(m_label);
    row->addWidget(m_comboBox, 1);
    // Screen readers take the name of a combo box from its label.
    m_label->setBuddy(m_comboBox);
    setFocusProxy(m_comboBox);
    connect(m_comboBox, &QComboBox::currentTextChanged, this, &EnumEdit::valueChanged);
}

void EnumEdit::setValue(QString key, QVariant value)
{
    if (key != m_key)
        adoptKey(key);
    // Heard on purpose: a choice made by the program is told like one of the user.
    m_comboBox->setCurrentText(value.toString());
}

QString EnumEdit::getKey()
{
    return m_key;
}

QVariant EnumEdit::getValue()
{
    return m_comboBox->currentText();
}

int EnumEdit::getType()
{
    return ContentViewer::Parameters::Enum;
}

void EnumEdit::setAvailableValues(const QStringList &values)
{
    m_comboBox->addItems(values);
}

void EnumEdit::setLabelText(const QString &text)
{
    m_label->showText(text);
}

void EnumEdit::valueChanged(const QString &value)
{
    qDebug("void EnumEdit::valueChanged(QString value)");
    emit valueEdited(m_key, value);
}

void EnumEdit::adoptKey(const QString &key)
{
    m_key = key;
    setLabelText(key);
    m_comboBox->setAccessibleName(key);
}
