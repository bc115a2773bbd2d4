#include "update/updatemagaer.h"

#include "update/downloadname.h"
#include "update/startenvironment.h"

#include <QCoreApplication>
#include <QDebug>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMessageBox>
#include <QNetworkReply>
#include <QProcess>
#include <QPushButton>

#include <cstdio>
#include <memory>

namespace
{
constexpr qint64 mebibyte = 1024 * 1024;
constexpr qint64 maximumDescriptor = mebibyte;
constexpr qint64 maximumDownload = 1024 * mebibyte;

QUrl descriptorUrl()
{
    return QUrl::fromEncoded(QByteArrayLiteral(BOARDWRIGHT_UPDATE_ENDPOINT "update.txt"));
}

/// A server that packs its answer could fill the memory with few bytes, so none is asked for and none undone.
QNetworkRequest requestFor(const QUrl &url)
{
    QNetworkRequest request(url);
    request.setRawHeader(QByteArrayLiteral("Accept-Encoding"), QByteArrayLiteral("identity"));
    return request;
}

/// True as soon as the answer is larger, or says that it will be.
bool isLarger(const QNetworkReply &reply, qint64 maximum)
{
    const qint64 announced = reply.header(QNetworkRequest::ContentLengthHeader).toLongLong();
    return qMax(announced, reply.bytesAvailable()) > maximum;
}

/// Local files, devices among them, are no downloads.
bool isOfTheWeb(const QUrl &url)
{
    return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}

/// The toolkit's own words for a protocol it does not know.
QString unknownProtocol(const QUrl &url)
{
    return QCoreApplication::translate("QNetworkReply", "Protocol \"%1\" is unknown").arg(url.scheme());
}

QString encoded(const QUrl &url)
{
    return QString::fromLatin1(url.toEncoded());
}

/// What servers say is shown as it is, never as markup.
void showError(const QString &title, const QString &text)
{
    QMessageBox box(QMessageBox::Critical, title, text, QMessageBox::Ok);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void showDownloadFailed(const QUrl &url, const QString &error)
{
    // The title lacks a word and the text a space on purpose.
    showError(UpdateMagaer::tr("Download of failed"),
              UpdateMagaer::tr("Url = %1 Error:%2").arg(encoded(url), error));
}

bool askToRun(const QUrl &url, const QString &name)
{
    QMessageBox box(QMessageBox::Information, UpdateMagaer::tr("Download succeeded!"),
                    UpdateMagaer::tr("Download of %1 succeeded (saved to %2)").arg(encoded(url), name));
    box.setTextFormat(Qt::PlainText);
    // One role for both keeps the buttons in this order on every desktop, and Escape away from them.
    QPushButton *run = box.addButton(UpdateMagaer::tr("Run"), QMessageBox::ActionRole);
    box.addButton(UpdateMagaer::tr("Close"), QMessageBox::ActionRole);
    box.setDefaultButton(run);
    box.exec();
    return box.clickedButton() == run;
}

/// By its own path: a bare name would be looked up among the installed programs.
void startDetached(const QString &name)
{
    QFile::setPermissions(name, QFile::permissions(name) | QFileDevice::ExeOwner);
    QProcess process;
    process.setProgram(QFileInfo(name).absoluteFilePath());
    process.setProcessEnvironment(startEnvironment());
    process.startDetached();
}

bool writeAll(QFile &file, QIODevice *data)
{
    constexpr qint64 piece = 64 * 1024;
    for (QByteArray bytes = data->read(piece); !bytes.isEmpty(); bytes = data->read(piece)) {
        if (file.write(bytes) != bytes.size())
            return false;
    }
    return file.flush();
}
} // namespace

UpdateMagaer::UpdateMagaer()
{
    m_manager.setRedirectPolicy(QNetworkRequest::ManualRedirectPolicy);
}

bool UpdateMagaer::check()
{
    const QByteArray descriptor = fetchDescriptor();
    qDebug() << descriptor;
    const QJsonObject object = QJsonDocument::fromJson(descriptor).object();
    const QJsonValue version = object.value(QLatin1String("version"));
    if (version.isUndefined())
        return false;
    // Any other text counts, an older version too: the server may take a version back.
    const bool isOther = version.toString() != QLatin1String(BOARDWRIGHT_VERSION);
    if (isOther) {
        watchDownloads();
        m_url = object.value(QLatin1String("url")).toString();
    }
    return isOther;
}

/// Once, however often it is called.
void UpdateMagaer::watchDownloads()
{
    m_manager.disconnect(this);
    connect(&m_manager, &QNetworkAccessManager::finished, this, [this](QNetworkReply *reply) {
        // The manager tells of the descriptor of a later check too.
        if (m_downloads.contains(reply))
            downloadFinished(reply);
    });
}

/// Empty on any failure. The loop is one of the application's, so that quitting ends it; polling the answer
/// would keep one processor busy and the application from its end.
QByteArray UpdateMagaer::fetchDescriptor()
{
    const std::unique_ptr<QNetworkReply> reply(m_manager.get(requestFor(descriptorUrl())));
    reply->setReadBufferSize(maximumDescriptor + 1);
    const auto isTooLarge = [&reply] {
        return isLarger(*reply, maximumDescriptor);
    };
    QEventLoop loop;
    connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    connect(reply.get(), &QNetworkReply::readyRead, &loop, [&loop, isTooLarge] {
        if (isTooLarge())
            loop.quit();
    });
    loop.exec();
    const bool isComplete = reply->isFinished() && reply->error() == QNetworkReply::NoError;
    return isComplete && !isTooLarge() ? reply->readAll() : QByteArray();
}

void UpdateMagaer::download()
{
    const QUrl url = QUrl::fromEncoded(m_url.toLatin1());
    if (!isOfTheWeb(url)) {
        showDownloadFailed(url, unknownProtocol(url));
        return;
    }
    QNetworkReply *reply = m_manager.get(requestFor(url));
    reply->setReadBufferSize(maximumDownload + 1);
    connect(reply, &QNetworkReply::readyRead, reply, [reply] {
        if (isLarger(*reply, maximumDownload))
            reply->abort();
    });
    connect(reply, &QNetworkReply::sslErrors, this, &UpdateMagaer::sslErrors);
    m_downloads.append(reply);
}

void UpdateMagaer::downloadFinished(QNetworkReply *reply)
{
    if (reply->error() != QNetworkReply::NoError)
        showDownloadFailed(reply->url(), reply->errorString());
    else if (isHttpRedirect(reply))
        showError(tr("Server error!"), tr("Request was redirected.\n"));
    else
        save(reply);
    m_downloads.removeAll(reply);
    reply->deleteLater();
}

void UpdateMagaer::save(QNetworkReply *reply)
{
    const QString name = saveFileName(reply->url());
    if (!saveToDisk(name, reply) || !askToRun(reply->url(), name))
        return;
    startDetached(name);
    QCoreApplication::quit();
}

void UpdateMagaer::sslErrors(QList<QSslError> errors)
{
    // None is ignored, so the download fails after the last box.
    for (const QSslError &error : qAsConst(errors))
        showError(tr("SSL error"), error.errorString());
}

bool UpdateMagaer::isHttpRedirect(QNetworkReply *reply)
{
    switch (reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt()) {
    case 301:
    case 302:
    case 303:
    case 305:
    case 307:
    case 308:
        return true;
    default:
        return false;
    }
}

bool UpdateMagaer::saveToDisk(QString filename, QIODevice *data)
{
    QFile file(filename);
    // A link that could not be deleted may lead out of the working directory: opening it as new fails.
    const auto mode = QFileInfo(filename).isSymLink() ? QIODevice::NewOnly : QIODevice::Truncate;
    const bool isOpen = file.open(QIODevice::WriteOnly | mode);
    if (isOpen && writeAll(file, data))
        return true;
    std::fprintf(stderr, "Could not open %s for writing: %s\n", qPrintable(filename),
                 qPrintable(file.errorString()));
    // By its name: the file itself would not be removed while it cannot be flushed.
    file.close();
    if (isOpen)
        QFile::remove(filename);
    return false;
}

QString UpdateMagaer::saveFileName(QUrl url)
{
    QString name = downloadName(url);
    // Without asking whether it exists: a link to nowhere would not, and would be written through.
    QFile::remove(name);
    return name;
}
