#pragma once

#include <QTest>

/// Ends the test function when the program under test was built without the bundled fonts: skipped on a
/// developer's machine, failed where CI is set. The test links boardwright_fonts_resource.
#define REQUIRE_BUNDLED_FONTS()                                                                              \
    do {                                                                                                     \
        if (BOARDWRIGHT_MISSING_FONTS == 0)                                                                  \
            break;                                                                                           \
        const char *const reason = "this build lacks bundled fonts, see the warning of the configure step";  \
        if (qEnvironmentVariableIsSet("CI"))                                                                 \
            QFAIL(reason);                                                                                   \
        QTest::qSkip(reason, __FILE__, __LINE__);                                                            \
        return;                                                                                              \
    } while (false)
