#pragma once

#include <QApplication>
#include <QString>
#include <QTest>

/// Runs a test object whose functions fail at any warning of the toolkit that was not announced.
int runStrictly(QObject &test, int argc, char **argv);

/// Announces one coming warning of the running test function that contains the text.
void expectWarning(const QString &part);

/// Lets all warnings that contain the text pass, however many come.
void tolerateWarnings(const QString &part);

/// The main function of a test program: a widget application, then the test object.
#define BOARDWRIGHT_TEST_MAIN(Test)                                                                          \
    int main(int argc, char **argv)                                                                          \
    {                                                                                                        \
        QApplication application(argc, argv);                                                                \
        Test test;                                                                                           \
        return runStrictly(test, argc, argv);                                                                \
    }
