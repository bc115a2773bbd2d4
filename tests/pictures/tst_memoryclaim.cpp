#include "pictures/memoryclaim.h"

#include "pictures/mediafile.h"
#include "tests/support/strictmain.h"
#include "tests/viewers/mediaboard.h"
#include "tests/viewers/mediafolder.h"
#include "viewers/animationviewer.h"
#include "viewers/imagevieweritem.h"

#include <QLabel>
#include <QMovie>

/// What all pictures and movies together may hold.
class tst_MemoryClaim : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QCOMPARE(MemoryClaim::left(), MemoryClaim::maximum); }

    void givesBackWhatItHad();
    void takesInPlaceOfWhatItHad();
    void takesNoMoreThanIsLeft();
    void holdsForThePicturesOfAllItems();
    void holdsForTheMoviesOfAllItems();
    void readsNothingThatWouldNotFit();
    void readsNoFileLargerThanWhatIsLeft();
    void takesNoPictureThatIsDeeperThanWasLeft();
    void playsNoPictureThatIsShownDeeperThanWasLeft();
    void keepsNoCopiesFromTheSecondHalf();
    void stretchesNoFramesBeyondIt();

private:
    MediaFolder m_folder;
};

void tst_MemoryClaim::givesBackWhatItHad()
{
    {
        MemoryClaim claim;
        QVERIFY(claim.take(1000));
        QCOMPARE(MemoryClaim::left(), MemoryClaim::maximum - 1000);
    }
    QCOMPARE(MemoryClaim::left(), MemoryClaim::maximum);
}

void tst_MemoryClaim::takesInPlaceOfWhatItHad()
{
    MemoryClaim claim;
    for (const qint64 bytes : {MemoryClaim::maximum, qint64(1), MemoryClaim::maximum, qint64(0)}) {
        QVERIFY(claim.take(bytes));
        QCOMPARE(MemoryClaim::left(), MemoryClaim::maximum - bytes);
    }
}

void tst_MemoryClaim::takesNoMoreThanIsLeft()
{
    MemoryClaim first;
    MemoryClaim second;
    QVERIFY(first.take(MemoryClaim::maximum - 10));
    QVERIFY(second.take(9));
    QVERIFY(!second.take(11));
    QCOMPARE(MemoryClaim::left(), qint64(1));
    QVERIFY(second.take(10));
}

void tst_MemoryClaim::holdsForThePicturesOfAllItems()
{
    const MediaBoard<ImageViewerItem> board;
    board.content->setValue("Path", m_folder.picture({70, 30}));
    QCOMPARE(MemoryClaim::left(), MemoryClaim::maximum - 70 * 30 * 4);
    board.content->setValue("Path", m_folder.picture({20, 10}));
    QCOMPARE(MemoryClaim::left(), MemoryClaim::maximum - 20 * 10 * 4);
}

void tst_MemoryClaim::holdsForTheMoviesOfAllItems()
{
    const MediaBoard<AnimationViewer> board;
    for (const QSize size : {QSize(64, 32), QSize(20, 10)}) {
        const QString path = m_folder.movie(size);
        board.content->setValue("Path", path);
        // The file, a frame, and the frame stretched.
        const qint64 expected = QFileInfo(path).size() + 2 * MediaFile::bytesOf(size);
        QCOMPARE(MemoryClaim::left(), MemoryClaim::maximum - expected);
    }
}

void tst_MemoryClaim::readsNothingThatWouldNotFit()
{
    const QString path = m_folder.movie(QSize(64, 32));
    const MediaBoard<ImageViewerItem> image;
    const MediaBoard<AnimationViewer> animation;
    MemoryClaim others;
    QVERIFY(others.take(MemoryClaim::maximum - 64 * 32 * 4 + 1));
    for (ContentViewer *content :
         {static_cast<ContentViewer *>(image.content), static_cast<ContentViewer *>(animation.content)}) {
        content->setValue("Path", path);
        QCOMPARE(content->getValue("Path"), QVariant(path));
        QCOMPARE(content->parentWidget()->size(), QSize(100, 50));
    }
    QVERIFY(MediaFile::readPicture(path).isNull());
    QVERIFY(!MediaFile::readMovie(path));
    // Enough for the frame alone, not for the bytes of the file as well.
    QVERIFY(others.take(MemoryClaim::maximum - 64 * 32 * 4));
    animation.content->setValue("Path", path);
    QVERIFY(!animation.content->findChild<QLabel *>()->movie());
    image.content->setValue("Path", path);
    QCOMPARE(image.frame->size(), QSize(64, 32));
}

