#include "pictures/gunzip.h"

#include "tests/support/mediabytes.h"
#include "tests/support/strictmain.h"

class tst_Gunzip : public QObject
{
    Q_OBJECT

private slots:
    void unpacksUpToTheMaximum_data();
    void unpacksUpToTheMaximum();
    void unpacksNothingDamaged();
};

void tst_Gunzip::unpacksUpToTheMaximum_data()
{
    QTest::addColumn<int>("length");
    for (const int length : {1, 999, 1000, 1001, 5000, 100000000})
        QTest::addRow("%d bytes", length) << length;
}

void tst_Gunzip::unpacksUpToTheMaximum()
{
    QFETCH(int, length);
    const QByteArray bytes(length, 'x');
    QCOMPARE(gunzip(MediaBytes::gzipped(bytes), 1000), length <= 1000 ? bytes : QByteArray());
}

void tst_Gunzip::unpacksNothingDamaged()
{
    const QByteArray whole = MediaBytes::gzipped("some words, and some words more");
    QVERIFY(!gunzip(whole, 1000).isEmpty());
    for (int length = 0; length < whole.size(); ++length)
        QVERIFY(gunzip(whole.left(length), 1000).isEmpty());
    QVERIFY(gunzip(QByteArray(1000, 'x'), 1000).isEmpty());
    QByteArray other = whole;
    other[12] = char(other.at(12) ^ 0x55);
    QVERIFY(gunzip(other, 1000).isEmpty());
}

BOARDWRIGHT_TEST_MAIN(tst_Gunzip)
#include "tst_gunzip.moc"
