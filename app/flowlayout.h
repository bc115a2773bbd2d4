#pragma once

#include <QLayout>
#include <QList>
#include <QStyle>

/// Arranges items in rows that wrap at the right edge. Nothing places it yet.
class FlowLayout : public QLayout
{
public:
    /// All margins and spacings in px; a spacing of -1 comes from the parent's style or layout.
    FlowLayout(QWidget *parent, int margin, int hSpacing, int vSpacing);
    FlowLayout(int margin, int hSpacing, int vSpacing);
    ~FlowLayout() override;

    /// The spacings in force (px); -1 when neither this layout nor a parent says one.
    int horizontalSpacing() const;
    int verticalSpacing() const;

    /// Takes the item, which the layout owns from now on.
    void addItem(QLayoutItem *item) override;
    int count() const override;
    QLayoutItem *itemAt(int index) const override;
    /// Hands the item over to the caller; null for an index out of range.
    QLayoutItem *takeAt(int index) override;

    Qt::Orientations expandingDirections() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    QSize minimumSize() const override;
    QSize sizeHint() const override;
    void setGeometry(const QRect &rect) override;

private:
    enum class Pass { Measure, Place };

    int arrange(const QRect &rect, Pass pass) const;
    int parentSpacing(QStyle::PixelMetric metric) const;

    QList<QLayoutItem *> m_items;
    int m_hSpacing;
    int m_vSpacing;
};
