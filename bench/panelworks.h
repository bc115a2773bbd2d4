#pragma once

// The work around the settings column; the first number is how many items the board has.

/// Builds the panel of one shape.
void buildPanel(int items, int);

/// Switches between two items a thousand times, as by clicks.
void switchItems(int items, int);

/// Moves an item by steps of a spin box: "allowed" is what one may cost, in CPU milliseconds.
void editInSpinBox(int items, int);
