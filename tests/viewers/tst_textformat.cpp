#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "model/boardfonts.h"
#include "tests/support/strictmain.h"
#include "tests/viewers/textboard.h"
#include "viewers/customtexteditor.h"
#include "viewers/textoutput.h"

#include <QJsonArray>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTextFrame>
#include <QTextFrameFormat>

namespace
{
QMap<int, int> alignmentFlags()
{
    return {{11, 0x01}, {21, 0x24}, {31, 0x02}, {12, 0x81}, {22, 0x84},
            {32, 0x82}, {13, 0x41}, {23, 0x44}, {33, 0x42}};
}

/// The toolkit's own editor, formatted key by key and value by value: what a text's document is to be.
class Yardstick
{
public:
    explicit Yardstick(QSize size)
    {
        m_edit.setFrameShape(QFrame::NoFrame);
        m_edit.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        m_edit.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        m_edit.resize(size);
        m_edit.show();
        // Letters of which nothing is said are those of a board, not of the interface.
        m_edit.document()->setDefaultFont(BoardFonts::plainFont());
        m_values = {{"Size", 8},           {"Font", "Arial"}, {"Color", "white"},
                    {"Underlined", false}, {"Bold", false},   {"Italic", false}};
        m_edit.document()->setHtml(
            "<html><body><p align = \"center\" width = \"100%\">Text</p></body></html>");
        for (const char *key : {"Italic", "Font", "Underlined", "Size", "Bold", "Color", "Aligment"})
            format(key);
    }

    void setValue(const QString &key, const QVariant &value)
    {
        if (key == "Align_int") {
            m_vertical = value.toInt() % 10;
            m_horizontal = value.toInt() - m_vertical;
            format("Aligment");
        } else if (key == "Text") {
            m_edit.document()->setHtml(value.toString());
            format("Aligment");
        } else {
            m_values.insert(key, value);
            format(key);
        }
    }

    const QTextDocument &document() const { return *m_edit.document(); }

private:
    void format(const QString &key)
    {
        m_edit.selectAll();
        const QVariant value = m_values.value(key);
        if (key == "Italic")
            m_edit.setFontItalic(value.toBool());
        else if (key == "Font")
            m_edit.setFontFamily(value.toString());
        else if (key == "Underlined")
            m_edit.setFontUnderline(value.toBool());
        else if (key == "Size")
            m_edit.setFontPointSize(value.toInt());
        else if (key == "Bold")
            m_edit.setFontWeight(value.toBool() ? 75 : 50);
        else if (key == "Color")
            setColor(value.toString());
        else if (key == "Aligment" && alignmentFlags().contains(m_horizontal + m_vertical))
            m_edit.setAlignment(Qt::Alignment(alignmentFlags().value(m_horizontal + m_vertical)));
        QTextCursor cursor = m_edit.textCursor();
        cursor.movePosition(QTextCursor::Left, QTextCursor::MoveAnchor, 4);
        m_edit.setTextCursor(cursor);
        place();
    }

    void setColor(const QString &name)
    {
        QColor color;
        color.setNamedColor(name);
        m_edit.setTextColor(color);
    }

    void place()
    {
        QTextFrame *root = m_edit.document()->rootFrame();
        QTextFrameFormat format = root->frameFormat();
        const int content = int(m_edit.document()->size().height()) - int(format.topMargin());
        const int room = m_edit.height() - content;
        if (m_vertical == 1)
            format.setTopMargin(0);
        else if (m_vertical == 2)
            format.setTopMargin(room > 0 ? (room >> 1) - 2 : 2);
        else if (m_vertical == 3)
            format.setTopMargin(room > 0 ? room : 2);
        root->setFrameFormat(format);
        // Otherwise the height would not follow the margin.
        if (m_edit.document()->isEmpty())
            m_edit.document()->markContentsDirty(0, 1);
    }

