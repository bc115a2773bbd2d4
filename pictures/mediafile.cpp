#include "pictures/mediafile.h"

#include "pictures/filecache.h"
#include "pictures/mediaplan.h"
#include "pictures/memoryclaim.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace
{
/// A movie's file, for all who play it.
struct MovieFile {
    MediaPlan plan;
    MemoryClaim claim; // of the bytes
};

using SharedMovie = std::shared_ptr<const MovieFile>;

/// Lets a movie read its file, which stays as long as the movie.
class MovieBuffer : public QBuffer
{
public:
    MovieBuffer(SharedMovie file, QObject *parent) : QBuffer(parent), m_file(std::move(file))
    {
        setData(m_file->plan.bytes);
        open(ReadOnly);
    }

    const MediaPlan &plan() const { return m_file->plan; }

private:
    SharedMovie m_file;
};

void note(QString *reason, const QString &text)
{
    if (reason && !text.isEmpty())
        *reason = text;
}

/// Why a file is not to be opened; empty for those that may be read, and for those that are none.
QString refusalOf(const QFileInfo &info)
{
    if (info.exists() && !info.isFile() && !info.isDir())
        return QStringLiteral("it is no regular file");
    if (info.size() > MediaFile::maximumBytes)
        return QStringLiteral("it has more than %1 bytes").arg(MediaFile::maximumBytes);
    if (info.size() > MemoryClaim::left())
        return QStringLiteral("its %1 bytes are more than all media have left").arg(info.size());
    return {};
}

/// The whole content of a regular file. Pipes and devices may never answer. Neither may those files of the
/// system that claim to be regular ones and empty.
QByteArray bytesIn(const QString &path, QString *reason)
{
    const QFileInfo info(FileStamp::isName(path) ? path : QString());
    const QString refusal = refusalOf(info);
    note(reason, refusal);
    QFile file(path);
    if (!refusal.isEmpty() || !info.isFile() || info.size() <= 0 || !file.open(QIODevice::ReadOnly))
        return {};
    // Memory for all that is asked for would be taken at once, whatever there is to read.
    return file.read(qMin(MediaFile::maximumBytes, file.size()));
}

/// Whether what is planned may be decoded now, so many bytes in all.
bool isAffordable(const MediaPlan &plan, qint64 bytes, QString *reason)
{
    note(reason, plan.refusal);
    if (!plan.isReadable())
        return false;
    if (bytes > MemoryClaim::left())
        note(reason, QStringLiteral("its %1 bytes are more than all media have left").arg(bytes));
    return bytes <= MemoryClaim::left();
}

QImage decoded(const MediaPlan &plan, QString *reason)
{
    if (!isAffordable(plan, plan.pictureBytes(), reason))
        return {};
    QBuffer buffer;
    buffer.setData(plan.bytes);
    buffer.open(QIODevice::ReadOnly);
    QImage picture = QImageReader(&buffer, plan.format).read();
    picture.setDevicePixelRatio(1);
    return picture;
}

QString suffixOf(const QString &path)
{
    return QFileInfo(path).suffix();
}

MediaPlan moviePlan(const QString &path, QString *reason)
{
    MediaPlan plan = MediaPlan::of(bytesIn(path, reason), MediaFile::maximumPictureArea, suffixOf(path));
    if (plan.isMovie && !MediaFile::isWithin(plan.size, MediaFile::maximumFrameArea))
        plan.refusal = QStringLiteral("its frames have more than %1 pixels").arg(MediaFile::maximumFrameArea);
    return plan;
}

SharedMovie readMovieFile(const QString &path, QString *reason)
{
    auto file = std::make_shared<MovieFile>();
    file->plan = moviePlan(path, reason);
    const bool isKept = isAffordable(file->plan, file->plan.bytes.size(), reason) &&
                        file->claim.take(file->plan.bytes.size());
    return isKept ? file : nullptr;
}

/// One for all who play the file at a time.
SharedMovie sharedMovie(const QString &path, QString *reason)
{
    static FileCache<MovieFile> movies;
    return movies.get(path, [reason](const QString &file) { return readMovieFile(file, reason); });
}

const MediaPlan &planOf(const QMovie &movie)
{
    return static_cast<const MovieBuffer *>(movie.device())->plan();
}

qint64 bytesBeside(const MediaPlan &plan)
{
    return plan.copies * plan.pictureBytes();
}

/// With a frame as it is shown, in the format of the screen.
qint64 bytesToPlay(const MediaPlan &plan)
{
    return qMax(plan.pictureBytes(), MediaFile::bytesOf(plan.size)) + bytesBeside(plan);
}
} // namespace

bool MediaFile::isWithin(QSize size, qint64 area)
{
    return qint64(size.width()) * size.height() <= area;
}

qint64 MediaFile::bytesOf(QSize size)
{
    return qint64(size.width()) * size.height() * 4;
}

QImage MediaFile::readPicture(const QString &path, QString *reason)
{
    return decoded(MediaPlan::of(bytesIn(path, reason), maximumPictureArea, suffixOf(path)), reason);
}

QImage MediaFile::pictureIn(const QByteArray &bytes, qint64 area, QString *reason)
{
    return decoded(MediaPlan::of(bytes, area), reason);
}

std::unique_ptr<QMovie> MediaFile::readMovie(const QString &path, QString *reason)
{
    SharedMovie file = sharedMovie(path, reason);
    if (!file || !isAffordable(file->plan, bytesToPlay(file->plan), reason))
        return nullptr;
    auto movie = std::make_unique<QMovie>();
    movie->setDevice(new MovieBuffer(std::move(file), movie.get()));
    movie->setFormat(planOf(*movie).format);
    movie->setCacheMode(QMovie::CacheNone);
    return movie->isValid() ? std::move(movie) : nullptr;
}

qint64 MediaFile::bytesBeside(const QMovie &movie)
{
    return ::bytesBeside(planOf(movie));
}
