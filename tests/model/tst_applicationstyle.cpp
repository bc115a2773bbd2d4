#include "model/applicationstyle.h"

#include "tests/support/strictmain.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>
#include <QtWidgets>

/// A button of the bar above the canvas as the style sheet sees it: a class name that paints its background.
class ToolBarItem : public QWidget
{
    Q_OBJECT

protected:
    void paintEvent(QPaintEvent *) override
    {
        QStyleOption option;
        option.initFrom(this);
        QPainter painter(this);
        style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    }
};

/// A spin box that tells where the style puts its parts.
class OpenSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    QRect part(QStyle::SubControl part) const
    {
        QStyleOptionSpinBox option;
        initStyleOption(&option);
        return style()->subControlRect(QStyle::CC_SpinBox, &option, part, this);
    }
};

class tst_ApplicationStyle : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void textIsLatin1UpToTheFirstZeroByte_data();
    void textIsLatin1UpToTheFirstZeroByte();
    void fileReplacesTheSheet();
    void fileIsCutAtItsFirstZeroByte();
    void missingFileChangesNothing();
    void ownSheetIsThatOfTheResources();

    void sheetIsParsedWithoutAWarning();
    void sheetIsPlainAscii();
    void rulesStandInTheirOrder_data();
    void rulesStandInTheirOrder();
    void declarationsWithoutVisibleEffectStand_data();
    void declarationsWithoutVisibleEffectStand();
    void imagesOfTheSheetCanBeLoaded();

    void textIsWhiteOnDarkGrey_data();
    void textIsWhiteOnDarkGrey();
    void toolTipIsFramed();
    void fieldsAreFramedAndTall_data();
    void fieldsAreFramedAndTall();
    void spinBoxButtonsShowTheirArrowsOnce();
    void quietWidgetsShowWhatIsBehindThem_data();
    void quietWidgetsShowWhatIsBehindThem();
    void tabBarKeepsTheCommonGround();
    void comboBoxIsFramedAndPadded();
    void comboBoxDropDownHasItsLineAndArrow();
    void pointerBrightensWidgets_data();
    void pointerBrightensWidgets();
    void pointerBrightensComboBoxDropDown();
    void pointerBrightensSpinBoxButtons_data();
    void pointerBrightensSpinBoxButtons();
    void menuBarItemsAreTransparentAndMarked();
    void menuItemsAreTransparentAndMarked();
    void scrollBarIsPlainWithARoundedHandle_data();
    void scrollBarIsPlainWithARoundedHandle();
    void scrollAreasAreDarkAndFrameless_data();
    void scrollAreasAreDarkAndFrameless();
    void fontIsTwelvePixelsHigh_data();
    void fontIsTwelvePixelsHigh();
    void menuIsFramed();
    void itemTypeButtonHasNoFrame();
    void dockShowsWhatIsBehindIt();
    void separatorsFadeOut_data();
    void separatorsFadeOut();
    void toolButtonHasItsArrowAtTheRight();
};

