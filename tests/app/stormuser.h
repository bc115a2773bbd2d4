#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QPoint>
#include <QRandomGenerator>
#include <QRect>
#include <QStringList>

class MainWindow;
class QWidget;
class Screen;
class ScreenItem;

/// One who works with the window without any plan. Equal start numbers lead to equal actions. The events go
/// through the window, as those of a mouse and a keyboard do.
class StormUser
{
public:
    /// The window is shown and active, and larger than any board that this user makes.
    StormUser(MainWindow &window, quint32 start);

    /// Does one action and lets the window come to rest.
    void act();

    /// What was done last, oldest first.
    QStringList lastActions() const { return m_log; }

private:
    struct Action;
    static const QList<Action> &actions();

    int below(int limit) { return m_random.bounded(limit); }
    bool chance(int percent) { return below(100) < percent; }
    int someLength() { return 100 + below(400); }
    QRect someGeometry();
    QPoint somePoint();
    QPoint somePointOf(const ScreenItem *item);
    ScreenItem *someItem();
    ScreenItem *someText();
    QString someType();
    QJsonObject someObject();
    QJsonArray someObjects(int atMost);

    void note(const QString &action);
    void press(QPoint position, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = {});
    void release(QPoint position, Qt::MouseButton button = Qt::LeftButton);
    void hover(QPoint position);
    void dragTo(QPoint from, QPoint to);
    void strike(int key, Qt::KeyboardModifiers modifiers = {});
    void editWith(QWidget *editor);

    // The actions.
    void click();
    void controlClick();
    void clickBeside();
    void drag();
    void dragHandle();
    void strikeArrow();
    void strikeDelete();
    void strikeAnyKey();
    void selectAll();
    void copy();
    void cut();
    void paste();
    void pasteForeign();
    void callCommand();
    void useContextMenu();
    void useLayerToolBar();
    void addFromItemBar();
    void drop();
    void typeIntoText();
    void editInColumn();
    void editScreen();
    void loadSavedBoard();
    void loadOtherBoard();
    void useInRenderMode();
    void thinOut();

    MainWindow &m_window;
    Screen &m_screen;
    QRandomGenerator m_random;
    QStringList m_log;
};
