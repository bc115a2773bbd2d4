#include "tests/support/apart.h"

#include <QFile>

#include <csignal>

#include <grp.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
[[noreturn]] void runAndLeave(const std::function<QString()> &function, int descriptor)
{
    const QByteArray answer = function().toUtf8();
    const ssize_t written = ::write(descriptor, answer.constData(), static_cast<size_t>(answer.size()));
    ::_exit(written == answer.size() ? 0 : 1);
}

bool becomeOrdinary(gid_t group)
{
    return ::setgroups(0, nullptr) == 0 && ::setgid(group) == 0 && ::setuid(ordinaryUser) == 0;
}

/// Answers the limit that was there.
quint64 limitFiles(quint64 bytes)
{
    rlimit limit = {};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    const rlim_t before = limit.rlim_cur;
    limit.rlim_cur = bytes;
    ::setrlimit(RLIMIT_FSIZE, &limit);
    return before;
}
} // namespace

QString readAll(int descriptor)
{
    QFile pipe;
    if (!pipe.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return {};
    return QString::fromUtf8(pipe.readAll());
}

Outcome runApart(const std::function<QString()> &function)
{
    int ends[2] = {};
    if (::pipe(ends) != 0)
        return {-1, {}};
    const pid_t child = ::fork();
    if (child == 0)
        runAndLeave(function, ends[1]);
    ::close(ends[1]);
    Outcome outcome;
    outcome.answer = readAll(ends[0]);
    ::waitpid(child, &outcome.status, 0);
    return outcome;
}

// Rights are not asked of root: root becomes somebody else first.
QString asOrdinaryUser(const std::function<QString()> &function, gid_t group)
{
    const auto asSomebody = [&function, group] {
        return ::getuid() == 0 && !becomeOrdinary(group) ? QStringLiteral("cannot become an ordinary user")
                                                         : function();
    };
    return runApart(asSomebody).answer;
}

void fillTheDisk(quint64 bytes, void (*whenFull)(int))
{
    const rlimit noCore = {0, 0};
    ::setrlimit(RLIMIT_CORE, &noCore);
    limitFiles(bytes);
    std::signal(SIGXFSZ, whenFull);
}

FullDisk::FullDisk(quint64 bytes) : m_before(limitFiles(bytes)), m_handler(std::signal(SIGXFSZ, SIG_IGN)) {}

FullDisk::~FullDisk()
{
    limitFiles(m_before);
    std::signal(SIGXFSZ, m_handler);
}
