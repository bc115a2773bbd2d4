#include "viewers/shape.h"

#include "tests/support/strictmain.h"

#include <QMouseEvent>
#include <QMoveEvent>
#include <QResizeEvent>
#include <QSignalSpy>

#include <memory>

namespace
{
using Type = ContentViewer::Parameters::ValueType;

/// Counts its paints.
class WatchedShape : public Shape
{
public:
    using Shape::Shape;

    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        Shape::paintEvent(event);
    }
};

/// Notes every move and resize that a frame is told.
class GeometryLog : public QObject
{
public:
    using QObject::QObject;

    QStringList lines;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Move) {
            const QPoint to = static_cast<QMoveEvent *>(event)->pos();
            lines << QStringLiteral("to %1,%2").arg(to.x()).arg(to.y());
        } else if (event->type() == QEvent::Resize) {
            const QSize size = static_cast<QResizeEvent *>(event)->size();
            lines << QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
        }
        return QObject::eventFilter(watched, event);
    }
};

QStringList linesOf(const QSignalSpy &spy)
{
    QStringList lines;
    for (const QList<QVariant> &arguments : spy)
        lines << arguments.at(0).toString() + ' ' + arguments.at(1).toString();
    return lines;
}
} // namespace

class tst_Shape : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void definesItsParametersInOrder();
    void startsWithItsDefaults_data();
    void startsWithItsDefaults();
    void holdsTypeAndSizeBesideItsParameters();
    void startsWithItsOwnGeometryWithoutAParent();
    void keepsNothingOutsideTheMap();
    void listsItsEnums_data();
    void listsItsEnums();
    void limitsItsValues_data();
    void limitsItsValues();
    void repaintsAtEveryReading();
    void repaintsAfterEveryChange();
    void readsAnUnknownKeyAsInvalid();
    void storesTheFramesGeometryThenTells();
    void tellsTheLogOfEveryChange();
    void appliesGeometryInTheOrderOfTheKeys();
    void leavesTheFrameAloneForMissingKeys();
    void writesItsSizeIntoTheMapInSilence();
    void writesItsOwnPositionWithoutAParent();
    void acceptsDoubleClicks();
    void writesNoSizeToFiles();

private:
    std::unique_ptr<QWidget> m_canvas;
    QWidget *m_frame = nullptr;
    WatchedShape *m_shape = nullptr;
};

void tst_Shape::init()
{
    m_canvas = std::make_unique<QWidget>();
    m_canvas->resize(800, 400);
    m_frame = new QWidget(m_canvas.get());
    m_frame->setGeometry(30, 20, 100, 50);
    m_shape = new WatchedShape(m_frame);
    m_shape->resize(100, 50);
    m_canvas->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_canvas.get()));
    QTRY_VERIFY(m_shape->paints > 0);
    QCoreApplication::processEvents();
    m_shape->paints = 0;
}

void tst_Shape::cleanup()
{
    m_canvas.reset();
}

void tst_Shape::definesItsParametersInOrder()
{
    const QVector<ContentViewer::Definition> expected = {
        {"Shape", Type::Enum},   {"Align", Type::Enum},     {"X", Type::Int},
        {"Y", Type::Int},        {"W", Type::Int},          {"H", Type::Int},
        {"Opacity", Type::Int},  {"Fill", Type::Check},     {"Color", Type::Color},
        {"Border", Type::Check}, {"Line Width", Type::Int}, {"Border Color", Type::Color}};
    QCOMPARE(m_shape->getValueNameTypeDefinition(), expected);
}

void tst_Shape::startsWithItsDefaults_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("Shape") << QVariant("Round Rectangle");
    QTest::newRow("Align") << QVariant("Center");
    QTest::newRow("X") << QVariant(30);
    QTest::newRow("Y") << QVariant(20);
    QTest::newRow("W") << QVariant(100);
    QTest::newRow("H") << QVariant(50);
    QTest::newRow("Opacity") << QVariant(100);
    QTest::newRow("Fill") << QVariant(true);
    QTest::newRow("Color") << QVariant("black");
    QTest::newRow("Border") << QVariant(true);
    QTest::newRow("Line Width") << QVariant(1);
    QTest::newRow("Border Color") << QVariant("white");
    QTest::newRow("Type") << QVariant("Shape");
    QTest::newRow("Size") << QVariant(QFont().pixelSize());
}

