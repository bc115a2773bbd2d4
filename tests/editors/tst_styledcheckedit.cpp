#include "editors/styledcheckedit.h"

#include "tests/editors/editlog.h"
#include "tests/support/strictmain.h"

#include <QAccessible>
#include <QCheckBox>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QWindow>

namespace
{
/// An editor at the edge of a window, with an image of one colour for each state.
struct Shown {
    Shown()
    {
        edit.move(50, 50);
        edit.resize(30, 30);
        edit.setValue("Bold", false);
        edit.setImages(image(Qt::red), image(Qt::green), image(Qt::blue));
        window.resize(200, 200);
        window.show();
    }

    QString image(const QColor &color)
    {
        QString path = folder.filePath(color.name().mid(1) + ".png");
        QImage picture(30, 30, QImage::Format_RGB32);
        picture.fill(color);
        if (!picture.save(path))
            qFatal("cannot write %s", qPrintable(path));
        return path;
    }

    QColor colorAt(const QPoint &point) { return box->grab().toImage().pixelColor(point); }

    /// The offscreen platform tells no window that the pointer has come or gone.
    void pointAtBox()
    {
        const QPoint inside = box->mapTo(&window, box->rect().center());
        QEnterEvent enter(inside, inside, window.mapToGlobal(inside));
        QCoreApplication::sendEvent(window.windowHandle(), &enter);
        QTest::mouseMove(window.windowHandle(), inside);
    }

    void pointElsewhere()
    {
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(window.windowHandle(), &leave);
    }

    QTemporaryDir folder;
    QWidget window;
    StyledCheckEdit edit{&window};
    QCheckBox *box = edit.findChild<QCheckBox *>();
};

constexpr QPoint middle(15, 15);
} // namespace

class tst_StyledCheckEdit : public QObject
{
    Q_OBJECT

private slots:
    void tellsClassAndType();
    void liesInOneColumnWithoutMargin();
    void measuresThirtyPixels();
    void storesKeyWithoutShowingIt();
    void readsInvalidValueAsUnchecked();
    void hasStyleSheetToTheLetter();
    void showsImageOfItsState();
    void showsHoverImageUnderPointerWhileUnchecked();
    void fillsItsWholeSideWithImage();
    void tellsClickAnywhereOnImage_data();
    void tellsClickAnywhereOnImage();
    void tellsSpaceKey();
    void writesDebugLineBeforeItTells();
    void tellsOtherValueUnderNewKey();
    void staysSilentWhenShownValueIsSet();
    void namesItsCheckBoxByTheKey();
};

void tst_StyledCheckEdit::tellsClassAndType()
{
    StyledCheckEdit edit;
    QCOMPARE(edit.property("class").toString(), QString("StyledCheckEdit"));
    QCOMPARE(edit.getType(), 4);
    QCOMPARE(edit.getKey(), QString());
    QCOMPARE(edit.getValue(), QVariant(false));
}

void tst_StyledCheckEdit::liesInOneColumnWithoutMargin()
{
    StyledCheckEdit edit;
    const auto *column = qobject_cast<QVBoxLayout *>(edit.layout());
    QVERIFY(column);
    QCOMPARE(column->contentsMargins(), QMargins());
    QCOMPARE(column->count(), 1);
    QCOMPARE(column->itemAt(0)->widget(), edit.findChild<QCheckBox *>());
}

void tst_StyledCheckEdit::measuresThirtyPixels()
{
    const StyledCheckEdit edit;
    const auto *box = edit.findChild<QCheckBox *>();
    QCOMPARE(box->minimumSize(), QSize(30, 30));
    QCOMPARE(box->maximumSize(), QSize(30, 30));
    QCOMPARE(edit.sizeHint(), QSize(30, 30));
}

void tst_StyledCheckEdit::storesKeyWithoutShowingIt()
{
    StyledCheckEdit edit;
    edit.setValue("Bold", true);
    QCOMPARE(edit.getKey(), QString("Bold"));
    QCOMPARE(edit.getValue(), QVariant(true));
    QVERIFY(edit.findChild<QCheckBox *>()->isChecked());
    QCOMPARE(edit.findChild<QCheckBox *>()->text(), QString());
}

void tst_StyledCheckEdit::readsInvalidValueAsUnchecked()
{
    StyledCheckEdit edit;
    edit.setValue("Bold", true);
    edit.setValue("Bold", QVariant());
    QCOMPARE(edit.getValue(), QVariant(false));
}

