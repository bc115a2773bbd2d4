// bench-floor WORK NUMBER [NUMBER]: the work of bench-product done with bare widgets and no more.
#include "assets/assets.h"
#include "bench/board.h"
#include "bench/floorcanvas.h"
#include "bench/floorcolumn.h"
#include "bench/measure.h"
#include "bench/works.h"

#include <QApplication>
#include <QDockWidget>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMainWindow>
#include <QPaintEvent>
#include <QPainter>
#include <QSaveFile>
#include <QScrollArea>
#include <QTemporaryDir>

namespace
{
class Window : public QMainWindow
{
public:
    Window() : m_canvas(new FloorCanvas)
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
    }
    FloorCanvas &canvas() { return *m_canvas; }

private:
    FloorCanvas *m_canvas;
};

QJsonObject read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

void open(int items, int)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("board.lay"));
    BenchBoard::write(path, items, QSize(800, 400));
    Window window;
    report("cpu", cpuOf([&] { window.canvas().load(read(path)); }));
}

void save(int items, int)
{
    const QTemporaryDir folder;
    Window window;
    window.canvas().load(BenchBoard::layout(items, QSize(800, 400)));
    settle();
    const QString path = folder.filePath(QStringLiteral("saved.lay"));
    report("cpu", cpuPerTurn(5, [&](int) {
               QJsonArray objects;
               for (const FloorShape &shape : window.canvas().shapes())
                   objects.append(shape.toJson());
               QSaveFile file(path);
               file.open(QIODevice::WriteOnly);
               file.write(QJsonDocument(QJsonObject{{QStringLiteral("items"), objects}}).toJson());
               file.commit();
           }));
}

void drag(int items, int moved)
{
    Window window;
    FloorCanvas &canvas = window.canvas();
    canvas.load(BenchBoard::layout(items, QSize(800, 400)));
    for (int index = 0; index < moved; ++index)
        canvas.frames().at(index)->select();
    settle();
    report("cpu", cpuPerTurn(moved == 1 ? 200 : 20, [&](int turn) {
               const QRect before = canvas.frames().first()->geometry();
               for (int index = 0; index < moved; ++index) {
                   QWidget *frame = canvas.frames().at(index);
                   frame->move(frame->pos() + QPoint(turn % 2 ? -1 : 1, 0));
               }
               if (moved == 1)
                   canvas.repaint(before.united(canvas.frames().first()->geometry()));
               else
                   canvas.repaint();
               QCoreApplication::processEvents();
           }));
    report("repaint", cpuPerTurn(10, [&](int) { canvas.repaint(); }));
}

/// Paints the points of the grid that are known to be exposed.
class GridCanvas : public QWidget
{
public:
    explicit GridCanvas(const QRect &exposed)
    {
        setAttribute(Qt::WA_OpaquePaintEvent);
        for (int y = (exposed.top() + 10) / 11 * 11; y <= exposed.bottom(); y += 11) {
            for (int x = (exposed.left() + 10) / 11 * 11; x <= exposed.right(); x += 11)
                m_points.append(QPoint(x, y));
        }
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QPainter painter(this);
        painter.fillRect(event->rect(), Qt::black);
        painter.setPen(QColor(50, 50, 50, 100));
        painter.drawPoints(m_points.constData(), m_points.size());
    }

private:
    QVector<QPoint> m_points;
};

void grid(int width, int height)
{
    const QSize size(width, height);
    const QRect exposed(200, 200, 60, 60);
    QScrollArea area;
    auto *canvas = new GridCanvas(exposed);
    canvas->setFixedSize(size);
    area.setWidget(canvas);
    area.resize(700, 500);
    area.show();
    settle();
    report("cpu", cpuPerTurn(2000, [&](int) { canvas->repaint(exposed); }));
}

void deletion(int items, int)
{
    Window window;
    window.canvas().load(BenchBoard::layout(items, QSize(800, 400)));
    settle();
    report("cpu", cpuOf([&] { window.canvas().deleteItems(); }));
}

void exportPicture(int width, int height)
{
    const QSize size(width, height);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("board.png"));
    Window window;
    window.canvas().load(BenchBoard::layout(1000, size));
    settle();
    report("cpu", cpuPerTurn(3, [&](int) {
               QImage image(size, QImage::Format_RGB32);
               window.canvas().render(&image);
               image.save(path);
           }));
}

/// A column in a dock of the window, as in the editor.
FloorColumn *addColumn(Window &window)
{
    auto *dock = new QDockWidget;
    auto *column = new FloorColumn;
    dock->setWidget(column);
    window.addDockWidget(Qt::RightDockWidgetArea, dock);
    settle();
    return column;
}

void buildPanel(int, int)
{
    Window window;
    FloorColumn *column = addColumn(window);
    report("cpu", cpuOfUndone(
                      40, [column] { column->buildPanel(); }, [column] { column->dropPanel(); }));
}

void switchItems(int, int)
{
    Window window;
    FloorColumn *column = addColumn(window);
    reportThousand([column](int) {
        column->dropPanel();
        column->buildPanel();
    });
}
} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    initAssets();
    QFile sheet(QStringLiteral(":/assets/style/style.qss"));
    if (sheet.open(QIODevice::ReadOnly))
        application.setStyleSheet(QString::fromLatin1(sheet.readAll()));
    return runWork({{"open", open},
                    {"save", save},
                    {"drag", drag},
                    {"grid", grid},
                    {"delete", deletion},
                    {"export", exportPicture},
                    {"panel", buildPanel},
                    {"switch", switchItems}});
}
