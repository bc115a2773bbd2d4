#include "bench/floormedia.h"

#include "bench/floorwindow.h"
#include "bench/measure.h"
#include "bench/media.h"

#include <QLabel>
#include <QMovie>
#include <QPainter>
#include <QTemporaryDir>

namespace
{
class ReadyPicture : public QWidget
{
    Q_OBJECT

public:
    ReadyPicture(const QImage &image, QWidget *parent) : QWidget(parent), m_pixmap(QPixmap::fromImage(image))
    {
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        Q_UNUSED(event)
        QPainter painter(this);
        painter.drawPixmap(0, 0, m_pixmap);
    }

private:
    QPixmap m_pixmap;
};

QString writtenPicture(const QTemporaryDir &folder)
{
    QString path = folder.filePath(QStringLiteral("picture.png"));
    BenchMedia::writePicture(path);
    return path;
}

void addMovie(FloorCanvas &canvas, QPoint place, const QString &path, bool keepsFrames)
{
    auto *label = new QLabel(&canvas);
    auto *movie = new QMovie(path, QByteArray(), label);
    movie->setCacheMode(keepsFrames ? QMovie::CacheAll : QMovie::CacheNone);
    label->setMovie(movie);
    label->setGeometry(QRect(place, BenchMedia::movieSize));
    label->show();
    movie->start();
}
} // namespace

void paintPicture(int, int)
{
    const QTemporaryDir folder;
    FloorWindow window;
    FloorFrame *frame = window.canvas().addFrame(QRect(QPoint(), BenchMedia::shownSize));
    const QImage image(writtenPicture(folder));
    frame->setContent(new ReadyPicture(image.scaled(BenchMedia::shownSize), frame));
    frame->show();
    settle();
    report("cpu", cpuPerTurn(500, [frame](int) { frame->repaint(); }));
}

void readPicture(int, int)
{
    const QTemporaryDir folder;
    const QString path = writtenPicture(folder);
    report("cpu", cpuPerTurn(5, [&path](int) {
               QImage image;
               if (!image.load(path))
                   qFatal("the picture cannot be read");
           }));
}

void playMovies(int movies, int keepsFrames)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("movie.gif"));
    BenchMedia::writeMovie(path);
    FloorWindow window;
    const QVector<QPoint> places = BenchMedia::moviePlaces(movies);
    for (QPoint place : places)
        addMovie(window.canvas(), place, path, keepsFrames != 0);
    BenchMedia::reportPlaying(window.canvas());
}

#include "floormedia.moc"
