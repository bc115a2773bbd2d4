#include "bench/board.h"

#include <QFile>
#include <QJsonDocument>

namespace
{
// Room for the whole board to be dragged.
constexpr int margin = 20;

constexpr int itemsPerText = 5;

QString colorOf(int index)
{
    return QStringLiteral("#%1").arg(index * 7919 % 0xffffff, 6, 16, QLatin1Char('0'));
}

QJsonObject shape(int index)
{
    return {{QStringLiteral("Type"), QStringLiteral("Shape")},
            {QStringLiteral("ScreenItemName"), QStringLiteral("Shape %1").arg(index)},
            {QStringLiteral("Shape"),
             index % 2 ? QStringLiteral("Rectangle") : QStringLiteral("Round Rectangle")},
            {QStringLiteral("Align"), QStringLiteral("Center")},
            {QStringLiteral("Opacity"), 100},
            {QStringLiteral("Fill"), true},
            {QStringLiteral("Color"), colorOf(index)},
            {QStringLiteral("Border"), true},
            {QStringLiteral("Line Width"), 2},
            {QStringLiteral("Border Color"), QStringLiteral("white")}};
}

QJsonObject text(int index)
{
    return {{QStringLiteral("Type"), QStringLiteral("Text")},
            {QStringLiteral("ScreenItemName"), QStringLiteral("Text %1").arg(index)},
            {QStringLiteral("Text"),
             QStringLiteral("<html><body><p align = \"center\" width = \"100%\">%1</p></body></html>")
                 .arg(index)},
            {QStringLiteral("Text Type"), QStringLiteral("Home Team Name")},
            {QStringLiteral("Font"), QStringLiteral("Oswald")},
            {QStringLiteral("Size"), 8},
            {QStringLiteral("Color"), colorOf(index)},
            {QStringLiteral("Bold"), index % 2 == 0},
            {QStringLiteral("Italic"), false},
            {QStringLiteral("Underlined"), false},
            {QStringLiteral("Auto Size"), true},
            {QStringLiteral("Align_int"), 22}};
}

void place(QJsonObject &item, int index, QSize canvas)
{
    const QSize room = canvas - BenchBoard::itemSize - QSize(2 * margin, 2 * margin);
    item.insert(QStringLiteral("X"), margin + index * 37 % room.width());
    item.insert(QStringLiteral("Y"), margin + index * 53 % room.height());
    item.insert(QStringLiteral("W"), BenchBoard::itemSize.width());
    item.insert(QStringLiteral("H"), BenchBoard::itemSize.height());
}

bool isText(int index, BenchBoard::Content content)
{
    return content == BenchBoard::Content::Texts ||
           (content == BenchBoard::Content::Mixed && index % itemsPerText == 0);
}
} // namespace

QJsonArray BenchBoard::items(int count, QSize canvas, Content content)
{
    QJsonArray items;
    for (int index = 0; index < count; ++index) {
        QJsonObject item = isText(index, content) ? text(index) : shape(index);
        place(item, index, canvas);
        items.append(item);
    }
    return items;
}

QJsonObject BenchBoard::layout(const QJsonArray &items, QSize canvas)
{
    const QJsonObject parameters = {{QStringLiteral("Background Color"), QStringLiteral("#000000")},
                                    {QStringLiteral("Width"), canvas.width()},
                                    {QStringLiteral("Height"), canvas.height()}};
    return {{QStringLiteral("items"), items}, {QStringLiteral("parameters"), parameters}};
}

QJsonObject BenchBoard::layout(int items, QSize canvas, Content content)
{
    return layout(BenchBoard::items(items, canvas, content), canvas);
}

bool BenchBoard::write(const QString &path, const QJsonObject &layout)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(layout).toJson()) > 0;
}
