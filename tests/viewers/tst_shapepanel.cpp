#include "viewers/shape.h"

#include "assets/assets.h"
#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "editors/categorybutton.h"
#include "editors/checkedit.h"
#include "editors/coloredit.h"
#include "editors/enumedit.h"
#include "editors/intedit.h"
#include "editors/panels/settingseditor.h"
#include "editors/propertypanel.h"
#include "model/applicationstyle.h"
#include "tests/canvas/boardfixture.h"
#include "tests/editors/coloranswers.h"
#include "tests/support/boards.h"
#include "tests/support/strictmain.h"
#include "tests/viewers/panelparts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>

#include <memory>

namespace
{
/// A canvas of 800 x 400 px with an item at (30, 40) of 100 x 50 px and its open panel.
struct OpenPanel {
    explicit OpenPanel(const QMap<QString, QVariant> &others = {})
    {
        for (auto value = others.cbegin(); value != others.cend(); ++value)
            item->setValue(value.key(), value.value());
        open();
    }

    void open()
    {
        board.screen()->loadLayout(board.screen()->saveLayout());
        item = board.screen()->items().at(0);
        valuesBefore = item->getValues();
        item->buildSettingsPanel(host.get());
        host->resize(300, 500);
        host->show();
    }

    VariableEdit *editor(const QString &key) const { return editorFor(key, *host); }

    template <class Widget>
    Widget *part(const QString &key) const
    {
        return editor(key)->findChild<Widget *>();
    }

    /// The label left of an editor that has none of its own.
    QLabel *labelBeside(const QString &key) const
    {
        const QWidget *edit = editor(key);
        const QPoint beside(edit->x() - 8, edit->geometry().center().y());
        if (auto *label = qobject_cast<QLabel *>(edit->parentWidget()->childAt(beside)))
            return label;
        qFatal("no label beside %s", qPrintable(key));
    }

    void type(const QString &key, const QString &text)
    {
        part<QSpinBox>(key)->selectAll();
        QTest::keyClicks(part<QSpinBox>(key), text);
    }

    PropertyPanel *panel() const { return host->findChild<PropertyPanel *>(); }

    BoardFixture board;
    ScreenItem *item = board.addShape({30, 40, 100, 50});
    std::unique_ptr<QWidget> host = std::make_unique<QWidget>();
    QMap<QString, QVariant> valuesBefore;
};

QStringList allKeys()
{
    return {"Shape",   "Align", "X",     "Y",      "W",          "H",
            "Opacity", "Fill",  "Color", "Border", "Line Width", "Border Color"};
}

QStringList categoryNames(const PropertyPanel *panel)
{
    QStringList names;
    for (int i = 0; i < panel->topLevelItemCount(); ++i) {
        const QWidget *header = panel->itemWidget(panel->topLevelItem(i), 0);
        const auto *label = qobject_cast<QLabel *>(header->layout()->itemAt(0)->widget());
        names << (qobject_cast<const CategoryButton *>(header) && label ? label->text() : "?");
    }
    return names;
}

QSet<QString> keysIn(const PropertyPanel *panel, int category)
{
    QSet<QString> keys;
    const QWidget *rows = panel->itemWidget(panel->topLevelItem(category)->child(0), 0);
    const auto edits = rows->findChildren<VariableEdit *>();
    for (VariableEdit *edit : edits)
        keys << edit->getKey();
    return keys;
}

/// The application's style, except for the height of the letters in pixels.
void applyStyleWithLetters(int height)
{
    applyApplicationStyle();
    const QString sheet = qApp->styleSheet();
    QVERIFY(sheet.contains("font-size: 12px"));
    qApp->setStyleSheet(QString(sheet).replace("font-size: 12px", QString("font-size: %1px").arg(height)));
}
} // namespace

