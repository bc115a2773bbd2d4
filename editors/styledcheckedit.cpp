#include "editors/styledcheckedit.h"

#include <QCheckBox>
#include <QDebug>
#include <QVBoxLayout>

namespace
{
constexpr int side = 30; // pixels, as in the style sheet

/// Unchecked, unchecked under the pointer, checked. The white space is part of the interface.
QString sheetTemplate()
{
    return QStringLiteral(
        "QCheckBox::indicator    {        width:30;        height:30;        background-repeat :no-repeat;"
        "        background-position:center;    }"
        "        QCheckBox::indicator::unchecked{background-image: url(\"%1\");}"
        "    QCheckBox::indicator::unchecked::hover{background-image: url(\"%2\");}"
        "    QCheckBox::indicator::checked{background-image: url(\"%3\");}");
}
} // namespace

StyledCheckEdit::StyledCheckEdit(QWidget *parent)
    : VariableEdit("StyledCheckEdit", parent),
      m_checkBox(new QCheckBox(this))
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_checkBox);
    m_checkBox->setFixedSize(side, side);
    setFocusProxy(m_checkBox);
    connect(m_checkBox, &QCheckBox::stateChanged, this, &StyledCheckEdit::valueChanged);
}

void StyledCheckEdit::setValue(QString key, QVariant value)
{
    m_key = key;
    m_checkBox->setAccessibleName(key);
    setToolTip(key);
    // Heard on purpose: a state set by the program is told like a click.
    m_checkBox->setChecked(value.toBool());
}

QString StyledCheckEdit::getKey()
{
    return m_key;
}

QVariant StyledCheckEdit::getValue()
{
    return m_checkBox->isChecked();
}

int StyledCheckEdit::getType()
{
    return ContentViewer::Parameters::Check;
}

void StyledCheckEdit::setImages(const QString &checked, const QString &unchecked,
                                const QString &uncheckedHover)
{
    m_checkBox->setStyleSheet(sheetTemplate().arg(unchecked, uncheckedHover, checked));
}

void StyledCheckEdit::valueChanged()
{
    qDebug("void StyledCheckEdit::valueChanged()");
    emit valueEdited(m_key, getValue());
}
