#include "tests/app/commandtest.h"

#include <QDir>
#include <QJsonDocument>

void CommandTest::init()
{
    m_folder.reset(new QTemporaryDir);
    QVERIFY(m_folder->isValid());
    m_window.reset(new MainWindow(nullptr));
    m_window->resize(1000, 700);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.data()));
    m_window->openFile(LayoutFile::emptyTemplate());
}

void CommandTest::cleanup()
{
    m_window.reset();
}

QStringList CommandTest::files() const
{
    return QDir(m_folder->path()).entryList(QDir::Files);
}

int CommandTest::runUntilExit()
{
    QTimer::singleShot(0, m_window.data(), [this] { trigger("Exit (Ctrl + Q)"); });
    QTimer::singleShot(20000, m_window.data(), [] { QCoreApplication::exit(1); });
    return QApplication::exec();
}

QString CommandTest::openSmallBoard()
{
    QString file = path("small.lay");
    writeFile(file, bytesOf(smallBoard()));
    m_window->openFile(file);
    return file;
}

void CommandTest::verifyIsTemplate()
{
    QCOMPARE(m_window->currentPath(), QString(":/assets/resources/empty.lay"));
    QCOMPARE(canvas().size(), QSize(800, 400));
    QCOMPARE(canvas().backgroundColor(), QColor(Qt::black));
    QVERIFY(canvas().items().isEmpty());
    QVERIFY(!canvas().isModified());
}

QJsonObject smallBoard()
{
    return board({shapeObject("Lower", {10, 10, 60, 40}), shapeObject("Upper", {30, 20, 60, 40})},
                 {{"Background Color", "#102030"}, {"Height", 100}, {"Width", 200}});
}

QByteArray bytesOf(const QJsonObject &document)
{
    return QJsonDocument(document).toJson(QJsonDocument::Indented);
}

void expectLog(const char *line)
{
    QTest::ignoreMessage(QtDebugMsg, line);
}
