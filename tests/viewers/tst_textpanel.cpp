#include "viewers/textpanel.h"

#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "editors/categorybutton.h"
#include "editors/panels/settingseditor.h"
#include "editors/propertypanel.h"
#include "editors/variableedit.h"
#include "model/applicationstyle.h"
#include "model/fontfamilies.h"
#include "pictures/datafields.h"
#include "tests/editors/coloranswers.h"
#include "tests/support/strictmain.h"
#include "tests/viewers/panelparts.h"
#include "tests/viewers/textboard.h"
#include "viewers/customtexteditor.h"
#include "viewers/textoutput.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QRegularExpression>
#include <QSpinBox>
#include <QToolButton>

namespace
{
QStringList styleButtons()
{
    return {"Auto Size", "Bold", "Italic", "Underlined"};
}

QStringList alignmentButtons()
{
    return {"Horizontal_Center", "Horizontal_Left", "Horizontal_Right",
            "Vertical_Center",   "Vertical_Top",    "Vertical_Bottom"};
}

/// A text at (30, 40) of 200 x 100 px on a canvas of 800 x 400 px and its open panel in the settings column.
struct OpenPanel {
    explicit OpenPanel(const QMap<QString, QVariant> &others = {})
    {
        for (auto value = others.cbegin(); value != others.cend(); ++value)
            item->setValue(value.key(), value.value());
        board.screen()->loadLayout(board.screen()->saveLayout());
        item = board.screen()->items().at(0);
        valuesBefore = item->getValues();
        column.resize(320, 600);
        column.setActiveItem(item);
        column.show();
        QCoreApplication::processEvents();
    }

    /// The font colour's editor is known by its caption.
    VariableEdit *editor(const QString &key) const { return editorFor(key, column); }

    template <class Widget>
    Widget *part(const QString &key) const
    {
        return editor(key)->findChild<Widget *>();
    }

    void click(const QString &button) const { QTest::mouseClick(part<QCheckBox>(button), Qt::LeftButton); }

    /// The alignment that the six buttons show; 0 for an axis without or with several buttons.
    int shownCode() const
    {
        const QMap<QString, int> parts = {{"Horizontal_Center", 20}, {"Horizontal_Left", 10},
                                          {"Horizontal_Right", 30},  {"Vertical_Center", 2},
                                          {"Vertical_Top", 1},       {"Vertical_Bottom", 3}};
        QList<int> checked;
        for (auto part = parts.cbegin(); part != parts.cend(); ++part) {
            if (editor(part.key())->getValue().toBool())
                checked << part.value();
        }
        return checked.size() == 2 ? checked.at(0) + checked.at(1) : 0;
    }

    PropertyPanel *panel() const { return column.findChild<PropertyPanel *>(); }

    TextBoard board;
    ScreenItem *item = board.addText({30, 40, 200, 100});
    SettingsEditor column;
    QMap<QString, QVariant> valuesBefore;
};

void addCodes()
{
    QTest::addColumn<int>("code");
    for (const int code : {11, 12, 13, 21, 22, 23, 31, 32, 33})
        QTest::addRow("%d", code) << code;
}

/// The code after a press of the button.
int pressed(const QString &button, int code)
{
    const int vertical = code % 10;
    const int horizontal = code - vertical;
    const QMap<QString, int> codes = {
        {"Horizontal_Left", 10 + vertical},  {"Horizontal_Center", 20 + vertical},
        {"Horizontal_Right", 30 + vertical}, {"Vertical_Top", horizontal + 1},
        {"Vertical_Center", horizontal + 2}, {"Vertical_Bottom", horizontal + 3}};
    return codes.value(button);
}

QRect placeIn(const QWidget *ancestor, const QWidget *widget)
{
    return {widget->mapTo(ancestor, QPoint()), widget->size()};
}
} // namespace

