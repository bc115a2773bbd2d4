#pragma once

// The work on many items at once in the editor; the first number is how many items there are.

/// Selects all items, "all", and none of them, "none".
void selectItems(int items, int);

/// Copies all items, "copy", duplicates them, "duplicate", and pastes them onto an empty canvas, "paste"; to
/// compare, opens the same from a file, "load".
void useClipboard(int items, int);

/// Pastes the items and deletes them at once.
void pasteAndDelete(int items, int);

/// Moves an item one layer up.
void moveLayer(int items, int);

/// Deletes all items.
void deleteItems(int items, int);
