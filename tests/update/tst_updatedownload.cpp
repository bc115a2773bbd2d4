#include "tests/update/ownstreams.h"
#include "tests/update/updatetest.h"
#include "update/startenvironment.h"

#include <QDir>
#include <QFileInfo>
#include <QNetworkReply>
#include <QTcpSocket>
#include <QTimer>

// From a published version to the saved and started file, with a real server and real boxes.
class tst_UpdateDownload : public UpdateTest
{
    Q_OBJECT

private slots:
    void savesIntoTheWorkingDirectoryAndTells();
    void forgetsAndDeletesTheReply();
    void savesUnderTheNameOfTheAddress_data();
    void savesUnderTheNameOfTheAddress();
    void savesOutsideNothing_data();
    void savesOutsideNothing();
    void savesALargeFileWhole();
    void savesWhatIsPackedAsItIs();
    void replacesAnOlderFile();
    void replacesALinkAndNotItsTarget_data();
    void replacesALinkAndNotItsTarget();
    void tellsOfAFailure_data();
    void tellsOfAFailure();
    void tellsOfAFailureWithTheEncodedAddress();
    void takesNoMoreThanAGibibyte();
    void showsTheServersWordsWithoutMarkup();
    void refusesWhatIsNotOfTheWeb_data();
    void refusesWhatIsNotOfTheWeb();
    void refusesAnImpossibleHost();
    void followsNoRedirect_data();
    void followsNoRedirect();
    void savesTheBodyOfOtherStatuses_data();
    void savesTheBodyOfOtherStatuses();
    void showsEachSslErrorThenTheFailure();
    void saysOnStandardErrorAloneThatAFolderIsInTheWay();
    void leavesNothingOnAFullDisk_data();
    void leavesNothingOnAFullDisk();
    void escapeDoesNotEndTheBox();
    void runStartsTheSavedFileAndQuits();
    void runHandsOnTheUsersOwnEnvironment();
    void downloadsSideBySide();

private:
    /// Checks with this address published, which is to be found, and starts the download.
    void startDownload(UpdateMagaer &updates, const QByteArray &url);
    /// The same, and waits for its end; the dialogs that came are in seen().
    void download(const QByteArray &url, DialogAnswers &answers);
    /// Lets a shell script of this text be published and run, until the application quits.
    void runScript(const QByteArray &script, const QByteArray &path);

    static const QByteArray oldFile;
};

const QByteArray tst_UpdateDownload::oldFile = "an older download";

namespace
{
constexpr int mebibyte = 1024 * 1024;

const SeenDialog &onlyBox(const DialogAnswers &answers)
{
    return answers.seen().constFirst();
}

void verifyIsError(const SeenDialog &box, const QString &title, const QString &text)
{
    QCOMPARE(box.icon, QMessageBox::Critical);
    QCOMPARE(box.title, title);
    QCOMPARE(box.text, text);
    QCOMPARE(box.buttons, QStringList("OK"));
}

QString succeeded(const QByteArray &url, const QString &name)
{
    return "Download of " + url + " succeeded (saved to " + name + ")";
}

QString certificateFile()
{
    return BOARDWRIGHT_SOURCE_DIR "/tests/update/selfsigned.pem";
}
} // namespace

void tst_UpdateDownload::startDownload(UpdateMagaer &updates, const QByteArray &url)
{
    HttpServer endpoint;
    endpoint.give(descriptorPath(), descriptorAnswer("1.0", QString::fromUtf8(url)));
    serveEndpointFrom(endpoint);
    QVERIFY(updates.check());
    updates.download();
}

void tst_UpdateDownload::download(const QByteArray &url, DialogAnswers &answers)
{
    UpdateMagaer updates;
    startDownload(updates, url);
    QTRY_VERIFY_WITH_TIMEOUT(updates.downloads().isEmpty(), 30000);
    QVERIFY(answers.areUsedUp());
}

