#include "assets/assets.h"

#include "tests/support/strictmain.h"

#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QtTest>

#include <algorithm>
#include <cmath>

class tst_Assets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void mayBeInitialisedAgain();
    void emptyLayoutIsKeptToTheByte();
    void everyImageOfTheTableIsDrawnAndCarried_data();
    void everyImageOfTheTableIsDrawnAndCarried();
    void arrowsAreSymmetric_data();
    void arrowsAreSymmetric();
    void arrowsAreReadableOnEveryGround_data();
    void arrowsAreReadableOnEveryGround();
};

namespace
{
QString sourcePath(const QString &path)
{
    return QStringLiteral(BOARDWRIGHT_SOURCE_DIR "/") + path;
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QImage asset(const QString &path)
{
    return QImage(":/assets/" + path).convertToFormat(QImage::Format_ARGB32);
}

/// Contrast of two opaque colours, 1 (same) to 21 (black on white).
double contrast(const QColor &one, const QColor &other)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    const auto luminance = [linear](const QColor &color) {
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF());
    };
    const auto bounds = std::minmax({luminance(one), luminance(other)});
    return (bounds.second + 0.05) / (bounds.first + 0.05);
}

/// The part of an image that is drawn upon.
QRect drawnArea(const QImage &image)
{
    QRect area;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 0)
                area |= QRect(x, y, 1, 1);
        }
    }
    return area;
}

/// The greatest difference in coverage (0 to 255) of any pixel of two images of one size.
int coverageDifference(const QImage &one, const QImage &other)
{
    int greatest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            greatest = std::max(greatest, std::abs(qAlpha(one.pixel(x, y)) - qAlpha(other.pixel(x, y))));
    }
    return greatest;
}
} // namespace

void tst_Assets::initTestCase()
{
    initAssets();
}

void tst_Assets::mayBeInitialisedAgain()
{
    initAssets();
    QVERIFY(QFile::exists(":/assets/style/style.qss"));
}

void tst_Assets::emptyLayoutIsKeptToTheByte()
{
    QCOMPARE(contents(":/assets/resources/empty.lay"),
             QByteArray("{\n"
                        "    \"items\": [\n"
                        "    ],\n"
                        "    \"parameters\": {\n"
                        "        \"Background Color\": \"#000000\",\n"
                        "        \"Height\": 400,\n"
                        "        \"Width\": 800\n"
                        "    }\n"
                        "}\n"));
}

void tst_Assets::everyImageOfTheTableIsDrawnAndCarried_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("image");
    QTest::addColumn<QSize>("size");

    const QString table = QString::fromUtf8(contents(sourcePath("cmake/icons.cmake")));
    static const QRegularExpression row("^ +\"(\\S+\\.svg) +(\\S+\\.png) +(\\d+) +(\\d+)\"$",
                                        QRegularExpression::MultilineOption);
    auto rows = row.globalMatch(table);
    QVERIFY(rows.hasNext());
    while (rows.hasNext()) {
        const QRegularExpressionMatch match = rows.next();
        QTest::newRow(qPrintable(match.captured(2)))
            << match.captured(1) << match.captured(2)
            << QSize(match.captured(3).toInt(), match.captured(4).toInt());
    }
}

void tst_Assets::everyImageOfTheTableIsDrawnAndCarried()
{
    QFETCH(QString, source);
    QFETCH(QString, image);
    QFETCH(QSize, size);

    QVERIFY(QFile::exists(sourcePath("assets/icons/" + source)));
    QCOMPARE(asset(image).size(), size);
    QVERIFY(!drawnArea(asset(image)).isEmpty());
    QCOMPARE(contents(":/assets/" + image), contents(sourcePath("assets/" + image)));
}

void tst_Assets::arrowsAreSymmetric_data()
{
    QTest::addColumn<QString>("image");
    QTest::addColumn<bool>("sideways");
    QTest::addColumn<QSize>("drawn");

    QTest::newRow("spin box, up") << "style/up.png" << false << QSize(8, 4);
    QTest::newRow("spin box, down") << "style/down.png" << false << QSize(8, 4);
    QTest::newRow("combo box") << "style/combo_box.png" << false << QSize(9, 5);
    QTest::newRow("open category") << "interface/widget_down.png" << false << QSize(9, 5);
    QTest::newRow("closed category") << "interface/widget_right.png" << true << QSize(5, 9);
}

void tst_Assets::arrowsAreSymmetric()
{
    QFETCH(QString, image);
    QFETCH(bool, sideways);
    QFETCH(QSize, drawn);

    const QRect area = drawnArea(asset(image));
    QCOMPARE(area.size(), drawn);
    const QImage arrow = asset(image).copy(area);
    // The drawing tool rounds the two slopes a little differently.
    QVERIFY(coverageDifference(arrow.mirrored(!sideways, sideways), arrow) <= 10);
}

void tst_Assets::arrowsAreReadableOnEveryGround_data()
{
    arrowsAreSymmetric_data();
}

void tst_Assets::arrowsAreReadableOnEveryGround()
{
    QFETCH(QString, image);
    const QImage arrow = asset(image);
    const QColor color = arrow.pixelColor(drawnArea(arrow).center());

    QCOMPARE(color.alpha(), 255);
    QVERIFY(contrast(color, QColor(0x45, 0x45, 0x45)) >= 4.5);
    QVERIFY(contrast(color, QColor(0x6f, 0x6f, 0x6f)) >= 3);
}

BOARDWRIGHT_TEST_MAIN(tst_Assets)
#include "tst_assets.moc"
