#pragma once

#include <QMainWindow>
#include <QStringList>

class ItemTypesDragBar;
class QAction;
class QDockWidget;
class QMenu;
class Screen;
class ScreenContainer;
class ScreenSettings;
class SettingsEditor;
class ToolBarForScreenItem;

/// The editor's one window: the canvas in the middle, the bars and panels around it, the menus and the file
/// commands.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);

    /// The families of the fonts loaded at start, in the order in which they were first seen.
    static QStringList fontFamilies();

    /// The canvas; it is the same one for the life of the window.
    Screen *canvas() const { return m_screen; }

    /// The layout file last opened or saved; empty before the first, the template's path after "New".
    QString currentPath() const { return m_currentPath; }

    // The order of the slots is part of the interface, and so is the spelling of the last one.
public slots:
    /// Loads the layout; an empty path does nothing. A failure is told in a box and changes nothing.
    void openFile(QString filePath);
    /// Writes the layout and keeps the path; an empty one writes nothing. A failure is told in a box.
    void saveFile(QString filePath);

protected slots:
    void saveAsActionTriggered();
    void openActionTriggered();
    void newFileActionTriggered();
    void saveActionTriggered();
    void exportActionTriggered();
    void exitActionTriggered();
    void getUpdatesActionTrggered();

private:
    void buildMenus();
    void buildCanvas();
    void buildPanels();
    void connectPanels();
    void arrangeDocks();
    QAction *addCommand(QMenu *menu, const QString &text, const QString &keys, void (MainWindow::*command)());
    QString askForLayoutToSave();
    void openEmptyLayout();
    void showError(const QString &title, const QString &text);
    bool triggerSave();

    Screen *m_screen = nullptr;
    ScreenContainer *m_screenContainer = nullptr;
    SettingsEditor *m_settingsEditor = nullptr;
    ToolBarForScreenItem *m_layerToolBar = nullptr;
    ScreenSettings *m_screenSettings = nullptr;
    ItemTypesDragBar *m_itemBar = nullptr;
    QDockWidget *m_settingsDock = nullptr;
    QDockWidget *m_screenSettingsDock = nullptr;
    QDockWidget *m_itemBarDock = nullptr;
    QAction *m_saveAction = nullptr;
    QString m_currentPath;
    bool m_saveFailed = false; // the last one, with its box; one that was called off has not failed
};
