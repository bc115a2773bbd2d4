#include "viewers/movielabel.h"

#include "tests/support/strictmain.h"
#include "tests/viewers/mediafolder.h"

#include <QMovie>
#include <QPaintEvent>

namespace
{
/// Notes where it is told to paint.
class NotingLabel : public MovieLabel
{
public:
    NotingLabel() : MovieLabel(nullptr) {}
    QRegion painted;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        painted += event->region();
        MovieLabel::paintEvent(event);
    }
};

Gif colours()
{
    return {{20, 10}, {Qt::red, Qt::green}};
}
} // namespace

class tst_MovieLabel : public QObject
{
    Q_OBJECT

private slots:
    void paintsNothingWithoutAMovie();
    void paintsTheFrameOverItsWholeSize();
    void paintsTheWholeOfTheNextFrame();

private:
    MediaFolder m_folder;
};

void tst_MovieLabel::paintsNothingWithoutAMovie()
{
    MovieLabel label(nullptr);
    label.resize(30, 20);
    QImage image(30, 20, QImage::Format_RGB32);
    image.fill(Qt::yellow);
    const QImage before = image;
    label.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    QCOMPARE(image, before);
}

void tst_MovieLabel::paintsTheFrameOverItsWholeSize()
{
    QMovie movie(m_folder.picture({20, 10}));
    MovieLabel label(nullptr);
    label.setMovie(&movie);
    movie.start();
    for (const QSize size : {QSize(20, 10), QSize(200, 50), QSize(7, 31)}) {
        label.resize(size);
        QImage image(size, QImage::Format_RGB32);
        label.render(&image);
        QCOMPARE(image, MediaFolder::chequered({20, 10}).scaled(size));
    }
}

void tst_MovieLabel::paintsTheWholeOfTheNextFrame()
{
    QMovie movie(m_folder.movie(colours()));
    NotingLabel label;
    label.setMovie(&movie);
    label.resize(200, 100);
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label));
    movie.jumpToFrame(0);
    QCoreApplication::processEvents();
    label.painted = QRegion();
    movie.jumpToFrame(1);
    QTRY_COMPARE(label.painted, QRegion(label.rect()));
}

BOARDWRIGHT_TEST_MAIN(tst_MovieLabel)
#include "tst_movielabel.moc"
