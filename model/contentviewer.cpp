#include "model/contentviewer.h"

#include "model/contenthost.h"
#include "model/keys.h"
#include "model/pixels.h"
#include "model/storedvalue.h"
#include "model/widgetgeometry.h"

#include <QMouseEvent>
#include <QVarLengthArray>

namespace
{
using Entry = QPair<QString, QVariant>;
using Entries = QVarLengthArray<Entry, 4>;

/// The geometry keys that the map has, in the map's order. A copy: every move and resize of the frame comes
/// back and rewrites the map.
Entries geometryIn(const QMap<QString, QVariant> &values)
{
    Entries entries;
    for (const QString &key : {Keys::h(), Keys::w(), Keys::x(), Keys::y()}) {
        const auto entry = values.constFind(key);
        if (entry != values.cend())
            entries.append({key, *entry});
    }
    return entries;
}

bool hasGeometry(const QMap<QString, QVariant> &values)
{
    return values.contains(Keys::x()) && values.contains(Keys::y()) && values.contains(Keys::w()) &&
           values.contains(Keys::h());
}

void applyKey(QWidget *frame, const QString &key, int pixels)
{
    if (key == Keys::x())
        moveNow(frame, QPoint(pixels, frame->y()));
    else if (key == Keys::y())
        moveNow(frame, QPoint(frame->x(), pixels));
    else if (key == Keys::w())
        resizeNow(frame, QSize(pixels, frame->height()));
    else if (key == Keys::h())
        resizeNow(frame, QSize(frame->width(), pixels));
}

void applyToFrame(QWidget *frame, const Entries &geometry)
{
    for (const Entry &entry : geometry)
        applyKey(frame, entry.first, toPixels(entry.second));
}

QRect geometryIn(const QJsonObject &object)
{
    const auto pixels = [&object](const QString &key) {
        return toPixels(storedValue(object.value(key)));
    };
    return {pixels(Keys::x()), pixels(Keys::y()), pixels(Keys::w()), pixels(Keys::h())};
}
} // namespace

ContentViewer::ContentViewer(QWidget *parent)
{
    setParent(parent);
    if (auto *host = dynamic_cast<ContentHost *>(parent))
        host->setContent(this);
}

void ContentViewer::anyValueChanged()
{
    if (QWidget *frame = parentWidget())
        applyToFrame(frame, geometryIn(m_values));
    update();
}

QStringList ContentViewer::getEnumsFor(QString enumName)
{
    Q_UNUSED(enumName)
    return {};
}

void ContentViewer::setValues(QMap<QString, QVariant> values)
{
    m_values = std::move(values);
    anyValueChanged();
}

QMap<QString, QVariant> ContentViewer::getValues()
{
    return m_values;
}

void ContentViewer::setValue(QString key, QVariant value)
{
    m_values.insert(key, value);
    anyValueChanged();
}

QVariant ContentViewer::getValue(QString key)
{
    return m_values.value(key);
}

void ContentViewer::applyGeometry(QRect geometry)
{
    storeGeometry(geometry);
    emit valueChanged(Keys::x(), geometry.x());
    emit valueChanged(Keys::w(), geometry.width());
    emit valueChanged(Keys::y(), geometry.y());
    emit valueChanged(Keys::h(), geometry.height());
}

void ContentViewer::endEditing() {}

QVariant ContentViewer::getMinValue(QString key)
{
    const bool isGeometry = key == Keys::x() || key == Keys::y() || key == Keys::w() || key == Keys::h();
    return isGeometry ? QVariant(0) : QVariant();
}

QVariant ContentViewer::getMaxValue(QString key)
{
    const QWidget *frame = parentWidget();
    const QWidget *canvas = frame ? frame->parentWidget() : nullptr;
    if (!canvas)
        return {};
    if (key == Keys::x())
        return canvas->width() - frame->width();
    if (key == Keys::y())
        return canvas->height() - frame->height();
    if (key == Keys::w())
        return canvas->width() - frame->x();
    if (key == Keys::h())
        return canvas->height() - frame->y();
    return {};
}

bool ContentViewer::fromJson(QJsonObject object)
{
    bool complete = true;
    beginReading();
    const auto definitions = getValueNameTypeDefinition();
    for (const Definition &definition : definitions) {
        if (m_values.contains(definition.first))
            setValue(definition.first, storedValue(object.value(definition.first)));
        else
            complete = false;
    }
    anyValueChanged();
    placeHost(object);
    endReading();
    return complete;
}

void ContentViewer::placeHost(const QJsonObject &object)
{
    auto *host = dynamic_cast<ContentHost *>(parentWidget());
    if (host && hasGeometry(m_values))
        host->placeAsStored(geometryIn(object));
}

QJsonObject ContentViewer::toJson()
{
    commitEditing();
    QJsonObject object;
    object.insert(Keys::type(), QJsonValue::fromVariant(m_values.value(Keys::type())));
    const auto definitions = getValueNameTypeDefinition();
    for (const Definition &definition : definitions)
        object.insert(definition.first, QJsonValue::fromVariant(m_values[definition.first]));
    return object;
}

void ContentViewer::newGeometrySlot(QRect geometry)
{
    applyGeometry(geometry);
}

void ContentViewer::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->accept();
}

bool ContentViewer::event(QEvent *event)
{
    // A content's colours are its values, and its parts are dressed on their own: what a style sheet says of
    // the content itself shows nowhere, and looking it up would cost as much as making a shape.
    return event->type() == QEvent::Polish || QWidget::event(event);
}

void ContentViewer::beginReading() {}

void ContentViewer::endReading() {}

void ContentViewer::commitEditing() {}

void ContentViewer::initValues(const QString &typeName)
{
    m_values.insert(Keys::type(), typeName);
    const QWidget *frame = parentWidget();
    storeGeometry(frame ? frame->geometry() : geometry());
}

void ContentViewer::storeGeometry(const QRect &geometry)
{
    m_values.insert(Keys::x(), geometry.x());
    m_values.insert(Keys::y(), geometry.y());
    m_values.insert(Keys::w(), geometry.width());
    m_values.insert(Keys::h(), geometry.height());
}
