#include "pictures/mediaplan.h"

#include "pictures/gifframes.h"
#include "pictures/gunzip.h"
#include "pictures/iconentry.h"
#include "pictures/jpegscans.h"
#include "pictures/pngchunks.h"
#include "pictures/svgcontents.h"
#include "pictures/tifflayout.h"

#include <QBuffer>
#include <QImageReader>
#include <QPixelFormat>

#include <algorithm>
#include <array>

namespace
{
constexpr int maximumTextBytes = 64 * 1024 * 1024; // of a picture that is written in letters

/// The most bytes that the pictures in a drawing may have beside their pixels: texts unpack to a thousand
/// times as much.
constexpr qint64 maximumCarriedTexts = 64 * 1024;

constexpr QSize usualScreen(1000, 1000); // for drawings that have no size yet

constexpr qint64 bytesOfPixel = 4; // in the usual formats
constexpr int bitsOfByte = 8;

/// The bytes as a file that lies in memory.
class Bytes : public QBuffer
{
public:
    explicit Bytes(const QByteArray &bytes)
    {
        setData(bytes);
        open(ReadOnly);
    }
};

/// Such a file has no mark of its own, and the same beginning as a mouse pointer's.
bool isTarga(const QByteArray &bytes, const QString &suffix)
{
    if (suffix.compare(QLatin1String("tga"), Qt::CaseInsensitive) != 0)
        return false;
    Bytes file(bytes);
    QImageReader reader(&file, "tga");
    reader.setAutoDetectImageFormat(false);
    return reader.canRead();
}

QByteArray formatOf(const QByteArray &bytes, const QString &suffix)
{
    Bytes file(bytes);
    return isTarga(bytes, suffix) ? QByteArrayLiteral("tga") : QImageReader::imageFormat(&file);
}

QString noteOfArea(qint64 area)
{
    return QStringLiteral("it has more than %1 pixels").arg(area);
}

/// Looks into bytes whose format is known.
class Inspection
{
public:
    Inspection(MediaPlan &plan, qint64 area) : m_plan(plan), m_area(area) {}

    void run();

private:
    void readText();
    void readPng();
    void readJpeg();
    void readGif();
    void readIcon();
    void readTiff();
    void readPackedDrawing();
    void readDrawing();
    void addDrawingTime(double time);
    void addCarried(const QByteArray &picture);
    void askSize(QImageReader &reader);
    void askReader();
    void refuse(const QString &reason) { m_plan.refusal = reason; }