void tst_Shape::startsWithItsDefaults()
{
    QFETCH(QVariant, value);
    auto *fresh = new Shape(m_frame);
    const QVariant stored = fresh->getValues().value(QTest::currentDataTag());
    QCOMPARE(stored.userType(), value.userType());
    QCOMPARE(stored, value);
}

void tst_Shape::holdsTypeAndSizeBesideItsParameters()
{
    QCOMPARE(m_shape->getValues().size(), m_shape->getValueNameTypeDefinition().size() + 2);
}

void tst_Shape::startsWithItsOwnGeometryWithoutAParent()
{
    Shape shape(nullptr);
    QCOMPARE(shape.getValue("X"), QVariant(shape.x()));
    QCOMPARE(shape.getValue("Y"), QVariant(shape.y()));
    QCOMPARE(shape.getValue("W"), QVariant(shape.width()));
    QCOMPARE(shape.getValue("H"), QVariant(shape.height()));
    QVERIFY(shape.width() > 0);
}

void tst_Shape::keepsNothingOutsideTheMap()
{
    QCOMPARE(sizeof(Shape), sizeof(ContentViewer));
}

void tst_Shape::listsItsEnums_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::newRow("Shape") << QStringList(
        {"Rectangle", "Round Rectangle", "Square", "Round Square", "Horizontal Line", "Vertical Line"});
    QTest::newRow("Align") << QStringList({"Top", "Center", "Bottom", "Right", "Left"});
    for (const char *name : {"shape", "Color", "Fill", "X", "Type", "Mystery"})
        QTest::newRow(name) << QStringList();
}

void tst_Shape::listsItsEnums()
{
    QTEST(m_shape->getEnumsFor(QTest::currentDataTag()), "words");
}

void tst_Shape::limitsItsValues_data()
{
    QTest::addColumn<QVariant>("least");
    QTest::addColumn<QVariant>("most");
    QTest::newRow("X") << QVariant(0) << QVariant(700);
    QTest::newRow("Y") << QVariant(0) << QVariant(350);
    QTest::newRow("W") << QVariant(0) << QVariant(770);
    QTest::newRow("H") << QVariant(0) << QVariant(380);
    QTest::newRow("Opacity") << QVariant(0) << QVariant(100);
    for (const char *name : {"Line Width", "Size", "Shape", "Fill", "opacity", "Mystery"})
        QTest::newRow(name) << QVariant() << QVariant();
}

void tst_Shape::limitsItsValues()
{
    const QString key = QTest::currentDataTag();
    QTEST(m_shape->getMinValue(key), "least");
    QTEST(m_shape->getMaxValue(key), "most");
    Shape alone(nullptr);
    QVERIFY(!alone.getMaxValue("X").isValid());
    QCOMPARE(alone.getMaxValue("Opacity"), QVariant(100));
}

void tst_Shape::repaintsAtEveryReading()
{
    m_shape->getValue("Color");
    QCOMPARE(m_shape->paints, 0); // scheduled, not painted at once
    QTRY_COMPARE(m_shape->paints, 1);
    m_shape->getValue("Mystery");
    QTRY_COMPARE(m_shape->paints, 2);
}

void tst_Shape::repaintsAfterEveryChange()
{
    m_shape->setValue("Color", "red");
    QCOMPARE(m_shape->paints, 0);
    QTRY_COMPARE(m_shape->paints, 1);
}

void tst_Shape::readsAnUnknownKeyAsInvalid()
{
    QVERIFY(!m_shape->getValue("Mystery").isValid());
    QVERIFY(!m_shape->getValues().contains("Mystery"));
}

