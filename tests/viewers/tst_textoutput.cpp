#include "viewers/textoutput.h"

#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "pictures/datafields.h"
#include "tests/support/eventcounter.h"
#include "tests/support/strictmain.h"
#include "tests/viewers/textboard.h"
#include "viewers/customtexteditor.h"

#include <QMetaMethod>

namespace
{
const char newText[] = "<html><body><p align = \"center\" width = \"100%\">Text</p></body></html>";

const char *const buttonKeys[] = {"Vertical_Top",      "Vertical_Bottom", "Vertical_Center",
                                  "Horizontal_Center", "Horizontal_Left", "Horizontal_Right"};

/// Notes what a text tells, and its alignment at that moment.
class Listener : public QObject
{
public:
    explicit Listener(TextOutput *text)
    {
        connect(text, &TextOutput::valueChanged, this,
                [this, text](const QString &key, const QVariant &value) {
                    lines << key + ' ' + value.toString();
                    types << value.userType();
                    codes << text->getValue("Align_int").toInt();
                });
    }

    QStringList lines;
    QList<int> types;
    QList<int> codes;
};

QStringList &messages()
{
    static QStringList lines;
    return lines;
}

void noteMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    Q_UNUSED(type)
    Q_UNUSED(context)
    messages() << message;
}

/// The lines that the debug output gets while the action runs.
template <class Action>
QStringList messagesOf(Action action)
{
    messages().clear();
    const QtMessageHandler before = qInstallMessageHandler(noteMessage);
    action();
    qInstallMessageHandler(before);
    return messages();
}

/// A text at (30, 40) of 200 x 100 px on a canvas of 800 x 400 px.
struct OneText {
    TextBoard board;
    ScreenItem *frame = board.addText({30, 40, 200, 100});
    TextOutput *text = textIn(frame);
    Listener heard{text};
};

QString told(const QString &key, bool value)
{
    return key + (value ? " true" : " false");
}

/// What is told of a new code.
QStringList announcementOf(int code)
{
    const int vertical = code % 10;
    const int horizontal = code - vertical;
    return {told("Vertical_Top", vertical == 1),       told("Vertical_Bottom", vertical == 3),
            told("Vertical_Center", vertical == 2),    told("Horizontal_Center", horizontal == 20),
            told("Horizontal_Left", horizontal == 10), told("Horizontal_Right", horizontal == 30)};
}

void addCodes()
{
    QTest::addColumn<int>("code");
    for (const int code : {11, 12, 13, 21, 22, 23, 31, 32, 33})
        QTest::addRow("%d", code) << code;
}
} // namespace

class tst_TextOutput : public QObject
{
    Q_OBJECT

private slots:
    void definesItsParametersInOrder();
    void startsWithTheseValues();
    void takesGeometryFromItsFrame();
    void offersDataFieldsAlone();
    void hasSlotsForVerticalAlignment();

    void knowsLowerLimits();
    void knowsUpperLimits();

    void answersStrings_data();
    void answersStrings();
    void answersNumbersForGeometry();
    void answersEmptyTextForMissingKeys();
    void answersTheLiveAlignment_data();
    void answersTheLiveAlignment();
    void repaintsAtEveryReading();
    void repaintsWithEveryValue_data();
    void repaintsWithEveryValue();
    void tellsBeforeItShows_data();
    void tellsBeforeItShows();

    void announcesANewCode_data();
    void announcesANewCode();
    void announcesACodeThatIsTheCurrentOne();
    void announcesNumbersThatAreNoCode_data();
    void announcesNumbersThatAreNoCode();
    void storesACodeAsItCame();
    void appliesGeometryWithACode();

    void pressTellsItsAxisFirst_data();
    void pressTellsItsAxisFirst();
    void pressIgnoresItsValue();
    void pressStoresTheCodeInSilence();
    void pressAppliesNoGeometry();
    void repeatedPressIsStored_data();
    void repeatedPressIsStored();

