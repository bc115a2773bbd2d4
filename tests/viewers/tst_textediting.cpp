#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "canvas/screenpicture.h"
#include "tests/support/strictmain.h"
#include "tests/viewers/textboard.h"
#include "viewers/customtexteditor.h"
#include "viewers/textoutput.h"

#include <QApplication>
#include <QClipboard>
#include <QFocusEvent>
#include <QJsonArray>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTimer>

namespace
{
/// A board with a text at (100, 100) of 200 x 100 px whose alignment is left and top, and one beside it.
struct TwoTexts {
    TwoTexts()
    {
        first->setValue("Align_int", 11);
        second->setValue("Align_int", 11);
        isReady = board.isReady();
    }

    CustomTextEditor *editor() const { return editorIn(first); }
    QString stored() const { return first->getValues().value("Text").toString(); }
    QString shown() const { return editor()->toPlainText(); }

    /// Edits the first text, and scrolls it by typing.
    void typeManyLines()
    {
        board.startEditing(first);
        for (int i = 0; i < 30; ++i)
            board.type(Qt::Key_Return);
    }

    TextBoard board;
    ScreenItem *first = board.addText({100, 100, 200, 100}, "first");
    ScreenItem *second = board.addText({400, 100, 200, 100}, "second");
    bool isReady = false;
};

/// The ways to leave editing.
enum Leaving { OtherItem, Canvas, RenderMode, Picture, NewItem };

void leave(TwoTexts &texts, Leaving way)
{
    Screen *screen = texts.board.screen();
    if (way == OtherItem)
        texts.board.click(texts.second->geometry().center());
    else if (way == Canvas)
        texts.board.click({700, 350});
    else if (way == RenderMode)
        screen->goToRenderMode();
    else if (way == Picture)
        QVERIFY(!pictureOf(*screen).isNull());
    else
        screen->newItem("Text");
}

/// Notes why a widget gets the focus.
class FocusReasons : public QObject
{
public:
    explicit FocusReasons(QWidget *widget) { widget->installEventFilter(this); }
    QList<Qt::FocusReason> list;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::FocusIn)
            list << static_cast<QFocusEvent *>(event)->reason();
        return QObject::eventFilter(watched, event);
    }
};

QString textOf(const QString &html)
{
    QTextDocument document;
    document.setHtml(html);
    return document.toPlainText();
}
} // namespace

class tst_TextEditing : public QObject
{
    Q_OBJECT

private slots:
    void doubleClickStartsEditing();
    void doubleClickOfTheContentStartsEditing();
    void oneClickDoesNot();
    void typesAtTheEnd();
    void secondDoubleClickSelectsAWord();
    void keysOfTheBoardAreTheEditorsOwn();
    void keysThatTheEditorHasNoUseForGoNowhere_data();
    void keysThatTheEditorHasNoUseForGoNowhere();

    void dragSelectsTextAndMovesNothing();
    void filterSwallowsTheMouseOfTheFrame_data();
    void filterSwallowsTheMouseOfTheFrame();
    void filterLetsTheRestThrough_data();
    void filterLetsTheRestThrough();
    void filterMindsNoOtherWidget();

    void leavingStoresTheText_data();
    void leavingStoresTheText();
    void leavingTellsTheTextOnce();
    void leavingWithoutEditingDoesNothing();
    void leavingWithoutTypingModifiesNothing();
    void leavingPlacesTheTextAnew();
    void leavingShowsTheBeginningAgain();
    void leavingHandsTheFocusToTheFrame_data();
    void leavingHandsTheFocusToTheFrame();
    void leavingLetsOthersKeepTheFocus();
    void leavingPutsTheEditorBack();
    void frameMovesAgainAfterwards();
    void canBeEditedAgain();

    void typingModifiesTheLayout();
    void savingWhileEditingStoresTheText();
    void savingDoesNotEndEditing();
    void savingWithoutTypingStoresNothing();
    void undoTakesBackWhatWasTypedAlone();
    void undoEndsWithEditing();

