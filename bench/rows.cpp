#include "bench/rows.h"

#include "bench/board.h"

#include <QGuiApplication>
#include <QStandardPaths>

namespace
{
/// Debug lines are switched off by this; the toolkit reads it.
QString silence()
{
    return QStringLiteral("QT_LOGGING_RULES=default.debug=false");
}

class RowList
{
public:
    RowList(const QString &programs, const QString &workFolder)
        : m_programs(programs),
          m_workFolder(workFolder)
    {
    }

    QVector<Row> take() { return std::move(m_rows); }

    void addStart();
    void addEditing();
    void addDrag();
    void addPanel();
    void addExport();
    void addRenderer();

private:
    QString program(const char *name) const { return m_programs + QLatin1Char('/') + QLatin1String(name); }
    QString workFile(const QString &name) const { return m_workFolder + QLatin1Char('/') + name; }
    QString layout(int items) const;

    Probe inProcess(const char *name, const QStringList &words, const char *key = "cpu",
                    const QStringList &environment = {}) const;
    Probe started(const QString &name, const char *key) const;
    Probe rendered(const QString &name, int items, const char *key) const;

    void ratio(int goal, const QString &work, const Probe &probe, const Probe &reference, double limit);
    void growth(int goal, const QString &work, const Probe &large, const Probe &small, double span,
                double limit);
    void value(int goal, const QString &work, const Probe &probe, double limit);
    void compare(int goal, const QString &work, const QStringList &words, double limit);
    void growthOf(int goal, const QString &name, int small, int large, double limit);

    QString m_programs;
    QString m_workFolder;
    QVector<Row> m_rows;
};

QString RowList::layout(int items) const
{
    QString path = workFile(QStringLiteral("%1.lay").arg(items));
    BenchBoard::write(path, items, QSize(1920, 1080));
    return path;
}

Probe RowList::inProcess(const char *name, const QStringList &words, const char *key,
                         const QStringList &environment) const
{
    const QStringList variables = environment + QStringList(QStringLiteral("QT_QPA_PLATFORM=offscreen"));
    return {Probe::Kind::Run, {program(name), words, variables}, QLatin1String(key)};
}

Probe RowList::started(const QString &name, const char *key) const
{
    return {Probe::Kind::Start, {name, {}, {QStringLiteral("HOME=") + m_workFolder}}, QLatin1String(key)};
}

Probe RowList::rendered(const QString &name, int items, const char *key) const
{
    return {Probe::Kind::Run,
            {name, {layout(items), workFile(QStringLiteral("picture.png"))}, {}},
            QLatin1String(key)};
}

void RowList::ratio(int goal, const QString &work, const Probe &probe, const Probe &reference, double limit)
{
    m_rows.append({goal, work, probe, reference, Row::Measure::Ratio, limit});
}

void RowList::growth(int goal, const QString &work, const Probe &large, const Probe &small, double span,
                     double limit)
{
    m_rows.append({goal, work, large, small, Row::Measure::Growth, limit, span});
}

void RowList::value(int goal, const QString &work, const Probe &probe, double limit)
{
    m_rows.append({goal, work, probe, {}, Row::Measure::Value, limit});
}

void RowList::compare(int goal, const QString &work, const QStringList &words, double limit)
{
    ratio(goal, work, inProcess("bench-product", words), inProcess("bench-floor", words), limit);
    ratio(goal, work + QStringLiteral(", without debug lines"),
          inProcess("bench-product", words, "cpu", {silence()}), inProcess("bench-floor", words), 0);
}

void RowList::growthOf(int goal, const QString &name, int small, int large, double limit)
{
    growth(goal, QStringLiteral("%1, growth %2 to %3").arg(name).arg(small).arg(large),
           inProcess("bench-product", {name, QString::number(large)}),
           inProcess("bench-product", {name, QString::number(small)}), double(large) / small, limit);
}

void RowList::addStart()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    const QString ours = program("boardwright");
    const QString floor = program("bench-floor-start");
    ratio(1, QStringLiteral("start to drawn"), started(ours, "drawn"), started(floor, "drawn"), 1.0);
    ratio(1, QStringLiteral("start, CPU"), started(ours, "process"), started(floor, "process"), 1.0);
    value(1, QStringLiteral("start, peak MiB"), started(ours, "peak"), 90);
    const QStringList peers = QStringLiteral(BENCH_PEERS).split(QLatin1Char(','));
    for (const QString &peer : peers) {
        if (QStandardPaths::findExecutable(peer).isEmpty())
            continue;
        ratio(1, QStringLiteral("start to drawn, beside %1").arg(peer), started(ours, "drawn"),
              started(peer, "drawn"), 1.0);
        ratio(1, QStringLiteral("start, CPU, beside %1").arg(peer), started(ours, "process"),
              started(peer, "process"), 1.0);
    }
}

