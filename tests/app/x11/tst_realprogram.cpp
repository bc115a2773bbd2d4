#include "tests/app/x11/displaymain.h"
#include "tests/app/x11/pointer.h"
#include "tests/support/boards.h"
#include "tests/support/files.h"
#include "update/startenvironment.h"

#include <QJsonDocument>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

// The editor itself as a process of its own, seen and used only through its windows and its files.
class tst_RealProgram : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void showsItselfMaximised();
    void exitKeyEndsItWithoutAsking();
    void closingTheWindowEndsItWithoutAsking();
    void editsAFileFromOpeningToSaving();

private:
    bool waitsForWindow(const QString &title);
    bool says(const QByteArray &text);
    bool hasEndedWell();

    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<QProcess> m_program;
    QByteArray m_log;
};

namespace
{
constexpr int patience = 40000; // milliseconds
const QSize displaySize(1280, 800);

QJsonObject readBoard(const QString &path)
{
    return QJsonDocument::fromJson(readFile(path)).object();
}
} // namespace

void tst_RealProgram::init()
{
    m_folder.reset(new QTemporaryDir);
    m_log.clear();
    m_program.reset(new QProcess);
    m_program->setWorkingDirectory(m_folder->path());
    m_program->setProcessChannelMode(QProcess::MergedChannels);
    m_program->setProcessEnvironment(startEnvironment());
    m_program->start(BOARDWRIGHT_PROGRAM, QStringList());
    QVERIFY(waitsForWindow("Boardwright"));
}

void tst_RealProgram::cleanup()
{
    m_program->kill();
    m_program->waitForFinished();
    m_program.reset();
}

/// True when the window that has the keyboard has this title in time.
bool tst_RealProgram::waitsForWindow(const QString &title)
{
    const auto isThere = [&title] {
        QString active;
        return xdotool({"getactivewindow", "getwindowname"}, &active) && active == title;
    };
    return QTest::qWaitFor(isThere, patience);
}

bool tst_RealProgram::says(const QByteArray &text)
{
    const auto hasSaid = [this, &text] {
        m_log += m_program->readAll();
        return m_log.contains(text);
    };
    return QTest::qWaitFor(hasSaid, patience);
}

bool tst_RealProgram::hasEndedWell()
{
    const auto hasEnded = [this] {
        return m_program->state() == QProcess::NotRunning;
    };
    return QTest::qWaitFor(hasEnded, patience) && m_program->exitStatus() == QProcess::NormalExit &&
           m_program->exitCode() == 0;
}

void tst_RealProgram::showsItselfMaximised()
{
    const auto isWide = [] {
        QString geometry;
        return xdotool({"getactivewindow", "getwindowgeometry", "--shell"}, &geometry) &&
               geometry.contains(QString("WIDTH=%1").arg(displaySize.width()));
    };
    QTRY_VERIFY_WITH_TIMEOUT(isWide(), patience);
}

void tst_RealProgram::exitKeyEndsItWithoutAsking()
{
    QVERIFY(pressKey("ctrl+n"));
    QVERIFY(says("newFileActionTriggered"));
    QVERIFY(pressKey("ctrl+q"));
    QVERIFY(hasEndedWell());
}

void tst_RealProgram::closingTheWindowEndsItWithoutAsking()
{
    // The window manager's key for the close button of the frame.
    QVERIFY(pressKey("alt+F4"));
    QVERIFY(hasEndedWell());
}

void tst_RealProgram::editsAFileFromOpeningToSaving()
{
    const QRect geometry(100, 50, 600, 300);
    const QString path = m_folder->filePath("board.lay");
    QVERIFY(writeFile(path, QJsonDocument(board({shapeObject("Bar", geometry)})).toJson()));
    QVERIFY(pressKey("ctrl+o"));
    QVERIFY(waitsForWindow("Select lay file"));
    QVERIFY(typeText(path) && pressKey("Return"));
    QVERIFY(says("openActionTriggered"));
    QVERIFY(waitsForWindow("Boardwright"));

    // The canvas is somewhere round the middle of the display, and the item covers most of it.
    const QPoint middle(displaySize.width() / 2, displaySize.height() / 2);
    QVERIFY(click(middle));
    QVERIFY(drag(middle, middle + QPoint(40, 20)));
    QVERIFY(pressKey("ctrl+s"));
    const QJsonObject expected = board({shapeObject("Bar", geometry.translated(40, 20))});
    QTRY_COMPARE_WITH_TIMEOUT(readBoard(path), expected, patience);
    QVERIFY(pressKey("ctrl+q"));
    QVERIFY(waitsForWindow("Layout edited"));
    QVERIFY(pressKey("Return"));
    QVERIFY(hasEndedWell());
}

BOARDWRIGHT_DISPLAY_TEST_MAIN(tst_RealProgram)
#include "tst_realprogram.moc"
