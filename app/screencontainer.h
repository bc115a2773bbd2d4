#pragma once

#include <QPointer>
#include <QScrollArea>

class Screen;

/// The scroll area around the canvas: centres a canvas that is smaller than the view and opens a larger one
/// scrolled to its middle.
class ScreenContainer : public QScrollArea
{
    Q_OBJECT

public:
    explicit ScreenContainer(QWidget *parent = nullptr);

    /// Shows this canvas and owns it; the one shown before is deleted.
    void setScreen(Screen *screen);

public slots:
    /// Centres the canvas; nothing without one.
    void calculateGeometry();

protected:
    void resizeEvent(QResizeEvent *event) override;
    /// A press on the ground around the canvas acts as one on the bare canvas.
    bool viewportEvent(QEvent *event) override;

private:
    bool isPressBesideScreen(const QEvent &event) const;

    QPointer<Screen> m_screen; // null again when the canvas is deleted elsewhere
};
