#pragma once

#include <QString>

#include <array>
#include <optional>

/// The nine places of a text in its rectangle. A code is the sum of its horizontal and its vertical part.
namespace TextAlignment
{
enum Vertical { Top = 1, Middle = 2, Bottom = 3 };
enum Horizontal { Left = 10, Center = 20, Right = 30 };

/// A button that sets one part of the code.
struct Button {
    const char *key;
    int part;
};

constexpr Button topButton = {"Vertical_Top", Top};
constexpr Button middleButton = {"Vertical_Center", Middle};
constexpr Button bottomButton = {"Vertical_Bottom", Bottom};
constexpr Button leftButton = {"Horizontal_Left", Left};
constexpr Button centerButton = {"Horizontal_Center", Center};
constexpr Button rightButton = {"Horizontal_Right", Right};

/// The buttons of each axis in the order in which a press is told.
constexpr std::array<Button, 3> vertical = {{topButton, bottomButton, middleButton}};
constexpr std::array<Button, 3> horizontal = {{leftButton, rightButton, centerButton}};

/// Every button in the order in which a new code is told.
constexpr std::array<Button, 6> announced = {
    {topButton, bottomButton, middleButton, centerButton, leftButton, rightButton}};

/// The button of a key, null for any other key.
const Button *button(const QString &key);

/// True for a button that moves the text up and down, false for one that moves it sideways.
constexpr bool isVertical(const Button &button)
{
    return button.part < Left;
}

/// The toolkit's flags of a code; none for a number that is no code.
std::optional<Qt::Alignment> flags(int code);

/// The margins above a text (px) that put it at the top, in the middle and at the bottom.
/// @param contentHeight height of the text without the margin above it
/// @param height height of the rectangle
int topMargin(int contentHeight, int height);
int middleMargin(int contentHeight, int height);
int bottomMargin(int contentHeight, int height);
} // namespace TextAlignment
