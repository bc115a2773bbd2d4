#include "toolbars/dragitem.h"

#include "tests/canvas/shownscreen.h"
#include "tests/support/strictmain.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QPointer>

// The drag that carries a kind of item.
class tst_DragItem : public QObject
{
    Q_OBJECT

private slots:
    void hasNoSignalsOrSlots();
    void startsWithAnEmptyKind();
    void carriesTheTypeName_data();
    void carriesTheTypeName();
    void anotherKindReplacesTheOneBefore();
    void belongsToItsSource();
    void ownsItsData();
    void isUnderstoodByTheCanvas();
};

namespace
{
const auto format = QStringLiteral("screen/screenItem");
}

void tst_DragItem::hasNoSignalsOrSlots()
{
    const QMetaObject &meta = DragItem::staticMetaObject;
    QCOMPARE(meta.className(), "DragItem");
    QCOMPARE(meta.superClass()->className(), "QDrag");
    QCOMPARE(meta.methodCount(), meta.methodOffset());
}

void tst_DragItem::startsWithAnEmptyKind()
{
    QObject source;
    const auto *drag = new DragItem(&source);
    QCOMPARE(drag->mimeData()->formats(), QStringList(format));
    QCOMPARE(drag->mimeData()->data(format), QByteArray());
}

void tst_DragItem::carriesTheTypeName_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("shape") << "Shape" << QByteArray("Shape");
    QTest::newRow("two words") << "Image Viewer" << QByteArray("Image Viewer");
    QTest::newRow("other letters") << QString(QChar(0xe9)) + QChar(0x20ac)
                                   << QByteArray("\xc3\xa9\xe2\x82\xac");
    QTest::newRow("none") << QString() << QByteArray();
}

void tst_DragItem::carriesTheTypeName()
{
    QFETCH(QString, type);
    QFETCH(QByteArray, bytes);

    QObject source;
    auto *drag = new DragItem(&source);
    drag->setItemType(type);
    QCOMPARE(drag->mimeData()->data(format), bytes);
    QCOMPARE(drag->mimeData()->formats(), QStringList(format));
}

void tst_DragItem::anotherKindReplacesTheOneBefore()
{
    QObject source;
    auto *drag = new DragItem(&source);
    drag->setItemType("Image Viewer");
    drag->setItemType("Text");
    QCOMPARE(drag->mimeData()->data(format), QByteArray("Text"));
}

void tst_DragItem::belongsToItsSource()
{
    QObject source;
    const auto *drag = new DragItem(&source);
    QCOMPARE(drag->parent(), &source);
    QCOMPARE(drag->source(), &source);
}

void tst_DragItem::ownsItsData()
{
    QPointer<QMimeData> data;
    {
        QObject source;
        data = (new DragItem(&source))->mimeData();
        QVERIFY(data);
    }
    QVERIFY(!data);
}

void tst_DragItem::isUnderstoodByTheCanvas()
{
    ShownScreen shown;
    QVERIFY(shown.ready);
    QObject source;
    auto *drag = new DragItem(&source);
    drag->setItemType("Shape");
    QDragEnterEvent enter({40, 30}, Qt::CopyAction, drag->mimeData(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&shown.screen, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(40, 30), Qt::CopyAction, drag->mimeData(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&shown.screen, &drop);
    QCOMPARE(shown.screen.items().size(), 1);
    QCOMPARE(shown.screen.items().first()->geometry(), QRect(40, 30, 100, 50));
    QCOMPARE(shown.screen.items().first()->getValue("Type").toString(), QString("Shape"));
}

BOARDWRIGHT_TEST_MAIN(tst_DragItem)
#include "tst_dragitem.moc"
