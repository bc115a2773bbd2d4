#pragma once

#include <QColor>
#include <QJsonObject>
#include <QVector>
#include <QWidget>

/// What a shape needs to be painted and saved, as plain members.
struct FloorShape {
    explicit FloorShape(const QJsonObject &object);
    QJsonObject toJson() const;

    QString type;
    QString name;
    QString kind;
    QString align;
    QRect geometry;
    int opacity;
    bool fill;
    QString color;
    bool border;
    int lineWidth;
    QString borderColor;
};

/// Paints one shape in its rectangle as the product paints it.
void paintFloorShape(QPainter &painter, const FloorShape &shape, QSize size);

class FloorOverlay;

/// An item of bare widgets: a frame with a layout, a content and an overlay for the border.
class FloorFrame : public QWidget
{
    Q_OBJECT

public:
    FloorFrame(const QRect &geometry, QWidget *parent);

    /// Shows the content, whose parent the frame is already.
    void setContent(QWidget *content);

    /// Shows the border, or shows it no more, from the next paint on.
    void setSelected(bool selected);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    FloorOverlay *m_overlay;
};

/// A canvas of bare items.
class FloorCanvas : public QWidget
{
    Q_OBJECT

public:
    explicit FloorCanvas(QWidget *parent = nullptr);

    /// Takes size and items from the document; hidden meanwhile, which is the fastest that the toolkit knows.
    void load(const QJsonObject &document);

    const QVector<FloorFrame *> &frames() const { return m_frames; }

    /// What the shapes among the items are.
    const QVector<FloorShape> &shapes() const { return m_shapes; }

    /// Adds an item, which has no content yet.
    FloorFrame *addFrame(const QRect &geometry);

    void selectAll(bool selected);

    /// Deletes every item when the event loop runs.
    void deleteItems();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void addItem(const QJsonObject &object);

    QVector<FloorFrame *> m_frames;
    QVector<FloorShape> m_shapes;
};
