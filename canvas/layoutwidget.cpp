#include "canvas/layoutwidget.h"

LayoutWidget::LayoutWidget(QWidget *parent) : QWidget(parent) {}
