#include "bench/floorcanvas.h"

#include "bench/floortext.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

/// The border of a selected item: the four dotted lines that the product draws for one.
class FloorOverlay : public QWidget
{
    Q_OBJECT

public:
    explicit FloorOverlay(QWidget *parent) : QWidget(parent)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

    void setSelected(bool selected) { m_selected = selected; }

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
/// Posted events are delivered after so many items: every one that waits makes the next one dearer.
constexpr int itemsPerDelivery = 200;

class Content : public QWidget
{
    Q_OBJECT

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

FloorFrame::FloorFrame(const QRect &geometry, QWidget *parent)
    : QWidget(parent),
      m_overlay(new FloorOverlay(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    setGeometry(geometry);
}

void FloorFrame::setContent(QWidget *content)
{
    layout()->addWidget(content);
    m_overlay->raise();
}

void FloorFrame::setSelected(bool selected)
{
    m_overlay->setSelected(selected);
}

void FloorFrame::resizeEvent(QResizeEvent *event)
{
    Q_UNUSED(event)
    m_overlay->resize(size());
}

FloorCanvas::FloorCanvas(QWidget *parent) : QWidget(parent) {}

void FloorCanvas::load(const QJsonObject &document)
{
    hide();
    const QJsonObject parameters = document.value(QStringLiteral("parameters")).toObject();
    setFixedSize(parameters.value(QStringLiteral("Width")).toInt(),
                 parameters.value(QStringLiteral("Height")).toInt());
    const QJsonArray items = document.value(QStringLiteral("items")).toArray();
    for (const QJsonValue &item : items) {
        addItem(item.toObject());
        if (m_frames.size() % itemsPerDelivery == 0)
            QCoreApplication::sendPostedEvents();
    }
    show();
}

void FloorCanvas::addItem(const QJsonObject &object)
{
    FloorFrame *frame = addFrame(geometryOf(object));
    if (object.value(QStringLiteral("Type")).toString() == QLatin1String("Text")) {
        frame->setContent(FloorText::create(object, frame));
    } else {
        m_shapes.append(FloorShape(object));
        frame->setContent(new Content(m_shapes.constLast(), frame));
    }
    frame->show();
}

FloorFrame *FloorCanvas::addFrame(const QRect &geometry)
{
    auto *frame = new FloorFrame(geometry, this);
    m_frames.append(frame);
    return frame;
}

void FloorCanvas::selectAll(bool selected)
{
    for (FloorFrame *frame : qAsConst(m_frames))
        frame->setSelected(selected);
    update();
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

#include "floorcanvas.moc"