    QTextEdit m_edit;
    QMap<QString, QVariant> m_values;
    int m_vertical = 2;
    int m_horizontal = 20;
};

template <class Value>
Value oneOf(QRandomGenerator &random, const QVector<Value> &values)
{
    return values.at(random.bounded(values.size()));
}

/// Values of every kind that a layout may hold, other ones for each start number.
QJsonObject generatedText(quint32 start)
{
    QRandomGenerator random(start);
    const QRect geometry(random.bounded(200), random.bounded(100), 20 + random.bounded(400),
                         10 + random.bounded(250));
    const QVector<QJsonValue> texts = {
        "",
        "plain",
        "<p>one</p><p align='right'>two <b>bold</b></p>",
        "<p>a line that is far too long for most of the rectangles that come here, and so is cut</p>",
        "<h1>Title</h1><ul><li>first<li><i>second</i></ul>",
        "<table><tr><td>1</td><td style='color:red'>2</td></tr></table><p>end</p>",
        "<p style='margin-top:30px; font-size:30pt; text-decoration:underline'>12:34</p><p></p>",
        QJsonValue(),
        42};
    const QVector<QJsonValue> codes = {11, 12, 13, 21, 22, 23, 31,  32,  33,           0,    1,
                                       3,  41, 5,  15, 42, 99, -13, 1e9, QJsonValue(), "23", 13.0};
    QJsonObject object = textObject("Text", geometry);
    object.insert("Text", oneOf(random, texts));
    object.insert("Font", oneOf<QJsonValue>(random, {"Arial", "DejaVu Sans", "Nowhere", "", QJsonValue()}));
    object.insert("Size", oneOf<QJsonValue>(random, {1, 8, 12.0, 40, 120, "20"}));
    object.insert("Bold", random.bounded(2) == 1);
    object.insert("Italic", random.bounded(2) == 1);
    object.insert("Underlined", random.bounded(2) == 1);
    object.insert("Align_int", oneOf(random, codes));
    object.insert("Color", oneOf<QJsonValue>(random, {"red", "#123456", "nonsense", QJsonValue(), 7}));
    return object;
}

QVariant asFilesGiveIt(const QJsonValue &value)
{
    return value.isDouble() ? QVariant(value.toDouble()) : value.toVariant();
}

/// A text at (0, 0) of 200 x 100 px.
struct OneText {
    TextBoard board;
    ScreenItem *frame = board.addText({0, 0, 200, 100});
    TextOutput *text = textIn(frame);
    CustomTextEditor *editor = editorIn(frame);

    QStringList lines() const { return described(*editor->document()); }
    void setHtml(const QString &html) const { text->setValue("Text", html); }
    int contentHeight() const { return int(editor->document()->size().height()) - topMargin(frame); }
};

/// The pieces that were formatted, without margin and paragraphs.
QStringList piecesOf(const OneText &one)
{
    return one.lines().filter(QRegularExpression("^(?!margin|paragraph)"));
}
} // namespace

class tst_TextFormat : public QObject
{
    Q_OBJECT

private slots:
    void newTextIsDressed();
    void formatsTheWholeText_data();
    void formatsTheWholeText();
    void formatsOneThingAlone_data();
    void formatsOneThingAlone();
    void boldIsOneOfTwoWeights();
    void sizeIsInPointsWhateverItsType();
    void fontWinsOverFamiliesOfTheText();
    void colourThatIsNoneIsPassedOn();

    void leavesNoSelectionAndTheTextAlone();
    void showsItsEditor();
    void cutsTheNewsOfTypingOff();

    void alignsEveryParagraph_data();
    void alignsEveryParagraph();
    void numbersThatAreNoCodeAlignNothing_data();
    void numbersThatAreNoCodeAlignNothing();
    void placesTheTextInItsHeight_data();
    void placesTheTextInItsHeight();
    void placesAnewWithAnotherHeight();
    void placesAnewWithAnotherWidth();
    void staysInPlaceWithoutText();
    void slotsPlaceTheText();
    void placingIsSilent();

    void textTakesTheAlignmentButNoStyle();
    void isWhatTheToolkitMakesStepByStep();
    void readingAtOnceIsReadingOneByOne();
    void readingTwiceIsReadingOneByOne();
    void readingUnseenIsReadingInView();
};

