#pragma once

#include "app/mainwindow.h"
#include "bench/board.h"

#include <QMouseEvent>
#include <QTemporaryDir>

#include <memory>

class ScreenItem;
class SettingsEditor;

/// The editor, painted and quiet, beside a board in a file.
class Session
{
public:
    explicit Session(const QJsonObject &layout);
    Session(int items, QSize canvas, BenchBoard::Content content = BenchBoard::Content::Shapes);

    Screen &screen() { return *m_window.canvas(); }
    SettingsEditor &column();
    /// Scrolls to the item.
    void show(ScreenItem &item);

    QString file(const QString &name) const { return m_folder.filePath(name); }

    /// Opens the board, and leaves the painting to the event loop.
    void open() { m_window.openFile(m_path); }
    void save(const QString &path) { m_window.saveFile(path); }

private:
    QTemporaryDir m_folder;
    QString m_path;
    MainWindow m_window;
};

/// A mouse event at a place of the widget, to be sent or to be posted.
std::unique_ptr<QMouseEvent> mouseEvent(const QWidget &widget, QEvent::Type type, QPoint local,
                                        Qt::MouseButtons buttons);

/// Posts a mouse event at the middle of the widget. Posted, since what is deleted later than a sent event
/// outlives the loop that settles.
void postMouse(QWidget &widget, QEvent::Type type, Qt::MouseButtons buttons);

/// Posts a click on the item.
void click(ScreenItem &item);
