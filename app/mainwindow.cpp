#include "app/mainwindow.h"

#include "app/screencontainer.h"
#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "canvas/screenpicture.h"
#include "editors/panels/screensettings.h"
#include "editors/panels/settingseditor.h"
#include "model/applicationfonts.h"
#include "model/applicationstyle.h"
#include "model/fontfamilies.h"
#include "model/fontsubstitutions.h"
#include "model/layoutfile.h"
#include "pictures/picturefile.h"
#include "toolbars/itemtypesdragbar.h"
#include "toolbars/toolbarforscreenitem.h"
#include "update/updatemagaer.h"

#include <QApplication>
#include <QDebug>
#include <QDockWidget>
#include <QFileDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

namespace
{
enum class Answer { Yes, No, Cancel, None };

Answer askToSave(QWidget *parent)
{
    QMessageBox box(QMessageBox::Warning, MainWindow::tr("Layout edited"),
                    MainWindow::tr("Save layout file?"), QMessageBox::NoButton, parent);
    // One role for all keeps the buttons in this order on every desktop.
    QPushButton *yes = box.addButton(MainWindow::tr("Yes"), QMessageBox::ActionRole);
    QPushButton *no = box.addButton(MainWindow::tr("No"), QMessageBox::ActionRole);
    QPushButton *cancel = box.addButton(MainWindow::tr("Cancel"), QMessageBox::ActionRole);
    box.setDefaultButton(yes);
    box.exec();
    if (box.clickedButton() == yes)
        return Answer::Yes;
    if (box.clickedButton() == no)
        return Answer::No;
    return box.clickedButton() == cancel ? Answer::Cancel : Answer::None;
}
} // namespace

MainWindow::MainWindow(QWidget *parent) : QMainWindow(parent)
{
    // In this order: the sheet is in force before any widget exists, the families before any list shows them.
    applyApplicationStyle();
    loadApplicationFonts();
    registerFontSubstitutions();
    setWindowTitle(tr("Boardwright"));
    buildMenus();
    buildCanvas();
    buildPanels();
    connectPanels();
    arrangeDocks();
}

QStringList MainWindow::fontFamilies()
{
    return FontFamilies::list();
}

void MainWindow::buildMenus()
{
    auto *bar = new QMenuBar;
    setMenuBar(bar);
    QMenu *file = bar->addMenu(tr("File"));
    // The uneven spacing around "+" is meant.
    addCommand(file, tr("New... (Ctrl + N)"), QStringLiteral("Ctrl+n"), &MainWindow::newFileActionTriggered);
    addCommand(file, tr("Open... (Ctrl + O)"), QStringLiteral("Ctrl+o"), &MainWindow::openActionTriggered);
    m_saveAction =
        addCommand(file, tr("Save... (Ctrl+S)"), QStringLiteral("Ctrl+s"), &MainWindow::saveActionTriggered);
    addCommand(file, tr("Save As... (Ctrl+Shift+S)"), QStringLiteral("Ctrl+Shift+s"),
               &MainWindow::saveAsActionTriggered);
    addCommand(file, tr("Export"), QString(), &MainWindow::exportActionTriggered);
    addCommand(file, tr("Exit (Ctrl + Q)"), QStringLiteral("Ctrl+q"), &MainWindow::exitActionTriggered);
    QMenu *help = bar->addMenu(tr("Help"));
    addCommand(help, tr("Check for Updates"), QString(), &MainWindow::getUpdatesActionTrggered);
    connect(help->addAction(tr("About")), &QAction::triggered, qApp, &QApplication::aboutQt);
}

QAction *MainWindow::addCommand(QMenu *menu, const QString &text, const QString &keys,
                                void (MainWindow::*command)())
{
    QAction *action = menu->addAction(text);
    connect(action, &QAction::triggered, this, command);
    if (!keys.isEmpty()) {
        auto *shortcut = new QShortcut(QKeySequence(keys), this);
        connect(shortcut, &QShortcut::activated, action, &QAction::trigger);
    }
    return action;
}

void MainWindow::buildCanvas()
{
    auto *central = new QWidget;
    setCentralWidget(central);
    m_screenContainer = new ScreenContainer(central);
    m_settingsDock = new QDockWidget;
    m_settingsDock->setMinimumWidth(250);
    m_screenSettingsDock = new QDockWidget;
    m_itemBarDock = new QDockWidget;
    m_screen = new Screen;
    m_screenContainer->setScreen(m_screen);
    m_screenContainer->setWidgetResizable(true);
    m_screenContainer->setHorizontalScrollBar(new QScrollBar(Qt::Horizontal));
    m_screenContainer->horizontalScrollBar()->setEnabled(true);
    m_screen->setFixedSize(800, 400);
}