class tst_TextPanel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void hasAnEditorOfItsTypeForEveryParameter_data();
    void hasAnEditorOfItsTypeForEveryParameter();
    void makesEditorsInOrder();
    void hasTwoCategories();
    void offersDataFieldsAndFonts();
    void captionsTheDataFieldShortly();
    void hidesTheLabelOfTheSize();
    void showsAFontThatIsNotLoaded();
    void tellsNothingWhenItIsBuilt();

    void drawsItsButtonsWithTheseImages_data();
    void drawsItsButtonsWithTheseImages();
    void laysItsButtonsOutInRows();

    void styleButtonsReachTheText_data();
    void styleButtonsReachTheText();
    void fontAndFieldReachTheText();
    void sizeReachesTheTextWithinItsLimits();
    void colorReachesTheText();
    void colorIsNotRefreshed();

    void showsTheLiveAlignment_data();
    void showsTheLiveAlignment();
    void showsANewTextInTheMiddle();
    void followsEveryCode_data();
    void followsEveryCode();
    void alignmentButtonsReachTheText_data();
    void alignmentButtonsReachTheText();
    void alignmentButtonsFollowPressesOfOthers_data();
    void alignmentButtonsFollowPressesOfOthers();
    void repeatedClickIsStored();
    void chosenAlignmentIsSaved();

    void boundsFollowTheItem();
    void styleAppliesToTheSelectionWhileEditing();
    void outlivesItsItem();

    void tabWalksFromTopToBottom();
    void nothingIsClippedInTheColumn();
};

void tst_TextPanel::initTestCase()
{
    applyApplicationStyle();
    FontFamilies::append({"Oswald", "Raleway", "A Family With A Name That Is Longer Than Any Panel Is Wide"});
}

void tst_TextPanel::hasAnEditorOfItsTypeForEveryParameter_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("X") << QByteArray("IntEdit") << QVariant(30);
    QTest::newRow("Y") << QByteArray("IntEdit") << QVariant(40);
    QTest::newRow("W") << QByteArray("IntEdit") << QVariant(200);
    QTest::newRow("H") << QByteArray("IntEdit") << QVariant(100);
    QTest::newRow("Text Type") << QByteArray("EnumEdit") << QVariant("Text");
    QTest::newRow("Font") << QByteArray("FontFamilyEdit") << QVariant("Arial");
    QTest::newRow("Size") << QByteArray("IntEdit") << QVariant(8);
    QTest::newRow("Auto Size") << QByteArray("StyledCheckEdit") << QVariant(true);
    QTest::newRow("Bold") << QByteArray("StyledCheckEdit") << QVariant(false);
    QTest::newRow("Italic") << QByteArray("StyledCheckEdit") << QVariant(false);
    QTest::newRow("Underlined") << QByteArray("StyledCheckEdit") << QVariant(false);
    QTest::newRow(" A  ") << QByteArray("FontColorEdit") << QVariant("#ffffff");
    const QStringList keys = alignmentButtons();
    for (const QString &button : keys) {
        const bool isOn = button == "Horizontal_Left" || button == "Vertical_Top";
        QTest::newRow(qPrintable(button)) << QByteArray("StyledCheckEdit") << QVariant(isOn);
    }
}

void tst_TextPanel::hasAnEditorOfItsTypeForEveryParameter()
{
    const OpenPanel open;
    VariableEdit *edit = open.editor(QTest::currentDataTag());
    QTEST(QByteArray(edit->metaObject()->className()), "type");
    QTEST(edit->getValue(), "value");
    QVERIFY(edit->isVisible());
    // The text itself has none.
    QCOMPARE(open.column.findChildren<VariableEdit *>().size(), 18);
}

void tst_TextPanel::makesEditorsInOrder()
{
    QWidget frame;
    auto *text = new Watched<TextOutput>(&frame);
    QWidget host;
    text->buildSettingsPanel(&host);
    const QStringList expected = QStringList({"X", "Y", "W", "H", "Text Type", "Font", "Size"}) +
                                 styleButtons() + QStringList("Color") + alignmentButtons();
    QCOMPARE(text->readings, expected);
}

