// bench-floor WORK NUMBER [NUMBER]: the work of bench-product done with bare widgets and no more.
#include "bench/board.h"
#include "bench/floorapplication.h"
#include "bench/floorcolumn.h"
#include "bench/floormedia.h"
#include "bench/floorwindow.h"
#include "bench/measure.h"
#include "bench/works.h"

#include <QApplication>
#include <QDockWidget>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPaintEvent>
#include <QPainter>
#include <QSaveFile>
#include <QScrollArea>
#include <QTemporaryDir>

namespace
{
QJsonObject read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

template <BenchBoard::Content content>
void open(int items, int)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("board.lay"));
    BenchBoard::write(path, BenchBoard::layout(items, QSize(800, 400), content));
    FloorWindow window;
    const double resident = residentMemory();
    report("cpu", cpuOf([&] { window.canvas().load(read(path)); }));
    report("grown", residentMemory() - resident);
}

void save(int items, int)
{
    const QTemporaryDir folder;
    FloorWindow window;
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
    FloorWindow window;
    FloorCanvas &canvas = window.canvas();
    canvas.load(BenchBoard::layout(items, QSize(800, 400)));
    for (int index = 0; index < moved; ++index)
        canvas.frames().at(index)->setSelected(true);
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
    Q_OBJECT

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
    FloorWindow window;
    window.canvas().load(BenchBoard::layout(items, QSize(800, 400)));
    settle();
    report("cpu", cpuOf([&] { window.canvas().deleteItems(); }));
}

void selectItems(int items, int)
{
    FloorWindow window;
    FloorCanvas &canvas = window.canvas();
    canvas.load(BenchBoard::layout(items, QSize(800, 400)));
    settle();
    const auto all = [&canvas] {
        canvas.selectAll(true);
    };
    const auto none = [&canvas] {
        canvas.selectAll(false);
    };
    report("all", cpuOfUndone(7, all, none));
    all();
    settle();
    report("none", cpuOfUndone(7, none, all));
}

void buildAndDelete(int items, int)
{
    const QByteArray bytes =
        QJsonDocument(BenchBoard::layout(items, QSize(800, 400), BenchBoard::Content::Mixed)).toJson();
    FloorWindow window;
    report("cpu", cpuOf([&] {
               window.canvas().load(QJsonDocument::fromJson(bytes).object());
               window.canvas().deleteItems();
           }));
}

void raiseItem(int items, int)
{
    FloorWindow window;
    window.canvas().load(BenchBoard::layout(items, QSize(800, 400)));
    settle();
    report("cpu", cpuPerTurn(100, [&window, items](int turn) {
               window.canvas().frames().at(items / 2 + turn)->raise();
               QCoreApplication::processEvents();
           }));
}

void exportPicture(int width, int height)
{
    const QSize size(width, height);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("board.png"));
    FloorWindow window;
    window.canvas().load(BenchBoard::layout(1000, size));
    settle();
    report("cpu", cpuPerTurn(3, [&](int) {
               QImage image(size, QImage::Format_RGB32);
               window.canvas().render(&image);
               image.save(path);
           }));
}

/// A column in a dock of the window, as in the editor.
FloorColumn *addColumn(FloorWindow &window)
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
    FloorWindow window;
    FloorColumn *column = addColumn(window);
    report("cpu", cpuOfUndone(
                      40, [column] { column->buildPanel(); }, [column] { column->dropPanel(); }));
}

void switchItems(int, int)
{
    FloorWindow window;
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
    dressFloor(application);
    return runWork({{"open-shapes", open<BenchBoard::Content::Shapes>},
                    {"open-texts", open<BenchBoard::Content::Texts>},
                    {"open-mixed", open<BenchBoard::Content::Mixed>},
                    {"save", save},
                    {"drag", drag},
                    {"grid", grid},
                    {"delete", deletion},
                    {"select", selectItems},
                    {"paste-delete", buildAndDelete},
                    {"layer", raiseItem},
                    {"export", exportPicture},
                    {"panel", buildPanel},
                    {"switch", switchItems},
                    {"paint-picture", paintPicture},
                    {"read-picture", readPicture},
                    {"play", playMovies}});
}

#include "floorworks.moc"
