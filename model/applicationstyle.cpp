#include "model/applicationstyle.h"

#include "assets/assets.h"

#include <QApplication>
#include <QByteArray>
#include <QFile>

QString styleSheetText(const QByteArray &bytes)
{
    const int end = bytes.indexOf('\0');
    return QString::fromLatin1(end < 0 ? bytes : bytes.left(end));
}

void applyStyleSheetFile(const QString &path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        qApp->setStyleSheet(styleSheetText(file.readAll()));
}

void applyApplicationStyle()
{
    initAssets();
    applyStyleSheetFile(QStringLiteral(":/assets/style/style.qss"));
}
