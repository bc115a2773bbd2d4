#include "bench/floorcanvas.h"

#include <QJsonArray>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

namespace
{
class Content : public QWidget
{
public:
    Content(const FloorShape &shape, QWidget *parent) : QWidget(parent), m_shape(shape)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        Q_UNUSED(event)
        QPainter painter(this);
        paintFloorShape(painter, m_shape, size());
    }

private:
    FloorShape m_shape;
};

class Overlay : public QWidget
{
public:
    explicit Overlay(QWidget *parent) : QWidget(parent) { setAttribute(Qt::WA_TransparentForMouseEvents); }

protected:
    void paintEvent(QPaintEvent *event) override { Q_UNUSED(event) }
};

class Frame : public QWidget
{
public:
    Frame(const FloorShape &shape, QWidget *parent) : QWidget(parent), m_overlay(new Overlay(this))
    {
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(new Content(shape, this));
        m_overlay->raise();
        setGeometry(shape.geometry);
    }

protected:
    void resizeEvent(QResizeEvent *event) override
    {
        Q_UNUSED(event)
        m_overlay->resize(size());
    }

private:
    Overlay *m_overlay;
};

QPainterPath rounded(const QRectF &rectangle)
{
    QPainterPath path;
    path.addRoundedRect(rectangle, 10, 10, Qt::AbsoluteSize);
    return path;
}

QRect geometryOf(const QJsonObject &object)
{
    return {object.value(QStringLiteral("X")).toInt(), object.value(QStringLiteral("Y")).toInt(),
            object.value(QStringLiteral("W")).toInt(), object.value(QStringLiteral("H")).toInt()};
}
} // namespace

FloorShape::FloorShape(const QJsonObject &object)
    : type(object.value(QStringLiteral("Type")).toString()),
      name(object.value(QStringLiteral("ScreenItemName")).toString()),
      kind(object.value(QStringLiteral("Shape")).toString()),
      align(object.value(QStringLiteral("Align")).toString()),
      geometry(geometryOf(object)),
      opacity(object.value(QStringLiteral("Opacity")).toInt()),
      fill(object.value(QStringLiteral("Fill")).toBool()),
      color(object.value(QStringLiteral("Color")).toString()),
      border(object.value(QStringLiteral("Border")).toBool()),
      lineWidth(object.value(QStringLiteral("Line Width")).toInt()),
      borderColor(object.value(QStringLiteral("Border Color")).toString())
{
}

QJsonObject FloorShape::toJson() const
{
    return {{QStringLiteral("Type"), type},
            {QStringLiteral("ScreenItemName"), name},
            {QStringLiteral("Shape"), kind},
            {QStringLiteral("Align"), align},
            {QStringLiteral("X"), geometry.x()},
            {QStringLiteral("Y"), geometry.y()},
            {QStringLiteral("W"), geometry.width()},
            {QStringLiteral("H"), geometry.height()},
            {QStringLiteral("Opacity"), opacity},
            {QStringLiteral("Fill"), fill},
            {QStringLiteral("Color"), color},
            {QStringLiteral("Border"), border},
            {QStringLiteral("Line Width"), lineWidth},
            {QStringLiteral("Border Color"), borderColor}};
}

void paintFloorShape(QPainter &painter, const FloorShape &shape, QSize size)
{
    const qreal lineWidth = shape.lineWidth;
    const qreal inset = lineWidth / 2;
    const QRectF outline(inset, inset, size.width() - lineWidth, size.height() - lineWidth);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(shape.borderColor), lineWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    if (shape.kind == QLatin1String("Rectangle")) {
        painter.fillRect(QRect(QPoint(0, 0), size), QColor(shape.color));
        painter.drawRect(outline);
    } else {
        painter.fillPath(rounded(outline), QColor(shape.color));
        painter.drawPath(rounded(outline));
    }
}

FloorCanvas::FloorCanvas(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void FloorCanvas::load(const QJsonObject &document)
{
    hide();
    const QJsonObject parameters = document.value(QStringLiteral("parameters")).toObject();
    setFixedSize(parameters.value(QStringLiteral("Width")).toInt(),
                 parameters.value(QStringLiteral("Height")).toInt());
    const QJsonArray items = document.value(QStringLiteral("items")).toArray();
    for (const QJsonValue &item : items)
        addItem(FloorShape(item.toObject()));
    show();
}

void FloorCanvas::addItem(const FloorShape &shape)
{
    auto *frame = new Frame(shape, this);
    frame->show();
    m_frames.append(frame);
    m_shapes.append(shape);
}

void FloorCanvas::deleteItems()
{
    for (QWidget *frame : qAsConst(m_frames))
        frame->deleteLater();
    m_frames.clear();
    m_shapes.clear();
}

void FloorCanvas::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::black);
}
