#include "bench/floorwindow.h"

#include "bench/measure.h"

#include <QScrollArea>

FloorWindow::FloorWindow() : m_canvas(new FloorCanvas)
{
    // The same surroundings as in the editor: a sheet on the canvas's parent makes every polish dearer.
    auto *host = new QWidget;
    host->setStyleSheet(QStringLiteral("background:transparent;"));
    m_canvas->setParent(host);
    auto *area = new QScrollArea;
    area->setWidget(host);
    area->setWidgetResizable(true);
    setCentralWidget(area);
    m_canvas->setFixedSize(800, 400);
    m_canvas->show();
    resize(1000, 600);
    show();
    settle();
    // Once it is dressed: a see-through sheet has taken this away.
    m_canvas->setAttribute(Qt::WA_OpaquePaintEvent);
}
