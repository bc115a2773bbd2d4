#include "bench/table.h"

#include "bench/measure.h"
#include "bench/startup.h"

#include <cmath>
#include <cstdio>

namespace
{
/// The runs of one round; a command that several rows name runs once.
class Round
{
public:
    /// NaN when the command fails.
    double value(const Probe &probe)
    {
        const QString name = probe.command.program + probe.command.arguments.join(QLatin1Char(' ')) +
                             probe.command.environment.join(QLatin1Char(' '));
        if (!m_samples.contains(name))
            m_samples.insert(name, probe.kind == Probe::Kind::Start ? measureStart(probe.command)
                                                                    : runChild(probe.command));
        return m_samples.value(name).value(probe.key, std::nan(""));
    }

private:
    QHash<QString, Sample> m_samples;
};

/// The values of one row, a value for each round.
struct Series {
    QVector<double> probe;
    QVector<double> reference;
    QVector<double> result;
};

double resultOf(const Row &row, double probe, double reference)
{
    switch (row.measure) {
    case Row::Measure::Ratio:
        return probe / reference;
    case Row::Measure::Growth:
        return std::log(probe / reference) / std::log(row.span);
    case Row::Measure::Value:
        break;
    }
    return probe;
}

void takeRow(const Row &row, Round &round, Series &series)
{
    const double probe = round.value(row.probe);
    const double reference = row.measure == Row::Measure::Value ? 0 : round.value(row.reference);
    if (std::isnan(probe) || std::isnan(reference))
        return;
    series.probe.append(probe);
    series.reference.append(reference);
    series.result.append(resultOf(row, probe, reference));
}

const char *verdict(const Row &row, double result)
{
    if (row.limit == 0)
        return "";
    return result <= row.limit ? "met" : "MISSED";
}

bool printRow(const Row &row, const Series &series)
{
    if (series.result.isEmpty()) {
        std::printf("%4d  %-52s  failed\n", row.goal, qPrintable(row.work));
        return false;
    }
    const double result = medianOf(series.result);
    const QString limit = row.limit == 0 ? QStringLiteral("-") : QString::number(row.limit, 'f', 2);
    std::printf("%4d  %-52s %10.3f %10.3f %8.3f %8s  %s\n", row.goal, qPrintable(row.work),
                medianOf(series.probe), medianOf(series.reference), result, qPrintable(limit),
                verdict(row, result));
    return row.limit == 0 || result <= row.limit;
}
} // namespace

bool measureAndPrint(const QVector<Row> &rows, int rounds)
{
    QVector<Series> table(rows.size());
    for (int turn = 0; turn < rounds; ++turn) {
        std::fprintf(stderr, "round %d of %d\n", turn + 1, rounds);
        Round round;
        for (int index = 0; index < rows.size(); ++index) {
            if (rows.at(index).rounds == 0 || turn < rows.at(index).rounds)
                takeRow(rows.at(index), round, table[index]);
        }
    }
    std::printf("%4s  %-52s %10s %10s %8s %8s\n", "goal", "work", "ours", "beside", "result", "at most");
    bool met = true;
    for (int index = 0; index < rows.size(); ++index)
        met = printRow(rows.at(index), table.at(index)) && met;
    return met;
}
