#pragma once

#include <QString>

#include <functional>

#include <sys/types.h>

// What a test may not do in its own process: other users, small disks, death.

/// Nobody in particular.
constexpr unsigned ordinaryUser = 65534;

/// How a function ended that ran in a process of its own, and what it answered.
struct Outcome {
    int status = 0; ///< as of waitpid(); -1 when the process could not be made
    QString answer;
};

/// All that is left to read, as text; closes the descriptor.
QString readAll(int descriptor);

/// Runs the function in a process of its own, so that limits, rights and death stay there.
Outcome runApart(const std::function<QString()> &function);

/// Runs the function apart and, when that is root's to choose, as the ordinary user, in the group and in no
/// other.
QString asOrdinaryUser(const std::function<QString()> &function, gid_t group = ordinaryUser);

/// From here on no file of this process grows beyond the size; what the signal of that does is @p whenFull.
void fillTheDisk(quint64 bytes, void (*whenFull)(int));

/// The disk of this process is full as long as this lives.
class FullDisk
{
public:
    explicit FullDisk(quint64 bytes);
    ~FullDisk();
    Q_DISABLE_COPY(FullDisk)

private:
    quint64 m_before;
    void (*m_handler)(int);
};
