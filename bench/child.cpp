#include "bench/child.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTextStream>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <vector>

namespace
{
constexpr int failedToStart = 127;

double milliseconds(const timeval &time)
{
    return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3;
}

[[noreturn]] void become(const Command &command, int output)
{
    const int nowhere = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    dup2(output < 0 ? nowhere : output, STDOUT_FILENO);
    dup2(nowhere, STDERR_FILENO);
    for (const QString &variable : command.environment)
        qputenv(qPrintable(variable.section(QLatin1Char('='), 0, 0)),
                variable.section(QLatin1Char('='), 1).toLocal8Bit());
    std::vector<QByteArray> words = {QFile::encodeName(command.program)};
    for (const QString &argument : command.arguments)
        words.push_back(QFile::encodeName(argument));
    std::vector<char *> pointers;
    pointers.reserve(words.size() + 1);
    for (QByteArray &word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    execvp(pointers.front(), pointers.data());
    _exit(failedToStart);
}

void readReport(QTextStream &stream, Sample &sample)
{
    QString name;
    double value = 0;
    for (stream >> name >> value; !name.isEmpty(); stream >> name >> value)
        sample.insert(name, value);
}
} // namespace

pid_t startChild(const Command &command, int output)
{
    const pid_t child = fork();
    if (child == 0)
        become(command, output);
    return child;
}

Sample runChild(const Command &command)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        return {};
    QElapsedTimer clock;
    clock.start();
    const pid_t child = startChild(command, ends[1]);
    close(ends[1]);
    QFile output;
    output.open(ends[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    QTextStream report(output.readAll());
    int status = 0;
    rusage usage = {};
    if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0)
        return {};
    Sample sample = {{QStringLiteral("wall"), double(clock.nsecsElapsed()) / 1e6},
                     {QStringLiteral("process"), milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime)},
                     {QStringLiteral("peak"), double(usage.ru_maxrss) / 1024}};
    readReport(report, sample);
    return sample;
}
