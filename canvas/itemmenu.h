#pragma once

#include <QMenu>

/// The context menu of an item. Every item has its menu from the start, but few are ever opened: only then
/// does the style sheet dress it.
class ItemMenu : public QMenu
{
    Q_OBJECT

public:
    enum Entry { BringToFront, SendToBack, Duplicate, Delete };

    explicit ItemMenu(QWidget *parent);

    /// The action of an entry; the menu owns it.
    QAction *entry(Entry entry) const;

    /// Names the last two entries after the item, or after nobody when they are about several items, and runs
    /// the menu at the position.
    void run(const QString &itemName, bool isAboutSeveral, QPoint globalPosition);

protected:
    bool event(QEvent *event) override;

private:
    void nameEntries(const QString &itemName, bool isAboutSeveral);
    void dress();

    bool m_mayBeDressed = false;
};
