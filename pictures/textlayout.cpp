#include "pictures/textlayout.h"

#include "pictures/textalignment.h"

#include <QTextDocument>
#include <QTextFrame>

namespace
{
using MarginRule = int (*)(int contentHeight, int height);

MarginRule ruleOf(int vertical)
{
    switch (vertical) {
    case TextAlignment::Top:
        return &TextAlignment::topMargin;
    case TextAlignment::Middle:
        return &TextAlignment::middleMargin;
    case TextAlignment::Bottom:
        return &TextAlignment::bottomMargin;
    default:
        return nullptr;
    }
}

bool putTopMargin(QTextDocument &document, int margin)
{
    QTextFrameFormat format = document.rootFrame()->frameFormat();
    if (margin == format.topMargin())
        return false;
    format.setTopMargin(margin);
    document.rootFrame()->setFrameFormat(format);
    // The toolkit does not lay an empty document out anew by itself, and its height would stay as it was.
    if (document.isEmpty())
        document.markContentsDirty(0, 1);
    return true;
}
} // namespace

void TextLayout::align(QTextCursor &paragraphs, int code)
{
    const auto flags = TextAlignment::flags(code);
    if (!flags)
        return;
    QTextBlockFormat format;
    format.setAlignment(*flags);
    paragraphs.mergeBlockFormat(format);
}

bool TextLayout::place(QTextDocument &document, int vertical, int height)
{
    const int documentHeight = int(document.size().height());
    const MarginRule rule = ruleOf(vertical);
    if (!rule || documentHeight == 0)
        return false;
    // The height counts the margin that the document has already.
    const int margin = int(document.rootFrame()->frameFormat().topMargin());
    return putTopMargin(document, rule(documentHeight - margin, height));
}
