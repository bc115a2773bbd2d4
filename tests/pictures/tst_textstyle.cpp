#include "pictures/textstyle.h"

#include "tests/support/strictmain.h"

#include <QFont>

class tst_TextStyle : public QObject
{
    Q_OBJECT

private slots:
    void setsOneThing_data();
    void setsOneThing();
    void setsNothingForOtherKeys_data();
    void setsNothingForOtherKeys();
    void readsAnyTypeOfValue();
    void namesTheFontTwice();
};

void tst_TextStyle::setsOneThing_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("property");
    QTest::addColumn<QVariant>("set");

    QTest::newRow("Italic") << QVariant(true) << int(QTextFormat::FontItalic) << QVariant(true);
    QTest::newRow("Underlined") << QVariant(true) << int(QTextFormat::TextUnderlineStyle)
                                << QVariant(int(QTextCharFormat::SingleUnderline));
    QTest::newRow("Size") << QVariant(12) << int(QTextFormat::FontPointSize) << QVariant(12.0);
    QTest::newRow("Bold") << QVariant(true) << int(QTextFormat::FontWeight) << QVariant(75);
    QTest::newRow("Color") << QVariant("red") << int(QTextFormat::ForegroundBrush)
                           << QVariant(QBrush(Qt::red));
    QTest::newRow("Font") << QVariant("Oswald") << int(QTextFormat::FontFamily) << QVariant("Oswald");
}

void tst_TextStyle::setsOneThing()
{
    QFETCH(QVariant, value);
    QFETCH(int, property);
    QVERIFY(TextStyle::isStyle(QTest::currentDataTag()));
    const QTextCharFormat format = TextStyle::charFormat(QTest::currentDataTag(), value);
    QTEST(format.property(property), "set");
    QVERIFY(format.propertyCount() <= 2);
}

void tst_TextStyle::setsNothingForOtherKeys_data()
{
    QTest::addColumn<QString>("key");

    for (const char *key : {"Text", "Text Type", "Auto Size", "Align_int", "Aligment", "Vertical_Top", "X",
                            "bold", "Underline", ""})
        QTest::addRow("\"%s\"", key) << QString(key);
}

void tst_TextStyle::setsNothingForOtherKeys()
{
    QFETCH(QString, key);
    QVERIFY(!TextStyle::isStyle(key));
    QVERIFY(TextStyle::charFormat(key, true).isEmpty());
}

void tst_TextStyle::readsAnyTypeOfValue()
{
    QCOMPARE(TextStyle::charFormat("Bold", QVariant()).fontWeight(), 50);
    QCOMPARE(TextStyle::charFormat("Bold", "true").fontWeight(), 75);
    QCOMPARE(TextStyle::charFormat("Size", "7").fontPointSize(), 7.0);
    QCOMPARE(TextStyle::charFormat("Size", 7.6).fontPointSize(), 8.0);
    QCOMPARE(TextStyle::charFormat("Size", "large").fontPointSize(), 0.0);
    QCOMPARE(TextStyle::charFormat("Size", -5).fontPointSize(), -5.0);
    QCOMPARE(TextStyle::charFormat("Font", QVariant()).fontFamily(), QString());
    QCOMPARE(TextStyle::charFormat("Color", "#12ab3c").foreground().color(), QColor(0x12, 0xab, 0x3c));
    QVERIFY(!TextStyle::charFormat("Color", 7).foreground().color().isValid());
}

void tst_TextStyle::namesTheFontTwice()
{
    QTextCharFormat format;
    format.setFontFamilies({"First", "Second"});
    format.merge(TextStyle::charFormat("Font", "Oswald"));
    QCOMPARE(format.fontFamily(), QString("Oswald"));
    QCOMPARE(format.font().families(), QStringList("Oswald"));
}

BOARDWRIGHT_TEST_MAIN(tst_TextStyle)
#include "tst_textstyle.moc"
