#include "tests/update/updatetest.h"

#include <QLineEdit>
#include <QTcpSocket>
#include <QTimer>

// The question for a published version, asked of a real server.
class tst_UpdateCheck : public UpdateTest
{
    Q_OBJECT

private slots:
    void asksForTheDescriptorOfTheEndpoint();
    void tellsWhetherAnotherVersionIsPublished_data();
    void tellsWhetherAnotherVersionIsPublished();
    void saysNothingWhenTheAnswerIsNone_data();
    void saysNothingWhenTheAnswerIsNone();
    void saysNothingWithoutServer();
    void saysNothingWhenTheServerHangsUp();
    void followsNoRedirect_data();
    void followsNoRedirect();
    void takesADescriptorOfOneMebibyte();
    void takesNoLargerDescriptor_data();
    void takesNoLargerDescriptor();
    void stopsReadingAnEndlessDescriptor();
    void readsNoFurtherWhileAnotherCheckHoldsItUp();
    void logsTheDescriptor();
    void handlesKeysWhileAnAnswerTrickles();
    void canBeUsedAgainMeanwhile();
    void asksAgainWithTheSameObject();
    void endsWithTheApplication();
    void allEndWithTheApplication();

private:
    /// What a check answers; it fails when it shows or fetches anything.
    bool quietCheck();
};

namespace
{
constexpr int mebibyte = 1024 * 1024;

/// A descriptor of another version that is as long as wanted.
QByteArray paddedDescriptor(int length)
{
    const QByteArray descriptor = R"({"version": "1.0"})";
    return descriptor + QByteArray(length - descriptor.size(), ' ');
}

QByteArray headOfLength(qint64 length)
{
    return "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(length) + "\r\n\r\n";
}

/// Answers when the other connection has taken nothing more for a while.
void answerAfter(const QTcpSocket *other, QTcpSocket *socket)
{
    auto *pause = new QTimer(socket);
    pause->setSingleShot(true);
    pause->setInterval(200);
    QObject::connect(other, &QTcpSocket::bytesWritten, pause, [pause] { pause->start(); });
    QObject::connect(pause, &QTimer::timeout, socket, [socket] {
        socket->write(descriptorAnswer("1.0", QString()));
        socket->disconnectFromHost();
    });
    pause->start();
}

/// Runs the application until it quits; false when that has to be forced.
bool runsToItsEnd()
{
    QTimer::singleShot(20000, qApp, [] { QCoreApplication::exit(1); });
    return QApplication::exec() == 0;
}
} // namespace

bool tst_UpdateCheck::quietCheck()
{
    const DialogAnswers none;
    UpdateMagaer updates;
    const bool isPublished = updates.check();
    QCoreApplication::processEvents();
    const bool wasQuiet = none.areUsedUp() && none.seen().isEmpty() && files().isEmpty() &&
                          server().requests().count(descriptorPath()) == server().requests().size() &&
                          updates.downloads().isEmpty();
    if (!wasQuiet)
        QTest::qFail("the check did more than to ask", __FILE__, __LINE__);
    return isPublished;
}

void tst_UpdateCheck::asksForTheDescriptorOfTheEndpoint()
{
    QVERIFY(!quietCheck());
    QCOMPARE(server().requests(), QList<QByteArray>({descriptorPath()}));
    QVERIFY(descriptorPath().endsWith("/update.txt"));
    QVERIFY(server().lastHeaders().startsWith("GET "));
    QVERIFY(server().lastHeaders().contains("Accept-Encoding: identity\r\n"));
}

void tst_UpdateCheck::tellsWhetherAnotherVersionIsPublished_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<bool>("isPublished");

    QTest::newRow("this one") << QByteArray(R"("0.9")") << false;
    QTest::newRow("this one with escapes") << QByteArray(R"("0\u002e9")") << false;
    QTest::newRow("newer") << QByteArray(R"("1.0")") << true;
    QTest::newRow("older") << QByteArray(R"("0.8")") << true;
    QTest::newRow("equal as a number") << QByteArray(R"("0.90")") << true;
    QTest::newRow("with a space") << QByteArray(R"("0.9 ")") << true;
    QTest::newRow("with a letter") << QByteArray(R"("v0.9")") << true;
    QTest::newRow("empty") << QByteArray(R"("")") << true;
    QTest::newRow("words") << QByteArray(R"("next year")") << true;
    QTest::newRow("number, reads as empty") << QByteArray("0.9") << true;
    QTest::newRow("null, reads as empty") << QByteArray("null") << true;
    QTest::newRow("truth value, reads as empty") << QByteArray("true") << true;
    QTest::newRow("list, reads as empty") << QByteArray(R"(["0.9"])") << true;
    QTest::newRow("object, reads as empty") << QByteArray(R"({"version": "0.9"})") << true;
}