    void valuesSetWhileEditingFormatTheSelection();
    void valuesSetWhileEditingKeepTheView();
    void styleOfTheCursorIsTypedIn();
    void emptyTextIsTypedInItsStyle();
    void replacedTextKeepsItsStyle();
    void resizedFrameResizesTheEditor();
    void textReadWhileEditingIsShown();

    void frameMayGoWhileItIsEdited_data();
    void frameMayGoWhileItIsEdited();
    void layoutMayBeLoadedWhileItIsEdited();
    void contextMenuOutlivesItsText();

    void readOnlyTextTakesNoFocus();
    void tooMuchTextDoesNotOpen();
    void tooMuchTextSetWhileEditingStaysStored();
    void anyNumberOfParagraphsStaysWhole();
};

void tst_TextEditing::doubleClickStartsEditing()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    const FocusReasons reasons(texts.editor());
    texts.board.startEditing(texts.first);
    QCOMPARE(reasons.list, QList<Qt::FocusReason>({Qt::OtherFocusReason}));
    QVERIFY(!texts.editor()->isReadOnly());
    QCOMPARE(texts.editor()->parentWidget(), texts.first);
    QCOMPARE(texts.editor()->geometry(), QRect(0, 0, 200, 100));
    QVERIFY(texts.editor()->isVisible());
    QVERIFY(texts.editor()->hasFocus());
    QCOMPARE(texts.editor()->textCursor().position(), 4);
    QVERIFY(!texts.editor()->textCursor().hasSelection());
    QVERIFY(!isEditing(texts.second));
}

void tst_TextEditing::doubleClickOfTheContentStartsEditing()
{
    TwoTexts texts;
    QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    event.ignore();
    textIn(texts.first)->mouseDoubleClickEvent(&event);
    QVERIFY(event.isAccepted());
    QVERIFY(isEditing(texts.first));
    // Once more does nothing.
    texts.editor()->moveCursor(QTextCursor::Start);
    textIn(texts.first)->mouseDoubleClickEvent(&event);
    QCOMPARE(texts.editor()->textCursor().position(), 0);
    QVERIFY(isEditing(texts.first));
}

void tst_TextEditing::oneClickDoesNot()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.click(texts.first->geometry().center());
    QVERIFY(!isEditing(texts.first));
    QVERIFY(texts.first->hasFocus());
}

void tst_TextEditing::typesAtTheEnd()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.startEditing(texts.first);
    texts.board.write("ual 12:34");
    QCOMPARE(texts.shown(), QString("Textual 12:34"));
    QCOMPARE(texts.editor()->document()->blockCount(), 1);
    QCOMPARE(described(*texts.editor()->document()).constLast(),
             QString("Textual 12:34: Arial 8pt weight 50 #ffffff"));
    // Stored when it is left.
    QCOMPARE(textOf(texts.stored()), QString("Text"));
}

void tst_TextEditing::secondDoubleClickSelectsAWord()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.startEditing(texts.first);
    texts.board.doubleClick({108, 108});
    QVERIFY(isEditing(texts.first));
    QCOMPARE(texts.editor()->textCursor().selectedText(), QString("Text"));
}

void tst_TextEditing::keysOfTheBoardAreTheEditorsOwn()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.startEditing(texts.first);
    const QRect geometry = texts.first->geometry();
    texts.board.type(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(texts.editor()->textCursor().selectedText(), QString("Text"));
    QCOMPARE(texts.board.screen()->selection().size(), 1);
    texts.board.type(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QString("Text"));
    texts.board.type(Qt::Key_Delete);
    QCOMPARE(texts.shown(), QString());
    texts.board.type(Qt::Key_Delete);
    texts.board.type(Qt::Key_V, Qt::ControlModifier);
    texts.board.type(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(texts.shown(), QString("TextText"));
    texts.board.type(Qt::Key_A, Qt::ControlModifier);
    texts.board.type(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(texts.shown(), QString());
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down})
        texts.board.type(key, Qt::ShiftModifier);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(texts.board.screen()->items().size(), 2);
    QCOMPARE(texts.first->geometry(), geometry);
    QVERIFY(isEditing(texts.first));
}

