#include "app/mainwindow.h"
#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "canvas/screenpicture.h"
#include "tests/support/boards.h"
#include "tests/support/files.h"
#include "tests/support/strictmain.h"
#include "tests/viewers/textboard.h"
#include "viewers/customtexteditor.h"

#include <QJsonDocument>
#include <QMouseEvent>
#include <QProcess>
#include <QScrollBar>
#include <QTemporaryDir>

#include <memory>

namespace
{
QJsonObject dark()
{
    return {{"Width", 300}, {"Height", 200}, {"Background Color", "#102030"}};
}

/// A text of large white letters on the whole board.
QJsonObject wholeBoard(const QString &html, const QJsonObject &others = {})
{
    QJsonObject object = textObject("Text", {0, 0, 300, 200},
                                    {{"Text", html},
                                     {"Font", "Roboto"},
                                     {"Size", 20},
                                     {"Color", "white"},
                                     {"Underlined", false},
                                     {"Align_int", 11}});
    for (auto other = others.begin(); other != others.end(); ++other)
        object.insert(other.key(), other.value());
    return object;
}

/// The part of the picture where something else than the background is.
QRect inkOf(const QImage &picture)
{
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) != QColor(0x10, 0x20, 0x30))
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}
} // namespace

/// Texts as the whole program shows them, with its style and its fonts.
class tst_TextPicture : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void showsWhatLiesBelow_data();
    void showsWhatLiesBelow();
    void showsWhatLiesBelowWhileItIsEdited();
    void hasNoScrollBars();

    void liesWhereItsCodeSays_data();
    void liesWhereItsCodeSays();
    void cutsALargerTextAndShowsItsBeginning_data();
    void cutsALargerTextAndShowsItsBeginning();

    void looksTheSameWhenReopened_data();
    void looksTheSameWhenReopened();
    void editedTextLooksTheSameWhenReopened();
    void rendererPaintsWhatTheEditorShows_data();
    void rendererPaintsWhatTheEditorShows();
    void looksTheSameAmongMany();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    Screen *canvas() const { return m_window->canvas(); }
    void open(const QJsonArray &items);
    void reopen();
    QImage picture() const { return pictureOf(*canvas()); }
    QImage rendered();

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;
};

void tst_TextPicture::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_window = std::make_unique<MainWindow>(nullptr);
    m_window->resize(1200, 800);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_TextPicture::cleanup()
{
    m_window.reset();
    m_folder.reset();
}

void tst_TextPicture::open(const QJsonArray &items)
{
    QVERIFY(writeFile(path("board.lay"), QJsonDocument(board(items, dark())).toJson()));
    m_window->openFile(path("board.lay"));
    QCOMPARE(canvas()->items().size(), items.size());
}

void tst_TextPicture::reopen()
{
    m_window->saveFile(path("again.lay"));
    m_window->openFile(path("again.lay"));
}

QImage tst_TextPicture::rendered()
{
    m_window->saveFile(path("rendered.lay"));
    QProcess process;
    process.start(BOARDWRIGHT_RENDER_PROGRAM, {path("rendered.lay"), path("rendered.png")});
    const bool ended = process.waitForFinished(90000);
    return ended ? QImage(path("rendered.png")).convertToFormat(picture().format()) : QImage();
}

void tst_TextPicture::showsWhatLiesBelow_data()
{
    QTest::addColumn<QString>("html");

    QTest::newRow("nothing") << "";
    QTest::newRow("a blank") << "<p>&nbsp;</p>";
    QTest::newRow("more blanks than fit") << QString("<p>&nbsp;</p>").repeated(30);
}

void tst_TextPicture::showsWhatLiesBelow()
{
    QFETCH(QString, html);
    const QJsonObject below = shapeObject("Shape", {50, 50, 100, 100});
    const QJsonObject text = wholeBoard(html, {{"Text Type", "Game Clock"}});
    open({below});
    const QImage inEditor = canvas()->grab().toImage();
    const QImage exported = picture();
    open({below, text});
    QCOMPARE(canvas()->grab().toImage(), inEditor);
    QCOMPARE(picture(), exported);
    QCOMPARE(rendered(), exported);
}

void tst_TextPicture::showsWhatLiesBelowWhileItIsEdited()
{
    open({wholeBoard("<p>&nbsp;</p>")});
    ScreenItem *frame = canvas()->items().at(0);
    QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(frame, &event);
    QVERIFY(isEditing(frame));
    QCOMPARE(canvas()->grab().toImage().pixelColor(150, 105), QColor(0x10, 0x20, 0x30));
}

void tst_TextPicture::hasNoScrollBars()
{
    open({wholeBoard(QString("<p>line</p>").repeated(50))});
    const CustomTextEditor *editor = editorIn(canvas()->items().at(0));
    QVERIFY(!editor->verticalScrollBar()->isVisible());
    QVERIFY(!editor->horizontalScrollBar()->isVisible());
    QCOMPARE(editor->viewport()->size(), QSize(300, 200));
}

void tst_TextPicture::liesWhereItsCodeSays_data()
{
    QTest::addColumn<int>("code");
    for (const int code : {11, 12, 13, 21, 22, 23, 31, 32, 33})
        QTest::addRow("%d", code) << code;
}

void tst_TextPicture::liesWhereItsCodeSays()
{
    QFETCH(int, code);
    open({wholeBoard("<p>Home</p>", {{"Align_int", code}})});
    const QRect ink = inkOf(picture());
    QVERIFY(!ink.isEmpty());
    const QPoint third(ink.center().x() / 100, ink.center().y() * 3 / 200);
    QCOMPARE(third, QPoint(code / 10 - 1, code % 10 - 1));
}

