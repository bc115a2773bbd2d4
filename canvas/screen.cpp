#include "canvas/screen.h"

#include "canvas/dotgrid.h"
#include "canvas/framegeometry.h"
#include "canvas/hiddenwhilefilling.h"
#include "canvas/itemclipboard.h"
#include "canvas/screenitem.h"
#include "model/keys.h"
#include "model/layoutfile.h"
#include "model/namedcolor.h"
#include "model/pixels.h"
#include "model/widgetgeometry.h"
#include "pictures/itemgeometry.h"
#include "viewers/contentfactory.h"
#include "viewers/mediaviewer.h"

#include <QDebug>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QShortcut>

#include <algorithm>

namespace
{
/// Beyond one moved frame in this many, one whole paint is cheaper than many small ones.
constexpr int framesPerMove = 15;

/// True for an item object of a kind that comes from files.
bool isReadable(const QJsonValue &value)
{
    return ContentFactory::isReadable(value[Keys::type()].toString());
}
} // namespace

Screen::Screen(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAcceptDrops(true);
    bindShortcuts();
}

Screen::~Screen()
{
    // While the canvas is still whole, since every frame reports its end, be it listed or not.
    deleteAllItems();
    qDeleteAll(findChildren<ScreenItem *>(QString(), Qt::FindDirectChildrenOnly));
}

void Screen::bindShortcuts()
{
    const auto bind = [this](const QString &keys, void (Screen::*slot)()) {
        auto *shortcut = new QShortcut(QKeySequence(keys), this);
        shortcut->setContext(Qt::WindowShortcut);
        connect(shortcut, &QShortcut::activated, this, slot);
    };
    bind(QStringLiteral("Ctrl+C"), &Screen::copyShortcutActivated);
    bind(QStringLiteral("Ctrl+X"), &Screen::cutShortcutActivated);
    bind(QStringLiteral("Ctrl+V"), &Screen::pasteShortcutActivated);
    bind(QStringLiteral("Ctrl+A"), &Screen::selectAllShortcutActivated);
}

void Screen::addScreenItem(ScreenItem *item)
{
    qDebug() << "m_allItems.contains(item)" << m_items.contains(item);
    qDebug() << "addScreenItem(ScreenItem* item=" << static_cast<void *>(item) << ")";
    m_items.append(item);
    item->setParent(this);
    // In this order: the others leave their active state before the panel of the new active one is shown.
    connect(this, &Screen::deactivateFor, item, &ScreenItem::deactivateSlot);
    connect(item, &ScreenItem::activated, this, &Screen::deactivateFor);
    connect(item, &ScreenItem::activated, this, &Screen::setActiveItem);
    connect(item, &QObject::destroyed, this, &Screen::screenItemDeleted);
    m_modified = true;
}

void Screen::clearSelection()
{
    updateFor(m_selection.size());
    const QList<ScreenItem *> selected = m_selection;
    for (ScreenItem *item : selected)
        item->deselect();
    m_selection.clear();
}

void Screen::updateFor(int frames)
{
    // What the frames mark is then marked already: many small areas are slow to join and slow to paint.
    if (frames > 1 && frames * framesPerMove > m_items.size())
        update();
}

void Screen::noteSelected(ScreenItem *item, bool selected)
{
    if (selected)
        m_selection.append(item);
    else
        m_selection.removeOne(item);
}

void Screen::moveFrames(const QList<ScreenItem *> &frames, QPoint delta)
{
    if (frames.isEmpty())
        return;
    const bool paintsAll = frames.size() > 1 && frames.size() * framesPerMove > m_items.size();
    if (paintsAll)
        update();
    for (ScreenItem *frame : frames) {
        frame->move(frame->pos() + delta);
        emit frame->newGeometry(frame->geometry());
    }
    // The moves have marked what they uncover and cover; any repaint paints all of it.
    repaint(paintsAll ? rect() : frames.first()->geometry());
}

void Screen::restack()
{
    // Children lie in stacking order. What is in place stays, since each raised frame costs a walk and a
    // paint.
    int place = 0;
    for (ScreenItem *item : qAsConst(m_items)) {
        const int found = children().indexOf(item, place);
        if (found >= 0)
            place = found + 1;
        else
            raiseTo(place, *item);
    }
}

void Screen::raiseTo(int place, ScreenItem &item)
{
    for (int above = place; above < children().size(); ++above) {
        if (auto *widget = qobject_cast<QWidget *>(children().at(above))) {
            item.stackUnder(widget);
            return;
        }
    }
    item.raise();
}

void Screen::bringToFront(ScreenItem *item)
{
    m_modified = true;
    item->raise();
    m_items.removeOne(item);
    m_items.append(item);
}

void Screen::sendToBack(ScreenItem *item)
{
    m_modified = true;
    item->lower();
    m_items.removeOne(item);
    m_items.prepend(item);
}

