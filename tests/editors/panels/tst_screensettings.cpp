#include "editors/panels/screensettings.h"

#include "canvas/screen.h"
#include "editors/coloredit.h"
#include "tests/canvas/shownscreen.h"
#include "tests/editors/coloranswers.h"
#include "tests/support/boards.h"
#include "tests/support/strictmain.h"
#include "tests/support/wheel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>

// The bar with the three values of the screen.
class tst_ScreenSettings : public QObject
{
    Q_OBJECT

private slots:
    void setScreenIsItsOneSlot();
    void heightComesBeforeWidthAndColour();
    void controlsSitAtTheLeft();
    void lengthsRunFromTenToTenThousand();
    void colourStartsBlackUnderItsKey();
    void controlsAreNamedForScreenReaders();
    void showsTheValuesOfTheCanvas();
    void bindingWritesNothingBack();
    void connectsByName();
    void typedLengthIsAppliedAtOnce_data();
    void typedLengthIsAppliedAtOnce();
    void stepIsAppliedAtOnce_data();
    void stepIsAppliedAtOnce();
    void wheelStepsTheLengthWithTheFocusAlone_data();
    void wheelStepsTheLengthWithTheFocusAlone();
    void lengthsOutOfRangeCannotBeEntered_data();
    void lengthsOutOfRangeCannotBeEntered();
    void chosenColourIsPaintedAtOnce();
    void cancelledColourIsBlack();
    void readsAllThreeValuesAgain();
    void readingAgainLeavesTheCanvasUnmodified();
    void readingTheColourAgainTellsNobody();
    void writesClampedLengthsBack_data();
    void writesClampedLengthsBack();
    void keepsALengthThatIsShownClampedAlready();
    void doesNothingWithoutACanvas();
    void outlivesItsCanvas();
};

namespace
{
const char *const key = "Background Color";

QLabel *labelOf(const QWidget &bar, const QString &text)
{
    const QList<QLabel *> labels = bar.findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->text() == text)
            return label;
    }
    return nullptr;
}

/// The bar, bound to a canvas of 800 x 400 px in the same window.
struct Bar : ShownScreen {
    Bar()
    {
        window.resize(850, 550);
        settings.setGeometry(0, 440, 800, 80);
        settings.setScreen(&screen);
        settings.show();
    }

    QSpinBox *box(const QString &name) const
    {
        return qobject_cast<QSpinBox *>(labelOf(settings, name)->buddy());
    }
    int shown(const QString &name) const { return box(name)->value(); }
    ColorEdit *color() const { return settings.findChild<ColorEdit *>(); }
    int length(const QString &name) const { return name == "Width" ? screen.width() : screen.height(); }

    void load(int width, int height, const QString &colorName = "#000000")
    {
        screen.loadLayout(board({}, {{"Width", width}, {"Height", height}, {key, colorName}}));
    }

    ScreenSettings settings{&window};
};

void addLengths()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("height") << "Height";
    QTest::newRow("width") << "Width";
}

/// Types over what a box shows.
void typeOver(QSpinBox *box, const QString &text)
{
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, text);
}
} // namespace

void tst_ScreenSettings::setScreenIsItsOneSlot()
{
    const QMetaObject &meta = ScreenSettings::staticMetaObject;
    QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QWidget"));
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod slot = meta.method(meta.methodOffset());
    QCOMPARE(slot.methodSignature(), QByteArray("setScreen(Screen*)"));
    QCOMPARE(slot.methodType(), QMetaMethod::Slot);
    QCOMPARE(slot.access(), QMetaMethod::Public);
}

void tst_ScreenSettings::heightComesBeforeWidthAndColour()
{
    const ScreenSettings settings;
    const auto *row = qobject_cast<QHBoxLayout *>(settings.layout());
    QVERIFY(row);
    QCOMPARE(row->count(), 6);
    const auto at = [row](int place) {
        return row->itemAt(place)->widget();
    };
    QCOMPARE(at(0), labelOf(settings, "Height"));
    QCOMPARE(at(1), labelOf(settings, "Height")->buddy());
    QCOMPARE(at(2), labelOf(settings, "Width"));
    QCOMPARE(at(3), labelOf(settings, "Width")->buddy());
    QVERIFY(qobject_cast<ColorEdit *>(at(4)));
    QCOMPARE(at(4)->parentWidget(), &settings);
}

