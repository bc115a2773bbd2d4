#include "model/fontfamilies.h"

#include <QTest>

class tst_FontFamilies : public QObject
{
    Q_OBJECT

private slots:
    void isEmptyAtStart();
    void keepsFirstSeenOrderWithoutDuplicates();
    void tellsNamesApartThatDifferInCase();
    void answersACopy();
};

void tst_FontFamilies::isEmptyAtStart()
{
    QCOMPARE(FontFamilies::list(), QStringList());
}

void tst_FontFamilies::keepsFirstSeenOrderWithoutDuplicates()
{
    FontFamilies::append({"Zebra", "Apple", "Zebra"});
    FontFamilies::append({"Mango", "Apple"});
    FontFamilies::append({});
    QCOMPARE(FontFamilies::list(), QStringList({"Zebra", "Apple", "Mango"}));
}

void tst_FontFamilies::tellsNamesApartThatDifferInCase()
{
    FontFamilies::append({"zebra", "Zebra "});
    QCOMPARE(FontFamilies::list(), QStringList({"Zebra", "Apple", "Mango", "zebra", "Zebra "}));
}

void tst_FontFamilies::answersACopy()
{
    QStringList copy = FontFamilies::list();
    const QStringList before = copy;
    copy.clear();
    QCOMPARE(FontFamilies::list(), before);
}

QTEST_APPLESS_MAIN(tst_FontFamilies)
#include "tst_fontfamilies.moc"
