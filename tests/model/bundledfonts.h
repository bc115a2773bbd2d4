#pragma once

#include "assets/fontsresource.h"

#include <QTest>

/// Ends the test function when the program under test was built without the bundled fonts: skipped on a
/// developer's machine, failed where CI is set.
#define REQUIRE_BUNDLED_FONTS()                                                                              \
    do {                                                                                                     \
        if (missingFontFiles() == 0)                                                                         \
            break;                                                                                           \
        const char *const reason = "this build lacks bundled fonts, see the warning of the configure step";  \
        if (qEnvironmentVariableIsSet("CI"))                                                                 \
            QFAIL(reason);                                                                                   \
        QTest::qSkip(reason, __FILE__, __LINE__);                                                            \
        return;                                                                                              \
    } while (false)
