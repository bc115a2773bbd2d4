#pragma once

#include <QPointer>
#include <QWidget>

class ColorEdit;
class QSpinBox;
class Screen;

/// The bar with the three values of the screen itself: height, width (px) and background colour.
class ScreenSettings : public QWidget
{
    Q_OBJECT

public:
    explicit ScreenSettings(QWidget *parent = nullptr);

    /// Shows the canvas's values as they are now. A length beyond the range of its box is shown, and written
    /// back where the box showed another before, as the nearest that is possible. Nothing without a canvas.
    void updateFromScreen();

public slots:
    /// Shows the canvas's values and edits them from now on; to be called once.
    void setScreen(Screen *screen);

private:
    QPointer<Screen> m_screen;
    QSpinBox *m_height;
    QSpinBox *m_width;
    ColorEdit *m_color;
};
