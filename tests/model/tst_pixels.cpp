#include "model/pixels.h"

#include <QTest>
#include <QVariantList>

#include <limits>

class tst_Pixels : public QObject
{
    Q_OBJECT

private slots:
    void readsAnyValueAsWholePixels_data();
    void readsAnyValueAsWholePixels();
    void cannotOverflowASumOfThree();
    void readsWholeNumbers_data();
    void readsWholeNumbers();
};

void tst_Pixels::readsAnyValueAsWholePixels_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("pixels");
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("integer") << QVariant(10) << 10;
    QTest::newRow("the same as a double") << QVariant(10.0) << 10;
    QTest::newRow("negative") << QVariant(-7) << -7;
    QTest::newRow("a half upwards") << QVariant(10.5) << 11;
    QTest::newRow("below a half") << QVariant(10.49) << 10;
    QTest::newRow("negative fraction") << QVariant(-10.7) << -11;
    QTest::newRow("largest") << QVariant(16777215) << 16777215;
    QTest::newRow("one more") << QVariant(16777216) << 16777215;
    QTest::newRow("largest integer") << QVariant(std::numeric_limits<int>::max()) << 16777215;
    QTest::newRow("smallest integer") << QVariant(std::numeric_limits<int>::min()) << -16777215;
    QTest::newRow("1e9") << QVariant(1e9) << 16777215;
    QTest::newRow("1e308") << QVariant(1e308) << 16777215;
    QTest::newRow("-1e308") << QVariant(-1e308) << -16777215;
    QTest::newRow("infinity") << QVariant(infinity) << 16777215;
    QTest::newRow("negative infinity") << QVariant(-infinity) << -16777215;
    QTest::newRow("no number") << QVariant(std::numeric_limits<double>::quiet_NaN()) << 0;
    QTest::newRow("tiny") << QVariant(5e-324) << 0;
    QTest::newRow("invalid") << QVariant() << 0;
    QTest::newRow("null") << QVariant::fromValue(nullptr) << 0;
    QTest::newRow("digits") << QVariant("12") << 12;
    QTest::newRow("letters") << QVariant("wide") << 0;
    QTest::newRow("true") << QVariant(true) << 1;
    QTest::newRow("list") << QVariant(QVariantList{1}) << 0;
    QTest::newRow("map") << QVariant(QVariantMap{{"X", 1}}) << 0;
}

void tst_Pixels::readsAnyValueAsWholePixels()
{
    QFETCH(QVariant, value);
    QTEST(toPixels(value), "pixels");
}

void tst_Pixels::cannotOverflowASumOfThree()
{
    QCOMPARE(maximumPixels, (1 << 24) - 1);
    QVERIFY(3 * qint64(maximumPixels) < std::numeric_limits<int>::max());
}

void tst_Pixels::readsWholeNumbers_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<int>("number");
    QTest::newRow("whole") << QJsonValue(800) << 800;
    QTest::newRow("whole real") << QJsonValue(800.0) << 800;
    QTest::newRow("a half") << QJsonValue(800.5) << 801;
    QTest::newRow("below a half") << QJsonValue(800.49) << 800;
    QTest::newRow("almost nothing") << QJsonValue(0.4) << 0;
    QTest::newRow("negative") << QJsonValue(-7) << -7;
    QTest::newRow("negative fraction") << QJsonValue(-7.6) << -8;
    QTest::newRow("a billion") << QJsonValue(1e9) << 1000000000;
    QTest::newRow("a billion and a half") << QJsonValue(1e9 + 0.5) << 1000000001;
    QTest::newRow("beyond any integer") << QJsonValue(1e10) << 0;
    QTest::newRow("a fraction beyond any integer") << QJsonValue(1e10 + 0.5) << 0;
    QTest::newRow("1e308") << QJsonValue(1e308) << 0;
    QTest::newRow("text") << QJsonValue("800") << 0;
    QTest::newRow("true") << QJsonValue(true) << 0;
    QTest::newRow("null") << QJsonValue() << 0;
    QTest::newRow("missing") << QJsonValue(QJsonValue::Undefined) << 0;
}

void tst_Pixels::readsWholeNumbers()
{
    QFETCH(QJsonValue, value);
    QTEST(wholeNumber(value), "number");
}

QTEST_APPLESS_MAIN(tst_Pixels)
#include "tst_pixels.moc"
