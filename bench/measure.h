#pragma once

#include <QVector>

#include <functional>

/// CPU time that this process has used so far, in milliseconds.
double cpuMilliseconds();

/// CPU milliseconds that this process uses by itself while nothing is asked of it for so long. A thread that
/// does not count itself watches: after seconds of rest to wake up alone takes some milliseconds.
double cpuAtRest(int milliseconds);

/// The middle value; 0 of no values.
double medianOf(QVector<double> values);

/// Memory of this process that is resident, in MiB.
double residentMemory();

/// Runs the event loop until everything posted is delivered and painted: as long as nothing is waited for,
/// the shortest wait does.
void settle(int milliseconds = 30);

/// Does something a thousand times, each time to painted: prints "first" and "last", the CPU milliseconds of
/// the first hundred and of the last, and "grown", the resident MiB of the last hundred beyond the first.
void reportThousand(const std::function<void(int turn)> &work);

/// Prints "name value" for boardwright-bench to read.
void report(const char *name, double value);

/// CPU milliseconds that the work takes, the painting that it causes included.
template <typename Work>
double cpuOf(Work work, int milliseconds = 30)
{
    const double before = cpuMilliseconds();
    work();
    settle(milliseconds);
    return cpuMilliseconds() - before;
}

/// CPU milliseconds, the median of many turns, that the work takes to painted when it is undone after each.
template <typename Work, typename Undo>
double cpuOfUndone(int turns, Work work, Undo undo)
{
    QVector<double> times;
    for (int turn = 0; turn < turns; ++turn) {
        times.append(cpuOf(work, 0));
        undo();
        settle(0);
    }
    return medianOf(times);
}

/// CPU milliseconds of one of many synchronous repetitions; the work is told the number of its turn.
template <typename Work>
double cpuPerTurn(int turns, Work work)
{
    work(0);
    work(1);
    const double before = cpuMilliseconds();
    for (int turn = 0; turn < turns; ++turn)
        work(turn);
    return (cpuMilliseconds() - before) / turns;
}
