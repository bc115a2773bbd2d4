#include "viewers/customtexteditor.h"

#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "pictures/memoryclaim.h"
#include "tests/support/files.h"
#include "tests/support/gif.h"
#include "tests/support/strictmain.h"
#include "tests/viewers/textboard.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDataStream>
#include <QDrag>
#include <QJsonArray>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTimer>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace
{
/// A picture of one colour as an address that carries it.
QString carried(QSize size, const char *format = "png")
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    image.save(&buffer, format);
    return QString("data:image/%1;base64,").arg(format) + buffer.data().toBase64();
}

/// A GIF with a frame of 4 x 4 px on a screen of this size.
QString carriedGif(QSize screen)
{
    QByteArray bytes = Gif{{4, 4}, {Qt::red}}.bytes();
    for (const int at : {0, 1}) {
        const int side = at ? screen.height() : screen.width();
        bytes[6 + 2 * at] = char(side & 0xff);
        bytes[7 + 2 * at] = char(side >> 8);
    }
    return "data:image/gif;base64," + bytes.toBase64();
}

QSize sizeOf(CustomTextEditor &editor, const QString &address)
{
    return editor.loadResource(QTextDocument::ImageResource, QUrl(address)).value<QImage>().size();
}

/// The header of a bitmap that claims this size.
QString claiming(qint32 width, qint32 height)
{
    QByteArray bytes("BM");
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::Append);
    QDataStream stream(&buffer);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint32(58) << quint32(0) << quint32(54) << quint32(40) << width << height << quint16(1)
           << quint16(24) << quint32(0) << quint32(0) << quint32(0) << quint32(0) << quint32(0) << quint32(0)
           << quint32(0);
    return "data:image/bmp;base64," + bytes.toBase64();
}

/// A drawing of 100 x 100 px that names a picture at the address.
QString drawingOf(const QString &address)
{
    const QString drawing = QString("<svg xmlns='http://www.w3.org/2000/svg' "
                                    "xmlns:xlink='http://www.w3.org/1999/xlink' width='100' height='100'>"
                                    "<image width='100' height='100' xlink:href='%1'/></svg>")
                                .arg(address);
    return "data:image/svg+xml;base64," + drawing.toUtf8().toBase64();
}

/// Every way in which HTML can ask for something at an address.
QStringList askingFor(const QString &address)
{
    QStringList pages;
    for (const char *page :
         {"<img src='%1'>", "<img src='%1' width=30 height=30 align=left>", "<body background='%1'>x",
          "<p style=\"background-image:url('%1')\">x</p>",
          "<table background='%1'><tr><td>x</td></tr></table>", "<link rel='stylesheet' href='%1'><p>x</p>",
          "<style>@import url('%1'); p{background:url('%1')}</style><p>x</p>",
          "<style>li{list-style-image:url('%1')}</style><ul><li>x</ul>", "<a href='%1'>x</a>"})
        pages << QString(page).arg(address);
    return pages;
}

/// The lightness of the lightest point, 255 of white.
int brightest(const QPixmap &pixmap)
{
    const QImage picture = pixmap.toImage();
    int found = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            found = qMax(found, qGray(picture.pixel(x, y)));
    }
    return found;
}

/// Tells the editor of a mouse whose left button is held.
void mouse(CustomTextEditor &editor, QEvent::Type type, QPoint position)
{
    QMouseEvent event(type, position, editor.viewport()->mapToGlobal(position), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(editor.viewport(), &event);
}

/// Counts the drags that a widget begins.
class DragCounter : public QObject
{
public:
    explicit DragCounter(QWidget *widget) { widget->installEventFilter(this); }
    int count() const { return m_count; }

    bool eventFilter(QObject *, QEvent *event) override
    {
        // While it is added, a child is not yet known by its class; a drag is the only one that is no widget.
        if (event->type() == QEvent::ChildAdded &&
            !static_cast<QChildEvent *>(event)->child()->isWidgetType())
            ++m_count;
        return false;
    }

private:
    int m_count = 0;
};

/// Shows the HTML from a layout file, in the clipboard's way and in a picture.
void show(const QString &html)
{
    TextBoard board;
    board.screen()->loadLayout({{"items", QJsonArray{textObject("Text", {0, 0, 200, 100}, {{"Text", html}})}},
                                {"parameters", QJsonObject{{"Width", 300}, {"Height", 200}}}});
    ScreenItem *frame = board.screen()->items().at(0);
    QVERIFY(!board.screen()->grab().isNull());
    QVERIFY(board.isReady());
    board.startEditing(frame);
    auto *data = new QMimeData;
    data->setHtml(html);
    QGuiApplication::clipboard()->setMimeData(data);
    board.type(Qt::Key_V, Qt::ControlModifier);
    QVERIFY(!board.screen()->grab().isNull());
}
} // namespace

