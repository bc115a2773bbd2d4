#pragma once

#include <QPoint>
#include <QString>
#include <QStringList>

// The user's hands on a real X display: what is done here reaches the program through the X server and the
// window manager, as from a mouse and a keyboard. Every function answers false when the tool fails.

/// Runs the tool; its output, without the last line end, goes into @p output when there is one.
bool xdotool(const QStringList &arguments, QString *output = nullptr);

bool movePointer(QPoint globalPosition);
bool pressButton();
bool releaseButton();
bool click(QPoint globalPosition);

/// Drags with the left button, by way of some points between.
bool drag(QPoint from, QPoint to);

/// Presses and releases a key, written as in "ctrl+s".
bool pressKey(const QString &key);

bool typeText(const QString &text);
