#include "toolbars/toolbarforscreenitem.h"

#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "toolbars/placement.h"
#include "toolbars/toolbaritem.h"

#include <QHBoxLayout>

namespace
{
void deleteSelected(Screen &screen, ScreenItem * /*item*/)
{
    screen.deleteSelection();
}

template <void (Screen::*move)(ScreenItem *)>
void restack(Screen &screen, ScreenItem *item)
{
    (screen.*move)(item);
}

template <QRect (*place)(const QRect &, QSize)>
void put(Screen &screen, ScreenItem *item)
{
    const QRect geometry = place(item->geometry(), screen.size());
    // In this order: the frame cuts a new size by where it lies then.
    item->move(geometry.topLeft());
    item->resize(geometry.size());
}
} // namespace

ToolBarForScreenItem::ToolBarForScreenItem(QWidget *parent) : QWidget(parent), m_layout(new QHBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addItem(new QSpacerItem(2, 30, QSizePolicy::Expanding));
    setFixedHeight(30);
    buildButtons();
}

void ToolBarForScreenItem::buildButtons()
{
    addCommand(QStringLiteral("delete"), tr("Delete"), deleteSelected);
    addItem(QStringLiteral("___"), QString());
    addCommand(QStringLiteral("moveUp"), tr("Move Layer Up"), restack<&Screen::moveLayerUp>);
    addCommand(QStringLiteral("moveDown"), tr("Move Layer Down"), restack<&Screen::moveLayerDown>);
    addCommand(QStringLiteral("moveToTop"), tr("Move to the Top Layer"), restack<&Screen::bringToFront>);
    // The spelling of this image and of three below is meant.
    addCommand(QStringLiteral("movToBottom"), tr("Move to the Bottom Layer"), restack<&Screen::sendToBack>);
    addCommand(QStringLiteral("fullScreen"), tr("Fill the Screen"), put<Placement::filled>);
    addCommand(QStringLiteral("horisontalFull"), tr("Fit the Screen Horizontally"),
               put<Placement::fittedHorizontally>);
    addCommand(QStringLiteral("verticallFull"), tr("Fit the Screen Vertically"),
               put<Placement::fittedVertically>);
    addCommand(QStringLiteral("alignTop"), tr("Align Top"), put<Placement::alignedTop>);
    addCommand(QStringLiteral("alignVerticalCenter"), tr("Center Vertically"),
               put<Placement::centeredVertically>);
    addCommand(QStringLiteral("alignBottom"), tr("Align Bottom"), put<Placement::alignedBottom>);
    addCommand(QStringLiteral("alignLeft"), tr("Align Left"), put<Placement::alignedLeft>);
    addCommand(QStringLiteral("alignHorisontalCenter"), tr("Center Horizontally"),
               put<Placement::centeredHorizontally>);
    addCommand(QStringLiteral("alignRight"), tr("Align Right"), put<Placement::alignedRight>);
}

ToolBarItem *ToolBarForScreenItem::addItem(const QString &icon, const QString &toolTip)
{
    const QString path = QStringLiteral(":/assets/interface/layerToolBarSettings/%1.png").arg(icon);
    auto *item = new ToolBarItem(path, toolTip, this);
    m_layout->insertWidget(m_layout->count() - 1, item);
    return item;
}

void ToolBarForScreenItem::addCommand(const QString &icon, const QString &toolTip, Command command)
{
    ToolBarItem *item = addItem(icon, toolTip);
    m_commands.insert(item, command);
    connect(item, &ToolBarItem::clicked, this, &ToolBarForScreenItem::toolBarItemClicked);
}

void ToolBarForScreenItem::setScreen(Screen *screen)
{
    m_screen = screen;
}

void ToolBarForScreenItem::toolBarItemClicked(ToolBarItem *item)
{
    const Command command = m_commands.value(item);
    if (command && m_screen && !m_screen->selection().isEmpty())
        command(*m_screen, m_screen->selection().constLast());
}
