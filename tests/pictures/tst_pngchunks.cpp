#include "pictures/pngchunks.h"

#include "tests/support/mediabytes.h"
#include "tests/support/strictmain.h"
#include "tests/viewers/mediafolder.h"

using namespace MediaBytes;

class tst_PngChunks : public QObject
{
    Q_OBJECT

private slots:
    void keepsWhatThePictureNeeds_data();
    void keepsWhatThePictureNeeds();
    void dropsWhatItCanDoWithout_data();
    void dropsWhatItCanDoWithout();
    void keepsOneOfEachAddition();
    void dropsWhatFollowsTheEnd();
    void leavesOtherBytesAlone();
    void standsTruncation();
    void standsAnyLength();
    void showsTheSamePicture();
};

namespace
{
QByteArray png()
{
    return encoded(MediaFolder::chequered({8, 6}), "png");
}

QByteArray bare()
{
    return PngChunks::slimmed(png());
}
} // namespace

void tst_PngChunks::keepsWhatThePictureNeeds_data()
{
    QTest::addColumn<QByteArray>("type");
    for (const char *type : {"PLTE", "IDAT", "XXXX", "tRNS", "gAMA", "cHRM", "sRGB", "sBIT", "pHYs", "oFFs"})
        QTest::newRow(type) << QByteArray(type);
}

void tst_PngChunks::keepsWhatThePictureNeeds()
{
    QFETCH(QByteArray, type);
    QByteArray bytes = bare();
    const int place = bytes.indexOf("pHYs") - 4;
    if (place > 0)
        bytes.remove(place, 21);
    const QByteArray whole = withChunks(bytes, pngChunk(type, "abc"));
    QCOMPARE(PngChunks::slimmed(whole), whole);
}

void tst_PngChunks::dropsWhatItCanDoWithout_data()
{
    QTest::addColumn<QByteArray>("type");
    for (const char *type : {"tEXt", "zTXt", "iTXt", "iCCP", "eXIf", "tIME", "hIST", "sPLT", "acTL", "xxxx"})
        QTest::newRow(type) << QByteArray(type);
}

void tst_PngChunks::dropsWhatItCanDoWithout()
{
    QFETCH(QByteArray, type);
    const QByteArray content(1000, 'x');
    QCOMPARE(PngChunks::slimmed(withChunks(png(), pngChunk(type, content).repeated(3))), bare());
}

void tst_PngChunks::keepsOneOfEachAddition()
{
    const QByteArray gamma = pngChunk("gAMA", bigEndian(45455));
    QCOMPARE(PngChunks::slimmed(withChunks(bare(), gamma.repeated(1000))), withChunks(bare(), gamma));
}

void tst_PngChunks::dropsWhatFollowsTheEnd()
{
    QCOMPARE(PngChunks::slimmed(png() + pngChunk("IDAT", "x") + QByteArray(1000, 'x')), bare());
}

void tst_PngChunks::leavesOtherBytesAlone()
{
    for (const QByteArray &bytes :
         {QByteArray(), QByteArray("x"), QByteArray("\x89PNG"), QByteArray(1000, char(0)), png().mid(1)})
        QCOMPARE(PngChunks::slimmed(bytes), bytes);
}

void tst_PngChunks::standsTruncation()
{
    const QByteArray whole = withChunks(png(), pngChunk("zTXt", "text"));
    for (int length = 0; length < whole.size(); ++length)
        QVERIFY(PngChunks::slimmed(whole.left(length)).size() <= length);
}

void tst_PngChunks::standsAnyLength()
{
    for (const qint64 length : {qint64(0x7fffffff), qint64(0x80000000), qint64(0xffffffff)}) {
        for (const char *type : {"IDAT", "zTXt"}) {
            const QByteArray piece = bigEndian(length) + type + "abc";
            const QByteArray kept = QByteArray(type) == "IDAT" ? piece : QByteArray();
            QCOMPARE(PngChunks::slimmed(png().left(33) + piece), png().left(33) + kept);
        }
    }
}

void tst_PngChunks::showsTheSamePicture()
{
    QImage image = MediaFolder::chequered({8, 6}).convertToFormat(QImage::Format_Indexed8);
    image.setColor(3, qRgba(1, 2, 3, 0));
    image.setText("words", "many");
    const QByteArray whole = encoded(image, "png");
    QVERIFY(whole.contains("tEXt"));
    const QImage shown = QImage::fromData(PngChunks::slimmed(whole));
    QCOMPARE(shown, QImage::fromData(whole));
    QVERIFY(shown.textKeys().isEmpty());
}

BOARDWRIGHT_TEST_MAIN(tst_PngChunks)
#include "tst_pngchunks.moc"
