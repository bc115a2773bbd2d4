#pragma once

#include <QImage>

class Screen;

/// The board as it is shown on the display: exactly the screen's size, without grid and editing borders.
/// Null for a screen without area and for one that no picture file could hold.
QImage pictureOf(Screen &screen);
