#include "bench/session.h"

#include "app/screencontainer.h"
#include "bench/measure.h"
#include "canvas/screenitem.h"
#include "editors/panels/settingseditor.h"

#include <QApplication>

Session::Session(const QJsonObject &layout) : m_path(m_folder.filePath(QStringLiteral("board.lay")))
{
    BenchBoard::write(m_path, layout);
    // Beside the panels there is room for all of the usual canvas: what is out of sight costs no paint.
    m_window.resize(1400, 700);
    m_window.show();
    QApplication::setActiveWindow(&m_window);
    settle();
}

Session::Session(int items, QSize canvas, BenchBoard::Content content)
    : Session(BenchBoard::layout(items, canvas, content))
{
}

void Session::show(ScreenItem &item)
{
    m_window.findChild<ScreenContainer *>()->ensureWidgetVisible(&item);
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

void postMouse(QWidget &widget, QEvent::Type type, Qt::MouseButtons buttons)
{
    QCoreApplication::postEvent(&widget, mouseEvent(widget, type, widget.rect().center(), buttons).release());
}

void click(ScreenItem &item)
{
    postMouse(item, QEvent::MouseButtonPress, Qt::LeftButton);
    postMouse(item, QEvent::MouseButtonRelease, Qt::NoButton);
}
