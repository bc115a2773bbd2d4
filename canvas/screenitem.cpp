#include "canvas/screenitem.h"

#include "canvas/editmodeborderrenderer.h"
#include "canvas/itemmenu.h"
#include "canvas/screen.h"
#include "model/keys.h"
#include "model/widgetgeometry.h"
#include "pictures/itemgeometry.h"

#include <QAction>
#include <QDebug>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QVBoxLayout>

namespace
{
/// The step of an arrow key; null for any other key.
QPoint arrowStep(int key)
{
    switch (key) {
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    default:
        return {};
    }
}

using Guarded = QList<QPointer<ScreenItem>>;

/// The frames for a walk on which some of them may be deleted.
Guarded guarded(const QList<ScreenItem *> &frames)
{
    return {frames.begin(), frames.end()};
}

/// Counts frames without a width or height as well, which united rectangles would leave out.
QRect boundingBox(const QList<ScreenItem *> &frames)
{
    QPoint nearest = frames.first()->pos();
    QPoint farthest = nearest;
    for (const ScreenItem *frame : frames) {
        nearest = {qMin(nearest.x(), frame->x()), qMin(nearest.y(), frame->y())};
        farthest = {qMax(farthest.x(), frame->x() + frame->width()),
                    qMax(farthest.y(), frame->y() + frame->height())};
    }
    return {nearest, QSize(farthest.x() - nearest.x(), farthest.y() - nearest.y())};
}
} // namespace

ScreenItem::ScreenItem(Screen *screen)
{
    m_border = new EditModeBorderRenderer(this);
    m_border->move(0, 0);
    attachToScreen(screen);
    buildContextMenu();
    setAttribute(Qt::WA_DeleteOnClose);
    setVisible(true);
    sendHeldGeometryEvents(this);
    setAutoFillBackground(false);
    setMouseTracking(true);
    setFocusPolicy(Qt::ClickFocus);
    setFocus(Qt::OtherFocusReason);
    m_layout = new QVBoxLayout(this);
    m_layout->setContentsMargins(0, 0, 0, 0);
    // The focus just taken does not make a new frame the active one.
    m_active = false;
}

ScreenItem::~ScreenItem()
{
    // The canvas is told once what the frame uncovers, instead of once more for each of its parts.
    setUpdatesEnabled(false);
}

void ScreenItem::buildContextMenu()
{
    m_contextMenu = new ItemMenu(this);
    const auto bind = [this](ItemMenu::Entry entry, void (ScreenItem::*slot)()) {
        connect(m_contextMenu->entry(entry), &QAction::triggered, this, slot);
    };
    bind(ItemMenu::BringToFront, &ScreenItem::bringToFrontSlot);
    bind(ItemMenu::SendToBack, &ScreenItem::sendToBackSlot);
    bind(ItemMenu::Duplicate, &ScreenItem::duplicateSlot);
    bind(ItemMenu::Delete, &ScreenItem::deleteSlot);
}

void ScreenItem::setContent(ContentViewer *content)
{
    if (content) {
        m_content = content;
        content->setParent(this);
        content->setAttribute(Qt::WA_TransparentForMouseEvents);
        content->show();
        m_layout->addWidget(content);
        // By name on purpose, and spelled without blanks, as the toolkit compares them.
        // clang-format off
        connect(this, SIGNAL(newGeometry(QRect)), content, SLOT(newGeometrySlot(QRect)));
        connect(content, SIGNAL(valueChanged(QString,QVariant)), this, SIGNAL(valueChanged(QString,QVariant)));
        // clang-format on
    }
    m_border->raise();
}

void ScreenItem::contentEdited()
{
    if (Screen *screen = canvas())
        screen->markModified();
}

void ScreenItem::placeAsStored(const QRect &stored)
{
    const Screen *screen = canvas();
    if (!screen || !ItemGeometry::liesOnScreen(stored, screen->size()))
        return;
    const QScopedValueRollback<bool> placing(m_isPlacing, true);
    resizeNow(this, stored.size());
    moveNow(this, stored.topLeft());
}