class tst_CustomTextEditor : public QObject
{
    Q_OBJECT

private slots:
    void isTheToolkitsEditor();

    void showsPicturesThatTheTextCarries_data();
    void showsPicturesThatTheTextCarries();
    void picturesShareTheRoomOfTheirText();
    void picturesShareTheMemoryOfAllMedia();
    void picturesCountAsWhatTheyTake();
    void tellsTheLogWhichItemLeavesAPictureOut();
    void pictureThatIsShownTwiceIsReadOnce();
    void leavesOutEverythingElse_data();
    void leavesOutEverythingElse();
    void hasNoOtherResources();
    void asksNoServer();
    void opensNoFile();

    void standsAnyText_data();
    void standsAnyText();

    void pastesWhatCanBeShown();
    void pastesTheBeginningOfTooMuch_data();
    void pastesTheBeginningOfTooMuch();
    void cutsAPasteBetweenCharacters();
    void pastesTheBeginningOfTheTextBesideIt();
    void pastesNoMoreThanCanBeOpenedAgain();
    void contextMenuIsDressedAndGoes();
    void contextMenuDimsWhatCannotBeDone();

    void keepsKeysWhileItIsEdited();
    void draggedWordsAreDraggedOnce();
    void showsTheBeginningWhenItAppears();
    void showsTheBeginningOfLongLines();
};

void tst_CustomTextEditor::isTheToolkitsEditor()
{
    CustomTextEditor editor;
    QCOMPARE(editor.metaObject()->className(), "CustomTextEditor");
    QCOMPARE(editor.metaObject()->superClass(), &QTextEdit::staticMetaObject);
    editor.setHtml("<b>x</b>");
    QCOMPARE(editor.toPlainText(), QString("x"));
}

void tst_CustomTextEditor::showsPicturesThatTheTextCarries_data()
{
    QTest::addColumn<QString>("address");

    QTest::newRow("png") << carried({7, 5});
    QTest::newRow("bmp") << carried({7, 5}, "bmp");
    QTest::newRow("jpeg") << carried({7, 5}, "jpeg");
    QTest::newRow("scheme in capitals") << "DATA:" + carried({7, 5}).mid(5);
    QTest::newRow("escaped") << carried({7, 5}).replace("/", "%2F").replace("+", "%2B").replace("=", "%3D");
}

void tst_CustomTextEditor::showsPicturesThatTheTextCarries()
{
    QFETCH(QString, address);
    CustomTextEditor editor;
    QCOMPARE(sizeOf(editor, address), QSize(7, 5));
    editor.setHtml(QString("<img src='%1'>").arg(address));
    QVERIFY(editor.document()->idealWidth() >= 7);
}

void tst_CustomTextEditor::picturesShareTheRoomOfTheirText()
{
    CustomTextEditor editor;
    const QString full = carried({1920, 1080});
    const QString half = carried({1000, 1000});
    for (int i = 0; i < 3; ++i) {
        editor.showHtml("another text");
        QCOMPARE(sizeOf(editor, full), QSize(1920, 1080));
        QCOMPARE(sizeOf(editor, half), QSize(1, 1));
        QCOMPARE(sizeOf(editor, carried({10, 10})), QSize(10, 10));
        editor.showHtml("another text");
        QCOMPARE(sizeOf(editor, half), QSize(1000, 1000));
        QCOMPARE(sizeOf(editor, full), QSize(1, 1));
        QCOMPARE(sizeOf(editor, half), QSize(1000, 1000));
    }
}

