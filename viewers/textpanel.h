#pragma once

class ContentViewer;
class QWidget;

/// The property panel of a text.
namespace TextPanel
{
/// Builds the editors of the text's parameters into the host, which owns them. The text itself has none: it
/// is edited in place.
void build(ContentViewer &text, QWidget *host);
} // namespace TextPanel
