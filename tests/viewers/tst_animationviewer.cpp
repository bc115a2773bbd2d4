#include "viewers/animationviewer.h"

#include "canvas/screenpicture.h"
#include "model/keys.h"
#include "tests/support/eventcounter.h"
#include "tests/support/strictmain.h"
#include "tests/viewers/mediaboard.h"
#include "tests/viewers/mediafolder.h"

#include <QLabel>
#include <QMovie>
#include <QPointer>
#include <QSignalSpy>

namespace
{
using State = QMovie::MovieState;

struct AnimationBoard : MediaBoard<AnimationViewer> {
    QLabel *label() const { return content->findChild<QLabel *>(); }
    QMovie *movie() const { return label()->movie(); }
};

Gif colours()
{
    return {{64, 32}, {Qt::red, Qt::green, Qt::blue}};
}
} // namespace

/// What an animation item does with its file; what it shares with the other kinds is told elsewhere.
class tst_AnimationViewer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<State>(); }

    void holdsAnEmptyLabelInItsCorner();
    void paintsNothingWithoutAMovie();
    void takesTheSizeOfTheMovie_data();
    void takesTheSizeOfTheMovie();
    void squeezesEachOfTwoLargeMovies();
    void playsAsSoonAsItsFileIsSet();
    void scalesTheMovieThoughNoResizeFollows();
    void scalesTheRunningMovieOnResize();
    void stretchesTheFrameInViewAtOnce();
    void showsEveryFrameInTurn();
    void showsTheScreenThroughTheMovie();
    void leavesEverythingAsItWasForWhatIsNoMovie_data();
    void leavesEverythingAsItWasForWhatIsNoMovie();
    void showsTheNewestMovieAlone();
    void readsTheSamePathAnew();
    void showsAStillPicture();
    void showsAResizedPictureAsIfItWereReadInThatSize_data();
    void showsAResizedPictureAsIfItWereReadInThatSize();
    void readsAPictureAnewOnlyInAnotherSize();
    void showsAPictureThatWasResizedWhileItWasHidden();
    void showsASingleFrame();
    void playsOnThoughTheFileSaysOnce();
    void playsOnThoughSomethingFollowsTheMovie();
    void playsOnWhenItsFileVanishes();
    void keepsTheBeginningOfATruncatedFile();
    void pausesWhileItIsHidden();
    void isExportedWithItsCurrentFrame();
    void isReadWithItsFirstFrameInItsSize();
    void survivesASizeOfNothing();
    void stretchesNoFrameBeyondMeasure();
    void leavesTheWindowTimeBetweenHeavyFrames();
    void keepsOneOfTenThousandFrames();
    void boundsFramesWithoutDelay();
    void diesWhileItPlays();

private:
    MediaFolder m_folder;
};

void tst_AnimationViewer::holdsAnEmptyLabelInItsCorner()
{
    const AnimationBoard board;
    QCOMPARE(board.content->findChildren<QLabel *>().size(), 1);
    QCOMPARE(board.label()->parentWidget(), board.content);
    QCOMPARE(board.label()->pos(), QPoint(0, 0));
    QVERIFY(!board.label()->isHidden());
    QVERIFY(!board.movie());
}

void tst_AnimationViewer::paintsNothingWithoutAMovie()
{
    AnimationBoard board;
    board.screen.setBackgrounColor(Qt::darkGreen);
    QImage empty(100, 50, QImage::Format_RGB32);
    empty.fill(Qt::darkGreen);
    QCOMPARE(board.picture(), empty);
}

void tst_AnimationViewer::takesTheSizeOfTheMovie_data()
{
    QTest::addColumn<QSize>("movie");
    QTest::addColumn<QSize>("item");
    QTest::newRow("smaller") << QSize(64, 32) << QSize(64, 32);
    QTest::newRow("size of a new item") << QSize(100, 50) << QSize(100, 50);
    QTest::newRow("larger both ways") << QSize(2000, 500) << QSize(800, 400);
    QTest::newRow("wider") << QSize(900, 10) << QSize(800, 10);
    QTest::newRow("higher") << QSize(10, 900) << QSize(10, 400);
}

void tst_AnimationViewer::takesTheSizeOfTheMovie()
{
    QFETCH(QSize, movie);
    QFETCH(QSize, item);
    AnimationBoard board;
    board.moveToCorner();
    board.content->setValue("Path", m_folder.movie(movie));
    QCOMPARE(board.frame->geometry(), QRect(QPoint(0, 0), item));
    QCOMPARE(board.content->getValue("W"), QVariant(item.width()));
    QCOMPARE(board.content->getValue("H"), QVariant(item.height()));
    QCOMPARE(board.movie()->scaledSize(), item);
    QCOMPARE(board.movie()->currentPixmap().size(), item);
}

