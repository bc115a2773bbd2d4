#include "canvas/itemmenu.h"

#include <QApplication>
#include <QEvent>

namespace
{
/// Wider than any screen; the toolkit would lay out every letter beyond it as well.
constexpr int longestName = 2000; // characters

QString shortened(const QString &name)
{
    return name.size() > longestName ? name.left(longestName) + QChar(0x2026) : name;
}

/// A name as a menu shows it: a single ampersand would vanish as the mark of a shortcut key.
QString menuText(QString name)
{
    return name.replace(QLatin1Char('&'), QLatin1String("&&"));
}
} // namespace

ItemMenu::ItemMenu(QWidget *parent) : QMenu(parent)
{
    addAction(tr("Bring to Front"));
    addAction(tr("Send to Back"));
    addAction(tr("Duplicate Layer"));
    addAction(tr("Delete Layer"));
}

QAction *ItemMenu::entry(Entry entry) const
{
    return actions().at(entry);
}

void ItemMenu::run(const QString &itemName, bool isAboutSeveral, QPoint globalPosition)
{
    nameEntries(menuText(shortened(itemName)), isAboutSeveral);
    dress();
    exec(globalPosition);
}

void ItemMenu::nameEntries(const QString &itemName, bool isAboutSeveral)
{
    entry(Duplicate)->setText(isAboutSeveral ? tr("Duplicate Layers")
                                             : tr("Duplicate Layer \"%1\"").arg(itemName));
    entry(Delete)->setText(isAboutSeveral ? tr("Delete Layers") : tr("Delete Layer \"%1\"").arg(itemName));
}

void ItemMenu::dress()
{
    m_mayBeDressed = true;
    // The see-through sheet of the area around the canvas reaches down to here. The application's sheet,
    // given to the menu itself, has the last word.
    setStyleSheet(qApp->styleSheet());
}

bool ItemMenu::event(QEvent *event)
{
    if (event->type() == QEvent::Polish && !m_mayBeDressed)
        return true;
    return QMenu::event(event);
}