void tst_MemoryClaim::readsNoFileLargerThanWhatIsLeft()
{
    // The rest of the file is a hole.
    const QString path = m_folder.picture({7, 3});
    QVERIFY(QFile::resize(path, 100000));
    MemoryClaim others;
    QVERIFY(others.take(MemoryClaim::left() - 100000));
    QCOMPARE(MediaFile::readPicture(path).size(), QSize(7, 3));
    QVERIFY(others.take(MemoryClaim::maximum - 99999));
    QVERIFY(MediaFile::readPicture(path).isNull());
    QVERIFY(!MediaFile::readMovie(path));
}

void tst_MemoryClaim::takesNoPictureThatIsDeeperThanWasLeft()
{
    MediaBoard<ImageViewerItem> board;
    board.content->setValue("Path", m_folder.picture({20, 10}));
    // Eight bytes for each pixel.
    const QImage deep = MediaFolder::chequered({70, 30}).convertToFormat(QImage::Format_RGBA64);
    const QString path = m_folder.picture(deep, "deep.png");
    MemoryClaim others;
    QVERIFY(others.take(MemoryClaim::left() - 70 * 30 * 8 + 1));
    QVERIFY(MediaFile::readPicture(path).isNull());
    board.content->setValue("Path", path);
    QCOMPARE(board.frame->size(), QSize(20, 10));
    QCOMPARE(board.picture(), MediaFolder::chequered({20, 10}));
    QVERIFY(others.take(0));
    board.content->setValue("Path", path);
    QCOMPARE(board.frame->size(), QSize(70, 30));
}

void tst_MemoryClaim::playsNoPictureThatIsShownDeeperThanWasLeft()
{
    // One bit for each pixel, but in a label all that the screen has.
    const QImage mono = MediaFolder::chequered({70, 30}).convertToFormat(QImage::Format_Mono);
    const QString path = m_folder.picture(mono, "mono.png");
    const qint64 needed = QFileInfo(path).size() + 70 * 30 * 4;
    MemoryClaim others;
    QVERIFY(others.take(MemoryClaim::maximum - needed + 1));
    QVERIFY(!MediaFile::readPicture(path).isNull());
    QVERIFY(!MediaFile::readMovie(path));
    QVERIFY(others.take(MemoryClaim::maximum - needed));
    QVERIFY(MediaFile::readMovie(path));
}

void tst_MemoryClaim::keepsNoCopiesFromTheSecondHalf()
{
    MediaBoard<ImageViewerItem> board;
    board.content->setValue("Path", m_folder.picture({70, 30}));
    board.frame->resize(140, 60);
    MemoryClaim others;
    QVERIFY(others.take(MemoryClaim::maximum / 2));
    const qint64 before = MemoryClaim::left();
    const QImage stretched = MediaFolder::chequered({70, 30}).scaled(140, 60);
    QCOMPARE(board.picture(), stretched);
    QCOMPARE(MemoryClaim::left(), before);
    QVERIFY(others.take(0));
    QCOMPARE(board.picture(), stretched);
    QCOMPARE(MemoryClaim::left(), MemoryClaim::maximum - (70 * 30 + 140 * 60) * 4);
    // What was kept for another size is given back.
    QVERIFY(others.take(MemoryClaim::maximum / 2));
    board.frame->resize(141, 60);
    QCOMPARE(board.picture(), MediaFolder::chequered({70, 30}).scaled(141, 60));
    QCOMPARE(MemoryClaim::left(), before);
}

void tst_MemoryClaim::stretchesNoFramesBeyondIt()
{
    MediaBoard<AnimationViewer> board;
    board.screen.show();
    board.content->setValue("Path", m_folder.movie(QSize(64, 32)));
    MemoryClaim others;
    QVERIFY(others.take(MemoryClaim::left()));
    board.frame->resize(200, 100);
    QMovie *movie = board.content->findChild<QLabel *>()->movie();
    QVERIFY(movie->scaledSize().isEmpty());
    QCOMPARE(board.color({199, 99}).alpha(), 255);
    QVERIFY(board.color({199, 99}) != QColor(Qt::black));
    QVERIFY(others.take(0));
    board.frame->resize(201, 100);
    QCOMPARE(movie->scaledSize(), QSize(201, 100));
}

BOARDWRIGHT_TEST_MAIN(tst_MemoryClaim)
#include "tst_memoryclaim.moc"
