#include "canvas/itemclipboard.h"
#include "tests/app/x11/displaymain.h"
#include "tests/app/x11/editorprocess.h"
#include "tests/app/x11/pointer.h"
#include "tests/support/boards.h"
#include "tests/support/files.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QMimeData>
#include <QScopedPointer>
#include <QTemporaryDir>

// Items go from one running editor to another over the display's own clipboard, which this program sees as a
// third one.
class tst_TwoEditors : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void exchangeItems_data();
    void exchangeItems();
    void cutItemsOutliveTheirBoard();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    bool startWith(QScopedPointer<EditorProcess> &editor, const QString &name, const QJsonArray &items);
    QJsonArray savedItems(const QString &name) const;

    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<EditorProcess> m_left;
    QScopedPointer<EditorProcess> m_right;
};

namespace
{
constexpr int patience = 40000; // milliseconds

QJsonObject text(const QString &name, const QRect &geometry, const QString &html)
{
    return shapeObject(name, geometry,
                       {{"Type", "Text"},
                        {"Text", html},
                        {"Text Type", "Text"},
                        {"Font", "Arial"},
                        {"Size", 14},
                        {"Bold", true},
                        {"Italic", false},
                        {"Underlined", true},
                        {"Auto Size", false},
                        {"Align_int", 22}});
}

QJsonArray texts()
{
    return {text("Gäste & \"Co\"", {20, 20, 200, 60},
                 QString::fromUtf8("<p>G\u00e4ste <b>12</b> \u2013 \u6f22</p>")),
            shapeObject("Bar", {10, 10, 300, 80}),
            text("", {100, 150, 120, 40}, "<p align=\"right\">Home<br>7</p>")};
}
const QMimeData *clipboardData()
{
    return QGuiApplication::clipboard()->mimeData();
}

QByteArray clipboardBytes()
{
    return clipboardData() ? clipboardData()->data("Screen/ItemsJson") : QByteArray();
}
} // namespace

void tst_TwoEditors::init()
{
    m_folder.reset(new QTemporaryDir);
}

void tst_TwoEditors::cleanup()
{
    m_left.reset();
    m_right.reset();
}

/// An editor in which the board of these items is open under the name.
bool tst_TwoEditors::startWith(QScopedPointer<EditorProcess> &editor, const QString &name,
                               const QJsonArray &items)
{
    editor.reset(new EditorProcess(BOARDWRIGHT_PROGRAM));
    return writeFile(path(name), QJsonDocument(board(items)).toJson()) &&
           editor->hasActiveWindow("Boardwright") && editor->open(path(name));
}

QJsonArray tst_TwoEditors::savedItems(const QString &name) const
{
    return QJsonDocument::fromJson(readFile(path(name))).object().value("items").toArray();
}

void tst_TwoEditors::exchangeItems_data()
{
    QTest::addColumn<QJsonArray>("items");
    QTest::newRow("a shape") << QJsonArray({shapeObject("Bar", {100, 50, 60, 40})});
    QTest::newRow("texts and a shape") << texts();
    // More than the display hands over in one piece.
    QTest::newRow("very many shapes") << manyShapes(1500);
}

void tst_TwoEditors::exchangeItems()
{
    QFETCH(QJsonArray, items);
    const QJsonObject other = shapeObject("Other", {0, 0, 30, 30});
    QVERIFY(startWith(m_left, "left.lay", items));
    QVERIFY(startWith(m_right, "right.lay", {other}));

    QVERIFY(m_left->activate() && pressKey("ctrl+a") && pressKey("ctrl+c") && pressKey("ctrl+s"));
    // What the first editor makes of the items is what every other gets, to the letter.
    QTRY_COMPARE_WITH_TIMEOUT(clipboardBytes(), QJsonDocument(savedItems("left.lay")).toJson(), patience);
    // Beside it stand only the words in which a display talks about a clipboard.
    QCOMPARE(clipboardData()->formats().filter("/"), QStringList("Screen/ItemsJson"));
    const QJsonArray copied = savedItems("left.lay");
    QCOMPARE(copied.size(), items.size());

    QVERIFY(m_right->activate() && pressKey("ctrl+v") && pressKey("ctrl+s"));
    QJsonArray expected = copied;
    expected.prepend(other);
    QTRY_COMPARE_WITH_TIMEOUT(savedItems("right.lay"), expected, patience);

    // And back: what was pasted is what is selected.
    QVERIFY(pressKey("ctrl+x") && pressKey("ctrl+s"));
    QTRY_COMPARE_WITH_TIMEOUT(savedItems("right.lay"), QJsonArray({other}), patience);
    QVERIFY(m_left->activate() && pressKey("ctrl+v") && pressKey("ctrl+s"));
    expected = copied;
    for (const QJsonValue &item : copied)
        expected.append(item);
    QTRY_COMPARE_WITH_TIMEOUT(savedItems("left.lay"), expected, patience);
}

void tst_TwoEditors::cutItemsOutliveTheirBoard()
{
    const QJsonObject item = shapeObject("Bar", {100, 50, 60, 40});
    QVERIFY(startWith(m_left, "left.lay", {item}));
    QVERIFY(pressKey("ctrl+a") && pressKey("ctrl+x"));
    QVERIFY(writeFile(path("next.lay"), QJsonDocument(board({})).toJson()));
    QTRY_COMPARE_WITH_TIMEOUT(ItemClipboard::items(), QJsonArray({item}), patience);
    QVERIFY(pressKey("ctrl+s"));
    QTRY_COMPARE_WITH_TIMEOUT(savedItems("left.lay"), QJsonArray(), patience);
    QVERIFY(m_left->open(path("next.lay")));
    QVERIFY(pressKey("ctrl+v") && pressKey("ctrl+s"));
    QTRY_COMPARE_WITH_TIMEOUT(savedItems("next.lay"), QJsonArray({item}), patience);
}

BOARDWRIGHT_DISPLAY_TEST_MAIN(tst_TwoEditors)
#include "tst_twoeditors.moc"