void tst_TextEditing::keysThatTheEditorHasNoUseForGoNowhere_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("shift alone") << Qt::Key_Shift << Qt::KeyboardModifiers(Qt::NoModifier);
    QTest::newRow("control and up") << Qt::Key_Up << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("control, shift and delete")
        << Qt::Key_Delete << Qt::KeyboardModifiers(Qt::ControlModifier | Qt::ShiftModifier);
}

void tst_TextEditing::keysThatTheEditorHasNoUseForGoNowhere()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    TextBoard board;
    QVERIFY(board.isReady());
    ScreenItem *frame = board.addText({30, 40, 200, 60});
    ScreenItem *other = board.addText({300, 200, 80, 50});
    board.startEditing(frame);
    other->select();
    const QPointer<ScreenItem> alive(frame);
    const QVariantMap ofOther = other->getValues();
    board.type(key, modifiers);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(alive);
    QCOMPARE(frame->geometry(), QRect(30, 40, 200, 60));
    QCOMPARE(other->getValues(), ofOther);
    QVERIFY(isEditing(frame));
}

void tst_TextEditing::dragSelectsTextAndMovesNothing()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.startEditing(texts.first);
    const QSignalSpy geometries(texts.first, &ScreenItem::newGeometry);
    texts.board.drag({104, 108}, {250, 180});
    QCOMPARE(texts.first->geometry(), QRect(100, 100, 200, 100));
    QCOMPARE(geometries.size(), 0);
    QCOMPARE(texts.editor()->textCursor().selectedText(), QString("Text"));
    // At the edge of the frame as well.
    texts.board.drag({299, 199}, {350, 250});
    QCOMPARE(texts.first->geometry(), QRect(100, 100, 200, 100));
    QVERIFY(isEditing(texts.first));
}

void tst_TextEditing::filterSwallowsTheMouseOfTheFrame_data()
{
    QTest::addColumn<QEvent::Type>("type");

    QTest::newRow("press") << QEvent::MouseButtonPress;
    QTest::newRow("release") << QEvent::MouseButtonRelease;
    QTest::newRow("move") << QEvent::MouseMove;
}

void tst_TextEditing::filterSwallowsTheMouseOfTheFrame()
{
    QFETCH(QEvent::Type, type);
    TwoTexts texts;
    QVERIFY(texts.isReady);
    QMouseEvent event(type, QPointF(5, 5), QPointF(5, 5), QPointF(9, 9), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QVERIFY(!textIn(texts.first)->eventFilter(texts.first, &event));
    texts.board.startEditing(texts.first);
    QVERIFY(textIn(texts.first)->eventFilter(texts.first, &event));
    const QSignalSpy activations(texts.first, &ScreenItem::activated);
    QCoreApplication::sendEvent(texts.first, &event);
    QCOMPARE(activations.size(), 0);
    texts.board.click({700, 350});
    QVERIFY(!textIn(texts.first)->eventFilter(texts.first, &event));
}

void tst_TextEditing::filterLetsTheRestThrough_data()
{
    QTest::addColumn<QEvent::Type>("type");

    QTest::newRow("double click") << QEvent::MouseButtonDblClick;
    QTest::newRow("key") << QEvent::KeyPress;
    QTest::newRow("focus") << QEvent::FocusIn;
    QTest::newRow("paint") << QEvent::Paint;
    QTest::newRow("resize") << QEvent::Resize;
    QTest::newRow("wheel") << QEvent::Wheel;
}

void tst_TextEditing::filterLetsTheRestThrough()
{
    QFETCH(QEvent::Type, type);
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.startEditing(texts.first);
    QEvent event(type);
    QVERIFY(!textIn(texts.first)->eventFilter(texts.first, &event));
}

void tst_TextEditing::filterMindsNoOtherWidget()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.startEditing(texts.first);
    QEvent event(QEvent::MouseButtonPress);
    const QObjectList others({texts.second, texts.editor(), texts.board.screen()});
    for (QObject *other : others)
        QVERIFY(!textIn(texts.first)->eventFilter(other, &event));
}

