#pragma once

#include <QProcessEnvironment>

/// The environment that the user gave this program, for programs started from here. The first call notes it:
/// main makes it before it sets a variable of its own.
const QProcessEnvironment &startEnvironment();