class tst_ShapePanel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initAssets(); }
    void cleanup() { qApp->setStyleSheet({}); }

    void hasAnEditorOfItsTypeForEveryParameter_data();
    void hasAnEditorOfItsTypeForEveryParameter();
    void makesEditorsInOrder();
    void sortsEditorsIntoTwoCategories();
    void offersTheKindsAndAlignments();
    void tellsNothingWhenItIsBuilt_data();
    void tellsNothingWhenItIsBuilt();

    void editsReachTheItem_data();
    void editsReachTheItem();
    void choiceReachesTheItem();
    void switchReachesTheItem();
    void colorReachesTheItem();
    void cancelledColorIsBlack();
    void frameAnnouncesWhatAnEditMoves();

    void asksForLimitsAsTheyStand_data();
    void asksForLimitsAsTheyStand();
    void boundsFollowTheItem();
    void itemBeyondTheScreenDoesNotLoop();
    void lineWidthRunsFromZeroUpwards();
    void negativeLineWidthIsNotMended();

    void dragShowsInTheEditors();
    void otherChangesOfTheFrameShowInTheEditors();
    void clampedEditShowsWhereTheItemLies();
    void twoPanelsOfOneItemAgree();

    void outlivesItsItem();
    void outlivesItsItemBehindAColorDialog();
    void loadOfALayoutLeavesOpenPanelAlone();

    void tabWalksFromTopToBottom();
    void iconsAreNamedForScreenReaders();
    void columnsAreAligned();
    void colorsStandBesideTheirLabels();
    void isNotClippedInTheColumn_data();
    void isNotClippedInTheColumn();
};

void tst_ShapePanel::hasAnEditorOfItsTypeForEveryParameter_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("Shape") << QByteArray("EnumEdit") << QVariant("Round Rectangle");
    QTest::newRow("Align") << QByteArray("EnumEdit") << QVariant("Center");
    QTest::newRow("X") << QByteArray("IntEdit") << QVariant(30);
    QTest::newRow("Y") << QByteArray("IntEdit") << QVariant(40);
    QTest::newRow("W") << QByteArray("IntEdit") << QVariant(100);
    QTest::newRow("H") << QByteArray("IntEdit") << QVariant(50);
    QTest::newRow("Opacity") << QByteArray("IntEdit") << QVariant(100);
    QTest::newRow("Fill") << QByteArray("CheckEdit") << QVariant(true);
    QTest::newRow("Color") << QByteArray("ColorEdit") << QVariant("#000000");
    QTest::newRow("Border") << QByteArray("CheckEdit") << QVariant(true);
    QTest::newRow("Line Width") << QByteArray("IntEdit") << QVariant(1);
    QTest::newRow("Border Color") << QByteArray("ColorEdit") << QVariant("#ffffff");
}

void tst_ShapePanel::hasAnEditorOfItsTypeForEveryParameter()
{
    const OpenPanel open;
    VariableEdit *edit = open.editor(QTest::currentDataTag());
    QTEST(QByteArray(edit->metaObject()->className()), "type");
    QTEST(edit->getValue(), "value");
    QVERIFY(edit->isVisible());
    QCOMPARE(open.host->findChildren<VariableEdit *>().size(), 12);
}

void tst_ShapePanel::makesEditorsInOrder()
{
    QWidget frame;
    auto *shape = new Watched<Shape>(&frame);
    QWidget host;
    shape->buildSettingsPanel(&host);
    QCOMPARE(shape->readings, allKeys());
}

void tst_ShapePanel::sortsEditorsIntoTwoCategories()
{
    const OpenPanel open;
    QCOMPARE(categoryNames(open.panel()), QStringList({"Area (px)", "Basic Properties"}));
    const QSet<QString> area{"X", "Y", "W", "H"};
    QCOMPARE(keysIn(open.panel(), 0), area);
    const QStringList all = allKeys();
    QCOMPARE(keysIn(open.panel(), 1), QSet<QString>(all.begin(), all.end()) - area);
}

