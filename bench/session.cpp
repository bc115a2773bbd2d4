#include "bench/session.h"

#include "bench/board.h"
#include "bench/measure.h"
#include "editors/panels/settingseditor.h"

#include <QApplication>

bool PaintCounter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint)
        ++m_paints;
    return QObject::eventFilter(watched, event);
}

Session::Session(int items, QSize canvas) : m_path(m_folder.filePath(QStringLiteral("board.lay")))
{
    BenchBoard::write(m_path, items, canvas);
    // Beside the panels there is room for all of the usual canvas: what is out of sight costs no paint.
    m_window.resize(1400, 700);
    m_window.show();
    QApplication::setActiveWindow(&m_window);
    settle();
}

SettingsEditor &Session::column()
{
    return *m_window.findChild<SettingsEditor *>();
}

std::unique_ptr<QMouseEvent> mouseEvent(const QWidget &widget, QEvent::Type type, QPoint local,
                                        Qt::MouseButtons buttons)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    return std::make_unique<QMouseEvent>(type, local, widget.mapTo(widget.window(), local),
                                         widget.mapToGlobal(local), button, buttons, Qt::NoModifier);
}
