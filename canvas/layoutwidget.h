#pragma once

#include <QWidget>

/// A plain widget beside the canvas, without behaviour of its own. Nothing places it yet.
class LayoutWidget : public QWidget
{
    Q_OBJECT

public:
    explicit LayoutWidget(QWidget *parent = nullptr);
};
