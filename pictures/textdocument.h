#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

class QTextCharFormat;
class QTextCursor;
class QTextDocument;

/// How a text becomes a document: for the editor in an item, and for a picture without one. What a document
/// may ask for is bounded (RichText, TextBounds), and its letters are those of a board (TextLetters).
namespace TextDocument
{
using Values = QMap<QString, QVariant>;

/// Makes an empty document ready, once. From then on its formats are held before each layout, whatever
/// changes them.
void prepare(QTextDocument &document);

/// Replaces the content. Of what is too much only the beginning is shown, as plain text; answers whether all
/// of it is.
bool show(QTextDocument &document, const QString &html);

/// The format of letters in the styles of these values (TextKeys), of these keys alone.
QTextCharFormat format(const QStringList &keys, const Values &values);

/// Gives the selected letters this format.
void style(QTextCursor &letters, const QStringList &keys, const Values &values);

/// Every key that sets a style.
QStringList styleKeys();
} // namespace TextDocument
