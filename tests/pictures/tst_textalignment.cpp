#include "pictures/textalignment.h"

#include "tests/support/strictmain.h"

namespace
{
/// The flags of a code as one number, -1 when it has none.
int hex(int code)
{
    const auto flags = TextAlignment::flags(code);
    return flags ? int(*flags) : -1;
}
} // namespace

class tst_TextAlignment : public QObject
{
    Q_OBJECT

private slots:
    void hasFlagsForNineCodes_data();
    void hasFlagsForNineCodes();
    void hasNoFlagsForOtherNumbers();
    void knowsTheSixButtons_data();
    void knowsTheSixButtons();
    void knowsNoOtherKeys_data();
    void knowsNoOtherKeys();
    void tellsInTheseOrders();
    void placesTheText_data();
    void placesTheText();
};

void tst_TextAlignment::hasFlagsForNineCodes_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("flags");

    // Two rows without a vertical flag: they are meant.
    QTest::newRow("left top") << 11 << 0x01;
    QTest::newRow("centre top") << 21 << 0x24;
    QTest::newRow("right top") << 31 << 0x02;
    QTest::newRow("left middle") << 12 << 0x81;
    QTest::newRow("centre middle") << 22 << 0x84;
    QTest::newRow("right middle") << 32 << 0x82;
    QTest::newRow("left bottom") << 13 << 0x41;
    QTest::newRow("centre bottom") << 23 << 0x44;
    QTest::newRow("right bottom") << 33 << 0x42;
}

void tst_TextAlignment::hasFlagsForNineCodes()
{
    QFETCH(int, code);
    QTEST(hex(code), "flags");
}

void tst_TextAlignment::hasNoFlagsForOtherNumbers()
{
    int known = 0;
    for (int code = -50; code <= 150; ++code)
        known += hex(code) != -1;
    QCOMPARE(known, 9);
}

void tst_TextAlignment::knowsTheSixButtons_data()
{
    QTest::addColumn<int>("part");
    QTest::addColumn<bool>("isVertical");

    QTest::newRow("Horizontal_Left") << 10 << false;
    QTest::newRow("Horizontal_Center") << 20 << false;
    QTest::newRow("Horizontal_Right") << 30 << false;
    QTest::newRow("Vertical_Top") << 1 << true;
    QTest::newRow("Vertical_Center") << 2 << true;
    QTest::newRow("Vertical_Bottom") << 3 << true;
}

void tst_TextAlignment::knowsTheSixButtons()
{
    const TextAlignment::Button *button = TextAlignment::button(QTest::currentDataTag());
    QVERIFY(button);
    QTEST(button->part, "part");
    QTEST(TextAlignment::isVertical(*button), "isVertical");
    QCOMPARE(button->key, QTest::currentDataTag());
}

void tst_TextAlignment::knowsNoOtherKeys_data()
{
    QTest::addColumn<QString>("key");

    QTest::newRow("none") << QString();
    QTest::newRow("the code") << "Align_int";
    QTest::newRow("the step of formatting") << "Aligment";
    QTest::newRow("middle") << "Vertical_Middle";
    QTest::newRow("lower case") << "vertical_top";
    QTest::newRow("blank behind") << "Vertical_Top ";
}

void tst_TextAlignment::knowsNoOtherKeys()
{
    QFETCH(QString, key);
    QVERIFY(!TextAlignment::button(key));
}

void tst_TextAlignment::tellsInTheseOrders()
{
    QStringList all;
    for (const TextAlignment::Button &button : TextAlignment::announced)
        all << button.key;
    QCOMPARE(all, QStringList({"Vertical_Top", "Vertical_Bottom", "Vertical_Center", "Horizontal_Center",
                               "Horizontal_Left", "Horizontal_Right"}));
    QStringList axes;
    for (const auto &axis : {TextAlignment::vertical, TextAlignment::horizontal}) {
        for (const TextAlignment::Button &button : axis)
            axes << button.key;
    }
    QCOMPARE(axes, QStringList({"Vertical_Top", "Vertical_Bottom", "Vertical_Center", "Horizontal_Left",
                                "Horizontal_Right", "Horizontal_Center"}));
}

void tst_TextAlignment::placesTheText_data()
{
    QTest::addColumn<int>("content");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("middle");
    QTest::addColumn<int>("bottom");

    QTest::newRow("half as high") << 36 << 100 << 0 << 30 << 64;
    QTest::newRow("odd rest") << 35 << 100 << 0 << 30 << 65;
    QTest::newRow("a pixel lower") << 99 << 100 << 0 << -2 << 1;
    QTest::newRow("three pixels lower") << 97 << 100 << 0 << -1 << 3;
    QTest::newRow("just as high") << 100 << 100 << 0 << 2 << 2;
    QTest::newRow("higher") << 300 << 100 << 0 << 2 << 2;
    QTest::newRow("no room at all") << 36 << 0 << 0 << 2 << 2;
    QTest::newRow("margin read from a file") << -900 << 100 << 0 << 498 << 1000;
}

void tst_TextAlignment::placesTheText()
{
    QFETCH(int, content);
    QFETCH(int, height);
    QTEST(TextAlignment::topMargin(content, height), "top");
    QTEST(TextAlignment::middleMargin(content, height), "middle");
    QTEST(TextAlignment::bottomMargin(content, height), "bottom");
}

BOARDWRIGHT_TEST_MAIN(tst_TextAlignment)
#include "tst_textalignment.moc"