    void textIsToldAndShown();
    void textAppliesNoGeometry();
    void otherValuesAreStoredInSilence_data();
    void otherValuesAreStoredInSilence();
    void geometryMovesTheFrame();
    void frameWritesGeometryIntoTheMap();
    void valuesRestoreGeometryButNotTheLook();
    void debugOutputNamesWhatRuns();

    void writesParametersAlone();
    void readsBackWhatItWrote();
    void readsMissingParametersAsNothing();
    void standsWithoutFrame();
};

void tst_TextOutput::definesItsParametersInOrder()
{
    using Parameters = ContentViewer::Parameters;
    const QVector<ContentViewer::Definition> expected = {
        {"Text", Parameters::Text},     {"Text Type", Parameters::Enum}, {"X", Parameters::Int},
        {"Y", Parameters::Int},         {"W", Parameters::Int},          {"H", Parameters::Int},
        {"Font", Parameters::Font},     {"Size", Parameters::Int},       {"Auto Size", Parameters::Check},
        {"Bold", Parameters::Check},    {"Italic", Parameters::Check},   {"Underlined", Parameters::Check},
        {"Align_int", Parameters::Int}, {"Color", Parameters::Color}};
    OneText one;
    QCOMPARE(one.text->getValueNameTypeDefinition(), expected);
}

void tst_TextOutput::startsWithTheseValues()
{
    ScreenItem frame(nullptr);
    frame.setGeometry(3, 4, 50, 60);
    TextOutput text(&frame);
    const QMap<QString, QVariant> expected = {
        {"Type", "Text"}, {"Text", newText}, {"Text Type", "Text"}, {"X", 3},          {"Y", 4},
        {"W", 50},        {"H", 60},         {"Font", "Arial"},     {"Size", 8},       {"Auto Size", true},
        {"Bold", false},  {"Italic", false}, {"Underlined", false}, {"Align_int", 11}, {"Color", "white"}};
    QCOMPARE(text.getValues(), expected);
    // The map disagrees with what is shown: on purpose.
    QCOMPARE(text.getValue("Align_int"), QVariant(22));
    QCOMPARE(text.getValue("Vertical_Center"), QVariant(true));
    QCOMPARE(text.getValue("Horizontal_Center"), QVariant(true));
}

void tst_TextOutput::takesGeometryFromItsFrame()
{
    OneText one;
    QCOMPARE(one.text->geometry(), QRect(0, 0, 200, 100));
    QCOMPARE(editorIn(one.frame)->parentWidget(), one.text);
    QCOMPARE(editorIn(one.frame)->geometry(), one.text->rect());
    QCOMPARE(editorIn(one.frame)->viewport()->size(), QSize(200, 100));
    QVERIFY(editorIn(one.frame)->isVisible());
    QVERIFY(editorIn(one.frame)->isReadOnly());
    QVERIFY(editorIn(one.frame)->acceptRichText());
    QCOMPARE(editorIn(one.frame)->toPlainText(), QString("Text"));
}

void tst_TextOutput::offersDataFieldsAlone()
{
    OneText one;
    QCOMPARE(one.text->getEnumsFor("Text Type"), DataFields::names());
    for (const char *key : {"Font", "Text", "Type", "text type", "Text Type ", ""})
        QCOMPARE(one.text->getEnumsFor(key), QStringList());
}

void tst_TextOutput::hasSlotsForVerticalAlignment()
{
    QStringList names;
    const QMetaObject &meta = TextOutput::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        names << meta.method(i).methodSignature();
    }
    QCOMPARE(names, QStringList({"ValignTop()", "ValignMiddle()", "ValignBottom()"}));
}

void tst_TextOutput::knowsLowerLimits()
{
    OneText one;
    for (const char *key : {"X", "Y", "W", "H"})
        QCOMPARE(one.text->getMinValue(key), QVariant(0));
    QCOMPARE(one.text->getMinValue("Size"), QVariant(1));
    for (const char *key : {"Font", "Text", "Align_int", "Bold", "Vertical_Top", "unknown", ""})
        QVERIFY(!one.text->getMinValue(key).isValid());
}