void tst_StyledCheckEdit::hasStyleSheetToTheLetter()
{
    StyledCheckEdit edit;
    edit.setImages(":/on %1.png", ":/off %2.png", ":/over %3.png");
    const QString four(4, ' ');
    const QString eight(8, ' ');
    const QString expected =
        "QCheckBox::indicator" + four + "{" + eight + "width:30;" + eight + "height:30;" + eight +
        "background-repeat :no-repeat;" + eight + "background-position:center;" + four + "}" + eight +
        "QCheckBox::indicator::unchecked{background-image: url(\":/off %2.png\");}" + four +
        "QCheckBox::indicator::unchecked::hover{background-image: "
        "url(\":/over %3.png\");}" +
        four + "QCheckBox::indicator::checked{background-image: url(\":/on %1.png\");}";
    QCOMPARE(edit.findChild<QCheckBox *>()->styleSheet(), expected);
    QCOMPARE(edit.styleSheet(), QString());
}

void tst_StyledCheckEdit::showsImageOfItsState()
{
    Shown shown;
    QCOMPARE(shown.colorAt(middle), QColor(Qt::green));
    QTest::keyClick(shown.box, Qt::Key_Space);
    QCOMPARE(shown.colorAt(middle), QColor(Qt::red));
}

void tst_StyledCheckEdit::showsHoverImageUnderPointerWhileUnchecked()
{
    Shown shown;
    shown.pointAtBox();
    QCOMPARE(shown.colorAt(middle), QColor(Qt::blue));
    QTest::mouseClick(shown.box, Qt::LeftButton, {}, middle);
    QCOMPARE(shown.colorAt(middle), QColor(Qt::red));
    QTest::mouseClick(shown.box, Qt::LeftButton, {}, middle);
    QCOMPARE(shown.colorAt(middle), QColor(Qt::blue));
    shown.pointElsewhere();
    QCOMPARE(shown.colorAt(middle), QColor(Qt::green));
}

void tst_StyledCheckEdit::fillsItsWholeSideWithImage()
{
    Shown shown;
    QCOMPARE(shown.colorAt({0, 0}), QColor(Qt::green));
    QCOMPARE(shown.colorAt({29, 29}), QColor(Qt::green));
}

void tst_StyledCheckEdit::tellsClickAnywhereOnImage_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::newRow("top left") << QPoint(0, 0);
    QTest::newRow("middle") << middle;
    QTest::newRow("bottom right") << QPoint(29, 29);
}

void tst_StyledCheckEdit::tellsClickAnywhereOnImage()
{
    QFETCH(QPoint, point);
    Shown shown;
    EditLog log(&shown.edit);
    QTest::mouseClick(shown.box, Qt::LeftButton, {}, point);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Bold bool true"));
    QTest::mouseClick(shown.box, Qt::LeftButton, {}, point);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Bold bool false"));
}

void tst_StyledCheckEdit::tellsSpaceKey()
{
    StyledCheckEdit edit;
    edit.setValue("Bold", true);
    EditLog log(&edit);
    QTest::keyClick(edit.focusProxy(), Qt::Key_Space);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Bold bool false"));
}

void tst_StyledCheckEdit::writesDebugLineBeforeItTells()
{
    StyledCheckEdit edit;
    edit.setValue("Bold", false);
    EditLog log(&edit);
    QTest::keyClick(edit.focusProxy(), Qt::Key_Space);
    QCOMPARE(log.takeLines(),
             QStringList({"debug: void StyledCheckEdit::valueChanged()", "valueEdited Bold bool true"}));
}

void tst_StyledCheckEdit::tellsOtherValueUnderNewKey()
{
    StyledCheckEdit edit;
    edit.setValue("Bold", false);
    EditLog log(&edit);
    edit.setValue("Italic", true);
    QCOMPARE(log.takeEdits(), QStringList("valueEdited Italic bool true"));
}

void tst_StyledCheckEdit::staysSilentWhenShownValueIsSet()
{
    StyledCheckEdit edit;
    edit.setValue("Bold", true);
    EditLog log(&edit);
    edit.setValue("Italic", true);
    QCOMPARE(log.takeLines(), QStringList());
}

void tst_StyledCheckEdit::namesItsCheckBoxByTheKey()
{
    StyledCheckEdit edit;
    edit.setValue("Bold", false);
    edit.setValue("Italic", false);
    auto *box = edit.findChild<QCheckBox *>();
    QCOMPARE(QAccessible::queryAccessibleInterface(box)->text(QAccessible::Name), QString("Italic"));
    QCOMPARE(edit.toolTip(), QString("Italic"));
    QCOMPARE(edit.focusProxy(), box);
}

BOARDWRIGHT_TEST_MAIN(tst_StyledCheckEdit)
#include "tst_styledcheckedit.moc"
