#include "pictures/sharedpicture.h"

#include "tests/support/strictmain.h"
#include "tests/viewers/mediaboard.h"
#include "tests/viewers/mediafolder.h"
#include "viewers/animationviewer.h"
#include "viewers/imagevieweritem.h"

#include <QLabel>
#include <QMovie>

/// One picture in memory for all items that show it.
class tst_SharedPicture : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QCOMPARE(MemoryClaim::left(), MemoryClaim::maximum); }

    void isTheSameForAll();
    void isCountedOnce();
    void isGivenBackWithTheLastUser();
    void isShownByAnyNumberOfItems();
    void isReadAnewWhenItsFileChanges();
    void isNoneWithoutRoom();
    void moviesShareTheirFile();
    void animationItemsKeepPicturesInTheirOwnSize();

private:
    MediaFolder m_folder;
};

void tst_SharedPicture::isTheSameForAll()
{
    const QString path = m_folder.picture({70, 30});
    const auto first = SharedPicture::in(path);
    QCOMPARE(SharedPicture::in(path), first);
    QCOMPARE(first->image(), MediaFolder::chequered({70, 30}));
}

void tst_SharedPicture::isCountedOnce()
{
    const QString path = m_folder.picture({70, 30});
    const auto first = SharedPicture::in(path);
    const auto second = SharedPicture::in(path);
    QCOMPARE(MemoryClaim::left(), MemoryClaim::maximum - 70 * 30 * 4);
}

void tst_SharedPicture::isGivenBackWithTheLastUser()
{
    const QString path = m_folder.picture({70, 30});
    auto first = SharedPicture::in(path);
    auto second = SharedPicture::in(path);
    first.reset();
    QCOMPARE(MemoryClaim::left(), MemoryClaim::maximum - 70 * 30 * 4);
    second.reset();
    QCOMPARE(MemoryClaim::left(), MemoryClaim::maximum);
}

void tst_SharedPicture::isShownByAnyNumberOfItems()
{
    // Three times as many as the memory would hold copies.
    const QString path = m_folder.picture({700, 300});
    MemoryClaim others;
    QVERIFY(others.take(MemoryClaim::maximum - 10 * 700 * 300 * 4));
    Screen screen;
    screen.setWidgth(800);
    screen.setHeight(400);
    for (int i = 0; i < 30; ++i) {
        auto *frame = new ScreenItem(&screen);
        auto *content = new ImageViewerItem(frame);
        content->setValue("Path", path);
        QCOMPARE(frame->size(), QSize(700, 300));
        QImage image(frame->size(), QImage::Format_RGB32);
        content->render(&image);
        QCOMPARE(image, MediaFolder::chequered({700, 300}));
    }
    QCOMPARE(MemoryClaim::left(), qint64(9 * 700 * 300 * 4));
}

void tst_SharedPicture::isReadAnewWhenItsFileChanges()
{
    const MediaBoard<ImageViewerItem> first;
    MediaBoard<ImageViewerItem> second;
    first.content->setValue("Path", m_folder.picture({70, 30}));
    QImage other(70, 30, QImage::Format_RGB32);
    other.fill(Qt::cyan);
    second.content->setValue("Path", m_folder.picture(other));
    QCOMPARE(second.picture(), other);
    QCOMPARE(MemoryClaim::left(), MemoryClaim::maximum - (2 * 70 * 30 + 70 * 30) * 4);
}

void tst_SharedPicture::isNoneWithoutRoom()
{
    const QString path = m_folder.picture({70, 30});
    MemoryClaim others;
    QVERIFY(others.take(MemoryClaim::maximum - 70 * 30 * 4 + 1));
    QString reason;
    QVERIFY(!SharedPicture::in(path, &reason));
    QVERIFY(reason.contains("8400 bytes"));
    QVERIFY(others.take(MemoryClaim::maximum - 70 * 30 * 4));
    const auto picture = SharedPicture::in(path);
    QVERIFY(picture);
    QCOMPARE(SharedPicture::in(path), picture);
}

void tst_SharedPicture::moviesShareTheirFile()
{
    const QString path = m_folder.movie(QSize(64, 32));
    const qint64 file = QFileInfo(path).size();
    const qint64 frames = 2 * qint64(64 * 32 * 4);
    const MediaBoard<AnimationViewer> first;
    first.content->setValue("Path", path);
    QCOMPARE(MemoryClaim::left(), MemoryClaim::maximum - file - frames);
    {
        const MediaBoard<AnimationViewer> second;
        second.content->setValue("Path", path);
        QCOMPARE(MemoryClaim::left(), MemoryClaim::maximum - file - 2 * frames);
    }
    QCOMPARE(MemoryClaim::left(), MemoryClaim::maximum - file - frames);
}

void tst_SharedPicture::animationItemsKeepPicturesInTheirOwnSize()
{
    const QString path = m_folder.picture({2000, 1000});
    const MediaBoard<AnimationViewer> board;
    board.content->setValue("Path", path);
    QCOMPARE(board.content->findChild<QLabel *>()->movie()->currentPixmap().size(), board.content->size());
    const qint64 shown = qint64(board.content->width()) * board.content->height() * 4;
    QCOMPARE(MemoryClaim::left(), MemoryClaim::maximum - QFileInfo(path).size() - shown);
}

BOARDWRIGHT_TEST_MAIN(tst_SharedPicture)
#include "tst_sharedpicture.moc"
