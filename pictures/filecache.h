#pragma once

#include "pictures/filestamp.h"

#include <QHash>

#include <memory>

/// What was made of files, once for all who use it at a time. The cache itself keeps nothing alive.
template <class Value>
class FileCache
{
public:
    using Shared = std::shared_ptr<const Value>;

    /// What was made of the file and is still in use; of a file that changed since, and of any other, what
    /// make(path) returns, which may be null.
    template <class Make>
    Shared get(const QString &path, Make make)
    {
        const FileStamp stamp(path);
        if (Shared known = find(stamp))
            return known;
        // Before it is read: what changes meanwhile is then taken for changed.
        const QByteArray fingerprint = stamp.isFresh() ? stamp.fingerprint() : QByteArray();
        Shared made = make(path);
        if (made && !stamp.key().isNull())
            insert(stamp.key(), {made, fingerprint});
        return made;
    }

private:
    struct Entry {
        std::weak_ptr<const Value> value;
        QByteArray fingerprint; // empty when the stamp alone is proof enough
    };

    Shared find(const FileStamp &stamp) const
    {
        const Entry entry = m_entries.value(stamp.key());
        Shared value = entry.value.lock();
        if (value && !entry.fingerprint.isEmpty() && entry.fingerprint != stamp.fingerprint())
            return nullptr;
        return value;
    }

    void insert(const QString &key, const Entry &entry)
    {
        if (m_entries.size() >= m_sizeToSweep) {
            sweep();
            m_sizeToSweep = 2 * m_entries.size() + smallSize;
        }
        m_entries.insert(key, entry);
    }

    void sweep()
    {
        for (auto entry = m_entries.begin(); entry != m_entries.end();) {
            if (entry->value.expired())
                entry = m_entries.erase(entry);
            else
                ++entry;
        }
    }

    static constexpr int smallSize = 16;
    QHash<QString, Entry> m_entries;
    int m_sizeToSweep = smallSize;
};