void tst_TextPanel::hasTwoCategories()
{
    const OpenPanel open;
    QStringList names;
    for (int i = 0; i < open.panel()->topLevelItemCount(); ++i) {
        const QWidget *header = open.panel()->itemWidget(open.panel()->topLevelItem(i), 0);
        QVERIFY(qobject_cast<const CategoryButton *>(header));
        names << qobject_cast<QLabel *>(header->layout()->itemAt(0)->widget())->text();
    }
    QCOMPARE(names, QStringList({"Area (px)", "Basic Properties"}));
    const QWidget *area = open.panel()->itemWidget(open.panel()->topLevelItem(0)->child(0), 0);
    QCOMPARE(area->findChildren<VariableEdit *>().size(), 4);
    const auto *grid = qobject_cast<QGridLayout *>(area->layout());
    QCOMPARE(grid->itemAtPosition(1, 0)->widget(), open.editor("X"));
    QCOMPARE(grid->itemAtPosition(1, 1)->widget(), open.editor("Y"));
    QCOMPARE(grid->itemAtPosition(2, 0)->widget(), open.editor("W"));
    QCOMPARE(grid->itemAtPosition(2, 1)->widget(), open.editor("H"));
}

void tst_TextPanel::offersDataFieldsAndFonts()
{
    const OpenPanel open;
    const auto offered = [&open](const QString &key) {
        QStringList texts;
        for (int i = 0; i < open.part<QComboBox>(key)->count(); ++i)
            texts << open.part<QComboBox>(key)->itemText(i);
        return texts;
    };
    QCOMPARE(offered("Text Type"), DataFields::names());
    QCOMPARE(offered("Font"), FontFamilies::list() + QStringList("Arial"));
}

void tst_TextPanel::captionsTheDataFieldShortly()
{
    const OpenPanel open;
    QCOMPARE(open.part<QLabel>("Text Type")->text(), QString("Type"));
    QVERIFY(open.part<QLabel>("Text Type")->isVisible());
}

void tst_TextPanel::hidesTheLabelOfTheSize()
{
    const OpenPanel open;
    QCOMPARE(open.part<QLabel>("Size")->text(), QString());
    QVERIFY(!open.part<QLabel>("Size")->isVisible());
    QCOMPARE(open.part<QSpinBox>("Size")->accessibleName(), QString("Size"));
}

void tst_TextPanel::showsAFontThatIsNotLoaded()
{
    const OpenPanel open({{"Font", "Nowhere Sans"}});
    QCOMPARE(open.part<QComboBox>("Font")->currentText(), QString("Nowhere Sans"));
    QCOMPARE(open.item->getValue("Font"), QVariant("Nowhere Sans"));
    QVERIFY(!FontFamilies::list().contains("Nowhere Sans"));
}

void tst_TextPanel::tellsNothingWhenItIsBuilt()
{
    const OpenPanel open({{"Text Type", "No Such Field"},
                          {"Font", "Nowhere Sans"},
                          {"Size", 100000},
                          {"Align_int", 23},
                          {"Bold", true},
                          {"Color", "nonsense"}});
    QCOMPARE(open.item->getValues(), open.valuesBefore);
    QVERIFY(!open.board.screen()->isModified());
}

void tst_TextPanel::drawsItsButtonsWithTheseImages_data()
{
    QTest::addColumn<QString>("path");

    const QString folder = ":/assets/style/textSettingsStyle/";
    QTest::newRow("Auto Size") << folder + "Auto";
    QTest::newRow("Bold") << folder + "Bold";
    QTest::newRow("Italic") << folder + "Italic";
    // Without the d: on purpose.
    QTest::newRow("Underlined") << folder + "Underline";
    QTest::newRow("Horizontal_Center") << folder + "align/h/HAlignC";
    QTest::newRow("Horizontal_Left") << folder + "align/h/HAlignL";
    QTest::newRow("Horizontal_Right") << folder + "align/h/HAlignR";
    QTest::newRow("Vertical_Center") << folder + "align/v/VAlignC";
    QTest::newRow("Vertical_Top") << folder + "align/v/VAlignT";
    QTest::newRow("Vertical_Bottom") << folder + "align/v/VAlignB";
}

