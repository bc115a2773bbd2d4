#include "pictures/picturefile.h"

#include "model/filewriting.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImageWriter>

namespace
{
QString text(const char *sourceText)
{
    return QCoreApplication::translate("PictureFile", sourceText);
}

QByteArray bytesOf(const QImage &picture, const QByteArray &format)
{
    QBuffer bytes;
    return picture.save(&bytes, format.constData()) ? bytes.data() : QByteArray();
}
} // namespace

QString PictureFile::save(const QImage &picture, const QString &path, Writer pngWriter)
{
    const QByteArray format = QFileInfo(path).suffix().toLatin1().toLower();
    if (!QImageWriter::supportedImageFormats().contains(format))
        return text("a picture's name ends in .png, .jpg, .jpeg or .bmp.");
    const QByteArray bytes = pngWriter && format == "png" ? pngWriter(picture) : bytesOf(picture, format);
    return bytes.isEmpty() ? text("no picture of this kind can hold the board.")
                           : FileWriting::write(path, bytes);
}
