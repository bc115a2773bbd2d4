#pragma once

#include "app/mainwindow.h"

#include <QMouseEvent>
#include <QTemporaryDir>

#include <memory>

class SettingsEditor;

/// Counts the paints of the widgets that it filters the events of.
class PaintCounter : public QObject
{
public:
    int paints() const { return m_paints; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int m_paints = 0;
};

/// The editor, painted and quiet, beside a board in a file.
class Session
{
public:
    Session(int items, QSize canvas);

    Screen &screen() { return *m_window.canvas(); }
    SettingsEditor &column();
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
