#include "tests/app/commandtest.h"

#include <QDir>
#include <QJsonDocument>
#include <QLoggingCategory>

// Opening: the dialog, the failures, and any bytes that a file may hold.
class tst_OpenCommand : public CommandTest
{
    Q_OBJECT

private slots:
    void openingNoPathDoesNothing();
    void openingReplacesTheBoardAndKeepsThePath();
    void openingFailsInABox_data();
    void openingFailsInABox();
    void openingAMissingFileTellsTheFilesOwnError();
    void openingBrokenJsonTellsTheParsersOwnError();
    void openingRefusesMoreItemsThanTheCanvasTakes();
    void openingWhatIsNoLayoutGivesAnEmptyCanvas_data();
    void openingWhatIsNoLayoutGivesAnEmptyCanvas();
    void openingSurvivesBadSizes_data();
    void openingSurvivesBadSizes();
    void openingRoundsSizesThatAreNotWhole();
    void openingThousandsOfItemsKeepsThemAll();
    void openingFollowsTheCanvasInTheScrollArea();
    void openCommandAsksForALayFile();
    void openCommandDoesNothingWhenCancelled();
    void openCommandDoesNotAskAboutChanges();
};

namespace
{
const char *const layFilter = "Lay file (*.lay)";
}

void tst_OpenCommand::openingNoPathDoesNothing()
{
    const QString file = openSmallBoard();
    const DialogAnswers none;
    window().openFile(QString());
    QCOMPARE(window().currentPath(), file);
    QCOMPARE(canvas().items().size(), 2);
    QVERIFY(none.areUsedUp());
}

void tst_OpenCommand::openingReplacesTheBoardAndKeepsThePath()
{
    canvas().newItem("Shape");
    const QString file = openSmallBoard();
    QCOMPARE(window().currentPath(), file);
    QCOMPARE(canvas().size(), QSize(200, 100));
    QCOMPARE(canvas().items().size(), 2);
    QCOMPARE(canvas().items().at(1)->name(), QString("Upper"));
    QVERIFY(!canvas().isModified());
}

void tst_OpenCommand::openingFailsInABox_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("empty file") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("scoreboard");
    QTest::newRow("cut short") << bytesOf(smallBoard()).left(100);
    QTest::newRow("bare number") << QByteArray("42");
    QTest::newRow("nested too deep") << QByteArray(100000, '[');
    QTest::newRow("megabytes of garbage") << QByteArray(200 * 1024 * 1024, 'x');
    QTest::newRow("zero bytes") << QByteArray(1000, '\0');
}

void tst_OpenCommand::openingFailsInABox()
{
    QFETCH(QByteArray, content);

    const QString before = openSmallBoard();
    writeFile(path("bad.lay"), content);
    QJsonParseError error{};
    QJsonDocument::fromJson(content, &error);
    DialogAnswers answers;
    answers.press("OK");
    window().openFile(path("bad.lay"));

    QVERIFY(answers.areUsedUp());
    const SeenDialog box = answers.seen().first();
    QCOMPARE(box.title, QString("Error!"));
    QCOMPARE(box.text, error.errorString());
    QCOMPARE(box.icon, QMessageBox::Critical);
    QCOMPARE(box.buttons, QStringList("OK"));
    QCOMPARE(window().currentPath(), before);
    QCOMPARE(canvas().saveLayout(), smallBoard());
}

void tst_OpenCommand::openingAMissingFileTellsTheFilesOwnError()
{
    const QString before = openSmallBoard();
    for (const QString &name : {path("missing.lay"), path(".")}) {
        QFile file(name);
        QVERIFY(!file.open(QIODevice::ReadOnly));
        DialogAnswers answers;
        answers.press("OK");
        window().openFile(name);
        QVERIFY(answers.areUsedUp());
        QCOMPARE(answers.seen().first().title, QString("Error!"));
        QCOMPARE(answers.seen().first().text, file.errorString());
        QCOMPARE(answers.seen().first().icon, QMessageBox::Critical);
        QCOMPARE(answers.seen().first().buttons, QStringList("OK"));
    }
    QCOMPARE(window().currentPath(), before);
    QCOMPARE(canvas().items().size(), 2);
}

void tst_OpenCommand::openingBrokenJsonTellsTheParsersOwnError()
{
    writeFile(path("broken.lay"), "{\"items\": nothing}");
    DialogAnswers answers;
    answers.press("OK");
    window().openFile(path("broken.lay"));
    QVERIFY(answers.areUsedUp());
    QCOMPARE(answers.seen().first().text, QString("illegal value"));
}

void tst_OpenCommand::openingRefusesMoreItemsThanTheCanvasTakes()
{
    const QString before = openSmallBoard();
    QJsonArray items;
    for (int index = 0; index <= LayoutFile::maximumItems; ++index)
        items.append(QJsonObject());
    writeFile(path("many.lay"), bytesOf(board(items)));
    DialogAnswers answers;
    answers.press("OK");
    window().openFile(path("many.lay"));
    QVERIFY(answers.areUsedUp());
    QCOMPARE(answers.seen().first().title, QString("Error!"));
    QVERIFY(answers.seen().first().text.contains("16384"));
    QCOMPARE(window().currentPath(), before);
    QCOMPARE(canvas().items().size(), 2);
}

