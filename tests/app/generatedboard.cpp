#include "tests/app/generatedboard.h"

#include "tests/support/boards.h"

#include <QJsonArray>
#include <QRandomGenerator>

namespace
{
using Choices = QVector<QJsonValue>;

/// Makes one item after the other.
class Generator
{
public:
    Generator(quint32 number, const QStringList &media) : m_random(number), m_media(media) {}

    QJsonObject board()
    {
        const QSize size(40 + m_random.bounded(700), 30 + m_random.bounded(400));
        QJsonArray items;
        const int count = 1 + m_random.bounded(14);
        for (int i = 0; i < count; ++i)
            items.append(item(size));
        return ::board(items,
                       {{"Width", size.width()},
                        {"Height", size.height()},
                        {"Background Color", one({"#000000", "#204060", "white", "none", "#80ff0000"})}});
    }

private:
    QJsonValue one(const Choices &choices) { return choices.at(m_random.bounded(choices.size())); }

    bool isOneIn(int many) { return m_random.bounded(many) == 0; }

    QJsonObject item(QSize screen)
    {
        const QRect geometry(m_random.bounded(screen.width()) - (isOneIn(4) ? 60 : 0),
                             m_random.bounded(screen.height()) - (isOneIn(4) ? 40 : 0), m_random.bounded(300),
                             m_random.bounded(200));
        QJsonObject object = shapeObject("Item", geometry, look());
        if (isOneIn(12))
            object.insert(one({"X", "W", "Size", "Fill", "Text", "Color", "Align_int"}).toString(),
                          one({QJsonValue(), "17", true, 1e9, -3, 2.5, QJsonArray()}));
        return object;
    }

    QJsonObject look()
    {
        const QString file = m_media.isEmpty() ? QString() : m_media.at(m_random.bounded(m_media.size()));
        return {
            {"Type", one({"Text", "Text", "Shape", "Shape", "Image Viewer", "Animation Viewer", "Unknown"})},
            {"Shape", one({"Rectangle", "Round Rectangle", "Square", "Round Square", "Horizontal Line",
                           "Vertical Line", "Star"})},
            {"Align", one({"Top", "Center", "Bottom", "Right", "Left", "Nowhere"})},
            {"Opacity", one({0, 30, 100, 250})},
            {"Fill", isOneIn(2)},
            {"Border", isOneIn(2)},
            {"Line Width", one({0, 1, 2, 7, -3})},
            {"Color", one({"red", "#12ab3c", "white", "nonsense", ""})},
            {"Border Color", one({"yellow", "#0000ff", "nonsense"})},
            {"Path", isOneIn(8) ? QString("missing.png") : file},
            {"Text", html()},
            {"Font", one({"Arial", "Oswald", "DSEG7 Classic", "Exo 2 Black", "Roboto Condensed", "Nowhere",
                          "digital-7", "", "DejaVu Sans"})},
            {"Size", one({6, 8, 12, 20, 33, 48, 49, 90})},
            {"Bold", isOneIn(3)},
            {"Italic", isOneIn(3)},
            {"Underlined", isOneIn(4)},
            {"Align_int", one({11, 12, 13, 21, 22, 23, 31, 32, 33, 0, 15, 42, -13})}};
    }

    QJsonValue html()
    {
        return one(
            {"", "plain", "12:34", "<p>one</p><p align='right'>two <b>bold</b></p>",
             "<p>a line that is far too long for most of the rectangles that come here, and so is cut</p>",
             "<h1>Title</h1><ul><li>first<li><i>second</i></ul>",
             "<table border=1><tr><td>1</td><td style='color:red'>2</td></tr></table><p>end</p>",
             "<p style='margin-top:30px; font-size:30pt; text-decoration:underline'>12:34</p><p></p>",
             "<p style='font-size:20px; margin:1em'>px<big>big</big></p><hr><p>x</p>", "<p><br></p>",
             QString::fromUtf8("<p>č ★ ß ← &#9733;</p>"), "<img src='nowhere.png'>x",
             "<div style='margin:9999999px'>x</div>"});
    }

    QRandomGenerator m_random;
    QStringList m_media;
};
} // namespace

QJsonObject generatedBoard(quint32 number, const QStringList &media)
{
    return Generator(number, media).board();
}