void tst_UpdateDownload::savesIntoTheWorkingDirectoryAndTells()
{
    const QByteArray bytes("\x7f\0\r\n\xff setup", 11);
    server().give("/files/setup.run", httpAnswer(bytes));
    const QByteArray url = server().url("/files/setup.run");
    DialogAnswers answers;
    answers.press("Close");
    download(url, answers);
    const SeenDialog &box = onlyBox(answers);
    QCOMPARE(box.icon, QMessageBox::Information);
    QCOMPARE(box.title, QString("Download succeeded!"));
    QCOMPARE(box.text, succeeded(url, "setup.run"));
    QCOMPARE(box.buttons, QStringList({"Run", "Close"}));
    QCOMPARE(box.defaultButton, QString("Run"));
    QCOMPARE(files(), QStringList("setup.run"));
    QCOMPARE(readFile("setup.run"), bytes);
    QVERIFY(!QFileInfo("setup.run").isExecutable());
}

void tst_UpdateDownload::forgetsAndDeletesTheReply()
{
    server().give("/setup.run", httpAnswer("new"));
    UpdateMagaer updates;
    int whileTelling = 0;
    DialogAnswers answers;
    answers.act([&](QDialog *dialog) {
        whileTelling = updates.downloads().size();
        dialog->done(QDialog::Rejected);
        return true;
    });
    startDownload(updates, server().url("/setup.run"));
    QCOMPARE(updates.downloads().size(), 1);
    const QPointer<QNetworkReply> reply = updates.downloads().constFirst();
    QTRY_VERIFY(updates.downloads().isEmpty());
    QTRY_VERIFY(!reply);
    QCOMPARE(whileTelling, 1);
}

void tst_UpdateDownload::savesUnderTheNameOfTheAddress_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("asked");
    QTest::addColumn<QString>("name");

    const auto row = [](const char *what, const QByteArray &path, const QByteArray &asked,
                        const QString &name) {
        QTest::newRow(what) << path << asked << name;
    };
    row("ends in a slash", "/files/", "/files/", "download");
    row("no path", "", "/", "download");
    row("query", "/setup.run?version=1.0", "/setup.run", "setup.run");
    row("space", "/my setup.run", "/my%20setup.run", "my setup.run");
    row("encoded space", "/my%20setup.run", "/my%20setup.run", "my setup.run");
    row("space at the end", "/setup.run ", "/setup.run%20", "setup.run ");
    row("looks like a place holder", "/%251%252.run", "/%251%252.run", "%1%2.run");
    row("device name", "/aux.run", "/aux.run", "download");
    // Its one byte is no text in an address, so the place holder for that stands there.
    row("letter of Latin-1", "/\xc3\xa9.run", "/%EF%BF%BD.run", "\xef\xbf\xbd.run");
    // Letters beyond Latin-1 become question marks on purpose, and so begin a query.
    row("letters beyond Latin-1", "/\xd0\xb6/setup.run", "/", "download");
}

void tst_UpdateDownload::savesUnderTheNameOfTheAddress()
{
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, asked);
    QFETCH(QString, name);

    server().give(asked, httpAnswer("new"));
    DialogAnswers answers;
    answers.press("Close");
    download(server().url(path), answers);
    QCOMPARE(server().requests(), QList<QByteArray>({asked}));
    QCOMPARE(files(), QStringList(name));
    QVERIFY(onlyBox(answers).text.endsWith("succeeded (saved to " + name + ")"));
    if (path == asked)
        QCOMPARE(onlyBox(answers).text, succeeded(server().url(path), name));
    QCOMPARE(readFile(name), QByteArray("new"));
}

void tst_UpdateDownload::savesOutsideNothing_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QString>("name");

    QTest::newRow("folder above") << QByteArray("/a/../outside/evil") << "evil";
    QTest::newRow("encoded folder above") << QByteArray("/%2e%2e/outside/evil") << "evil";
    QTest::newRow("encoded slashes") << QByteArray("/..%2foutside%2fevil") << "evil";
    QTest::newRow("encoded backslashes") << QByteArray("/..%5coutside%5cevil") << "evil";
    QTest::newRow("end of text") << QByteArray("/evil%00.txt") << "download";
    QTest::newRow("folder above alone") << QByteArray("/a/%2e%2e") << "download";
    QTest::newRow("encoded slash at the end") << QByteArray("/outside%2f") << "download";
}

