#include "app/mainwindow.h"
#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "pictures/datafields.h"
#include "tests/model/bundledfonts.h"
#include "tests/support/dialoganswers.h"
#include "tests/support/files.h"
#include "tests/support/samples.h"
#include "tests/support/strictmain.h"

#include <QDir>
#include <QFontInfo>
#include <QImageReader>
#include <QMovie>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>

// Every sample board goes through the editor and comes out unchanged, and its texts are fit to be shown.
class tst_Samples : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void comesOutUnchanged_data() { addSamples(); }
    void comesOutUnchanged();
    void bindsItsTextsToDataFields_data() { addSamples(); }
    void bindsItsTextsToDataFields();
    void showsTheFieldsOfItsGame_data();
    void showsTheFieldsOfItsGame();
    void namesBundledFamilies_data() { addSamples(); }
    void namesBundledFamilies();
    void choosesTheAlignmentOfItsTexts_data() { addSamples(); }
    void choosesTheAlignmentOfItsTexts();
    void showsItsTextsWhole_data() { addSamples(); }
    void showsItsTextsWhole();
    void showsItsPicturesAndAnimations_data() { addSamples(); }
    void showsItsPicturesAndAnimations();
    void playsABallAndShowsALogo();
};

namespace
{
QList<ScreenItem *> textsOf(const MainWindow &window)
{
    QList<ScreenItem *> texts;
    const QList<ScreenItem *> items = window.canvas()->items();
    for (ScreenItem *item : items) {
        if (item->content()->getValues().value("Type") == "Text")
            texts.append(item);
    }
    return texts;
}

QList<ScreenItem *> mediaOf(const MainWindow &window)
{
    QList<ScreenItem *> media;
    const QList<ScreenItem *> items = window.canvas()->items();
    for (ScreenItem *item : items) {
        if (item->content()->getValues().contains("Path"))
            media.append(item);
    }
    return media;
}

QString stored(const ScreenItem *text, const QString &key)
{
    return text->content()->getValues().value(key).toString();
}

QStringList fieldsOf(const MainWindow &window)
{
    QStringList fields;
    const QList<ScreenItem *> texts = textsOf(window);
    for (const ScreenItem *text : texts)
        fields.append(stored(text, "Text Type"));
    fields.sort();
    fields.removeDuplicates();
    return fields;
}

/// Null when the whole text is one line inside the item.
QString whatIsCut(const QTextEdit &editor)
{
    const QTextDocument &document = *editor.document();
    if (document.isEmpty())
        return "no text";
    if (document.blockCount() != 1 || document.firstBlock().layout()->lineCount() != 1)
        return "more than one line";
    if (document.idealWidth() > editor.width())
        return "too wide";
    return document.size().height() > editor.height() ? "too high" : QString();
}
} // namespace

void tst_Samples::initTestCase()
{
    // Where `./run` starts the programs: the samples name their pictures from there.
    QVERIFY(QDir::setCurrent(BOARDWRIGHT_SOURCE_DIR));
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

void tst_Samples::bindsItsTextsToDataFields()
{
    QFETCH(QString, sample);

    MainWindow window(nullptr);
    window.openFile(sample);
    const QStringList fields = fieldsOf(window);
    QVERIFY(fields.contains("Game Clock"));
    for (const QString &field : fields)
        QVERIFY2(DataFields::names().contains(field), qPrintable(field));
}

void tst_Samples::showsTheFieldsOfItsGame_data()
{
    QTest::addColumn<QString>("sample");
    QTest::addColumn<QStringList>("fields");

    QTest::newRow("a scoreboard shows them all") << "basketball.lay" << DataFields::names();
    QTest::newRow("a small board shows the time")
        << "clock.lay" << QStringList({"Game Clock", "Period", "Shot Timer", "Text"});
    QTest::newRow("a perimeter board shows time and result")
        << "perimeter.lay"
        << QStringList({"Game Clock", "Home Score", "Home Team Name", "Period", "Shot Timer", "Text",
                        "Visitor Score", "Visitor Team Name"});
}

void tst_Samples::showsTheFieldsOfItsGame()
{
    QFETCH(QString, sample);
    QFETCH(QStringList, fields);

    MainWindow window(nullptr);
    window.openFile(BOARDWRIGHT_SOURCE_DIR "/samples/" + sample);
    fields.sort();
    QCOMPARE(fieldsOf(window), fields);
}

void tst_Samples::namesBundledFamilies()
{
    REQUIRE_BUNDLED_FONTS();
    QFETCH(QString, sample);

    MainWindow window(nullptr);
    window.openFile(sample);
    const QStringList families = MainWindow::fontFamilies();
    const QList<ScreenItem *> texts = textsOf(window);
    for (const ScreenItem *text : texts) {
        const QString family = stored(text, "Font");
        QVERIFY2(families.contains(family), qPrintable(family));
        QCOMPARE(QFontInfo(QFont(family)).family(), family);
    }
}

void tst_Samples::choosesTheAlignmentOfItsTexts()
{
    QFETCH(QString, sample);

    MainWindow window(nullptr);
    window.openFile(sample);
    const QList<ScreenItem *> texts = textsOf(window);
    for (const ScreenItem *text : texts)
        QVERIFY2(stored(text, "Align_int") != "11", qPrintable(stored(text, "Text")));
}

void tst_Samples::showsItsTextsWhole()
{
    REQUIRE_BUNDLED_FONTS();
    QFETCH(QString, sample);

    MainWindow window(nullptr);
    window.show();
    window.openFile(sample);
    const QList<ScreenItem *> texts = textsOf(window);
    for (const ScreenItem *text : texts) {
        const auto *editor = text->findChild<QTextEdit *>();
        QVERIFY(editor);
        QCOMPARE(editor->size(), text->size());
        const QString cut = whatIsCut(*editor);
        QVERIFY2(cut.isNull(), qPrintable(cut + ": " + editor->toPlainText()));
    }
}

void tst_Samples::showsItsPicturesAndAnimations()
{
    QFETCH(QString, sample);

    MainWindow window(nullptr);
    window.openFile(sample);
    const QList<ScreenItem *> media = mediaOf(window);
    for (const ScreenItem *item : media) {
        const QString path = stored(item, "Path");
        QVERIFY2(path.startsWith("samples/media/"), qPrintable(path));
        QCOMPARE(QImageReader(path).size(), item->size());
        QImage picture(item->size(), QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        item->content()->render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
        QCOMPARE(picture, QImage(path).convertToFormat(picture.format()));
    }
}

void tst_Samples::playsABallAndShowsALogo()
{
    QStringList types;
    for (const char *sample : {"basketball", "perimeter"}) {
        MainWindow window(nullptr);
        window.openFile(QString(BOARDWRIGHT_SOURCE_DIR "/samples/%1.lay").arg(sample));
        QCOMPARE(mediaOf(window).size(), 1);
        types << stored(mediaOf(window).at(0), "Type");
    }
    QCOMPARE(types, QStringList({"Image Viewer", "Animation Viewer"}));
    QVERIFY(QMovie("samples/media/bounce.gif").frameCount() > 10);
}

BOARDWRIGHT_TEST_MAIN(tst_Samples)
#include "tst_samples.moc"
