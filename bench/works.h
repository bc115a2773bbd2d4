#pragma once

#include <QVector>

/// A piece of work that both programs do, each its own way. What the numbers mean is the work's business.
struct NamedWork {
    const char *name;
    void (*run)(int first, int second);
};

/// Runs the work that the program's first argument names with the two numbers behind it; a number that is
/// missing is 0. Answers the exit code: a failure when no work has that name.
int runWork(const QVector<NamedWork> &works);
