#pragma once

#include <QByteArray>
#include <QString>

/// By what a file is known as the same, without being read: where it lies, its size and its times of change.
class FileStamp
{
public:
    explicit FileStamp(const QString &path);

    /// False for what can be the name of no file: the toolkit complains when it is asked.
    static bool isName(const QString &path) { return !path.isEmpty() && !path.contains(QChar(0)); }

    /// Equal for the same file while it is as it was. Null for what is no regular file.
    const QString &key() const { return m_key; }

    /// True for a file that was changed just now: it may change again within the same tick of its clock, so
    /// that only its fingerprint tells.
    bool isFresh() const { return m_isFresh; }

    /// Of the file's contents. Reads them all.
    QByteArray fingerprint() const;

private:
    QString m_path;
    QString m_key;
    qint64 m_size = 0;
    bool m_isFresh = false;
};