void MainWindow::buildPanels()
{
    m_settingsEditor = new SettingsEditor;
    m_layerToolBar = new ToolBarForScreenItem(centralWidget());
    auto *layout = new QVBoxLayout(centralWidget());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_layerToolBar);
    layout->addWidget(m_screenContainer);
    m_layerToolBar->show();
    m_screenSettings = new ScreenSettings;
    m_itemBar = new ItemTypesDragBar;
    m_itemBar->addItemTypes(Screen::itemTypes());
    m_settingsDock->setWidget(m_settingsEditor);
    m_itemBarDock->setWidget(m_itemBar);
    m_screenSettingsDock->setWidget(m_screenSettings);
}

void MainWindow::connectPanels()
{
    connect(m_itemBar, &ItemTypesDragBar::signalNewItem, m_screen, &Screen::newItem);
    connect(m_screen, &Screen::showSettingsFor, m_settingsEditor, &SettingsEditor::setActiveItem);
    m_layerToolBar->setScreen(m_screen);
}

void MainWindow::arrangeDocks()
{
    addDockWidget(Qt::RightDockWidgetArea, m_settingsDock);
    addDockWidget(Qt::TopDockWidgetArea, m_itemBarDock);
    addDockWidget(Qt::BottomDockWidgetArea, m_screenSettingsDock);
    // The settings column runs down to the bottom edge; the item bar keeps the top right corner.
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    m_screenSettings->setScreen(m_screen);
    m_screenSettings->updateFromScreen();
    for (QDockWidget *dock : {m_settingsDock, m_itemBarDock, m_screenSettingsDock}) {
        dock->setTitleBarWidget(new QWidget);
        dock->setFeatures(QDockWidget::NoDockWidgetFeatures);
    }
}

void MainWindow::openFile(QString filePath)
{
    if (filePath.isEmpty())
        return;
    const LayoutFile::Document document = LayoutFile::read(filePath);
    if (!document.error.isNull()) {
        showError(tr("Error!"), document.error);
        return;
    }
    if (LayoutFile::hasTooManyItems(document.layout)) {
        showError(tr("Error!"), tr("The layout holds more than %1 items.").arg(LayoutFile::maximumItems));
        return;
    }
    m_screen->loadLayout(document.layout);
    m_currentPath = filePath;
    m_screenSettings->updateFromScreen();
}

void MainWindow::saveFile(QString filePath)
{
    const QJsonObject layout = m_screen->saveLayout();
    m_saveFailed = false;
    if (!filePath.isEmpty()) {
        const QString error = LayoutFile::write(filePath, layout);
        m_saveFailed = !error.isNull();
        if (m_saveFailed)
            showError(tr("Error"), error);
        else
            m_currentPath = filePath;
    }
    qDebug("saveFile");
}

void MainWindow::showError(const QString &title, const QString &text)
{
    QMessageBox::critical(this, title, text, QMessageBox::Ok);
}

QString MainWindow::askForLayoutToSave()
{
    return QFileDialog::getSaveFileName(this, tr("Input lay file path"), QString(), LayoutFile::filter());
}

void MainWindow::saveAsActionTriggered()
{
    saveFile(askForLayoutToSave());
}

void MainWindow::openActionTriggered()
{
    openFile(QFileDialog::getOpenFileName(this, tr("Select lay file"), QString(), LayoutFile::filter()));
    qDebug("openActionTriggered");
}

void MainWindow::newFileActionTriggered()
{
    const Answer answer = m_screen->isModified() ? askToSave(this) : Answer::None;
    // A board that could not be saved stays; one whose saving was called off goes.
    const bool isKept = answer == Answer::Cancel || (answer == Answer::Yes && !triggerSave());
    if (!isKept)
        openEmptyLayout();
    qDebug("newFileActionTriggered");
}

bool MainWindow::triggerSave()
{
    m_saveAction->trigger();
    return !m_saveFailed;
}

void MainWindow::openEmptyLayout()
{
    openFile(LayoutFile::emptyTemplate());
}

void MainWindow::saveActionTriggered()
{
    const bool hasFile = !m_currentPath.isEmpty() && m_currentPath != LayoutFile::emptyTemplate();
    saveFile(hasFile ? m_currentPath : askForLayoutToSave());
}

void MainWindow::exportActionTriggered()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Export"), QString(),
                                                      tr("Image file (*.png *.jpg *.jpeg *.bmp)"));
    if (!path.isEmpty())
        PictureFile::save(pictureOf(*m_screen), path);
    qDebug("exportActionTriggered");
}

void MainWindow::exitActionTriggered()
{
    if (m_screen->isModified()) {
        // "No" is the only button on purpose: leaving never saves.
        QMessageBox box(QMessageBox::Warning, tr("Layout edited"), tr("Save layout file?"), QMessageBox::No,
                        this);
        box.setDefaultButton(QMessageBox::Save);
        if (box.exec() == QMessageBox::Save)
            m_saveAction->trigger();
    }
    QCoreApplication::quit();
}

void MainWindow::getUpdatesActionTrggered()
{
    // Never deleted: its download and the boxes of that outlive this call.
    auto *updates = new UpdateMagaer;
    if (updates->check())
        updates->download();
}
