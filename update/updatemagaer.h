#pragma once

#include <QList>
#include <QNetworkAccessManager>
#include <QObject>
#include <QSslError>
#include <QString>
#include <QUrl>

class QIODevice;
class QNetworkReply;

/// Asks the update endpoint for a published version that differs from this one, fetches its file into the
/// working directory and offers to run it. Made anew for each use; the spelling of the name is meant.
class UpdateMagaer : public QObject
{
    Q_OBJECT

public:
    UpdateMagaer();

    /// True when another version is published. Handles the application's events until the answer is there,
    /// for as long as the server takes; the end of the application ends it too. Shows nothing on any failure,
    /// and takes an answer of more than 1 MiB for one.
    bool check();

    /// Starts to fetch the file that the last check has found. Ends in a box; an address that is not one of
    /// the web, or a file of more than 1 GiB, counts as a failed download.
    void download();

    /// The downloads in progress; they belong to this object.
    const QList<QNetworkReply *> &downloads() const { return m_downloads; }

    // The order of the slots is part of the interface.
private slots:
    void downloadFinished(QNetworkReply *reply);
    void sslErrors(QList<QSslError> errors);
    bool isHttpRedirect(QNetworkReply *reply);
    bool saveToDisk(QString filename, QIODevice *data);
    QString saveFileName(QUrl url);

private:
    QByteArray fetchDescriptor();
    void watchDownloads();
    void save(QNetworkReply *reply);

    QNetworkAccessManager m_manager;
    QString m_url;
    QList<QNetworkReply *> m_downloads;
};
