#pragma once

#include <QJsonArray>
#include <QPoint>
#include <QSize>
#include <QVector>

class QWidget;

/// Pictures and movies for the boards.
namespace BenchMedia
{
constexpr QSize movieSize(64, 32);
constexpr QSize pictureSize(1920, 1080);
constexpr QSize shownSize(700, 350); ///< of the picture on the board

/// Writes a movie of twenty frames that plays without end at 25 frames a second. False when that fails.
bool writeMovie(const QString &path);

/// Writes a picture of many colours. False when that fails.
bool writePicture(const QString &path);

/// Where so many movies lie on a canvas of 800x400, none over another; there is room for fifty.
QVector<QPoint> moviePlaces(int count);

/// So many items that play the movie.
QJsonArray movieItems(int count, const QString &path);

/// An item in the corner of the canvas that shows the picture.
QJsonArray pictureItem(const QString &path);

/// Lets the movies in the labels below the widget play for a while: prints "cpu" (milliseconds a second) and
/// "frames", how many a second all labels together have painted.
void reportPlaying(const QWidget &canvas);
} // namespace BenchMedia
