#pragma once

#include <QVector>

/// CPU time that this process has used so far, in milliseconds.
double cpuMilliseconds();

/// The middle value; 0 of no values.
double medianOf(QVector<double> values);

/// Runs the event loop until everything posted is delivered and painted.
void settle();

/// Prints "name value" for boardwright-bench to read.
void report(const char *name, double value);

/// CPU milliseconds that the work takes, the painting that it causes included.
template <typename Work>
double cpuOf(Work work)
{
    const double before = cpuMilliseconds();
    work();
    settle();
    return cpuMilliseconds() - before;
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
