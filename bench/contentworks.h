#pragma once

// The work of texts, pictures and movies in the editor.

/// Opens a text for editing in place, on a board of so many: by a double click, "cpu", and, when it is
/// selected and its panel is open already, "opening".
void editText(int items, int);

/// Opens the dearest text of 64 KiB of HTML that is shown whole, or plain text of the same length; reports
/// "cpu" for each time, to painted.
void showText(int isPlain, int);

/// Repaints a picture that has not changed.
void paintPicture(int, int);

/// Gives an item the path of a picture.
void readPicture(int, int);

/// Plays so many movies.
void playMovies(int movies, int);

/// Leaves a board of so many items alone for ten seconds.
void rest(int items, int);
