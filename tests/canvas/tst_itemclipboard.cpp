#include "canvas/itemclipboard.h"
#include "tests/support/boards.h"
#include "tests/support/strictmain.h"

#include <QClipboard>
#include <QJsonDocument>
#include <QMimeData>

class tst_ItemClipboard : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void carriesOneFormatAndNoOther();
    void writesTheIndentedForm();
    void answersWhatWasPut();
    void readsWhatOthersPut_data();
    void readsWhatOthersPut();
    void isEmptyWithoutOurFormat();
    void isEmptyOnAnEmptyClipboard();
};

namespace
{
const char *const format = "Screen/ItemsJson";

const QMimeData *clipboardData()
{
    return QGuiApplication::clipboard()->mimeData(QClipboard::Clipboard);
}

void putBytes(const QByteArray &bytes)
{
    auto *data = new QMimeData;
    data->setData(format, bytes);
    QGuiApplication::clipboard()->setMimeData(data, QClipboard::Clipboard);
}
} // namespace

void tst_ItemClipboard::init()
{
    QGuiApplication::clipboard()->clear(QClipboard::Clipboard);
}

void tst_ItemClipboard::carriesOneFormatAndNoOther()
{
    ItemClipboard::put(manyShapes(1));
    QCOMPARE(clipboardData()->formats(), QStringList(format));
}

void tst_ItemClipboard::writesTheIndentedForm()
{
    const QJsonArray items = manyShapes(2);
    ItemClipboard::put(items);
    const QByteArray bytes = clipboardData()->data(format);
    QCOMPARE(bytes, QJsonDocument(items).toJson(QJsonDocument::Indented));
    QVERIFY(bytes.startsWith("[\n    {\n        \"Align\": \"Top\","));
}

void tst_ItemClipboard::answersWhatWasPut()
{
    const QJsonArray items = manyShapes(3);
    ItemClipboard::put(items);
    QCOMPARE(ItemClipboard::items(), items);
    QCOMPARE(ItemClipboard::items(), items);
}

void tst_ItemClipboard::readsWhatOthersPut_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QJsonArray>("items");
    QTest::newRow("compact array") << QByteArray("[1,\"two\"]") << QJsonArray({1, "two"});
    QTest::newRow("empty array") << QByteArray("[]") << QJsonArray();
    QTest::newRow("object") << QByteArray("{\"items\": [1]}") << QJsonArray();
    QTest::newRow("text that is no JSON") << QByteArray("Home 12") << QJsonArray();
    QTest::newRow("cut short") << QByteArray("[{\"Type\": \"Shape\"}, ") << QJsonArray();
    QTest::newRow("no bytes") << QByteArray() << QJsonArray();
    QTest::newRow("zero bytes") << QByteArray(100, '\0') << QJsonArray();
    QTest::newRow("too deep") << QByteArray(100000, '[') << QJsonArray();
}

void tst_ItemClipboard::readsWhatOthersPut()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QJsonArray, items);
    putBytes(bytes);
    QCOMPARE(ItemClipboard::items(), items);
}

void tst_ItemClipboard::isEmptyWithoutOurFormat()
{
    QGuiApplication::clipboard()->setText("[{\"Type\": \"Shape\"}]");
    QCOMPARE(ItemClipboard::items(), QJsonArray());
}

void tst_ItemClipboard::isEmptyOnAnEmptyClipboard()
{
    QCOMPARE(ItemClipboard::items(), QJsonArray());
}

BOARDWRIGHT_TEST_MAIN(tst_ItemClipboard)
#include "tst_itemclipboard.moc"
