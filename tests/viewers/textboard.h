#pragma once

#include "tests/canvas/boardfixture.h"

#include <QJsonObject>
#include <QStringList>
#include <QTextDocument>

class CustomTextEditor;
class TextOutput;

/// A text with every parameter given, as a file holds it; the values are not the defaults of a new text.
QJsonObject textObject(const QString &name, const QRect &geometry, const QJsonObject &others = {});

/// What can be seen of a document, one line for each part: the margin above it, its paragraphs with their
/// alignment, and their pieces with font and colour.
QStringList described(const QTextDocument &document);

/// A shown board with texts on it.
class TextBoard : public BoardFixture
{
public:
    /// A new frame with a text in it, at (0, 0) and 100 x 50 px before it gets this geometry.
    ScreenItem *addText(const QRect &geometry, const QString &name = QString());

    /// Double-clicks the middle of the frame; the text is edited then.
    void startEditing(const ScreenItem *frame);

    /// Types into whatever has the focus, through the window.
    void write(const QString &text);
};

/// The content of a text's frame.
TextOutput *textIn(const ScreenItem *frame);

/// The editor inside a text, wherever it is lodged.
CustomTextEditor *editorIn(const ScreenItem *frame);

bool isEditing(const ScreenItem *frame);

/// The margin above the text (px).
int topMargin(const ScreenItem *frame);
