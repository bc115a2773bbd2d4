#include "editors/fontcoloredit.h"

#include "tests/editors/coloranswers.h"
#include "tests/editors/editlog.h"
#include "tests/support/strictmain.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolButton>

namespace
{
bool shows(const QImage &picture, const QColor &color)
{
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixel(x, y) == color.rgb())
                return true;
    return false;
}
} // namespace

class tst_FontColorEdit : public QObject
{
    Q_OBJECT

private slots:
    void tellsItsClass();
    void holdsItsButtonInOneRow();
    void keepsItsCaptionWhateverTheKey();
    void answersItsCaptionAsKey();
    void tellsEditUnderItsStoredKey();
    void hasStyleSheetToTheLetter();
    void paintsItsLetterInTheColor();
    void showsThatItHasTheFocus();
};

void tst_FontColorEdit::tellsItsClass()
{
    const FontColorEdit edit;
    QCOMPARE(edit.property("class").toString(), QString("FontColorEdit"));
}

void tst_FontColorEdit::holdsItsButtonInOneRow()
{
    const FontColorEdit edit;
    const auto *row = qobject_cast<QHBoxLayout *>(edit.layout());
    QVERIFY(row);
    QCOMPARE(row->count(), 1);
    QVERIFY(edit.findChild<QToolButton *>());
    QCOMPARE(row->itemAt(0)->widget(), edit.findChild<QToolButton *>());
}

void tst_FontColorEdit::keepsItsCaptionWhateverTheKey()
{
    FontColorEdit edit;
    const auto *button = edit.findChild<QToolButton *>();
    QCOMPARE(button->text(), QString(" A  "));
    edit.setValue("Color", "red");
    QCOMPARE(button->text(), QString(" A  "));
}

void tst_FontColorEdit::answersItsCaptionAsKey()
{
    FontColorEdit edit;
    QCOMPARE(edit.getKey(), QString(" A  "));
    edit.setValue("Color", "red");
    QCOMPARE(edit.getKey(), QString(" A  "));
}

void tst_FontColorEdit::tellsEditUnderItsStoredKey()
{
    FontColorEdit edit;
    edit.setValue("Color", "red");
    edit.setValue("Text Color", "red");
    edit.show();
    EditLog log(&edit);
    DialogAnswers answers;
    typeColor(answers, "#0000ff");
    QTest::mouseClick(edit.findChild<QToolButton *>(), Qt::LeftButton);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Text Color QString #0000ff"));
    QCOMPARE(edit.findChild<QToolButton *>()->styleSheet(), QString("QToolButton{color:#0000ff;}"));
}

void tst_FontColorEdit::hasStyleSheetToTheLetter()
{
    FontColorEdit edit;
    const auto *button = edit.findChild<QToolButton *>();
    edit.setValue("Color", "Red");
    QCOMPARE(button->styleSheet(), QString("QToolButton{color:#ff0000;}"));
    edit.setValue("Color", "no such colour");
    QCOMPARE(button->styleSheet(), QString("QToolButton{color:#000000;}"));
}

void tst_FontColorEdit::paintsItsLetterInTheColor()
{
    FontColorEdit edit;
    QFont font = edit.font();
    font.setStyleStrategy(QFont::NoAntialias);
    font.setPixelSize(24);
    edit.setFont(font);
    edit.setValue("Color", "#12ab9f");
    edit.show();
    QVERIFY(shows(edit.grab().toImage(), QColor(0x12, 0xab, 0x9f)));
    edit.setValue("Color", "#ab129f");
    QVERIFY(!shows(edit.grab().toImage(), QColor(0x12, 0xab, 0x9f)));
    QVERIFY(shows(edit.grab().toImage(), QColor(0xab, 0x12, 0x9f)));
}

void tst_FontColorEdit::showsThatItHasTheFocus()
{
    qApp->setStyleSheet("QToolButton{border:1px solid gray}");
    QWidget window;
    FontColorEdit edit(&window);
    QLineEdit line(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    line.setFocus();
    const QImage without = edit.grab().toImage();
    QTest::keyClick(&line, Qt::Key_Tab);
    QVERIFY(edit.findChild<QToolButton *>()->hasFocus());
    QVERIFY(edit.grab().toImage() != without);
    line.setFocus();
    QCOMPARE(edit.grab().toImage(), without);
    qApp->setStyleSheet(QString());
}

BOARDWRIGHT_TEST_MAIN(tst_FontColorEdit)
#include "tst_fontcoloredit.moc"
