#include "canvas/layoutwidget.h"

#include "tests/support/strictmain.h"

#include <QPointer>
#include <QTest>

class tst_LayoutWidget : public QObject
{
    Q_OBJECT

private slots:
    void isPlainWidget();
    void belongsToParent();
};

void tst_LayoutWidget::isPlainWidget()
{
    const LayoutWidget widget;
    const QMetaObject *type = widget.metaObject();
    QCOMPARE(type->className(), "LayoutWidget");
    QCOMPARE(type->superClass()->className(), "QWidget");
    QCOMPARE(type->methodCount(), type->methodOffset());
    QVERIFY(!widget.parent());
    QVERIFY(!widget.layout());
    QVERIFY(widget.children().isEmpty());
}

void tst_LayoutWidget::belongsToParent()
{
    QWidget parent;
    QPointer<LayoutWidget> widget = new LayoutWidget(&parent);
    QCOMPARE(widget->parentWidget(), &parent);
    delete widget;
    QVERIFY(parent.children().isEmpty());
}

BOARDWRIGHT_TEST_MAIN(tst_LayoutWidget)
#include "tst_layoutwidget.moc"
