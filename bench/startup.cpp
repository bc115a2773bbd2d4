#include "bench/startup.h"

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QSet>
#include <QThread>

#include <csignal>
#include <ctime>
#include <sys/wait.h>

namespace
{
constexpr int timeLimit = 20000; // milliseconds
constexpr int quietTime = 200;   // milliseconds

/// Every editor has a menu bar or tools here once its window is drawn; letters alone bring this many colours.
constexpr int drawnColors = 6;

bool isDrawn()
{
    const QImage image = QGuiApplication::primaryScreen()->grabWindow(0, 0, 0, 960, 240).toImage();
    QSet<QRgb> colors;
    for (int y = 0; y < image.height() && colors.size() < drawnColors; ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x)
            colors.insert(line[x]);
    }
    return colors.size() >= drawnColors;
}

bool waitForDrawn(bool drawn, const QElapsedTimer &clock)
{
    while (isDrawn() != drawn) {
        if (clock.elapsed() > timeLimit)
            return false;
        QThread::msleep(1);
    }
    return true;
}

double cpuOfProcess(pid_t process)
{
    clockid_t clock = 0;
    timespec used = {};
    if (clock_getcpuclockid(process, &clock) == 0)
        clock_gettime(clock, &used);
    return double(used.tv_sec) * 1e3 + double(used.tv_nsec) / 1e6;
}

/// CPU milliseconds used once no more than a trifle is added for a while.
double cpuWhenQuiet(pid_t process)
{
    double used = cpuOfProcess(process);
    for (int waited = 0; waited < timeLimit; waited += quietTime) {
        QThread::msleep(quietTime);
        const double now = cpuOfProcess(process);
        if (now - used < 1)
            return now;
        used = now;
    }
    return used;
}

double peakOfProcess(pid_t process)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(process));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).replace("kB", "").trimmed().toDouble() / 1024;
    }
    return 0;
}
} // namespace

Sample measureStart(const Command &command)
{
    QElapsedTimer clock;
    clock.start();
    if (!waitForDrawn(false, clock))
        return {};
    clock.restart();
    const pid_t child = startChild(command, -1);
    if (child < 0)
        return {};
    const bool drawn = waitForDrawn(true, clock);
    const double time = double(clock.nsecsElapsed()) / 1e6;
    const double cpu = cpuWhenQuiet(child);
    const double peak = peakOfProcess(child);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    if (!drawn)
        return {};
    return {
        {QStringLiteral("drawn"), time}, {QStringLiteral("process"), cpu}, {QStringLiteral("peak"), peak}};
}