void tst_TextFormat::newTextIsDressed()
{
    const OneText one;
    QCOMPARE(piecesOf(one), QStringList("Text: Arial 8pt weight 50 #ffffff"));
    QCOMPARE(int(one.editor->textCursor().blockFormat().alignment()), 0x84);
    QCOMPARE(topMargin(one.frame), ((100 - one.contentHeight()) >> 1) - 2);
}

void tst_TextFormat::formatsTheWholeText_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("look");

    QTest::newRow("Italic") << QVariant(true) << "Arial 8pt weight 50 italic #ffffff";
    QTest::newRow("Font") << QVariant("Oswald") << "Oswald 8pt weight 50 #ffffff";
    QTest::newRow("Underlined") << QVariant(true) << "Arial 8pt weight 50 underlined #ffffff";
    QTest::newRow("Size") << QVariant(33) << "Arial 33pt weight 50 #ffffff";
    QTest::newRow("Bold") << QVariant(true) << "Arial 8pt weight 75 #ffffff";
    QTest::newRow("Color") << QVariant("#12ab3c") << "Arial 8pt weight 50 #12ab3c";
}

void tst_TextFormat::formatsTheWholeText()
{
    QFETCH(QVariant, value);
    QFETCH(QString, look);
    const OneText one;
    const QJsonObject plain = {{"Text", "<p>one <b>two</b></p><p>three</p>"},
                               {"Font", "Arial"},
                               {"Size", 8},
                               {"Bold", false},
                               {"Italic", false},
                               {"Underlined", false},
                               {"Color", "white"},
                               {"Align_int", 22}};
    QVERIFY(one.text->fromJson(textObject("Text", {0, 0, 200, 100}, plain)));
    one.text->setValue(QTest::currentDataTag(), value);
    QCOMPARE(piecesOf(one), QStringList({"one : " + look, "two: " + look, "three: " + look}));
}

void tst_TextFormat::formatsOneThingAlone_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("look");

    QTest::newRow("Italic") << QVariant(false) << "Ubuntu 30pt weight 75 underlined #ff0000";
    QTest::newRow("Font") << QVariant("Oswald") << "Oswald 30pt weight 75 italic underlined #ff0000";
    QTest::newRow("Underlined") << QVariant(false) << "Ubuntu 30pt weight 75 italic #ff0000";
    QTest::newRow("Size") << QVariant(10) << "Ubuntu 10pt weight 75 italic underlined #ff0000";
    QTest::newRow("Bold") << QVariant(false) << "Ubuntu 30pt weight 50 italic underlined #ff0000";
    QTest::newRow("Color") << QVariant("blue") << "Ubuntu 30pt weight 75 italic underlined #0000ff";
    QTest::newRow("Auto Size") << QVariant(true) << "Ubuntu 30pt weight 75 italic underlined #ff0000";
    QTest::newRow("Text Type") << QVariant("Period") << "Ubuntu 30pt weight 75 italic underlined #ff0000";
    QTest::newRow("Aligment") << QVariant(33) << "Ubuntu 30pt weight 75 italic underlined #ff0000";
}

void tst_TextFormat::formatsOneThingAlone()
{
    QFETCH(QVariant, value);
    const OneText one;
    one.setHtml("<p style='font-family:Ubuntu; font-size:30pt; color:red'><b><i><u>x</u></i></b></p>");
    one.text->setValue(QTest::currentDataTag(), value);
    QTEST(one.lines().constLast().mid(3), "look");
}

void tst_TextFormat::boldIsOneOfTwoWeights()
{
    const OneText one;
    one.setHtml("<span style='font-weight:900'>x</span>");
    one.text->setValue("Bold", true);
    QCOMPARE(one.editor->textCursor().charFormat().fontWeight(), 75);
    one.text->setValue("Bold", false);
    QCOMPARE(one.editor->textCursor().charFormat().fontWeight(), 50);
}