void tst_ShapePanel::offersTheKindsAndAlignments()
{
    const OpenPanel open;
    for (const char *key : {"Shape", "Align"}) {
        QStringList offered;
        for (int i = 0; i < open.part<QComboBox>(key)->count(); ++i)
            offered << open.part<QComboBox>(key)->itemText(i);
        QCOMPARE(offered, open.item->getEnumsFor(key));
    }
}

void tst_ShapePanel::tellsNothingWhenItIsBuilt_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("last kind") << "Shape" << QVariant("Vertical Line");
    QTest::newRow("unknown kind") << "Shape" << QVariant("Hexagon");
    QTest::newRow("last alignment") << "Align" << QVariant("Left");
    QTest::newRow("unknown alignment") << "Align" << QVariant("Middle");
    QTest::newRow("opacity beyond its bounds") << "Opacity" << QVariant(250);
    QTest::newRow("negative line width") << "Line Width" << QVariant(-4);
    QTest::newRow("no fill") << "Fill" << QVariant(false);
    QTest::newRow("no border") << "Border" << QVariant(false);
    QTest::newRow("colour that is none") << "Color" << QVariant("nonsense");
    QTest::newRow("colour name") << "Border Color" << QVariant("red");
}

void tst_ShapePanel::tellsNothingWhenItIsBuilt()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    const OpenPanel open({{key, value}});
    QCOMPARE(open.item->getValue(key).toString(), value.toString());
    QCOMPARE(open.item->getValues(), open.valuesBefore);
    QVERIFY(!open.board.screen()->isModified());
}

void tst_ShapePanel::editsReachTheItem_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QRect>("geometry");

    QTest::newRow("X") << "213" << QRect(213, 40, 100, 50);
    QTest::newRow("Y") << "111" << QRect(30, 111, 100, 50);
    QTest::newRow("W") << "321" << QRect(30, 40, 321, 50);
    QTest::newRow("H") << "222" << QRect(30, 40, 100, 222);
    QTest::newRow("Opacity") << "42" << QRect(30, 40, 100, 50);
    QTest::newRow("Line Width") << "37" << QRect(30, 40, 100, 50);
}

void tst_ShapePanel::editsReachTheItem()
{
    QFETCH(QString, text);
    const QString key = QTest::currentDataTag();
    OpenPanel open;
    open.type(key, text);
    QCOMPARE(open.item->getValue(key), QVariant(text.toInt()));
    QTEST(open.item->geometry(), "geometry");
    QCOMPARE(open.editor(key)->getValue(), QVariant(text.toInt()));
    QVERIFY(open.board.screen()->isModified());
}

void tst_ShapePanel::choiceReachesTheItem()
{
    const OpenPanel open;
    QTest::keyClick(open.part<QComboBox>("Shape"), Qt::Key_Down);
    QCOMPARE(open.item->getValue("Shape"), QVariant("Square"));
    QVERIFY(open.board.screen()->isModified());
    QTest::keyClick(open.part<QComboBox>("Align"), Qt::Key_End);
    QCOMPARE(open.item->getValue("Align"), QVariant("Left"));
}

void tst_ShapePanel::switchReachesTheItem()
{
    for (const char *key : {"Fill", "Border"}) {
        const OpenPanel open;
        QTest::keyClick(open.part<QCheckBox>(key), Qt::Key_Space);
        QCOMPARE(open.item->getValue(key), QVariant(false));
        QVERIFY(open.board.screen()->isModified());
    }
}

void tst_ShapePanel::colorReachesTheItem()
{
    for (const char *key : {"Color", "Border Color"}) {
        const OpenPanel open;
        DialogAnswers answers;
        typeColor(answers, "#12ab3c");
        QTest::mouseClick(open.part<QPushButton>(key), Qt::LeftButton);
        QVERIFY(answers.areUsedUp());
        QCOMPARE(open.item->getValue(key), QVariant("#12ab3c"));
        QVERIFY(open.board.screen()->isModified());
    }
}

void tst_ShapePanel::cancelledColorIsBlack()
{
    const OpenPanel open;
    DialogAnswers answers;
    answers.escape();
    QTest::mouseClick(open.part<QPushButton>("Border Color"), Qt::LeftButton);
    QCOMPARE(open.item->getValue("Border Color"), QVariant("#000000"));
}

