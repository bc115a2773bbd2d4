#include "update/downloadname.h"

#include "tests/support/strictmain.h"

#include <QUrl>

class tst_DownloadName : public QObject
{
    Q_OBJECT

private slots:
    void isTheLastComponentOfTheDecodedPath_data();
    void isTheLastComponentOfTheDecodedPath();
};

void tst_DownloadName::isTheLastComponentOfTheDecodedPath_data()
{
    QTest::addColumn<QByteArray>("url");
    QTest::addColumn<QString>("name");

    const auto row = [](const char *what, const QByteArray &url, const QString &name) {
        QTest::newRow(what) << url << name;
    };
    row("plain", "http://h/setup.run", "setup.run");
    row("in folders", "http://h/a/b/setup.run", "setup.run");
    row("query and fragment", "http://h/setup.run?x=/y#/z", "setup.run");
    row("hidden file", "http://h/.setup", ".setup");
    row("space and letters", "http://h/my%20%C3%A9dition.run", "my édition.run");
    row("encoded percent sign", "http://h/a%252fb", "a%2fb");
    row("path ends in a slash", "http://h/a/", "download");
    row("no path", "http://h", "download");
    row("query alone", "http://h?x", "download");
    row("empty address", "", "download");
    row("this folder", "http://h/a/.", "download");
    row("folder above", "http://h/a/..", "download");
    row("encoded folder above", "http://h/a/%2e%2e", "download");
    row("three dots", "http://h/...", "download");
    row("spaces and dots", "http://h/%20.%20", "download");
    row("up and away", "http://h/../../../etc/passwd", "passwd");
    row("encoded slashes", "http://h/a/..%2f..%2fsetup.run", "setup.run");
    row("encoded slash at the end", "http://h/setup%2f", "download");
    row("encoded slash and folder above", "http://h/setup%2f..", "download");
    row("backslashes", "http://h/..%5c..%5csetup.run", "setup.run");
    row("backslash at the end", "http://h/setup%5c", "download");
    row("drive", "http://h/c:setup.exe", "download");
    row("stream of a file", "http://h/setup.exe:other", "download");
    row("end of text", "http://h/setup.run%00.txt", "download");
    row("line feed", "http://h/setup%0a.run", "download");
    row("device", "http://h/CON", "download");
    row("device in small letters", "http://h/nul", "download");
    row("device with suffix", "http://h/aux.tar.gz", "download");
    row("device with spaces", "http://h/prn%20%20.txt", "download");
    row("serial port", "http://h/com1.exe", "download");
    row("serial port of another script", "http://h/com%C2%B9", "download");
    row("printer port", "http://h/Lpt9", "download");
    row("console", "http://h/CONOUT$", "download");
    row("begins like a device", "http://h/console.exe", "console.exe");
    row("ends like a device", "http://h/falcon", "falcon");
    row("more than a port", "http://h/com10", "com10");
    row("device as a folder", "http://h/dev/null/setup.run", "setup.run");
}

void tst_DownloadName::isTheLastComponentOfTheDecodedPath()
{
    QFETCH(QByteArray, url);
    QFETCH(QString, name);

    QCOMPARE(downloadName(QUrl::fromEncoded(url)), name);
}

BOARDWRIGHT_TEST_MAIN(tst_DownloadName)
#include "tst_downloadname.moc"