void tst_TextEditing::leavingStoresTheText_data()
{
    QTest::addColumn<int>("way");

    QTest::newRow("another item is clicked") << int(OtherItem);
    QTest::newRow("the canvas is clicked") << int(Canvas);
    QTest::newRow("render mode") << int(RenderMode);
    QTest::newRow("a picture is taken") << int(Picture);
    QTest::newRow("a new item comes") << int(NewItem);
}

void tst_TextEditing::leavingStoresTheText()
{
    QFETCH(int, way);
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.startEditing(texts.first);
    texts.board.write("ual");
    const QString html = texts.editor()->toHtml();
    leave(texts, Leaving(way));
    QVERIFY(texts.editor()->isReadOnly());
    QCOMPARE(texts.stored(), html);
    QCOMPARE(texts.shown(), QString("Textual"));
    QCOMPARE(texts.editor()->parentWidget(), textIn(texts.first));
    QCOMPARE(texts.editor()->geometry(), QRect(0, 0, 200, 100));
    QVERIFY(texts.editor()->isVisible());
    QVERIFY(!texts.editor()->hasFocus());
    QVERIFY(texts.editor()->textCursor().atEnd());
    QVERIFY(!texts.editor()->textCursor().hasSelection());
}

void tst_TextEditing::leavingTellsTheTextOnce()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.startEditing(texts.first);
    texts.board.write("s");
    QSignalSpy changes(texts.first, &ScreenItem::valueChanged);
    bool wasEditing = false;
    connect(texts.first, &ScreenItem::valueChanged, this, [&] { wasEditing = isEditing(texts.first); });
    leave(texts, OtherItem);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.at(0).at(0), QVariant("Text"));
    QCOMPARE(changes.at(0).at(1), QVariant(texts.stored()));
    QVERIFY(wasEditing);
    leave(texts, Canvas);
    QCOMPARE(changes.size(), 1);
}

void tst_TextEditing::leavingWithoutEditingDoesNothing()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    const QMap<QString, QVariant> values = texts.first->getValues();
    const QSignalSpy changes(texts.first, &ScreenItem::valueChanged);
    textIn(texts.first)->endEditing();
    leave(texts, RenderMode);
    QCOMPARE(texts.first->getValues(), values);
    QCOMPARE(changes.size(), 0);
}

void tst_TextEditing::leavingWithoutTypingModifiesNothing()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.screen()->loadLayout(texts.board.screen()->saveLayout());
    ScreenItem *frame = texts.board.screen()->items().at(0);
    texts.board.startEditing(frame);
    QVERIFY(isEditing(frame));
    texts.board.click({700, 350});
    QVERIFY(!isEditing(frame));
    QVERIFY(!texts.board.screen()->isModified());
    QCOMPARE(editorIn(frame)->toPlainText(), QString("Text"));
}

void tst_TextEditing::leavingPlacesTheTextAnew()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.first->setValue("Align_int", 13);
    const int before = topMargin(texts.first);
    texts.board.startEditing(texts.first);
    texts.board.type(Qt::Key_Return);
    texts.board.write("more");
    QCOMPARE(topMargin(texts.first), before);
    leave(texts, Canvas);
    const int content = int(texts.editor()->document()->size().height()) - topMargin(texts.first);
    QCOMPARE(topMargin(texts.first), 100 - content);
    QVERIFY(topMargin(texts.first) < before);
}

void tst_TextEditing::leavingShowsTheBeginningAgain()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.typeManyLines();
    QVERIFY(texts.editor()->cursorRect().top() > 0);
    QVERIFY(texts.editor()->cursorRect().bottom() <= 100);
    leave(texts, Canvas);
    QTextCursor start(texts.editor()->document());
    QVERIFY(texts.editor()->cursorRect(start).top() >= 0);
    QVERIFY(texts.editor()->cursorRect(start).bottom() <= 100);
}

void tst_TextEditing::leavingHandsTheFocusToTheFrame_data()
{
    QTest::addColumn<int>("way");

    QTest::newRow("the canvas is clicked") << int(Canvas);
    QTest::newRow("render mode") << int(RenderMode);
    QTest::newRow("a picture is taken") << int(Picture);
}

