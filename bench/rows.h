#pragma once

#include "bench/child.h"

#include <QVector>

/// One value of one run of one command.
struct Probe {
    enum class Kind { None, Run, Start };

    Kind kind = Kind::None;
    Command command;
    QString key;
};

/// One line of the table: two probes that are compared in every round, and the most that may come out.
struct Row {
    enum class Measure { Ratio, Growth, Value };

    int goal;
    QString work;
    Probe probe;
    Probe reference; ///< Growth: the same work at the smaller size; Value: none
    Measure measure;
    double limit;    ///< 0: no goal, for information
    double span = 0; ///< Growth: how many times larger the work is
    int rounds = 0;  ///< at most so many rounds, for work that takes long; 0: no limit
};

/// Every line, in the order of the goals. The programs lie in the folder of this one; the layouts they read
/// are written into the work folder.
QVector<Row> benchRows(const QString &programs, const QString &workFolder);
