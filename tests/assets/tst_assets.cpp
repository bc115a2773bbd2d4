#include "assets/assets.h"

#include "tests/support/strictmain.h"

#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QMap>
#include <QPainter>
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
    void everyImageOfTheTableHasItsSource_data();
    void everyImageOfTheTableHasItsSource();
    void carriesTheseImagesAndNoOthers();
    void imagesHaveTheirSizeAndAreDrawnOnNothing_data();
    void imagesHaveTheirSizeAndAreDrawnOnNothing();
    void noTwoImagesLookAlike();
    void checkBoxesTellTheirStatesApart_data();
    void checkBoxesTellTheirStatesApart();
    void buttonImagesAreReadableOnEveryGround_data();
    void buttonImagesAreReadableOnEveryGround();
    void straightImagesLieOnWholePixels_data();
    void straightImagesLieOnWholePixels();
    void opposedImagesMirrorEachOther_data();
    void opposedImagesMirrorEachOther();
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

/// The check boxes that are drawn with images, without the state that ends each name.
QStringList checkBoxes()
{
    return {"style/textSettingsStyle/Auto",
            "style/textSettingsStyle/Bold",
            "style/textSettingsStyle/Italic",
            "style/textSettingsStyle/Underline",
            "style/textSettingsStyle/align/h/HAlignC",
            "style/textSettingsStyle/align/h/HAlignL",
            "style/textSettingsStyle/align/h/HAlignR",
            "style/textSettingsStyle/align/v/VAlignC",
            "style/textSettingsStyle/align/v/VAlignT",
            "style/textSettingsStyle/align/v/VAlignB"};
}

/// The layer tool bar's images, in the order of the bar.
QStringList layerCommands()
{
    return {"delete",
            "___",
            "moveUp",
            "moveDown",
            "moveToTop",
            "movToBottom",
            "fullScreen",
            "horisontalFull",
            "verticallFull",
            "alignTop",
            "alignVerticalCenter",
            "alignBottom",
            "alignLeft",
            "alignHorisontalCenter",
            "alignRight"};
}

QString layerImage(const QString &command)
{
    return "interface/layerToolBarSettings/" + command + ".png";
}

/// Every image of the program, with its size in pixels. The spellings are interface.
QMap<QString, QSize> images()
{
    QMap<QString, QSize> all{{"style/up.png", QSize(8, 4)},
                             {"style/down.png", QSize(8, 4)},
                             {"style/combo_box.png", QSize(9, 5)},
                             {"interface/widget_down.png", QSize(15, 15)},
                             {"interface/widget_right.png", QSize(15, 15)}};
    for (const char *item : {"text", "shapes", "image", "gif"})
        all[QStringLiteral("interface/%1.png").arg(item)] = QSize(45, 45);
    const QStringList commands = layerCommands();
    for (const QString &command : commands)
        all[layerImage(command)] = QSize(30, 30);
    const QStringList boxes = checkBoxes();
    for (const QString &checkBox : boxes) {
        for (const char *state : {"checked", "unchecked", "unchecked_hover"})
            all[checkBox + "_" + state + ".png"] = QSize(30, 30);
    }
    return all;
}

const QColor panelGround(0x45, 0x45, 0x45);
const QColor hoverGround(0x6f, 0x6f, 0x6f);

QImage onGround(const QString &path, const QColor &ground = panelGround)
{
    QImage picture(asset(path).size(), QImage::Format_RGB32);
    picture.fill(ground);
    QPainter(&picture).drawImage(0, 0, asset(path));
    return picture;
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

/// The greatest contrast of any pixel to the colour.
double strongestContrast(const QImage &image, const QColor &color)
{
    double strongest = 1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            strongest = std::max(strongest, contrast(image.pixelColor(x, y), color));
    }
    return strongest;
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

/// The least and the greatest coverage (0 to 255) of any pixel.
std::pair<int, int> coverage(const QImage &image)
{
    std::pair<int, int> bounds{255, 0};
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int alpha = qAlpha(image.pixel(x, y));
            bounds = {std::min(bounds.first, alpha), std::max(bounds.second, alpha)};
        }
    }
    return bounds;
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

void tst_Assets::everyImageOfTheTableHasItsSource_data()
{
    QTest::addColumn<QString>("source");

    const QString table = QString::fromUtf8(contents(sourcePath("cmake/icons.cmake")));
    static const QRegularExpression row("^ +\"(\\S+\\.svg) ", QRegularExpression::MultilineOption);
    auto rows = row.globalMatch(table);
    QVERIFY(rows.hasNext());
    while (rows.hasNext()) {
        const QString source = rows.next().captured(1);
        QTest::newRow(qPrintable(source)) << source;
    }
}

void tst_Assets::everyImageOfTheTableHasItsSource()
{
    QFETCH(QString, source);
    QVERIFY(QFile::exists(sourcePath("assets/icons/" + source)));
}

