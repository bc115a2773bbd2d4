#include "bench/board.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace
{
// Room for the whole board to be dragged.
constexpr int margin = 20;

QJsonObject shape(int index, QSize canvas)
{
    const QSize room = canvas - BenchBoard::itemSize - QSize(2 * margin, 2 * margin);
    return {{QStringLiteral("Type"), QStringLiteral("Shape")},
            {QStringLiteral("ScreenItemName"), QStringLiteral("Shape %1").arg(index)},
            {QStringLiteral("Shape"),
             index % 2 ? QStringLiteral("Rectangle") : QStringLiteral("Round Rectangle")},
            {QStringLiteral("Align"), QStringLiteral("Center")},
            {QStringLiteral("X"), margin + index * 37 % room.width()},
            {QStringLiteral("Y"), margin + index * 53 % room.height()},
            {QStringLiteral("W"), BenchBoard::itemSize.width()},
            {QStringLiteral("H"), BenchBoard::itemSize.height()},
            {QStringLiteral("Opacity"), 100},
            {QStringLiteral("Fill"), true},
            {QStringLiteral("Color"),
             QStringLiteral("#%1").arg(index * 7919 % 0xffffff, 6, 16, QLatin1Char('0'))},
            {QStringLiteral("Border"), true},
            {QStringLiteral("Line Width"), 2},
            {QStringLiteral("Border Color"), QStringLiteral("white")}};
}
} // namespace

QJsonObject BenchBoard::layout(int items, QSize canvas)
{
    QJsonArray shapes;
    for (int index = 0; index < items; ++index)
        shapes.append(shape(index, canvas));
    const QJsonObject parameters = {{QStringLiteral("Background Color"), QStringLiteral("#000000")},
                                    {QStringLiteral("Width"), canvas.width()},
                                    {QStringLiteral("Height"), canvas.height()}};
    return {{QStringLiteral("items"), shapes}, {QStringLiteral("parameters"), parameters}};
}

bool BenchBoard::write(const QString &path, int items, QSize canvas)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(layout(items, canvas)).toJson()) > 0;
}
