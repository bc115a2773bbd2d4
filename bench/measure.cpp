#include "bench/measure.h"

#include <QEventLoop>
#include <QFile>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <memory>
#include <unistd.h>

namespace
{
double milliseconds(clockid_t clock)
{
    timespec now = {};
    clock_gettime(clock, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

/// CPU time of all threads but this one.
double cpuOfOtherThreads()
{
    const double ofThisThread = milliseconds(CLOCK_THREAD_CPUTIME_ID);
    return milliseconds(CLOCK_PROCESS_CPUTIME_ID) - ofThisThread;
}
} // namespace

double cpuMilliseconds()
{
    return milliseconds(CLOCK_PROCESS_CPUTIME_ID);
}

double cpuAtRest(int milliseconds)
{
    double used = 0;
    const std::unique_ptr<QThread> watcher(QThread::create([&used, milliseconds] {
        const double before = cpuOfOtherThreads();
        QThread::msleep(ulong(milliseconds));
        used = cpuOfOtherThreads() - before;
    }));
    QEventLoop loop;
    QObject::connect(watcher.get(), &QThread::finished, &loop, &QEventLoop::quit);
    watcher->start();
    loop.exec();
    watcher->wait();
    return used;
}

double medianOf(QVector<double> values)
{
    if (values.isEmpty())
        return 0;
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

double residentMemory()
{
    QFile pages(QStringLiteral("/proc/self/statm"));
    pages.open(QIODevice::ReadOnly);
    return pages.readAll().split(' ').value(1).toDouble() * double(sysconf(_SC_PAGESIZE)) / (1024 * 1024);
}

void settle(int milliseconds)
{
    // Twice, since the first round may post what the second one has to paint.
    for (int round = 0; round < 2; ++round) {
        QEventLoop loop;
        QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
        loop.exec();
    }
}

void reportThousand(const std::function<void(int)> &work)
{
    const auto cpuOfTurns = [&work](int turns) {
        const double before = cpuMilliseconds();
        for (int turn = 0; turn < turns; ++turn) {
            work(turn);
            settle(0);
        }
        return cpuMilliseconds() - before;
    };
    // What the toolkit keeps from the first times on is not growth.
    cpuOfTurns(20);
    report("first", cpuOfTurns(100));
    const double resident = residentMemory();
    cpuOfTurns(800);
    report("last", cpuOfTurns(100));
    report("grown", residentMemory() - resident);
}

void report(const char *name, double value)
{
    std::printf("%s %.6f\n", name, value);
}