namespace
{
const QRgb ground = qRgb(0x45, 0x45, 0x45);
const QRgb line = qRgb(0x80, 0x80, 0x80);
const QRgb underPointer = qRgb(0x6f, 0x6f, 0x6f);
const QRgb pressed = qRgb(0x88, 0x88, 0x88);
const QRgb deepGround = qRgb(0x2a, 0x2a, 0x2a);
const QRgb behind = qRgb(0x11, 0x22, 0x33);

QString sheetText()
{
    QFile file(":/assets/style/style.qss");
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
}

/// The sheet's rules in their order: selectors as they are spelled (white space run together), settings.
QVector<QPair<QString, QStringList>> rules()
{
    static const QRegularExpression comment("/\\*.*?\\*/", QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression rule("([^{}]+)\\{([^{}]*)\\}");
    QVector<QPair<QString, QStringList>> list;
    auto matches = rule.globalMatch(sheetText().remove(comment));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        QStringList settings;
        const QStringList parts = match.captured(2).split(';');
        for (const QString &setting : parts)
            settings << setting.simplified();
        settings.removeAll(QString());
        list << qMakePair(match.captured(1).simplified(), settings);
    }
    return list;
}

QRgb pixel(const QImage &picture, int x, int y)
{
    return picture.pixel(x, y) | 0xff000000;
}

QImage picture(QWidget &widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QImage plainPicture(const QSize &size, QRgb color)
{
    QImage plain(size, QImage::Format_RGB32);
    plain.fill(color);
    return plain;
}

/// What the widget looks like in its own size while the pointer is over it.
QImage pictureUnderPointer(QWidget &widget, const QPoint &position)
{
    widget.setAttribute(Qt::WA_UnderMouse);
    QHoverEvent enter(QEvent::HoverEnter, position, QPoint(-1, -1));
    QCoreApplication::sendEvent(&widget, &enter);
    QHoverEvent move(QEvent::HoverMove, position, QPoint(-1, -1));
    QCoreApplication::sendEvent(&widget, &move);
    QMouseEvent pointer(QEvent::MouseMove, position, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &pointer);
    return picture(widget);
}

/// The centres of the places in the picture at which the whole image is seen, judged by its opaque pixels.
QVector<QPoint> centresOf(const QString &path, const QImage &picture)
{
    const QImage image = QImage(path).convertToFormat(QImage::Format_ARGB32);
    const auto isAt = [&image, &picture](int left, int top) {
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb wanted = image.pixel(x, y);
                if (qAlpha(wanted) == 255 && pixel(picture, left + x, top + y) != wanted)
                    return false;
            }
        }
        return true;
    };
    QVector<QPoint> centres;
    for (int y = 0; y + image.height() <= picture.height(); ++y) {
        for (int x = 0; x + image.width() <= picture.width(); ++x) {
            if (isAt(x, y))
                centres << QRect(QPoint(x, y), image.size()).center();
        }
    }
    return centres;
}

/// Whether the image is seen once, in the middle of the area or, where sizes are odd and even, next to it.
bool showsOnceAt(const QRect &area, const QString &path, const QImage &picture)
{
    const QVector<QPoint> centres = centresOf(path, picture);
    return centres.size() == 1 && centres.first().x() == area.center().x() &&
           qAbs(centres.first().y() - area.center().y()) <= 1;
}

/// Whether all four edges are one line of the colour, the rounded corners apart.
bool isFramed(const QImage &picture, QRgb color)
{
    for (int x = 5; x < picture.width() - 5; ++x) {
        if (pixel(picture, x, 0) != color || pixel(picture, x, picture.height() - 1) != color)
            return false;
    }
    for (int y = 5; y < picture.height() - 5; ++y) {
        if (pixel(picture, 0, y) != color || pixel(picture, picture.width() - 1, y) != color)
            return false;
    }
    return pixel(picture, 1, picture.height() / 2) != color;
}

/// The upper left corner of a frame of this radius, one pixel wide, on the common ground.
QImage modelCorner(int radius, QRgb filling)
{
    QWidget parent;
    auto *model = new QLabel(&parent);
    model->setObjectName("model");
    model->setStyleSheet(
        QStringLiteral("#model{border: 1px solid #808080; border-radius: %1px; background: %2;}")
            .arg(radius)
            .arg(QColor(filling).name()));
    model->resize(60, 60);
    return picture(parent).copy(0, 0, radius + 2, radius + 2);
}

/// The same part of a picture.
QImage corner(const QImage &picture, int radius)
{
    return picture.copy(0, 0, radius + 2, radius + 2);
}

QRect comboBoxPart(QComboBox &box, QStyle::SubControl part)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    option.subControls = QStyle::SC_All;
    return box.style()->subControlRect(QStyle::CC_ComboBox, &option, part, &box);
}

QRect scrollBarPart(QScrollBar &bar, QStyle::SubControl part)
{
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.subControls = QStyle::SC_All;
    option.orientation = bar.orientation();
    option.maximum = bar.maximum();
    option.pageStep = bar.pageStep();
    option.sliderPosition = option.sliderValue = bar.value();
    if (bar.orientation() == Qt::Horizontal)
        option.state |= QStyle::State_Horizontal;
    return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, part, &bar);
}

/// Lays the widget over a ground of the colour `behind`.
void putOnGround(QWidget &parent, QWidget &child)
{
    parent.setObjectName("ground");
    parent.setAttribute(Qt::WA_StyledBackground);
    parent.setStyleSheet(QStringLiteral("#ground{background:%1;}").arg(QColor(behind).name()));
    child.setParent(&parent);
    child.setGeometry(10, 10, 80, 40);
    parent.resize(100, 60);
}

