#include "model/filewriting.h"

#include <QFile>

// A disk that fills up takes a part in silence and tells why only when it is asked to take the rest.
bool FileWriting::writeAll(QFileDevice &file, const QByteArray &bytes)
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

QString FileWriting::writeInPlace(const QString &filePath, const QByteArray &bytes)
{
    QFile file(filePath);
    if (!file.open(unbuffered) || !writeAll(file, bytes))
        return file.errorString();
    file.close();
    return file.error() == QFileDevice::NoError ? QString() : file.errorString();
}