void tst_ShapePanel::frameAnnouncesWhatAnEditMoves()
{
    OpenPanel open;
    QSignalSpy spy(open.item, &ScreenItem::valueChanged);
    QTest::keyClick(open.part<QSpinBox>("X"), Qt::Key_Up);
    QStringList keys;
    for (const QList<QVariant> &change : qAsConst(spy))
        keys << change.at(0).toString();
    QCOMPARE(keys, QStringList({"X", "W", "Y", "H"}));
}

void tst_ShapePanel::asksForLimitsAsTheyStand_data()
{
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");

    // The item is asked before it hears of the step.
    QTest::newRow("X") << 0 << 700;
    QTest::newRow("Y") << 0 << 350;
    QTest::newRow("W") << 0 << 770;
    QTest::newRow("H") << 0 << 360;
    QTest::newRow("Opacity") << 0 << 100;
    QTest::newRow("Line Width") << 0 << 268435455;
}

void tst_ShapePanel::asksForLimitsAsTheyStand()
{
    const OpenPanel open;
    auto *spinBox = open.part<QSpinBox>(QTest::currentDataTag());
    QTest::keyClick(spinBox, Qt::Key_Down);
    QTEST(spinBox->minimum(), "lowest");
    QTEST(spinBox->maximum(), "highest");
}

void tst_ShapePanel::boundsFollowTheItem()
{
    OpenPanel open;
    QTest::keyClick(open.part<QSpinBox>("X"), Qt::Key_Up);
    QCOMPARE(open.part<QSpinBox>("X")->maximum(), 700);
    open.type("W", "300");
    QTest::keyClick(open.part<QSpinBox>("X"), Qt::Key_Up);
    QCOMPARE(open.part<QSpinBox>("X")->maximum(), 500);
}

void tst_ShapePanel::itemBeyondTheScreenDoesNotLoop()
{
    OpenPanel open;
    open.item->move(900, 40);
    QSignalSpy edits(open.editor("W"), &VariableEdit::valueEdited);
    QTest::keyClick(open.part<QSpinBox>("W"), Qt::Key_Up);
    QCOMPARE(edits.size(), 1);
    QCOMPARE(open.item->x(), 900);
    QCOMPARE(open.item->getValue("W").toInt(), open.item->width());
}

void tst_ShapePanel::lineWidthRunsFromZeroUpwards()
{
    OpenPanel open;
    auto *spinBox = open.part<QSpinBox>("Line Width");
    QTest::keyClick(spinBox, Qt::Key_PageDown);
    QCOMPARE(open.item->getValue("Line Width"), QVariant(0));
    open.type("Line Width", "-5");
    QCOMPARE(open.item->getValue("Line Width"), QVariant(0));
    open.type("Line Width", "5");
    QCOMPARE(open.item->getValue("Line Width"), QVariant(5));
    open.type("Line Width", "-5");
    QCOMPARE(open.item->getValue("Line Width"), QVariant(5));
    QTest::keyClick(spinBox, Qt::Key_Return);
    QCOMPARE(open.item->getValue("Line Width"), QVariant(0));
    QVERIFY(!open.item->getMinValue("Line Width").isValid());
}

void tst_ShapePanel::negativeLineWidthIsNotMended()
{
    const OpenPanel open({{"Line Width", -4}});
    QCOMPARE(open.editor("Line Width")->getValue(), QVariant(0));
    QCOMPARE(open.item->getValue("Line Width").toInt(), -4);
}