void addWidgetRows(const QVector<QByteArray> &classes)
{
    QTest::addColumn<QByteArray>("kind");
    for (const QByteArray &kind : classes)
        QTest::newRow(kind.constData()) << kind;
}

template <typename Widget>
QWidget *make()
{
    return new Widget;
}

std::unique_ptr<QWidget> made(const QByteArray &kind)
{
    using Maker = QWidget *(*)();
    static const QHash<QByteArray, Maker> makers = {
        {"QWidget", make<QWidget>},
        {"QLabel", make<QLabel>},
        {"QLineEdit", make<QLineEdit>},
        {"QSpinBox", make<QSpinBox>},
        {"QDoubleSpinBox", make<QDoubleSpinBox>},
        {"QPushButton", make<QPushButton>},
        {"QToolButton", make<QToolButton>},
        {"QCheckBox", make<QCheckBox>},
        {"QComboBox", make<QComboBox>},
        {"QSlider", make<QSlider>},
        {"QSplitter", make<QSplitter>},
        {"QMenu", make<QMenu>},
        {"QMenuBar", make<QMenuBar>},
        {"QScrollArea", make<QScrollArea>},
        {"QTextEdit", make<QTextEdit>},
        {"QTreeWidget", make<QTreeWidget>},
        {"ToolBarItem", make<ToolBarItem>},
    };
    return std::unique_ptr<QWidget>(makers.value(kind)());
}
} // namespace

void tst_ApplicationStyle::init()
{
    applyApplicationStyle();
}

void tst_ApplicationStyle::textIsLatin1UpToTheFirstZeroByte_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("no zero byte") << QByteArray("*{color:red}") << "*{color:red}";
    QTest::newRow("zero byte inside") << QByteArray("one\0two\0three", 13) << "one";
    QTest::newRow("zero byte first") << QByteArray("\0one", 4) << QString();
    QTest::newRow("zero byte last") << QByteArray("one\0", 4) << "one";
    QTest::newRow("upper half") << QByteArray("\x80\xc4\xe9\xff")
                                << QStringLiteral(u"\u0080\u00c4\u00e9\u00ff");
}

void tst_ApplicationStyle::textIsLatin1UpToTheFirstZeroByte()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);

    QCOMPARE(styleSheetText(bytes), text);
}