void ScreenItem::attachToScreen(Screen *screen)
{
    if (!screen)
        return;
    screen->addScreenItem(this);
    m_border->resize(size());
}

Screen *ScreenItem::canvas() const
{
    return qobject_cast<Screen *>(parentWidget());
}

void ScreenItem::setSelected(bool selected)
{
    if (m_selected == selected)
        return;
    m_selected = selected;
    if (Screen *screen = canvas()) {
        screen->noteSelected(this, selected);
        // Not update(): many frames that are dirty one by one cost far more than one dirty area of the
        // canvas.
        screen->update(geometry());
    }
}

void ScreenItem::select()
{
    setSelected(true);
}

void ScreenItem::deselect()
{
    setSelected(false);
}

void ScreenItem::activate()
{
    m_active = true;
    m_border->update();
    emit activated(this);
}

void ScreenItem::enterRenderMode()
{
    m_renderMode = true;
    m_border->update();
    if (m_content)
        m_content->endEditing();
}

void ScreenItem::leaveRenderMode()
{
    m_renderMode = false;
    m_border->update();
}

void ScreenItem::buildSettingsPanel(QWidget *host)
{
    if (host && m_content)
        m_content->buildSettingsPanel(host);
}

QJsonObject ScreenItem::toJson()
{
    QJsonObject object = m_content ? m_content->toJson() : QJsonObject();
    object.insert(Keys::screenItemName(), m_name);
    return object;
}

bool ScreenItem::fromJson(QJsonObject &object)
{
    m_name = object.take(Keys::screenItemName()).toString();
    return m_content && m_content->fromJson(object);
}

void ScreenItem::addAuxiliary(std::unique_ptr<QObject> object)
{
    m_auxiliaries.push_back(std::move(object));
}

void ScreenItem::deactivateSlot(ScreenItem *item)
{
    if (m_renderMode)
        return;
    setSelected(item == this);
    if (item != this && m_content)
        m_content->endEditing();
}

void ScreenItem::setMyName(QString myName)
{
    if (myName == m_name)
        return;
    m_name = std::move(myName);
    contentEdited();
}

QVector<QPair<QString, ContentViewer::Parameters::ValueType>> ScreenItem::getValueNameTypeDefinition()
{
    return m_content ? m_content->getValueNameTypeDefinition() : QVector<ContentViewer::Definition>();
}

QStringList ScreenItem::getEnumsFor(QString enumName)
{
    return m_content ? m_content->getEnumsFor(enumName) : QStringList();
}

void ScreenItem::setValues(QMap<QString, QVariant> values)
{
    if (m_content)
        m_content->setValues(values);
}

QMap<QString, QVariant> ScreenItem::getValues()
{
    return m_content ? m_content->getValues() : QMap<QString, QVariant>();
}

void ScreenItem::setValue(QString key, QVariant value)
{
    if (m_content)
        m_content->setValue(key, value);
    contentEdited();
}

QVariant ScreenItem::getValue(QString key)
{
    return m_content ? m_content->getValue(key) : QVariant();
}

QVariant ScreenItem::getMaxValue(QString key)
{
    return m_content ? m_content->getMaxValue(key) : QVariant();
}

QVariant ScreenItem::getMinValue(QString key)
{
    return m_content ? m_content->getMinValue(key) : QVariant();
}

void ScreenItem::bringToFrontSlot()
{
    if (Screen *screen = canvas())
        screen->bringToFront(this);
}

void ScreenItem::duplicateSlot()
{
    if (Screen *screen = canvas())
        screen->duplicateSelection();
}

void ScreenItem::deleteSlot()
{
    if (Screen *screen = canvas())
        screen->deleteSelectionAnd(this);
}

void ScreenItem::sendToBackSlot()
{
    if (Screen *screen = canvas())
        screen->sendToBack(this);
}