void tst_UpdateDownload::savesOutsideNothing()
{
    QFETCH(QByteArray, path);
    QFETCH(QString, name);

    server().give("", httpAnswer("new"));
    DialogAnswers answers;
    answers.press("Close");
    download(server().url(path), answers);
    QCOMPARE(files(), QStringList(name));
    QVERIFY(QDir(outside()).isEmpty());
    QCOMPARE(QDir("..").entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList({"inside", "outside"}));
}

void tst_UpdateDownload::savesALargeFileWhole()
{
    QByteArray bytes(20 * mebibyte, 'x');
    for (int place = 0; place < bytes.size(); place += 4093)
        bytes[place] = char(place / 4093);
    server().give("/setup.run", httpAnswer(bytes));
    DialogAnswers answers;
    answers.press("Close");
    download(server().url("/setup.run"), answers);
    QVERIFY(readFile("setup.run") == bytes);
}

// A few bytes could unpack to more than any disk holds.
void tst_UpdateDownload::savesWhatIsPackedAsItIs()
{
    const QByteArray packed = QByteArray::fromHex("1f8b0800000000000203cb4b2d07004544e36b03000000");
    server().give("/setup.run", httpAnswer(packed, "200 OK", "Content-Encoding: gzip\r\n"));
    DialogAnswers answers;
    answers.press("Close");
    download(server().url("/setup.run"), answers);
    QVERIFY(server().lastHeaders().contains("Accept-Encoding: identity\r\n"));
    QCOMPARE(readFile("setup.run"), packed);
}

// Deleted first, not written over: another name of the old file keeps its bytes.
void tst_UpdateDownload::replacesAnOlderFile()
{
    QVERIFY(writeFile("setup.run", oldFile + " that is longer"));
    QCOMPARE(::link("setup.run", "other"), 0);
    server().give("/setup.run", httpAnswer("new"));
    DialogAnswers answers;
    answers.press("Close");
    download(server().url("/setup.run"), answers);
    QCOMPARE(files(), QStringList({"other", "setup.run"}));
    QCOMPARE(readFile("setup.run"), QByteArray("new"));
    QCOMPARE(readFile("other"), oldFile + " that is longer");
}

void tst_UpdateDownload::replacesALinkAndNotItsTarget_data()
{
    QTest::addColumn<bool>("hasTarget");

    QTest::newRow("link to a file") << true;
    QTest::newRow("link to nothing") << false;
}

void tst_UpdateDownload::replacesALinkAndNotItsTarget()
{
    QFETCH(bool, hasTarget);

    const QString target = outside() + "/target";
    if (hasTarget)
        QVERIFY(writeFile(target, oldFile));
    QVERIFY(QFile::link(target, "setup.run"));
    server().give("/setup.run", httpAnswer("new"));
    DialogAnswers answers;
    answers.press("Close");
    download(server().url("/setup.run"), answers);
    QVERIFY(!QFileInfo("setup.run").isSymLink());
    QCOMPARE(readFile("setup.run"), QByteArray("new"));
    QCOMPARE(QFile::exists(target), hasTarget);
    QCOMPARE(readFile(target), hasTarget ? oldFile : QByteArray());
}

void tst_UpdateDownload::tellsOfAFailure_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("error");

    QTest::newRow("missing") << httpAnswer("new", "404 Not Found")
                             << "Error transferring %1 - server replied: Not Found";
    QTest::newRow("broken server") << httpAnswer("new", "500 Out of order")
                                   << "Error transferring %1 - server replied: Out of order";
    QTest::newRow("closed in the middle")
        << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nhalf") << "Connection closed";
    QTest::newRow("redirect closed in the middle")
        << QByteArray("HTTP/1.1 302 Elsewhere\r\nContent-Length: 100\r\n\r\nhalf") << "Connection closed";
    QTest::newRow("a whole gibibyte closed in the middle")
        << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 1073741824\r\n\r\nhalf") << "Connection closed";
    QTest::newRow("closed at once") << QByteArray() << "Connection closed";
}

