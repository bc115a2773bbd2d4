#include "pictures/jpegscans.h"

#include "tests/support/mediabytes.h"
#include "tests/support/strictmain.h"
#include "tests/viewers/mediafolder.h"

using namespace MediaBytes;

namespace
{
QByteArray segment(int type, const QByteArray &content)
{
    return char(0xff) + QByteArray(1, char(type)) + bigEndian(content.size() + 2).right(2) + content;
}

QByteArray frame(int type, int components)
{
    return segment(type, QByteArray::fromHex("0800080008") + char(components) +
                             QByteArray(3 * components, char(1)));
}

QByteArray scan(int components)
{
    return segment(0xda, char(components) + QByteArray(2 * components + 3, char(0)));
}
} // namespace

class tst_JpegScans : public QObject
{
    Q_OBJECT

private slots:
    void tellsWhatIsKeptBetweenPasses_data();
    void tellsWhatIsKeptBetweenPasses();
    void countsPasses();
    void readsRealPictures();
    void standsTruncation();
};

void tst_JpegScans::tellsWhatIsKeptBetweenPasses_data()
{
    QTest::addColumn<QByteArray>("pieces");
    QTest::addColumn<int>("bytes");
    const QByteArray table = segment(0xc4, "table");
    QTest::newRow("all at once") << frame(0xc0, 3) + table + scan(3) << 0;
    QTest::newRow("one component") << frame(0xc1, 1) + scan(1) << 0;
    QTest::newRow("one after the other") << frame(0xc0, 3) + scan(1) + scan(1) + scan(1) << 6;
    QTest::newRow("progressive") << frame(0xc2, 3) + table + scan(3) << 6;
    QTest::newRow("progressive, grey") << table + frame(0xc2, 1) + scan(1) << 2;
    QTest::newRow("progressive, four inks") << frame(0xca, 4) + scan(4) << 8;
    QTest::newRow("drawn out") << QByteArray(5, char(0xff)) + frame(0xc2, 3) + scan(3) << 6;
    QTest::newRow("a thumbnail") << segment(0xe1, "\xff\xd8" + frame(0xc2, 3) + scan(3)) + frame(0xc0, 3) +
                                        scan(3)
                                 << 0;
    QTest::newRow("no pass") << frame(0xc2, 3) << 0;
    QTest::newRow("nothing") << QByteArray() << 0;
}

void tst_JpegScans::tellsWhatIsKeptBetweenPasses()
{
    QFETCH(QByteArray, pieces);
    QFETCH(int, bytes);
    QCOMPARE(JpegScans::of("\xff\xd8" + pieces).bytesKept, bytes);
}

void tst_JpegScans::countsPasses()
{
    QCOMPARE(JpegScans::of("\xff\xd8" + frame(0xc2, 3) + scan(1).repeated(1234)).passes, 1234);
    QCOMPARE(JpegScans::of(QByteArray()).passes, 0);
}

void tst_JpegScans::readsRealPictures()
{
    const JpegScans scans = JpegScans::of(encoded(MediaFolder::chequered({70, 30}), "jpg"));
    QCOMPARE(scans.passes, 1);
    QCOMPARE(scans.bytesKept, 0);
}

void tst_JpegScans::standsTruncation()
{
    const QByteArray whole = "\xff\xd8" + frame(0xc2, 3) + scan(3);
    for (int length = 0; length < whole.size(); ++length)
        QVERIFY(JpegScans::of(whole.left(length)).bytesKept <= 6);
}

BOARDWRIGHT_TEST_MAIN(tst_JpegScans)
#include "tst_jpegscans.moc"