void tst_TextOutput::knowsUpperLimits()
{
    OneText one;
    QCOMPARE(one.text->getMaxValue("X"), QVariant(600));
    QCOMPARE(one.text->getMaxValue("Y"), QVariant(300));
    QCOMPARE(one.text->getMaxValue("W"), QVariant(770));
    QCOMPARE(one.text->getMaxValue("H"), QVariant(360));
    QCOMPARE(one.text->getMaxValue("Size"), QVariant(512));
    for (const char *key : {"Font", "Text", "Align_int", "Bold", "Vertical_Top", "unknown", ""})
        QVERIFY(!one.text->getMaxValue(key).isValid());
    one.frame->setGeometry(100, 50, 300, 200);
    QCOMPARE(one.text->getMaxValue("X"), QVariant(500));
    QCOMPARE(one.text->getMaxValue("H"), QVariant(350));
}

void tst_TextOutput::answersStrings_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("answer");

    QTest::newRow("Size") << QVariant(8) << "8";
    QTest::newRow("Font") << QVariant("Oswald") << "Oswald";
    QTest::newRow("Bold") << QVariant(true) << "true";
    QTest::newRow("Italic") << QVariant(false) << "false";
    QTest::newRow("Auto Size") << QVariant(false) << "false";
    QTest::newRow("Color") << QVariant("#123456") << "#123456";
    QTest::newRow("Text") << QVariant("<p>x</p>") << "<p>x</p>";
    QTest::newRow("Text Type") << QVariant("Game Clock") << "Game Clock";
    QTest::newRow("of its own") << QVariant(2.5) << "2.5";
    QTest::newRow("Underlined") << QVariant() << "";
}

void tst_TextOutput::answersStrings()
{
    QFETCH(QVariant, value);
    OneText one;
    one.text->setValue(QTest::currentDataTag(), value);
    const QVariant answer = one.text->getValue(QTest::currentDataTag());
    QCOMPARE(answer.userType(), int(QMetaType::QString));
    QTEST(answer.toString(), "answer");
    // What is stored keeps its type.
    QCOMPARE(one.text->getValues().value(QTest::currentDataTag()), value);
}

void tst_TextOutput::answersNumbersForGeometry()
{
    OneText one;
    QCOMPARE(one.text->getValue("X"), QVariant(30));
    QCOMPARE(one.text->getValue("Y"), QVariant(40));
    QCOMPARE(one.text->getValue("W"), QVariant(200));
    QCOMPARE(one.text->getValue("H"), QVariant(100));
    QCOMPARE(one.text->getValue("X").userType(), int(QMetaType::Int));
}

void tst_TextOutput::answersEmptyTextForMissingKeys()
{
    OneText one;
    const QVariant answer = one.text->getValue("no such key");
    QCOMPARE(answer.userType(), int(QMetaType::QString));
    QCOMPARE(answer.toString(), QString());
}

void tst_TextOutput::answersTheLiveAlignment_data()
{
    addCodes();
}

void tst_TextOutput::answersTheLiveAlignment()
{
    QFETCH(int, code);
    OneText one;
    one.text->setValue("Align_int", code);
    QCOMPARE(one.text->getValue("Align_int"), QVariant(code));
    QStringList answers;
    for (const char *key : buttonKeys) {
        const QVariant answer = one.text->getValue(key);
        QCOMPARE(answer.userType(), int(QMetaType::Bool));
        answers << told(key, answer.toBool());
    }
    QCOMPARE(answers, announcementOf(code));
}

void tst_TextOutput::repaintsAtEveryReading()
{
    OneText one;
    // What the editor covers would need no paint.
    editorIn(one.frame)->hide();
    QCoreApplication::processEvents();
    for (const char *key : {"X", "Align_int", "Text", "no such key"}) {
        const EventCounter paints(one.text, QEvent::Paint);
        one.text->getValue(key);
        QTRY_VERIFY(paints.count > 0);
    }
}