void tst_TextPanel::drawsItsButtonsWithTheseImages()
{
    QFETCH(QString, path);
    const OpenPanel open;
    const QString sheet = open.part<QCheckBox>(QTest::currentDataTag())->styleSheet();
    const QMap<QString, QString> images = {{"unchecked", path + "_unchecked.png"},
                                           {"unchecked::hover", path + "_unchecked_hover.png"},
                                           {"checked", path + "_checked.png"}};
    for (auto image = images.cbegin(); image != images.cend(); ++image) {
        const QString rule = QString("QCheckBox::indicator::%1{background-image: url(\"%2\");}")
                                 .arg(image.key(), image.value());
        QVERIFY2(sheet.contains(rule), qPrintable(rule));
        QVERIFY(QFile::exists(image.value()));
    }
}

void tst_TextPanel::laysItsButtonsOutInRows()
{
    const OpenPanel open;
    const QList<QStringList> rows = {styleButtons() + QStringList(" A  "),
                                     {"Horizontal_Left", "Horizontal_Center", "Horizontal_Right",
                                      "Vertical_Top", "Vertical_Center", "Vertical_Bottom"}};
    int below = placeIn(open.panel(), open.editor("Font")).bottom();
    for (const QStringList &row : rows) {
        int right = 0;
        QList<int> lefts;
        for (const QString &key : row) {
            const QRect place = placeIn(open.panel(), open.editor(key));
            QVERIFY2(place.left() > right && place.top() > below, qPrintable(key));
            right = place.right();
            if (key != " A  ")
                QCOMPARE(place.width(), 30);
            lefts << place.left();
        }
        below = placeIn(open.panel(), open.editor(row.first())).bottom();
        // In groups, from the left.
        QCOMPARE(lefts.at(1) - lefts.at(0), 35);
        QCOMPARE(lefts.at(2) - lefts.at(1), 35);
        const int group = row.size() == 5 ? 4 : 3;
        QCOMPARE(lefts.at(group) - lefts.at(group - 1), 50);
    }
    QCOMPARE(open.editor("Size")->width(), 70);
    QVERIFY(open.editor("Font")->width() > 2 * open.editor("Size")->width());
}

void tst_TextPanel::styleButtonsReachTheText_data()
{
    QTest::addColumn<QString>("key");
    const QStringList keys = styleButtons();
    for (const QString &key : keys)
        QTest::newRow(qPrintable(key)) << key;
}

void tst_TextPanel::styleButtonsReachTheText()
{
    QFETCH(QString, key);
    const OpenPanel open;
    const bool before = open.valuesBefore.value(key).toBool();
    for (const bool expected : {!before, before}) {
        open.click(key);
        QCOMPARE(open.item->getValues().value(key), QVariant(expected));
        QCOMPARE(open.part<QCheckBox>(key)->isChecked(), expected);
        QVERIFY(open.board.screen()->isModified());
    }
}

void tst_TextPanel::fontAndFieldReachTheText()
{
    const OpenPanel open;
    QTest::keyClick(open.part<QComboBox>("Font"), Qt::Key_Home);
    QCOMPARE(open.item->getValue("Font"), QVariant("Oswald"));
    QCOMPARE(editorIn(open.item)->textCursor().charFormat().fontFamily(), QString("Oswald"));
    QTest::keyClick(open.part<QComboBox>("Text Type"), Qt::Key_End);
    QCOMPARE(open.item->getValue("Text Type"), QVariant("V Player #5 Points"));
}

void tst_TextPanel::sizeReachesTheTextWithinItsLimits()
{
    const OpenPanel open;
    auto *size = open.part<QSpinBox>("Size");
    QTest::keyClick(size, Qt::Key_Up);
    QCOMPARE(open.item->getValue("Size"), QVariant("9"));
    QCOMPARE(editorIn(open.item)->textCursor().charFormat().fontPointSize(), 9.0);
    QCOMPARE(size->minimum(), 1);
    QCOMPARE(size->maximum(), 512);
    size->selectAll();
    // The third digit would go beyond the limit.
    QTest::keyClicks(size, "999");
    QCOMPARE(open.item->getValue("Size"), QVariant("99"));
    size->selectAll();
    QTest::keyClicks(size, "512");
    QCOMPARE(open.item->getValue("Size"), QVariant("512"));
}

