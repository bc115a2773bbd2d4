#include "tests/app/commandtest.h"
#include "tests/update/updatetest.h"

#include <QDir>
#include <QTcpSocket>

// "Check for Updates", and the editor's other commands meanwhile.
class tst_UpdateCommand : public CommandTest
{
    Q_OBJECT

private slots:
    void showsNothingWhenThisVersionIsPublished();
    void downloadsAnotherVersion();
    void checksAnewAtEachUse();
    void keepsTheManagerOfEachUse();
    void asksTwiceAtATime_data();
    void asksTwiceAtATime();
    void runsItsFileWhileAnotherCheckHangs();
    void savesByKeyWhileTheServerKeepsSilent();
    void quitsWhileTheServerKeepsSilent_data();
    void quitsWhileTheServerKeepsSilent();

private:
    void triggerUpdates() { commandOf(window(), "Check for Updates")->trigger(); }

    /// Starts as many checks one inside the other as wanted, and does this when the last one hangs. Answers
    /// what the application returns.
    int runHanging(int count, const std::function<void()> &whenHanging);
};

namespace
{
/// A server for the endpoint, with the folder as the working directory.
struct Endpoint : HttpServer {
    explicit Endpoint(const QString &folder)
    {
        QDir::setCurrent(folder);
        serveEndpointFrom(*this);
    }
    ~Endpoint() override { QDir::setCurrent(QDir::rootPath()); }
    Q_DISABLE_COPY(Endpoint)

    /// Lets the first check wait and does this meanwhile; later ones find this file under /second.run.
    void keepFirstWaiting(const QByteArray &file, const std::function<void()> &meanwhile)
    {
        give("/second.run", httpAnswer(file));
        on(descriptorPath(), [this, meanwhile](QTcpSocket *socket) {
            waiting = socket;
            give(descriptorPath(), descriptorAnswer("1.0", url("/second.run")));
            meanwhile();
        });
    }

    /// Answers the first check; without a version the connection is closed in the middle.
    void answerFirst(const QString &version)
    {
        const QByteArray answer = descriptorAnswer(version, url("/first.run"));
        waiting->write(version.isEmpty() ? answer.chopped(1) : answer);
        waiting->disconnectFromHost();
    }

    QPointer<QTcpSocket> waiting;
};
} // namespace

int tst_UpdateCommand::runHanging(int count, const std::function<void()> &whenHanging)
{
    Endpoint endpoint(path(""));
    endpoint.on(descriptorPath(), [&](QTcpSocket *) {
        if (endpoint.requests().size() < count)
            triggerUpdates();
        else
            whenHanging();
    });
    QTimer::singleShot(0, &endpoint, [this] { triggerUpdates(); });
    QTimer::singleShot(20000, &endpoint, [] { QCoreApplication::exit(1); });
    return QApplication::exec();
}

void tst_UpdateCommand::showsNothingWhenThisVersionIsPublished()
{
    Endpoint endpoint(path(""));
    endpoint.give(descriptorPath(), descriptorAnswer("0.9", endpoint.url("/setup.run")));
    const DialogAnswers none;
    triggerUpdates();
    QCOMPARE(endpoint.requests(), QList<QByteArray>({descriptorPath()}));
    QVERIFY(none.areUsedUp());
    QVERIFY(files().isEmpty());
}

void tst_UpdateCommand::downloadsAnotherVersion()
{
    Endpoint endpoint(path(""));
    endpoint.give(descriptorPath(), descriptorAnswer("0.8", endpoint.url("/setup.run")));
    endpoint.give("/setup.run", httpAnswer("new"));
    DialogAnswers answers;
    answers.press("Close");
    triggerUpdates();
    QTRY_VERIFY(answers.areUsedUp());
    QCOMPARE(answers.seen().constFirst().title, QString("Download succeeded!"));
    QCOMPARE(readFile(path("setup.run")), QByteArray("new"));
    QVERIFY(window().isVisible());
}

void tst_UpdateCommand::checksAnewAtEachUse()
{
    Endpoint endpoint(path(""));
    endpoint.give(descriptorPath(), descriptorAnswer("0.9", QString()));
    triggerUpdates();
    endpoint.give(descriptorPath(), descriptorAnswer("1.0", QString()));
    DialogAnswers answers;
    answers.press("OK");
    triggerUpdates();
    QTRY_VERIFY(answers.areUsedUp());
    QCOMPARE(answers.seen().constFirst().title, QString("Download of failed"));
}