void tst_ScreenSettings::controlsSitAtTheLeft()
{
    const Bar bar;
    const QSpacerItem *spacer = bar.settings.layout()->itemAt(5)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(10, 50));
    QCOMPARE(spacer->expandingDirections(), Qt::Orientations(Qt::Horizontal));
    QVERIFY(bar.color()->geometry().right() < 400);
}

void tst_ScreenSettings::lengthsRunFromTenToTenThousand()
{
    const ScreenSettings settings;
    const QList<QSpinBox *> boxes = settings.findChildren<QSpinBox *>();
    QCOMPARE(boxes.size(), 2);
    for (const QSpinBox *box : boxes) {
        QCOMPARE(box->minimum(), 10);
        QCOMPARE(box->maximum(), 10000);
    }
}

void tst_ScreenSettings::colourStartsBlackUnderItsKey()
{
    const ScreenSettings settings;
    auto *color = settings.findChild<ColorEdit *>();
    QCOMPARE(color->getKey(), QString(key));
    QCOMPARE(color->getValue().toString(), QString("#000000"));
    QCOMPARE(color->findChild<QPushButton *>()->styleSheet(), QString("background-color:#000000"));
}

void tst_ScreenSettings::controlsAreNamedForScreenReaders()
{
    const Bar bar;
    QVERIFY(bar.box("Height"));
    QVERIFY(bar.box("Width"));
    QCOMPARE(bar.color()->findChild<QPushButton *>()->accessibleName(), QString(key));
}

void tst_ScreenSettings::showsTheValuesOfTheCanvas()
{
    ScreenSettings settings;
    Screen screen;
    screen.setFixedSize(321, 123);
    screen.setBackgrounColor(QColor(0xa0b0c0));
    settings.setScreen(&screen);
    const QList<QSpinBox *> boxes = settings.findChildren<QSpinBox *>();
    QCOMPARE(boxes.at(0)->value(), 123);
    QCOMPARE(boxes.at(1)->value(), 321);
    QCOMPARE(settings.findChild<ColorEdit *>()->getValue().toString(), QString("#a0b0c0"));
    QCOMPARE(settings.findChild<ColorEdit *>()->getKey(), QString(key));
}

// The values are shown before anything is connected.
void tst_ScreenSettings::bindingWritesNothingBack()
{
    ScreenSettings settings;
    Screen screen;
    screen.setFixedSize(12000, 5);
    settings.setScreen(&screen);
    QCOMPARE(screen.size(), QSize(12000, 5));
    QVERIFY(!screen.isModified());
    QCOMPARE(settings.findChildren<QSpinBox *>().at(1)->value(), 10000);
}

// Only a connection that was made by name can be cut by name.
void tst_ScreenSettings::connectsByName()
{
    Bar bar;
    QVERIFY(disconnect(bar.box("Width"), SIGNAL(valueChanged(int)), &bar.screen, SLOT(setWidgth(int))));
    QVERIFY(disconnect(bar.box("Height"), SIGNAL(valueChanged(int)), &bar.screen, SLOT(setHeight(int))));
    QVERIFY(
        disconnect(bar.color(), SIGNAL(colorChanged(QColor)), &bar.screen, SLOT(setBackgrounColor(QColor))));
}

void tst_ScreenSettings::typedLengthIsAppliedAtOnce_data()
{
    addLengths();
}

