#include "canvas/screenpicture.h"
#include "tests/canvas/shownscreen.h"
#include "tests/support/boards.h"
#include "tests/support/dialoganswers.h"
#include "tests/support/strictmain.h"
#include "tests/viewers/mediafolder.h"

#include <QLabel>
#include <QLoggingCategory>
#include <QMovie>
#include <QSignalSpy>

#include <functional>
#include <memory>

using Event = std::function<void(std::unique_ptr<Screen> &)>;
Q_DECLARE_METATYPE(Event)

/// Images and animations on their roads to the canvas.
class tst_ScreenMedia : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void asksForTheFileOfAClickedItem_data() { addKinds(); }
    void asksForTheFileOfAClickedItem();
    void activatesTheItemAfterTheDialog_data() { addKinds(); }
    void activatesTheItemAfterTheDialog();
    void keepsAnItemWhoseFileIsNotChosen_data() { addKinds(); }
    void keepsAnItemWhoseFileIsNotChosen();
    void countsImagesAndAnimationsTogether();
    void survivesWhatHappensUnderTheDialog_data();
    void survivesWhatHappensUnderTheDialog();
    void readsWithoutAsking_data() { addKinds(); }
    void readsWithoutAsking();
    void savesAndReopens();
    void keepsItemsWithoutTheirFiles();
    void duplicatesPlayOnTheirOwn();
    void leavesVideosOutOfFiles();

private:
    static void addKinds();
    QJsonObject mediaObject(const QString &type, const QString &path, const QRect &geometry) const;

    MediaFolder m_folder;
};

void tst_ScreenMedia::initTestCase()
{
    qRegisterMetaType<ScreenItem *>();
    QLoggingCategory::setFilterRules("default.debug=false");
}

void tst_ScreenMedia::addKinds()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("image") << "Image Viewer";
    QTest::newRow("animation") << "Animation Viewer";
}

QJsonObject tst_ScreenMedia::mediaObject(const QString &type, const QString &path,
                                         const QRect &geometry) const
{
    return {{"Type", type},      {"ScreenItemName", "Item"}, {"Path", path},          {"X", geometry.x()},
            {"Y", geometry.y()}, {"W", geometry.width()},    {"H", geometry.height()}};
}

void tst_ScreenMedia::asksForTheFileOfAClickedItem()
{
    QFETCH(QString, type);
    const QString path = m_folder.movie(QSize(64, 32));
    ShownScreen shown;
    QVERIFY(shown.ready);
    shown.screen.loadLayout(board({}));
    DialogAnswers answers;
    answers.choose(path);
    shown.screen.newItem(type);
    QVERIFY(answers.areUsedUp());
    QCOMPARE(answers.seen().value(0).title, QString("Select any file..."));
    QCOMPARE(namesOf(shown.screen.items()), QStringList("Image 0"));
    const ScreenItem *item = shown.screen.items().first();
    QCOMPARE(item->geometry(), QRect(0, 0, 64, 32));
    QCOMPARE(shown.screen.items().first()->getValue("Path"), QVariant(path));
    QCOMPARE(shown.screen.items().first()->getValue("Type"), QVariant(type));
    QVERIFY(shown.screen.isModified());
    QCOMPARE(pictureOf(shown.screen).pixelColor(63, 31), QColor(Qt::red));
}

void tst_ScreenMedia::activatesTheItemAfterTheDialog()
{
    QFETCH(QString, type);
    ShownScreen shown;
    QVERIFY(shown.ready);
    shown.screen.newItem("Shape");
    QSignalSpy panels(&shown.screen, &Screen::showSettingsFor);
    bool isInPlace = false;
    bool isActive = true;
    DialogAnswers answers;
    answers.act([&](QDialog *dialog) {
        const ScreenItem *item = shown.screen.items().last();
        isInPlace = item->geometry() == QRect(0, 0, 100, 50) && item->isVisible() &&
                    item->content()->isVisible() && item->name() == "Image 0";
        isActive = item->isActive() || !panels.isEmpty();
        dialog->reject();
        return true;
    });
    shown.screen.newItem(type);
    QVERIFY(isInPlace);
    QVERIFY(!isActive);
    ScreenItem *item = shown.screen.items().last();
    QVERIFY(item->isActive());
    QCOMPARE(shown.screen.selection(), QList<ScreenItem *>({item}));
    QVERIFY(!panels.isEmpty());
    QCOMPARE(panels.last().first().value<ScreenItem *>(), item);
}

void tst_ScreenMedia::keepsAnItemWhoseFileIsNotChosen()
{
    QFETCH(QString, type);
    Screen screen;
    screen.setWidgth(800);
    screen.setHeight(400);
    DialogAnswers answers;
    answers.press("Cancel");
    screen.newItem(type);
    QVERIFY(answers.areUsedUp());
    QCOMPARE(screen.items().size(), 1);
    QCOMPARE(screen.items().first()->geometry(), QRect(0, 0, 100, 50));
    QCOMPARE(screen.items().first()->toJson().value("Path"), QJsonValue(""));
}

void tst_ScreenMedia::countsImagesAndAnimationsTogether()
{
    Screen screen;
    DialogAnswers answers;
    for (const char *type : {"Image Viewer", "Shape", "Animation Viewer", "Text", "Image Viewer"}) {
        if (QString(type).endsWith("Viewer"))
            answers.escape();
        screen.newItem(type);
    }
    QCOMPARE(namesOf(screen.items()), QStringList({"Image 0", "Shape 0", "Image 1", "Text 0", "Image 2"}));
    screen.loadLayout(screen.saveLayout());
    answers.escape();
    screen.newItem("Animation Viewer");
    QCOMPARE(screen.items().last()->name(), QString("Image 0"));
}

