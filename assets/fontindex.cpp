#include "assets/fontindex.h"

#include <QFile>
#include <QHash>

namespace
{
using Index = QHash<QString, QStringList>;

Index readIndex()
{
    Index index;
    QFile file(QStringLiteral(":/assets/fonts.index"));
    if (!file.open(QIODevice::ReadOnly))
        return index;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        QStringList names = line.toLower().split(QLatin1Char('\t'));
        const QString path = QStringLiteral(":/assets/fonts/") + line.section(QLatin1Char('\t'), 0, 0);
        names.removeFirst();
        for (const QString &name : qAsConst(names))
            index[name].append(path);
    }
    return index;
}
} // namespace

QStringList FontIndex::filesOf(const QString &name)
{
    static const Index index = readIndex();
    return index.value(name.toLower());
}
