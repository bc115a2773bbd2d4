#include "viewers/shape.h"

#include "editors/checkedit.h"
#include "editors/coloredit.h"
#include "editors/enumedit.h"
#include "editors/intedit.h"
#include "editors/propertypanel.h"
#include "model/keys.h"
#include "pictures/shapekeys.h"
#include "pictures/shapepicture.h"

#include <QDebug>
#include <QFont>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QResizeEvent>

Shape::Shape(QWidget *parent) : ContentViewer(parent)
{
    initValues(QStringLiteral("Shape"));
    m_values.insert(ShapeKeys::shape(), QStringLiteral("Round Rectangle"));
    m_values.insert(ShapeKeys::align(), QStringLiteral("Center"));
    m_values.insert(ShapeKeys::opacity(), 100);
    m_values.insert(ShapeKeys::fill(), true);
    m_values.insert(ShapeKeys::color(), QStringLiteral("black"));
    m_values.insert(ShapeKeys::border(), true);
    m_values.insert(ShapeKeys::lineWidth(), 1);
    m_values.insert(ShapeKeys::borderColor(), QStringLiteral("white"));
    m_values.insert(QStringLiteral("Size"), QFont().pixelSize());
}

QVector<QPair<QString, ContentViewer::Parameters::ValueType>> Shape::getValueNameTypeDefinition()
{
    return {{ShapeKeys::shape(), Parameters::Enum},
            {ShapeKeys::align(), Parameters::Enum},
            {Keys::x(), Parameters::Int},
            {Keys::y(), Parameters::Int},
            {Keys::w(), Parameters::Int},
            {Keys::h(), Parameters::Int},
            {ShapeKeys::opacity(), Parameters::Int},
            {ShapeKeys::fill(), Parameters::Check},
            {ShapeKeys::color(), Parameters::Color},
            {ShapeKeys::border(), Parameters::Check},
            {ShapeKeys::lineWidth(), Parameters::Int},
            {ShapeKeys::borderColor(), Parameters::Color}};
}

void Shape::anyValueChanged()
{
    qDebug("void Shape::anyValueChanged()");
    ContentViewer::anyValueChanged();
}

QStringList Shape::getEnumsFor(QString enumName)
{
    if (enumName == ShapeKeys::shape())
        return {QStringLiteral("Rectangle"),       QStringLiteral("Round Rectangle"),
                QStringLiteral("Square"),          QStringLiteral("Round Square"),
                QStringLiteral("Horizontal Line"), QStringLiteral("Vertical Line")};
    if (enumName == ShapeKeys::align())
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
    return key == ShapeKeys::opacity() ? QVariant(0) : ContentViewer::getMinValue(key);
}

QVariant Shape::getMaxValue(QString key)
{
    return key == ShapeKeys::opacity() ? QVariant(100) : ContentViewer::getMaxValue(key);
}

void Shape::buildSettingsPanel(QWidget *host)
{
    auto *panel = new PropertyPanel(this, host);
    auto *kind = new EnumEdit(panel);
    auto *align = new EnumEdit(panel);
    kind->setAvailableValues(getEnumsFor(ShapeKeys::shape()));
    align->setAvailableValues(getEnumsFor(ShapeKeys::align()));
    panel->bind(kind, ShapeKeys::shape());
    panel->bind(align, ShapeKeys::align());
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
    VariableEdit *opacity = bound(new IntEdit(&panel), ShapeKeys::opacity());
    VariableEdit *fill = bound(new CheckEdit(&panel), ShapeKeys::fill());
    VariableEdit *color = bound(new ColorEdit(&panel), ShapeKeys::color());
    VariableEdit *border = bound(new CheckEdit(&panel), ShapeKeys::border());
    auto *lineWidth = new IntEdit(&panel);
    lineWidth->setMinimum(0);
    panel.bind(lineWidth, ShapeKeys::lineWidth());
    VariableEdit *borderColor = bound(new ColorEdit(&panel), ShapeKeys::borderColor());
    PropertyPanel::alignLabels({kind, align, opacity, lineWidth});

    QGridLayout *grid = panel.addCategory(tr("Basic Properties"));
    grid->setColumnStretch(2, 1);
    grid->addWidget(kind, 0, 0, 1, 3);
    grid->addWidget(align, 1, 0, 1, 3);
    grid->addWidget(opacity, 2, 0, 1, 3);
    grid->addWidget(fill, 3, 0);
    grid->addWidget(new QLabel(ShapeKeys::color()), 3, 1);
    grid->addWidget(color, 3, 2);
    grid->addWidget(border, 4, 0);
    grid->addWidget(new QLabel(ShapeKeys::borderColor()), 4, 1);
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

void Shape::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    ShapePicture::paint(painter, m_values, size());
}