void tst_TextOutput::repaintsWithEveryValue_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("Align_int") << QVariant(13);
    QTest::newRow("Vertical_Top") << QVariant(true);
    QTest::newRow("Vertical_Center") << QVariant(false);
    QTest::newRow("Text") << QVariant("12:34");
    QTest::newRow("Auto Size") << QVariant(false);
}

void tst_TextOutput::repaintsWithEveryValue()
{
    QFETCH(QVariant, value);
    // Nobody listens: a listener that reads values would repaint as well.
    TextBoard board;
    ScreenItem *frame = board.addText({30, 40, 200, 100});
    // What changes inside the editor would paint the text beneath it.
    editorIn(frame)->move(1000, 1000);
    QCoreApplication::processEvents();
    const EventCounter paints(textIn(frame), QEvent::Paint);
    textIn(frame)->setValue(QTest::currentDataTag(), value);
    QTRY_VERIFY(paints.count > 0);
}

void tst_TextOutput::tellsBeforeItShows_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("stored");

    QTest::newRow("Text") << QVariant("12:34") << QVariant("12:34");
    // The code is stored behind the rest, after its buttons have been told.
    QTest::newRow("Align_int") << QVariant(13) << QVariant(11);
    QTest::newRow("Vertical_Bottom") << QVariant(true) << QVariant();
}

void tst_TextOutput::tellsBeforeItShows()
{
    OneText one;
    const auto shown = [&one] {
        return described(*editorIn(one.frame)->document());
    };
    const QStringList before = shown();
    QVariantList stored;
    QList<QStringList> shows;
    connect(one.text, &TextOutput::valueChanged, this, [&] {
        stored << one.text->getValues().value(QTest::currentDataTag());
        shows << shown();
    });
    QFETCH(QVariant, value);
    one.text->setValue(QTest::currentDataTag(), value);
    QVERIFY(!stored.isEmpty());
    for (int i = 0; i < stored.size(); ++i) {
        QTEST(stored.at(i), "stored");
        QCOMPARE(shows.at(i), before);
    }
    QVERIFY(shown() != before);
}

void tst_TextOutput::announcesANewCode_data()
{
    addCodes();
}

void tst_TextOutput::announcesANewCode()
{
    QFETCH(int, code);
    OneText one;
    one.text->setValue("Align_int", code);
    QCOMPARE(one.heard.lines, announcementOf(code));
    QCOMPARE(one.heard.types, QList<int>::fromVector(QVector<int>(6, QMetaType::Bool)));
    QCOMPARE(one.heard.codes, QList<int>::fromVector(QVector<int>(6, code)));
    QCOMPARE(one.text->getValues().value("Align_int"), QVariant(code));
    for (const char *key : buttonKeys)
        QVERIFY(!one.text->getValues().contains(key));
}

void tst_TextOutput::announcesACodeThatIsTheCurrentOne()
{
    OneText one;
    one.text->setValue("Align_int", 22);
    QCOMPARE(one.heard.lines, announcementOf(22));
    QCOMPARE(one.text->getValues().value("Align_int"), QVariant(22));
}

void tst_TextOutput::announcesNumbersThatAreNoCode_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("code");

    QTest::newRow("nothing") << QVariant() << 0;
    QTest::newRow("word") << QVariant("left") << 0;
    QTest::newRow("vertical part alone") << QVariant(3) << 3;
    QTest::newRow("horizontal part alone") << QVariant(30) << 30;
    QTest::newRow("unknown vertical part") << QVariant(19) << 19;
    QTest::newRow("unknown horizontal part") << QVariant(42) << 42;
    QTest::newRow("negative") << QVariant(-13) << -13;
    QTest::newRow("as files have it") << QVariant(13.0) << 13;
    QTest::newRow("digits") << QVariant("31") << 31;
}

void tst_TextOutput::announcesNumbersThatAreNoCode()
{
    QFETCH(QVariant, value);
    QFETCH(int, code);
    OneText one;
    one.text->setValue("Align_int", value);
    QCOMPARE(one.heard.lines, announcementOf(code));
    QCOMPARE(one.text->getValue("Align_int"), QVariant(code));
    QCOMPARE(one.text->getValues().value("Align_int"), value);
}

