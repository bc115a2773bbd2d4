#pragma once

#include <QObject>

class QWidget;

/// Keeps the wheel from a box while it has no focus: whoever scrolls across a number or a list means what is
/// around it. Nor does the wheel give it the focus. The box owns its guard.
class WheelGuard : public QObject
{
    Q_OBJECT

public:
    explicit WheelGuard(QWidget *box);

    bool eventFilter(QObject *watched, QEvent *event) override;
};
