#include "tests/support/strictmain.h"

#include <QStringList>

namespace
{
QtMessageHandler testLibraryHandler = nullptr;

QStringList &expectedWarnings()
{
    static QStringList expected;
    return expected;
}

bool takeExpected(const QString &message)
{
    for (const QString &part : qAsConst(expectedWarnings())) {
        if (message.contains(part))
            return expectedWarnings().removeOne(part);
    }
    return false;
}

/// The offscreen platform says what it cannot do; that is nobody's fault.
bool isRemarkOfPlatform(const QString &message)
{
    return message.startsWith(QLatin1String("This plugin does not support "));
}

void failOnWarning(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const bool isComplaint = type == QtWarningMsg || type == QtCriticalMsg;
    if (isComplaint && !isRemarkOfPlatform(message) && !takeExpected(message) && QTest::currentTestFunction())
        QTest::qFail(qPrintable(QStringLiteral("unexpected warning: ") + message), __FILE__, __LINE__);
    if (!isComplaint && testLibraryHandler)
        testLibraryHandler(type, context, message);
}

/// The test library sets its own message handler when it starts; the first event comes after that.
class HandlerInstaller : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        install();
        return QObject::eventFilter(watched, event);
    }

private:
    void install()
    {
        if (m_installed)
            return;
        m_installed = true;
        testLibraryHandler = qInstallMessageHandler(failOnWarning);
    }

    bool m_installed = false;
};
} // namespace

int runStrictly(QObject &test, int argc, char **argv)
{
    HandlerInstaller installer;
    QCoreApplication::instance()->installEventFilter(&installer);
    return QTest::qExec(&test, argc, argv);
}

void expectWarning(const QString &part)
{
    expectedWarnings().append(part);
}
