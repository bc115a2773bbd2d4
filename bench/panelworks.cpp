#include "bench/panelworks.h"

#include "bench/measure.h"
#include "bench/session.h"
#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "editors/panels/settingseditor.h"

#include <QCoreApplication>
#include <QDebug>
#include <QLineEdit>
#include <QSpinBox>

#include <algorithm>

namespace
{
constexpr QSize canvasSize(800, 400);

double cpuOfPanel(SettingsEditor &column, ScreenItem &item)
{
    return cpuOfUndone(
        40, [&] { column.setActiveItem(&item); }, [&] { column.setActiveItem(nullptr); });
}

QSpinBox *boxOf(const SettingsEditor &column, const QString &name)
{
    const auto boxes = column.findChildren<QSpinBox *>();
    const auto box = std::find_if(boxes.cbegin(), boxes.cend(), [&name](const QSpinBox *candidate) {
        return candidate->accessibleName() == name;
    });
    if (box == boxes.cend())
        qFatal("the panel has no such box");
    return *box;
}
} // namespace

void buildPanel(int items, int)
{
    Session session(items, canvasSize);
    session.open();
    settle();
    report("cpu", cpuOfPanel(session.column(), *session.screen().items().first()));
}

void switchItems(int items, int)
{
    Session session(items, canvasSize);
    session.open();
    settle();
    const auto showNext = [&session](int turn) {
        click(*session.screen().items().at(turn % 2));
    };
    showNext(1);
    settle();
    const int objects = session.column().findChildren<QObject *>().size();
    reportThousand(showNext);
    if (session.column().findChildren<QObject *>().size() != objects)
        qFatal("former panels are left");
    const auto *name = session.column().findChild<QLineEdit *>();
    if (name->text() != session.screen().items().at(1)->name())
        qFatal("the panel did not follow the clicks");
}

void editInSpinBox(int items, int)
{
    Session session(items, canvasSize);
    session.open();
    settle();
    ScreenItem &item = *session.screen().items().first();
    const double panel = cpuOfPanel(session.column(), item);
    session.column().setActiveItem(&item);
    settle();
    QSpinBox *box = boxOf(session.column(), QStringLiteral("X"));
    if (item.visibleRegion().isEmpty())
        qFatal("the item is out of sight");
    const int start = item.x();
    report("cpu", cpuPerTurn(200, [&](int turn) {
               box->stepBy(turn % 2 ? -1 : 1);
               QCoreApplication::processEvents();
               if ((item.x() == start) != (turn % 2 == 1))
                   qFatal("the item did not follow the box");
           }));
    const double repaint = cpuPerTurn(200, [&](int) { item.repaint(); });
    report("repaint", repaint);
    report("panel", panel);
    report("allowed", repaint + panel / 10);
}
