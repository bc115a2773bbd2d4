#include "editors/coloredit.h"

#include "model/applicationstyle.h"
#include "tests/editors/coloranswers.h"
#include "tests/editors/editlog.h"
#include "tests/support/strictmain.h"

#include <QHBoxLayout>
#include <QPushButton>

class tst_ColorEdit : public QObject
{
    Q_OBJECT

private slots:
    void tellsItsClass();
    void holdsItsButtonInAWidgetInOneRow();
    void keepsItsButtonAtTheLeft();
    void hasButtonOfTwentyPixels_data();
    void hasButtonOfTwentyPixels();
    void keepsKeyInItsButton();
    void hasStyleSheetToTheLetter();
    void paintsItsButtonInTheColor_data();
    void paintsItsButtonInTheColor();
    void tellsEditUnderItsLatestKey();
};

void tst_ColorEdit::tellsItsClass()
{
    const ColorEdit edit;
    QCOMPARE(edit.property("class").toString(), QString("ColorEdit"));
}

void tst_ColorEdit::holdsItsButtonInAWidgetInOneRow()
{
    const ColorEdit edit;
    const auto *row = qobject_cast<QHBoxLayout *>(edit.layout());
    QVERIFY(row);
    QCOMPARE(row->count(), 1);
    const auto *button = edit.findChild<QPushButton *>();
    QCOMPARE(row->itemAt(0)->widget(), button->parentWidget());
    QVERIFY(button->parentWidget() != &edit);
}

void tst_ColorEdit::keepsItsButtonAtTheLeft()
{
    ColorEdit edit;
    edit.resize(300, 30);
    edit.show();
    QCOMPARE(edit.findChild<QPushButton *>()->x(), 0);
}

void tst_ColorEdit::hasButtonOfTwentyPixels_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("styled");
    QTest::newRow("no key") << "" << false;
    QTest::newRow("long key") << "Background Color" << false;
    QTest::newRow("no key in the application's style") << "" << true;
    QTest::newRow("long key in the application's style") << "Background Color" << true;
}

void tst_ColorEdit::hasButtonOfTwentyPixels()
{
    QFETCH(QString, key);
    QFETCH(bool, styled);
    if (styled)
        applyApplicationStyle();
    ColorEdit edit;
    edit.setValue(key, "red");
    edit.resize(300, 100);
    edit.show();
    QCOMPARE(edit.findChild<QPushButton *>()->size(), QSize(20, 20));
    edit.resize(edit.minimumSizeHint());
    QCOMPARE(edit.findChild<QPushButton *>()->size(), QSize(20, 20));
    qApp->setStyleSheet({});
}

void tst_ColorEdit::keepsKeyInItsButton()
{
    ColorEdit edit;
    QCOMPARE(edit.getKey(), QString());
    edit.setValue("Border Color", "red");
    QCOMPARE(edit.findChild<QPushButton *>()->text(), QString("Border Color"));
    QCOMPARE(edit.getKey(), QString("Border Color"));
    edit.setValue("Color", "red");
    QCOMPARE(edit.getKey(), QString("Color"));
}

void tst_ColorEdit::hasStyleSheetToTheLetter()
{
    ColorEdit edit;
    const auto *button = edit.findChild<QPushButton *>();
    edit.setValue("Color", "Red");
    QCOMPARE(button->styleSheet(), QString("background-color:#ff0000"));
    edit.setValue("Color", "no such colour");
    QCOMPARE(button->styleSheet(), QString("background-color:#000000"));
}

void tst_ColorEdit::paintsItsButtonInTheColor_data()
{
    QTest::addColumn<bool>("styled");
    QTest::newRow("plain") << false;
    QTest::newRow("in the application's style") << true;
}

void tst_ColorEdit::paintsItsButtonInTheColor()
{
    QFETCH(bool, styled);
    if (styled)
        applyApplicationStyle();
    ColorEdit edit;
    edit.setValue("Border Color", "#12ab9f");
    edit.show();
    const QImage picture = edit.findChild<QPushButton *>()->grab().toImage();
    // Every pixel within the border: the text is not painted.
    for (int y = 3; y < 17; ++y)
        for (int x = 3; x < 17; ++x)
            QCOMPARE(picture.pixel(x, y), qRgb(0x12, 0xab, 0x9f));
    qApp->setStyleSheet({});
}

void tst_ColorEdit::tellsEditUnderItsLatestKey()
{
    ColorEdit edit;
    edit.setValue("Color", "red");
    edit.setValue("Border Color", "red");
    edit.show();
    EditLog log(&edit);
    DialogAnswers answers;
    typeColor(answers, "#0000ff");
    QTest::mouseClick(edit.findChild<QPushButton *>(), Qt::LeftButton);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Border Color QString #0000ff"));
    QCOMPARE(edit.findChild<QPushButton *>()->styleSheet(), QString("background-color:#0000ff"));
}

BOARDWRIGHT_TEST_MAIN(tst_ColorEdit)
#include "tst_coloredit.moc"