void tst_UpdateDownload::tellsOfAFailure()
{
    QFETCH(QByteArray, answer);
    QFETCH(QString, error);

    QVERIFY(writeFile("setup.run", oldFile));
    server().give("/setup.run", answer);
    const QByteArray url = server().url("/setup.run");
    DialogAnswers answers;
    answers.press("OK");
    download(url, answers);
    verifyIsError(onlyBox(answers), "Download of failed",
                  "Url = " + url + " Error:" + error.replace("%1", url));
    QCOMPARE(files(), QStringList("setup.run"));
    QCOMPARE(readFile("setup.run"), oldFile);
}

void tst_UpdateDownload::tellsOfAFailureWithTheEncodedAddress()
{
    const QByteArray url = server().url("/%C3%A9%01.run");
    DialogAnswers answers;
    answers.press("OK");
    download(url, answers);
    QVERIFY(onlyBox(answers).text.startsWith("Url = " + url + " Error:Error transferring "));
}

void tst_UpdateDownload::takesNoMoreThanAGibibyte()
{
    server().on("/setup.run", [](QTcpSocket *socket) {
        socket->write("HTTP/1.1 200 OK\r\nContent-Length: 1073741825\r\n\r\nbeginning");
    });
    DialogAnswers answers;
    answers.press("OK");
    download(server().url("/setup.run"), answers);
    QCOMPARE(onlyBox(answers).title, QString("Download of failed"));
    QVERIFY(onlyBox(answers).text.endsWith(" Error:Operation canceled"));
    QVERIFY(files().isEmpty());
}

void tst_UpdateDownload::showsTheServersWordsWithoutMarkup()
{
    server().give("/setup.run", httpAnswer("", "404 <h1>Click <a href='http://h/'>here</a></h1>"));
    bool isPlain = false;
    bool hasParent = true;
    DialogAnswers answers;
    answers.act([&isPlain, &hasParent](QDialog *dialog) {
        hasParent = dialog->parent();
        isPlain = qobject_cast<QMessageBox *>(dialog)->textFormat() == Qt::PlainText;
        dialog->done(QMessageBox::Ok);
        return true;
    });
    download(server().url("/setup.run"), answers);
    QVERIFY(isPlain);
    QVERIFY(!hasParent);
    QVERIFY(onlyBox(answers).text.endsWith("<h1>Click <a href='http://h/'>here</a></h1>"));
}

void tst_UpdateDownload::refusesWhatIsNotOfTheWeb_data()
{
    QTest::addColumn<QByteArray>("url");
    QTest::addColumn<QByteArray>("protocol");

    QTest::newRow("empty") << QByteArray("") << QByteArray("");
    QTest::newRow("relative") << QByteArray("setup.run") << QByteArray("");
    QTest::newRow("absolute path") << QByteArray("/etc/hostname") << QByteArray("");
    QTest::newRow("no protocol") << QByteArray("//127.0.0.1/setup.run") << QByteArray("");
    QTest::newRow("local file") << QByteArray("file:///etc/hostname") << QByteArray("file");
    QTest::newRow("endless device") << QByteArray("file:///dev/zero") << QByteArray("file");
    QTest::newRow("resource") << QByteArray("qrc:/assets/resources/empty.lay") << QByteArray("qrc");
    QTest::newRow("data in the address") << QByteArray("data:text/plain,new") << QByteArray("data");
    QTest::newRow("file transfer") << QByteArray("ftp://127.0.0.1:1/setup.run") << QByteArray("ftp");
    QTest::newRow("script") << QByteArray("javascript:alert(1)") << QByteArray("javascript");
}

void tst_UpdateDownload::refusesWhatIsNotOfTheWeb()
{
    QFETCH(QByteArray, url);
    QFETCH(QByteArray, protocol);

    DialogAnswers answers;
    answers.press("OK");
    download(url, answers);
    verifyIsError(onlyBox(answers), "Download of failed",
                  "Url = " + url + " Error:Protocol \"" + protocol + "\" is unknown");
    QVERIFY(files().isEmpty());
}

