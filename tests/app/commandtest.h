#pragma once

#include "app/mainwindow.h"
#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "model/layoutfile.h"
#include "tests/app/commands.h"
#include "tests/support/boards.h"
#include "tests/support/dialoganswers.h"
#include "tests/support/files.h"
#include "tests/support/strictmain.h"

#include <QTemporaryDir>

/// A shown window with an unchanged empty board, and a folder for its files: anew for each test function.
class CommandTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

protected:
    MainWindow &window() const { return *m_window; }
    Screen &canvas() const { return *m_window->canvas(); }

    /// The path of a file in the folder.
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QStringList files() const;

    void triggerNew() { trigger("New... (Ctrl + N)"); }
    void triggerOpen() { trigger("Open... (Ctrl + O)"); }
    void triggerSave() { trigger("Save... (Ctrl+S)"); }
    void triggerSaveAs() { trigger("Save As... (Ctrl+Shift+S)"); }
    void triggerExport() { trigger("Export"); }

    /// Runs the event loop until "Exit" ends it; 1 when it does not.
    int runUntilExit();

    /// Writes smallBoard() into the folder, opens it and answers its path.
    QString openSmallBoard();

    void verifyIsTemplate();

private:
    void trigger(const QString &entry) { commandOf(*m_window, entry)->trigger(); }

    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<MainWindow> m_window;
};

/// Two overlapping shapes on 200 x 100 pixels of #102030.
QJsonObject smallBoard();

/// The document as it is to lie on disk.
QByteArray bytesOf(const QJsonObject &document);

/// Announces one coming line of the debug log; the test function fails when it does not come.
void expectLog(const char *line);
