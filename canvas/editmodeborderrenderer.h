#pragma once

#include <QWidget>

class ScreenItem;

/// The editing border over an item's frame: dotted edges when the item is selected, thicker and with eight
/// handles when it is the active one. Takes no mouse input.
class EditModeBorderRenderer : public QWidget
{
    Q_OBJECT

public:
    /// The owner is the parent widget and the one whose state is painted.
    explicit EditModeBorderRenderer(ScreenItem *owner);

public slots:
    void paintEvent(QPaintEvent *event) override;

protected:
    bool event(QEvent *event) override;

private:
    void drawEdges(QPainter &painter, qreal penWidth);
    void drawHandles(QPainter &painter);

    ScreenItem *m_owner;
};
