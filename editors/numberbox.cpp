#include "editors/numberbox.h"

#include <QSignalBlocker>

#include <optional>

namespace
{
/// Larger numbers than a spin box knows, since any of them may be typed.
std::optional<qint64> numberIn(const QString &text, const QLocale &locale)
{
    bool isNumber = false;
    const qint64 number = locale.toLongLong(text, &isNumber);
    return isNumber ? std::optional<qint64>(number) : std::nullopt;
}

bool isBeginning(const QString &text)
{
    return text.isEmpty() || text == QLatin1String("-") || text == QLatin1String("+");
}
} // namespace

NumberBox::NumberBox(QWidget *parent) : QSpinBox(parent) {}

void NumberBox::limitTyping(int lowest, int highest)
{
    m_lowest = lowest;
    m_highest = qMax(lowest, highest);
    const QSignalBlocker silence(this);
    // Setting a limit, even the same one, lets go of an arrow that is held down.
    if (m_lowest < minimum())
        setMinimum(m_lowest);
    if (m_highest > maximum())
        setMaximum(m_highest);
}

void NumberBox::stepBy(int steps)
{
    // An unfinished number is what the user steps from, not the one before it.
    const auto typed = numberIn(text(), locale());
    if (typed && *typed != nearestTo(*typed))
        interpretText();
    QSpinBox::stepBy(steps);
}

QValidator::State NumberBox::validate(QString &input, int &pos) const
{
    const QValidator::State state = QSpinBox::validate(input, pos);
    if (state == QValidator::Acceptable) {
        // The value that is shown may lie beyond the limits: leaving the box shall not change it.
        const int number = valueFromText(input);
        return number == value() || number == nearestTo(number) ? state : QValidator::Intermediate;
    }
    return isBeginning(input) || numberIn(input, locale()) ? QValidator::Intermediate : state;
}

void NumberBox::fixup(QString &input) const
{
    if (const auto number = numberIn(input, locale()))
        input = textFromValue(nearestTo(*number));
    else
        QSpinBox::fixup(input);
}

void NumberBox::focusInEvent(QFocusEvent *event)
{
    emit editBegins();
    QSpinBox::focusInEvent(event);
}

int NumberBox::nearestTo(qint64 number) const
{
    const qint64 highest = qMin(maximum(), m_highest);
    return int(qMax<qint64>(qMax(minimum(), m_lowest), qMin(number, highest)));
}
