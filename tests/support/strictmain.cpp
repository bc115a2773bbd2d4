#include "tests/support/strictmain.h"

#include <QStringList>

#include <algorithm>

namespace
{
QtMessageHandler testLibraryHandler = nullptr;

QStringList &expectedWarnings()
{
    static QStringList expected;
    return expected;
}

QStringList &toleratedWarnings()
{
    static QStringList tolerated;
    return tolerated;
}

bool isTolerated(const QString &message)
{
    const QStringList &parts = toleratedWarnings();
    return std::any_of(parts.begin(), parts.end(),
                       [&message](const QString &part) { return message.contains(part); });
}

bool takeExpected(const QString &message)
{
    for (const QString &part : qAsConst(expectedWarnings())) {
        if (message.contains(part))
            return expectedWarnings().removeOne(part);
    }
    return false;
}

/// The offscreen platform says what it cannot do, and X clients hear of windows that are gone by now; that is
/// nobody's fault.
bool isRemarkOfPlatform(const QString &message)
{
    return message.startsWith(QLatin1String("This plugin does not support ")) ||
           message.startsWith(QLatin1String("QXcbConnection: XCB error: 3 (BadWindow)"));
}

void failOnWarning(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const bool isComplaint = type == QtWarningMsg || type == QtCriticalMsg;
    if (isComplaint && !isRemarkOfPlatform(message) && !isTolerated(message) && !takeExpected(message) &&
        QTest::currentTestFunction())
        QTest::qFail(qPrintable(QStringLiteral("unexpected warning: ") + message), __FILE__, __LINE__);
    if (!isComplaint && testLibraryHandler)
        testLibraryHandler(type, context, message);
}
} // namespace

int runStrictly(QObject &test, int argc, char **argv)
{
    QTest::qInit(&test, argc, argv);
    // The test library has set its own message handler by now.
    testLibraryHandler = qInstallMessageHandler(failOnWarning);
    const int failures = QTest::qRun();
    QTest::qCleanup();
    return failures;
}

void expectWarning(const QString &part)
{
    expectedWarnings().append(part);
}

void tolerateWarnings(const QString &part)
{
    toleratedWarnings().append(part);
}
