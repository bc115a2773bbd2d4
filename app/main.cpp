#include "app/mainwindow.h"
#include "app/startup.h"

#include <QApplication>
#include <QDebug>
#include <QSslSocket>

int main(int argc, char *argv[])
{
    prepareStart();
    QApplication application(argc, argv);
    qDebug() << QSslSocket::sslLibraryBuildVersionString();
    MainWindow window(nullptr);
    window.showMaximized();
    return QApplication::exec();
}