void ScreenItem::sendToLayerDown()
{
    if (Screen *screen = canvas())
        screen->moveLayerDown(this);
}

void ScreenItem::sendToLayerUp()
{
    if (Screen *screen = canvas())
        screen->moveLayerUp(this);
}

void ScreenItem::becomeActive()
{
    m_active = true;
    canvas()->repaint(geometry());
    emit inFocus(true);
}

void ScreenItem::focusInEvent(QFocusEvent *event)
{
    Q_UNUSED(event)
    if (canvas() && !m_renderMode)
        becomeActive();
}

void ScreenItem::focusOutEvent(QFocusEvent *event)
{
    Q_UNUSED(event)
    if (m_renderMode || !m_editable || m_contextMenuOpen)
        return;
    m_hitZone = HitZone::None;
    emit outFocus(false);
    m_active = false;
    m_border->update();
}

bool ScreenItem::event(QEvent *event)
{
    // A frame paints nothing that a style sheet could dress, and its parts are dressed on their own.
    return event->type() == QEvent::Polish || QWidget::event(event);
}

void ScreenItem::mousePressEvent(QMouseEvent *event)
{
    if (m_renderMode || !canvas()) {
        event->ignore();
        return;
    }
    // A new frame may hold the focus without being active; a press makes up for it.
    if (m_editable && !m_active && hasFocus())
        becomeActive();
    if (event->buttons() == Qt::LeftButton)
        selectByPress();
    m_pressAnchor = FrameGeometry::wholePixels(event->screenPos()) - pos();
    if (m_editable && m_active && event->button() == Qt::RightButton) {
        showContextMenu(FrameGeometry::wholePixels(event->localPos()));
        event->accept();
    }
}

void ScreenItem::selectByPress()
{
    if (QGuiApplication::keyboardModifiers() == Qt::ControlModifier)
        toggleSelected();
    else if (!m_selected)
        selectAlone();
    const QList<ScreenItem *> selection = canvas()->selection();
    if (selection.size() == 1)
        emit activated(selection.first());
    else
        emit canvas()->showSettingsFor(nullptr);
}

void ScreenItem::toggleSelected()
{
    setSelected(!m_selected);
}

void ScreenItem::selectAlone()
{
    canvas()->clearSelection();
    select();
}

void ScreenItem::showContextMenu(QPoint position)
{
    if (m_contextMenu->isEmpty())
        return;
    // The item may be gone when the menu closes.
    const QPointer<ScreenItem> guard(this);
    m_contextMenuOpen = true;
    m_contextMenu->run(m_name, canvas()->selection().size() >= 2, mapToGlobal(position));
    if (guard)
        m_contextMenuOpen = false;
}

void ScreenItem::mouseMoveEvent(QMouseEvent *event)
{
    if (m_renderMode || !canvas()) {
        event->ignore();
        return;
    }
    QWidget::mouseMoveEvent(event);
    if (!m_editable || !m_active)
        return;
    const QPoint pointer = FrameGeometry::wholePixels(event->localPos());
    const QPoint corner = FrameGeometry::wholePixels(event->screenPos()) - m_pressAnchor;
    if (event->buttons() == Qt::NoButton)
        trackHitZone(pointer + pos());
    else if (m_hitZone > HitZone::Interior)
        resizeByHandle(pointer, corner);
    else if (m_selected)
        moveSelection(corner);
    else {
        if (m_hitZone == HitZone::None)
            canvas()->repaint(geometry());
        emit newGeometry(geometry());
    }
}

void ScreenItem::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_renderMode)
        event->ignore();
    else
        event->accept();
}

void ScreenItem::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (m_renderMode)
        event->ignore();
    else if (m_content)
        m_content->mouseDoubleClickEvent(event);
}

void ScreenItem::trackHitZone(QPoint position)
{
    const HitZone zone = FrameGeometry::hitZoneAt(position, geometry());
    if (zone == m_hitZone)
        return;
    m_hitZone = zone;
    setCursor(FrameGeometry::cursorFor(zone));
}

