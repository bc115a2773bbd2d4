#pragma once

#include <QWidget>

class ToolBarForScreenItem;

/// A small icon button of the layer toolbar. It never takes the focus, which stays on the canvas.
class ToolBarItem : public QWidget
{
    Q_OBJECT

public:
    /// An empty tool tip makes a mere separator of it.
    ToolBarItem(QString iconPath, QString toolTip, ToolBarForScreenItem *parent);

signals:
    /// At the press of any mouse button.
    void clicked(ToolBarItem *me);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};
