// bench-product WORK NUMBER [NUMBER]: one piece of the editor's work, in its main window.
#include "assets/assets.h"
#include "bench/contentworks.h"
#include "bench/measure.h"
#include "bench/paintcounter.h"
#include "bench/panelworks.h"
#include "bench/selectionworks.h"
#include "bench/session.h"
#include "bench/works.h"
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
template <BenchBoard::Content content>
void open(int items, int)
{
    Session session(items, QSize(800, 400), content);
    const double resident = residentMemory();
    report("cpu", cpuOf([&] { session.open(); }));
    report("grown", residentMemory() - resident);
    if (session.screen().items().size() != items)
        qFatal("not every item was made");
}

void save(int items, int)
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
    QCoreApplication::sendEvent(frame, mouseEvent(*frame, type, local, buttons).get());
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

void grid(int width, int height)
{
    const QSize size(width, height);
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

void exportPicture(int width, int height)
{
    const QSize size(width, height);
    Session session(1000, size);
    session.open();
    settle();
    const QString path = session.file(QStringLiteral("board.png"));
    report("cpu", cpuPerTurn(3, [&](int) { pictureOf(session.screen()).save(path); }));
}
} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    initAssets();
    return runWork({{"open-shapes", open<BenchBoard::Content::Shapes>},
                    {"open-texts", open<BenchBoard::Content::Texts>},
                    {"open-mixed", open<BenchBoard::Content::Mixed>},
                    {"save", save},
                    {"drag", drag},
                    {"grid", grid},
                    {"delete", deleteItems},
                    {"select", selectItems},
                    {"clipboard", useClipboard},
                    {"paste-delete", pasteAndDelete},
                    {"layer", moveLayer},
                    {"export", exportPicture},
                    {"panel", buildPanel},
                    {"switch", switchItems},
                    {"edit", editInSpinBox},
                    {"edit-text", editText},
                    {"show-text", showText},
                    {"paint-picture", paintPicture},
                    {"read-picture", readPicture},
                    {"play", playMovies},
                    {"rest", rest}});
}
