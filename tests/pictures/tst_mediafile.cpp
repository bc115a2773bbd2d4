#include "pictures/mediafile.h"

#include "tests/support/mediabytes.h"
#include "tests/support/strictmain.h"
#include "tests/viewers/mediafolder.h"

#include <QDir>
#include <QImageReader>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

/// Files that are what they say, and files that are not.
class tst_MediaFile : public QObject
{
    Q_OBJECT

private slots:
    void readsPicturesOfEveryFormat_data();
    void readsPicturesOfEveryFormat();
    void readsPicturesByWhatIsInThem_data();
    void readsPicturesByWhatIsInThem();
    void turnsNoPicture();
    void readsPathsRelativeToTheWorkingDirectory();
    void followsLinks();
    void readsNothingElse_data();
    void readsNothingElse();
    void readsNoPipe();
    void readsNoFileBeyondMeasure();
    void readsNoPictureBeyondMeasure_data();
    void readsNoPictureBeyondMeasure();
    void readsTheLargestPictureWithinMeasure();
    void readsNoPictureOfThousandsOfPasses();
    void countsNoPassesInSmallPictures();
    void readsIcons();
    void readsIconsThatHoldPngFiles();
    void readsDrawingsWhereTheirReaderIs();
    void readsNoDrawingThatReachesOutside();
    void readsPicturesWithoutTheirTexts();
    void tellsWhichLimitAFileIsBeyond_data();
    void tellsWhichLimitAFileIsBeyond();
    void tellsWhichLimitTheFileItselfIsBeyond();
    void survivesTruncation_data();
    void survivesTruncation();

private:
    MediaFolder m_folder;
};

using namespace MediaBytes;

namespace
{
/// The bytes of a picture with another size in the header.
QByteArray pngOfSize(int width, int height)
{
    QByteArray bytes = encoded(MediaFolder::chequered({4, 4}), "png");
    bytes.replace(16, 8, bigEndian(width) + bigEndian(height));
    return bytes.replace(8, 25, pngChunk("IHDR", bytes.mid(16, 13)));
}

QByteArray bmpOfSize(int width, int height)
{
    QByteArray bytes = encoded(MediaFolder::chequered({4, 4}), "bmp");
    return bytes.replace(18, 8, littleEndian(width, 4) + littleEndian(height, 4));
}

QByteArray jpegSegment(char marker, const QByteArray &bytes)
{
    return QByteArray(1, char(0xff)) + marker + bigEndian(bytes.size() + 2).right(2) + bytes;
}

/// A table with the one code 0.
QByteArray jpegTable(char table, char value)
{
    return jpegSegment(char(0xc4), QByteArray(1, table) + char(1) + QByteArray(15, char(0)) + value);
}

QByteArray jpegPass(char first, char last, int bits)
{
    const QByteArray head = QByteArray("\x01\x01\x00", 3) + first + last + char(0);
    return jpegSegment(char(0xda), head) + QByteArray((bits + 7) / 8, char(0));
}

/// A progressive picture of one colour: the whole of it in one pass, then passes that add nothing.
QByteArray jpegOfPasses(int size, int passes)
{
    const QByteArray lengths = bigEndian(size).right(2).repeated(2);
    const QByteArray frame = char(8) + lengths + QByteArray("\x01\x01\x11\x00", 4);
    const int blocks = (size + 7) / 8 * ((size + 7) / 8);
    const int runs = (blocks + 16383) / 16384; // of blocks without a change, in 15 bits each
    return "\xff\xd8" + jpegSegment(char(0xdb), char(0) + QByteArray(64, char(1))) +
           jpegSegment(char(0xc2), frame) + jpegTable(0x00, 0) + jpegTable(0x10, char(0xe0)) +
           jpegPass(0, 0, blocks) + jpegPass(1, 63, 15 * runs).repeated(passes) + "\xff\xd9";
}

/// Of the size in the header as in the frames, without the pixels to fill it.
QByteArray gifOfSize(int width, int height)
{
    const QByteArray size = littleEndian(width, 2) + littleEndian(height, 2);
    QByteArray bytes = Gif{{4, 4}, {Qt::red, Qt::green}}.bytes();
    return bytes.replace(QByteArray("\x04\x00\x04\x00", 4), size);
}
} // namespace

void tst_MediaFile::readsPicturesOfEveryFormat_data()
{
    QTest::addColumn<QString>("name");
    for (const char *format : {"png", "bmp", "jpg", "jpeg", "ppm", "xpm"})
        QTest::newRow(format) << QString("picture.") + format;
}

