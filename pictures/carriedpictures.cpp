#include "pictures/carriedpictures.h"

#include "pictures/mediafile.h"

#include <QDebug>
#include <QImage>
#include <QTextDocument>
#include <QUrl>

namespace
{
constexpr qint64 maximumBytes = 8 * 1024 * 1024; // of all pictures in one text, a full board among them

/// Not null: for a picture that is null the toolkit would look into files by itself.
QImage leftOut()
{
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

/// The bytes in a "data:" address; empty when they are not written in base 64.
QByteArray carriedBytes(const QUrl &address)
{
    const QByteArray data = address.path(QUrl::FullyDecoded).toLatin1();
    const int comma = data.indexOf(',');
    return comma > 0 && data.left(comma).endsWith(";base64") ? QByteArray::fromBase64(data.mid(comma + 1))
                                                             : QByteArray();
}

/// Of an address that carries megabytes, the beginning says which it is.
void tellOfLimit(const QString &item, const QUrl &address, const QString &reason)
{
    constexpr int beginning = 60;
    qDebug().nospace() << "Text " << item << " leaves out a picture, " << address.toString().left(beginning)
                       << ": " << qPrintable(reason);
}

QImage carriedImage(const QString &item, const QUrl &address, qint64 room)
{
    QString reason;
    QImage image = MediaFile::pictureIn(carriedBytes(address), room / MediaFile::bytesOf({1, 1}), &reason);
    if (!reason.isEmpty())
        tellOfLimit(item, address, reason);
    return image;
}

/// What the image takes, in its own format and in that of the screen.
qint64 bytesOf(const QImage &image)
{
    return qMax(qint64(image.sizeInBytes()), MediaFile::bytesOf(image.size()));
}
} // namespace

QVariant CarriedPictures::resource(int type, const QUrl &address, const QString &item)
{
    if (type != QTextDocument::ImageResource)
        return QByteArray("");
    const bool isCarried = address.scheme() == QLatin1String("data");
    const QImage image = isCarried ? carriedImage(item, address, maximumBytes - m_bytes) : QImage();
    if (image.isNull())
        return leftOut();
    if (!m_claim.take(m_bytes + bytesOf(image))) {
        tellOfLimit(item, address, QStringLiteral("all media together take too much memory"));
        return leftOut();
    }
    m_bytes += bytesOf(image);
    return image;
}

void CarriedPictures::clear()
{
    m_bytes = 0;
    m_claim.take(0);
}
