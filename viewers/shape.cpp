#include "viewers/shape.h"

#include "editors/checkedit.h"
#include "editors/coloredit.h"
#include "editors/enumedit.h"
#include "editors/intedit.h"
#include "editors/propertypanel.h"
#include "model/keys.h"
#include "model/namedcolor.h"
#include "model/pixels.h"

#include <QDebug>
#include <QFont>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QResizeEvent>

namespace
{
namespace Key
{
QString shape()
{
    return QStringLiteral("Shape");
}
QString align()
{
    return QStringLiteral("Align");
}
QString opacity()
{
    return QStringLiteral("Opacity");
}
QString fill()
{
    return QStringLiteral("Fill");
}
QString color()
{
    return QStringLiteral("Color");
}
QString border()
{
    return QStringLiteral("Border");
}
QString lineWidth()
{
    return QStringLiteral("Line Width");
}
QString borderColor()
{
    return QStringLiteral("Border Color");
}
QString size()
{
    return QStringLiteral("Size");
}
} // namespace Key

QPainterPath rounded(const QRectF &rectangle)
{
    QPainterPath path;
    path.addRoundedRect(rectangle, ShapeGeometry::cornerRadius, ShapeGeometry::cornerRadius,
                        Qt::AbsoluteSize);
    return path;
}
} // namespace

Shape::Shape(QWidget *parent) : ContentViewer(parent)
{
    initValues(QStringLiteral("Shape"));
    m_values.insert(Key::shape(), QStringLiteral("Round Rectangle"));
    m_values.insert(Key::align(), QStringLiteral("Center"));
    m_values.insert(Key::opacity(), 100);
    m_values.insert(Key::fill(), true);
    m_values.insert(Key::color(), QStringLiteral("black"));
    m_values.insert(Key::border(), true);
    m_values.insert(Key::lineWidth(), 1);
    m_values.insert(Key::borderColor(), QStringLiteral("white"));
    m_values.insert(Key::size(), QFont().pixelSize());
}

QVector<QPair<QString, ContentViewer::Parameters::ValueType>> Shape::getValueNameTypeDefinition()
{
    return {{Key::shape(), Parameters::Enum},    {Key::align(), Parameters::Enum},
            {Keys::x(), Parameters::Int},        {Keys::y(), Parameters::Int},
            {Keys::w(), Parameters::Int},        {Keys::h(), Parameters::Int},
            {Key::opacity(), Parameters::Int},   {Key::fill(), Parameters::Check},
            {Key::color(), Parameters::Color},   {Key::border(), Parameters::Check},
            {Key::lineWidth(), Parameters::Int}, {Key::borderColor(), Parameters::Color}};
}

void Shape::anyValueChanged()
{
    qDebug("void Shape::anyValueChanged()");
    ContentViewer::anyValueChanged();
}

QStringList Shape::getEnumsFor(QString enumName)
{
    if (enumName == Key::shape())
        return {QStringLiteral("Rectangle"),       QStringLiteral("Round Rectangle"),
                QStringLiteral("Square"),          QStringLiteral("Round Square"),
                QStringLiteral("Horizontal Line"), QStringLiteral("Vertical Line")};
    if (enumName == Key::align())
        return {QStringLiteral("Top"), QStringLiteral("Center"), QStringLiteral("Bottom"),
                QStringLiteral("Right"), QStringLiteral("Left")};
    return {};
}

QVariant Shape::getValue(QString key)
{
    update();
    return ContentViewer::getValue(key);
}

void Shape::applyGeometry(QRect geometry)
{
    ContentViewer::applyGeometry(geometry);
}

QVariant Shape::getMinValue(QString key)
{
    return key == Key::opacity() ? QVariant(0) : ContentViewer::getMinValue(key);
}

QVariant Shape::getMaxValue(QString key)
{
    return key == Key::opacity() ? QVariant(100) : ContentViewer::getMaxValue(key);
}

void Shape::buildSettingsPanel(QWidget *host)
{
    auto *panel = new PropertyPanel(this, host);
    auto *kind = new EnumEdit(panel);
    auto *align = new EnumEdit(panel);
    kind->setAvailableValues(getEnumsFor(Key::shape()));
    align->setAvailableValues(getEnumsFor(Key::align()));
    panel->bind(kind, Key::shape());
    panel->bind(align, Key::align());
    panel->addAreaCategory();
    addBasicProperties(*panel, kind, align);
    panel->orderFocus();
}

