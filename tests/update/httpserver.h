#pragma once

#include <QHash>
#include <QSslConfiguration>
#include <QTcpServer>

#include <functional>

class QTcpSocket;

/// A web server on this machine, for tests: it answers with exactly the bytes that the test gives it.
class HttpServer : public QTcpServer
{
public:
    /// What is done with the connection once its request is complete.
    using Answer = std::function<void(QTcpSocket *)>;

    HttpServer();

    /// From here on speaks TLS with the certificate and key of this file, first one then the other.
    void secureWith(const QString &pemFile);

    /// The answer to requests for this encoded path, or with an empty one for all that have none of their
    /// own. The rest is answered with 404.
    void on(const QByteArray &path, const Answer &answer);

    /// The same for bytes that are sent at once, before the connection is closed.
    void give(const QByteArray &path, const QByteArray &bytes);

    /// The server's own address with this encoded path or other rest.
    QByteArray url(const QByteArray &path) const;

    /// The encoded paths asked for so far.
    const QList<QByteArray> &requests() const { return m_requests; }

    /// The headers of the last request, as they came.
    const QByteArray &lastHeaders() const { return m_lastHeaders; }

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    void serve(QTcpSocket *socket);

    QHash<QByteArray, Answer> m_answers;
    QList<QByteArray> m_requests;
    QByteArray m_lastHeaders;
    QSslConfiguration m_tls;
};

/// From here on what this program asks of the update endpoint goes to the server, as to a proxy.
void serveEndpointFrom(const HttpServer &server);

/// An answer with status line, length and body.
QByteArray httpAnswer(const QByteArray &body, const QByteArray &status = "200 OK",
                      const QByteArray &moreHeaders = QByteArray());
