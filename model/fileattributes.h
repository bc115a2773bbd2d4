#pragma once

#include <QByteArray>
#include <QMap>

#include <optional>

/// What a file has besides its bytes: owner, group, mode, access list and extended attributes. Linux alone
/// lets us read these. Elsewhere every file counts as having none and one name.
class FileAttributes
{
public:
    /// Of the open file with this descriptor; nothing when they cannot be told in full.
    static std::optional<FileAttributes> of(int descriptor);

    /// True where applyTo() sees to all of these; elsewhere they are left to the toolkit.
    static bool areTold();

    /// True for a file that one name in one folder leads to, so that a file under that name is this file.
    bool isOfOneName() const { return m_names == 1; }

    /// Gives the open file these attributes and nobody more rights on the way. False when it does not have
    /// exactly these in the end. The number of its names is nothing that can be given.
    bool applyTo(int descriptor) const;

private:
    bool isLike(const FileAttributes &other) const;
    bool setOwner(int descriptor, const FileAttributes &present) const;
    bool setExtended(int descriptor, const FileAttributes &present) const;
    bool setMode(int descriptor) const;

    quint64 m_names = 1;
    uint m_owner = 0;
    uint m_group = 0;
    uint m_mode = 0;
    QMap<QByteArray, QByteArray> m_extended; ///< the access list is one of them
};
