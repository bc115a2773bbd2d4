#include "editors/linevalueedit.h"

#include "editors/keylabel.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QLineEdit>

LineValueEdit::LineValueEdit(const char *className, QWidget *parent)
    : VariableEdit(className, parent),
      m_label(new KeyLabel(this)),
      m_lineEdit(new QLineEdit(this))
{
    auto *row = new QHBoxLayout(this);
    row->addWidget(m_label);
    row->addWidget(m_lineEdit);
    setFocusProxy(m_lineEdit);
    connect(m_lineEdit, &QLineEdit::textChanged, this, &LineValueEdit::valueChanged);
}

void LineValueEdit::setValue(QString key, QVariant value)
{
    m_label->showText(key);
    m_lineEdit->setAccessibleName(key);
    // Heard on purpose: a text set by the program is told like one that was typed.
    m_lineEdit->setText(value.toString());
}

QString LineValueEdit::getKey()
{
    return m_label->text();
}

QVariant LineValueEdit::getValue()
{
    return m_lineEdit->text();
}

void LineValueEdit::valueChanged(const QString &value)
{
    qDebug("void %s::valueChanged(QString value)", metaObject()->className());
    emit valueEdited(getKey(), value);
}
