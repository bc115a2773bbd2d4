#pragma once

#include "tests/support/files.h"

#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

/// Keeps what this process writes to standard error while it lives in a file instead.
class StandardError
{
public:
    explicit StandardError(const QString &path) : m_path(path), m_terminal(::dup(STDERR_FILENO))
    {
        const int file = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        ::dup2(file, STDERR_FILENO);
        ::close(file);
    }
    ~StandardError()
    {
        std::fflush(stderr);
        ::dup2(m_terminal, STDERR_FILENO);
        ::close(m_terminal);
    }
    Q_DISABLE_COPY(StandardError)

    QByteArray text() const { return readFile(m_path); }

private:
    const QString m_path;
    const int m_terminal;
};

/// While it lives no file of this process grows beyond the size.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes) : m_whenFull(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit = {bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_whenFull);
    }
    Q_DISABLE_COPY(FullDisk)

private:
    rlimit m_before = {};
    void (*const m_whenFull)(int);
};