void ScreenItem::moveSelection(QPoint corner)
{
    Screen *screen = canvas();
    const QList<ScreenItem *> selection = screen->selection();
    const QRect before = boundingBox(selection);
    const QPoint wanted = corner - pos();
    const QPoint delta = FrameGeometry::groupMove(before, wanted, screen->size());
    qDebug() << "newMin = " << before.topLeft() + wanted;
    screen->moveFrames(selection, delta);
}

void ScreenItem::resizeByHandle(QPoint pointer, QPoint corner)
{
    Screen *screen = canvas();
    const QRect before = geometry();
    const FrameGeometry::ResizeDrag drag = {m_hitZone, before, screen->size(), pointer, corner};
    resize(FrameGeometry::draggedSize(drag));
    // The frame's own clamp has had its say: the position is for the size that came out of it.
    const QSize kept = FrameGeometry::keptSize(size(), screen->size());
    move(FrameGeometry::draggedPosition(drag, kept));
    resize(kept);
    screen->repaint(before.united(geometry()));
    emit newGeometry(geometry());
}

void ScreenItem::keyPressEvent(QKeyEvent *event)
{
    if (m_renderMode || !canvas()) {
        event->ignore();
        return;
    }
    if (!m_editable)
        return;
    if (event->key() == Qt::Key_Delete) {
        // Stays accepted, so that the canvas does not delete once more.
        deleteByKey();
        return;
    }
    // Whoever hears of a move may delete frames, this one as well.
    const QPointer<ScreenItem> guard(this);
    if (event->modifiers() == Qt::ControlModifier)
        nudgeSelection(event->key());
    else if (event->modifiers() == Qt::ShiftModifier)
        growSelection(event->key());
    if (guard)
        tellSelection();
}

void ScreenItem::tellSelection()
{
    const Guarded selection = guarded(canvas()->selection());
    const QRect told = geometry();
    // Every member is told this frame's geometry and not its own: on purpose.
    for (const QPointer<ScreenItem> &frame : selection) {
        if (frame)
            emit frame->newGeometry(told);
    }
    // The contents have taken that for their own: what they hold, and what is saved and copied, shall be what
    // is drawn.
    for (const QPointer<ScreenItem> &frame : selection) {
        if (frame && frame->m_content)
            frame->m_content->newGeometrySlot(frame->geometry());
    }
}

void ScreenItem::deleteByKey()
{
    if (canvas()->selection().size() < 2)
        deleteLater();
    else
        canvas()->deleteSelectionAnd(this);
}

void ScreenItem::nudgeSelection(int key)
{
    const QPoint step = arrowStep(key);
    if (step.isNull())
        return;
    const Guarded selection = guarded(canvas()->selection());
    for (const QPointer<ScreenItem> &frame : selection) {
        if (frame)
            frame->move(frame->pos() + step);
    }
}

void ScreenItem::growSelection(int key)
{
    const QPoint step = arrowStep(key);
    if (step.isNull())
        return;
    // This frame's width is given to every member, while each keeps its own height: on purpose.
    const int newWidth = width() + step.x();
    const Guarded selection = guarded(canvas()->selection());
    for (const QPointer<ScreenItem> &frame : selection) {
        if (frame)
            frame->resize(newWidth, frame->height() + step.y());
    }
}

void ScreenItem::moveEvent(QMoveEvent *event)
{
    Q_UNUSED(event)
    if (Screen *screen = canvas())
        screen->markModified();
    emit newGeometry(geometry());
}

void ScreenItem::resizeEvent(QResizeEvent *event)
{
    Screen *screen = canvas();
    if (!screen)
        return;
    const QSize clamped = ItemGeometry::clampedSize(QRect(pos(), event->size()), screen->size());
    if (clamped != event->size() && !m_isPlacing)
        resize(clamped);
    screen->markModified();
    m_border->resize(size());
    emit newGeometry(geometry());
}