void tst_CustomTextEditor::picturesShareTheMemoryOfAllMedia()
{
    const QString picture = carried({7, 5});
    MemoryClaim others;
    {
        CustomTextEditor editor;
        QVERIFY(others.take(MemoryClaim::maximum - 7 * 5 * 4 + 1));
        QCOMPARE(sizeOf(editor, picture), QSize(1, 1));
        QVERIFY(others.take(MemoryClaim::maximum - 7 * 5 * 4));
        QCOMPARE(sizeOf(editor, picture), QSize(7, 5));
        QCOMPARE(MemoryClaim::left(), qint64(0));
        editor.showHtml("another text");
        QCOMPARE(MemoryClaim::left(), qint64(7 * 5 * 4));
        QCOMPARE(sizeOf(editor, picture), QSize(7, 5));
    }
    QCOMPARE(MemoryClaim::left(), qint64(7 * 5 * 4));
}

void tst_CustomTextEditor::picturesCountAsWhatTheyTake()
{
    CustomTextEditor editor;
    // The frame is of 4 x 4 px, the screen is what is decoded.
    const QString picture = carriedGif({1000, 900});
    MemoryClaim others;
    QVERIFY(others.take(MemoryClaim::maximum - 1000 * 900 * 4 + 1));
    const qint64 left = MemoryClaim::left();
    QCOMPARE(sizeOf(editor, picture), QSize(1, 1));
    QCOMPARE(MemoryClaim::left(), left);
    QVERIFY(others.take(0));
    QCOMPARE(sizeOf(editor, picture), QSize(1000, 900));
    QCOMPARE(MemoryClaim::left(), MemoryClaim::maximum - 1000 * 900 * 4);
    QCOMPARE(sizeOf(editor, carriedGif({1601, 1400})), QSize(1, 1));
    QCOMPARE(sizeOf(editor, carriedGif({16405, 8977})), QSize(1, 1));
}

void tst_CustomTextEditor::tellsTheLogWhichItemLeavesAPictureOut()
{
    TextBoard texts;
    const ScreenItem *frame = texts.addText({0, 0, 100, 50}, "Clock");
    const QRegularExpression line("Text \"Clock\" leaves out a picture, \"data:image/gif.*\": .*pixels");
    QTest::ignoreMessage(QtDebugMsg, line);
    editorIn(frame)->showHtml("<img src='" + carriedGif({16405, 8977}) + "'>");
}

void tst_CustomTextEditor::pictureThatIsShownTwiceIsReadOnce()
{
    CustomTextEditor editor;
    editor.setLineWrapMode(QTextEdit::NoWrap);
    editor.showHtml(QString("<p><img src='%1'><img src='%1'></p>").arg(carried({1900, 1000})));
    QVERIFY(editor.document()->idealWidth() >= 3800);
}

void tst_CustomTextEditor::leavesOutEverythingElse_data()
{
    QTest::addColumn<QString>("address");

    QTest::newRow("nothing") << "";
    QTest::newRow("no picture") << "data:image/png;base64,AAAA";
    QTest::newRow("no base 64") << carried({7, 5}).remove(";base64");
    QTest::newRow("no comma") << "data:image/png;base64";
    QTest::newRow("huge header") << claiming(60000, 60000);
    QTest::newRow("largest header") << claiming(2147483647, 2147483647);
    QTest::newRow("a little too large") << claiming(2048, 1025);
    QTest::newRow("drawing") << drawingOf("");
    QTest::newRow("server") << "http://localhost/x.png";
    QTest::newRow("file") << "file:///etc/hostname";
    QTest::newRow("path") << "/usr/share/pixmaps/x.png";
    QTest::newRow("relative path") << "x.png";
    QTest::newRow("resource") << ":/assets/interface/text.png";
    QTest::newRow("resource by scheme") << "qrc:/assets/interface/text.png";
}

void tst_CustomTextEditor::leavesOutEverythingElse()
{
    QFETCH(QString, address);
    CustomTextEditor editor;
    const QVariant left = editor.loadResource(QTextDocument::ImageResource, QUrl(address));
    // Not null: the toolkit would look for the picture by itself.
    QVERIFY(!left.value<QImage>().isNull());
    QCOMPARE(left.value<QImage>().size(), QSize(1, 1));
    QCOMPARE(left.value<QImage>().pixelColor(0, 0).alpha(), 0);
}

