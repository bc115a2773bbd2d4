#pragma once

#include <QHash>
#include <QPointer>
#include <QWidget>

class QHBoxLayout;
class Screen;
class ScreenItem;
class ToolBarItem;

/// The strip of small buttons above the canvas. Each acts on the item selected last; "Delete" on all
/// selected.
class ToolBarForScreenItem : public QWidget
{
    Q_OBJECT

public:
    explicit ToolBarForScreenItem(QWidget *parent = nullptr);

public slots:
    /// The canvas that the buttons act on; with null they do nothing.
    void setScreen(Screen *screen);

private slots:
    void toolBarItemClicked(ToolBarItem *item);

private:
    using Command = void (*)(Screen &screen, ScreenItem *item);

    void buildButtons();
    ToolBarItem *addItem(const QString &icon, const QString &toolTip);
    void addCommand(const QString &icon, const QString &toolTip, Command command);

    QHBoxLayout *m_layout;
    QHash<ToolBarItem *, Command> m_commands;
    QPointer<Screen> m_screen;
};
