#include "pictures/iconentry.h"

#include "tests/support/mediabytes.h"
#include "tests/support/strictmain.h"
#include "tests/viewers/mediafolder.h"

#include <QBuffer>
#include <QImageReader>

using namespace MediaBytes;

class tst_IconEntry : public QObject
{
    Q_OBJECT

private slots:
    void tellsTheSizeThatIsAllocated_data();
    void tellsTheSizeThatIsAllocated();
    void takesOutPngFiles();
    void looksAtTheFirstPictureAlone();
    void standsAnyHeader_data();
    void standsAnyHeader();
    void standsTruncation();
};

void tst_IconEntry::tellsTheSizeThatIsAllocated_data()
{
    QTest::addColumn<QSize>("entry");
    QTest::addColumn<QSize>("bitmap");
    QTest::addColumn<QSize>("size");
    QTest::newRow("alike") << QSize(16, 12) << QSize(16, 24) << QSize(16, 12);
    QTest::newRow("the entry is larger") << QSize(200, 100) << QSize(16, 32) << QSize(200, 100);
    QTest::newRow("the bitmap is larger") << QSize(16, 12) << QSize(200, 100) << QSize(16, 12);
    QTest::newRow("open") << QSize(0, 0) << QSize(60, 80) << QSize(60, 40);
    QTest::newRow("open width") << QSize(0, 30) << QSize(60, 80) << QSize(60, 30);
}

void tst_IconEntry::tellsTheSizeThatIsAllocated()
{
    QFETCH(QSize, entry);
    QFETCH(QSize, bitmap);
    QFETCH(QSize, size);
    const QByteArray content = iconBitmap(bitmap.width(), bitmap.height(), size.width() * size.height());
    QByteArray bytes = icon({{entry.width(), entry.height(), content}});
    QCOMPARE(IconEntry::of(bytes).size, size);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QCOMPARE(QImageReader(&buffer, "ico").read().size(), size);
}

void tst_IconEntry::takesOutPngFiles()
{
    const QByteArray png = encoded(MediaFolder::chequered({300, 200}), "png");
    for (const int type : {1, 2}) {
        const IconEntry entry = IconEntry::of(icon({{16, 16, png}, {8, 8, "another"}}, type));
        QCOMPARE(entry.png, png);
        QVERIFY(entry.size.isEmpty());
    }
}

void tst_IconEntry::looksAtTheFirstPictureAlone()
{
    const QByteArray png = encoded(MediaFolder::chequered({300, 200}), "png");
    const IconEntry entry = IconEntry::of(icon({{16, 12, iconBitmap(16, 24, 16 * 12)}, {0, 0, png}}));
    QVERIFY(entry.png.isEmpty());
    QCOMPARE(entry.size, QSize(16, 12));
}

void tst_IconEntry::standsAnyHeader_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QSize>("size");
    const QSize none;
    QTest::newRow("nothing") << QByteArray() << none;
    QTest::newRow("no pictures") << icon({}) << none;
    QTest::newRow("a picture of nothing") << icon({{16, 16, ""}}) << none;
    QTest::newRow("huge") << icon({{0, 0, iconBitmap(2147483647, 2147483647, 0)}})
                          << QSize(2147483647, 1073741823);
    QTest::newRow("negative") << icon({{0, 0, iconBitmap(-5, -2147483647, 0)}}) << QSize(0, 0);
    QByteArray away = icon({{16, 16, iconBitmap(16, 32, 256)}});
    QTest::newRow("beyond the end") << away.replace(18, 4, littleEndian(0xffffffff, 4)) << none;
    QByteArray mute = icon({{16, 16, iconBitmap(16, 32, 256)}});
    QTest::newRow("of no length") << mute.replace(14, 4, littleEndian(0, 4)) << QSize(16, 16);
}

void tst_IconEntry::standsAnyHeader()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QSize, size);
    QVERIFY(IconEntry::of(bytes).png.isEmpty());
    QCOMPARE(IconEntry::of(bytes).size.expandedTo({0, 0}), size.expandedTo({0, 0}));
}

void tst_IconEntry::standsTruncation()
{
    const QByteArray png = encoded(MediaFolder::chequered({30, 20}), "png");
    const QByteArray whole = icon({{16, 16, png}});
    for (int length = 0; length < whole.size(); ++length)
        QVERIFY(png.startsWith(IconEntry::of(whole.left(length)).png));
}

BOARDWRIGHT_TEST_MAIN(tst_IconEntry)
#include "tst_iconentry.moc"
