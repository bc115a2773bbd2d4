#include "tests/support/strictmain.h"

#include <QProcess>
#include <QTemporaryDir>

// The editor as the user starts it, here without a display.
class tst_Program : public QObject
{
    Q_OBJECT

private slots:
    void logsTheSslLibraryThenTheFonts();
    void ignoresItsArguments_data();
    void ignoresItsArguments();
};

namespace
{
constexpr int patience = 30000; // milliseconds

/// A started editor, ended at the latest with this object.
struct Program {
    explicit Program(const QStringList &arguments)
    {
        process.setWorkingDirectory(folder.path());
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(BOARDWRIGHT_PROGRAM, arguments);
    }
    ~Program()
    {
        process.kill();
        process.waitForFinished();
    }
    Q_DISABLE_COPY(Program)

    /// True when a line that holds the text comes in time.
    bool says(const QByteArray &text)
    {
        const auto hasSaid = [this, &text] {
            log += process.readAll();
            return log.contains(text);
        };
        return QTest::qWaitFor(hasSaid, patience);
    }

    QTemporaryDir folder;
    QProcess process;
    QByteArray log;
};
} // namespace

void tst_Program::logsTheSslLibraryThenTheFonts()
{
    Program program({});
    QVERIFY(program.says("Font families:"));
    const int ssl = program.log.indexOf("SSL");
    QVERIFY2(ssl >= 0, program.log.constData());
    QVERIFY(ssl < program.log.indexOf("Font families:"));
    QCOMPARE(program.process.state(), QProcess::Running);
}

void tst_Program::ignoresItsArguments_data()
{
    QTest::addColumn<QStringList>("arguments");

    QTest::newRow("missing file") << QStringList("missing.lay");
    QTest::newRow("unknown options") << QStringList({"--help", "--version", "-x"});
    QTest::newRow("folder") << QStringList(".");
}

void tst_Program::ignoresItsArguments()
{
    QFETCH(QStringList, arguments);

    Program program(arguments);
    QVERIFY(program.says("Font families:"));
    QCOMPARE(program.process.state(), QProcess::Running);
    QVERIFY2(!program.log.contains("Error"), program.log.constData());
}

BOARDWRIGHT_TEST_MAIN(tst_Program)
#include "tst_program.moc"