void RowList::addEditing()
{
    compare(2, QStringLiteral("open 1000"), {QStringLiteral("open"), QStringLiteral("1000")}, 1.5);
    growthOf(2, QStringLiteral("open"), 1000, 10000, 1.25);
    compare(4, QStringLiteral("save 1000"), {QStringLiteral("save"), QStringLiteral("1000")}, 1.6);
    growthOf(4, QStringLiteral("save"), 1000, 10000, 1.1);
    addDrag();
    const QStringList small = {QStringLiteral("grid"), QStringLiteral("800"), QStringLiteral("400")};
    const QStringList large = {QStringLiteral("grid"), QStringLiteral("7680"), QStringLiteral("2160")};
    compare(7, QStringLiteral("dot grid, 60x60 exposed"), small, 3);
    ratio(7, QStringLiteral("dot grid, 7680x2160 against 800x400"), inProcess("bench-product", large),
          inProcess("bench-product", small), 1.3);
    compare(9, QStringLiteral("delete 1000"), {QStringLiteral("delete"), QStringLiteral("1000")}, 1.5);
    growthOf(9, QStringLiteral("delete"), 1000, 10000, 1.2);
}

void RowList::addDrag()
{
    const auto words = [](int items, int moved) {
        return QStringList{QStringLiteral("drag"), QString::number(items), QString::number(moved)};
    };
    for (int items : {1000, 3000}) {
        const QString work = QStringLiteral("drag 1 of %1").arg(items);
        compare(5, work, words(items, 1), 4);
        ratio(5, work + QStringLiteral(", against a full repaint"),
              inProcess("bench-product", words(items, 1)),
              inProcess("bench-product", words(items, 1), "repaint"), 0.1);
    }
    growth(5, QStringLiteral("drag 1, growth 1000 to 3000"), inProcess("bench-product", words(3000, 1)),
           inProcess("bench-product", words(1000, 1)), 3, 1.0);
    for (int moved : {100, 1000}) {
        const QString work = QStringLiteral("drag %1 of 1000").arg(moved);
        compare(6, work, words(1000, moved), 1.15);
        value(6, work + QStringLiteral(", paints per move"),
              inProcess("bench-product", words(1000, moved), "paints"), 1);
    }
    growth(6, QStringLiteral("drag 100, growth 1000 to 3000"), inProcess("bench-product", words(3000, 100)),
           inProcess("bench-product", words(1000, 100)), 3, 1.1);
    growth(6, QStringLiteral("drag of 1000, growth 100 to 1000 moved"),
           inProcess("bench-product", words(1000, 1000)), inProcess("bench-product", words(1000, 100)), 10,
           0.1);
}

void RowList::addPanel()
{
    compare(13, QStringLiteral("panel of a shape"), {QStringLiteral("panel"), QStringLiteral("1000")}, 2);
    const QStringList words = {QStringLiteral("switch"), QStringLiteral("1000")};
    ratio(13, QStringLiteral("1000 switches, last 100 against first"),
          inProcess("bench-product", words, "last"), inProcess("bench-product", words, "first"), 1.05);
    ratio(13, QStringLiteral("1000 switches, memory grown"), inProcess("bench-product", words, "grown"),
          inProcess("bench-floor", words, "grown"), 1.25);
    const QStringList edit = {QStringLiteral("edit"), QStringLiteral("1000")};
    ratio(13, QStringLiteral("step in a spin box, against what it may"), inProcess("bench-product", edit),
          inProcess("bench-product", edit, "allowed"), 1);
}

void RowList::addExport()
{
    const auto words = [](QSize size) {
        return QStringList{QStringLiteral("export"), QString::number(size.width()),
                           QString::number(size.height())};
    };
    const QVector<QSize> sizes = {{800, 400}, {1920, 1080}, {7680, 2160}};
    for (QSize size : sizes)
        compare(10, QStringLiteral("export %1x%2").arg(size.width()).arg(size.height()), words(size), 1.15);
    growth(10, QStringLiteral("export, growth in pixels"), inProcess("bench-product", words(sizes.last())),
           inProcess("bench-product", words(sizes.first())), 7680.0 * 2160 / (800 * 400), 1.0);
}

void RowList::addRenderer()
{
    const QString ours = program("boardwright-render");
    const QString floor = program("bench-floor-render");
    ratio(11, QStringLiteral("render 1000, time"), rendered(ours, 1000, "wall"),
          rendered(floor, 1000, "wall"), 2.5);
    ratio(11, QStringLiteral("render 1000, CPU"), rendered(ours, 1000, "process"),
          rendered(floor, 1000, "process"), 2.5);
    value(11, QStringLiteral("render 1000, peak MiB"), rendered(ours, 1000, "peak"), 110);
    growth(11, QStringLiteral("render, growth 1000 to 10000"), rendered(ours, 10000, "process"),
           rendered(ours, 1000, "process"), 10, 1.0);
}
} // namespace

QVector<Row> benchRows(const QString &programs, const QString &workFolder)
{
    RowList list(programs, workFolder);
    list.addStart();
    list.addEditing();
    list.addPanel();
    list.addExport();
    list.addRenderer();
    return list.take();
}
