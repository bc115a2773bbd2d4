#include "editors/variableedit.h"

#include <QMetaMethod>
#include <QTest>

#include <type_traits>

class tst_VariableEdit : public QObject
{
    Q_OBJECT

private slots:
    void isAbstractWidget();
    void declaresSignalsInTheirOrder();
    void answersLimitsAsVariants_data();
    void answersLimitsAsVariants();
};

void tst_VariableEdit::isAbstractWidget()
{
    QVERIFY(std::is_abstract_v<VariableEdit>);
    QCOMPARE(VariableEdit::staticMetaObject.superClass(), &QWidget::staticMetaObject);
}

void tst_VariableEdit::declaresSignalsInTheirOrder()
{
    const QMetaObject &meta = VariableEdit::staticMetaObject;
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            signatures << meta.method(i).methodSignature();
    }
    QCOMPARE(signatures,
             QStringList({"valueEdited(QString,QVariant)", "getMin(QString)", "getMax(QString)"}));
}

void tst_VariableEdit::answersLimitsAsVariants_data()
{
    QTest::addColumn<QByteArray>("signature");

    QTest::newRow("lower") << QByteArray("getMin(QString)");
    QTest::newRow("upper") << QByteArray("getMax(QString)");
}

void tst_VariableEdit::answersLimitsAsVariants()
{
    QFETCH(QByteArray, signature);
    const QMetaObject &meta = VariableEdit::staticMetaObject;
    QCOMPARE(meta.method(meta.indexOfSignal(signature)).returnType(), int(QMetaType::QVariant));
}

QTEST_APPLESS_MAIN(tst_VariableEdit)
#include "tst_variableedit.moc"