void tst_ApplicationStyle::fileReplacesTheSheet()
{
    QTemporaryDir folder;
    QFile file(folder.filePath("other.qss"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("QLabel{color:#123456} /* \xe9 */");
    file.close();

    applyStyleSheetFile(file.fileName());

    QCOMPARE(qApp->styleSheet(), QStringLiteral(u"QLabel{color:#123456} /* \u00e9 */"));
    QLabel label;
    label.ensurePolished();
    QCOMPARE(label.palette().color(label.foregroundRole()), QColor(0x12, 0x34, 0x56));
}

void tst_ApplicationStyle::fileIsCutAtItsFirstZeroByte()
{
    QTemporaryDir folder;
    QFile file(folder.filePath("cut.qss"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray("QLabel{color:red}\0QLabel{color:blue}", 36));
    file.close();

    applyStyleSheetFile(file.fileName());

    QCOMPARE(qApp->styleSheet(), QString("QLabel{color:red}"));
}

void tst_ApplicationStyle::missingFileChangesNothing()
{
    const QString before = qApp->styleSheet();

    applyStyleSheetFile(":/assets/style/none.qss");

    QVERIFY(!before.isEmpty());
    QCOMPARE(qApp->styleSheet(), before);
}

void tst_ApplicationStyle::ownSheetIsThatOfTheResources()
{
    qApp->setStyleSheet(QString());
    applyApplicationStyle();

    QVERIFY(!sheetText().isEmpty());
    QCOMPARE(qApp->styleSheet(), sheetText());
}

void tst_ApplicationStyle::sheetIsParsedWithoutAWarning()
{
    QPushButton button;
    // An unexpected warning fails the running function.
    QVERIFY(!picture(button).isNull());
}

void tst_ApplicationStyle::sheetIsPlainAscii()
{
    const QString text = sheetText();
    for (const QChar character : text)
        QVERIFY(character == '\n' || (character >= ' ' && character <= '~'));
}

// Rules of the same weight win by standing later, and some spellings match nothing on purpose.
void tst_ApplicationStyle::rulesStandInTheirOrder_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("selectors");

    const char *const hover =
        "QPushButton:hover, QToolButton:hover, ToolBarItem:hover, QMenuBar::item:selected, "
        "QMenu::item:selected, QComboBox::drop-down:hover, QAbstractSpinBox::up-button:hover, "
        "QAbstractSpinBox::down-button:hover";
    const char *const expected[] = {
        "QLineEdit,QAbstractSpinBox,QLabel,QWidget, QToolTip",
        "QLineEdit,QAbstractSpinBox,QToolTip",
        "QAbstractSpinBox::up-button",
        "QAbstractSpinBox::down-button",
        "QLabel,QSlider,QSplitter,QTabBa",
        "QComboBox",
        "QComboBox::drop-down",
        "QLineEdit,QAbstractSpinBox,QPushButton",
        hover,
        "QMenuBar::item, QMenu::item",
        "QMenuBar::item:pressed, QMenu::item:pressed",
        "QScrollBar",
        "QScrollBar::add-line, QScrollBar::sub-line, QScrollBar::add-page, QScrollBar::sub-page",
        "QScrollBar::handle",
        "QScrollBar:vertical",
        "QScrollBar:horizontal",
        "QScrollArea",
        "QScrollArea, QAbstractScrollArea, QWidget[isScrollArea=\"true\"]",
        "CustomTextEditor",
        "*",
        "QMenu",
        "#ItemType",
        "QDockWidget",
        "QMainWindow::separator::vertical",
        "QMainWindow::separator::horizontal",
        "QToolButton",
        "QToolButton:hover",
    };
    int place = 0;
    for (const char *selectors : expected)
        QTest::newRow(selectors) << place++ << QString(selectors);
}

void tst_ApplicationStyle::rulesStandInTheirOrder()
{
    QFETCH(int, place);
    QFETCH(QString, selectors);

    QCOMPARE(rules().size(), 27);
    QCOMPARE(rules().at(place).first, selectors);
}

void tst_ApplicationStyle::declarationsWithoutVisibleEffectStand_data()
{
    QTest::addColumn<QString>("selectors");
    QTest::addColumn<QStringList>("settings");

    QTest::newRow("overridden by the taller fields")
        << "QLineEdit,QAbstractSpinBox,QToolTip"
        << QStringList(
               {"color: white", "border-radius: 2px", "border: 1px solid #808080", "min-height: 15px"});
    QTest::newRow("centred where Qt centres anyway")
        << "QLineEdit,QAbstractSpinBox,QPushButton"
        << QStringList({"color: white", "border-radius: 2px", "border: 1px solid #808080", "min-height: 21px",
                        "text-align: center", "padding: 3px"});
    QTest::newRow("same origin and side as Qt's own drop down")
        << "QComboBox::drop-down"
        << QStringList({"subcontrol-origin: padding", "subcontrol-position: top right", "width: 15px",
                        "border-left: 1px solid darkgray", "border-top-right-radius: 3px",
                        "border-bottom-right-radius: 3px", "image: url(\":/assets/style/combo_box.png\")"});
    QTest::newRow("a height that Qt does not heed for items without a box")
        << "QMenuBar::item, QMenu::item"
        << QStringList({"background-color: transparent", "min-height: 24px"});
    QTest::newRow("a scroll bar has no border of its own") << "QScrollBar" << QStringList("border: none");
    QTest::newRow("text on the board") << "CustomTextEditor" << QStringList({"background: transparent"});
    QTest::newRow("red is painted over") << "QScrollArea" << QStringList({"background-color: red"});
    QTest::newRow("a separator without margins")
        << "QMainWindow::separator::vertical"
        << QStringList({"width: 2px", "margin: 0px",
                        "background: qlineargradient(x1: 0, y1: 0, x2: 1, y2: 0, "
                        "stop: 0 #808080, stop: 1 transparent)"});
    QTest::newRow("a lying separator without margins")
        << "QMainWindow::separator::horizontal"
        << QStringList({"height: 2px", "margin: 0px",
                        "background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, "
                        "stop: 0 #808080, stop: 1 transparent)"});
    QTest::newRow("tool button text is centred anyway")
        << "QToolButton"
        << QStringList({"color: white", "border-radius: 2px", "border: 1px solid #808080", "min-height: 21px",
                        "text-align: center", "padding: 3px",
                        "background-image: url(\":/assets/interface/widget_down.png\")",
                        "background-repeat: no-repeat", "background-position: right"});
    QTest::newRow("a hover that stands twice")
        << "QToolButton:hover" << QStringList({"background-color: #6F6F6F"});
}

void tst_ApplicationStyle::declarationsWithoutVisibleEffectStand()
{
    QFETCH(QString, selectors);
    QFETCH(QStringList, settings);

    QVERIFY(rules().contains(qMakePair(selectors, settings)));
}

void tst_ApplicationStyle::imagesOfTheSheetCanBeLoaded()
{
    static const QRegularExpression url("url\\(\"([^\"]*)\"\\)");
    QStringList paths;
    auto matches = url.globalMatch(sheetText());
    while (matches.hasNext()) {
        paths << matches.next().captured(1);
        QVERIFY2(!QImage(paths.last()).isNull(), qPrintable(paths.last()));
    }

    QCOMPARE(paths, QStringList({":/assets/style/up.png", ":/assets/style/down.png",
                                 ":/assets/style/combo_box.png", ":/assets/interface/widget_down.png"}));
    QCOMPARE(sheetText().count("url("), paths.size());
}

void tst_ApplicationStyle::textIsWhiteOnDarkGrey_data()
{
    addWidgetRows({"QWidget", "QLineEdit", "QSpinBox", "QDoubleSpinBox", "QPushButton", "QToolButton",
                   "QComboBox", "QCheckBox", "QMenuBar"});
}

void tst_ApplicationStyle::textIsWhiteOnDarkGrey()
{
    QFETCH(QByteArray, kind);
    const auto widget = made(kind);
    widget->resize(80, 40);

    const QImage shot = picture(*widget);

    QCOMPARE(widget->palette().color(widget->foregroundRole()), QColor(Qt::white));
    QCOMPARE(pixel(shot, 50, 4), ground);
}

void tst_ApplicationStyle::toolTipIsFramed()
{
    expectWarning("raise()");
    QToolTip::showText(QPoint(0, 0), "tip");
    QWidget *tip = nullptr;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->inherits("QTipLabel") && window->isVisible())
            tip = window;
    }
    QVERIFY(tip);

    QCOMPARE(tip->palette().color(tip->foregroundRole()), QColor(Qt::white));
    QCOMPARE(tip->minimumHeight(), 15 + 2);
    tip->resize(60, 30);
    const QImage shot = picture(*tip);
    QVERIFY(isFramed(shot, line));
    QVERIFY(pixel(shot, 0, 0) != line);
    QCOMPARE(pixel(shot, 55, 25), ground);
    delete tip;
}

