#include "bench/rows.h"

#include "bench/board.h"

#include <QGuiApplication>
#include <QStandardPaths>

namespace
{
/// Of work that takes ten seconds.
constexpr int fewRounds = 3;

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
    void addOpening();
    void addTexts();
    void addSaving();
    void addDrag();
    void addGrid();
    void addSelection();
    void addDeleting();
    void addClipboard();
    void addMedia();
    void addRest();
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
    void growthOf(int goal, const QString &name, int small, int large, double limit, const char *key = "cpu");
    void takeFewRounds() { m_rows.last().rounds = fewRounds; }

    QString m_programs;
    QString m_workFolder;
    QVector<Row> m_rows;
};

QString RowList::layout(int items) const
{
    QString path = workFile(QStringLiteral("%1.lay").arg(items));
    BenchBoard::write(path, BenchBoard::layout(items, QSize(1920, 1080)));
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

void RowList::growthOf(int goal, const QString &name, int small, int large, double limit, const char *key)
{
    const auto probe = [this, &name, key](int items) {
        return inProcess("bench-product", {name, QString::number(items)}, key);
    };
    const bool isOneOfMany = qstrcmp(key, "cpu") != 0;
    const QString work = isOneOfMany ? QStringLiteral("%1, %2").arg(name, QLatin1String(key)) : name;
    growth(goal, QStringLiteral("%1, growth %2 to %3").arg(work).arg(small).arg(large), probe(large),
           probe(small), double(large) / small, limit);
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

void RowList::addOpening()
{
    compare(2, QStringLiteral("open 1000 mixed"), {QStringLiteral("open-mixed"), QStringLiteral("1000")},
            1.5);
    growthOf(2, QStringLiteral("open-mixed"), 1000, 10000, 1.25);
    compare(2, QStringLiteral("open 1000 shapes"), {QStringLiteral("open-shapes"), QStringLiteral("1000")},
            1.5);
}

void RowList::addTexts()
{
    compare(3, QStringLiteral("open 1000 texts"), {QStringLiteral("open-texts"), QStringLiteral("1000")},
            1.4);
    growthOf(3, QStringLiteral("open-texts"), 1000, 3000, 1.15);
    const auto edit = [this](const char *among, const char *key) {
        return inProcess("bench-product", {QStringLiteral("edit-text"), QLatin1String(among)}, key);
    };
    ratio(3, QStringLiteral("double click into a text, 1000 against 1"), edit("1000", "cpu"),
          edit("1", "cpu"), 1.2);
    ratio(3, QStringLiteral("the same, its panel open already"), edit("1000", "opening"),
          edit("1", "opening"), 0);
    const auto show = [this](const char *isPlain) {
        return inProcess("bench-product", {QStringLiteral("show-text"), QLatin1String(isPlain)});
    };
    ratio(3, QStringLiteral("show the dearest text of 64 KiB, against plain text"), show("0"), show("1"), 25);
}

void RowList::addSaving()
{
    compare(4, QStringLiteral("save 1000"), {QStringLiteral("save"), QStringLiteral("1000")}, 1.6);
    growthOf(4, QStringLiteral("save"), 1000, 10000, 1.1);
}

void RowList::addGrid()
{
    const QStringList small = {QStringLiteral("grid"), QStringLiteral("800"), QStringLiteral("400")};
    const QStringList large = {QStringLiteral("grid"), QStringLiteral("7680"), QStringLiteral("2160")};
    compare(7, QStringLiteral("dot grid, 60x60 exposed"), small, 3);
    ratio(7, QStringLiteral("dot grid, 7680x2160 against 800x400"), inProcess("bench-product", large),
          inProcess("bench-product", small), 1.3);
}

void RowList::addSelection()
{
    const QStringList words = {QStringLiteral("select"), QStringLiteral("1000")};
    for (const char *key : {"all", "none"}) {
        ratio(8, QStringLiteral("select %1 of 1000").arg(QLatin1String(key)),
              inProcess("bench-product", words, key), inProcess("bench-floor", words, key), 1.3);
        growthOf(8, QStringLiteral("select"), 1000, 3000, 1.1, key);
    }
}

void RowList::addDeleting()
{
    compare(9, QStringLiteral("delete 1000"), {QStringLiteral("delete"), QStringLiteral("1000")}, 1.5);
    growthOf(9, QStringLiteral("delete"), 1000, 10000, 1.2);
    compare(9, QStringLiteral("paste 1000 mixed and delete them"),
            {QStringLiteral("paste-delete"), QStringLiteral("1000")}, 1.3);
    growthOf(9, QStringLiteral("paste-delete"), 1000, 10000, 1.2);
    compare(9, QStringLiteral("move 1 of 3000 a layer up, against raise()"),
            {QStringLiteral("layer"), QStringLiteral("3000")}, 3);
}

void RowList::addClipboard()
{
    const QString name = QStringLiteral("clipboard");
    for (const char *key : {"copy", "paste", "duplicate"}) {
        for (const char *items : {"1000", "3000"}) {
            const QStringList words = {name, QLatin1String(items)};
            ratio(9, QStringLiteral("%1 %2 mixed, against a load").arg(QLatin1String(key), words.last()),
                  inProcess("bench-product", words, key), inProcess("bench-product", words, "load"), 1.5);
        }
        growthOf(9, name, 1000, 3000, 1.2, key);
    }
}

void RowList::addMedia()
{
    compare(14, QStringLiteral("repaint a picture, against one that is ready"),
            {QStringLiteral("paint-picture")}, 1.3);
    compare(14, QStringLiteral("load a picture, against its file read"), {QStringLiteral("read-picture")},
            1.2);
    const auto play = [this](const char *name, const QString &movies, const QString &keepsFrames,
                             const char *key) {
        return inProcess(name, {QStringLiteral("play"), movies, keepsFrames}, key);
    };
    const QString fifty = QStringLiteral("50");
    const QString ten = QStringLiteral("10");
    const QString no = QStringLiteral("0");
    const QString yes = QStringLiteral("1");
    ratio(14, QStringLiteral("play 50 movies for a second"), play("bench-product", fifty, no, "cpu"),
          play("bench-floor", fifty, no, "cpu"), 1.3);
    ratio(14, QStringLiteral("frames of 50 movies, theirs against ours"),
          play("bench-floor", fifty, no, "frames"), play("bench-product", fifty, no, "frames"), 0);
    ratio(12, QStringLiteral("play 10 movies, against decoded frames"), play("bench-product", ten, no, "cpu"),
          play("bench-floor", ten, yes, "cpu"), 1.5);
}

void RowList::addRest()
{
    value(12, QStringLiteral("rest with 1000 mixed for 10 s, CPU ms"),
          inProcess("bench-product", {QStringLiteral("rest"), QStringLiteral("1000")}), 10);
    takeFewRounds();
    for (const char *kind : {"texts", "shapes"}) {
        const QString name = QStringLiteral("open-") + QLatin1String(kind);
        const QStringList words = {name, QStringLiteral("1000")};
        ratio(12, QStringLiteral("memory of 1000 %1, MiB").arg(QLatin1String(kind)),
              inProcess("bench-product", words, "grown"), inProcess("bench-floor", words, "grown"), 1.3);
    }
    growthOf(12, QStringLiteral("open-texts"), 1000, 3000, 1.0, "grown");
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
    growth(6, QStringLiteral("the same, of the bare widgets"), inProcess("bench-floor", words(1000, 1000)),
           inProcess("bench-floor", words(1000, 100)), 10, 0);
}

void RowList::addPanel()
{
    compare(13, QStringLiteral("panel of a shape"), {QStringLiteral("panel"), QStringLiteral("1000")}, 2);
    const QStringList words = {QStringLiteral("switch"), QStringLiteral("1000")};
    ratio(13, QStringLiteral("1000 switches, last 100 against first"),
          inProcess("bench-product", words, "last"), inProcess("bench-product", words, "first"), 1.05);
    takeFewRounds();
    ratio(13, QStringLiteral("1000 switches, memory grown"), inProcess("bench-product", words, "grown"),
          inProcess("bench-floor", words, "grown"), 1.25);
    takeFewRounds();
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
          rendered(floor, 1000, "wall"), 0.65);
    ratio(11, QStringLiteral("render 1000, CPU"), rendered(ours, 1000, "process"),
          rendered(floor, 1000, "process"), 0.65);
    value(11, QStringLiteral("render 1000, peak MiB"), rendered(ours, 1000, "peak"), 40);
    growth(11, QStringLiteral("render, growth 1000 to 10000"), rendered(ours, 10000, "process"),
           rendered(ours, 1000, "process"), 10, 1.0);
}
} // namespace

QVector<Row> benchRows(const QString &programs, const QString &workFolder)
{
    RowList list(programs, workFolder);
    list.addStart();
    list.addOpening();
    list.addTexts();
    list.addSaving();
    list.addDrag();
    list.addGrid();
    list.addSelection();
    list.addDeleting();
    list.addClipboard();
    list.addExport();
    list.addRenderer();
    list.addRest();
    list.addPanel();
    list.addMedia();
    return list.take();
}
