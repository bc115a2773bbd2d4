#pragma once

class QTextDocument;

/// Letters of more than 64 px, which the toolkit draws from their outlines.
namespace LargeLetters
{
/// To be called before each painting of the document. Where small letters of a face were drawn, the toolkit
/// leaves the last one's shift, a part of a pixel, on the face, and large letters of it would be drawn
/// shifted.
void straighten(const QTextDocument &document);
} // namespace LargeLetters
