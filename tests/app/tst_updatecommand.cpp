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
