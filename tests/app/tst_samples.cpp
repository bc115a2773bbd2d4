#include "app/mainwindow.h"
#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "tests/support/dialoganswers.h"
#include "tests/support/files.h"
#include "tests/support/samples.h"
#include "tests/support/strictmain.h"

#include <QTemporaryDir>

// Every sample board goes through the editor and comes out unchanged.
class tst_Samples : public QObject
{
    Q_OBJECT

private slots:
    void comesOutUnchanged_data() { addSamples(); }
    void comesOutUnchanged();
};

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
