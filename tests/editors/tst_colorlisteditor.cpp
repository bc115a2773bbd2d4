#include "editors/colorlisteditor.h"

#include "tests/support/strictmain.h"

#include <QSignalSpy>

class tst_ColorListEditor : public QObject
{
    Q_OBJECT

private slots:
    void isNoValueEditor();
    void listsEveryNamedColor();
    void showsEachColorBesideItsName();
    void readsColorOfCurrentItem();
    void readsInvalidColorWithoutItem();
    void selectsItemOfWrittenColor();
    void selectsFirstOfItemsOfOneColor();
    void selectsNothingForUnlistedColor();
    void followsKeys();
    void tellsChosenColorOnce();
};

void tst_ColorListEditor::isNoValueEditor()
{
    QCOMPARE(ColorListEditor::staticMetaObject.superClass(), &QComboBox::staticMetaObject);
    const QMetaObject &meta = ColorListEditor::staticMetaObject;
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 1);
}

void tst_ColorListEditor::listsEveryNamedColor()
{
    const ColorListEditor editor;
    const QStringList names = QColor::colorNames();
    QCOMPARE(editor.count(), names.size());
    for (int i = 0; i < names.size(); ++i) {
        QCOMPARE(editor.itemText(i), names.at(i));
        QCOMPARE(editor.itemData(i).value<QColor>(), QColor(names.at(i)));
    }
}

void tst_ColorListEditor::showsEachColorBesideItsName()
{
    const ColorListEditor editor;
    for (int i = 0; i < editor.count(); ++i)
        QCOMPARE(editor.itemData(i, Qt::DecorationRole), editor.itemData(i));
}

void tst_ColorListEditor::readsColorOfCurrentItem()
{
    ColorListEditor editor;
    editor.setCurrentText("navy");
    QCOMPARE(editor.property("color").value<QColor>(), QColor(0, 0, 128));
    // The data counts, not the name.
    editor.setItemData(editor.currentIndex(), QColor(1, 2, 3));
    QCOMPARE(editor.color(), QColor(1, 2, 3));
}

void tst_ColorListEditor::readsInvalidColorWithoutItem()
{
    ColorListEditor editor;
    editor.setCurrentIndex(-1);
    QVERIFY(!editor.color().isValid());
}

void tst_ColorListEditor::selectsItemOfWrittenColor()
{
    ColorListEditor editor;
    QVERIFY(editor.setProperty("color", QColor(0, 0, 128)));
    QCOMPARE(editor.currentText(), QString("navy"));
    QCOMPARE(editor.color(), QColor(0, 0, 128));
    QVERIFY(editor.setProperty("color", QColor(Qt::transparent)));
    QCOMPARE(editor.currentText(), QString("transparent"));
}

void tst_ColorListEditor::selectsFirstOfItemsOfOneColor()
{
    ColorListEditor editor;
    editor.setColor(Qt::cyan);
    QCOMPARE(editor.currentText(), QString("aqua"));
}

void tst_ColorListEditor::selectsNothingForUnlistedColor()
{
    ColorListEditor editor;
    editor.setColor(QColor(1, 2, 3));
    QCOMPARE(editor.currentIndex(), -1);
    QVERIFY(!editor.color().isValid());
}

void tst_ColorListEditor::followsKeys()
{
    ColorListEditor editor;
    editor.show();
    QTest::keyClicks(&editor, "navy");
    QCOMPARE(editor.color(), QColor(0, 0, 128));
    QTest::keyClick(&editor, Qt::Key_Down);
    QCOMPARE(editor.color(), QColor("oldlace"));
}

void tst_ColorListEditor::tellsChosenColorOnce()
{
    ColorListEditor editor;
    const QSignalSpy changes(&editor, &ColorListEditor::colorChanged);
    editor.setColor(QColor(0, 0, 128));
    editor.setColor(QColor(0, 0, 128));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(0).value<QColor>(), QColor(0, 0, 128));
}

BOARDWRIGHT_TEST_MAIN(tst_ColorListEditor)
#include "tst_colorlisteditor.moc"