void tst_ApplicationStyle::fieldsAreFramedAndTall_data()
{
    addWidgetRows({"QLineEdit", "QSpinBox", "QDoubleSpinBox", "QPushButton", "QToolButton"});
}

void tst_ApplicationStyle::fieldsAreFramedAndTall()
{
    QFETCH(QByteArray, kind);
    const auto widget = made(kind);
    widget->resize(80, 40);

    const QImage shot = picture(*widget);

    QVERIFY(isFramed(shot, line));
    QCOMPARE(corner(shot, 2), modelCorner(2, ground));
    QCOMPARE(widget->minimumHeight(), 21 + 2 * 3 + 2 * 1);
}

void tst_ApplicationStyle::spinBoxButtonsShowTheirArrowsOnce()
{
    OpenSpinBox box;
    box.resize(80, 29);

    const QImage shot = picture(box);

    QVERIFY(showsOnceAt(box.part(QStyle::SC_SpinBoxUp), ":/assets/style/up.png", shot));
    QVERIFY(showsOnceAt(box.part(QStyle::SC_SpinBoxDown), ":/assets/style/down.png", shot));
}

void tst_ApplicationStyle::quietWidgetsShowWhatIsBehindThem_data()
{
    addWidgetRows({"QLabel", "QSlider", "QSplitter"});
}

