#include "tests/support/boards.h"

QJsonObject shapeObject(const QString &name, const QRect &geometry)
{
    return {{"Type", "Shape"},       {"ScreenItemName", name},  {"Shape", "Rectangle"},
            {"Align", "Top"},        {"X", geometry.x()},       {"Y", geometry.y()},
            {"W", geometry.width()}, {"H", geometry.height()},  {"Opacity", 80},
            {"Fill", true},          {"Color", "#ff8000"},      {"Border", true},
            {"Line Width", 2},       {"Border Color", "yellow"}};
}

QJsonObject shapeObject(const QString &name, const QRect &geometry, const QJsonObject &others)
{
    QJsonObject object = shapeObject(name, geometry);
    for (auto it = others.begin(); it != others.end(); ++it)
        object.insert(it.key(), it.value());
    return object;
}

QJsonArray manyShapes(int count)
{
    QJsonArray items;
    for (int i = 0; i < count; ++i)
        items.append(shapeObject(QString("Item %1").arg(i), QRect(i % 100 * 7, i / 100 % 60 * 6, 20, 12)));
    return items;
}

QJsonObject board(const QJsonArray &items)
{
    return board(items, {{"Background Color", "#000000"}, {"Height", 400}, {"Width", 800}});
}

QJsonObject board(const QJsonArray &items, const QJsonObject &parameters)
{
    return {{"items", items}, {"parameters", parameters}};
}