void tst_ShapePanel::dragShowsInTheEditors()
{
    OpenPanel open;
    QVERIFY(open.board.isReady());
    open.board.drag({80, 65}, {130, 95});
    QCOMPARE(open.item->geometry(), QRect(80, 70, 100, 50));
    QCOMPARE(open.editor("X")->getValue(), QVariant(80));
    QCOMPARE(open.editor("Y")->getValue(), QVariant(70));
    open.board.drag({179, 119}, {199, 149});
    QCOMPARE(open.editor("W")->getValue(), QVariant(open.item->width()));
    QCOMPARE(open.editor("H")->getValue(), QVariant(open.item->height()));
    QVERIFY(open.item->width() > 100);
    QVERIFY(open.item->height() > 50);
}

void tst_ShapePanel::otherChangesOfTheFrameShowInTheEditors()
{
    const OpenPanel open;
    const QMap<QString, QVariant> news{{"Shape", "Square"},  {"Align", "Top"},           {"Opacity", 7},
                                       {"Fill", false},      {"Border", false},          {"Line Width", 9},
                                       {"Color", "#123456"}, {"Border Color", "#654321"}};
    for (auto change = news.cbegin(); change != news.cend(); ++change) {
        emit open.item->valueChanged(change.key(), change.value());
        QCOMPARE(open.editor(change.key())->getValue(), change.value());
    }
    // Choices and switches tell what the program sets, numbers and colours do not.
    QCOMPARE(open.item->getValue("Shape"), QVariant("Square"));
    QCOMPARE(open.item->getValue("Fill"), QVariant(false));
    QCOMPARE(open.item->getValue("Opacity").toInt(), 100);
    QCOMPARE(open.item->getValue("Color"), QVariant("black"));
}

void tst_ShapePanel::clampedEditShowsWhereTheItemLies()
{
    OpenPanel open;
    open.type("H", "9");
    open.item->setGeometry(30, 350, 100, 50);
    QTest::keyClick(open.part<QSpinBox>("H"), Qt::Key_Up);
    QCOMPARE(open.item->height(), 50);
    QCOMPARE(open.editor("H")->getValue(), QVariant(50));
    QCOMPARE(open.item->getValue("H"), QVariant(50));
}

void tst_ShapePanel::twoPanelsOfOneItemAgree()
{
    OpenPanel open;
    QWidget second;
    open.item->buildSettingsPanel(&second);
    open.type("X", "77");
    const auto edits = second.findChildren<IntEdit *>();
    for (IntEdit *edit : edits) {
        if (edit->getKey() == "X")
            QCOMPARE(edit->getValue(), QVariant(77));
    }
}

void tst_ShapePanel::outlivesItsItem()
{
    OpenPanel open;
    delete open.item;
    for (const char *key : {"X", "W", "Opacity", "Line Width"})
        QTest::keyClick(open.part<QSpinBox>(key), Qt::Key_Up);
    QTest::keyClick(open.part<QComboBox>("Shape"), Qt::Key_Down);
    QTest::keyClick(open.part<QCheckBox>("Fill"), Qt::Key_Space);
    QCOMPARE(open.editor("X")->getValue(), QVariant(31));
}

void tst_ShapePanel::outlivesItsItemBehindAColorDialog()
{
    OpenPanel open;
    DialogAnswers answers;
    answers.act([&open](QDialog *dialog) {
        delete open.item;
        QTest::keyClick(dialog, Qt::Key_Escape);
        return true;
    });
    QTest::mouseClick(open.part<QPushButton>("Color"), Qt::LeftButton);
    QVERIFY(answers.areUsedUp());
    QCOMPARE(open.editor("Color")->getValue(), QVariant("#000000"));
}

void tst_ShapePanel::loadOfALayoutLeavesOpenPanelAlone()
{
    OpenPanel open;
    open.board.screen()->loadLayout(board({shapeObject("Other", {300, 200, 60, 60})}));
    QTest::keyClick(open.part<QSpinBox>("X"), Qt::Key_Up);
    QCOMPARE(open.board.screen()->items().at(0)->geometry(), QRect(300, 200, 60, 60));
    QVERIFY(!open.board.screen()->isModified());
}