void tst_TextOutput::storesACodeAsItCame()
{
    OneText one;
    one.text->setValue("Align_int", "31");
    QCOMPARE(one.text->getValues().value("Align_int").userType(), int(QMetaType::QString));
}

void tst_TextOutput::appliesGeometryWithACode()
{
    OneText one;
    const QStringList log = messagesOf([&one] { one.text->setValue("Align_int", 13); });
    QCOMPARE(log.count("void TextOutput::anyValueChanged()"), 1);
}

void tst_TextOutput::pressTellsItsAxisFirst_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<int>("after");

    QTest::newRow("Vertical_Top") << 22
                                  << QStringList({"Vertical_Bottom false", "Vertical_Center false",
                                                  "Vertical_Top true"})
                                  << 21;
    QTest::newRow("Vertical_Bottom") << 22
                                     << QStringList({"Vertical_Top false", "Vertical_Center false",
                                                     "Vertical_Bottom true"})
                                     << 23;
    QTest::newRow("Vertical_Center") << 33
                                     << QStringList({"Vertical_Top false", "Vertical_Bottom false",
                                                     "Vertical_Center true"})
                                     << 32;
    QTest::newRow("Horizontal_Left") << 23
                                     << QStringList({"Horizontal_Right false", "Horizontal_Center false",
                                                     "Horizontal_Left true"})
                                     << 13;
    QTest::newRow("Horizontal_Right")
        << 11 << QStringList({"Horizontal_Left false", "Horizontal_Center false", "Horizontal_Right true"})
        << 31;
    QTest::newRow("Horizontal_Center")
        << 12 << QStringList({"Horizontal_Left false", "Horizontal_Right false", "Horizontal_Center true"})
        << 22;
}

void tst_TextOutput::pressTellsItsAxisFirst()
{
    QFETCH(int, before);
    OneText one;
    one.text->setValue("Align_int", before);
    Listener heard(one.text);
    one.text->setValue(QTest::currentDataTag(), true);
    QTEST(heard.lines, "lines");
    QCOMPARE(heard.types, QList<int>({QMetaType::Bool, QMetaType::Bool, QMetaType::Bool}));
    QCOMPARE(heard.codes, QList<int>({before, before, before}));
    QTEST(one.text->getValue("Align_int").toInt(), "after");
}

void tst_TextOutput::pressIgnoresItsValue()
{
    for (const QVariant &value : {QVariant(true), QVariant(false), QVariant(), QVariant("no")}) {
        OneText one;
        one.text->setValue("Vertical_Bottom", value);
        QCOMPARE(one.text->getValue("Align_int"), QVariant(23));
        QVERIFY(!one.text->getValues().contains("Vertical_Bottom"));
    }
}

void tst_TextOutput::pressStoresTheCodeInSilence()
{
    OneText one;
    one.text->setValue("Vertical_Bottom", true);
    QCOMPARE(one.text->getValues().value("Align_int"), QVariant(23));
    one.text->setValue("Horizontal_Right", true);
    QCOMPARE(one.text->getValues().value("Align_int"), QVariant(33));
    QCOMPARE(one.heard.lines.filter("Align_int"), QStringList());
    QCOMPARE(one.text->toJson().value("Align_int"), QJsonValue(33));
}

void tst_TextOutput::pressAppliesNoGeometry()
{
    OneText one;
    const QStringList log = messagesOf([&one] { one.text->setValue("Vertical_Top", true); });
    QVERIFY(!log.contains("void TextOutput::anyValueChanged()"));
}

void tst_TextOutput::repeatedPressIsStored_data()
{
    QTest::addColumn<int>("code");

    QTest::newRow("Vertical_Top") << 21;
    QTest::newRow("Vertical_Center") << 22;
    QTest::newRow("Vertical_Bottom") << 23;
    QTest::newRow("Horizontal_Left") << 11;
    QTest::newRow("Horizontal_Center") << 21;
    QTest::newRow("Horizontal_Right") << 31;
}

