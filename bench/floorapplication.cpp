#include "bench/floorapplication.h"

#include "assets/assets.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFontDatabase>

void dressFloor(QApplication &application)
{
    initAssets();
    QFile sheet(QStringLiteral(":/assets/style/style.qss"));
    if (sheet.open(QIODevice::ReadOnly))
        application.setStyleSheet(QString::fromLatin1(sheet.readAll()));
    const QDir fonts(QStringLiteral(":/assets/fonts"));
    const QStringList names = fonts.entryList(QDir::Files);
    for (const QString &name : names)
        QFontDatabase::addApplicationFont(fonts.filePath(name));
}
