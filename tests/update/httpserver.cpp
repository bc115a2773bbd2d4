#include "tests/update/httpserver.h"

#include "tests/support/files.h"

#include <QNetworkProxyFactory>
#include <QSslCertificate>
#include <QSslKey>
#include <QSslSocket>
#include <QUrl>

namespace
{
class EndpointProxy : public QNetworkProxyFactory
{
public:
    explicit EndpointProxy(quint16 port) : m_proxy(QNetworkProxy::HttpProxy, "127.0.0.1", port) {}

    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery &query) override
    {
        const bool isEndpoint = query.url().toEncoded().startsWith(BOARDWRIGHT_UPDATE_ENDPOINT);
        return {isEndpoint ? m_proxy : QNetworkProxy(QNetworkProxy::NoProxy)};
    }

private:
    const QNetworkProxy m_proxy;
};
} // namespace

HttpServer::HttpServer()
{
    listen(QHostAddress::LocalHost);
}

void HttpServer::secureWith(const QString &pemFile)
{
    const QByteArray pem = readFile(pemFile);
    m_tls = QSslConfiguration::defaultConfiguration();
    m_tls.setLocalCertificate(QSslCertificate(pem));
    m_tls.setPrivateKey(QSslKey(pem, QSsl::Ec));
}

void HttpServer::on(const QByteArray &path, const Answer &answer)
{
    m_answers.insert(path, answer);
}

void HttpServer::give(const QByteArray &path, const QByteArray &bytes)
{
    on(path, [bytes](QTcpSocket *socket) {
        socket->write(bytes);
        socket->disconnectFromHost();
    });
}

QByteArray HttpServer::url(const QByteArray &path) const
{
    const QByteArray scheme = m_tls.localCertificate().isNull() ? "http" : "https";
    return scheme + "://127.0.0.1:" + QByteArray::number(serverPort()) + path;
}

void HttpServer::incomingConnection(qintptr descriptor)
{
    auto *socket = new QSslSocket(this);
    socket->setSocketDescriptor(descriptor);
    connect(socket, &QTcpSocket::readyRead, this, [this, socket] { serve(socket); });
    connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    if (m_tls.localCertificate().isNull())
        return;
    socket->setSslConfiguration(m_tls);
    socket->startServerEncryption();
}

void HttpServer::serve(QTcpSocket *socket)
{
    const QByteArray received = socket->peek(socket->bytesAvailable());
    if (!received.contains("\r\n\r\n"))
        return;
    socket->readAll();
    m_lastHeaders = received;
    // A proxy is asked with the whole address, a server with the path alone.
    const QUrl target = QUrl::fromEncoded(received.split(' ').value(1));
    const QByteArray path = target.path(QUrl::FullyEncoded).toLatin1();
    m_requests.append(path);
    const Answer answer = m_answers.value(path, m_answers.value(""));
    if (answer) {
        answer(socket);
        return;
    }
    socket->write(httpAnswer("no such path", "404 Not Found"));
    socket->disconnectFromHost();
}

void serveEndpointFrom(const HttpServer &server)
{
    QNetworkProxyFactory::setApplicationProxyFactory(new EndpointProxy(server.serverPort()));
}

QByteArray httpAnswer(const QByteArray &body, const QByteArray &status, const QByteArray &moreHeaders)
{
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) +
           "\r\nConnection: close\r\n" + moreHeaders + "\r\n" + body;
}