void tst_MediaFile::readsPicturesOfEveryFormat()
{
    QFETCH(QString, name);
    const QString path = m_folder.picture({70, 30}, name);
    const QImage picture = MediaFile::readPicture(path);
    QCOMPARE(picture, QImage(path));
    QCOMPARE(picture.size(), QSize(70, 30));
}

void tst_MediaFile::readsPicturesByWhatIsInThem_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"picture.jpg", "picture.bmp", "picture.gif", "picture.txt", "picture", "a.b.c", ".png"})
        QTest::newRow(name) << name;
}

void tst_MediaFile::readsPicturesByWhatIsInThem()
{
    QFETCH(QString, name);
    const QImage image = MediaFolder::chequered({70, 30});
    const QString path = m_folder.file(name, encoded(image, "png"));
    QCOMPARE(MediaFile::readPicture(path), image);
    QVERIFY(MediaFile::readMovie(path));
}

// Cameras note how they were held; the picture is shown as it lies in the file.
void tst_MediaFile::turnsNoPicture()
{
    const QByteArray note = QByteArray::fromHex("457869660000" // the kind of note
                                                "4d4d002a00000008"
                                                "0001011200030000000100060000"
                                                "00000000");
    const QByteArray plain = encoded(MediaFolder::chequered({70, 30}), "jpeg");
    const QString path =
        m_folder.file("held.jpg", plain.left(2) + jpegSegment(char(0xe1), note) + plain.mid(2));
    QCOMPARE(QImageReader(path).transformation(), QImageIOHandler::TransformationRotate90);
    QCOMPARE(MediaFile::readPicture(path), QImage::fromData(plain));
    const auto movie = MediaFile::readMovie(path);
    movie->start();
    QCOMPARE(movie->currentImage().size(), QSize(70, 30));
}

void tst_MediaFile::readsPathsRelativeToTheWorkingDirectory()
{
    QVERIFY(!m_folder.picture({70, 30}, "relative.png").isEmpty());
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder.path("")));
    const QImage picture = MediaFile::readPicture("relative.png");
    const bool isMovie = MediaFile::readMovie("./relative.png") != nullptr;
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(picture.size(), QSize(70, 30));
    QVERIFY(isMovie);
}

void tst_MediaFile::followsLinks()
{
    QVERIFY(QFile::link(m_folder.picture({70, 30}), m_folder.path("link.png")));
    QCOMPARE(MediaFile::readPicture(m_folder.path("link.png")).size(), QSize(70, 30));
}

void tst_MediaFile::readsNothingElse_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << "";
    QTest::newRow("no file") << m_folder.path("missing");
    QTest::newRow("a folder") << m_folder.path("");
    QTest::newRow("the folder here") << ".";
    QTest::newRow("empty file") << m_folder.file("empty", "");
    QTest::newRow("text") << m_folder.file("text", "no picture at all");
    QTest::newRow("an endless device") << "/dev/zero";
    QTest::newRow("an empty device") << "/dev/null";
    QTest::newRow("a terminal") << "/dev/tty";
    QTest::newRow("a file that the system makes up") << "/proc/self/status";
    QTest::newRow("a long name") << QString(100000, 'a');
    QTest::newRow("a name with a nul") << QString("a") + QChar(0) + "b";
    QTest::newRow("an address") << "http://example.invalid/logo.png";
}

void tst_MediaFile::readsNothingElse()
{
    QFETCH(QString, path);
    QVERIFY(MediaFile::readPicture(path).isNull());
    QVERIFY(!MediaFile::readMovie(path));
}

void tst_MediaFile::readsNoPipe()
{
#ifdef Q_OS_UNIX
    // Nobody ever writes into it.
    QCOMPARE(mkfifo(qPrintable(m_folder.path("pipe.png")), 0600), 0);
    QVERIFY(QFile::link(m_folder.path("pipe.png"), m_folder.path("pipe.gif")));
    for (const char *name : {"pipe.png", "pipe.gif"}) {
        QVERIFY(MediaFile::readPicture(m_folder.path(name)).isNull());
        QVERIFY(!MediaFile::readMovie(m_folder.path(name)));
    }
#else
    QSKIP("no named pipes in folders here");
#endif
}

