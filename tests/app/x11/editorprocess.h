#pragma once

#include <QProcess>

/// A started editor with a window on a real X display. It ends at the latest with this object.
class EditorProcess
{
public:
    explicit EditorProcess(const QString &program);
    ~EditorProcess();
    Q_DISABLE_COPY(EditorProcess)

    /// True when a window of this editor that has the title gets the keyboard in time.
    bool hasActiveWindow(const QString &title) const;

    /// Gives the keyboard to the main window; false when it does not get there in time.
    bool activate() const;

    /// Opens the layout with the keys of a user.
    bool open(const QString &path) const;

private:
    QProcess m_process;
};