void tst_ScreenSettings::typedLengthIsAppliedAtOnce()
{
    QFETCH(QString, name);

    Bar bar;
    QVERIFY(bar.ready);
    const QSize before = bar.screen.size();
    typeOver(bar.box(name), "12");
    QCOMPARE(bar.length(name), 12);
    QTest::keyClicks(bar.box(name), "3");
    QCOMPARE(bar.length(name), 123);
    QCOMPARE(bar.screen.size(), name == "Width" ? QSize(123, before.height()) : QSize(before.width(), 123));
    QVERIFY(bar.screen.isModified());
}

void tst_ScreenSettings::stepIsAppliedAtOnce_data()
{
    addLengths();
}

void tst_ScreenSettings::stepIsAppliedAtOnce()
{
    QFETCH(QString, name);

    Bar bar;
    QVERIFY(bar.ready);
    const int before = bar.length(name);
    QTest::keyClick(bar.box(name), Qt::Key_Up);
    QCOMPARE(bar.length(name), before + 1);
    QTest::keyClick(bar.box(name), Qt::Key_PageDown);
    QCOMPARE(bar.length(name), before - 9);
}

void tst_ScreenSettings::wheelStepsTheLengthWithTheFocusAlone_data()
{
    addLengths();
}

void tst_ScreenSettings::wheelStepsTheLengthWithTheFocusAlone()
{
    QFETCH(QString, name);

    Bar bar;
    QVERIFY(bar.ready);
    bar.neighbour.setFocus();
    const QSize before = bar.screen.size();
    turnWheel(bar.box(name), true);
    QVERIFY(bar.neighbour.hasFocus());
    QCOMPARE(bar.screen.size(), before);
    bar.box(name)->setFocus();
    const int length = bar.length(name);
    turnWheel(bar.box(name), true);
    QCOMPARE(bar.length(name), length + 1);
}

void tst_ScreenSettings::lengthsOutOfRangeCannotBeEntered_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("entered");

    QTest::newRow("smallest") << "10" << 10;
    QTest::newRow("largest") << "10000" << 10000;
    QTest::newRow("minus sign is refused") << "-20" << 20;
    QTest::newRow("digit that goes too far is refused") << "20000" << 2000;
    QTest::newRow("one beyond the largest") << "10001" << 1000;
}

void tst_ScreenSettings::lengthsOutOfRangeCannotBeEntered()
{
    QFETCH(QString, text);
    QFETCH(int, entered);

    Bar bar;
    QVERIFY(bar.ready);
    for (const QString &name : {QString("Height"), QString("Width")}) {
        typeOver(bar.box(name), text);
        QTest::keyClick(bar.box(name), Qt::Key_Return);
        QCOMPARE(bar.shown(name), entered);
        QCOMPARE(bar.length(name), entered);
        typeOver(bar.box(name), "9");
        QCOMPARE(bar.length(name), entered);
    }
}

void tst_ScreenSettings::chosenColourIsPaintedAtOnce()
{
    Bar bar;
    QVERIFY(bar.ready);
    DialogAnswers answers;
    typeColor(answers, "#123456");
    EventCounter paints(&bar.screen, QEvent::Paint);
    QTest::mouseClick(bar.color()->findChild<QPushButton *>(), Qt::LeftButton);
    QVERIFY(answers.areUsedUp());
    QCOMPARE(bar.screen.backgroundColor(), QColor(0x123456));
    QTRY_VERIFY(paints.count > 0);
    QCOMPARE(bar.window.grab().toImage().pixelColor(3, 3), QColor(0x123456));
}

void tst_ScreenSettings::cancelledColourIsBlack()
{
    Bar bar;
    QVERIFY(bar.ready);
    bar.load(800, 400, "#ffffff");
    bar.settings.updateFromScreen();
    DialogAnswers answers;
    QColor start;
    lookAtColor(answers, start);
    QTest::mouseClick(bar.color()->findChild<QPushButton *>(), Qt::LeftButton);
    QCOMPARE(start, QColor(Qt::white));
    QCOMPARE(bar.color()->getValue().toString(), QString("#000000"));
    QCOMPARE(bar.screen.saveLayout()["parameters"].toObject()[key].toString(), QString("#000000"));
}