    MediaPlan &m_plan;
    qint64 m_area;
    qint64 m_carriedTexts = 0; // in bytes
};

struct Format {
    const char *name;
    void (Inspection::*read)();
};

void Inspection::run()
{
    using Look = Inspection;
    static constexpr std::array<Format, 18> formats = {{{"bmp", &Look::askReader},
                                                        {"cur", &Look::readIcon},
                                                        {"gif", &Look::readGif},
                                                        {"ico", &Look::readIcon},
                                                        {"jpeg", &Look::readJpeg},
                                                        {"pbm", &Look::readText},
                                                        {"pgm", &Look::readText},
                                                        {"png", &Look::readPng},
                                                        {"ppm", &Look::readText},
                                                        {"svg", &Look::readDrawing},
                                                        {"svgz", &Look::readPackedDrawing},
                                                        {"tga", &Look::askReader},
                                                        {"tif", &Look::readTiff},
                                                        {"tiff", &Look::readTiff},
                                                        {"wbmp", &Look::askReader},
                                                        {"webp", &Look::askReader},
                                                        {"xbm", &Look::readText},
                                                        {"xpm", &Look::readText}}};
    const auto *const format = std::find_if(
        formats.begin(), formats.end(), [this](const Format &known) { return m_plan.format == known.name; });
    if (format == formats.end())
        return refuse(QStringLiteral("the size of such pictures cannot be known beforehand"));
    (this->*format->read)();
    if (m_plan.refusal.isEmpty() && qint64(m_plan.size.width()) * m_plan.size.height() > m_area)
        refuse(noteOfArea(m_area));
}

/// Asks the toolkit, whose readers of most formats tell the truth.
void Inspection::askSize(QImageReader &reader)
{
    const QSize size = reader.size();
    // Bitmaps from the top have a negative height.
    m_plan.size = QSize(size.width(), qAbs(size.height()));
    m_plan.isMovie = reader.supportsAnimation() && reader.imageCount() > 1;
    m_plan.copies = reader.supportsAnimation() ? 1 : 0;
}

void Inspection::askReader()
{
    Bytes file(m_plan.bytes);
    QImageReader reader(&file, m_plan.format);
    reader.setAutoDetectImageFormat(false);
    askSize(reader);
    // What is known of the pixels only goes with a size.
    const QImage::Format pixels = m_plan.size.isEmpty() ? QImage::Format_Invalid : reader.imageFormat();
    if (pixels > QImage::Format_Invalid && pixels < QImage::NImageFormats)
        m_plan.bits = QImage::toPixelFormat(pixels).bitsPerPixel();
}

void Inspection::readText()
{
    if (m_plan.bytes.size() > maximumTextBytes)
        refuse(QStringLiteral("written in letters it has more than %1 bytes").arg(maximumTextBytes));
    else
        askReader();
}

void Inspection::readPng()
{
    m_plan.format = "png";
    m_plan.bytes = PngChunks::slimmed(std::move(m_plan.bytes));
    askReader();
}

void Inspection::readJpeg()
{
    // Its reader may tell anything of pixels that it does not know.
    Bytes file(m_plan.bytes);
    QImageReader reader(&file, "jpeg");
    reader.setAutoDetectImageFormat(false);
    askSize(reader);
    const JpegScans scans = JpegScans::of(m_plan.bytes);
    m_plan.extraBytes = scans.bytesKept * m_plan.pictureBytes() / bytesOfPixel;
    const qint64 passes = qMax(1, scans.passes);
    const qint64 area = qMin(m_area, MediaPlan::maximumPassedArea) * MediaPlan::maximumPasses / passes;
    if (qint64(m_plan.size.width()) * m_plan.size.height() > area)
        refuse(QStringLiteral("it goes over its picture %1 times").arg(passes));
}

void Inspection::readGif()
{
    const GifFrames frames = GifFrames::of(m_plan.bytes);
    m_plan.size = frames.canvas;
    m_plan.isMovie = frames.isMovie;
    m_plan.copies = frames.goesBack ? 2 : 1;
}

void Inspection::readIcon()
{
    const IconEntry entry = IconEntry::of(m_plan.bytes);
    m_plan.size = entry.size;
    if (entry.png.isEmpty())
        return;
    m_plan.bytes = entry.png;
    readPng();
}

void Inspection::readTiff()
{
    const qint64 part = TiffLayout::partBytes(m_plan.bytes);
    // Twice the usual for pixels of sixteen bits.
    if (part < 0 || part > 2 * bytesOfPixel * m_area)
        return refuse(QStringLiteral("its strips or tiles are too large"));
    m_plan.extraBytes = part;
    askReader();
}

void Inspection::readPackedDrawing()
{
    m_plan.format = "svg";
    m_plan.bytes = gunzip(m_plan.bytes, SvgContents::maximumBytes);
    if (m_plan.bytes.isEmpty())
        refuse(QStringLiteral("the drawing cannot be unpacked, or has more than %1 bytes then")
                   .arg(SvgContents::maximumBytes));
    else
        readDrawing();
}

void Inspection::readDrawing()
{
    const SvgContents contents = SvgContents::of(m_plan.bytes);
    m_plan.elements = contents.elements;
    refuse(contents.refusal);
    for (const QByteArray &picture : contents.pictures) {
        if (m_plan.refusal.isEmpty())
            addCarried(picture);
    }
    // To measure its figures takes about as long as to draw them.
    if (m_plan.refusal.isEmpty() && !contents.cost.hasView())
        addDrawingTime(contents.cost.drawingTime(contents.tree, usualScreen));
    // All of the pictures are decoded before it tells its size.
    if (m_plan.refusal.isEmpty())
        askReader();
    if (m_plan.isReadable())
        addDrawingTime(contents.cost.drawingTime(contents.tree, m_plan.size));
}

void Inspection::addDrawingTime(double time)
{
    m_plan.drawingTime += time;
    // What is not a number takes too long, too.
    if (!(m_plan.drawingTime <= SvgCost::maximum))
        refuse(QStringLiteral("the drawing takes too long to be drawn"));
}

void Inspection::addCarried(const QByteArray &picture)
{
    const MediaPlan carried = MediaPlan::of(picture, m_area);
    m_carriedTexts += qMax(0, picture.size() - carried.bytes.size());
    m_plan.extraBytes += carried.pictureBytes();
    m_plan.elements += carried.elements;
    // It is decoded to learn the size, too.
    m_plan.drawingTime += 2 * carried.drawingTime;
    if (!carried.refusal.isEmpty())
        refuse(QStringLiteral("a picture in the drawing: ") + carried.refusal);
    else if (m_plan.drawingTime > SvgCost::maximum)
        refuse(QStringLiteral("the drawings in the drawing take too long to be drawn"));
    else if (m_carriedTexts > maximumCarriedTexts)
        refuse(QStringLiteral("the pictures in the drawing have too long texts"));
    else if (m_plan.extraBytes > m_area * bytesOfPixel)
        refuse(QStringLiteral("with the pictures in the drawing ") + noteOfArea(m_area));
    else if (m_plan.elements > SvgContents::maximumElements)
        refuse(QStringLiteral("with the drawings in it the drawing has too many elements"));
}
} // namespace

MediaPlan MediaPlan::of(QByteArray bytes, qint64 area, const QString &suffix)
{
    MediaPlan plan;
    plan.format = formatOf(bytes, suffix);
    plan.bytes = std::move(bytes);
    if (!plan.format.isEmpty())
        Inspection(plan, area).run();
    return plan;
}

qint64 MediaPlan::pictureBytes() const
{
    return extraBytes + qint64(qMax(0, size.width())) * qMax(0, size.height()) * bits / bitsOfByte;
}
