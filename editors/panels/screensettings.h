#pragma once

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
    /// back, as the nearest that is possible.
    void updateFromScreen();

public slots:
    /// Binds the bar to the canvas, which has to outlive it; to be called once.
    void setScreen(Screen *screen);

private:
    Screen *m_screen = nullptr;
    QSpinBox *m_height;
    QSpinBox *m_width;
    ColorEdit *m_color;
};
