#pragma once

#include "app/startup.h"

#include <QImage>
#include <QString>
#include <QStringList>

/// A board as an editor of its own shows and exports it. An environment in which it starts stands for a
/// desktop.
namespace ExportProcess
{
/// What the editor makes of a board.
struct Result {
    QImage first;  ///< the exported picture
    QImage second; ///< the picture when it is exported once more
    QImage window; ///< the canvas as it is seen, without the marks of editing
    QString lines; ///< where the lines of all texts begin
    QString log;   ///< what the editor said, when there are no pictures
};

/// Starts this program anew with these variables ("NAME=value") and waits for what it makes of the layout.
Result run(const QString &layout, const QStringList &variables);

/// True in the program that was started so.
bool isStarted(int argc, char **argv);

/// The editor's part, instead of main's; answers the exit code.
int exportBoard(int argc, char **argv);
} // namespace ExportProcess

/// The main function of a test program that can be started as an editor, too.
#define BOARDWRIGHT_EXPORT_TEST_MAIN(Test)                                                                   \
    int main(int argc, char **argv)                                                                          \
    {                                                                                                        \
        if (ExportProcess::isStarted(argc, argv))                                                            \
            return ExportProcess::exportBoard(argc, argv);                                                   \
        prepareStart();                                                                                      \
        QApplication application(argc, argv);                                                                \
        Test test;                                                                                           \
        return runStrictly(test, argc, argv);                                                                \
    }
