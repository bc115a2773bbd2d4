#pragma once

// Pictures and movies with bare widgets.

/// Repaints a picture that is ready.
void paintPicture(int, int);

/// Reads a picture.
void readPicture(int, int);

/// Plays so many movies on labels; with a second number other than 0 these keep every frame decoded.
void playMovies(int movies, int keepsFrames);
