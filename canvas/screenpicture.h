#pragma once

#include <QImage>

class Screen;

/// The board as it is shown on the display: exactly the screen's size, without grid and editing borders.
/// Null for a screen without area and for one that no picture file could hold.
QImage pictureOf(Screen &screen);

/// Writes the picture in the format of the path's suffix, with the toolkit's default quality. Answers why it
/// could not be written, null on success. After a failure an older file of this name is
/// as it was.
QString savePicture(const QImage &picture, const QString &path);
