#pragma once

#include "bench/floorcanvas.h"

#include <QMainWindow>

/// A window around a bare canvas, painted and quiet.
class FloorWindow : public QMainWindow
{
public:
    FloorWindow();

    FloorCanvas &canvas() { return *m_canvas; }

private:
    FloorCanvas *m_canvas;
};