void tst_CustomTextEditor::hasNoOtherResources()
{
    CustomTextEditor editor;
    for (const int type : {int(QTextDocument::HtmlResource), int(QTextDocument::StyleSheetResource),
                           int(QTextDocument::UserResource)}) {
        const QVariant resource = editor.loadResource(type, QUrl("file:///etc/hostname"));
        QVERIFY(resource.isValid() && !resource.isNull());
        QVERIFY(resource.toByteArray().isEmpty());
    }
}

void tst_CustomTextEditor::asksNoServer()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    const QString address = QString("http://127.0.0.1:%1/picture.png").arg(server.serverPort());
    const QStringList pages = askingFor(address);
    for (const QString &page : pages)
        show(page);
    QCoreApplication::processEvents();
    QVERIFY(!server.hasPendingConnections());
}

void tst_CustomTextEditor::opensNoFile()
{
#ifdef Q_OS_UNIX
    // Nobody ever writes into it: whoever opens it waits for ever.
    const QTemporaryDir folder;
    QCOMPARE(mkfifo(qPrintable(folder.filePath("pipe.png")), 0600), 0);
    for (const QString &address :
         {folder.filePath("pipe.png"), "file://" + folder.filePath("pipe.png"),
          drawingOf(folder.filePath("pipe.png")), QString("file:///dev/zero"), QString("/dev/zero")}) {
        const QStringList pages = askingFor(address);
        for (const QString &page : pages)
            show(page);
    }
    QVERIFY(writeFile(folder.filePath("red.png"),
                      QByteArray::fromBase64(carried({50, 50}).section(',', 1).toLatin1())));
    CustomTextEditor editor;
    editor.setHtml(QString("<img src='%1'>").arg(folder.filePath("red.png")));
    QVERIFY(editor.document()->idealWidth() < 50);
#else
    QSKIP("no named pipes in folders here");
#endif
}

void tst_CustomTextEditor::standsAnyText_data()
{
    QTest::addColumn<QString>("html");

    QTest::newRow("nothing") << "";
    QTest::newRow("zero characters") << QString(100, QChar(0));
    QTest::newRow("megabytes") << QString("<p>much</p>").repeated(500000);
    QTest::newRow("megabytes of one word") << QString(5000000, 'x');
    QTest::newRow("brackets") << QString(1000000, '<');
    QTest::newRow("unclosed tags") << QString("<b><i><p><table><tr>").repeated(5);
    QTest::newRow("tables in tables") << QString("<table><tr><td>x<td>").repeated(1000);
    QTest::newRow("huge spans") << "<table><tr><td colspan=2147483647 rowspan=2147483647>x";
    QTest::newRow("huge padding") << "<table cellpadding=2000000000><tr><td>x</table>";
    QTest::newRow("huge spacing") << "<table cellspacing=2000000000><tr><td>x</table>";
    QTest::newRow("huge lengths")
        << "<p style='margin:1e9px; text-indent:-1e9px; line-height:1e9; letter-spacing:1e9px'>x y";
    QTest::newRow("huge picture") << "<img src='x' width=2000000000 height=2000000000>";
    QTest::newRow("many floats") << QString("<img src='x' align='left'>").repeated(1900);
    QTest::newRow("picture with a huge header") << QString("<img src='%1'>").arg(claiming(60000, 60000));
    QTest::newRow("huge letters") << "<p style='font-size:1000000000px'>x</p>";
    QTest::newRow("long style sheet") << "<style>" + QString("p b{color:red}").repeated(1000) + "</style>" +
                                             QString("<b>x</b>").repeated(900);
    QTest::newRow("directions") << QString(QString("a") + QChar(0x202E) + QChar(0x5D0) + ' ').repeated(3000);
    QTest::newRow("margins") << QString("<div style='margin:9999999px'>x</div>").repeated(2);
    QTest::newRow("margins above") << QString("<p style='margin-top:300000px'>x</p>").repeated(200);
    QTest::newRow("lines far apart") << QString("<p style='line-height:99999%'>x</p>").repeated(400);
    QTest::newRow("lines far apart in one text")
        << "<p style='line-height:10000%'>" + QString("x<br>").repeated(9000);
    QTest::newRow("many large margins") << QString("<p style='margin:10000px'>x</p>").repeated(1700);
    QTest::newRow("many large letters") << QString("<p style='font-size:10000px'>x</p>").repeated(1700);
    QTest::newRow("many large pictures") << QString("<p><img src='x' width=9999 height=9999>").repeated(190);
    QTest::newRow("picture of one column") << QString("<img src='%1' width=10000>").arg(carried({1, 20000}));
    QTest::newRow("large cells") << "<table cellpadding=10000>" + QString("<tr><td>x").repeated(1500);
    QTest::newRow("spans") << "<table><tr><td colspan=9999999 rowspan=99>x</table>";
    QTest::newRow("large borders") << QString("<table border=99999999><tr><td>x</table>").repeated(300);
    QTest::newRow("accents") << QString("a") + QString(QChar(0x301)).repeated(900);
}