void tst_TextEditing::leavingHandsTheFocusToTheFrame()
{
    QFETCH(int, way);
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.startEditing(texts.first);
    QVERIFY(texts.editor()->hasFocus());
    leave(texts, Leaving(way));
    QCOMPARE(QApplication::focusWidget(), texts.first);
}

void tst_TextEditing::leavingLetsOthersKeepTheFocus()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    QLineEdit other(texts.board.window());
    other.show();
    texts.board.startEditing(texts.first);
    other.setFocus();
    QVERIFY(isEditing(texts.first));
    leave(texts, RenderMode);
    QVERIFY(!isEditing(texts.first));
    QVERIFY(other.hasFocus());
}

void tst_TextEditing::leavingPutsTheEditorBack()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.startEditing(texts.first);
    texts.editor()->setGeometry(7, 8, 30, 20);
    leave(texts, Canvas);
    QCOMPARE(texts.editor()->geometry(), QRect(0, 0, 200, 100));
    texts.editor()->move(7, 8);
    texts.board.startEditing(texts.first);
    QCOMPARE(texts.editor()->geometry(), QRect(0, 0, 200, 100));
}

void tst_TextEditing::frameMovesAgainAfterwards()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.startEditing(texts.first);
    leave(texts, Canvas);
    texts.board.drag({200, 150}, {210, 170});
    QCOMPARE(texts.first->geometry(), QRect(110, 120, 200, 100));
}

void tst_TextEditing::canBeEditedAgain()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    for (const QString &expected : {QString("Text1"), QString("Text11"), QString("Text111")}) {
        texts.board.startEditing(texts.first);
        texts.board.write("1");
        texts.board.startEditing(texts.second);
        QVERIFY(!isEditing(texts.first));
        QVERIFY(isEditing(texts.second));
        texts.board.write("2");
        QCOMPARE(textOf(texts.stored()), expected);
    }
    QCOMPARE(editorIn(texts.second)->toPlainText(), QString("Text222"));
}

void tst_TextEditing::typingModifiesTheLayout()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    Screen *screen = texts.board.screen();
    screen->loadLayout(screen->saveLayout());
    ScreenItem *frame = screen->items().at(0);
    texts.board.startEditing(frame);
    QVERIFY(!screen->isModified());
    texts.board.write("x");
    QVERIFY(screen->isModified());
}

void tst_TextEditing::savingWhileEditingStoresTheText()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.startEditing(texts.first);
    texts.board.write("ual");
    const QSignalSpy changes(texts.first, &ScreenItem::valueChanged);
    const QJsonObject saved = texts.board.screen()->saveLayout();
    const QJsonObject item = saved.value("items").toArray().at(0).toObject();
    QCOMPARE(textOf(item.value("Text").toString()), QString("Textual"));
    QCOMPARE(changes.size(), 0);
}

void tst_TextEditing::savingDoesNotEndEditing()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.startEditing(texts.first);
    texts.board.write("ual");
    texts.board.screen()->saveLayout();
    QVERIFY(isEditing(texts.first));
    QVERIFY(texts.editor()->hasFocus());
    texts.board.write("s");
    QCOMPARE(texts.shown(), QString("Textuals"));
    leave(texts, Canvas);
    QCOMPARE(textOf(texts.stored()), QString("Textuals"));
}

void tst_TextEditing::savingWithoutTypingStoresNothing()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    const QString before = texts.stored();
    texts.board.startEditing(texts.first);
    texts.board.screen()->saveLayout();
    QCOMPARE(texts.stored(), before);
}

