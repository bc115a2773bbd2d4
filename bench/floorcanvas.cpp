#include "bench/floorcanvas.h"

#include <QJsonArray>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

/// The border of a selected item: the four dotted lines that the product draws for one.
class FloorOverlay : public QWidget
{
public:
    explicit FloorOverlay(QWidget *parent) : QWidget(parent)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

    void select() { m_selected = true; }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        Q_UNUSED(event)
        if (!m_selected)
            return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Qt::gray, 1, Qt::DotLine, Qt::SquareCap, Qt::BevelJoin));
        const QRectF edges = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
        painter.drawLine(edges.topLeft(), edges.topRight());
        painter.drawLine(edges.topLeft(), edges.bottomLeft());
        painter.drawLine(edges.bottomLeft(), edges.bottomRight());
        painter.drawLine(edges.topRight(), edges.bottomRight());
    }

private:
    bool m_selected = false;
};

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

FloorFrame::FloorFrame(const FloorShape &shape, QWidget *parent)
    : QWidget(parent),
      m_overlay(new FloorOverlay(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new Content(shape, this));
    m_overlay->raise();
    setGeometry(shape.geometry);
}

void FloorFrame::select()
{
    m_overlay->select();
}

void FloorFrame::resizeEvent(QResizeEvent *event)
{
    Q_UNUSED(event)
    m_overlay->resize(size());
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
    auto *frame = new FloorFrame(shape, this);
    frame->show();
    m_frames.append(frame);
    m_shapes.append(shape);
}

void FloorCanvas::deleteItems()
{
    for (FloorFrame *frame : qAsConst(m_frames))
        frame->deleteLater();
    m_frames.clear();
    m_shapes.clear();
}

void FloorCanvas::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::black);
}
