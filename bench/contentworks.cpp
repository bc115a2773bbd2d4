#include "bench/contentworks.h"

#include "bench/measure.h"
#include "bench/media.h"
#include "bench/session.h"
#include "canvas/screen.h"
#include "canvas/screenitem.h"

#include <QApplication>
#include <QDebug>
#include <QTextEdit>

namespace
{
constexpr QSize canvasSize(800, 400);

/// So large that hardly any item lies over another, however many there are.
constexpr QSize wideCanvas(7680, 2160);

/// Just as much as is shown whole: cells of tables are dearer than anything else.
constexpr int dearestCells = 4000;
constexpr int longestText = 16 * 1024;  // characters
constexpr int lengthOfHtml = 64 * 1024; // characters

QString textToShow(bool isPlain)
{
    const QString word = QStringLiteral("word ");
    const QString html = isPlain
                             ? word.repeated(longestText / word.size())
                             : QStringLiteral("<table><tr>") + QStringLiteral("<td>x").repeated(dearestCells);
    return html + QStringLiteral("<!--%1-->").arg(QString(lengthOfHtml - html.size(), QLatin1Char(' ')));
}

QJsonObject layoutOf(const QString &html)
{
    QJsonObject item = BenchBoard::items(1, canvasSize, BenchBoard::Content::Texts).first().toObject();
    item.insert(QStringLiteral("Text"), html);
    return BenchBoard::layout(QJsonArray{item}, canvasSize);
}

ScreenItem &openPicture(Session &session)
{
    session.open();
    session.screen().goToRenderMode();
    settle();
    return *session.screen().items().first();
}
} // namespace

void editText(int items, int)
{
    Session session(items, wideCanvas, BenchBoard::Content::Texts);
    session.open();
    settle();
    ScreenItem &item = *session.screen().items().first();
    session.show(item);
    const auto *editor = item.findChild<QTextEdit *>();
    const auto close = [&item, editor] {
        if (editor->isReadOnly() || editor->visibleRegion().isEmpty())
            qFatal("the text was not opened");
        item.content()->endEditing();
    };
    const auto open = [&item] {
        postMouse(item, QEvent::MouseButtonDblClick, Qt::LeftButton);
    };
    const auto clickAndOpen = [&item, open] {
        click(item);
        open();
    };
    const auto closeAndLeave = [&session, close] {
        close();
        postMouse(session.screen(), QEvent::MouseButtonPress, Qt::LeftButton);
    };
    report("cpu", cpuOfUndone(20, clickAndOpen, closeAndLeave));
    click(item);
    settle();
    report("opening", cpuOfUndone(100, open, close));
}

void showText(int isPlain, int)
{
    Session session(layoutOf(textToShow(isPlain != 0)));
    report("cpu", cpuPerTurn(5, [&session](int) {
               session.open();
               settle();
           }));
    if (session.screen().items().first()->findChild<QTextEdit *>()->toPlainText().size() < dearestCells)
        qFatal("the text is not shown whole");
}

void paintPicture(int, int)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("picture.png"));
    BenchMedia::writePicture(path);
    Session session(BenchBoard::layout(BenchMedia::pictureItem(path), canvasSize));
    ScreenItem &item = openPicture(session);
    report("cpu", cpuPerTurn(500, [&item](int) { item.repaint(); }));
}

void readPicture(int, int)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("picture.png"));
    BenchMedia::writePicture(path);
    Session session(BenchBoard::layout(BenchMedia::pictureItem(path), canvasSize));
    ScreenItem &item = openPicture(session);
    report("cpu", cpuPerTurn(5, [&](int) { item.content()->setValue(QStringLiteral("Path"), path); }));
    if (item.size() != BenchMedia::pictureSize.boundedTo(canvasSize))
        qFatal("the picture was not read");
}

void playMovies(int movies, int)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("movie.gif"));
    BenchMedia::writeMovie(path);
    Session session(BenchBoard::layout(BenchMedia::movieItems(movies, path), canvasSize));
    session.open();
    BenchMedia::reportPlaying(session.screen());
}

void rest(int items, int)
{
    Session session(items, canvasSize, BenchBoard::Content::Mixed);
    session.open();
    settle(500);
    report("cpu", cpuAtRest(10000));
}