void tst_TextPanel::colorReachesTheText()
{
    const OpenPanel open;
    DialogAnswers answers;
    typeColor(answers, "#12ab3c");
    QTest::mouseClick(open.part<QToolButton>(" A  "), Qt::LeftButton);
    QVERIFY(answers.areUsedUp());
    QCOMPARE(open.item->getValue("Color"), QVariant("#12ab3c"));
    QCOMPARE(editorIn(open.item)->textCursor().charFormat().foreground().color(), QColor(0x12, 0xab, 0x3c));
}

void tst_TextPanel::colorIsNotRefreshed()
{
    const OpenPanel open;
    // The panel knows the editor by its caption, so news under the key pass it by: on purpose.
    emit open.item->valueChanged("Color", "red");
    QCOMPARE(open.editor(" A  ")->getValue(), QVariant("#ffffff"));
    const QStringList others({"Bold", "Vertical_Bottom"});
    for (const QString &key : others) {
        emit open.item->valueChanged(key, true);
        QCOMPARE(open.editor(key)->getValue(), QVariant(true));
    }
}

void tst_TextPanel::showsTheLiveAlignment_data()
{
    addCodes();
}

void tst_TextPanel::showsTheLiveAlignment()
{
    QFETCH(int, code);
    const OpenPanel open({{"Align_int", code}});
    QCOMPARE(open.shownCode(), code);
}

void tst_TextPanel::showsANewTextInTheMiddle()
{
    // A text that was never aligned is shown in the middle.
    OpenPanel fresh;
    fresh.column.setActiveItem(fresh.board.addText({300, 200, 50, 50}));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(fresh.shownCode(), 22);
}

void tst_TextPanel::followsEveryCode_data()
{
    addCodes();
}

void tst_TextPanel::followsEveryCode()
{
    QFETCH(int, code);
    const OpenPanel open;
    for (const int before : {11, 12, 13, 21, 22, 23, 31, 32, 33}) {
        open.item->setValue("Align_int", before);
        open.item->setValue("Align_int", code);
        QCOMPARE(open.item->getValue("Align_int"), QVariant(code));
        QCOMPARE(open.item->getValues().value("Align_int"), QVariant(code));
        QCOMPARE(open.shownCode(), code);
    }
}

void tst_TextPanel::alignmentButtonsReachTheText_data()
{
    addCodes();
}

void tst_TextPanel::alignmentButtonsReachTheText()
{
    QFETCH(int, code);
    const OpenPanel open;
    const QStringList keys = alignmentButtons();
    for (const QString &button : keys) {
        open.item->setValue("Align_int", code);
        if (open.item->getValue(button).toBool())
            continue;
        open.click(button);
        QCOMPARE(open.item->getValue("Align_int"), QVariant(pressed(button, code)));
        QCOMPARE(open.shownCode(), pressed(button, code));
        QVERIFY(open.board.screen()->isModified());
    }
}

void tst_TextPanel::alignmentButtonsFollowPressesOfOthers_data()
{
    addCodes();
}

void tst_TextPanel::alignmentButtonsFollowPressesOfOthers()
{
    QFETCH(int, code);
    const OpenPanel open;
    const QStringList keys = alignmentButtons();
    for (const QString &button : keys) {
        open.item->setValue("Align_int", code);
        open.item->setValue(button, true);
        QCOMPARE(open.item->getValue("Align_int"), QVariant(pressed(button, code)));
        QCOMPARE(open.shownCode(), pressed(button, code));
    }
}

void tst_TextPanel::repeatedClickIsStored()
{
    const OpenPanel open;
    open.click("Vertical_Top");
    QCOMPARE(open.item->getValues().value("Vertical_Top"), QVariant(false));
    QCOMPARE(open.item->getValue("Align_int"), QVariant(11));
    open.click("Vertical_Bottom");
    QCOMPARE(open.shownCode(), 13);
}

void tst_TextPanel::chosenAlignmentIsSaved()
{
    const OpenPanel open;
    open.click("Vertical_Bottom");
    open.click("Horizontal_Right");
    open.board.screen()->loadLayout(open.board.screen()->saveLayout());
    QCOMPARE(open.board.screen()->items().at(0)->getValue("Align_int"), QVariant(33));
}

