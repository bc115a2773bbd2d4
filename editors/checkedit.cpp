#include "editors/checkedit.h"

#include <QCheckBox>
#include <QDebug>
#include <QVBoxLayout>

CheckEdit::CheckEdit(QWidget *parent) : VariableEdit("CheckEdit", parent), m_checkBox(new QCheckBox(this))
{
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_checkBox);
    setFocusProxy(m_checkBox);
    connect(m_checkBox, &QCheckBox::stateChanged, this, &CheckEdit::valueChanged);
}

void CheckEdit::setValue(QString key, QVariant value)
{
    m_checkBox->setText(key);
    // Heard on purpose: a state set by the program is told like a click.
    m_checkBox->setChecked(value.toBool());
}

QString CheckEdit::getKey()
{
    return m_checkBox->text();
}

QVariant CheckEdit::getValue()
{
    return m_checkBox->isChecked();
}

int CheckEdit::getType()
{
    return ContentViewer::Parameters::Check;
}

void CheckEdit::valueChanged()
{
    qDebug("void CheckEdit::valueChanged()");
    emit valueEdited(getKey(), getValue());
}