void tst_Shape::storesTheFramesGeometryThenTells()
{
    const QSignalSpy changes(m_shape, &ContentViewer::valueChanged);
    m_shape->newGeometrySlot(QRect(1, -2, 30, 40));
    QCOMPARE(linesOf(changes), QStringList({"X 1", "W 30", "Y -2", "H 40"}));
    QCOMPARE(m_shape->getValue("Y"), QVariant(-2));
    QCOMPARE(m_shape->getValue("H"), QVariant(40));
    QCOMPARE(m_frame->geometry(), QRect(30, 20, 100, 50));
}

void tst_Shape::tellsTheLogOfEveryChange()
{
    QTest::ignoreMessage(QtDebugMsg, "void Shape::anyValueChanged()");
    m_shape->anyValueChanged();
    QTest::ignoreMessage(QtDebugMsg, "void Shape::anyValueChanged()");
    m_shape->setValue("Fill", false);
    QTest::ignoreMessage(QtDebugMsg, "void Shape::anyValueChanged()");
    m_shape->setValues(m_shape->getValues());
}

void tst_Shape::appliesGeometryInTheOrderOfTheKeys()
{
    GeometryLog log;
    m_frame->installEventFilter(&log);
    QMap<QString, QVariant> values = m_shape->getValues();
    values["X"] = 1;
    values["Y"] = 2;
    values["W"] = 333;
    values["H"] = 44;
    m_shape->setValues(values);
    QCOMPARE(log.lines, QStringList({"100x44", "333x44", "to 1,20", "to 1,2"}));
}

void tst_Shape::leavesTheFrameAloneForMissingKeys()
{
    GeometryLog log;
    m_frame->installEventFilter(&log);
    m_shape->setValues({{"Shape", "Square"}, {"W", 60}});
    QCOMPARE(log.lines, QStringList({"60x50"}));
}

void tst_Shape::writesItsSizeIntoTheMapInSilence()
{
    m_frame->move(7, 8);
    const QSignalSpy changes(m_shape, &ContentViewer::valueChanged);
    m_shape->setGeometry(3, 4, 55, 66);
    QCOMPARE(m_shape->getValue("X"), QVariant(7));
    QCOMPARE(m_shape->getValue("Y"), QVariant(8));
    QCOMPARE(m_shape->getValue("W"), QVariant(55));
    QCOMPARE(m_shape->getValue("H"), QVariant(66));
    QCOMPARE(changes.count(), 0);
    QCOMPARE(m_frame->geometry(), QRect(7, 8, 100, 50));
}

void tst_Shape::writesItsOwnPositionWithoutAParent()
{
    WatchedShape shape(nullptr);
    shape.move(12, 13);
    QResizeEvent event(QSize(70, 80), QSize(1, 1));
    QCoreApplication::sendEvent(&shape, &event);
    QCOMPARE(shape.getValue("X"), QVariant(12));
    QCOMPARE(shape.getValue("Y"), QVariant(13));
    QCOMPARE(shape.getValue("W"), QVariant(70));
    QCOMPARE(shape.getValue("H"), QVariant(80));
}

void tst_Shape::acceptsDoubleClicks()
{
    QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(1, 1), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    event.ignore();
    m_shape->mouseDoubleClickEvent(&event);
    QVERIFY(event.isAccepted());
}

void tst_Shape::writesNoSizeToFiles()
{
    const QJsonObject expected = {{"Type", "Shape"},
                                  {"Shape", "Round Rectangle"},
                                  {"Align", "Center"},
                                  {"X", 30},
                                  {"Y", 20},
                                  {"W", 100},
                                  {"H", 50},
                                  {"Opacity", 100},
                                  {"Fill", true},
                                  {"Color", "black"},
                                  {"Border", true},
                                  {"Line Width", 1},
                                  {"Border Color", "white"}};
    QCOMPARE(m_shape->toJson(), expected);
}

BOARDWRIGHT_TEST_MAIN(tst_Shape)
#include "tst_shape.moc"
