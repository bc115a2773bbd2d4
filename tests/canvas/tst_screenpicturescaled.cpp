#include "canvas/screen.h"
#include "canvas/screenpicture.h"
#include "tests/support/boards.h"
#include "tests/support/strictmain.h"

#include <QImage>

/// Pictures taken on a desktop that shows every pixel of ours as four.
class tst_ScreenPictureScaled : public QObject
{
    Q_OBJECT

private slots:
    void runsScaled();
    void hasOnePixelForEachOfTheScreen();
};

void tst_ScreenPictureScaled::runsScaled()
{
    QCOMPARE(Screen().devicePixelRatioF(), 2.0);
}

void tst_ScreenPictureScaled::hasOnePixelForEachOfTheScreen()
{
    Screen screen;
    screen.loadLayout(
        board({shapeObject("Box", QRect(10, 20, 30, 40), {{"Color", "blue"}, {"Opacity", 100}})},
              {{"Width", 100}, {"Height", 80}, {"Background Color", "white"}}));
    const QImage picture = pictureOf(screen);
    QCOMPARE(picture.size(), QSize(100, 80));
    QCOMPARE(picture.pixelColor(25, 40), QColor("blue"));
    QCOMPARE(picture.pixelColor(41, 40), QColor("white"));
    QCOMPARE(picture.pixelColor(99, 79), QColor("white"));
}

int main(int argc, char **argv)
{
    qputenv("QT_SCALE_FACTOR", "2");
    QApplication application(argc, argv);
    tst_ScreenPictureScaled test;
    return runStrictly(test, argc, argv);
}
#include "tst_screenpicturescaled.moc"
