#pragma once

#include <QList>
#include <QPoint>
#include <QRect>
#include <QWidget>

class Screen;
class ScreenItem;

/// A shown window with a canvas of 800 x 400 px, and a mouse and a keyboard for the frames on it. The events
/// go through the window, as those of a user do.
class BoardFixture
{
public:
    BoardFixture();

    /// Waits until the window takes the focus; false when it does not.
    bool isReady();

    QWidget *window() { return &m_window; }

    /// The canvas, owned by the fixture.
    Screen *screen() const { return m_screen; }

    /// A new frame with a shape in it. It holds the focus but is not the active one.
    ScreenItem *addShape(const QRect &geometry, const QString &name = QString());

    /// Where a point of the canvas lies on the desktop.
    QPoint globalPosition(QPoint position) const;

    // Positions are canvas pixels.
    void press(QPoint position, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Lets the button go where the mouse is.
    void release(Qt::MouseButton button = Qt::LeftButton);
    void click(QPoint position, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    void doubleClick(QPoint position);

    /// Moves the mouse with the buttons that are held. Nothing moves when it is there already.
    void moveTo(QPoint position);

    /// Makes the frame at the first point active, hovers there, and drags to the second.
    void drag(QPoint from, QPoint to);

    /// Strikes a key; the focus decides who gets it.
    void type(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

private:
    QPoint windowPosition(QPoint position) const;

    QWidget m_window;
    Screen *m_screen; // owned by the window
    QPoint m_mouse;   // where the mouse is, in canvas pixels
};

/// The frames' geometries in order.
QList<QRect> geometries(const QList<ScreenItem *> &frames);
