#include "bench/measure.h"

#include <QEventLoop>
#include <QFile>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <unistd.h>

double cpuMilliseconds()
{
    timespec now = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
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
