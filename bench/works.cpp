#include "bench/works.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cstdlib>

int runWork(const QVector<NamedWork> &works)
{
    const QStringList arguments = QCoreApplication::arguments();
    const QString name = arguments.value(1);
    const auto work = std::find_if(works.cbegin(), works.cend(), [&name](const NamedWork &candidate) {
        return name == QLatin1String(candidate.name);
    });
    if (work == works.cend())
        return EXIT_FAILURE;
    work->run(arguments.value(2).toInt(), arguments.value(3).toInt());
    return EXIT_SUCCESS;
}