void tst_CustomTextEditor::standsAnyText()
{
    QFETCH(QString, html);
    show(html);
}

void tst_CustomTextEditor::pastesWhatCanBeShown()
{
    CustomTextEditor editor;
    QGuiApplication::clipboard()->setText("Guest\nHome");
    editor.paste();
    QCOMPARE(editor.toPlainText(), QString("Guest\nHome"));
    auto *rich = new QMimeData;
    rich->setHtml("<b>Home</b>");
    rich->setText("plain");
    QGuiApplication::clipboard()->setMimeData(rich);
    editor.selectAll();
    editor.paste();
    QCOMPARE(editor.toPlainText(), QString("Home"));
    QCOMPARE(editor.textCursor().charFormat().fontWeight(), 75);
}

void tst_CustomTextEditor::pastesTheBeginningOfTooMuch_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("beginning");

    const QString page = "<style>p{}</style>" + QString("<p>a &lt; b</p>").repeated(50000);
    QTest::newRow("html") << "text/html" << page << "a < b\na < b\n";
    QTest::newRow("own format") << "application/x-qrichtext" << page << "a < b\na < b\n";
    QTest::newRow("plain text") << "text/plain" << QString("a < b & c\n").repeated(50000)
                                << "a < b & c\na < b & c\n";
}

void tst_CustomTextEditor::pastesTheBeginningOfTooMuch()
{
    QFETCH(QString, format);
    QFETCH(QString, content);
    QFETCH(QString, beginning);
    CustomTextEditor editor;
    auto *data = new QMimeData;
    data->setData(format, content.toUtf8());
    QGuiApplication::clipboard()->setMimeData(data);
    editor.paste();
    QVERIFY2(editor.toPlainText().startsWith(beginning), qPrintable(editor.toPlainText().left(50)));
    QString text = editor.toPlainText();
    QCOMPARE(text.remove('\n').size(), 16 * 1024);
}

void tst_CustomTextEditor::cutsAPasteBetweenCharacters()
{
    CustomTextEditor editor;
    auto *data = new QMimeData;
    data->setText("a" + QString::fromUtf8("😀").repeated(9000));
    QGuiApplication::clipboard()->setMimeData(data);
    editor.paste();
    QCOMPARE(editor.toPlainText().size(), 16 * 1024 - 1);
    const QString text = editor.toPlainText();
    QVERIFY(text.at(text.size() - 1).isLowSurrogate());
}

void tst_CustomTextEditor::pastesTheBeginningOfTheTextBesideIt()
{
    CustomTextEditor editor;
    auto *data = new QMimeData;
    data->setHtml(QString("<p>rich</p>").repeated(50000));
    data->setText("plain < text");
    QGuiApplication::clipboard()->setMimeData(data);
    editor.paste();
    QCOMPARE(editor.toPlainText(), QString("plain < text"));
}

void tst_CustomTextEditor::pastesNoMoreThanCanBeOpenedAgain()
{
    CustomTextEditor editor;
    QGuiApplication::clipboard()->setText(QString("line\n").repeated(3000));
    for (int i = 0; i < 2; ++i)
        editor.paste();
    QString text = editor.toPlainText();
    QCOMPARE(text.remove('\n').size(), 16 * 1024);
    QVERIFY(CustomTextEditor().showHtml(editor.toHtml()));
    // What is replaced makes room.
    editor.selectAll();
    QGuiApplication::clipboard()->setText(QString(16 * 1024, 'x'));
    editor.paste();
    QCOMPARE(editor.toPlainText(), QString(16 * 1024, 'x'));
    editor.paste();
    QCOMPARE(editor.toPlainText(), QString(16 * 1024, 'x'));
    editor.undo();
    editor.undo();
    QVERIFY(editor.toPlainText().startsWith("line\n"));
}