void tst_MediaFile::readsNoFileBeyondMeasure()
{
    // The rest of the file is a hole.
    const QString path = m_folder.picture({70, 30}, "large.png");
    QVERIFY(QFile::resize(path, MediaFile::maximumBytes));
    QCOMPARE(MediaFile::readPicture(path).size(), QSize(70, 30));
    QVERIFY(QFile::resize(path, MediaFile::maximumBytes + 1));
    QVERIFY(MediaFile::readPicture(path).isNull());
    QVERIFY(!MediaFile::readMovie(path));
}

void tst_MediaFile::readsNoPictureBeyondMeasure_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("PNG of 60,000") << pngOfSize(60000, 60000);
    QTest::newRow("PNG of one pixel more") << pngOfSize(12800, 10001);
    QTest::newRow("PNG, wide") << pngOfSize(1000000, 1000);
    QTest::newRow("BMP of 60,000") << bmpOfSize(60000, 60000);
    QTest::newRow("BMP of 30,000 from the top") << bmpOfSize(30000, -30000);
    QTest::newRow("GIF of 60,000") << gifOfSize(60000, 60000);
    QTest::newRow("GIF of 16,000") << gifOfSize(16000, 16000);
    QTest::newRow("PPM of 60,000") << QByteArray("P6 60000 60000 255\n") + QByteArray(100, 'x');
    QTest::newRow("PPM of two thousand million") << QByteArray("P6 2147483647 2147483647 255\n");
    QTest::newRow("XPM of 60,000") << QByteArray(
        "/* XPM */\nstatic char *x[] = {\n\"60000 60000 2 1\",\n\"a c #000000\",\n");
}

void tst_MediaFile::readsNoPictureBeyondMeasure()
{
    QFETCH(QByteArray, bytes);
    const QString path = m_folder.file("bomb", bytes);
    QVERIFY(MediaFile::readPicture(path).isNull());
    QVERIFY(!MediaFile::readMovie(path));
}

void tst_MediaFile::readsTheLargestPictureWithinMeasure()
{
    QImage white(12800, 10000, QImage::Format_Mono);
    white.fill(1);
    const QString path = m_folder.picture(white, "largest.png");
    QCOMPARE(MediaFile::readPicture(path).size(), white.size());
    QVERIFY(MediaFile::readMovie(path));
    // Movies are decoded while the window waits, again and again.
    QVERIFY(MediaFile::readMovie(m_folder.file("movie.gif", gifOfSize(4096, 4096))));
    QVERIFY(!MediaFile::readMovie(m_folder.file("movie.gif", gifOfSize(4096, 4097))));
}

void tst_MediaFile::readsNoPictureOfThousandsOfPasses()
{
    const QString path = m_folder.file("passes.jpg", jpegOfPasses(8000, 99));
    QCOMPARE(MediaFile::readPicture(path).size(), QSize(8000, 8000));
    QVERIFY(!m_folder.file("passes.jpg", jpegOfPasses(8000, 10000)).isEmpty());
    QVERIFY(MediaFile::readPicture(path).isNull());
    QVERIFY(!m_folder.file("passes.jpg", jpegOfPasses(4000, 1000)).isEmpty());
    QVERIFY(!MediaFile::readMovie(path));
}

void tst_MediaFile::countsNoPassesInSmallPictures()
{
    // As many as a film of megabytes behind a photo may seem to hold.
    const QString path =
        m_folder.file("photo.jpg", jpegOfPasses(100, 5) + QByteArray("\xff\xda").repeated(10000));
    QCOMPARE(MediaFile::readPicture(path).size(), QSize(100, 100));
    QVERIFY(MediaFile::readMovie(path));
}

void tst_MediaFile::readsIcons()
{
    const QImage image = MediaFolder::chequered({16, 16});
    for (const char *name : {"icon.ico", "pointer.cur"}) {
        const QString path = m_folder.file(name, encoded(image, "ico"));
        QCOMPARE(MediaFile::readPicture(path).convertToFormat(QImage::Format_RGB32), image);
        const auto movie = MediaFile::readMovie(path);
        movie->start();
        QCOMPARE(movie->currentImage().convertToFormat(QImage::Format_RGB32), image);
    }
}

void tst_MediaFile::readsIconsThatHoldPngFiles()
{
    const QImage image = MediaFolder::chequered({300, 200});
    const QString path = m_folder.file("icon.ico", icon({{16, 16, encoded(image, "png")}}));
    QCOMPARE(MediaFile::readPicture(path), image);
    QVERIFY(MediaFile::readMovie(path));
}

