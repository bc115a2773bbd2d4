#include "viewers/mediaviewer.h"

#include "editors/filepathedit.h"
#include "editors/fileselection.h"
#include "editors/propertypanel.h"
#include "model/contenthost.h"
#include "model/keys.h"
#include "model/pixels.h"
#include "model/widgetgeometry.h"
#include "pictures/mediakeys.h"
#include "pictures/stretchedpicture.h"

#include <QDebug>
#include <QGridLayout>
#include <QPainter>

MediaViewer::MediaViewer(const QString &typeName, QWidget *parent) : ContentViewer(parent)
{
    initValues(typeName);
    m_values.insert(MediaKeys::path(), QString());
}

QVector<QPair<QString, ContentViewer::Parameters::ValueType>> MediaViewer::getValueNameTypeDefinition()
{
    return {{MediaKeys::path(), Parameters::FilePath},
            {Keys::x(), Parameters::Int},
            {Keys::y(), Parameters::Int},
            {Keys::w(), Parameters::Int},
            {Keys::h(), Parameters::Int}};
}

void MediaViewer::anyValueChanged()
{
    qDebug("void %s::anyValueChanged()", metaObject()->className());
    ContentViewer::anyValueChanged();
}

QStringList MediaViewer::getEnumsFor(QString enumName)
{
    if (enumName != QLatin1String("Align"))
        return {};
    return {QStringLiteral("Top"), QStringLiteral("Center"), QStringLiteral("Bottom"),
            QStringLiteral("Right"), QStringLiteral("Left")};
}

void MediaViewer::setValue(QString key, QVariant value)
{
    m_values.insert(key, value);
    if (m_isReading)
        return;
    if (key == MediaKeys::path())
        openFile(value.toString());
    anyValueChanged();
}

void MediaViewer::applyGeometry(QRect geometry)
{
    ContentViewer::applyGeometry(geometry);
}

QVariant MediaViewer::getMinValue(QString key)
{
    return ContentViewer::getMinValue(key);
}

QVariant MediaViewer::getMaxValue(QString key)
{
    return ContentViewer::getMaxValue(key);
}

void MediaViewer::buildSettingsPanel(QWidget *host)
{
    auto *panel = new PropertyPanel(this, host);
    auto *path = new FilePathEdit(panel);
    panel->bind(path, MediaKeys::path());
    panel->addAreaCategory();
    panel->addCategory(tr("Basic Properties"))->addWidget(path, 0, 0, 1, 2);
    PropertyPanel::alignLabels({path});
    panel->orderFocus();
}

void MediaViewer::chooseFile()
{
    const std::optional<QString> path = selectFile(this);
    if (!path)
        return;
    m_values.insert(MediaKeys::path(), *path);
    emit valueChanged(MediaKeys::path(), *path);
    setValue(MediaKeys::path(), *path);
}

void MediaViewer::takeSize(QSize size)
{
    if (m_isReading)
        return;
    QWidget *frame = parentWidget();
    const QWidget *screen = frame ? frame->parentWidget() : nullptr;
    const QSize taken = screen ? size.boundedTo(screen->size()) : size;
    m_values.insert(Keys::h(), taken.height());
    m_values.insert(Keys::w(), taken.width());
    if (frame)
        resizeNow(frame, taken);
}

void MediaViewer::tellOfLimit(const QString &path, const QString &reason) const
{
    const auto *host = dynamic_cast<const ContentHost *>(parentWidget());
    if (!reason.isEmpty())
        qDebug().nospace() << metaObject()->className() << ' ' << (host ? host->name() : QString())
                           << " leaves out " << path << ": " << qPrintable(reason);
}

void MediaViewer::paintPicture(StretchedPicture &picture)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    picture.draw(painter, QSize(toPixels(m_values.value(Keys::w())), toPixels(m_values.value(Keys::h()))));
}

void MediaViewer::beginReading()
{
    m_isReading = true;
}

void MediaViewer::endReading()
{
    // Only now, when the item has its size: what is shown need not be fitted twice, and no clamp of a size
    // that does not last has its say.
    openFile(m_values.value(MediaKeys::path()).toString());
    m_isReading = false;
}