void tst_ApplicationStyle::quietWidgetsShowWhatIsBehindThem()
{
    QFETCH(QByteArray, kind);
    QWidget parent;
    QWidget *widget = made(kind).release();
    if (auto *frame = qobject_cast<QFrame *>(widget))
        frame->setFrameShape(QFrame::Box);
    putOnGround(parent, *widget);

    const QImage shot = picture(parent);

    QCOMPARE(pixel(shot, 10, 10), behind);
    QCOMPARE(pixel(shot, 50, 10), behind);
    QCOMPARE(pixel(shot, 85, 45), behind);
}

void tst_ApplicationStyle::tabBarKeepsTheCommonGround()
{
    QWidget parent;
    auto *tabs = new QTabBar;
    tabs->setAttribute(Qt::WA_StyledBackground);
    putOnGround(parent, *tabs);

    QCOMPARE(pixel(picture(parent), 85, 45), ground);
}

void tst_ApplicationStyle::comboBoxIsFramedAndPadded()
{
    QComboBox box;
    box.ensurePolished();
    const int em = QFontMetrics(box.font()).height();
    QCOMPARE(box.minimumHeight(), 24 + 2 * 1 + 2 * 1);
    QCOMPARE(box.minimumWidth(), 6 * em + 3 + 18 + 2 * 1);

    box.resize(150, 28);
    const QImage shot = picture(box);

    QVERIFY(isFramed(shot, QColor("gray").rgb()));
    QCOMPARE(corner(shot, 3), modelCorner(3, ground));
    QCOMPARE(comboBoxPart(box, QStyle::SC_ComboBoxEditField), QRect(4, 2, 150 - 2 - 21 - 16, 24));
}

void tst_ApplicationStyle::comboBoxDropDownHasItsLineAndArrow()
{
    QComboBox box;
    box.resize(150, 28);

    const QImage shot = picture(box);

    const QRect button = comboBoxPart(box, QStyle::SC_ComboBoxArrow);
    QCOMPARE(button, QRect(150 - 1 - 16, 1, 16, 26));
    for (int y = button.top(); y <= button.bottom(); ++y)
        QCOMPARE(pixel(shot, button.left(), y), QColor("darkgray").rgb());
    QVERIFY(showsOnceAt(button.adjusted(1, 0, 0, 0), ":/assets/style/combo_box.png", shot));
}

void tst_ApplicationStyle::pointerBrightensWidgets_data()
{
    addWidgetRows({"QPushButton", "QToolButton", "ToolBarItem"});
}

void tst_ApplicationStyle::pointerBrightensWidgets()
{
    QFETCH(QByteArray, kind);
    const auto widget = made(kind);
    widget->resize(80, 40);
    QCOMPARE(pixel(picture(*widget), 40, 20), ground);

    QCOMPARE(pixel(pictureUnderPointer(*widget, QPoint(40, 20)), 40, 20), underPointer);
}

void tst_ApplicationStyle::pointerBrightensComboBoxDropDown()
{
    QComboBox box;
    box.resize(150, 28);
    const QRect button = comboBoxPart(box, QStyle::SC_ComboBoxArrow);

    const QImage shot = pictureUnderPointer(box, button.center());

    QCOMPARE(pixel(shot, button.left() + 1, button.top()), underPointer);
    QCOMPARE(pixel(shot, button.left() + 1, button.bottom()), underPointer);
    QVERIFY(pixel(shot, button.right(), button.top()) != underPointer);
    QVERIFY(pixel(shot, button.right(), button.bottom()) != underPointer);
    QCOMPARE(pixel(shot, button.left() - 5, button.center().y()), ground);
    QCOMPARE(centresOf(":/assets/style/combo_box.png", shot).size(), 1);
}

void tst_ApplicationStyle::pointerBrightensSpinBoxButtons_data()
{
    QTest::addColumn<int>("brightened");
    QTest::addColumn<int>("other");

    QTest::newRow("up") << int(QStyle::SC_SpinBoxUp) << int(QStyle::SC_SpinBoxDown);
    QTest::newRow("down") << int(QStyle::SC_SpinBoxDown) << int(QStyle::SC_SpinBoxUp);
}

