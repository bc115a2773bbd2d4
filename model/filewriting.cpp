#include "model/filewriting.h"

#include "model/fileattributes.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace
{
using Attributes = std::optional<FileAttributes>;

/// A buffer would keep the reason of a failure from us.
constexpr QIODevice::OpenMode unbuffered = QIODevice::WriteOnly | QIODevice::Unbuffered;

/// The file that takes another one's place when it is committed. What it is to have besides its bytes comes
/// from FileAttributes: the toolkit would give it the mode of the old file while it is still in a group of
/// its own.
class Successor : public QSaveFile
{
public:
    using QSaveFile::QSaveFile;
    bool setPermissions(Permissions permissions) override
    {
        return FileAttributes::areTold() || QSaveFile::setPermissions(permissions);
    }
};

/// Into a file opened unbuffered; false, with the file's error set, when the bytes do not fit. A disk that
/// fills up takes a part in silence and tells why only when it is asked to take the rest.
bool writeAll(QFileDevice &file, const QByteArray &bytes)
{
    qint64 written = 0;
    while (written < bytes.size()) {
        const qint64 taken = file.write(bytes.constData() + written, bytes.size() - written);
        if (taken <= 0)
            return false;
        written += taken;
    }
    return true;
}

/// Some disks tell only now that they are full.
QString errorOfClosing(QFile &file)
{
    file.close();
    return file.error() == QFileDevice::NoError ? QString() : file.errorString();
}

QString truncateAndWrite(const QString &filePath, const QByteArray &bytes)
{
    QFile file(filePath);
    if (!file.open(unbuffered) || !writeAll(file, bytes))
        return file.errorString();
    return errorOfClosing(file);
}

/// Over what is there. What goes beyond it is written first: a full disk refuses that and has lost nothing
/// yet, while the rest lies where the file has room already.
QString writeOver(const QString &filePath, const QByteArray &bytes)
{
    QFile file(filePath);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return file.errorString();
    const int old = int(qMin<qint64>(file.size(), bytes.size()));
    if (!file.seek(old) || !writeAll(file, bytes.mid(old)) || !file.seek(0) ||
        !writeAll(file, bytes.left(old)))
        return file.errorString();
    return errorOfClosing(file);
}

/// Old bytes beyond the new ones are cut off last, so that only those before need to be kept.
QString overwrite(const QString &filePath, const QByteArray &bytes)
{
    QFile old(filePath);
    if (!old.open(QIODevice::ReadOnly))
        return truncateAndWrite(filePath, bytes);
    const qint64 oldSize = old.size();
    const QByteArray oldBytes = old.read(bytes.size());
    if (oldBytes.size() < qMin<qint64>(oldSize, bytes.size()))
        return old.errorString();
    old.close();
    QString error = writeOver(filePath, bytes);
    if (error.isNull() && !old.resize(bytes.size()))
        error = old.errorString();
    if (!error.isNull()) {
        old.resize(oldSize);
        writeOver(filePath, oldBytes);
    }
    return error;
}

/// Writing takes some bits from the mode; they are given back where the user may do so.
QString overwrite(const QString &filePath, const QByteArray &bytes, const Attributes &attributes)
{
    QString error = overwrite(filePath, bytes);
    QFile file(filePath);
    if (attributes && file.open(QIODevice::WriteOnly | QIODevice::Append))
        attributes->applyTo(file.handle());
    return error;
}

/// Answers as write() does, and nothing where no other file can take this one's place: the folder takes none,
/// the name leaves no room for a suffix, the old file has further names, or the new one cannot be made its
/// equal.
std::optional<QString> replace(const QString &filePath, const QByteArray &bytes, const Attributes &attributes)
{
    Successor file(filePath);
    if (!attributes || !attributes->isOfOneName() || !file.open(unbuffered) ||
        !attributes->applyTo(file.handle()))
        return {};
    if (!writeAll(file, bytes))
        return file.errorString();
    // Writing takes some bits from the mode.
    if (!attributes->applyTo(file.handle()) || !file.commit())
        return {};
    return QString();
}

QString writeRegular(const QString &filePath, const QByteArray &bytes, const Attributes &attributes)
{
    const std::optional<QString> outcome = replace(filePath, bytes, attributes);
    return outcome ? *outcome : overwrite(filePath, bytes, attributes);
}

/// True for a link to a file that some program has open, as /dev/stdout: the program goes on with this very
/// file.
bool leadsToAnOpenFile(const QString &filePath)
{
    constexpr int mostLinks = 40; // as many as the system follows
    QFileInfo step(filePath);
    for (int link = 0; link < mostLinks && step.isSymLink(); ++link) {
        if (step.dir().canonicalPath().startsWith(QLatin1String("/proc/")))
            return true;
        step.setFile(step.symLinkTarget());
    }
    return false;
}
} // namespace

QString FileWriting::write(const QString &filePath, const QByteArray &bytes)
{
    QFileInfo target(filePath);
    target.setCaching(false);
    const bool existed = target.exists();
    if (existed && !target.isFile())
        return truncateAndWrite(filePath, bytes);
    // Opening without truncating tells what a plain open for writing would, and harms nothing yet.
    QFile probe(filePath);
    if (!probe.open(QIODevice::WriteOnly | QIODevice::Append))
        return probe.errorString();
    const Attributes attributes = FileAttributes::of(probe.handle());
    probe.close();
    if (leadsToAnOpenFile(filePath))
        return overwrite(filePath, bytes, attributes);
    // Links are followed to their end: the file is replaced, not the link to it.
    const QString finalPath = target.canonicalFilePath();
    QString error = writeRegular(finalPath, bytes, attributes);
    if (!error.isNull() && !existed)
        QFile::remove(finalPath);
    return error;
}
