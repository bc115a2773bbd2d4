#include "model/namedcolor.h"

#include "tests/support/strictmain.h"

#include <QPainter>

class tst_NamedColor : public QObject
{
    Q_OBJECT

private slots:
    void readsNamesAndHexadecimalDigits_data();
    void readsNamesAndHexadecimalDigits();
    void answersAnInvalidColorWithoutAComplaint_data();
    void answersAnInvalidColorWithoutAComplaint();
    void paintsAnInvalidColorAsBlack();
};

void tst_NamedColor::readsNamesAndHexadecimalDigits_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QColor>("color");
    QTest::newRow("white") << "white" << QColor(255, 255, 255);
    QTest::newRow("black") << "black" << QColor(0, 0, 0);
    QTest::newRow("capitals") << "WHITE" << QColor(255, 255, 255);
    QTest::newRow("two words") << "dark green" << QColor(0, 100, 0);
    QTest::newRow("six digits") << "#0a1B2c" << QColor(0x0a, 0x1b, 0x2c);
    QTest::newRow("three digits") << "#f80" << QColor(255, 136, 0);
    QTest::newRow("alpha in front") << "#80ff0000" << QColor(255, 0, 0, 128);
    QTest::newRow("twelve digits") << "#ffff00000000" << QColor(255, 0, 0);
    QTest::newRow("transparent") << "transparent" << QColor(0, 0, 0, 0);
}

void tst_NamedColor::readsNamesAndHexadecimalDigits()
{
    QFETCH(QString, name);
    QFETCH(QColor, color);
    QCOMPARE(namedColor(name).rgba(), color.rgba());
    QCOMPARE(namedColor(name), QColor(name));
}

void tst_NamedColor::answersAnInvalidColorWithoutAComplaint_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << "";
    QTest::newRow("no colour") << "no such colour";
    QTest::newRow("number") << "10";
    QTest::newRow("hash alone") << "#";
    QTest::newRow("five digits") << "#12345";
    QTest::newRow("no digits") << "#gggggg";
    QTest::newRow("without hash") << "ff0000";
    QTest::newRow("long") << QString(100000, 'f');
    QTest::newRow("not ASCII") << QString::fromUtf8("weiß");
}

void tst_NamedColor::answersAnInvalidColorWithoutAComplaint()
{
    QFETCH(QString, name);
    QVERIFY(!namedColor(name).isValid());
}

void tst_NamedColor::paintsAnInvalidColorAsBlack()
{
    QImage picture(4, 4, QImage::Format_ARGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.fillRect(picture.rect(), namedColor("no such colour"));
    painter.end();
    QCOMPARE(picture.pixel(1, 1), qRgb(0, 0, 0));
}

BOARDWRIGHT_TEST_MAIN(tst_NamedColor)
#include "tst_namedcolor.moc"