void tst_ApplicationStyle::pointerBrightensSpinBoxButtons()
{
    QFETCH(int, brightened);
    QFETCH(int, other);
    OpenSpinBox box;
    box.resize(80, 29);
    const QRect button = box.part(QStyle::SubControl(brightened));
    const QRect otherButton = box.part(QStyle::SubControl(other));

    const QImage shot = pictureUnderPointer(box, button.center());

    QCOMPARE(pixel(shot, button.left() + 1, button.top() + 3), underPointer);
    QCOMPARE(pixel(shot, otherButton.left() + 1, otherButton.top() + 3), ground);
    QCOMPARE(centresOf(":/assets/style/up.png", shot).size(), 1);
    QCOMPARE(centresOf(":/assets/style/down.png", shot).size(), 1);
}

void tst_ApplicationStyle::menuBarItemsAreTransparentAndMarked()
{
    QMenuBar bar;
    bar.setNativeMenuBar(false);
    QAction *action = bar.addAction("Help");
    bar.setStyleSheet(QStringLiteral("QMenuBar{background:%1;}").arg(QColor(behind).name()));
    bar.resize(200, 40);
    bar.setAttribute(Qt::WA_DontShowOnScreen);
    bar.show();
    const QPoint corner = bar.actionGeometry(action).topLeft() + QPoint(1, 1);

    QCOMPARE(pixel(picture(bar), corner.x(), corner.y()), behind);
    QCOMPARE(pixel(pictureUnderPointer(bar, corner), corner.x(), corner.y()), underPointer);
    QTest::mousePress(&bar, Qt::LeftButton, Qt::NoModifier, corner);
    QCOMPARE(pixel(picture(bar), corner.x(), corner.y()), pressed);
}

void tst_ApplicationStyle::menuItemsAreTransparentAndMarked()
{
    QMenu menu;
    QAction *action = menu.addAction("New");
    menu.setStyleSheet(QStringLiteral("QMenu{background:%1;}").arg(QColor(behind).name()));
    menu.resize(menu.sizeHint());
    const QPoint corner = menu.actionGeometry(action).topLeft() + QPoint(1, 1);

    QCOMPARE(pixel(picture(menu), corner.x(), corner.y()), behind);
    menu.setActiveAction(action);
    QCOMPARE(pixel(picture(menu), corner.x(), corner.y()), underPointer);
    QTest::mousePress(&menu, Qt::LeftButton, Qt::NoModifier, corner);
    QCOMPARE(pixel(picture(menu), corner.x(), corner.y()), pressed);
}

void tst_ApplicationStyle::scrollBarIsPlainWithARoundedHandle_data()
{
    QTest::addColumn<int>("orientation");

    QTest::newRow("vertical") << int(Qt::Vertical);
    QTest::newRow("horizontal") << int(Qt::Horizontal);
}

void tst_ApplicationStyle::scrollBarIsPlainWithARoundedHandle()
{
    QFETCH(int, orientation);
    QScrollBar bar(static_cast<Qt::Orientation>(orientation));
    bar.setRange(0, 100);
    bar.setPageStep(50);
    bar.setValue(50);
    bar.ensurePolished();
    const bool isUpright = orientation == Qt::Vertical;
    QCOMPARE(isUpright ? bar.sizeHint().width() : bar.sizeHint().height(), 15);
    bar.resize(isUpright ? QSize(15, 200) : QSize(200, 15));

    const QImage shot = picture(bar);

    const QRect handle = scrollBarPart(bar, QStyle::SC_ScrollBarSlider);
    QVERIFY(isFramed(shot.copy(handle), line));
    QCOMPARE(corner(shot.copy(handle), 5), modelCorner(5, underPointer));
    QCOMPARE(pixel(shot, handle.center().x(), handle.center().y()), underPointer);
    QImage rest = shot;
    // The rounded corners are blended one pixel beyond the handle.
    const QRect withRim = isUpright ? handle.adjusted(0, -1, 0, 1) : handle.adjusted(-1, 0, 1, 0);
    QPainter(&rest).fillRect(withRim, QColor(ground));
    QCOMPARE(rest, plainPicture(shot.size(), ground));
}

void tst_ApplicationStyle::scrollAreasAreDarkAndFrameless_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QByteArray>("isScrollArea");

    QTest::newRow("QScrollArea") << QByteArray("QScrollArea") << QByteArray();
    QTest::newRow("QTextEdit") << QByteArray("QTextEdit") << QByteArray();
    QTest::newRow("QTreeWidget") << QByteArray("QTreeWidget") << QByteArray();
    QTest::newRow("a widget that says so") << QByteArray("QPushButton") << QByteArray("true");
}

