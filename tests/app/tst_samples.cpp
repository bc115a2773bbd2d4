#include "app/mainwindow.h"
#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "tests/support/dialoganswers.h"
#include "tests/support/files.h"
#include "tests/support/strictmain.h"

#include <QDir>
#include <QTemporaryDir>

// Every sample board, found by listing their folder, goes through the editor and comes out unchanged.
class tst_Samples : public QObject
{
    Q_OBJECT

private slots:
    void comesOutUnchanged_data();
    void comesOutUnchanged();
};

void tst_Samples::comesOutUnchanged_data()
{
    QTest::addColumn<QString>("sample");

    const QFileInfoList samples =
        QDir(BOARDWRIGHT_SOURCE_DIR "/samples").entryInfoList({"*.lay"}, QDir::Files);
    if (samples.size() < 3)
        QFAIL("fewer than three samples");
    for (const QFileInfo &sample : samples)
        QTest::newRow(qPrintable(sample.fileName())) << sample.filePath();
}

void tst_Samples::comesOutUnchanged()
{
    QFETCH(QString, sample);

    const QTemporaryDir folder;
    const DialogAnswers none;
    MainWindow window(nullptr);
    window.show();
    window.openFile(sample);
    QVERIFY(!window.canvas()->items().isEmpty());
    window.saveFile(folder.filePath("first.lay"));
    QCOMPARE(readFile(folder.filePath("first.lay")), readFile(sample));

    window.openFile(folder.filePath("first.lay"));
    window.saveFile(folder.filePath("second.lay"));
    QCOMPARE(readFile(folder.filePath("second.lay")), readFile(sample));
    QVERIFY(none.areUsedUp());
}

BOARDWRIGHT_TEST_MAIN(tst_Samples)
#include "tst_samples.moc"