void Shape::addBasicProperties(PropertyPanel &panel, EnumEdit *kind, EnumEdit *align)
{
    const auto bound = [&panel](VariableEdit *editor, const QString &key) {
        panel.bind(editor, key);
        return editor;
    };
    VariableEdit *opacity = bound(new IntEdit(&panel), Key::opacity());
    VariableEdit *fill = bound(new CheckEdit(&panel), Key::fill());
    VariableEdit *color = bound(new ColorEdit(&panel), Key::color());
    VariableEdit *border = bound(new CheckEdit(&panel), Key::border());
    auto *lineWidth = new IntEdit(&panel);
    lineWidth->setMinimum(0);
    panel.bind(lineWidth, Key::lineWidth());
    VariableEdit *borderColor = bound(new ColorEdit(&panel), Key::borderColor());
    PropertyPanel::alignLabels({kind, align, opacity, lineWidth});

    QGridLayout *grid = panel.addCategory(tr("Basic Properties"));
    grid->setColumnStretch(2, 1);
    grid->addWidget(kind, 0, 0, 1, 3);
    grid->addWidget(align, 1, 0, 1, 3);
    grid->addWidget(opacity, 2, 0, 1, 3);
    grid->addWidget(fill, 3, 0);
    grid->addWidget(new QLabel(Key::color()), 3, 1);
    grid->addWidget(color, 3, 2);
    grid->addWidget(border, 4, 0);
    grid->addWidget(new QLabel(Key::borderColor()), 4, 1);
    grid->addWidget(borderColor, 4, 2);
    grid->addWidget(lineWidth, 5, 0, 1, 3);
}

void Shape::mouseDoubleClickEvent(QMouseEvent *event)
{
    ContentViewer::mouseDoubleClickEvent(event);
}

void Shape::resizeEvent(QResizeEvent *event)
{
    const QPoint position = parentWidget() ? parentWidget()->pos() : pos();
    storeGeometry(QRect(position, event->size()));
}

ShapeGeometry::Placement Shape::placement() const
{
    return {size(), m_values.value(Key::align()).toString(), toPixels(m_values.value(Key::lineWidth()))};
}

bool Shape::isOutlined() const
{
    return m_values.value(Key::border()).toBool() && toPixels(m_values.value(Key::lineWidth())) >= 1;
}

bool Shape::isFilled() const
{
    return m_values.value(Key::fill()).toBool();
}

void Shape::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // A width of 0 is the cosmetic pen; the toolkit has no meaning for one below.
    const int penWidth = qMax(0, toPixels(m_values.value(Key::lineWidth())));
    painter.setPen(QPen(namedColor(m_values.value(Key::borderColor()).toString()), penWidth, Qt::SolidLine,
                        Qt::SquareCap, Qt::MiterJoin));
    paintKind(painter, m_values.value(Key::shape()).toString());
}

void Shape::paintKind(QPainter &painter, const QString &kind)
{
    if (kind == QLatin1String("Round Square")) {
        if (const auto figure = ShapeGeometry::roundSquare(placement(), isOutlined()))
            paintRoundFigure(painter, *figure);
    } else if (kind == QLatin1String("Square")) {
        paintFigure(painter, ShapeGeometry::square(placement()));
    } else if (kind == QLatin1String("Rectangle")) {
        paintFigure(painter, ShapeGeometry::rectangle(placement()));
    } else if (kind == QLatin1String("Round Rectangle")) {
        paintRoundFigure(painter, ShapeGeometry::roundRectangle(placement(), isOutlined()));
    } else if (kind == QLatin1String("Vertical Line")) {
        painter.drawLine(ShapeGeometry::verticalLine(placement()));
    } else if (kind == QLatin1String("Horizontal Line")) {
        painter.drawLine(ShapeGeometry::horizontalLine(placement()));
    }
}

void Shape::paintFigure(QPainter &painter, const ShapeGeometry::Figure &figure)
{
    if (isFilled()) {
        painter.setOpacity(toPixels(m_values.value(Key::opacity())) * 0.01);
        painter.fillRect(figure.fill, namedColor(m_values.value(Key::color()).toString()));
        painter.setOpacity(1.0);
    }
    if (isOutlined())
        painter.drawRects(&figure.outline, 1);
}

void Shape::paintRoundFigure(QPainter &painter, const ShapeGeometry::RoundFigure &figure)
{
    if (isFilled()) {
        painter.setOpacity(toPixels(m_values.value(Key::opacity())) * 0.01);
        painter.fillPath(rounded(figure.fill), QBrush(namedColor(m_values.value(Key::color()).toString())));
        painter.setOpacity(1.0);
    }
    if (isOutlined())
        painter.drawPath(rounded(figure.outline));
}