void tst_UpdateDownload::refusesAnImpossibleHost()
{
    DialogAnswers answers;
    answers.press("OK");
    download("http:///setup.run", answers);
    QCOMPARE(onlyBox(answers).title, QString("Download of failed"));
    QVERIFY(files().isEmpty());
}

void tst_UpdateDownload::followsNoRedirect_data()
{
    QTest::addColumn<QByteArray>("status");

    for (const char *status : {"301", "302", "303", "305", "307", "308"})
        QTest::newRow(status) << QByteArray(status) + " Elsewhere";
}

void tst_UpdateDownload::followsNoRedirect()
{
    QFETCH(QByteArray, status);

    QVERIFY(writeFile("setup.run", oldFile));
    const QByteArray location = "Location: " + server().url("/elsewhere") + "\r\n";
    server().give("/setup.run", httpAnswer("new", status, location));
    server().give("/elsewhere", httpAnswer("newer"));
    DialogAnswers answers;
    answers.press("OK");
    download(server().url("/setup.run"), answers);
    verifyIsError(onlyBox(answers), "Server error!", "Request was redirected.\n");
    QCOMPARE(server().requests(), QList<QByteArray>({"/setup.run"}));
    QCOMPARE(files(), QStringList("setup.run"));
    QCOMPARE(readFile("setup.run"), oldFile);
}

void tst_UpdateDownload::savesTheBodyOfOtherStatuses_data()
{
    QTest::addColumn<QByteArray>("status");

    for (const char *status : {"201", "300", "306"})
        QTest::newRow(status) << QByteArray(status) + " Other";
}

void tst_UpdateDownload::savesTheBodyOfOtherStatuses()
{
    QFETCH(QByteArray, status);

    server().give("/setup.run", httpAnswer("new", status));
    DialogAnswers answers;
    answers.press("Close");
    download(server().url("/setup.run"), answers);
    QCOMPARE(onlyBox(answers).title, QString("Download succeeded!"));
    QCOMPARE(readFile("setup.run"), QByteArray("new"));
}

void tst_UpdateDownload::showsEachSslErrorThenTheFailure()
{
    QVERIFY(QSslSocket::supportsSsl());
    QVERIFY(writeFile("setup.run", oldFile));
    server().secureWith(certificateFile());
    server().give("/setup.run", httpAnswer("new"));
    DialogAnswers answers;
    answers.press("OK").press("OK").press("OK");
    download(server().url("/setup.run"), answers);
    const QList<SeenDialog> &boxes = answers.seen();
    verifyIsError(boxes.at(0), "SSL error", QSslError(QSslError::HostNameMismatch).errorString());
    verifyIsError(boxes.at(1), "SSL error", QSslError(QSslError::SelfSignedCertificate).errorString());
    QCOMPARE(boxes.at(2).title, QString("Download of failed"));
    QVERIFY(boxes.at(2).text.startsWith("Url = " + server().url("/setup.run") + " Error:"));
    QVERIFY(server().requests().isEmpty());
    QCOMPARE(readFile("setup.run"), oldFile);
}

void tst_UpdateDownload::saysOnStandardErrorAloneThatAFolderIsInTheWay()
{
    QVERIFY(QDir::current().mkdir("setup.run"));
    server().give("/setup.run", httpAnswer("new"));
    QFile file("setup.run");
    QVERIFY(!file.open(QIODevice::WriteOnly));
    const StandardError said(outside() + "/said");
    DialogAnswers none;
    download(server().url("/setup.run"), none);
    QCOMPARE(said.text(), "Could not open setup.run for writing: " + file.errorString().toLocal8Bit() + "\n");
    QVERIFY(QFileInfo("setup.run").isDir());
}

void tst_UpdateDownload::leavesNothingOnAFullDisk_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("room");

    QTest::newRow("full while writing") << mebibyte << 66000;
    QTest::newRow("full at the last flush") << 5000 << 4000;
}