void tst_ScreenMedia::survivesWhatHappensUnderTheDialog_data()
{
    QTest::addColumn<Event>("event");
    QTest::addColumn<int>("items");
    QTest::newRow("the item is deleted")
        << Event([](std::unique_ptr<Screen> &screen) { delete screen->items().last(); }) << 0;
    QTest::newRow("the item is deleted by a key") << Event([](std::unique_ptr<Screen> &screen) {
        screen->items().last()->select();
        screen->deleteSelection();
        deleteScheduled();
    }) << 0;
    QTest::newRow("another layout is loaded") << Event([](std::unique_ptr<Screen> &screen) {
        screen->loadLayout(board({shapeObject("Other", QRect(1, 2, 3, 4))}));
    }) << 1;
    QTest::newRow("the canvas goes") << Event([](std::unique_ptr<Screen> &screen) { screen.reset(); }) << -1;
}

void tst_ScreenMedia::survivesWhatHappensUnderTheDialog()
{
    QFETCH(Event, event);
    QFETCH(int, items);
    for (const char *type : {"Image Viewer", "Animation Viewer"}) {
        auto screen = std::make_unique<Screen>();
        QSignalSpy panels(screen.get(), &Screen::showSettingsFor);
        DialogAnswers answers;
        answers.act([&](QDialog *) {
            event(screen);
            return true;
        });
        screen->newItem(type);
        QVERIFY(answers.areUsedUp());
        QVERIFY(!QApplication::activeModalWidget());
        QCOMPARE(screen ? screen->items().size() : -1, items);
        QVERIFY(panels.isEmpty());
    }
}

void tst_ScreenMedia::readsWithoutAsking()
{
    QFETCH(QString, type);
    const DialogAnswers none;
    ShownScreen shown;
    QVERIFY(shown.ready);
    const QJsonObject object = mediaObject(type, m_folder.movie(QSize(64, 32)), QRect(30, 40, 200, 100));
    shown.screen.loadLayout(board({object}));
    QVERIFY(none.areUsedUp());
    QCOMPARE(shown.screen.items().size(), 1);
    QCOMPARE(shown.screen.items().first()->geometry(), QRect(30, 40, 200, 100));
    QVERIFY(!shown.screen.isModified());
    QCOMPARE(pictureOf(shown.screen).pixelColor(229, 139), QColor(Qt::red));
}

void tst_ScreenMedia::savesAndReopens()
{
    const QString picture = m_folder.picture({90, 70});
    const QString movie = m_folder.movie(QSize(2000, 500));
    Screen screen;
    screen.loadLayout(board({mediaObject("Image Viewer", picture, {700, 0, 100, 50}),
                             mediaObject("Animation Viewer", movie, {780, 100, 20, 300}),
                             mediaObject("Image Viewer", picture, {10, 10, 300, 33}),
                             mediaObject("Animation Viewer", movie, {0, 300, 100, 50})}));
    const QJsonObject saved = screen.saveLayout();
    QCOMPARE(saved.value("items").toArray().at(0).toObject(),
             mediaObject("Image Viewer", picture, {700, 0, 100, 50}));
    const QImage before = pictureOf(screen);
    ShownScreen other;
    QVERIFY(other.ready);
    other.screen.loadLayout(saved);
    QCOMPARE(other.screen.saveLayout(), saved);
    QCOMPARE(pictureOf(other.screen), before);
}

void tst_ScreenMedia::keepsItemsWithoutTheirFiles()
{
    const DialogAnswers none;
    const QJsonObject layout = board({mediaObject("Image Viewer", "media/logo.png", {10, 20, 30, 40}),
                                      mediaObject("Animation Viewer", "../gone.gif", {50, 60, 70, 80}),
                                      mediaObject("Image Viewer", "/dev/zero", {1, 2, 3, 4}),
                                      mediaObject("Image Viewer", ".", {5, 6, 7, 8})});
    Screen screen;
    screen.loadLayout(layout);
    QCOMPARE(screen.saveLayout(), layout);
    QVERIFY(none.areUsedUp());
}

void tst_ScreenMedia::duplicatesPlayOnTheirOwn()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    shown.screen.loadLayout(
        board({mediaObject("Animation Viewer", m_folder.movie(QSize(64, 32)), {0, 0, 64, 32})}));
    shown.screen.selectAllShortcutActivated();
    shown.screen.copyShortcutActivated();
    shown.screen.duplicateSelection();
    shown.screen.pasteShortcutActivated();
    QCOMPARE(shown.screen.items().size(), 3);
    delete shown.screen.items().first();
    for (const ScreenItem *item : shown.screen.items()) {
        const QMovie *movie = item->findChild<QLabel *>()->movie();
        QTRY_VERIFY(movie->currentFrameNumber() > 0);
        QCOMPARE(movie->state(), QMovie::Running);
    }
}

void tst_ScreenMedia::leavesVideosOutOfFiles()
{
    Screen screen;
    screen.loadLayout(board({mediaObject("Video Viewer", "goal.mp4", {0, 0, 9, 9}),
                             mediaObject("Image Viewer", "logo.png", {0, 0, 9, 9})}));
    QCOMPARE(screen.items().size(), 1);
    QCOMPARE(screen.items().first()->getValue("Type"), QVariant("Image Viewer"));
}

BOARDWRIGHT_TEST_MAIN(tst_ScreenMedia)
#include "tst_screenmedia.moc"