void tst_ShapePanel::tabWalksFromTopToBottom()
{
    const OpenPanel open;
    open.host->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(open.host.get()));
    QWidgetList stops{open.panel()->itemWidget(open.panel()->topLevelItem(0), 0)};
    for (const char *key : {"X", "Y", "W", "H"})
        stops << open.part<QSpinBox>(key);
    stops << open.panel()->itemWidget(open.panel()->topLevelItem(1), 0) << open.part<QComboBox>("Shape")
          << open.part<QComboBox>("Align") << open.part<QSpinBox>("Opacity") << open.part<QCheckBox>("Fill")
          << open.part<QPushButton>("Color") << open.part<QCheckBox>("Border")
          << open.part<QPushButton>("Border Color") << open.part<QSpinBox>("Line Width");
    stops.first()->setFocus();
    for (int i = 1; i < stops.size(); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), stops.at(i));
    }
    for (int i = stops.size() - 2; i >= 0; --i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), stops.at(i));
    }
}

void tst_ShapePanel::iconsAreNamedForScreenReaders()
{
    const OpenPanel open;
    for (const char *key : {"Color", "Border Color"})
        QCOMPARE(open.part<QPushButton>(key)->accessibleName(), QString(key));
}

void tst_ShapePanel::columnsAreAligned()
{
    const OpenPanel open;
    const auto left = [&open](const QWidget *widget) {
        return widget->mapTo(open.host.get(), QPoint()).x();
    };
    const int column = left(open.part<QComboBox>("Shape"));
    QCOMPARE(left(open.part<QComboBox>("Align")), column);
    QCOMPARE(left(open.part<QSpinBox>("Opacity")), column);
    QCOMPARE(left(open.part<QSpinBox>("Line Width")), column);
    QCOMPARE(left(open.part<QPushButton>("Color")), left(open.part<QPushButton>("Border Color")));
}

void tst_ShapePanel::colorsStandBesideTheirLabels()
{
    const OpenPanel open;
    QCOMPARE(open.labelBeside("Color")->text(), QString("Color"));
    const QLabel *longer = open.labelBeside("Border Color");
    QCOMPARE(longer->text(), QString("Border Color"));
    // The room that is left lies behind the colours.
    QCOMPARE(longer->width(), longer->sizeHint().width());
}

void tst_ShapePanel::isNotClippedInTheColumn_data()
{
    QTest::addColumn<int>("letters");

    QTest::newRow("toolkit's own style") << 0;
    QTest::newRow("application's style") << 12;
    QTest::newRow("letters a third larger") << 16;
    QTest::newRow("letters two thirds larger") << 20;
}

void tst_ShapePanel::isNotClippedInTheColumn()
{
    QFETCH(int, letters);
    if (letters > 0)
        applyStyleWithLetters(letters);
    OpenPanel open;
    SettingsEditor column;
    column.resize(320, 600);
    column.setActiveItem(open.item);
    column.show();
    QCoreApplication::processEvents();
    auto *panel = column.findChild<PropertyPanel *>();
    const QRegion all = panel->viewport()->rect();
    const auto edits = panel->findChildren<VariableEdit *>();
    for (VariableEdit *edit : edits) {
        const auto parts = edit->findChildren<QWidget *>();
        for (const QWidget *part : parts) {
            const QRect place(part->mapTo(panel->viewport(), QPoint()), part->size());
            QVERIFY2(!part->isVisible() || QRegion(place).subtracted(all).isEmpty(),
                     qPrintable(edit->getKey()));
        }
    }
    const auto labels = panel->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->isVisible())
            QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(label->text()));
    }
    const auto boxes = panel->findChildren<QCheckBox *>();
    for (QCheckBox *box : boxes)
        QVERIFY2(box->width() >= box->sizeHint().width(), qPrintable(box->text()));
    const auto headers = panel->findChildren<CategoryButton *>();
    for (CategoryButton *header : headers)
        QVERIFY(header->height() >= header->layout()->itemAt(0)->sizeHint().height());
}

BOARDWRIGHT_TEST_MAIN(tst_ShapePanel)
#include "tst_shapepanel.moc"
