#pragma once

#include "bench/child.h"

/// Starts an editor on the X display that this program is connected to, waits until it has drawn its window
/// and is quiet, and ends it. Answers "drawn" (milliseconds from the start of the process), "process" and
/// "peak".
Sample measureStart(const Command &command);
