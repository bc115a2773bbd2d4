#include "canvas/itemclipboard.h"
#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "model/layoutfile.h"
#include "tests/canvas/shownscreen.h"
#include "tests/support/boards.h"
#include "tests/support/sanitized.h"
#include "tests/support/strictmain.h"
#include "viewers/contentfactory.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QMimeData>
#include <QRandomGenerator>
#include <QUrl>

/// Whatever another program puts on the clipboard: a paste either makes items or leaves the board alone.
class tst_HostileClipboard : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void ignoresOtherFormats_data();
    void ignoresOtherFormats();
    void ignoresNoise_data();
    void ignoresNoise();
    void survivesADamagedPayload_data();
    void survivesADamagedPayload();
    void ignoresWhatIsNestedTooDeep();
    void survivesDeeplyNestedValues_data();
    void survivesDeeplyNestedValues();
    void survivesLargePayloads_data();
    void survivesLargePayloads();
    void refusesPayloadsBeyondAllMeasure();
    void takesAsManyItemsAsFit();
    void survivesValuesOfEveryType_data();
    void survivesValuesOfEveryType();

private:
    Screen &screen() const { return *m_screen; }
    void paste(const QByteArray &bytes);
    void verifyUntouched() const;
    void verifySound();

    QScopedPointer<Screen> m_screen;
};

namespace
{
const char *const format = "Screen/ItemsJson";
constexpr int megabyte = 1024 * 1024;

QByteArray payload(const QJsonArray &items)
{
    return QJsonDocument(items).toJson();
}

QByteArray noise(quint32 start)
{
    QRandomGenerator random(start);
    QByteArray bytes(random.bounded(1, 5000), '\0');
    for (char &byte : bytes)
        byte = char(random.bounded(256));
    return bytes;
}

/// A few bytes overwritten, or the end cut off.
QByteArray damaged(QByteArray bytes, QRandomGenerator &random)
{
    const QByteArray marks("[]{}\":,0919-.eE\\u\x80\xff tfn");
    for (int hits = random.bounded(1, 6); hits > 0; --hits)
        bytes[random.bounded(bytes.size())] = marks.at(random.bounded(marks.size()));
    if (random.bounded(4) == 0)
        bytes.truncate(random.bounded(bytes.size()));
    return bytes;
}

QJsonValue nested(int depth, bool inObjects)
{
    QJsonValue value = 1;
    for (int level = 0; level < depth; ++level)
        value = inObjects ? QJsonValue(QJsonObject({{"a", value}})) : QJsonValue(QJsonArray({value}));
    return value;
}

/// One item of each kind that a paste makes, with every key that it has.
QJsonArray oneOfEachKind()
{
    Screen screen;
    QJsonArray objects;
    const auto types = ContentFactory::clickableTypes();
    for (const auto &type : types)
        objects.append(screen.createItem({{"Type", type.first}})->toJson());
    return objects;
}

/// Every item once for each of its keys, with the value under that key.
QJsonArray withValueUnderEveryKey(const QJsonValue &value)
{
    QJsonArray objects;
    const QJsonArray whole = oneOfEachKind();
    for (const QJsonValue &one : whole) {
        const QStringList keys = one.toObject().keys();
        for (const QString &key : keys) {
            QJsonObject object = one.toObject();
            object.insert(key, value);
            objects.append(object);
        }
    }
    return objects;
}

QByteArray saved(Screen &screen)
{
    return QJsonDocument(screen.saveLayout()).toJson();
}

QByteArray savedAfterLoading(const QByteArray &layout)
{
    Screen screen;
    screen.loadLayout(QJsonDocument::fromJson(layout).object());
    return saved(screen);
}
} // namespace

void tst_HostileClipboard::initTestCase()
{
    QLoggingCategory::setFilterRules("default.debug=false");
    // Remarks of the toolkit about a letter's size and about a path that no file can have.
    tolerateWarnings("QFont::setPointSizeF: Point size <= 0");
    tolerateWarnings("Broken filename passed to function");
}

void tst_HostileClipboard::init()
{
    QGuiApplication::clipboard()->clear();
    m_screen.reset(new Screen);
    screen().loadLayout(board(manyShapes(3)));
    screen().items().at(1)->select();
}

void tst_HostileClipboard::cleanup()
{
    m_screen.reset();
    QGuiApplication::clipboard()->clear();
}

void tst_HostileClipboard::paste(const QByteArray &bytes)
{
    auto *data = new QMimeData;
    data->setData(format, bytes);
    QGuiApplication::clipboard()->setMimeData(data);
    screen().pasteShortcutActivated();
}

