#pragma once

#include "model/contentviewer.h"

class EnumEdit;
class PropertyPanel;

/// The content of a shape item: a filled and outlined figure of one of six kinds. Everything it is made of
/// lives in the value map.
class Shape : public ContentViewer
{
    Q_OBJECT

public:
    /// Takes position and size from the parent frame, from itself without one.
    explicit Shape(QWidget *parent);

    QVector<QPair<QString, ContentViewer::Parameters::ValueType>> getValueNameTypeDefinition() override;
    void anyValueChanged() override;
    QStringList getEnumsFor(QString enumName) override;
    /// Schedules a repaint at every reading: on purpose.
    QVariant getValue(QString key) override;
    void applyGeometry(QRect geometry) override;
    QVariant getMinValue(QString key) override;
    QVariant getMaxValue(QString key) override;
    void buildSettingsPanel(QWidget *host) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    static void addBasicProperties(PropertyPanel &panel, EnumEdit *kind, EnumEdit *align);
};
