#pragma once

class QByteArray;
class QString;

/// The text of a style sheet file's bytes: Latin-1, up to the first zero byte or the end.
QString styleSheetText(const QByteArray &bytes);

/// Dresses the whole application in the style sheet of this file, in place of the one in force.
/// A file that cannot be opened changes nothing and is not reported.
void applyStyleSheetFile(const QString &path);

/// Dresses the whole application in its own style sheet. Needs the application object; wanted before the
/// first widget exists.
void applyApplicationStyle();
