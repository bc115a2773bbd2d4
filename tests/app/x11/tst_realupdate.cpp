#include "tests/app/x11/displaymain.h"
#include "tests/app/x11/pointer.h"
#include "tests/update/updatetest.h"
#include "update/startenvironment.h"

#include <QProcess>
#include <QTcpSocket>

// "Check for Updates" of the editor as a process of its own, from the menu to the started file. The update
// endpoint is reached the way the user's system tells: by a proxy in the environment.
class tst_RealUpdate : public UpdateTest
{
    Q_OBJECT

private slots:
    void runStartsTheFileWithTheUsersEnvironment_data();
    void runStartsTheFileWithTheUsersEnvironment();
    void exitKeyEndsItWhileTheServerKeepsSilent();
    void exitKeyEndsItWhileADownloadKeepsSilent();
};

namespace
{
constexpr int patience = 40000; // milliseconds
const char *const drawingVariable = "QT_XCB_GL_INTEGRATION";

/// A started editor, ended at the latest with this object.
struct Editor {
    Editor(const HttpServer &endpoint, const QByteArray &drawing)
    {
        QProcessEnvironment environment = startEnvironment();
        environment.remove(drawingVariable);
        if (!drawing.isNull())
            environment.insert(drawingVariable, drawing);
        environment.insert("http_proxy", endpoint.url(""));
        process.setProcessEnvironment(environment);
        process.start(BOARDWRIGHT_PROGRAM, QStringList());
    }
    ~Editor()
    {
        process.kill();
        process.waitForFinished();
    }
    Q_DISABLE_COPY(Editor)

    bool hasEndedWell()
    {
        const auto hasEnded = [this] {
            return process.state() == QProcess::NotRunning;
        };
        return QTest::qWaitFor(hasEnded, patience) && process.exitStatus() == QProcess::NormalExit &&
               process.exitCode() == 0;
    }

    /// True when a window of the program that has this title has the keyboard in time.
    bool showsWindow(const QString &title) const
    {
        const QString wanted = QString("%1\n%2").arg(process.processId()).arg(title);
        const auto isThere = [&wanted] {
            QString active;
            return xdotool({"getactivewindow", "getwindowpid", "getwindowname"}, &active) && active == wanted;
        };
        return QTest::qWaitFor(isThere, patience);
    }

    QProcess process;
};

/// Chooses "Check for Updates" with the keys; false when no such request comes.
bool asksForUpdates(const Editor &editor, const HttpServer &endpoint)
{
    if (!editor.showsWindow("Boardwright"))
        return false;
    for (const char *key : {"Alt_L", "Right", "Down", "Return"}) {
        if (!pressKey(key))
            return false;
    }
    return QTest::qWaitFor([&endpoint] { return endpoint.requests().contains(descriptorPath()); }, patience);
}
} // namespace

void tst_RealUpdate::runStartsTheFileWithTheUsersEnvironment_data()
{
    QTest::addColumn<QByteArray>("drawing");
    QTest::addColumn<QByteArray>("handedOn");

    QTest::newRow("not set by the user") << QByteArray() << QByteArray("unset\n");
    QTest::newRow("set by the user") << QByteArray("none") << QByteArray("none\n");
}

void tst_RealUpdate::runStartsTheFileWithTheUsersEnvironment()
{
    QFETCH(QByteArray, drawing);
    QFETCH(QByteArray, handedOn);

    const QByteArray script = "#!/bin/sh\necho ${QT_XCB_GL_INTEGRATION-unset} >part && mv part report\n";
    server().give(descriptorPath(), descriptorAnswer("1.0", server().url("/setup.run")));
    server().give("/setup.run", httpAnswer(script));
    Editor editor(server(), drawing);
    QVERIFY(asksForUpdates(editor, server()));
    QVERIFY(editor.showsWindow("Download succeeded!"));
    // "Run" is the default.
    QVERIFY(pressKey("Return"));
    QVERIFY(editor.hasEndedWell());
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists("report"), patience);
    QCOMPARE(readFile("report"), handedOn);
    QCOMPARE(files(), QStringList({"report", "setup.run"}));
}

void tst_RealUpdate::exitKeyEndsItWhileTheServerKeepsSilent()
{
    server().on(descriptorPath(), [](QTcpSocket *) {});
    Editor editor(server(), {});
    QVERIFY(asksForUpdates(editor, server()));
    QVERIFY(pressKey("ctrl+q"));
    QVERIFY(editor.hasEndedWell());
}

void tst_RealUpdate::exitKeyEndsItWhileADownloadKeepsSilent()
{
    server().give(descriptorPath(), descriptorAnswer("1.0", server().url("/setup.run")));
    server().on("/setup.run", [](QTcpSocket *) {});
    Editor editor(server(), {});
    QVERIFY(asksForUpdates(editor, server()));
    QTRY_VERIFY_WITH_TIMEOUT(server().requests().contains("/setup.run"), patience);
    QVERIFY(pressKey("ctrl+q"));
    QVERIFY(editor.hasEndedWell());
    QVERIFY(files().isEmpty());
}

BOARDWRIGHT_DISPLAY_TEST_MAIN(tst_RealUpdate)
#include "tst_realupdate.moc"
