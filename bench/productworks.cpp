// bench-product WORK ITEMS|WIDTH [MOVED|HEIGHT]: one piece of the editor's work, in its main window.
#include "app/mainwindow.h"
#include "assets/assets.h"
#include "bench/board.h"
#include "bench/measure.h"
#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "canvas/screenpicture.h"

#include <QApplication>
#include <QDebug>
#include <QFileInfo>
#include <QMouseEvent>
#include <QTemporaryDir>

namespace
{
/// Counts the paints of a widget.
class PaintCounter : public QObject
{
public:
    int paints() const { return m_paints; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++m_paints;
        return QObject::eventFilter(watched, event);
    }

private:
    int m_paints = 0;
};

/// The editor, painted and quiet, beside a board in a file.
class Session
{
public:
    Session(int items, QSize canvas) : m_path(m_folder.filePath(QStringLiteral("board.lay")))
    {
        BenchBoard::write(m_path, items, canvas);
        m_window.resize(1000, 600);
        m_window.show();
        QApplication::setActiveWindow(&m_window);
        settle();
    }
    Screen &screen() { return *m_window.canvas(); }
    QString file(const QString &name) const { return m_folder.filePath(name); }
    void open() { m_window.openFile(m_path); }
    void save(const QString &path) { m_window.saveFile(path); }

private:
    QTemporaryDir m_folder;
    QString m_path;
    MainWindow m_window;
};

void open(int items)
{
    Session session(items, QSize(800, 400));
    report("cpu", cpuOf([&] { session.open(); }));
    if (session.screen().items().size() != items)
        qFatal("not every item was made");
}

void save(int items)
{
    Session session(items, QSize(800, 400));
    session.open();
    settle();
    const QString path = session.file(QStringLiteral("saved.lay"));
    report("cpu", cpuPerTurn(5, [&](int) { session.save(path); }));
    if (QFileInfo(path).size() == 0)
        qFatal("nothing was saved");
}

void sendMouse(QWidget *frame, QEvent::Type type, QPoint local, Qt::MouseButtons buttons)
{
    const Qt::MouseButton button = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(type, local, frame->mapTo(frame->window(), local), frame->mapToGlobal(local), button,
                      buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(frame, &event);
}

/// Selects so many frames and takes the first of them by its middle.
ScreenItem *takeHold(Screen &screen, int moved)
{
    screen.clearSelection();
    for (int index = 0; index < moved; ++index)
        screen.items().at(index)->select();
    ScreenItem *frame = screen.items().first();
    frame->setFocus(Qt::MouseFocusReason);
    sendMouse(frame, QEvent::MouseMove, frame->rect().center(), Qt::NoButton);
    sendMouse(frame, QEvent::MouseButtonPress, frame->rect().center(), Qt::LeftButton);
    return frame;
}

void drag(int items, int moved)
{
    Session session(items, QSize(800, 400));
    session.open();
    settle();
    ScreenItem *frame = takeHold(session.screen(), moved);
    settle();
    PaintCounter counter;
    session.screen().installEventFilter(&counter);
    const QPoint start = frame->pos();
    const int turns = moved == 1 ? 200 : 20;
    report("cpu", cpuPerTurn(turns, [&](int turn) {
               const QPoint step(turn % 2 ? -1 : 1, 0);
               sendMouse(frame, QEvent::MouseMove, frame->rect().center() + step, Qt::LeftButton);
               QCoreApplication::processEvents();
               if ((frame->pos() == start) != (turn % 2 == 1))
                   qFatal("the frame did not follow the mouse");
           }));
    report("paints", double(counter.paints()) / (turns + 2));
    report("repaint", cpuPerTurn(10, [&](int) { session.screen().repaint(); }));
}

void grid(QSize size)
{
    Session session(0, size);
    session.open();
    settle();
    // In the middle, which is what an opened canvas shows.
    const QRect exposed(QPoint(size.width() / 2, size.height() / 2), QSize(60, 60));
    PaintCounter counter;
    session.screen().installEventFilter(&counter);
    report("cpu", cpuPerTurn(2000, [&](int) { session.screen().repaint(exposed); }));
    if (counter.paints() != 2002)
        qFatal("nothing was painted");
}

void deletion(int items)
{
    Session session(items, QSize(800, 400));
    session.open();
    settle();
    session.screen().selectAllShortcutActivated();
    settle();
    report("cpu", cpuOf([&] {
               // Posted, since what is deleted later than a sent event outlives the loop that settles.
               auto *press = new QKeyEvent(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
               QCoreApplication::postEvent(session.screen().items().last(), press);
           }));
    if (!session.screen().items().isEmpty())
        qFatal("not every item was deleted");
}

void exportPicture(QSize size)
{
    Session session(1000, size);
    session.open();
    settle();
    const QString path = session.file(QStringLiteral("board.png"));
    report("cpu", cpuPerTurn(3, [&](int) { pictureOf(session.screen()).save(path); }));
}

int run(const QString &work, int first, int second)
{
    if (work == QLatin1String("open"))
        open(first);
    else if (work == QLatin1String("save"))
        save(first);
    else if (work == QLatin1String("drag"))
        drag(first, second);
    else if (work == QLatin1String("grid"))
        grid(QSize(first, second));
    else if (work == QLatin1String("delete"))
        deletion(first);
    else if (work == QLatin1String("export"))
        exportPicture(QSize(first, second));
    else
        return EXIT_FAILURE;
    return EXIT_SUCCESS;
}
} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    initAssets();
    const QStringList arguments = QCoreApplication::arguments();
    return run(arguments.value(1), arguments.value(2).toInt(), arguments.value(3).toInt());
}
