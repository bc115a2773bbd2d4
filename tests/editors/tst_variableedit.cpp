#include "editors/variableedit.h"

#include "editors/checkedit.h"
#include "editors/coloredit.h"
#include "editors/enumedit.h"
#include "editors/filepathedit.h"
#include "editors/fontcoloredit.h"
#include "editors/fontfamilyedit.h"
#include "editors/intedit.h"
#include "editors/styledcheckedit.h"
#include "editors/textedit.h"

#include <QMetaMethod>
#include <QTest>

#include <type_traits>

Q_DECLARE_METATYPE(const QMetaObject *)

class tst_VariableEdit : public QObject
{
    Q_OBJECT

private slots:
    void isAbstractWidget();
    void declaresSignalsInTheirOrder();
    void answersLimitsAsVariants_data();
    void answersLimitsAsVariants();
    void everyEditorHasItsSlotByName_data();
    void everyEditorHasItsSlotByName();
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

void tst_VariableEdit::everyEditorHasItsSlotByName_data()
{
    QTest::addColumn<const QMetaObject *>("meta");
    QTest::addColumn<QByteArray>("signature");

    const auto add = [](const QMetaObject &meta, const QByteArray &signature) {
        QTest::addRow("%s, %s", meta.className(), signature.constData()) << &meta << signature;
    };
    add(IntEdit::staticMetaObject, "valueChanged(int)");
    add(TextEdit::staticMetaObject, "valueChanged(QString)");
    add(EnumEdit::staticMetaObject, "valueChanged(QString)");
    add(FontFamilyEdit::staticMetaObject, "valueChanged(QString)");
    add(CheckEdit::staticMetaObject, "valueChanged()");
    add(StyledCheckEdit::staticMetaObject, "valueChanged()");
    add(ColorEdit::staticMetaObject, "colorSelectorClicked()");
    add(FontColorEdit::staticMetaObject, "colorSelectorClicked()");
    add(FilePathEdit::staticMetaObject, "valueChanged(QString)");
    add(FilePathEdit::staticMetaObject, "selectFileButtonClicked(bool)");
}

void tst_VariableEdit::everyEditorHasItsSlotByName()
{
    QFETCH(const QMetaObject *, meta);
    QFETCH(QByteArray, signature);
    QVERIFY(meta->inherits(&VariableEdit::staticMetaObject));
    QVERIFY(meta->indexOfSlot(signature) >= 0);
}

QTEST_APPLESS_MAIN(tst_VariableEdit)
#include "tst_variableedit.moc"
