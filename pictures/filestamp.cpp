#include "pictures/filestamp.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>

namespace
{
constexpr qint64 tick = 2000; // ms, of the coarsest clocks of file systems

constexpr qint64 pieceBytes = 1024 * 1024;
} // namespace

FileStamp::FileStamp(const QString &path) : m_path(path)
{
    const QFileInfo info(isName(path) ? path : QString());
    if (!info.isFile())
        return;
    m_size = info.size();
    const qint64 changed = info.lastModified().toMSecsSinceEpoch();
    // A file that takes another's place may have an earlier time of its own.
    const qint64 placed = info.metadataChangeTime().toMSecsSinceEpoch();
    m_key = QStringLiteral("%1:%2:%3:").arg(m_size).arg(changed).arg(placed) + info.canonicalFilePath();
    m_isFresh = qMax(changed, placed) > QDateTime::currentMSecsSinceEpoch() - tick;
}

QByteArray FileStamp::fingerprint() const
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (qint64 left = m_size; left > 0; left -= pieceBytes)
        hash.addData(file.read(qMin(left, pieceBytes)));
    return hash.result();
}