// A manager keeps an idle connection until its own end, and would ask again through it.
void tst_UpdateCommand::keepsTheManagerOfEachUse()
{
    Endpoint endpoint(path(""));
    QVector<QPointer<QTcpSocket>> connections;
    endpoint.on(descriptorPath(), [&connections](QTcpSocket *socket) {
        connections.append(socket);
        socket->write("HTTP/1.1 200 OK\r\nContent-Length: 18\r\n\r\n{\"version\": \"0.9\"}");
    });
    for (int use = 0; use < 3; ++use) {
        triggerUpdates();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QCoreApplication::processEvents();
    QCOMPARE(connections.size(), 3);
    QVERIFY(connections.at(0) != connections.at(1) && connections.at(1) != connections.at(2));
    for (const QPointer<QTcpSocket> &connection : qAsConst(connections))
        QVERIFY(connection && connection->state() == QTcpSocket::ConnectedState);
}

void tst_UpdateCommand::asksTwiceAtATime_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<bool>("isBoxOpen");
    QTest::addColumn<QStringList>("saved");

    for (const bool isBoxOpen : {true, false}) {
        const auto row = [isBoxOpen](const char *what, const QString &version, const QStringList &saved) {
            QTest::addRow("%s, %s the box", what, isBoxOpen ? "during" : "after")
                << version << isBoxOpen << saved;
        };
        row("closed in the middle", QString(), {"second.run"});
        row("this version", "0.9", {"second.run"});
        row("another version", "0.8", {"second.run", "first.run"});
    }
}

// The first check gets its answer when the second has found, fetched and told of its file.
void tst_UpdateCommand::asksTwiceAtATime()
{
    QFETCH(QString, version);
    QFETCH(bool, isBoxOpen);
    QFETCH(QStringList, saved);

    Endpoint endpoint(path(""));
    endpoint.keepFirstWaiting("new", [this] { triggerUpdates(); });
    endpoint.give("/first.run", httpAnswer("newer"));
    DialogAnswers answers;
    answers.act([&](QDialog *dialog) {
        if (!isBoxOpen)
            QTimer::singleShot(0, &endpoint, [&] { endpoint.answerFirst(version); });
        else if (endpoint.waiting && endpoint.waiting->state() == QTcpSocket::ConnectedState)
            endpoint.answerFirst(version);
        const bool isToStay = isBoxOpen && endpoint.waiting;
        if (!isToStay)
            dialog->done(QDialog::Rejected);
        return !isToStay;
    });
    for (int more = 1; more < saved.size(); ++more)
        answers.press("Close");
    triggerUpdates();
    QTRY_VERIFY(answers.areUsedUp());
    QCoreApplication::processEvents();
    QCOMPARE(answers.seen().size(), saved.size());
    for (int box = 0; box < saved.size(); ++box)
        QVERIFY(answers.seen().at(box).text.endsWith("succeeded (saved to " + saved.at(box) + ")"));
    QCOMPARE(files().size(), saved.size());
    QCOMPARE(endpoint.requests().size(), 2 + saved.size());
    QCOMPARE(readFile(path("second.run")), QByteArray("new"));
    QVERIFY(window().isVisible());
}

void tst_UpdateCommand::runsItsFileWhileAnotherCheckHangs()
{
    Endpoint endpoint(path(""));
    endpoint.keepFirstWaiting("#!/bin/sh\necho >report\n", [this] { triggerUpdates(); });
    DialogAnswers answers;
    answers.press("Run");
    QTimer::singleShot(0, &endpoint, [this] { triggerUpdates(); });
    QTimer::singleShot(20000, &endpoint, [] { QCoreApplication::exit(1); });
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(answers.areUsedUp());
    QVERIFY(endpoint.waiting);
    QTRY_VERIFY(QFile::exists(path("report")));
}

void tst_UpdateCommand::savesByKeyWhileTheServerKeepsSilent()
{
    const QString file = openSmallBoard();
    QCOMPARE(runHanging(1,
                        [this] {
                            canvas().newItem("Shape");
                            QTest::keyClick(&window(), Qt::Key_S, Qt::ControlModifier);
                            QCoreApplication::quit();
                        }),
             0);
    QCOMPARE(canvas().items().size(), 3);
    QCOMPARE(readFile(file), bytesOf(canvas().saveLayout()));
}

void tst_UpdateCommand::quitsWhileTheServerKeepsSilent_data()
{
    QTest::addColumn<int>("checks");
    QTest::addColumn<bool>("byClosing");

    QTest::newRow("exit") << 1 << false;
    QTest::newRow("close") << 1 << true;
    QTest::newRow("exit during three checks") << 3 << false;
    QTest::newRow("close during three checks") << 3 << true;
}

void tst_UpdateCommand::quitsWhileTheServerKeepsSilent()
{
    QFETCH(int, checks);
    QFETCH(bool, byClosing);

    const DialogAnswers none;
    const auto quit = [this, byClosing] {
        if (byClosing)
            window().close();
        else
            QTest::keyClick(&window(), Qt::Key_Q, Qt::ControlModifier);
    };
    QCOMPARE(runHanging(checks, quit), 0);
    QVERIFY(none.areUsedUp());
}

BOARDWRIGHT_TEST_MAIN(tst_UpdateCommand)
#include "tst_updatecommand.moc"