void tst_TextOutput::repeatedPressIsStored()
{
    QFETCH(int, code);
    const QString key = QTest::currentDataTag();
    OneText one;
    one.text->setValue("Align_int", code);
    Listener heard(one.text);
    const QStringList log = messagesOf([&] { one.text->setValue(key, false); });
    QCOMPARE(one.text->getValues().value(key), QVariant(false));
    QCOMPARE(heard.lines, QStringList());
    QCOMPARE(one.text->getValue(key), QVariant(true));
    QVERIFY(log.contains("void TextOutput::anyValueChanged()"));
}

void tst_TextOutput::textIsToldAndShown()
{
    OneText one;
    const QString html = "<p>12:00</p>";
    one.text->setValue("Text", html);
    QCOMPARE(one.heard.lines, QStringList("Text " + html));
    QCOMPARE(one.text->getValues().value("Text"), QVariant(html));
    QCOMPARE(editorIn(one.frame)->toPlainText(), QString("12:00"));

    one.text->setValue("Text", 42);
    QCOMPARE(one.text->getValues().value("Text"), QVariant(42));
    QCOMPARE(one.heard.types.last(), int(QMetaType::Int));
    QCOMPARE(editorIn(one.frame)->toPlainText(), QString("42"));
}

void tst_TextOutput::textAppliesNoGeometry()
{
    OneText one;
    const QStringList log = messagesOf([&one] { one.text->setValue("Text", "x"); });
    QVERIFY(!log.contains("void TextOutput::anyValueChanged()"));
}

void tst_TextOutput::otherValuesAreStoredInSilence_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("Text Type") << QVariant("V Player #3 Fouls");
    QTest::newRow("Font") << QVariant("Oswald");
    QTest::newRow("Size") << QVariant(33);
    QTest::newRow("Auto Size") << QVariant(false);
    QTest::newRow("Bold") << QVariant(true);
    QTest::newRow("Italic") << QVariant(true);
    QTest::newRow("Underlined") << QVariant(true);
    QTest::newRow("Color") << QVariant("blue");
    QTest::newRow("Type") << QVariant("Shape");
    QTest::newRow("something else") << QVariant(QStringList({"a", "b"}));
    QTest::newRow("") << QVariant(1);
}

void tst_TextOutput::otherValuesAreStoredInSilence()
{
    QFETCH(QVariant, value);
    OneText one;
    const QStringList log = messagesOf([&] { one.text->setValue(QTest::currentDataTag(), value); });
    QCOMPARE(one.text->getValues().value(QTest::currentDataTag()), value);
    QCOMPARE(one.heard.lines, QStringList());
    QVERIFY(log.contains("void TextOutput::anyValueChanged()"));
    QCOMPARE(one.frame->geometry(), QRect(30, 40, 200, 100));
}

void tst_TextOutput::geometryMovesTheFrame()
{
    OneText one;
    one.text->setValue("X", 77);
    QCOMPARE(one.frame->geometry(), QRect(77, 40, 200, 100));
    QCOMPARE(one.heard.lines, QStringList({"X 77", "W 200", "Y 40", "H 100"}));
    one.text->setValue("H", 55);
    QCOMPARE(one.frame->geometry(), QRect(77, 40, 200, 55));
    QCOMPARE(editorIn(one.frame)->size(), QSize(200, 55));
}

void tst_TextOutput::frameWritesGeometryIntoTheMap()
{
    OneText one;
    emit one.frame->newGeometry(QRect(1, 2, 3, 4));
    QCOMPARE(one.heard.lines, QStringList({"X 1", "W 3", "Y 2", "H 4"}));
    QCOMPARE(one.heard.types, QList<int>::fromVector(QVector<int>(4, QMetaType::Int)));
    const QMap<QString, QVariant> values = one.text->getValues();
    QCOMPARE(values.value("X"), QVariant(1));
    QCOMPARE(values.value("H"), QVariant(4));
}