void tst_CustomTextEditor::contextMenuIsDressedAndGoes()
{
    qApp->setStyleSheet("QMenu{color:red}");
    CustomTextEditor editor;
    editor.show();
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), editor.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(editor.viewport(), &event);
    QPointer<QMenu> menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QVERIFY(menu->styleSheet().startsWith(qApp->styleSheet()));
    QTest::keyClick(menu, Qt::Key_Escape);
    QTRY_VERIFY(!menu);
    qApp->setStyleSheet(QString());
}

void tst_CustomTextEditor::contextMenuDimsWhatCannotBeDone()
{
    qApp->setStyleSheet("QWidget{color:white;background-color:#454545}");
    CustomTextEditor editor;
    editor.setPlainText("text");
    editor.show();
    for (const bool canBeCut : {false, true}) {
        if (canBeCut)
            editor.selectAll();
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), editor.mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(editor.viewport(), &event);
        QPointer<QMenu> menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        auto *cut = menu->findChild<QAction *>("edit-cut");
        QVERIFY(cut);
        QCOMPARE(cut->isEnabled(), canBeCut);
        QCOMPARE(brightest(menu->grab(menu->actionGeometry(cut))) > 200, canBeCut);
        menu->close();
        QTRY_VERIFY(!menu);
    }
    qApp->setStyleSheet(QString());
}

void tst_CustomTextEditor::keepsKeysWhileItIsEdited()
{
    CustomTextEditor editor;
    for (const bool isEdited : {false, true}) {
        editor.setReadOnly(!isEdited);
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Shift, Qt::NoModifier);
        event.ignore();
        QCoreApplication::sendEvent(&editor, &event);
        QCOMPARE(event.isAccepted(), isEdited);
    }
}

void tst_CustomTextEditor::draggedWordsAreDraggedOnce()
{
    CustomTextEditor editor;
    editor.setPlainText("words to drag");
    editor.selectAll();
    editor.resize(200, 60);
    editor.show();
    QTimer ending; // of every drag, as the release of the button ends it
    connect(&ending, &QTimer::timeout, &editor, [] { QDrag::cancel(); });
    ending.start(0);
    const DragCounter drags(editor.viewport());
    const QPoint inside = editor.cursorRect(QTextCursor(editor.document())).center() + QPoint(10, 0);
    mouse(editor, QEvent::MouseButtonPress, inside);
    // The toolkit goes on by itself to tell of a mouse that is outside.
    for (int i = 0; i < 3; ++i) {
        mouse(editor, QEvent::MouseMove, inside + QPoint(0, 300));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QCOMPARE(drags.count(), 1);
    QCOMPARE(editor.toPlainText(), QString("words to drag"));
}

void tst_CustomTextEditor::showsTheBeginningWhenItAppears()
{
    for (const bool isEdited : {false, true}) {
        CustomTextEditor editor;
        editor.resize(100, 50);
        editor.setPlainText(QString("line\n").repeated(50));
        editor.moveCursor(QTextCursor::End);
        editor.setReadOnly(!isEdited);
        editor.show();
        QCOMPARE(editor.verticalScrollBar()->value() > 0, isEdited);
    }
}

void tst_CustomTextEditor::showsTheBeginningOfLongLines()
{
    CustomTextEditor editor;
    editor.resize(100, 50);
    editor.setLineWrapMode(QTextEdit::NoWrap);
    editor.setPlainText((QString(200, 'x') + '\n').repeated(50));
    editor.show();
    editor.moveCursor(QTextCursor::End);
    editor.moveCursor(QTextCursor::Up);
    editor.moveCursor(QTextCursor::EndOfLine);
    QVERIFY(editor.horizontalScrollBar()->value() > 0);
    editor.showBeginning();
    QCOMPARE(editor.horizontalScrollBar()->value(), 0);
    QCOMPARE(editor.verticalScrollBar()->value(), 0);
}

BOARDWRIGHT_TEST_MAIN(tst_CustomTextEditor)
#include "tst_customtexteditor.moc"
