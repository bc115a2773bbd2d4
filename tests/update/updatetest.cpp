#include "tests/update/updatetest.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

void UpdateTest::init()
{
    // The boxes are the only windows here; their end is not the application's.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    m_folder.reset(new QTemporaryDir);
    const QDir folder(m_folder->path());
    QVERIFY(folder.mkdir("outside") && folder.mkdir("inside"));
    QVERIFY(QDir::setCurrent(folder.filePath("inside")));
    m_server.reset(new HttpServer);
    QVERIFY(m_server->isListening());
    serveEndpointFrom(*m_server);
}

void UpdateTest::cleanup()
{
    QVERIFY(QDir::setCurrent(QDir::rootPath()));
    m_server.reset();
    m_folder.reset();
}

QStringList UpdateTest::files()
{
    return QDir::current().entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
}

QByteArray descriptorPath()
{
    return QUrl(BOARDWRIGHT_UPDATE_ENDPOINT).path(QUrl::FullyEncoded).toLatin1() + "update.txt";
}

QByteArray descriptorAnswer(const QString &version, const QString &url)
{
    return httpAnswer(QJsonDocument(QJsonObject({{"version", version}, {"url", url}})).toJson());
}