void tst_AnimationViewer::squeezesEachOfTwoLargeMovies()
{
    AnimationBoard board;
    board.moveToCorner();
    for (const QSize size : {QSize(2000, 500), QSize(900, 450)}) {
        board.content->setValue("Path", m_folder.movie(size));
        QCOMPARE(board.movie()->currentPixmap().size(), QSize(800, 400));
    }
}

void tst_AnimationViewer::playsAsSoonAsItsFileIsSet()
{
    const AnimationBoard board;
    board.content->setValue("Path", m_folder.movie(colours()));
    QVERIFY(board.movie());
    QCOMPARE(board.movie()->state(), QMovie::Running);
    QCOMPARE(board.movie()->currentFrameNumber(), 0);
    QSignalSpy frames(board.movie(), &QMovie::frameChanged);
    QTRY_VERIFY(frames.size() >= 4);
}

void tst_AnimationViewer::scalesTheMovieThoughNoResizeFollows()
{
    const AnimationBoard board;
    const EventCounter resizes(board.content, QEvent::Resize);
    board.content->setValue("Path", m_folder.movie(QSize(100, 50)));
    QCOMPARE(resizes.count, 0);
    QCOMPARE(board.movie()->scaledSize(), QSize(100, 50));
}

void tst_AnimationViewer::scalesTheRunningMovieOnResize()
{
    AnimationBoard board;
    board.screen.show();
    board.content->setValue("Path", m_folder.movie(colours()));
    for (const QSize size : {QSize(200, 32), QSize(11, 90)}) {
        board.frame->resize(size);
        QCOMPARE(board.label()->geometry(), QRect(QPoint(0, 0), size));
        QCOMPARE(board.movie()->scaledSize(), size);
        QTRY_COMPARE(board.movie()->currentPixmap().size(), size);
        QTRY_COMPARE(board.movie()->state(), QMovie::Running);
    }
}

void tst_AnimationViewer::stretchesTheFrameInViewAtOnce()
{
    AnimationBoard board;
    board.content->setValue("Path", m_folder.movie(colours()));
    board.frame->resize(200, 100);
    QImage red(200, 100, QImage::Format_RGB32);
    red.fill(Qt::red);
    QCOMPARE(board.picture(), red);
}

void tst_AnimationViewer::showsEveryFrameInTurn()
{
    AnimationBoard board;
    board.content->setValue("Path", m_folder.movie(colours()));
    for (const Qt::GlobalColor color : {Qt::red, Qt::green, Qt::blue, Qt::red})
        QTRY_COMPARE(board.color({63, 31}), QColor(color));
}

void tst_AnimationViewer::showsTheScreenThroughTheMovie()
{
    QByteArray bytes = Gif{{64, 32}, {Qt::blue}}.bytes();
    // The control block of the frame: its only colour is the transparent one.
    const int control = bytes.indexOf(QByteArray("\x21\xf9\x04\x00", 4));
    bytes[control + 3] = 1;
    bytes[control + 6] = 1;
    AnimationBoard board;
    board.screen.setBackgrounColor(Qt::yellow);
    board.content->setValue("Path", m_folder.file("glass.gif", bytes));
    QCOMPARE(board.frame->size(), QSize(64, 32));
    QCOMPARE(board.color({63, 31}), QColor(Qt::yellow));
}

void tst_AnimationViewer::leavesEverythingAsItWasForWhatIsNoMovie_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("no path") << "";
    QTest::newRow("no file") << m_folder.path("missing.gif");
    QTest::newRow("a folder") << m_folder.path("");
    QTest::newRow("text") << m_folder.file("text.gif", "no movie at all");
    QTest::newRow("empty file") << m_folder.file("empty.gif", "");
    QTest::newRow("a picture without pixels")
        << m_folder.file("cut.png", readFile(m_folder.picture({70, 30})).left(50));
    QTest::newRow("a header alone") << m_folder.file("header.gif", colours().bytes().left(13));
}

