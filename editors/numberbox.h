#pragma once

#include <QSpinBox>

#include <limits>

/// A spin box in which a number beyond the limits can be typed: it is unfinished and told to nobody, and when
/// the edit ends the nearest limit takes its place.
class NumberBox : public QSpinBox
{
    Q_OBJECT

public:
    explicit NumberBox(QWidget *parent = nullptr);

    /// Holds what is typed from now on, until the next call, within these limits as well as within the range,
    /// which grows where they go beyond it. What is shown stays, be it beyond them. Of limits that cross each
    /// other the lowest holds. Tells nobody.
    void limitTyping(int lowest, int highest);

    void stepBy(int steps) override;

signals:
    /// The box gets the focus: its limits had better be those of this moment.
    void editBegins();

protected:
    QValidator::State validate(QString &input, int &pos) const override;
    void fixup(QString &input) const override;
    void focusInEvent(QFocusEvent *event) override;

private:
    int nearestTo(qint64 number) const;

    int m_lowest = std::numeric_limits<int>::min();
    int m_highest = std::numeric_limits<int>::max();
};