void tst_TextFormat::sizeIsInPointsWhateverItsType()
{
    const OneText one;
    for (const QVariant &size : {QVariant(20), QVariant(20.0), QVariant("20"), QVariant(19.6)}) {
        one.text->setValue("Size", 8);
        one.text->setValue("Size", size);
        QCOMPARE(one.editor->textCursor().charFormat().fontPointSize(), 20.0);
    }
}

void tst_TextFormat::fontWinsOverFamiliesOfTheText()
{
    const OneText one;
    one.setHtml("<span style=\"font-family:'First','Second'\">x</span>");
    one.text->setValue("Font", "Oswald");
    const QFont font = one.editor->textCursor().charFormat().font();
    QCOMPARE(font.families().value(0, font.family()), QString("Oswald"));
}

void tst_TextFormat::colourThatIsNoneIsPassedOn()
{
    const OneText one;
    one.text->setValue("Color", "no such colour");
    const QBrush brush = one.editor->textCursor().charFormat().foreground();
    QCOMPARE(brush.style(), Qt::SolidPattern);
    QVERIFY(!brush.color().isValid());
}

void tst_TextFormat::leavesNoSelectionAndTheTextAlone()
{
    const OneText one;
    for (const char *text : {"Score: 100", "12", ""}) {
        one.setHtml(text);
        for (const char *key : {"Bold", "Color", "Size", "Align_int", "Vertical_Top", "Vertical_Bottom"}) {
            one.text->setValue(key, 23);
            QVERIFY(!one.editor->textCursor().hasSelection());
            QCOMPARE(one.editor->toPlainText(), QString(text));
            QCOMPARE(one.editor->textCursor().position(), qMax(0, QString(text).size() - 4));
        }
    }
}

void tst_TextFormat::showsItsEditor()
{
    const OneText one;
    for (const char *key : {"Bold", "Align_int", "Text", "Horizontal_Left"}) {
        one.editor->hide();
        one.text->setValue(key, 23);
        QVERIFY2(!one.editor->isHidden(), key);
    }
}

void tst_TextFormat::cutsTheNewsOfTypingOff()
{
    const OneText one;
    connect(one.editor, &QTextEdit::textChanged, one.text, &TextOutput::ValignTop);
    one.text->setValue("Bold", true);
    const int margin = topMargin(one.frame);
    one.editor->insertPlainText("typed");
    QCOMPARE(topMargin(one.frame), margin);
    QVERIFY(margin > 0);
}

void tst_TextFormat::alignsEveryParagraph_data()
{
    QTest::addColumn<int>("code");
    const QList<int> codes = alignmentFlags().keys();
    for (const int code : codes)
        QTest::addRow("%d", code) << code;
}

void tst_TextFormat::alignsEveryParagraph()
{
    QFETCH(int, code);
    const OneText one;
    one.setHtml("<p>one</p><p align='right'>two</p><p></p>");
    one.text->setValue("Align_int", code);
    for (QTextBlock block = one.editor->document()->begin(); block.isValid(); block = block.next())
        QCOMPARE(int(block.blockFormat().alignment()), alignmentFlags().value(code));
}

void tst_TextFormat::numbersThatAreNoCodeAlignNothing_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("margin");

    QTest::newRow("none") << 0 << -1;
    QTest::newRow("top alone") << 1 << 0;
    QTest::newRow("unknown vertical part") << 15 << -1;
    QTest::newRow("unknown horizontal part") << 41 << 0;
    QTest::newRow("negative") << -13 << -1;
    QTest::newRow("largest") << 2147483647 << -1;
    QTest::newRow("smallest") << -2147483647 - 1 << -1;
}

void tst_TextFormat::numbersThatAreNoCodeAlignNothing()
{
    QFETCH(int, code);
    QFETCH(int, margin);
    const OneText one;
    const QStringList before = one.lines().mid(1);
    const int marginBefore = topMargin(one.frame);
    one.text->setValue("Align_int", code);
    QCOMPARE(one.lines().mid(1), before);
    QCOMPARE(topMargin(one.frame), margin < 0 ? marginBefore : margin);
}

