#include "tests/app/lettersboard.h"

#include "tests/support/boards.h"
#include "tests/viewers/textboard.h"

#include <QJsonArray>

namespace
{
QJsonObject text(const QString &html, const QRect &geometry, const QString &font, int size,
                 const QJsonObject &others = {})
{
    QJsonObject values = {{"Text", html}, {"Font", font}, {"Size", size}, {"Underlined", false}};
    for (auto other = others.begin(); other != others.end(); ++other)
        values.insert(other.key(), other.value());
    return textObject(font + QString::number(size), geometry, values);
}

QJsonArray row(const QString &font, int y)
{
    const QString line = "<p>Home 12:34</p>";
    const QJsonObject bold = {{"Bold", true}, {"Italic", false}};
    const QJsonObject slanted = {{"Bold", false}, {"Italic", true}};
    return {text(line, {0, y, 60, 40}, font, 6), text(line, {60, y, 90, 40}, font, 9, bold),
            text(line, {150, y, 120, 40}, font, 14, slanted), text(line, {270, y, 190, 40}, font, 20)};
}

void append(QJsonArray &items, const QJsonArray &others)
{
    for (const QJsonValue &other : others)
        items.append(other);
}
} // namespace

QJsonObject lettersBoard()
{
    QJsonArray items;
    int y = 0;
    // The last two are no bundled fonts, and machines may have the very last.
    for (const char *font : {"Arial", "DSEG7 Classic", "Oswald", "Exo 2 Black", "Nowhere", "DejaVu Sans"}) {
        append(items, row(font, y));
        y += 40;
    }
    // One face in outlines and in small: 64 px are the limit between them.
    append(items, {text("<p>a8:5g</p>", {460, 0, 170, 80}, "Oswald", 48),
                   text("<p>a8:5g</p>", {630, 0, 170, 80}, "Oswald", 49),
                   text("<p>a8:5g</p>", {460, 80, 340, 120}, "Oswald", 88),
                   text("<p>a8:5g</p>", {460, 200, 60, 40}, "Oswald", 14)});
    const QString lacking = QString::fromUtf8("<p>č ★ ß ←</p>");
    append(items, {text(lacking, {520, 200, 80, 40}, "DSEG7 Classic", 12),
                   text(lacking, {600, 200, 200, 90}, "DSEG7 Classic", 50)});
    append(items,
           {text("<h1>Head</h1><p style='margin:1em 2ex'>1em here</p><p style='font-size:20px'>20 px</p>"
                 "<ul><li>one<li>two</ul><p></p><p>words that have to be broken into lines</p>",
                 {0, 240, 260, 160}, "Arial", 11, {{"Align_int", 11}}),
            text(QString(), {260, 240, 60, 60}, "Arial", 20),
            text("<p style='font-size:30pt'>A<big>B</big></p><hr><table border=1><tr><td>1<td>2</table>",
                 {320, 240, 270, 160}, "Roboto Condensed", 52, {{"Align_int", 31}})});
    return board(items);
}