void Screen::moveLayerUp(ScreenItem *item)
{
    const int index = m_items.indexOf(item);
    if (index >= 0 && index + 1 < m_items.size())
        swapLayers(index, index + 1);
}

void Screen::moveLayerDown(ScreenItem *item)
{
    const int index = m_items.indexOf(item);
    if (index >= 1)
        swapLayers(index, index - 1);
}

void Screen::swapLayers(int index, int otherIndex)
{
    m_items.swapItemsAt(index, otherIndex);
    m_modified = true;
    restack();
}

void Screen::duplicateSelection()
{
    QJsonArray copies;
    for (ScreenItem *item : qAsConst(m_items)) {
        if (!item->isSelected())
            continue;
        QJsonObject copy = item->toJson();
        copy.insert(Keys::screenItemName(), item->name() + QStringLiteral(" duplicate"));
        copies.append(copy);
    }
    clearSelection();
    selectMade(createItems(copies));
}

void Screen::selectMade(const QList<ScreenItem *> &made)
{
    for (ScreenItem *item : made)
        item->select();
    showSettingsOfSelection();
}

void Screen::showSettingsOfSelection()
{
    // Not activated(): it would deselect the others and end an edit in place.
    emit showSettingsFor(m_selection.size() == 1 ? m_selection.first() : nullptr);
}

void Screen::deleteSelectionAnd(ScreenItem *item)
{
    const QList<ScreenItem *> selected = m_selection;
    clearSelection();
    for (ScreenItem *member : selected) {
        if (member != item)
            member->deleteLater();
    }
    item->deleteLater();
}

QJsonObject Screen::saveLayout()
{
    QJsonArray items;
    for (ScreenItem *item : qAsConst(m_items))
        items.append(item->toJson());
    const QJsonObject parameters = {
        {Keys::height(), height()},
        {Keys::width(), width()},
        {Keys::backgroundColor(), m_backgroundColor.toRgb().name(QColor::HexRgb)}};
    return {{Keys::items(), items}, {Keys::parameters(), parameters}};
}

void Screen::loadLayout(const QJsonObject &document)
{
    deleteAllItems();
    m_nameCounters.clear();
    const QJsonObject parameters = document.value(Keys::parameters()).toObject();
    setWidgth(wholeNumber(parameters.value(Keys::width())));
    setHeight(wholeNumber(parameters.value(Keys::height())));
    setBackgrounColor(namedColor(parameters.value(Keys::backgroundColor()).toString()));
    createItems(document.value(Keys::items()).toArray());
    m_modified = false;
}

QVector<QPair<QString, QString>> Screen::itemTypes()
{
    return ContentFactory::clickableTypes();
}

QString Screen::dragFormat()
{
    return QStringLiteral("screen/screenItem");
}

ScreenItem *Screen::createItem(const QJsonObject &object)
{
    if (isFull() || !isReadable(object))
        return nullptr;
    auto *item = new ScreenItem(this);
    resizeNow(item, ItemGeometry::newItemSize);
    ContentFactory::create(object.value(Keys::type()).toString(), item)->show();
    item->show();
    QJsonObject remaining = object;
    item->fromJson(remaining);
    return item;
}

QList<ScreenItem *> Screen::createItems(const QJsonArray &objects)
{
    const auto readable = std::count_if(objects.begin(), objects.end(), isReadable);
    HiddenWhileFilling hidden(*this, qMin<qptrdiff>(readable, LayoutFile::maximumItems - m_items.size()));
    QList<ScreenItem *> made;
    for (const QJsonValue &object : objects) {
        if (ScreenItem *item = createItem(object.toObject())) {
            made.append(item);
            hidden.itemMade(*item);
        }
    }
    return made;
}

void Screen::screenItemDeleted(QObject *item)
{
    m_modified = true;
    // The item is no frame any more, only its address counts.
    const auto isItem = [item](ScreenItem *listed) {
        return static_cast<QObject *>(listed) == item;
    };
    const auto layer = std::find_if(m_items.begin(), m_items.end(), isItem);
    if (layer != m_items.end())
        m_items.erase(layer);
    const auto selected = std::find_if(m_selection.begin(), m_selection.end(), isItem);
    if (selected != m_selection.end())
        m_selection.erase(selected);
}

void Screen::setActiveItem(ScreenItem *item)
{
    if (!item || item->parentWidget() == this)
        emit showSettingsFor(item);
}

void Screen::setWidgth(int width)
{
    changeSize(QSize(width, height()));
}

void Screen::setHeight(int height)
{
    changeSize(QSize(width(), height));
}

void Screen::changeSize(QSize size)
{
    const QSize possible = size.expandedTo(QSize(0, 0)).boundedTo(QSize(maximumPixels, maximumPixels));
    if (possible != this->size())
        m_modified = true;
    setFixedSize(possible);
    // When both lengths are the largest possible ones, fixing the size leaves it as it was.
    resize(possible);
}