void tst_HostileClipboard::verifyUntouched() const
{
    QCOMPARE(namesOf(screen().items()), QStringList({"Item 0", "Item 1", "Item 2"}));
    QCOMPARE(screen().selection(), screen().items().mid(1, 1));
    QVERIFY(!screen().isModified());
}

void tst_HostileClipboard::verifySound()
{
    QVERIFY(selectionIsConsistent(screen()));
    QCOMPARE(screen().findChildren<ScreenItem *>(QString(), Qt::FindDirectChildrenOnly), screen().items());
    QCOMPARE(namesOf(screen().items().mid(0, 3)), QStringList({"Item 0", "Item 1", "Item 2"}));
    const QByteArray once = savedAfterLoading(saved(screen()));
    QCOMPARE(savedAfterLoading(once), once);
}

void tst_HostileClipboard::ignoresOtherFormats_data()
{
    QTest::addColumn<QString>("type");
    for (const char *type : {"", "text/plain", "application/json", "Screen/ItemsJson2", "screen/screenItem",
                             "Screen/ItemsJson;charset=utf-8", "Screen"})
        QTest::newRow(*type ? type : "none") << QString(type);
}

void tst_HostileClipboard::ignoresOtherFormats()
{
    QFETCH(QString, type);
    auto *data = new QMimeData;
    data->setData(type, payload(manyShapes(1)));
    data->setImageData(QImage(4, 4, QImage::Format_RGB32));
    data->setHtml("<p>Home 12</p>");
    data->setUrls({QUrl("file:///tmp/board.lay")});
    QGuiApplication::clipboard()->setMimeData(data);
    screen().pasteShortcutActivated();
    verifyUntouched();
}

void tst_HostileClipboard::ignoresNoise_data()
{
    QTest::addColumn<QByteArray>("bytes");
    for (quint32 start = 1; start <= 50; ++start)
        QTest::addRow("start %u", start) << noise(start);
    QTest::newRow("marks of an encoding alone") << QByteArray("\xef\xbb\xbf\xff\xfe");
    QTest::newRow("sixteen bits for each letter")
        << QByteArray(reinterpret_cast<const char *>(u"[{\"Type\":\"Shape\"}]"), 36);
    QTest::newRow("end of text within") << QByteArray("[{\"Type\":\"Shape\"}\0]", 19);
    QTest::newRow("not closed") << QByteArray("[{\"Type\":\"Shape\"}");
    QTest::newRow("comma too many") << QByteArray("[{\"Type\":\"Shape\"},]");
    QTest::newRow("more than one document") << QByteArray("[{\"Type\":\"Shape\"}][]");
    QTest::newRow("a text") << QByteArray("\"Shape\"");
    QTest::newRow("nothing") << QByteArray("null");
}

void tst_HostileClipboard::ignoresNoise()
{
    QFETCH(QByteArray, bytes);
    paste(bytes);
    verifyUntouched();
}

void tst_HostileClipboard::survivesADamagedPayload_data()
{
    QTest::addColumn<quint32>("start");
    for (quint32 start = 1; start <= 5; ++start)
        QTest::addRow("start %u", start) << start;
}

void tst_HostileClipboard::survivesADamagedPayload()
{
    QFETCH(quint32, start);
    QRandomGenerator random(start);
    const QByteArray whole = payload(oneOfEachKind());
    for (int round = 0; round < 60; ++round)
        paste(damaged(whole, random));
    // Some of the damage is such that items come of it all the same.
    QVERIFY(screen().items().size() > 3);
    verifySound();
}

void tst_HostileClipboard::ignoresWhatIsNestedTooDeep()
{
    for (const char *start : {"[", "{\"a\":", "[{\"Type\":"}) {
        paste(QByteArray(start).repeated(100000));
        verifyUntouched();
    }
}

void tst_HostileClipboard::survivesDeeplyNestedValues_data()
{
    QTest::addColumn<QJsonValue>("value");
    // The reader takes no more than 1,024 levels.
    QTest::newRow("arrays") << nested(1000, false);
    QTest::newRow("objects") << nested(1000, true);
}

void tst_HostileClipboard::survivesDeeplyNestedValues()
{
    QFETCH(QJsonValue, value);
    const QJsonArray items = withValueUnderEveryKey(value);
    paste(payload(items));
    // All but those whose kind is spoilt.
    QCOMPARE(screen().items().size(), 3 + items.size() - oneOfEachKind().size());
    verifySound();
}

