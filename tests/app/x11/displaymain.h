#pragma once

#include "app/startup.h"
#include "tests/support/strictmain.h"

/// The main function of a test program on a real display: it starts as the editor does.
#define BOARDWRIGHT_DISPLAY_TEST_MAIN(Test)                                                                  \
    int main(int argc, char **argv)                                                                          \
    {                                                                                                        \
        prepareStart();                                                                                      \
        QApplication application(argc, argv);                                                                \
        Test test;                                                                                           \
        return runStrictly(test, argc, argv);                                                                \
    }
