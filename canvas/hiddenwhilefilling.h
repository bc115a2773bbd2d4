#pragma once

#include <QtGlobal>

class QWidget;

/// Hides a canvas while many items are made on it and shows it again: a visible canvas would repaint for
/// each. The canvas has to outlive this.
class HiddenWhileFilling
{
public:
    /// A canvas that is to get no more than one item stays in view.
    HiddenWhileFilling(QWidget &canvas, qptrdiff itemCount);
    ~HiddenWhileFilling();
    Q_DISABLE_COPY(HiddenWhileFilling)

    /// To be told of every item made, while it is new.
    void itemMade(QWidget &item);

private:
    QWidget &m_canvas;
    bool m_hides;
};
