#include "tests/app/x11/editorprocess.h"

#include "tests/app/x11/pointer.h"
#include "update/startenvironment.h"

#include <QTest>

namespace
{
constexpr int patience = 40000; // milliseconds
const char *const mainTitle = "Boardwright";
} // namespace

EditorProcess::EditorProcess(const QString &program)
{
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.setProcessEnvironment(startEnvironment());
    m_process.start(program, QStringList());
}

EditorProcess::~EditorProcess()
{
    m_process.kill();
    m_process.waitForFinished();
}

bool EditorProcess::hasActiveWindow(const QString &title) const
{
    const QString wanted = QString("%1\n%2").arg(m_process.processId()).arg(title);
    const auto isThere = [&wanted] {
        QString active;
        return xdotool({"getactivewindow", "getwindowpid", "getwindowname"}, &active) && active == wanted;
    };
    return QTest::qWaitFor(isThere, patience);
}

bool EditorProcess::activate() const
{
    const QString id = QString::number(m_process.processId());
    return xdotool({"search", "--sync", "--onlyvisible", "--all", "--pid", id, "--name", mainTitle,
                    "windowactivate", "%1"}) &&
           hasActiveWindow(mainTitle);
}

bool EditorProcess::open(const QString &path) const
{
    return pressKey("ctrl+o") && hasActiveWindow("Select lay file") && typeText(path) && pressKey("Return") &&
           hasActiveWindow(mainTitle);
}
