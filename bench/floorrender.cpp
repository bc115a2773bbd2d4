// bench-floor-render LAYOUT PICTURE: a layout file to a picture with a bare painter, without any widget.
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QPainterPath>

namespace
{
QRect geometryOf(const QJsonObject &shape)
{
    return {shape.value(QStringLiteral("X")).toInt(), shape.value(QStringLiteral("Y")).toInt(),
            shape.value(QStringLiteral("W")).toInt(), shape.value(QStringLiteral("H")).toInt()};
}

void paintShape(QPainter &painter, const QJsonObject &shape)
{
    const int lineWidth = shape.value(QStringLiteral("Line Width")).toInt();
    const qreal inset = lineWidth / 2.0;
    const QRect geometry = geometryOf(shape);
    const QRectF outline = QRectF(geometry).adjusted(inset, inset, -inset, -inset);
    const QColor color(shape.value(QStringLiteral("Color")).toString());
    painter.setPen(QPen(QColor(shape.value(QStringLiteral("Border Color")).toString()), lineWidth,
                        Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    if (shape.value(QStringLiteral("Shape")).toString() == QLatin1String("Rectangle")) {
        painter.fillRect(geometry, color);
        painter.drawRect(outline);
        return;
    }
    QPainterPath path;
    path.addRoundedRect(outline, 10, 10, Qt::AbsoluteSize);
    painter.fillPath(path, color);
    painter.drawPath(path);
}
} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QFile file(QCoreApplication::arguments().value(1));
    if (!file.open(QIODevice::ReadOnly))
        return EXIT_FAILURE;
    const QJsonObject layout = QJsonDocument::fromJson(file.readAll()).object();
    const QJsonObject parameters = layout.value(QStringLiteral("parameters")).toObject();
    QImage image(parameters.value(QStringLiteral("Width")).toInt(),
                 parameters.value(QStringLiteral("Height")).toInt(), QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QJsonArray shapes = layout.value(QStringLiteral("items")).toArray();
    for (const QJsonValue &shape : shapes)
        paintShape(painter, shape.toObject());
    painter.end();
    return image.save(QCoreApplication::arguments().value(2)) ? EXIT_SUCCESS : EXIT_FAILURE;
}