void tst_UpdateDownload::leavesNothingOnAFullDisk()
{
    QFETCH(int, length);
    QFETCH(int, room);

    server().give("/setup.run", httpAnswer(QByteArray(length, 'x')));
    const StandardError said(outside() + "/said");
    const FullDisk full{rlim_t(room)};
    DialogAnswers none;
    download(server().url("/setup.run"), none);
    QVERIFY(said.text().startsWith("Could not open setup.run for writing: "));
    QVERIFY(files().isEmpty());
}

void tst_UpdateDownload::escapeDoesNotEndTheBox()
{
    server().give("/setup.run", httpAnswer("new"));
    bool isStillThere = false;
    bool hasParent = true;
    DialogAnswers answers;
    answers.act([&isStillThere, &hasParent](QDialog *dialog) {
        hasParent = dialog->parent();
        QTest::keyClick(dialog, Qt::Key_Escape);
        dialog->close();
        isStillThere = dialog->isVisible();
        dialog->done(QDialog::Rejected);
        return true;
    });
    download(server().url("/setup.run"), answers);
    QVERIFY(isStillThere);
    QVERIFY(!hasParent);
    QVERIFY(!QFileInfo("setup.run").isExecutable());
}

void tst_UpdateDownload::runScript(const QByteArray &script, const QByteArray &path)
{
    server().give(path, httpAnswer("#!/bin/sh\n{ " + script + "; } >part && mv part report\n"));
    DialogAnswers answers;
    answers.press("Run");
    UpdateMagaer updates;
    QTimer::singleShot(0, &updates, [&] { startDownload(updates, server().url(path)); });
    QTimer::singleShot(20000, &updates, [] { QCoreApplication::exit(1); });
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(answers.areUsedUp());
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists("report"), 30000);
}

// Its name is that of an installed program, which is not the one to run.
void tst_UpdateDownload::runStartsTheSavedFileAndQuits()
{
    const QByteArray own = QByteArray::number(QCoreApplication::applicationPid());
    runScript("[ $PPID -ne " + own + " ] && echo detached; echo $# arguments; echo $0; pwd", "/true");
    const QByteArray folder = QFile::encodeName(QDir::currentPath());
    QCOMPARE(readFile("report"), "detached\n0 arguments\n" + folder + "/true\n" + folder + "\n");
    const QFile::Permissions rights = QFile::permissions("true");
    QVERIFY(rights.testFlag(QFile::ExeOwner));
    QVERIFY(rights.testFlag(QFile::ReadOwner));
    QVERIFY(!rights.testFlag(QFile::ExeGroup));
    QVERIFY(!rights.testFlag(QFile::ExeOther));
}

void tst_UpdateDownload::runHandsOnTheUsersOwnEnvironment()
{
    QVERIFY(!startEnvironment().contains("BOARDWRIGHT_TEST_OWN"));
    qputenv("BOARDWRIGHT_TEST_OWN", "set later");
    runScript("echo \"${BOARDWRIGHT_TEST_OWN-unset} ${LC_ALL-unset}\"", "/setup.run");
    qunsetenv("BOARDWRIGHT_TEST_OWN");
    QCOMPARE(readFile("report"), "unset " + qgetenv("LC_ALL") + "\n");
}

void tst_UpdateDownload::downloadsSideBySide()
{
    server().give("/one", httpAnswer("1"));
    server().give("/two", httpAnswer("2"));
    DialogAnswers answers;
    answers.press("Close").press("Close");
    UpdateMagaer one;
    UpdateMagaer two;
    startDownload(one, server().url("/one"));
    startDownload(two, server().url("/two"));
    QTRY_VERIFY(one.downloads().isEmpty() && two.downloads().isEmpty());
    QVERIFY(answers.areUsedUp());
    QCOMPARE(files(), QStringList({"one", "two"}));
}

BOARDWRIGHT_TEST_MAIN(tst_UpdateDownload)
#include "tst_updatedownload.moc"
