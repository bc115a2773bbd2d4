#include "editors/textedit.h"

#include "editors/keylabel.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QLineEdit>

TextEdit::TextEdit(QWidget *parent)
    : VariableEdit("TextEdit", parent),
      m_label(new KeyLabel(this)),
      m_lineEdit(new QLineEdit(this))
{
    auto *row = new QHBoxLayout(this);
    row->addWidget(m_label);
    row->addWidget(m_lineEdit, 1);
    setFocusProxy(m_lineEdit);
    connect(m_lineEdit, &QLineEdit::textChanged, this, &TextEdit::valueChanged);
}

void TextEdit::setValue(QString key, QVariant value)
{
    m_label->showText(key);
    m_lineEdit->setAccessibleName(key);
    // Heard on purpose: a text set by the program is told like one that was typed.
    m_lineEdit->setText(value.toString());
}

QString TextEdit::getKey()
{
    return m_label->text();
}

QVariant TextEdit::getValue()
{
    return m_lineEdit->text();
}

int TextEdit::getType()
{
    return ContentViewer::Parameters::Text;
}

void TextEdit::valueChanged(const QString &value)
{
    qDebug("void TextEdit::valueChanged(QString value)");
    emit valueEdited(getKey(), value);
}
