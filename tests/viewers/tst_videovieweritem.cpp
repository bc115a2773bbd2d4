#include "viewers/videovieweritem.h"

#include "tests/support/strictmain.h"
#include "tests/viewers/mediaboard.h"
#include "tests/viewers/mediafolder.h"
#include "viewers/contentfactory.h"

/// What a video item does with its file, which is nothing; what it shares with the other kinds is told
/// elsewhere.
class tst_VideoViewerItem : public QObject
{
    Q_OBJECT

private slots:
    void storesThePathAndKeepsItsSize_data();
    void storesThePathAndKeepsItsSize();
    void writesThePathToTheDebugLog();
    void entersTheCanvasOnNoRoad();

private:
    MediaFolder m_folder;
};

void tst_VideoViewerItem::storesThePathAndKeepsItsSize_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("a video") << m_folder.file("video.mp4", "moving");
    QTest::newRow("a picture") << m_folder.picture({70, 30});
    QTest::newRow("a movie") << m_folder.movie(QSize(64, 32));
    QTest::newRow("no file") << "videos/missing.mp4";
}

void tst_VideoViewerItem::storesThePathAndKeepsItsSize()
{
    QFETCH(QString, path);
    MediaBoard<VideoViewerItem> board;
    board.screen.setBackgrounColor(Qt::darkGreen);
    board.content->setValue("Path", path);
    QCOMPARE(board.content->getValue("Path"), QVariant(path));
    QCOMPARE(board.frame->geometry(), QRect(30, 20, 100, 50));
    QImage empty(100, 50, QImage::Format_RGB32);
    empty.fill(Qt::darkGreen);
    QCOMPARE(board.picture(), empty);
}

void tst_VideoViewerItem::writesThePathToTheDebugLog()
{
    const MediaBoard<VideoViewerItem> board;
    QLoggingCategory::setFilterRules("default.debug=true");
    QTest::ignoreMessage(QtDebugMsg, "\"videos/goal.mp4\"");
    board.content->setValue("Path", "videos/goal.mp4");
    QLoggingCategory::setFilterRules("default.debug=false");
}

void tst_VideoViewerItem::entersTheCanvasOnNoRoad()
{
    QWidget frame;
    QVERIFY(!ContentFactory::create("Video Viewer", &frame));
    QVERIFY(!ContentFactory::isClickable("Video Viewer"));
    QVERIFY(!ContentFactory::isDroppable("Video Viewer"));
    QVERIFY(!ContentFactory::isReadable("Video Viewer"));
}

BOARDWRIGHT_TEST_MAIN(tst_VideoViewerItem)
#include "tst_videovieweritem.moc"
