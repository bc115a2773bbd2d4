#pragma once

#include <QObject>

/// Counts the paints of the objects that it filters the events of.
class PaintCounter : public QObject
{
public:
    int paints() const { return m_paints; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int m_paints = 0;
};
