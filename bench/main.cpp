// boardwright-bench [--rounds N] [GOAL...]: measures the goals (all of them, without a number) and prints the
// table.
#include "bench/table.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <algorithm>

namespace
{
void keepGoals(QVector<Row> &rows, const QStringList &goals)
{
    const auto isOther = [&goals](const Row &row) {
        return !goals.contains(QString::number(row.goal));
    };
    if (!goals.isEmpty())
        rows.erase(std::remove_if(rows.begin(), rows.end(), isOther), rows.end());
}
} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption rounds(QStringLiteral("rounds"), QStringLiteral("How often each program runs."),
                                    QStringLiteral("N"), QStringLiteral("7"));
    parser.addOption(rounds);
    parser.addPositionalArgument(QStringLiteral("goals"), QStringLiteral("Numbers of the goals to measure."));
    parser.addHelpOption();
    parser.process(application);
    const QTemporaryDir workFolder;
    QVector<Row> rows = benchRows(QCoreApplication::applicationDirPath(), workFolder.path());
    keepGoals(rows, parser.positionalArguments());
    return measureAndPrint(rows, parser.value(rounds).toInt()) ? EXIT_SUCCESS : EXIT_FAILURE;
}
