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

/// An item of bare widgets: a frame with a layout, a painted shape and an overlay for the border.
class FloorFrame : public QWidget
{
public:
    FloorFrame(const FloorShape &shape, QWidget *parent);

    /// Shows the border from the next paint on.
    void select();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    FloorOverlay *m_overlay;
};

/// A canvas of bare items.
class FloorCanvas : public QWidget
{
public:
    explicit FloorCanvas(QWidget *parent = nullptr);

    /// Takes size and items from the document; hidden meanwhile, which is the fastest that the toolkit knows.
    void load(const QJsonObject &document);

    const QVector<FloorFrame *> &frames() const { return m_frames; }
    const QVector<FloorShape> &shapes() const { return m_shapes; }

    /// Deletes every item when the event loop runs.
    void deleteItems();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void addItem(const FloorShape &shape);

    QVector<FloorFrame *> m_frames;
    QVector<FloorShape> m_shapes;
};
