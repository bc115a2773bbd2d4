#include "editors/intedit.h"

#include "editors/keylabel.h"
#include "editors/numberbox.h"
#include "editors/wheelguard.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QSignalBlocker>

namespace
{
constexpr int widestLimit = 0x0FFFFFFF;
}

IntEdit::IntEdit(QWidget *parent)
    : VariableEdit("IntEdit", parent),
      m_label(new KeyLabel(this)),
      m_spinBox(new NumberBox(this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_label);
    row->addWidget(m_spinBox, 1);
    setFocusProxy(m_spinBox);
    m_spinBox->setRange(-widestLimit, widestLimit);
    new WheelGuard(m_spinBox);
    connect(m_spinBox, QOverload<int>::of(&QSpinBox::valueChanged), this, &IntEdit::valueChanged);
    connect(m_spinBox, &NumberBox::editBegins, this, &IntEdit::askTypingLimits);
}

void IntEdit::setValue(QString key, QVariant value)
{
    if (key != m_key)
        adoptKey(key);
    const int number = value.toInt();
    // A spin box paints itself anew for every value that it is given; an item that is dragged tells four.
    if (number == m_spinBox->value() && m_spinBox->text() == QString::number(number))
        return;
    const QSignalBlocker silence(m_spinBox);
    m_spinBox->setValue(number);
}

QString IntEdit::getKey()
{
    return m_key;
}

QVariant IntEdit::getValue()
{
    return m_spinBox->value();
}

int IntEdit::getType()
{
    return ContentViewer::Parameters::Int;
}

void IntEdit::setLabelText(const QString &text)
{
    m_label->showText(text);
}

void IntEdit::setMinimum(int minimum)
{
    const QSignalBlocker silence(m_spinBox);
    m_spinBox->setMinimum(minimum);
}

void IntEdit::valueChanged(int value)
{
    qDebug("void IntEdit::valueChanged(int value)");
    askLimits();
    // The value that was entered is told, even where the new limits no longer let it be shown.
    emit valueEdited(m_key, value);
}

void IntEdit::adoptKey(const QString &key)
{
    m_key = key;
    setLabelText(key);
    m_spinBox->setAccessibleName(key);
}

void IntEdit::askLimits()
{
    const QVariant maximum = emit getMax(m_key);
    const QVariant minimum = emit getMin(m_key);
    // Heard, limits that cross each other would push the value to and fro for ever.
    const QSignalBlocker silence(m_spinBox);
    // Setting a limit, even the same one, lets go of an arrow that is held down.
    if (maximum.isValid() && maximum.toInt() != m_spinBox->maximum())
        m_spinBox->setMaximum(maximum.toInt());
    if (minimum.isValid() && minimum.toInt() != m_spinBox->minimum())
        m_spinBox->setMinimum(minimum.toInt());
    m_spinBox->limitTyping(m_spinBox->minimum(), m_spinBox->maximum());
}

void IntEdit::askTypingLimits()
{
    // The range stays: it would cut what is shown of an item that lies beyond its limits.
    const QVariant maximum = emit getMax(m_key);
    const QVariant minimum = emit getMin(m_key);
    m_spinBox->limitTyping(minimum.isValid() ? minimum.toInt() : m_spinBox->minimum(),
                           maximum.isValid() ? maximum.toInt() : m_spinBox->maximum());
}