void tst_ApplicationStyle::scrollAreasAreDarkAndFrameless()
{
    QFETCH(QByteArray, kind);
    QFETCH(QByteArray, isScrollArea);
    const auto widget = made(kind);
    if (!isScrollArea.isEmpty())
        widget->setProperty("isScrollArea", isScrollArea);
    if (auto *tree = qobject_cast<QTreeWidget *>(widget.get()))
        tree->setHeaderHidden(true);
    widget->resize(200, 60);

    QCOMPARE(picture(*widget), plainPicture(widget->size(), deepGround));
}

void tst_ApplicationStyle::fontIsTwelvePixelsHigh_data()
{
    addWidgetRows({"QWidget", "QLabel", "QLineEdit", "QSpinBox", "QPushButton", "QToolButton", "QComboBox",
                   "QMenu", "QMenuBar", "QTextEdit", "QTreeWidget"});
}

void tst_ApplicationStyle::fontIsTwelvePixelsHigh()
{
    QFETCH(QByteArray, kind);
    const auto widget = made(kind);
    widget->ensurePolished();

    QCOMPARE(widget->font().pixelSize(), 12);
}

void tst_ApplicationStyle::menuIsFramed()
{
    QMenu menu;
    menu.addAction("New");
    menu.resize(menu.sizeHint());

    QVERIFY(isFramed(picture(menu), line));
}

void tst_ApplicationStyle::itemTypeButtonHasNoFrame()
{
    QPushButton button;
    button.setObjectName("ItemType");
    button.resize(50, 50);

    QCOMPARE(picture(button), plainPicture(button.size(), ground));
}

void tst_ApplicationStyle::dockShowsWhatIsBehindIt()
{
    QWidget parent;
    auto *dock = new QDockWidget;
    dock->setAttribute(Qt::WA_StyledBackground);
    putOnGround(parent, *dock);

    QCOMPARE(pixel(picture(parent), 50, 45), behind);
}

void tst_ApplicationStyle::separatorsFadeOut_data()
{
    QTest::addColumn<Qt::DockWidgetArea>("area");
    QTest::addColumn<QPoint>("step");

    QTest::newRow("between left and middle") << Qt::LeftDockWidgetArea << QPoint(1, 0);
    QTest::newRow("between top and middle") << Qt::TopDockWidgetArea << QPoint(0, 1);
}

void tst_ApplicationStyle::separatorsFadeOut()
{
    QFETCH(Qt::DockWidgetArea, area);
    QFETCH(QPoint, step);
    QMainWindow window;
    auto *dock = new QDockWidget;
    window.addDockWidget(area, dock);
    window.setCentralWidget(new QWidget);
    window.resize(300, 300);
    dock->show();

    const QImage shot = picture(window);

    const bool isUpright = step.x() == 1;
    const QPoint first =
        isUpright ? QPoint(dock->geometry().right() + 1, 150) : QPoint(150, dock->geometry().bottom() + 1);
    QCOMPARE(window.centralWidget()->geometry().topLeft(),
             isUpright ? QPoint(first.x() + 2, 0) : QPoint(0, first.y() + 2));
    QCOMPARE(pixel(shot, first.x(), first.y()), qRgb(0x71, 0x71, 0x71));
    QCOMPARE(pixel(shot, first.x() + step.x(), first.y() + step.y()), qRgb(0x54, 0x54, 0x54));
}

void tst_ApplicationStyle::toolButtonHasItsArrowAtTheRight()
{
    QToolButton button;
    button.resize(80, 31);
    const QVector<QPoint> atTheRight = {QPoint(80 - 1 - 8, 15)};

    QCOMPARE(centresOf(":/assets/interface/widget_down.png", picture(button)), atTheRight);
    const QImage shot = pictureUnderPointer(button, QPoint(5, 5));
    QCOMPARE(centresOf(":/assets/interface/widget_down.png", shot), atTheRight);
}

BOARDWRIGHT_TEST_MAIN(tst_ApplicationStyle)
#include "tst_applicationstyle.moc"