void tst_AnimationViewer::leavesEverythingAsItWasForWhatIsNoMovie()
{
    QFETCH(QString, path);
    AnimationBoard board;
    board.content->setValue("Path", m_folder.movie(colours()));
    const QPointer<QMovie> before = board.movie();
    board.content->setValue("Path", path);
    QCOMPARE(board.content->getValue("Path"), QVariant(path));
    QCOMPARE(board.frame->geometry(), QRect(30, 20, 64, 32));
    QVERIFY(before);
    QCOMPARE(board.movie(), before.data());
    QCOMPARE(before->state(), QMovie::Running);
}

void tst_AnimationViewer::showsTheNewestMovieAlone()
{
    AnimationBoard board;
    board.content->setValue("Path", m_folder.movie(colours()));
    const QPointer<QMovie> first = board.movie();
    board.content->setValue("Path", m_folder.movie({{20, 10}, {Qt::cyan, Qt::cyan}}, "second.gif"));
    QVERIFY(!first);
    QCOMPARE(board.frame->size(), QSize(20, 10));
    QCOMPARE(board.movie()->state(), QMovie::Running);
    QCOMPARE(board.color({10, 5}), QColor(Qt::cyan));
    QCOMPARE(board.content->findChildren<QLabel *>().size(), 1);
}

void tst_AnimationViewer::readsTheSamePathAnew()
{
    const AnimationBoard board;
    board.content->setValue("Path", m_folder.movie(colours()));
    board.content->setValue("Path", m_folder.movie(QSize(20, 10)));
    QCOMPARE(board.frame->size(), QSize(20, 10));
}

void tst_AnimationViewer::showsAStillPicture()
{
    AnimationBoard board;
    board.content->setValue("Path", m_folder.picture({70, 30}));
    QCOMPARE(board.frame->size(), QSize(70, 30));
    QTRY_COMPARE(board.movie()->state(), QMovie::NotRunning);
    QCOMPARE(board.picture(), MediaFolder::chequered({70, 30}));
}

void tst_AnimationViewer::showsAResizedPictureAsIfItWereReadInThatSize_data()
{
    QTest::addColumn<bool>("hasEnded");
    QTest::addColumn<QSize>("size");
    for (const bool hasEnded : {false, true}) {
        const char *when = hasEnded ? "in view for long" : "just come";
        QTest::addRow("larger, %s", when) << hasEnded << QSize(140, 60);
        QTest::addRow("smaller, %s", when) << hasEnded << QSize(35, 29);
        QTest::addRow("a single pixel, %s", when) << hasEnded << QSize(1, 1);
    }
}

void tst_AnimationViewer::showsAResizedPictureAsIfItWereReadInThatSize()
{
    QFETCH(bool, hasEnded);
    QFETCH(QSize, size);
    const QString path = m_folder.picture({70, 30});
    AnimationBoard fresh;
    QVERIFY(fresh.content->fromJson({{Keys::type(), "Animation Viewer"},
                                     {"Path", path},
                                     {"X", 30},
                                     {"Y", 20},
                                     {"W", size.width()},
                                     {"H", size.height()}}));
    AnimationBoard board;
    board.screen.show();
    board.content->setValue("Path", path);
    if (hasEnded)
        QTRY_COMPARE(board.movie()->state(), QMovie::NotRunning);
    board.frame->resize(size);
    if (!hasEnded)
        QTRY_COMPARE(board.movie()->currentPixmap().size(), size);
    QCOMPARE(board.picture(), fresh.picture());
    QTRY_COMPARE(board.movie()->state(), QMovie::NotRunning);
    board.frame->resize(70, 30);
    QCOMPARE(board.picture(), MediaFolder::chequered({70, 30}));
}

void tst_AnimationViewer::readsAPictureAnewOnlyInAnotherSize()
{
    AnimationBoard board;
    board.screen.show();
    board.content->setValue("Path", m_folder.picture({70, 30}));
    QTRY_COMPARE(board.movie()->state(), QMovie::NotRunning);
    QSignalSpy starts(board.movie(), &QMovie::started);
    QSignalSpy ends(board.movie(), &QMovie::finished);
    board.frame->move(50, 40);
    QCOMPARE(starts.size(), 0);
    board.frame->resize(140, 60);
    QCOMPARE(starts.size(), 1);
    QTRY_COMPARE(board.movie()->state(), QMovie::NotRunning);
    QCoreApplication::processEvents();
    QCOMPARE(starts.size(), 1);
    QCOMPARE(ends.size(), 1);
}

