#pragma once

#include <QHash>
#include <QStringList>

#include <sys/types.h>

/// What one run of a program has shown: its own "name value" lines and, under these names, the whole process:
/// "wall" and "process" (CPU) in milliseconds, "peak" (memory) in MiB. Empty when it failed.
using Sample = QHash<QString, double>;

/// A program with its arguments.
struct Command {
    QString program;
    QStringList arguments;
    QStringList environment; ///< additions, as NAME=value
};

/// Starts the command with its standard error thrown away, its standard output at the descriptor (or thrown
/// away for -1). Answers the process id, or -1.
pid_t startChild(const Command &command, int output);

/// Runs the command to its end.
Sample runChild(const Command &command);