void tst_Assets::carriesTheseImagesAndNoOthers()
{
    QStringList carried;
    QDirIterator files(":/assets", {"*.png"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        carried << files.next().mid(int(qstrlen(":/assets/")));
    carried.sort();
    QCOMPARE(carried, images().keys());
}

void tst_Assets::imagesHaveTheirSizeAndAreDrawnOnNothing_data()
{
    QTest::addColumn<QString>("image");
    QTest::addColumn<QSize>("size");

    const QMap<QString, QSize> all = images();
    for (auto image = all.begin(); image != all.end(); ++image)
        QTest::newRow(qPrintable(image.key())) << image.key() << image.value();
}

void tst_Assets::imagesHaveTheirSizeAndAreDrawnOnNothing()
{
    QFETCH(QString, image);
    QFETCH(QSize, size);

    QCOMPARE(asset(image).size(), size);
    QCOMPARE(coverage(asset(image)), std::make_pair(0, 255));
    QCOMPARE(contents(":/assets/" + image), contents(sourcePath("assets/" + image)));
}

void tst_Assets::noTwoImagesLookAlike()
{
    QMap<QByteArray, QString> seen;
    const QStringList all = images().keys();
    for (const QString &image : all) {
        const QByteArray bytes = contents(":/assets/" + image);
        QVERIFY2(!seen.contains(bytes), qPrintable(image + " looks like " + seen.value(bytes)));
        seen[bytes] = image;
    }
}

void tst_Assets::checkBoxesTellTheirStatesApart_data()
{
    QTest::addColumn<QString>("checkBox");

    const QStringList all = checkBoxes();
    for (const QString &checkBox : all)
        QTest::newRow(qPrintable(checkBox)) << checkBox;
}

void tst_Assets::checkBoxesTellTheirStatesApart()
{
    QFETCH(QString, checkBox);
    const QImage checked = onGround(checkBox + "_checked.png");
    const QImage unchecked = onGround(checkBox + "_unchecked.png");
    const QImage hover = onGround(checkBox + "_unchecked_hover.png");

    const QPoint plate(3, 15);
    QCOMPARE(unchecked.pixelColor(plate), panelGround);
    QCOMPARE(hover.pixelColor(plate), hoverGround);
    QVERIFY(checked.pixelColor(plate).hsvSaturationF() > 0.5);

    const QPoint edge(1, 15);
    QVERIFY(contrast(checked.pixelColor(edge), panelGround) >= 4.5);
    QVERIFY(contrast(unchecked.pixelColor(edge), panelGround) < 3);

    for (const QImage &state : {checked, unchecked, hover}) {
        const QImage glyph = state.copy(state.rect().adjusted(4, 4, -4, -4));
        QVERIFY(strongestContrast(glyph, state.pixelColor(plate)) >= 4.5);
    }
}

void tst_Assets::buttonImagesAreReadableOnEveryGround_data()
{
    QTest::addColumn<QString>("image");
    QTest::addColumn<double>("onPanel");
    QTest::addColumn<double>("onHover");

    const QStringList all = images().keys().filter("interface/");
    for (const QString &image : all) {
        const bool separator = image == layerImage("___"); // need not be read, only seen
        QTest::newRow(qPrintable(image)) << image << (separator ? 2.0 : 4.5) << (separator ? 2.0 : 3.0);
    }
}

void tst_Assets::buttonImagesAreReadableOnEveryGround()
{
    QFETCH(QString, image);
    QFETCH(double, onPanel);
    QFETCH(double, onHover);

    QVERIFY(strongestContrast(onGround(image), panelGround) >= onPanel);
    QVERIFY(strongestContrast(onGround(image, hoverGround), hoverGround) >= onHover);
}

void tst_Assets::straightImagesLieOnWholePixels_data()
{
    QTest::addColumn<QString>("image");

    QTest::newRow("text item") << "interface/text.png";
    for (const char *command : {"delete", "___", "alignTop", "alignVerticalCenter", "alignBottom",
                                "alignLeft", "alignHorisontalCenter", "alignRight"})
        QTest::newRow(command) << layerImage(command);
}

void tst_Assets::straightImagesLieOnWholePixels()
{
    QFETCH(QString, image);
    const QImage drawn = asset(image);

    for (int y = 0; y < drawn.height(); ++y) {
        for (int x = 0; x < drawn.width(); ++x)
            QVERIFY(drawn.pixelColor(x, y).alpha() % 255 == 0);
    }
}

void tst_Assets::opposedImagesMirrorEachOther_data()
{
    QTest::addColumn<QString>("image");
    QTest::addColumn<QString>("other");
    QTest::addColumn<bool>("sideways");

    const QString style = "style/textSettingsStyle/align/%1_unchecked.png";
    QTest::newRow("text left and right") << style.arg("h/HAlignL") << style.arg("h/HAlignR") << true;
    QTest::newRow("text centre") << style.arg("h/HAlignC") << style.arg("h/HAlignC") << true;
    QTest::newRow("text top and bottom") << style.arg("v/VAlignT") << style.arg("v/VAlignB") << false;
    QTest::newRow("text middle") << style.arg("v/VAlignC") << style.arg("v/VAlignC") << false;

    const auto commands = [](const QString &command, const QString &other, bool sideways) {
        QTest::newRow(qPrintable(command + (sideways ? ", sideways" : ", upside down")))
            << layerImage(command) << layerImage(other) << sideways;
    };
    commands("moveUp", "moveDown", false);
    commands("moveToTop", "movToBottom", false);
    commands("alignTop", "alignBottom", false);
    commands("alignTop", "alignTop", true);
    commands("alignVerticalCenter", "alignVerticalCenter", false);
    commands("alignVerticalCenter", "alignVerticalCenter", true);
    commands("alignLeft", "alignRight", true);
    commands("alignLeft", "alignLeft", false);
    commands("alignHorisontalCenter", "alignHorisontalCenter", true);
    commands("alignHorisontalCenter", "alignHorisontalCenter", false);
    commands("horisontalFull", "horisontalFull", true);
    commands("verticallFull", "verticallFull", false);
}

void tst_Assets::opposedImagesMirrorEachOther()
{
    QFETCH(QString, image);
    QFETCH(QString, other);
    QFETCH(bool, sideways);

    const QImage mirrored = asset(image).mirrored(sideways, !sideways);
    QVERIFY(coverageDifference(mirrored, asset(other)) <= 10);
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
    QVERIFY(contrast(color, panelGround) >= 4.5);
    QVERIFY(contrast(color, hoverGround) >= 3);
}

BOARDWRIGHT_TEST_MAIN(tst_Assets)
#include "tst_assets.moc"
