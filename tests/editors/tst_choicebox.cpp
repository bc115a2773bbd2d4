#include "editors/choicebox.h"

#include "tests/support/strictmain.h"
#include "tests/support/wheel.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

namespace
{
/// A box of three choices below a line edit, in the application's colours.
struct ShownBox {
    ShownBox()
    {
        qApp->setStyleSheet("QWidget{color:white;background-color:#454545}QComboBox{border:1px solid gray}");
        auto *column = new QVBoxLayout(&window);
        column->addWidget(line);
        column->addWidget(box);
        box->addItems({"one", "two", "three"});
        window.show();
    }

    ~ShownBox() { qApp->setStyleSheet(QString()); }

    QRect placeOf(int row) const { return box->view()->visualRect(box->model()->index(row, 0)); }

    /// The ground of a choice in the list.
    QColor groundOf(int row) const
    {
        const QRect place = placeOf(row);
        return box->view()->viewport()->grab().toImage().pixelColor(place.right() - 2, place.center().y());
    }

    QWidget window;
    QLineEdit *line = new QLineEdit;
    ChoiceBox *box = new ChoiceBox;
};
} // namespace

class tst_ChoiceBox : public QObject
{
    Q_OBJECT

private slots:
    void listShowsWhichChoiceIsTheCurrentOne();
    void showsThatItHasTheFocus();
    void changesByWheelWithTheFocusAlone();
};

void tst_ChoiceBox::listShowsWhichChoiceIsTheCurrentOne()
{
    const ShownBox shown;
    for (const int row : {1, 2}) {
        shown.box->setCurrentIndex(row);
        shown.box->showPopup();
        QTRY_VERIFY(shown.box->view()->viewport()->rect().contains(shown.placeOf(row)));
        QCOMPARE(shown.groundOf(0), QColor(0x45, 0x45, 0x45));
        QVERIFY(shown.groundOf(row) != shown.groundOf(0));
        shown.box->hidePopup();
    }
}

void tst_ChoiceBox::showsThatItHasTheFocus()
{
    const ShownBox shown;
    QVERIFY(QTest::qWaitForWindowActive(shown.window.windowHandle()));
    shown.line->setFocus();
    const QImage without = shown.box->grab().toImage();
    QTest::keyClick(shown.line, Qt::Key_Tab);
    QVERIFY(shown.box->hasFocus());
    QVERIFY(shown.box->grab().toImage() != without);
    shown.line->setFocus();
    QCOMPARE(shown.box->grab().toImage(), without);
}

void tst_ChoiceBox::changesByWheelWithTheFocusAlone()
{
    const ShownBox shown;
    QVERIFY(QTest::qWaitForWindowActive(shown.window.windowHandle()));
    shown.line->setFocus();
    turnWheel(shown.box, false);
    QVERIFY(!shown.box->hasFocus());
    QCOMPARE(shown.box->currentIndex(), 0);
    shown.box->setFocus();
    turnWheel(shown.box, false);
    QCOMPARE(shown.box->currentIndex(), 1);
}

BOARDWRIGHT_TEST_MAIN(tst_ChoiceBox)
#include "tst_choicebox.moc"