void tst_TextOutput::valuesRestoreGeometryButNotTheLook()
{
    OneText one;
    const QStringList look = described(*editorIn(one.frame)->document()).mid(1);
    QMap<QString, QVariant> values = one.text->getValues();
    values.insert("Bold", true);
    values.insert("Text", "another");
    values.insert("X", 300);
    values.insert("W", 150);
    values.remove("Font");
    one.text->setValues(values);
    QCOMPARE(one.frame->geometry(), QRect(300, 40, 150, 100));
    QCOMPARE(described(*editorIn(one.frame)->document()).mid(1), look);
    QCOMPARE(one.text->getValues(), values);
}

void tst_TextOutput::debugOutputNamesWhatRuns()
{
    OneText one;
    const QStringList log = messagesOf([&one] { one.text->setValue("Bold", true); });
    // The leading blank is meant.
    QCOMPARE(log.first(), QString(" void TextOutput::setValue(QString key, QVariant value)"));
    QVERIFY(log.contains("void TextOutput::ValignMiddle()"));
    QCOMPARE(log.last(), QString("void TextOutput::anyValueChanged()"));
}

void tst_TextOutput::writesParametersAlone()
{
    OneText one;
    one.text->setValue("Vertical_Center", false);
    one.text->setValue("of its own", 1);
    const QJsonObject expected = {
        {"Type", "Text"}, {"Text", newText}, {"Text Type", "Text"}, {"X", 30},         {"Y", 40},
        {"W", 200},       {"H", 100},        {"Font", "Arial"},     {"Size", 8},       {"Auto Size", true},
        {"Bold", false},  {"Italic", false}, {"Underlined", false}, {"Align_int", 11}, {"Color", "white"}};
    QCOMPARE(one.text->toJson(), expected);
}

void tst_TextOutput::readsBackWhatItWrote()
{
    OneText one;
    QJsonObject object = textObject("Score", {10, 20, 300, 150});
    object.remove("ScreenItemName");
    QVERIFY(one.text->fromJson(object));
    QCOMPARE(one.text->toJson(), object);
    QCOMPARE(one.frame->geometry(), QRect(10, 20, 300, 150));
    // What was read is not rewritten by showing it.
    QCOMPARE(one.text->getValues().value("Text"), QVariant("<p>Away</p>"));
    QCOMPARE(one.text->getValue("Align_int"), QVariant(33));
    QCOMPARE(one.heard.lines.filter("Text"), QStringList("Text <p>Away</p>"));
    QCOMPARE(one.heard.lines.filter("_").size(), 6);
}

void tst_TextOutput::readsMissingParametersAsNothing()
{
    expectWarning("Point size <= 0");
    OneText one;
    QVERIFY(one.text->fromJson({{"Type", "Text"}}));
    QCOMPARE(editorIn(one.frame)->toPlainText(), QString());
    QCOMPARE(one.text->getValue("Align_int"), QVariant(0));
    const auto definitions = one.text->getValueNameTypeDefinition();
    for (const auto &definition : definitions) {
        if (definition.second != ContentViewer::Parameters::Int)
            QCOMPARE(one.text->getValue(definition.first).toString(), QString());
    }
}

void tst_TextOutput::standsWithoutFrame()
{
    TextOutput text(nullptr);
    text.setValue("Bold", true);
    text.setValue("Align_int", 33);
    text.setValue("Vertical_Top", true);
    QCOMPARE(text.getValue("Align_int"), QVariant(31));
    QCOMPARE(text.getValue("W"), QVariant(text.width()));
    QVERIFY(!text.getMaxValue("X").isValid());
    text.endEditing();
    QTest::mouseDClick(&text, Qt::LeftButton);
    QVERIFY(text.findChild<CustomTextEditor *>()->isReadOnly());
}

BOARDWRIGHT_TEST_MAIN(tst_TextOutput)
#include "tst_textoutput.moc"
