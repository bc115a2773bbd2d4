#pragma once

class QApplication;

/// Gives the application what the editor gives its own, done plainly: the style sheet, and every bundled font
/// added by its path.
void dressFloor(QApplication &application);
