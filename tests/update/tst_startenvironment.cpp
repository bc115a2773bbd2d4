#include "update/startenvironment.h"

#include "tests/support/strictmain.h"

class tst_StartEnvironment : public QObject
{
    Q_OBJECT

private slots:
    void staysWhatItWasAtTheFirstCall();
};

void tst_StartEnvironment::staysWhatItWasAtTheFirstCall()
{
    qputenv("BOARDWRIGHT_TEST_BEFORE", "given");
    QCOMPARE(startEnvironment().value("BOARDWRIGHT_TEST_BEFORE"), QString("given"));
    qputenv("BOARDWRIGHT_TEST_BEFORE", "changed");
    qputenv("BOARDWRIGHT_TEST_AFTER", "added");
    QCOMPARE(startEnvironment().value("BOARDWRIGHT_TEST_BEFORE"), QString("given"));
    QVERIFY(!startEnvironment().contains("BOARDWRIGHT_TEST_AFTER"));
}

BOARDWRIGHT_TEST_MAIN(tst_StartEnvironment)
#include "tst_startenvironment.moc"
