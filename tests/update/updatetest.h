#pragma once

#include "tests/support/dialoganswers.h"
#include "tests/support/files.h"
#include "tests/support/strictmain.h"
#include "tests/update/httpserver.h"
#include "update/updatemagaer.h"

#include <QTemporaryDir>

/// A server that stands in for the update endpoint, and an empty working directory: anew for each test
/// function.
class UpdateTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

protected:
    HttpServer &server() const { return *m_server; }

    /// A folder that is neither the working directory nor in it.
    QString outside() const { return m_folder->filePath("outside"); }

    /// Everything in the working directory, hidden files too.
    static QStringList files();

private:
    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<HttpServer> m_server;
};

/// The path under which the program looks for the descriptor.
QByteArray descriptorPath();

/// An answer with a descriptor of this version and address.
QByteArray descriptorAnswer(const QString &version, const QString &url);