void tst_TextEditing::undoTakesBackWhatWasTypedAlone()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.first->setValue("Bold", true);
    texts.board.startEditing(texts.first);
    QVERIFY(!texts.editor()->document()->isUndoAvailable());
    texts.board.write("ual");
    texts.board.type(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(texts.shown(), QString("Text"));
    texts.board.type(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(described(*texts.editor()->document()).constLast(),
             QString("Text: Arial 8pt weight 75 #ffffff"));
}

void tst_TextEditing::undoEndsWithEditing()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.startEditing(texts.first);
    texts.board.write("ual");
    leave(texts, Canvas);
    QVERIFY(!texts.editor()->document()->isUndoAvailable());
    texts.board.startEditing(texts.first);
    texts.board.type(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(texts.shown(), QString("Textual"));
}

void tst_TextEditing::valuesSetWhileEditingFormatTheSelection()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.startEditing(texts.first);
    texts.board.type(Qt::Key_Left, Qt::ShiftModifier);
    texts.first->setValue("Bold", true);
    texts.first->setValue("Color", "red");
    QCOMPARE(texts.editor()->textCursor().selectedText(), QString("t"));
    QCOMPARE(described(*texts.editor()->document()).mid(2),
             QStringList({"Tex: Arial 8pt weight 50 #ffffff", "t: Arial 8pt weight 75 #ff0000"}));
    // The whole text when it is read anew.
    leave(texts, Canvas);
    texts.board.screen()->loadLayout(texts.board.screen()->saveLayout());
    QCOMPARE(described(*editorIn(texts.board.screen()->items().at(0))->document()).constLast(),
             QString("Text: Arial 8pt weight 75 #ff0000"));
}

void tst_TextEditing::valuesSetWhileEditingKeepTheView()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.typeManyLines();
    for (const char *key : {"Bold", "Vertical_Bottom", "Align_int"}) {
        texts.first->setValue(key, 12);
        QVERIFY(texts.editor()->verticalScrollBar()->value() > 0);
    }
}

void tst_TextEditing::styleOfTheCursorIsTypedIn()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.startEditing(texts.first);
    texts.first->setValue("Italic", true);
    texts.first->setValue("Size", 20);
    texts.board.write("ual");
    QCOMPARE(described(*texts.editor()->document()).mid(2),
             QStringList({"Text: Arial 8pt weight 50 #ffffff", "ual: Arial 20pt weight 50 italic #ffffff"}));
}

void tst_TextEditing::emptyTextIsTypedInItsStyle()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.first->setValue("Text", "");
    texts.first->setValue("Size", 20);
    texts.first->setValue("Color", "red");
    texts.board.startEditing(texts.first);
    texts.board.write("new");
    QCOMPARE(described(*texts.editor()->document()).constLast(),
             QString("new: Arial 20pt weight 50 #ff0000"));
}

void tst_TextEditing::replacedTextKeepsItsStyle()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.first->setValue("Size", 20);
    texts.board.startEditing(texts.first);
    texts.board.type(Qt::Key_A, Qt::ControlModifier);
    texts.board.write("new");
    QCOMPARE(described(*texts.editor()->document()).constLast(),
             QString("new: Arial 20pt weight 50 #ffffff"));
    texts.board.type(Qt::Key_A, Qt::ControlModifier);
    texts.board.type(Qt::Key_Backspace);
    texts.board.write("newer");
    QCOMPARE(described(*texts.editor()->document()).constLast(),
             QString("newer: Arial 20pt weight 50 #ffffff"));
}

void tst_TextEditing::resizedFrameResizesTheEditor()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.startEditing(texts.first);
    texts.first->setValue("W", 250);
    texts.first->setValue("X", 10);
    QCOMPARE(texts.editor()->geometry(), QRect(0, 0, 250, 100));
    QVERIFY(isEditing(texts.first));
}

void tst_TextEditing::textReadWhileEditingIsShown()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.startEditing(texts.first);
    texts.board.write("ual");
    QJsonObject object = textObject("other", {10, 10, 200, 100});
    QVERIFY(texts.first->fromJson(object));
    QCOMPARE(texts.shown(), QString("Away"));
    leave(texts, Canvas);
    QCOMPARE(textOf(texts.stored()), QString("Away"));
}

void tst_TextEditing::frameMayGoWhileItIsEdited_data()
{
    QTest::addColumn<bool>("later");

    QTest::newRow("at once") << false;
    QTest::newRow("with the next turn") << true;
}