void tst_TextFormat::placesTheTextInItsHeight_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("paragraphs");

    QTest::newRow("much room") << 300 << 1;
    QTest::newRow("odd room") << 301 << 1;
    QTest::newRow("some room") << 60 << 2;
    QTest::newRow("no room") << 20 << 5;
    QTest::newRow("hardly any height") << 1 << 1;
}

void tst_TextFormat::placesTheTextInItsHeight()
{
    QFETCH(int, height);
    QFETCH(int, paragraphs);
    const OneText one;
    one.frame->resize(200, height);
    one.setHtml(QString("<p>line</p>").repeated(paragraphs));
    const int room = height - one.contentHeight();
    for (const char *side : {"Horizontal_Left", "Horizontal_Center", "Horizontal_Right"}) {
        one.text->setValue(side, true);
        one.text->setValue("Vertical_Bottom", true);
        QCOMPARE(topMargin(one.frame), room > 0 ? room : 2);
        one.text->setValue("Vertical_Center", true);
        QCOMPARE(topMargin(one.frame), room > 0 ? (room >> 1) - 2 : 2);
        one.text->setValue("Vertical_Top", true);
        QCOMPARE(topMargin(one.frame), 0);
        QCOMPARE(height - one.contentHeight(), room);
    }
}

void tst_TextFormat::placesAnewWithAnotherHeight()
{
    const OneText one;
    one.text->setValue("Align_int", 13);
    const int content = one.contentHeight();
    for (const int height : {200, 90, 300}) {
        one.frame->resize(200, height);
        QCOMPARE(one.editor->size(), QSize(200, height));
        QCOMPARE(topMargin(one.frame), height - content);
    }
}

void tst_TextFormat::placesAnewWithAnotherWidth()
{
    const OneText one;
    one.setHtml("<p>many short words that go on to the next line when there is less room</p>");
    one.text->setValue("Align_int", 13);
    const int before = one.contentHeight();
    one.frame->resize(80, 300);
    QVERIFY(one.contentHeight() > before);
    QCOMPARE(topMargin(one.frame), 300 - one.contentHeight());
}

void tst_TextFormat::staysInPlaceWithoutText()
{
    const OneText one;
    one.setHtml("");
    const int margin = topMargin(one.frame);
    QCOMPARE(margin, ((100 - one.contentHeight()) >> 1) - 2);
    for (const char *key : {"Bold", "Italic", "Color"}) {
        one.text->setValue(key, true);
        QCOMPARE(topMargin(one.frame), margin);
    }
}

void tst_TextFormat::slotsPlaceTheText()
{
    const OneText one;
    const int room = 100 - one.contentHeight();
    QVERIFY(QMetaObject::invokeMethod(one.text, "ValignBottom"));
    QCOMPARE(topMargin(one.frame), room);
    QVERIFY(QMetaObject::invokeMethod(one.text, "ValignTop"));
    QCOMPARE(topMargin(one.frame), 0);
    QVERIFY(QMetaObject::invokeMethod(one.text, "ValignMiddle"));
    QCOMPARE(topMargin(one.frame), (room >> 1) - 2);
    // They place it once, they do not choose.
    QCOMPARE(one.text->getValue("Align_int"), QVariant(22));
}

void tst_TextFormat::placingIsSilent()
{
    const OneText one;
    const QSignalSpy changes(one.editor, &QTextEdit::textChanged);
    const QSignalSpy documentChanges(one.editor->document(), &QTextDocument::contentsChanged);
    one.text->ValignBottom();
    QCOMPARE(changes.size(), 0);
    QVERIFY(!documentChanges.isEmpty());
    QVERIFY(!one.editor->signalsBlocked());
}

void tst_TextFormat::textTakesTheAlignmentButNoStyle()
{
    const OneText one;
    one.text->setValue("Bold", true);
    one.text->setValue("Align_int", 33);
    one.setHtml("<p align='left'>new</p>");
    QVERIFY(one.lines().constLast().contains("weight 50"));
    QCOMPARE(int(one.editor->textCursor().blockFormat().alignment()), 0x42);
    QCOMPARE(topMargin(one.frame), 100 - one.contentHeight());
}