void tst_AnimationViewer::showsAPictureThatWasResizedWhileItWasHidden()
{
    AnimationBoard board;
    board.screen.show();
    board.content->setValue("Path", m_folder.picture({70, 30}));
    QTRY_COMPARE(board.movie()->state(), QMovie::NotRunning);
    board.screen.hide();
    board.frame->resize(140, 60);
    board.screen.show();
    QCOMPARE(board.movie()->currentPixmap().size(), QSize(140, 60));
    QTRY_COMPARE(board.movie()->state(), QMovie::NotRunning);
}

void tst_AnimationViewer::showsASingleFrame()
{
    AnimationBoard board;
    board.content->setValue("Path", m_folder.movie({{64, 32}, {Qt::red}, 2, 1}));
    QSignalSpy frames(board.movie(), &QMovie::frameChanged);
    QTRY_COMPARE(board.movie()->state(), QMovie::NotRunning);
    QCOMPARE(board.color({63, 31}), QColor(Qt::red));
    QCOMPARE(frames.size(), 0);
}

void tst_AnimationViewer::playsOnThoughTheFileSaysOnce()
{
    const AnimationBoard board;
    for (const int plays : {1, 2, 3}) {
        board.content->setValue("Path", m_folder.movie({{8, 8}, {Qt::red, Qt::green}, 2, plays}));
        QSignalSpy ends(board.movie(), &QMovie::finished);
        QTRY_COMPARE(ends.size(), 2);
        QTRY_COMPARE(board.movie()->state(), QMovie::Running);
    }
}

void tst_AnimationViewer::playsOnThoughSomethingFollowsTheMovie()
{
    const AnimationBoard board;
    board.content->setValue("Path", m_folder.file("tail.gif", colours().bytes() + QByteArray(100000, 'x')));
    QSignalSpy frames(board.movie(), &QMovie::frameChanged);
    QTRY_VERIFY(frames.size() > 7);
    QTRY_COMPARE(board.movie()->state(), QMovie::Running);
}

void tst_AnimationViewer::playsOnWhenItsFileVanishes()
{
    const AnimationBoard board;
    board.content->setValue("Path", m_folder.movie(colours()));
    QVERIFY(QFile::remove(m_folder.path("movie.gif")));
    QSignalSpy frames(board.movie(), &QMovie::frameChanged);
    QTRY_VERIFY(frames.size() > 7);
    QTRY_COMPARE(board.movie()->state(), QMovie::Running);
}

void tst_AnimationViewer::keepsTheBeginningOfATruncatedFile()
{
    const QByteArray whole = colours().bytes();
    AnimationBoard board;
    board.content->setValue("Path", m_folder.file("cut.gif", whole.left(whole.size() / 2)));
    QCOMPARE(board.frame->size(), QSize(64, 32));
    QCOMPARE(board.color({5, 5}), QColor(Qt::red));
    QTRY_VERIFY(board.movie()->state() == QMovie::NotRunning || board.movie()->currentFrameNumber() > 0);
    QVERIFY(board.color({5, 5}) != QColor(Qt::black));
}

void tst_AnimationViewer::pausesWhileItIsHidden()
{
    AnimationBoard board;
    board.content->setValue("Path", m_folder.movie(colours()));
    board.screen.show();
    QCOMPARE(board.movie()->state(), QMovie::Running);
    board.screen.hide();
    QCOMPARE(board.movie()->state(), QMovie::Paused);
    board.screen.show();
    QCOMPARE(board.movie()->state(), QMovie::Running);
    QSignalSpy frames(board.movie(), &QMovie::frameChanged);
    QTRY_VERIFY(frames.size() > 3);
    board.screen.hide();
    board.content->setValue("Path", m_folder.movie(QSize(20, 10), "other.gif"));
    QCOMPARE(board.movie()->state(), QMovie::Paused);
    board.screen.show();
    QTRY_COMPARE(board.movie()->state(), QMovie::Running);
}

void tst_AnimationViewer::isExportedWithItsCurrentFrame()
{
    AnimationBoard board;
    board.content->setValue("Path", m_folder.movie(colours()));
    board.frame->resize(200, 100);
    QTRY_COMPARE(board.movie()->currentFrameNumber(), 1);
    const QImage exported = pictureOf(board.screen);
    QCOMPARE(exported.pixelColor(board.frame->geometry().bottomRight()), QColor(Qt::green));
    QCOMPARE(board.movie()->currentFrameNumber(), 1);
    QTRY_COMPARE(board.movie()->state(), QMovie::Running);
}