void tst_TextEditing::frameMayGoWhileItIsEdited()
{
    QFETCH(bool, later);
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.startEditing(texts.first);
    texts.board.write("ual");
    const QPointer<CustomTextEditor> editor = texts.editor();
    if (later)
        texts.board.screen()->deleteSelectionAnd(texts.first);
    else
        delete texts.first;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!editor);
    QCOMPARE(texts.board.screen()->items(), QList<ScreenItem *>({texts.second}));
    texts.board.startEditing(texts.second);
    QVERIFY(isEditing(texts.second));
}

void tst_TextEditing::layoutMayBeLoadedWhileItIsEdited()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.startEditing(texts.first);
    texts.board.write("ual");
    Screen *screen = texts.board.screen();
    screen->loadLayout(screen->saveLayout());
    QCOMPARE(screen->items().size(), 2);
    QCOMPARE(editorIn(screen->items().at(0))->toPlainText(), QString("Textual"));
    QVERIFY(!isEditing(screen->items().at(0)));
    QVERIFY(!screen->isModified());
}

void tst_TextEditing::contextMenuOutlivesItsText()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.startEditing(texts.first);
    const QPointer<QMenu> menu = [&texts] {
        QPointer<QMenu> opened;
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
        QTimer::singleShot(0, texts.first, [&] {
            opened = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            delete texts.first;
        });
        QCoreApplication::sendEvent(texts.editor()->viewport(), &event);
        QCoreApplication::processEvents();
        return opened;
    }();
    QVERIFY(!menu);
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(texts.board.screen()->items().size(), 1);
}

void tst_TextEditing::readOnlyTextTakesNoFocus()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    QCOMPARE(texts.editor()->focusPolicy(), Qt::NoFocus);
    texts.first->setFocus();
    for (int i = 0; i < 4; ++i) {
        texts.board.type(Qt::Key_Tab);
        QVERIFY(!qobject_cast<QTextEdit *>(QApplication::focusWidget()));
    }
    texts.board.startEditing(texts.first);
    QCOMPARE(texts.editor()->focusPolicy(), Qt::StrongFocus);
    leave(texts, Canvas);
    QCOMPARE(texts.editor()->focusPolicy(), Qt::NoFocus);
}

void tst_TextEditing::tooMuchTextDoesNotOpen()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    const QString html = QString("<p>very much</p>").repeated(100000);
    texts.first->setValue("Text", html);
    texts.board.startEditing(texts.first);
    QVERIFY(!isEditing(texts.first));
    QCOMPARE(texts.stored(), html);
    QVERIFY(texts.shown().startsWith("very much"));
    texts.first->setValue("Text", "little");
    texts.board.startEditing(texts.first);
    QVERIFY(isEditing(texts.first));
}

void tst_TextEditing::tooMuchTextSetWhileEditingStaysStored()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.board.startEditing(texts.first);
    const QString html = QString("<p>very much</p>").repeated(100000);
    texts.first->setValue("Text", html);
    texts.board.screen()->saveLayout();
    leave(texts, Canvas);
    QCOMPARE(texts.stored(), html);
}

void tst_TextEditing::anyNumberOfParagraphsStaysWhole()
{
    TwoTexts texts;
    QVERIFY(texts.isReady);
    texts.first->setValue("Text", "");
    texts.board.startEditing(texts.first);
    QStringList paragraphs;
    for (int i = 0; i < 16 * 1024; ++i)
        paragraphs << QString(QLatin1Char(char('a' + i % 26)));
    const QString text = paragraphs.join('\n');
    QGuiApplication::clipboard()->setText(text);
    texts.editor()->selectAll();
    texts.editor()->paste();
    QCOMPARE(texts.editor()->document()->blockCount(), paragraphs.size());
    QCOMPARE(texts.shown(), text);
    leave(texts, Canvas);
    texts.board.screen()->loadLayout(texts.board.screen()->saveLayout());
    ScreenItem *reopened = texts.board.screen()->items().first();
    QCOMPARE(editorIn(reopened)->toPlainText(), text);
    texts.board.startEditing(reopened);
    QVERIFY(isEditing(reopened));
}

BOARDWRIGHT_TEST_MAIN(tst_TextEditing)
#include "tst_textediting.moc"