void tst_MediaFile::readsDrawingsWhereTheirReaderIs()
{
    const QByteArray drawing = svg("<rect width='30' height='20' fill='red'/>");
    const bool isThere = QImageReader::supportedImageFormats().contains("svg");
    for (const QByteArray &bytes : {drawing, gzipped(drawing)}) {
        const QString path = m_folder.file("drawing.png", bytes);
        const QImage picture = MediaFile::readPicture(path);
        QCOMPARE(picture.isNull(), !isThere);
        QCOMPARE(MediaFile::readMovie(path) != nullptr, isThere);
        if (isThere)
            QCOMPARE(picture.pixelColor(29, 19), QColor(Qt::red));
    }
}

void tst_MediaFile::readsNoDrawingThatReachesOutside()
{
    const QString path =
        m_folder.file("drawing.svg", svg("<image width='9' height='9' xlink:href='/dev/zero'/>"));
    QVERIFY(MediaFile::readPicture(path).isNull());
    QVERIFY(!MediaFile::readMovie(path));
}

void tst_MediaFile::readsPicturesWithoutTheirTexts()
{
    // Sixteen megabytes, packed a thousand times.
    const QByteArray text =
        pngChunk("zTXt", QByteArray("k\0\0", 3) + qCompress(QByteArray(16000000, 'x')).mid(4));
    const QImage image = MediaFolder::chequered({70, 30});
    const QString path = m_folder.file("texts.png", withChunks(encoded(image, "png"), text + text));
    const QImage picture = MediaFile::readPicture(path);
    QCOMPARE(picture, image);
    QVERIFY(picture.textKeys().isEmpty());
}

void tst_MediaFile::tellsWhichLimitAFileIsBeyond_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QString>("movie");
    const QByteArray gif = gifOfSize(4096, 4097);
    QTest::newRow("within all") << encoded(MediaFolder::chequered({4, 4}), "png") << ""
                                << "";
    QTest::newRow("no picture") << QByteArray("text") << ""
                                << "";
    QTest::newRow("empty") << QByteArray() << ""
                           << "";
    QTest::newRow("pixels") << pngOfSize(12800, 10001) << "128000000 pixels"
                            << "128000000 pixels";
    QTest::newRow("frames") << gif << ""
                            << "16777216 pixels";
}

void tst_MediaFile::tellsWhichLimitAFileIsBeyond()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, picture);
    QFETCH(QString, movie);
    const QString path = m_folder.file("media", bytes);
    QString reason;
    MediaFile::readPicture(path, &reason);
    QVERIFY(picture.isEmpty() ? reason.isEmpty() : reason.contains(picture));
    reason.clear();
    MediaFile::readMovie(path, &reason);
    QVERIFY(movie.isEmpty() ? reason.isEmpty() : reason.contains(movie));
}

void tst_MediaFile::tellsWhichLimitTheFileItselfIsBeyond()
{
    QString reason;
    MediaFile::readPicture("/dev/zero", &reason);
    QVERIFY(reason.contains("regular"));
    const QString path = m_folder.picture({70, 30}, "large.png");
    QVERIFY(QFile::resize(path, MediaFile::maximumBytes + 1));
    MediaFile::readMovie(path, &reason);
    QVERIFY(reason.contains("268435456 bytes"));
    reason.clear();
    MediaFile::readPicture(m_folder.path("missing"), &reason);
    MediaFile::readPicture(m_folder.path(""), &reason);
    QVERIFY(reason.isEmpty());
}

void tst_MediaFile::survivesTruncation_data()
{
    QTest::addColumn<QByteArray>("whole");
    const QImage image = MediaFolder::chequered({40, 30});
    for (const char *format : {"png", "bmp", "ppm"})
        QTest::newRow(format) << encoded(image, format);
    QTest::newRow("gif") << Gif{{40, 30}, {Qt::red, Qt::green}}.bytes();
}

void tst_MediaFile::survivesTruncation()
{
    QFETCH(QByteArray, whole);
    for (int length = 0; length < whole.size(); length += 1 + length / 20) {
        const QString path = m_folder.file("cut", whole.left(length));
        const QImage picture = MediaFile::readPicture(path);
        QVERIFY(picture.isNull() || picture.size() == QSize(40, 30));
        const auto movie = MediaFile::readMovie(path);
        if (movie)
            movie->start();
    }
}

BOARDWRIGHT_TEST_MAIN(tst_MediaFile)
#include "tst_mediafile.moc"
