#include "toolbars/itemtypesdragbar.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>

namespace
{
constexpr QSize buttonSize(50, 50);

/// Keeps its size: style sheets set a least height whenever they dress a button.
class ItemButton : public QPushButton
{
public:
    using QPushButton::QPushButton;

protected:
    bool event(QEvent *event) override
    {
        const bool isHandled = QPushButton::event(event);
        if (event->type() == QEvent::Polish || event->type() == QEvent::StyleChange)
            setFixedSize(buttonSize);
        return isHandled;
    }
};
} // namespace

ItemTypesDragBar::ItemTypesDragBar(QWidget *parent) : QWidget(parent), m_layout(new QHBoxLayout(this))
{
    setAcceptDrops(true);
    m_layout->addItem(new QSpacerItem(10, 50, QSizePolicy::Expanding));
}

void ItemTypesDragBar::addItemTypes(const QVector<QPair<QString, QString>> &types)
{
    for (const QPair<QString, QString> &type : types)
        addButton(type.first, type.second);
}

void ItemTypesDragBar::addButton(const QString &type, const QString &iconPath)
{
    auto *button = new ItemButton(QIcon(iconPath), QString(), this);
    button->setIconSize(QSize(45, 45));
    button->setFixedSize(buttonSize);
    // The style sheet takes the border away by this name.
    button->setObjectName(QStringLiteral("ItemType"));
    button->setAccessibleName(type);
    connect(button, &QPushButton::clicked, this, [this, type] { emit signalNewItem(type); });
    m_layout->insertWidget(m_layout->count() - 1, button);
}
