#pragma once

#include "bench/rows.h"

/// Takes every row in every round that it asks for, one after the other, and prints the medians with the
/// goals beside them. False when a row has no value at all or misses its goal.
bool measureAndPrint(const QVector<Row> &rows, int rounds);
