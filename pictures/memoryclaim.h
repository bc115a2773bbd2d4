#pragma once

#include <QtGlobal>

/// A part of the memory that all pictures and movies may hold together. It is given back when the claim goes.
class MemoryClaim
{
public:
    /// What all claims together may take, in bytes.
    static constexpr qint64 maximum = qint64(2) * 1024 * 1024 * 1024;

    MemoryClaim() = default;
    ~MemoryClaim();
    Q_DISABLE_COPY(MemoryClaim)

    /// What is left for further claims, in bytes.
    static qint64 left() { return maximum - s_taken; }

    /// Takes so many bytes in place of those that this claim had. False, and nothing changes, when too few
    /// are left.
    bool take(qint64 bytes);

private:
    static qint64 s_taken; // by all claims

    qint64 m_bytes = 0;
};