void tst_ScreenSettings::readsAllThreeValuesAgain()
{
    Bar bar;
    bar.load(640, 96, "#00ff7f");
    QCOMPARE(bar.shown("Width"), 800);
    bar.settings.updateFromScreen();
    QCOMPARE(bar.shown("Width"), 640);
    QCOMPARE(bar.shown("Height"), 96);
    QCOMPARE(bar.color()->getValue().toString(), QString("#00ff7f"));
}

void tst_ScreenSettings::readingAgainLeavesTheCanvasUnmodified()
{
    Bar bar;
    bar.load(640, 96, "#00ff7f");
    QSignalSpy edited(bar.box("Width"), QOverload<int>::of(&QSpinBox::valueChanged));
    bar.settings.updateFromScreen();
    QCOMPARE(edited.size(), 1);
    QCOMPARE(bar.screen.size(), QSize(640, 96));
    QVERIFY(!bar.screen.isModified());
}

void tst_ScreenSettings::readingTheColourAgainTellsNobody()
{
    Bar bar;
    QSignalSpy changed(bar.color(), &ColorEdit::colorChanged);
    bar.load(800, 400, "no colour at all");
    bar.settings.updateFromScreen();
    QVERIFY(changed.isEmpty());
    QVERIFY(!bar.screen.backgroundColor().isValid());
    QCOMPARE(bar.color()->getValue().toString(), QString("#000000"));
}

void tst_ScreenSettings::writesClampedLengthsBack_data()
{
    QTest::addColumn<QSize>("loaded");
    QTest::addColumn<QSize>("kept");

    QTest::newRow("too wide") << QSize(12000, 100) << QSize(10000, 100);
    QTest::newRow("too high") << QSize(100, 12000) << QSize(100, 10000);
    QTest::newRow("too narrow") << QSize(3, 100) << QSize(10, 100);
    QTest::newRow("too low") << QSize(100, 3) << QSize(100, 10);
    QTest::newRow("nothing at all") << QSize(0, 0) << QSize(10, 10);
    QTest::newRow("just possible") << QSize(10000, 10) << QSize(10000, 10);
}

void tst_ScreenSettings::writesClampedLengthsBack()
{
    QFETCH(QSize, loaded);
    QFETCH(QSize, kept);

    Bar bar;
    bar.load(loaded.width(), loaded.height());
    QCOMPARE(bar.screen.size(), loaded);
    bar.settings.updateFromScreen();
    QCOMPARE(QSize(bar.shown("Width"), bar.shown("Height")), kept);
    QCOMPARE(bar.screen.size(), kept);
    QCOMPARE(bar.screen.isModified(), kept != loaded);
}

// A box that shows the limit has nothing to tell, so the canvas keeps what was loaded: on purpose.
void tst_ScreenSettings::keepsALengthThatIsShownClampedAlready()
{
    Bar bar;
    bar.load(10, 10000);
    bar.settings.updateFromScreen();
    bar.load(3, 12000);
    bar.settings.updateFromScreen();
    QCOMPARE(QSize(bar.shown("Width"), bar.shown("Height")), QSize(10, 10000));
    QCOMPARE(bar.screen.size(), QSize(3, 12000));
    QVERIFY(!bar.screen.isModified());
}

void tst_ScreenSettings::doesNothingWithoutACanvas()
{
    ScreenSettings settings;
    settings.updateFromScreen();
    settings.findChild<QSpinBox *>()->setValue(77);
    QCOMPARE(settings.findChild<QSpinBox *>()->value(), 77);
}

void tst_ScreenSettings::outlivesItsCanvas()
{
    ScreenSettings settings;
    {
        Screen screen;
        screen.setFixedSize(200, 100);
        settings.setScreen(&screen);
    }
    settings.updateFromScreen();
    settings.findChild<QSpinBox *>()->setValue(77);
    QCOMPARE(settings.findChild<QSpinBox *>()->value(), 77);
}

BOARDWRIGHT_TEST_MAIN(tst_ScreenSettings)
#include "tst_screensettings.moc"
