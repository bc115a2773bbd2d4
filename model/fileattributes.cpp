#include "model/fileattributes.h"

#ifdef Q_OS_LINUX

#include <QList>

#include <algorithm>
#include <cerrno>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace
{
constexpr uint modeBits = 07777;

/// Asks with room for nothing how much room it takes, then with that much. Another program may have added
/// something in between; that is a failure like any other.
template <typename Ask>
std::optional<QByteArray> answerOf(const Ask &ask)
{
    const ssize_t size = ask(nullptr, 0);
    if (size < 0)
        return {};
    QByteArray answer(int(size), '\0');
    const ssize_t taken = size == 0 ? 0 : ask(answer.data(), size_t(size));
    if (taken < 0)
        return {};
    answer.truncate(int(taken));
    return answer;
}

std::optional<QList<QByteArray>> namesOfExtended(int descriptor)
{
    const auto list = [descriptor](char *names, size_t size) {
        return ::flistxattr(descriptor, names, size);
    };
    const std::optional<QByteArray> names = answerOf(list);
    if (!names && errno != ENOTSUP)
        return {};
    QList<QByteArray> separate = names.value_or(QByteArray()).split('\0');
    separate.removeAll(QByteArray());
    return separate;
}

std::optional<QMap<QByteArray, QByteArray>> extendedOf(int descriptor)
{
    const std::optional<QList<QByteArray>> names = namesOfExtended(descriptor);
    if (!names)
        return {};
    QMap<QByteArray, QByteArray> extended;
    for (const QByteArray &name : *names) {
        const auto get = [descriptor, &name](char *value, size_t size) {
            return ::fgetxattr(descriptor, name.constData(), value, size);
        };
        const std::optional<QByteArray> value = answerOf(get);
        if (!value)
            return {};
        extended.insert(name, *value);
    }
    return extended;
}
} // namespace

bool FileAttributes::areTold()
{
    return true;
}

std::optional<FileAttributes> FileAttributes::of(int descriptor)
{
    struct stat status = {};
    const std::optional<QMap<QByteArray, QByteArray>> extended = extendedOf(descriptor);
    if (!extended || ::fstat(descriptor, &status) != 0)
        return {};
    FileAttributes attributes;
    attributes.m_names = status.st_nlink;
    attributes.m_owner = status.st_uid;
    attributes.m_group = status.st_gid;
    attributes.m_mode = status.st_mode & modeBits;
    attributes.m_extended = *extended;
    return attributes;
}

// The owner comes first, since a change of it takes bits from the mode; the mode comes last, since under an
// access list of the folder's it would let in those whom that list names.
bool FileAttributes::applyTo(int descriptor) const
{
    const std::optional<FileAttributes> present = of(descriptor);
    if (!present)
        return false;
    if (isLike(*present))
        return true;
    if (!setOwner(descriptor, *present) || !setExtended(descriptor, *present) || !setMode(descriptor))
        return false;
    // Bits that a user may not give are dropped in silence.
    const std::optional<FileAttributes> reached = of(descriptor);
    return reached && isLike(*reached);
}

bool FileAttributes::isLike(const FileAttributes &other) const
{
    return m_owner == other.m_owner && m_group == other.m_group && m_mode == other.m_mode &&
           m_extended == other.m_extended;
}

bool FileAttributes::setOwner(int descriptor, const FileAttributes &present) const
{
    return (m_owner == present.m_owner && m_group == present.m_group) ||
           ::fchown(descriptor, m_owner, m_group) == 0;
}

bool FileAttributes::setExtended(int descriptor, const FileAttributes &present) const
{
    const QList<QByteArray> others = present.m_extended.keys();
    const auto isGone = [this, descriptor](const QByteArray &name) {
        return m_extended.contains(name) || ::fremovexattr(descriptor, name.constData()) == 0;
    };
    if (!std::all_of(others.begin(), others.end(), isGone))
        return false;
    for (auto it = m_extended.begin(); it != m_extended.end(); ++it) {
        const bool isThere =
            present.m_extended.contains(it.key()) && present.m_extended[it.key()] == it.value();
        if (!isThere && ::fsetxattr(descriptor, it.key().constData(), it.value().constData(),
                                    size_t(it.value().size()), 0) != 0)
            return false;
    }
    return true;
}

bool FileAttributes::setMode(int descriptor) const
{
    return ::fchmod(descriptor, m_mode) == 0;
}

#else

bool FileAttributes::areTold()
{
    return false;
}

std::optional<FileAttributes> FileAttributes::of(int descriptor)
{
    Q_UNUSED(descriptor)
    return FileAttributes();
}

bool FileAttributes::applyTo(int descriptor) const
{
    Q_UNUSED(descriptor)
    return true;
}

#endif
