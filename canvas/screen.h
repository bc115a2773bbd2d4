#pragma once

#include <QColor>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QPair>
#include <QVector>
#include <QWidget>

class ScreenItem;

/// The canvas: the LED screen being designed, of a fixed size in pixels, with its items in layers.
/// Owns the items, their order, the selection and the reading and writing of whole layouts.
class Screen : public QWidget
{
    Q_OBJECT

public:
    explicit Screen(QWidget *parent = nullptr);
    ~Screen() override;

    /// Takes the frame as the topmost layer and owns it. A frame that is listed already is listed again.
    void addScreenItem(ScreenItem *item);

    QColor backgroundColor() const { return m_backgroundColor; }

    /// True once the layout was changed since it was last loaded.
    bool isModified() const { return m_modified; }
    void markModified() { m_modified = true; }

    /// Every frame, bottom first: the stacking order and the order in files.
    const QList<ScreenItem *> &items() const { return m_items; }

    /// The selected frames in the order in which they were selected.
    const QList<ScreenItem *> &selection() const { return m_selection; }

    /// Deselects every frame.
    void clearSelection();

    /// What a press beside the items does: no frame is active or selected and no panel shown any more.
    void leaveItems();

    /// Keeps the selection list in step with a frame's own flag; for the frame alone.
    void noteSelected(ScreenItem *item, bool selected);

    /// Moves the frames by the same step (px), each telling its new geometry, and paints what changed at
    /// once.
    void moveFrames(const QList<ScreenItem *> &frames, QPoint delta);

    /// Makes the stacking of the widgets equal the order of the layers: the same as raising every frame in
    /// turn.
    void restack();

    void bringToFront(ScreenItem *item);
    void sendToBack(ScreenItem *item);
    void moveLayerUp(ScreenItem *item);
    void moveLayerDown(ScreenItem *item);

    /// Copies the selected frames to the top; the copies become the selection.
    void duplicateSelection();

    /// Schedules the selected frames for deletion in the order of their selection and deselects them.
    void deleteSelection();

    /// Schedules the selected frames and the given one for deletion, the given one last.
    void deleteSelectionAnd(ScreenItem *item);

    /// The whole layout as a document object.
    QJsonObject saveLayout();

    /// Replaces the whole layout by the document's. What is missing or mistyped there reads as 0, an empty
    /// list or an invalid colour. Afterwards the layout counts as not modified.
    void loadLayout(const QJsonObject &document);

    /// The kinds of item that the user can add, in the order of the item bar: type name, for newItem(), and
    /// path of the icon.
    static QVector<QPair<QString, QString>> itemTypes();

    /// The format in which a drag carries a type name to the canvas, in UTF-8.
    static QString dragFormat();

    /// Makes an item from its item object, on top of the others. Null, and nothing made, for kinds that do
    /// not come from files and on a full canvas.
    ScreenItem *createItem(const QJsonObject &object);

    // The order of signals and slots is part of the interface.
signals:
    void showSettingsFor(ScreenItem *item);
    void deactivateFor(ScreenItem *item);
    /// Declared for listeners of selection changes; nothing emits it yet.
    void selectedItem(ScreenItem *item);
    void meResized();

public slots:
    void screenItemDeleted(QObject *item);
    void setActiveItem(ScreenItem *item);
    // This spelling and the one below are meant: connections are made by name.
    void setWidgth(int width);
    void setHeight(int height);
    /// Does not mark the layout modified, unlike the two setters of the size: on purpose.
    void setBackgrounColor(QColor color);
    void goToRenderMode();
    void goOutRenderMode();
    void copyShortcutActivated();
    void cutShortcutActivated();
    void pasteShortcutActivated();
    void selectAllShortcutActivated();
    void newItem(QString name);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void bindShortcuts();
    void changeSize(QSize size);
    void updateFor(int frames);
    void selectMade(const QList<ScreenItem *> &made);
    void showSettingsOfSelection();
    void deleteAllItems();
    bool isFull() const;
    ScreenItem *newFrame(QPoint position);
    QList<ScreenItem *> createItems(const QJsonArray &objects);
    QJsonArray selectionToJson();
    bool copySelection();
    void swapLayers(int index, int otherIndex);
    void raiseTo(int place, ScreenItem &item);

    QList<ScreenItem *> m_items;
    QList<ScreenItem *> m_selection;
    QColor m_backgroundColor = Qt::black;
    bool m_modified = false;
    bool m_renderMode = false;
    QHash<QString, int> m_nameCounters; // next number of a clicked item, by name prefix
};