void tst_HostileClipboard::survivesLargePayloads_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QByteArray>("repeated");
    QTest::addColumn<QByteArray>("end");
    QTest::addColumn<int>("made");
    const auto row = [](const char *name, const char *start, const char *repeated, const char *end,
                        int made) {
        QTest::newRow(name) << QByteArray(start) << QByteArray(repeated) << QByteArray(end) << made;
    };
    row("blanks", "", " ", "", 0);
    row("brackets", "", "[", "", 0);
    row("a text that does not end", "[\"", "x", "", 0);
    row("a long name", "[{\"Type\":\"Shape\",\"ScreenItemName\":\"", "x", "\"}]", 1);
    row("a long kind", "[{\"Type\":\"", "x", "\"}]", 0);
    row("a long colour", "[{\"Type\":\"Shape\",\"Color\":\"", "x", "\"}]", 1);
    row("a long text", "[{\"Type\":\"Text\",\"Text\":\"", "x", "\"}]", 1);
    row("a long path", "[{\"Type\":\"Image Viewer\",\"File Path\":\"", "x", "\"}]", 1);
    row("numbers", "[", "1,", "1]", 0);
    row("empty objects", "[", "{},", "{}]", 0);
}

void tst_HostileClipboard::survivesLargePayloads()
{
    QFETCH(QByteArray, start);
    QFETCH(QByteArray, repeated);
    QFETCH(QByteArray, end);
    QFETCH(int, made);
    paste(start + repeated.repeated(scaled(50, 5) * megabyte / repeated.size()) + end);
    QCOMPARE(screen().items().size(), 3 + made);
    QVERIFY(selectionIsConsistent(screen()));
    QVERIFY(screen().grab().width() > 0);
}

void tst_HostileClipboard::refusesPayloadsBeyondAllMeasure()
{
    QByteArray bytes = payload({shapeObject("A", QRect(0, 0, 50, 50))});
    const int length = bytes.size();
    bytes.append(QByteArray(256 * megabyte - length, ' '));
    paste(bytes);
    QCOMPARE(screen().items().size(), 4);
    screen().items().at(1)->activate();
    paste(bytes + ' ');
    QCOMPARE(screen().items().size(), 4);
    QCOMPARE(screen().selection(), screen().items().mid(1, 1));
}

void tst_HostileClipboard::takesAsManyItemsAsFit()
{
    // Where everything is slow the limit's own test has to do.
    const int count = scaled(100000, 3000);
    const int made = qMin(count, LayoutFile::maximumItems - 3);
    paste("[" + QByteArray("{\"Type\":\"Shape\",\"W\":5,\"H\":5},").repeated(count - 1) +
          "{\"Type\":\"Shape\"}]");
    QCOMPARE(screen().items().size(), 3 + made);
    QCOMPARE(screen().selection(), screen().items().mid(3));
    screen().deleteSelection();
    deleteScheduled();
    QCOMPARE(screen().items().size(), 3);
}

void tst_HostileClipboard::survivesValuesOfEveryType_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::newRow("null") << QJsonValue();
    QTest::newRow("true") << QJsonValue(true);
    QTest::newRow("zero") << QJsonValue(0);
    QTest::newRow("negative") << QJsonValue(-7);
    QTest::newRow("fraction") << QJsonValue(0.5);
    QTest::newRow("as large as an int") << QJsonValue(2147483647);
    QTest::newRow("less than any int") << QJsonValue(-2147483649.0);
    QTest::newRow("as large as can be") << QJsonValue(1.7e308);
    QTest::newRow("tiny") << QJsonValue(5e-324);
    QTest::newRow("empty text") << QJsonValue("");
    QTest::newRow("text") << QJsonValue("Home 12");
    QTest::newRow("number as text") << QJsonValue("12");
    QTest::newRow("markup") << QJsonValue("<table><tr><td rowspan=-1 width=99999999>x<img src=\"x.png\">");
    QTest::newRow("half of a pair") << QJsonValue(QString(QChar(0xd800)));
    QTest::newRow("end of text") << QJsonValue(QString(3, QChar(0)));
    QTest::newRow("empty array") << QJsonValue(QJsonArray());
    QTest::newRow("array") << QJsonValue(QJsonArray({1, "a", true}));
    QTest::newRow("object") << QJsonValue(QJsonObject({{"Type", "Shape"}}));
}

void tst_HostileClipboard::survivesValuesOfEveryType()
{
    QFETCH(QJsonValue, value);
    const QJsonArray items = withValueUnderEveryKey(value);
    paste(payload(items));
    QCOMPARE(screen().items().size(), 3 + items.size() - oneOfEachKind().size());
    QVERIFY(screen().grab().width() > 0);
    verifySound();
}

BOARDWRIGHT_TEST_MAIN(tst_HostileClipboard)
#include "tst_hostileclipboard.moc"
