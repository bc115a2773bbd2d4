#include "pictures/textpicture.h"

#include "pictures/carriedpictures.h"
#include "pictures/largeletters.h"
#include "pictures/textalignment.h"
#include "pictures/textdocument.h"
#include "pictures/textkeys.h"
#include "pictures/textlayout.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextDocument>
#include <QTextOption>

namespace
{
using Values = QMap<QString, QVariant>;

/// A document with the pictures that it carries.
class Document : public QTextDocument
{
public:
    Document()
    {
        setUndoRedoEnabled(false);
        // Also within words, as the editor of texts does.
        QTextOption option = defaultTextOption();
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        setDefaultTextOption(option);
        TextDocument::prepare(*this);
    }

protected:
    QVariant loadResource(int type, const QUrl &name) override { return m_pictures.resource(type, name); }

private:
    CarriedPictures m_pictures;
};

/// As an item shows a text whose number is no code: where a new text is.
int shownCode(int code)
{
    return TextAlignment::flags(code) ? code : TextAlignment::Center + TextAlignment::Middle;
}

void fill(Document &document, const Values &values, QSize size)
{
    const int code = values.value(TextKeys::alignment()).toInt();
    QTextCursor text(&document);
    text.beginEditBlock();
    TextDocument::show(document, values.value(TextKeys::text()).toString());
    text.select(QTextCursor::Document);
    TextDocument::style(text, TextDocument::styleKeys(), values);
    TextLayout::align(text, shownCode(code));
    text.endEditBlock();
    document.setTextWidth(size.width());
    TextLayout::place(document, shownCode(code) % 10, size.height());
    TextLayout::place(document, code % 10, size.height());
}

/// The colours of what has none of its own. Rules between paragraphs are not seen, as in an item.
QPalette colors()
{
    QPalette palette(Qt::white, Qt::black);
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::Dark, Qt::transparent);
    return palette;
}
} // namespace

void TextPicture::paint(QPainter &painter, const Values &values, QSize size)
{
    if (size.isEmpty())
        return;
    Document document;
    fill(document, values, size);
    LargeLetters::straighten(document);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = colors();
    context.clip = QRectF(QPointF(), size);
    document.documentLayout()->draw(&painter, context);
}
