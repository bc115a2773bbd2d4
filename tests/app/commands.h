#pragma once

#include "app/mainwindow.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

/// The menu of this title, null when there is none.
inline QMenu *menuOf(const MainWindow &window, const QString &title)
{
    const QList<QAction *> menus = window.menuBar()->actions();
    for (const QAction *menu : menus) {
        if (menu->text() == title)
            return menu->menu();
    }
    return nullptr;
}

/// The menu entry of this exact text, null when there is none.
inline QAction *commandOf(const MainWindow &window, const QString &text)
{
    for (const QMenu *menu : {menuOf(window, "File"), menuOf(window, "Help")}) {
        const QList<QAction *> entries = menu ? menu->actions() : QList<QAction *>();
        for (QAction *entry : entries) {
            if (entry->text() == text)
                return entry;
        }
    }
    return nullptr;
}
