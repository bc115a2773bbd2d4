#include "pictures/tifflayout.h"

#include "tests/support/mediabytes.h"
#include "tests/support/strictmain.h"

using namespace MediaBytes;

namespace
{
using Tags = QVector<QPair<int, qint64>>;

/// A file whose directory holds numbers of four bytes.
QByteArray tiff(const Tags &tags, bool isLittle = true)
{
    const auto number = [isLittle](qint64 value, int length) {
        return isLittle ? littleEndian(value, length) : bigEndian(value).right(length);
    };
    QByteArray bytes = (isLittle ? "II" : "MM") + number(42, 2) + number(8, 4) + number(tags.size(), 2);
    for (const auto &tag : tags)
        bytes += number(tag.first, 2) + number(4, 2) + number(1, 4) + number(tag.second, 4);
    return bytes + number(0, 4);
}

Tags plain(int width, int height, int bits = 8, int samples = 1)
{
    return {{256, width}, {257, height}, {258, bits}, {277, samples}};
}
} // namespace

class tst_TiffLayout : public QObject
{
    Q_OBJECT

private slots:
    void tellsTheLargestPart_data();
    void tellsTheLargestPart();
    void readsShortValues();
    void tellsNothingOfOtherFiles();
    void standsTruncation();
};

void tst_TiffLayout::tellsTheLargestPart_data()
{
    QTest::addColumn<Tags>("tags");
    QTest::addColumn<qint64>("bytes");
    const qint64 most = 0xffffffff;
    QTest::newRow("one strip") << plain(40, 30) << qint64(40 * 30);
    QTest::newRow("strips") << plain(40, 30) + Tags{{278, 5}} << qint64(40 * 5);
    QTest::newRow("a strip without end") << plain(40, 30) + Tags{{278, most}} << qint64(40 * 30);
    QTest::newRow("colours") << plain(40, 30, 16, 4) << qint64(40 * 30 * 8);
    QTest::newRow("black and white") << plain(40, 30, 1) << qint64(40 * 30 / 8);
    QTest::newRow("tiles") << plain(40, 30) + Tags{{322, 16}, {323, 8}} << qint64(16 * 8);
    QTest::newRow("tiles beyond the picture")
        << plain(4, 3) + Tags{{322, 60000}, {323, 30000}} << qint64(1800000000);
    QTest::newRow("all samples") << plain(4, 3, 8, 65535) << qint64(4 * 3 * 65535);
    QTest::newRow("beyond measure") << Tags{{322, most}, {323, most}, {258, most}, {277, most}} << qint64(-1);
    QTest::newRow("nothing") << Tags() << qint64(0);
}

void tst_TiffLayout::tellsTheLargestPart()
{
    QFETCH(Tags, tags);
    QFETCH(qint64, bytes);
    QCOMPARE(TiffLayout::partBytes(tiff(tags)), bytes);
    QCOMPARE(TiffLayout::partBytes(tiff(tags, false)), bytes);
}

void tst_TiffLayout::readsShortValues()
{
    QByteArray bytes = tiff(plain(40, 30, 0, 3));
    // Three short values lie behind the directory.
    bytes.replace(10 + 2 * 12 + 2, 10,
                  littleEndian(3, 2) + littleEndian(3, 4) + littleEndian(bytes.size(), 4));
    bytes += littleEndian(16, 2).repeated(3);
    QCOMPARE(TiffLayout::partBytes(bytes), qint64(40 * 30 * 3 * 2));
}

void tst_TiffLayout::tellsNothingOfOtherFiles()
{
    for (const QByteArray &bytes : {QByteArray(), QByteArray("II+\0", 4), QByteArray(100, 'x')})
        QCOMPARE(TiffLayout::partBytes(bytes), qint64(-1));
}

void tst_TiffLayout::standsTruncation()
{
    const QByteArray whole = tiff(plain(40, 30));
    for (int length = 0; length < whole.size(); ++length)
        QVERIFY(TiffLayout::partBytes(whole.left(length)) <= 40 * 30);
}

BOARDWRIGHT_TEST_MAIN(tst_TiffLayout)
#include "tst_tifflayout.moc"
