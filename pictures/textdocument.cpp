#include "pictures/textdocument.h"

#include "pictures/richtext.h"
#include "pictures/textbounds.h"
#include "pictures/textkeys.h"
#include "pictures/textletters.h"
#include "pictures/textstyle.h"

#include <QTextCursor>
#include <QTextDocument>

namespace
{
bool readHtml(QTextDocument &document, const QString &html)
{
    if (!RichText::isShowable(html))
        return false;
    document.setHtml(TextLetters::withoutRelativeLengths(html));
    return TextBounds::isShowable(document);
}
} // namespace

void TextDocument::prepare(QTextDocument &document)
{
    TextLetters::prepare(document);
    // Told before the layout hears of a change, whatever made it.
    QObject::connect(&document, &QTextDocument::contentsChange, &document,
                     [&document] { TextBounds::clamp(document); });
}

bool TextDocument::show(QTextDocument &document, const QString &html)
{
    // Not laid out before it was judged.
    QTextCursor step(&document);
    step.beginEditBlock();
    const bool isWhole = readHtml(document, html);
    if (!isWhole)
        document.setPlainText(RichText::excerpt(html));
    TextLetters::settle(document);
    step.endEditBlock();
    return isWhole;
}

QTextCharFormat TextDocument::format(const QStringList &keys, const Values &values)
{
    QTextCharFormat format;
    for (const QString &key : keys)
        format.merge(TextStyle::charFormat(key, values.value(key)));
    return format;
}

void TextDocument::style(QTextCursor &letters, const QStringList &keys, const Values &values)
{
    const QTextCharFormat letterFormat = format(keys, values);
    if (!letterFormat.isEmpty())
        letters.mergeCharFormat(letterFormat);
}

QStringList TextDocument::styleKeys()
{
    return {TextKeys::italic(), TextKeys::font(), TextKeys::underlined(),
            TextKeys::size(),   TextKeys::bold(), TextKeys::color()};
}