void tst_TextPicture::cutsALargerTextAndShowsItsBeginning_data()
{
    QTest::addColumn<QString>("html");

    QTest::newRow("too high") << "<p>MMM</p>" + QString("<p>&nbsp;</p>").repeated(100);
    QTest::newRow("too wide and too high") << "<p>MMM" + QString(900, QChar::Nbsp) + "</p>";
}

void tst_TextPicture::cutsALargerTextAndShowsItsBeginning()
{
    QFETCH(QString, html);
    for (const int code : {11, 12, 13}) {
        open({wholeBoard(html, {{"Align_int", code}})});
        const QRect ink = inkOf(picture());
        QVERIFY(ink.width() > 20 && ink.width() < 100);
        QVERIFY(ink.left() < 20 && ink.top() < 40);
        QCOMPARE(rendered(), picture());
        QCOMPARE(canvas()->items().at(0)->size(), QSize(300, 200));
    }
}

void tst_TextPicture::looksTheSameWhenReopened_data()
{
    QTest::addColumn<QString>("horizontal");
    QTest::addColumn<QString>("vertical");

    for (const char *horizontal : {"Left", "Center", "Right"}) {
        for (const char *vertical : {"Top", "Center", "Bottom"})
            QTest::addRow("%s %s", horizontal, vertical) << QString(horizontal) << QString(vertical);
    }
}

void tst_TextPicture::looksTheSameWhenReopened()
{
    QFETCH(QString, horizontal);
    QFETCH(QString, vertical);
    canvas()->setWidgth(300);
    canvas()->setHeight(200);
    canvas()->setBackgrounColor(QColor(0x10, 0x20, 0x30));
    canvas()->newItem("Text");
    ScreenItem *frame = canvas()->items().at(0);
    frame->setGeometry(20, 20, 250, 150);
    // One press at least, whatever is pressed already.
    frame->setValue(vertical == "Top" ? "Vertical_Bottom" : "Vertical_Top", true);
    frame->setValue("Horizontal_" + horizontal, true);
    frame->setValue("Vertical_" + vertical, true);
    frame->setValue("Size", 30);
    frame->setValue("Font", "Oswald");
    frame->setValue("Color", "yellow");
    const QImage before = picture();
    QVERIFY(!inkOf(before).isEmpty());
    reopen();
    QCOMPARE(picture(), before);
    QCOMPARE(rendered(), before);
}

void tst_TextPicture::editedTextLooksTheSameWhenReopened()
{
    open({wholeBoard("<p>Home</p>", {{"Align_int", 22}, {"Font", "Oswald"}})});
    ScreenItem *frame = canvas()->items().at(0);
    QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(frame, &event);
    QTest::keyClicks(editorIn(frame), " team");
    QTest::keyClick(editorIn(frame), Qt::Key_Return);
    QTest::keyClicks(editorIn(frame), "12 < 13 & more words than one line has room for");
    const QImage before = picture();
    QVERIFY(!isEditing(frame));
    reopen();
    QCOMPARE(picture(), before);
    QCOMPARE(rendered(), before);
    // Another font still wins over the one that the edited text names.
    canvas()->items().at(0)->setValue("Font", "Roboto");
    QVERIFY(picture() != before);
}

void tst_TextPicture::rendererPaintsWhatTheEditorShows_data()
{
    QTest::addColumn<QJsonObject>("others");

    QTest::newRow("as it is") << QJsonObject();
    QTest::newRow("no code") << QJsonObject({{"Align_int", 0}});
    QTest::newRow("vertical part alone") << QJsonObject({{"Align_int", 3}});
    QTest::newRow("no code at all") << QJsonObject({{"Align_int", QJsonValue()}});
    QTest::newRow("many lines") << QJsonObject(
        {{"Text", QString("<p>some words that wrap on this board</p>").repeated(4)}, {"Align_int", 33}});
    QTest::newRow("default font") << QJsonObject({{"Font", "Arial"}});
    QTest::newRow("unknown font") << QJsonObject({{"Font", "Nowhere Sans"}});
    QTest::newRow("unknown colour") << QJsonObject({{"Color", "nonsense"}});
    QTest::newRow("large") << QJsonObject({{"Size", 512}});
    QTest::newRow("plain text") << QJsonObject({{"Text", "12:34"}});
    QTest::newRow("too much") << QJsonObject({{"Text", QString("<p>word</p>").repeated(5000)}});
}

void tst_TextPicture::rendererPaintsWhatTheEditorShows()
{
    QFETCH(QJsonObject, others);
    open({wholeBoard("<p>Home <b>12</b></p><p align='right'>Guest</p>", others)});
    QCOMPARE(rendered(), picture());
}

void tst_TextPicture::looksTheSameAmongMany()
{
    const QJsonObject text =
        wholeBoard("<p>words that need more than one line here</p>", {{"Align_int", 23}});
    open({text});
    const QImage alone = picture();
    QJsonArray many;
    for (int i = 0; i < 100; ++i)
        many.append(wholeBoard("<p>&nbsp;</p>", {{"Align_int", 12}}));
    many.append(text);
    open(many);
    QCOMPARE(picture(), alone);
}

BOARDWRIGHT_TEST_MAIN(tst_TextPicture)
#include "tst_textpicture.moc"