void tst_UpdateCheck::tellsWhetherAnotherVersionIsPublished()
{
    QFETCH(QByteArray, version);
    QFETCH(bool, isPublished);

    server().give(descriptorPath(), httpAnswer(R"({"version": )" + version + R"(, "url": "http://h/x"})"));
    QCOMPARE(quietCheck(), isPublished);
}

void tst_UpdateCheck::saysNothingWhenTheAnswerIsNone_data()
{
    QTest::addColumn<QByteArray>("answer");

    const QByteArray descriptor = R"({"version": "1.0", "url": "http://h/x"})";
    // The descriptor above, packed.
    const QByteArray packed =
        QByteArray::fromHex("1f8b0800000000000203ab562a4b2d2acecccf53b2525032d43350d251502a2d"
                            "ca01f1324a4a0aacf4f533f42b946a0162ac9dd527000000");
    QTest::newRow("empty") << httpAnswer("");
    QTest::newRow("no JSON") << httpAnswer("version 1.0");
    QTest::newRow("a page") << httpAnswer("<html><body>1.0</body></html>");
    QTest::newRow("cut short") << httpAnswer(descriptor.chopped(1));
    QTest::newRow("two documents") << httpAnswer(descriptor + descriptor);
    QTest::newRow("list") << httpAnswer("[" + descriptor + "]");
    QTest::newRow("text") << httpAnswer(R"("1.0")");
    QTest::newRow("no version") << httpAnswer(R"({"url": "http://h/x"})");
    QTest::newRow("version in capitals") << httpAnswer(R"({"Version": "1.0"})");
    QTest::newRow("version deeper down") << httpAnswer(R"({"update": {"version": "1.0"}})");
    QTest::newRow("too deep") << httpAnswer(QByteArray(100000, '['));
    QTest::newRow("invalid UTF-8") << httpAnswer("{\"version\": \"\xff\xfe\"}");
    QTest::newRow("UTF-16") << httpAnswer(QByteArray("{\0\"\0v\0\"\0:\0\"\0\"\0}\0", 16));
    QTest::newRow("packed unasked") << httpAnswer(packed, "200 OK", "Content-Encoding: gzip\r\n");
    QTest::newRow("page of a missing file") << httpAnswer(descriptor, "404 Not Found");
    QTest::newRow("page of a broken server") << httpAnswer(descriptor, "500 Internal Server Error");
    QTest::newRow("password wanted") << httpAnswer(descriptor, "401 Unauthorized",
                                                   "WWW-Authenticate: Basic realm=\"x\"\r\n");
    QTest::newRow("less than announced") << headOfLength(descriptor.size() + 1) + descriptor;
    QTest::newRow("no HTTP") << QByteArray("220 ready\r\n\r\n");
    QTest::newRow("nothing at all") << QByteArray();
}

void tst_UpdateCheck::saysNothingWhenTheAnswerIsNone()
{
    QFETCH(QByteArray, answer);

    server().give(descriptorPath(), answer);
    QVERIFY(!quietCheck());
    QVERIFY(!server().requests().isEmpty());
}

void tst_UpdateCheck::saysNothingWithoutServer()
{
    server().close();
    QVERIFY(!quietCheck());
}

void tst_UpdateCheck::saysNothingWhenTheServerHangsUp()
{
    server().on(descriptorPath(), [](QTcpSocket *socket) { socket->abort(); });
    UpdateMagaer updates;
    QVERIFY(!updates.check());
}

void tst_UpdateCheck::followsNoRedirect_data()
{
    QTest::addColumn<QByteArray>("status");

    for (const char *status : {"301", "302", "303", "305", "307", "308"})
        QTest::newRow(status) << QByteArray(status) + " Elsewhere";
}

void tst_UpdateCheck::followsNoRedirect()
{
    QFETCH(QByteArray, status);

    const QByteArray elsewhere = server().url("/elsewhere.txt");
    server().give(descriptorPath(), httpAnswer("", status, "Location: " + elsewhere + "\r\n"));
    server().give("/elsewhere.txt", descriptorAnswer("1.0", "http://h/x"));
    QVERIFY(!quietCheck());
    QCOMPARE(server().requests(), QList<QByteArray>({descriptorPath()}));
}

void tst_UpdateCheck::takesADescriptorOfOneMebibyte()
{
    server().give(descriptorPath(), httpAnswer(paddedDescriptor(mebibyte)));
    QVERIFY(quietCheck());
}

void tst_UpdateCheck::takesNoLargerDescriptor_data()
{
    QTest::addColumn<QByteArray>("answer");

    const QByteArray descriptor = paddedDescriptor(mebibyte + 1);
    QTest::newRow("one byte more") << httpAnswer(descriptor);
    QTest::newRow("one byte more, length untold") << "HTTP/1.1 200 OK\r\n\r\n" + descriptor;
    QTest::newRow("announces a gigabyte") << headOfLength(1000000000) + paddedDescriptor(100);
}

void tst_UpdateCheck::takesNoLargerDescriptor()
{
    QFETCH(QByteArray, answer);

    server().give(descriptorPath(), answer);
    QVERIFY(!quietCheck());
}

void tst_UpdateCheck::stopsReadingAnEndlessDescriptor()
{
    qint64 sent = 0;
    server().on(descriptorPath(), [&sent](QTcpSocket *socket) {
        const QByteArray piece(65536, ' ');
        const auto sendMore = [socket, &sent, piece] {
            if (socket->bytesToWrite() == 0)
                sent += socket->write(piece);
        };
        connect(socket, &QTcpSocket::bytesWritten, socket, sendMore);
        socket->write("HTTP/1.1 200 OK\r\n\r\n");
    });
    QVERIFY(!quietCheck());
    QVERIFY(sent > mebibyte);
    // What the system's own buffers between the two take comes on top.
    QVERIFY2(sent < 32 * mebibyte, qPrintable(QString::number(sent)));
}

// The first check has enough, but ends only after the second.
void tst_UpdateCheck::readsNoFurtherWhileAnotherCheckHoldsItUp()
{
    qint64 unsent = 0;
    server().on(descriptorPath(), [&](QTcpSocket *first) {
        first->write("HTTP/1.1 200 OK\r\n\r\n" + paddedDescriptor(64 * mebibyte));
        server().on(descriptorPath(), [first](QTcpSocket *socket) { answerAfter(first, socket); });
        UpdateMagaer second;
        QVERIFY(second.check());
        unsent = first->bytesToWrite();
    });
    QVERIFY(!quietCheck());
    QVERIFY2(unsent > 32 * mebibyte, qPrintable(QString::number(unsent)));
}

void tst_UpdateCheck::logsTheDescriptor()
{
    server().give(descriptorPath(), httpAnswer(R"({"version": "0.9"})"));
    QTest::ignoreMessage(QtDebugMsg, R"("{\"version\": \"0.9\"}")");
    QVERIFY(!quietCheck());
}

// Each byte of the answer comes only once a key that was pressed during the check has been handled.
void tst_UpdateCheck::handlesKeysWhileAnAnswerTrickles()
{
    QByteArray rest = descriptorAnswer("1.0", "http://h/x");
    const int length = rest.size();
    QLineEdit edit;
    server().on(descriptorPath(), [&](QTcpSocket *socket) {
        const auto sendByte = [socket, &rest] {
            socket->write(rest.left(1));
            rest.remove(0, 1);
        };
        connect(&edit, &QLineEdit::textEdited, socket, sendByte);
        connect(socket, &QTcpSocket::bytesWritten, &edit, [&edit] { QTest::keyClick(&edit, Qt::Key_X); });
        QTest::keyClick(&edit, Qt::Key_X);
    });
    QVERIFY(quietCheck());
    QVERIFY(edit.text().size() >= length);
}

void tst_UpdateCheck::canBeUsedAgainMeanwhile()
{
    QPointer<QTcpSocket> first;
    UpdateMagaer second;
    bool isPublishedForSecond = false;
    server().on(descriptorPath(), [&](QTcpSocket *socket) {
        first = socket;
        server().give(descriptorPath(), descriptorAnswer("1.0", "http://h/x"));
        isPublishedForSecond = second.check();
        first->write(descriptorAnswer("0.9", "http://h/x"));
        first->disconnectFromHost();
    });
    UpdateMagaer updates;
    QVERIFY(!updates.check());
    QVERIFY(isPublishedForSecond);
}

// What downloads are watched with hears of the second descriptor too.
void tst_UpdateCheck::asksAgainWithTheSameObject()
{
    server().give(descriptorPath(), descriptorAnswer("1.0", "http://h/x"));
    const DialogAnswers none;
    UpdateMagaer updates;
    QVERIFY(updates.check());
    QVERIFY(updates.check());
    QCoreApplication::processEvents();
    QVERIFY(none.areUsedUp());
    QVERIFY(files().isEmpty());
}

void tst_UpdateCheck::endsWithTheApplication()
{
    // The answer is readable, but not complete; by the end of the second check it has been read.
    server().on(descriptorPath(), [this](QTcpSocket *socket) {
        socket->write("HTTP/1.1 200 OK\r\n\r\n" + paddedDescriptor(100));
        server().give(descriptorPath(), descriptorAnswer("0.9", "http://h/x"));
        UpdateMagaer second;
        second.check();
        QCoreApplication::quit();
    });
    bool isPublished = true;
    QTimer::singleShot(0, this, [&] { isPublished = quietCheck(); });
    QVERIFY(runsToItsEnd());
    QVERIFY(!isPublished);
}

void tst_UpdateCheck::allEndWithTheApplication()
{
    int running = 0;
    const auto checkUntilTheEnd = [&running] {
        UpdateMagaer updates;
        ++running;
        if (!updates.check())
            --running;
    };
    server().on(descriptorPath(), [&](QTcpSocket *) {
        // The last one begins when the application is already on its way out.
        if (running == 3)
            QCoreApplication::quit();
        if (running <= 3)
            checkUntilTheEnd();
    });
    QTimer::singleShot(0, this, checkUntilTheEnd);
    QVERIFY(runsToItsEnd());
    QCOMPARE(running, 0);
    QCOMPARE(server().requests().size(), 3);
}

BOARDWRIGHT_TEST_MAIN(tst_UpdateCheck)
#include "tst_updatecheck.moc"
