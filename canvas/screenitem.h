#pragma once

#include "canvas/framegeometry.h"
#include "model/contenthost.h"
#include "model/contentviewer.h"

#include <QWidget>

#include <memory>
#include <vector>

class EditModeBorderRenderer;
class ItemMenu;
class QVBoxLayout;
class Screen;

/// The frame of one item on the canvas: it selects, moves and resizes the item with mouse and keys and
/// carries its name. What the item shows is its content's business, and every parameter is asked of the
/// content.
class ScreenItem : public QWidget, public ContentHost
{
    Q_OBJECT

public:
    /// Joins the screen on top of its layers when there is one; the screen owns the frame then.
    explicit ScreenItem(Screen *screen);
    ~ScreenItem() override;

    /// Shows the content, which the frame owns from now on. With null only the border is raised.
    void setContent(ContentViewer *content) override;

    void contentEdited() override;

    /// A geometry on the screen is not clamped: the clamp of a resize widens frames that are taller than the
    /// room beside them, and an item that was saved so would come back as another.
    void placeAsStored(const QRect &stored) override;

    /// The content, null until there is one.
    ContentViewer *content() const { return m_content; }

    /// Registers the frame with the screen; null does nothing.
    void attachToScreen(Screen *screen);

    /// The screen that this frame lies on; null when it lies on none.
    Screen *canvas() const;

    /// The layer name that the user sees.
    QString name() const override { return m_name; }

    bool isSelected() const { return m_selected; }
    bool isActive() const { return m_active; }
    bool isInRenderMode() const { return m_renderMode; }

    /// True when the editing border is to be painted: selected and not in render mode.
    bool showsBorder() const { return m_selected && !m_renderMode; }

    /// Puts the frame into the screen's selection list, at its end, unless it is there.
    void select();

    /// Takes the frame out of the screen's selection list.
    void deselect();

    /// Makes this the active item, as a click on it does.
    void activate();

    void enterRenderMode();
    void leaveRenderMode();

    /// Has the content build its editors into the host; nothing without host or content.
    void buildSettingsPanel(QWidget *host);

    /// The content's values and the name, as layout files and the clipboard hold them.
    QJsonObject toJson();

    /// Takes the name out of the object and reads the content from the rest. False when the content is
    /// incomplete or there is none.
    bool fromJson(QJsonObject &object);

    /// Hands over an object that lives as long as the frame.
    void addAuxiliary(std::unique_ptr<QObject> object);

    // The order of signals and slots is part of the interface.
signals:
    void inFocus(bool mode);
    void outFocus(bool mode);
    void newGeometry(QRect rect);
    void activated(ScreenItem *);
    void valueChanged(QString, QVariant);

public slots:
    void deactivateSlot(ScreenItem *item);
    void setMyName(QString myName);
    QVector<QPair<QString, ContentViewer::Parameters::ValueType>> getValueNameTypeDefinition();
    QStringList getEnumsFor(QString enumName);
    void setValues(QMap<QString, QVariant> values);
    QMap<QString, QVariant> getValues();
    void setValue(QString key, QVariant value);
    QVariant getValue(QString key);
    QVariant getMaxValue(QString key);
    QVariant getMinValue(QString key);

private slots:
    void bringToFrontSlot();
    void duplicateSlot();
    void deleteSlot();
    void sendToBackSlot();
    void sendToLayerDown();
    void sendToLayerUp();

protected:
    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    /// Passed on to the content, which is transparent for the mouse.
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void buildContextMenu();
    void showContextMenu(QPoint position);
    void setSelected(bool selected);
    void becomeActive();
    void selectByPress();
    void toggleSelected();
    void selectAlone();
    void trackHitZone(QPoint position);
    void moveSelection(QPoint corner);
    void resizeByHandle(QPoint pointer, QPoint corner);
    void deleteByKey();
    void nudgeSelection(int key);
    void growSelection(int key);
    void tellSelection();

    bool m_selected = false;
    bool m_renderMode = false;
    bool m_active = false;
    bool m_contextMenuOpen = false;
    bool m_editable = true; // a switch that nothing turns off yet
    bool m_isPlacing = false;
    HitZone m_hitZone = HitZone::None;
    QPoint m_pressAnchor; // global mouse position at the last press less the frame's position then
    QVBoxLayout *m_layout = nullptr;
    ItemMenu *m_contextMenu = nullptr;
    ContentViewer *m_content = nullptr;
    EditModeBorderRenderer *m_border = nullptr;
    QString m_name;
    std::vector<std::unique_ptr<QObject>> m_auxiliaries;
};