void tst_AnimationViewer::isReadWithItsFirstFrameInItsSize()
{
    Screen screen;
    const QJsonObject item = {{Keys::type(), "Animation Viewer"},
                              {"Path", m_folder.movie(colours())},
                              {"X", 10},
                              {"Y", 20},
                              {"W", 300},
                              {"H", 150}};
    screen.setWidgth(800);
    screen.setHeight(400);
    const ScreenItem *frame = screen.createItem(item);
    QCOMPARE(frame->geometry(), QRect(10, 20, 300, 150));
    const QMovie *movie = frame->findChild<QLabel *>()->movie();
    QCOMPARE(movie->currentPixmap().size(), QSize(300, 150));
    QCOMPARE(movie->currentFrameNumber(), 0);
    QTRY_COMPARE(movie->state(), QMovie::Running);
}

void tst_AnimationViewer::survivesASizeOfNothing()
{
    AnimationBoard board;
    board.screen.show();
    board.content->setValue("Path", m_folder.movie(colours()));
    board.content->setValue("H", 0);
    QCOMPARE(board.frame->height(), 0);
    QSignalSpy frames(board.movie(), &QMovie::frameChanged);
    QTRY_VERIFY(frames.size() > 3);
    board.content->setValue("H", 40);
    QTRY_COMPARE(board.movie()->currentPixmap().size(), QSize(64, 40));
}

void tst_AnimationViewer::stretchesNoFrameBeyondMeasure()
{
    AnimationBoard board;
    board.content->setValue("Path", m_folder.movie(colours()));
    board.screen.setWidgth(1000000);
    board.screen.setHeight(1000000);
    QImage part(50, 50, QImage::Format_RGB32);
    for (const QSize size : {QSize(4096, 4096), QSize(4096, 4097)}) {
        board.frame->resize(size);
        board.content->render(&part, QPoint(), QRect(0, 0, 50, 50));
        QCOMPARE(board.movie()->scaledSize(), size.height() == 4096 ? size : QSize());
    }
    board.content->setValue("W", 900000);
    board.content->setValue("H", 900000);
    QCOMPARE(board.content->size(), QSize(900000, 900000));
    QSignalSpy frames(board.movie(), &QMovie::frameChanged);
    QTRY_VERIFY(frames.size() > 3);
    QCOMPARE(board.movie()->currentPixmap().size(), QSize(64, 32));
    part.fill(Qt::black);
    board.content->render(&part, QPoint(), QRect(0, 0, 50, 50));
    QVERIFY(part.pixelColor(25, 25) != QColor(Qt::black));
}

void tst_AnimationViewer::leavesTheWindowTimeBetweenHeavyFrames()
{
    // Twelve million pixels take longer than the 20 milliseconds that each frame is to be shown.
    const AnimationBoard board;
    board.content->setValue("Path", m_folder.movie({{4000, 3000}, {Qt::red, Qt::green}}));
    QSignalSpy states(board.movie(), &QMovie::stateChanged);
    QTRY_VERIFY(states.contains(QVariantList{QVariant::fromValue(QMovie::Paused)}));
    QTRY_VERIFY(states.contains(QVariantList{QVariant::fromValue(QMovie::Running)}));
    QSignalSpy frames(board.movie(), &QMovie::frameChanged);
    QTRY_VERIFY(frames.size() > 1);
}

void tst_AnimationViewer::keepsOneOfTenThousandFrames()
{
    const AnimationBoard board;
    board.content->setValue("Path", m_folder.movie({{8, 8}, QVector<QColor>(10000, Qt::red)}));
    QCOMPARE(board.movie()->cacheMode(), QMovie::CacheNone);
    QTRY_VERIFY(board.movie()->currentFrameNumber() > 3);
    QTRY_COMPARE(board.movie()->state(), QMovie::Running);
}

void tst_AnimationViewer::boundsFramesWithoutDelay()
{
    const AnimationBoard board;
    for (const int delay : {0, 1}) {
        board.content->setValue("Path", m_folder.movie({{8, 8}, {Qt::red, Qt::green}, delay}));
        QTRY_VERIFY(board.movie()->currentFrameNumber() > 0);
        QVERIFY(board.movie()->nextFrameDelay() >= 5);
    }
}

void tst_AnimationViewer::diesWhileItPlays()
{
    const AnimationBoard board;
    board.content->setValue("Path", m_folder.movie(colours()));
    const QPointer<QMovie> movie = board.movie();
    QTRY_VERIFY(movie->currentFrameNumber() > 0);
    delete board.frame;
    QVERIFY(!movie);
    QCoreApplication::processEvents();
}

BOARDWRIGHT_TEST_MAIN(tst_AnimationViewer)
#include "tst_animationviewer.moc"