void tst_TextFormat::isWhatTheToolkitMakesStepByStep()
{
    for (quint32 start = 0; start < 60; ++start) {
        QJsonObject object = generatedText(start);
        // Others are shown in a font of boards, while the yardstick takes any of the desktop.
        if (object.value("Font") != "Arial")
            object.insert("Font", "Nowhere");
        const QSize size(object.value("W").toInt(), object.value("H").toInt());
        const OneText one;
        one.frame->setGeometry(QRect({0, 0}, size));
        Yardstick yardstick(size);
        for (const char *key :
             {"Text", "Font", "Size", "Bold", "Italic", "Underlined", "Align_int", "Color"}) {
            const QVariant value = asFilesGiveIt(object.value(key));
            one.text->setValue(key, value);
            yardstick.setValue(key, value);
            QCOMPARE(one.lines(), described(yardstick.document()));
        }
    }
}

void tst_TextFormat::readingAtOnceIsReadingOneByOne()
{
    for (quint32 start = 0; start < 100; ++start) {
        const QJsonObject object = generatedText(start);
        const OneText atOnce;
        const OneText oneByOne;
        atOnce.text->fromJson(object);
        const auto definitions = oneByOne.text->getValueNameTypeDefinition();
        for (const auto &definition : definitions)
            oneByOne.text->setValue(definition.first, asFilesGiveIt(object.value(definition.first)));
        QVERIFY2(atOnce.lines() == oneByOne.lines(),
                 qPrintable(QString("start %1:\n%2\nnot\n%3")
                                .arg(start)
                                .arg(atOnce.lines().join('\n'), oneByOne.lines().join('\n'))));
        QCOMPARE(atOnce.text->getValues(), oneByOne.text->getValues());
        QCOMPARE(atOnce.frame->geometry(), oneByOne.frame->geometry());
        QCOMPARE(atOnce.editor->textCursor().position(), oneByOne.editor->textCursor().position());
    }
}

void tst_TextFormat::readingTwiceIsReadingOneByOne()
{
    for (quint32 start = 0; start < 60; ++start) {
        const QJsonObject first = generatedText(start);
        const QJsonObject second = generatedText(start + 1000);
        const OneText atOnce;
        const OneText oneByOne;
        for (const QJsonObject &object : {first, second}) {
            atOnce.text->fromJson(object);
            const auto definitions = oneByOne.text->getValueNameTypeDefinition();
            for (const auto &definition : definitions)
                oneByOne.text->setValue(definition.first, asFilesGiveIt(object.value(definition.first)));
        }
        QCOMPARE(atOnce.lines(), oneByOne.lines());
    }
}

void tst_TextFormat::readingUnseenIsReadingInView()
{
    for (quint32 start = 0; start < 60; ++start) {
        QJsonArray texts;
        for (quint32 i = 0; i < 3; ++i)
            texts.append(generatedText(start * 3 + i));
        const QJsonObject layout = {{"items", texts},
                                    {"parameters", QJsonObject{{"Width", 800}, {"Height", 400}}}};
        Screen unseen;
        unseen.loadLayout(layout);
        // The first picture of a board that was never shown settles it.
        QVERIFY(!unseen.grab().isNull());
        const TextBoard board;
        board.screen()->loadLayout(layout);
        for (int i = 0; i < texts.size(); ++i) {
            const ScreenItem *shown = board.screen()->items().at(i);
            QCOMPARE(described(*editorIn(unseen.items().at(i))->document()),
                     described(*editorIn(shown)->document()));
        }
    }
}

int main(int argc, char **argv)
{
    // The toolkit's editor, which is compared with, sets points at the screen's resolution, a board always at
    // this one.
    qputenv("QT_FONT_DPI", "96");
    QApplication application(argc, argv);
    tst_TextFormat test;
    return runStrictly(test, argc, argv);
}

#include "tst_textformat.moc"