void tst_OpenCommand::openingWhatIsNoLayoutGivesAnEmptyCanvas_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("array") << QByteArray("[1, 2]");
    QTest::newRow("empty object") << QByteArray("{}");
    QTest::newRow("other object") << QByteArray("{\"name\": \"board\"}");
    QTest::newRow("strings where numbers belong")
        << QByteArray("{\"items\": \"none\", \"parameters\": {\"Width\": \"800\", \"Height\": \"400\"}}");
    QTest::newRow("items that are no objects") << QByteArray("{\"items\": [1, null, \"Shape\", [], {}]}");
}

void tst_OpenCommand::openingWhatIsNoLayoutGivesAnEmptyCanvas()
{
    QFETCH(QByteArray, content);

    openSmallBoard();
    writeFile(path("other.lay"), content);
    window().openFile(path("other.lay"));
    QCOMPARE(window().currentPath(), path("other.lay"));
    // The bar of the screen writes the least possible lengths back, and the file holds others.
    QCOMPARE(canvas().size(), QSize(10, 10));
    QVERIFY(canvas().items().isEmpty());
    QVERIFY(canvas().isModified());
}

void tst_OpenCommand::openingSurvivesBadSizes_data()
{
    QTest::addColumn<QByteArray>("size");
    QTest::addColumn<int>("length");

    QTest::newRow("negative") << QByteArray("-1") << 10;
    QTest::newRow("beyond any widget") << QByteArray("1e9") << 10000;
    QTest::newRow("beyond any integer") << QByteArray("1e308") << 10;
    QTest::newRow("fraction") << QByteArray("9.4") << 10;
}

void tst_OpenCommand::openingSurvivesBadSizes()
{
    QFETCH(QByteArray, size);
    QFETCH(int, length);

    const QByteArray parameters = "{\"Width\": " + size + ", \"Height\": " + size + "}";
    writeFile(path("size.lay"), "{\"items\": [], \"parameters\": " + parameters + "}");
    window().openFile(path("size.lay"));
    QCOMPARE(canvas().size(), QSize(length, length));
    QVERIFY(canvas().isModified());
    window().repaint();
    window().openFile(LayoutFile::emptyTemplate());
    verifyIsTemplate();
}

void tst_OpenCommand::openingRoundsSizesThatAreNotWhole()
{
    writeFile(path("size.lay"), R"({"items": [], "parameters": {"Width": 800.5, "Height": 399.6}})");
    window().openFile(path("size.lay"));
    QCOMPARE(canvas().size(), QSize(801, 400));
    // The bar of the screen has nothing to write back.
    QVERIFY(!canvas().isModified());
}

void tst_OpenCommand::openingThousandsOfItemsKeepsThemAll()
{
    writeFile(path("many.lay"), bytesOf(board(manyShapes(2000))));
    // Tens of thousands of lines of the debug log take longer than the board.
    QLoggingCategory::setFilterRules("default.debug=false");
    window().openFile(path("many.lay"));
    QLoggingCategory::setFilterRules(QString());
    QCOMPARE(canvas().items().size(), 2000);
    QVERIFY(!canvas().isModified());
}

void tst_OpenCommand::openingFollowsTheCanvasInTheScrollArea()
{
    openSmallBoard();
    const QWidget *area = canvas().parentWidget();
    const QSize rest = area->size() - QSize(200, 100);
    QCOMPARE(canvas().pos(), QPoint(rest.width() / 2, rest.height() / 2));
}

void tst_OpenCommand::openCommandAsksForALayFile()
{
    writeFile(path("small.lay"), bytesOf(smallBoard()));
    DialogAnswers answers;
    answers.choose(path("small.lay"));
    expectLog("openActionTriggered");
    triggerOpen();
    QVERIFY(answers.areUsedUp());
    const SeenDialog dialog = answers.seen().first();
    QCOMPARE(dialog.title, QString("Select lay file"));
    QCOMPARE(dialog.nameFilters, QStringList(layFilter));
    QCOMPARE(dialog.directory, QDir::currentPath());
    QCOMPARE(dialog.acceptMode, QFileDialog::AcceptOpen);
    QCOMPARE(window().currentPath(), path("small.lay"));
    QCOMPARE(canvas().items().size(), 2);
}

void tst_OpenCommand::openCommandDoesNothingWhenCancelled()
{
    const QString before = openSmallBoard();
    DialogAnswers answers;
    answers.press("Cancel");
    expectLog("openActionTriggered");
    triggerOpen();
    QVERIFY(answers.areUsedUp());
    QCOMPARE(window().currentPath(), before);
    QCOMPARE(canvas().items().size(), 2);
}

void tst_OpenCommand::openCommandDoesNotAskAboutChanges()
{
    writeFile(path("small.lay"), bytesOf(smallBoard()));
    canvas().newItem("Shape");
    DialogAnswers answers;
    answers.choose(path("small.lay"));
    triggerOpen();
    QVERIFY(answers.areUsedUp());
    QCOMPARE(answers.seen().size(), 1);
    QCOMPARE(canvas().items().size(), 2);
}

BOARDWRIGHT_TEST_MAIN(tst_OpenCommand)
#include "tst_opencommand.moc"
