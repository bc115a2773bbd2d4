#pragma once

#include "tests/support/files.h"
#include "tests/support/gif.h"

#include <QImage>
#include <QTemporaryDir>

/// A temporary folder that fills with pictures and movies. A path is empty when its file cannot be written.
class MediaFolder
{
public:
    QString path(const QString &name) const { return m_folder.filePath(name); }

    QString file(const QString &name, const QByteArray &bytes) const
    {
        return writeFile(path(name), bytes) ? path(name) : QString();
    }

    QString picture(const QImage &image, const QString &name = "picture.png") const
    {
        return image.save(path(name)) ? path(name) : QString();
    }

    QString picture(QSize size, const QString &name = "picture.png") const
    {
        return picture(chequered(size), name);
    }

    QString movie(const Gif &gif, const QString &name = "movie.gif") const { return file(name, gif.bytes()); }

    QString movie(QSize size, const QString &name = "movie.gif") const
    {
        return movie(Gif{size, {Qt::red, Qt::green, Qt::blue}}, name);
    }

    /// No two neighbouring pixels of it are alike.
    static QImage chequered(QSize size)
    {
        QImage image(size, QImage::Format_RGB32);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x)
                image.setPixel(x, y, qRgb(x * 7 % 256, y * 11 % 256, (x + y) % 2 * 255));
        }
        return image;
    }

private:
    QTemporaryDir m_folder;
};