void Screen::setBackgrounColor(QColor color)
{
    m_backgroundColor = color;
    // What lies under a translucent canvas has to be painted first.
    setAttribute(Qt::WA_OpaquePaintEvent, color.alpha() == 255);
    update();
}

void Screen::goToRenderMode()
{
    m_renderMode = true;
    update();
    for (ScreenItem *item : qAsConst(m_items))
        item->enterRenderMode();
}

void Screen::goOutRenderMode()
{
    m_renderMode = false;
    update();
    for (ScreenItem *item : qAsConst(m_items))
        item->leaveRenderMode();
}

QJsonArray Screen::selectionToJson()
{
    QJsonArray objects;
    for (ScreenItem *item : qAsConst(m_items)) {
        if (item->isSelected())
            objects.append(item->toJson());
    }
    return objects;
}

bool Screen::copySelection()
{
    const QJsonArray objects = selectionToJson();
    if (!objects.isEmpty())
        ItemClipboard::put(objects);
    return !objects.isEmpty();
}

void Screen::copyShortcutActivated()
{
    copySelection();
}

void Screen::cutShortcutActivated()
{
    if (copySelection())
        deleteSelection();
}

void Screen::pasteShortcutActivated()
{
    const QJsonArray objects = ItemClipboard::items();
    if (objects.isEmpty())
        return;
    clearSelection();
    selectMade(createItems(objects));
}

void Screen::selectAllShortcutActivated()
{
    clearSelection();
    updateFor(m_items.size());
    for (ScreenItem *item : qAsConst(m_items))
        item->select();
    showSettingsOfSelection();
}

void Screen::newItem(QString name)
{
    if (isFull() || !ContentFactory::isClickable(name))
        return;
    ScreenItem *item = newFrame(QPoint(0, 0));
    const QString prefix = ContentFactory::namePrefix(name);
    item->setMyName(prefix + QLatin1Char(' ') + QString::number(m_nameCounters[prefix]++));
    auto *media = qobject_cast<MediaViewer *>(ContentFactory::create(name, item));
    // The item may be gone when the dialog closes.
    const QPointer<ScreenItem> guard(item);
    if (media)
        media->chooseFile();
    if (guard)
        guard->activate();
}

ScreenItem *Screen::newFrame(QPoint position)
{
    auto *item = new ScreenItem(this);
    resizeNow(item, ItemGeometry::newItemSize);
    moveNow(item, position);
    return item;
}

void Screen::deleteAllItems()
{
    m_selection.clear();
    // A frame that goes takes itself off the list, where it is found at once while it is the first.
    while (!m_items.isEmpty())
        delete m_items.constFirst();
}

void Screen::deleteSelection()
{
    const QList<ScreenItem *> selected = m_selection;
    clearSelection();
    for (ScreenItem *item : selected)
        item->deleteLater();
}

bool Screen::isFull() const
{
    return m_items.size() >= LayoutFile::maximumItems;
}

void Screen::dragEnterEvent(QDragEnterEvent *event)
{
    event->setAccepted(event->mimeData()->hasFormat(dragFormat()));
}

void Screen::dragMoveEvent(QDragMoveEvent *event)
{
    event->setAccepted(event->mimeData()->hasFormat(dragFormat()));
}

void Screen::dropEvent(QDropEvent *event)
{
    const QString name = QString::fromUtf8(event->mimeData()->data(dragFormat()));
    qDebug() << "Droped" << name;
    if (isFull() || !ContentFactory::isDroppable(name))
        return;
    ScreenItem *item = newFrame(FrameGeometry::wholePixels(event->posF()));
    ContentFactory::create(name, item)->show();
    item->show();
    event->acceptProposedAction();
}

void Screen::keyPressEvent(QKeyEvent *event)
{
    qDebug() << event;
    // In render mode the items hand their keys on to here, where they shall do nothing either.
    if (event->key() == Qt::Key_Delete && !m_renderMode)
        deleteSelection();
}

void Screen::mousePressEvent(QMouseEvent *event)
{
    // In render mode the items hand their presses on to here: those are not meant for the canvas itself.
    if (m_renderMode && childAt(event->pos())) {
        event->ignore();
        return;
    }
    leaveItems();
}

void Screen::leaveItems()
{
    updateFor(m_selection.size());
    emit deactivateFor(nullptr);
    emit showSettingsFor(nullptr);
    clearSelection();
}

void Screen::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), m_backgroundColor);
    if (!m_renderMode)
        DotGrid::draw(painter, event->rect());
}

void Screen::resizeEvent(QResizeEvent *event)
{
    Q_UNUSED(event)
    emit meResized();
}
