#include "tests/app/x11/pointer.h"

#include <QProcess>
#include <QTest>

namespace
{
constexpr int patience = 30000; // milliseconds
constexpr int dragSteps = 4;

QStringList moveTo(QPoint position)
{
    return {"mousemove", QString::number(position.x()), QString::number(position.y())};
}
} // namespace

bool xdotool(const QStringList &arguments, QString *output)
{
    // A key that opens a dialog may still be held by its own tool when the dialog gets its answer.
    static int running = 0;
    if (!QTest::qWaitFor([] { return running == 0; }, patience))
        return false;
    QProcess process;
    QObject::connect(&process, &QProcess::stateChanged, [](QProcess::ProcessState state) {
        if (state != QProcess::Running)
            running += state == QProcess::Starting ? 1 : -1;
    });
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start("xdotool", arguments);
    // Events are handled meanwhile: the tool's events are for this very process.
    const bool ended =
        QTest::qWaitFor([&process] { return process.state() == QProcess::NotRunning; }, patience);
    if (output)
        *output = QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    return ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

bool movePointer(QPoint globalPosition)
{
    return xdotool(moveTo(globalPosition));
}

bool pressButton()
{
    return xdotool({"mousedown", "1"});
}

bool releaseButton()
{
    return xdotool({"mouseup", "1"});
}

bool click(QPoint globalPosition)
{
    return movePointer(globalPosition) && xdotool({"click", "1"});
}

bool drag(QPoint from, QPoint to)
{
    bool isWell = movePointer(from) && pressButton();
    for (int step = 1; step <= dragSteps; ++step)
        isWell = isWell && movePointer(from + (to - from) * step / dragSteps);
    return releaseButton() && isWell;
}

bool pressKey(const QString &key)
{
    return xdotool({"key", key});
}

bool typeText(const QString &text)
{
    return xdotool({"type", text});
}