void tst_TextPanel::boundsFollowTheItem()
{
    const OpenPanel open;
    auto *x = open.part<QSpinBox>("X");
    QTest::keyClick(x, Qt::Key_Up);
    QCOMPARE(open.item->x(), 31);
    QCOMPARE(x->minimum(), 0);
    QCOMPARE(x->maximum(), 600);
    open.item->setValue("W", 300);
    QCOMPARE(open.editor("W")->getValue(), QVariant(300));
    QTest::keyClick(x, Qt::Key_Up);
    QCOMPARE(x->maximum(), 500);
}

void tst_TextPanel::styleAppliesToTheSelectionWhileEditing()
{
    OpenPanel open;
    QVERIFY(open.board.isReady());
    open.board.startEditing(open.item);
    QVERIFY(isEditing(open.item));
    QTest::keyClick(editorIn(open.item), Qt::Key_Left, Qt::ShiftModifier);
    open.click("Bold");
    QVERIFY(isEditing(open.item));
    QCOMPARE(editorIn(open.item)->textCursor().selectedText(), QString("t"));
    const QStringList pieces = described(*editorIn(open.item)->document());
    QCOMPARE(pieces.filter("Tex: ").filter("weight 50").size(), 1);
    QCOMPARE(pieces.filter(QRegularExpression("^t: ")).filter("weight 75").size(), 1);
}

void tst_TextPanel::outlivesItsItem()
{
    OpenPanel open;
    QWidget host;
    open.item->buildSettingsPanel(&host);
    delete open.item;
    const auto boxes = host.findChildren<QCheckBox *>();
    QCOMPARE(boxes.size(), 10);
    for (QCheckBox *box : boxes)
        QTest::mouseClick(box, Qt::LeftButton);
    const auto numbers = host.findChildren<QSpinBox *>();
    for (QSpinBox *number : numbers)
        QTest::keyClick(number, Qt::Key_Up);
    QVERIFY(open.board.screen()->items().isEmpty());
}

void tst_TextPanel::tabWalksFromTopToBottom()
{
    OpenPanel open;
    open.column.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&open.column));
    const auto header = [&open](int i) {
        return open.panel()->itemWidget(open.panel()->topLevelItem(i), 0);
    };
    QWidgetList stops{header(0)};
    for (const char *key : {"X", "Y", "W", "H"})
        stops << open.part<QSpinBox>(key);
    stops << header(1) << open.part<QComboBox>("Text Type") << open.part<QComboBox>("Font")
          << open.part<QSpinBox>("Size");
    const QStringList keys = styleButtons();
    for (const QString &key : keys)
        stops << open.part<QCheckBox>(key);
    stops << open.part<QToolButton>(" A  ");
    for (const char *key : {"Horizontal_Left", "Horizontal_Center", "Horizontal_Right", "Vertical_Top",
                            "Vertical_Center", "Vertical_Bottom"})
        stops << open.part<QCheckBox>(key);
    stops.first()->setFocus();
    for (int i = 1; i < stops.size(); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), stops.at(i));
    }
}

void tst_TextPanel::nothingIsClippedInTheColumn()
{
    const OpenPanel open(
        {{"Font", FontFamilies::list().constLast()}, {"Text Type", "Visitor Time Out Spot"}});
    QCOMPARE(open.column.width(), 320);
    const QRect all = open.panel()->viewport()->rect();
    const auto edits = open.panel()->findChildren<VariableEdit *>();
    QRegion taken;
    for (VariableEdit *edit : edits) {
        const QRect place = placeIn(open.panel()->viewport(), edit);
        QVERIFY2(all.contains(place), qPrintable(edit->getKey()));
        QVERIFY2(!taken.intersects(place), qPrintable(edit->getKey()));
        // Of the numbers beyond its limits the size shows as little as it can.
        const int needed = edit->getKey() == "Size" ? 60 : edit->minimumSizeHint().width();
        QVERIFY2(edit->width() >= needed, qPrintable(edit->getKey()));
        taken += place;
    }
    QVERIFY(open.part<QLabel>("Text Type")->width() >= open.part<QLabel>("Text Type")->sizeHint().width());
}

BOARDWRIGHT_TEST_MAIN(tst_TextPanel)
#include "tst_textpanel.moc"
