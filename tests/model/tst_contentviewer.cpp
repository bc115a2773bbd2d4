#include "model/contentviewer.h"

#include "canvas/screen.h"
#include "canvas/screenitem.h"
#include "model/contenthost.h"
#include "model/widgetgeometry.h"
#include "tests/support/strictmain.h"
#include "viewers/shape.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QSignalSpy>

#include <cstring>
#include <functional>
#include <memory>
#include <vector>

namespace
{
using Type = ContentViewer::Parameters::ValueType;
using Values = QMap<QString, QVariant>;

/// A small kind of content that notes what is asked of it.
class Sample : public ContentViewer
{
public:
    explicit Sample(QWidget *parent) : ContentViewer(parent)
    {
        initValues("Sample");
        m_values.insert("Note", "hello");
        m_values.insert("Loud", true);
        m_values.insert("Hidden", "not defined");
        if (parent && parent->objectName() == "without Loud")
            m_values.remove("Loud");
    }

    QVector<Definition> getValueNameTypeDefinition() override
    {
        return {{"Note", Type::Text}, {"X", Type::Int}, {"Y", Type::Int},
                {"W", Type::Int},     {"H", Type::Int}, {"Loud", Type::Check}};
    }
    void anyValueChanged() override
    {
        calls << "anyValueChanged";
        ContentViewer::anyValueChanged();
    }
    void setValue(QString key, QVariant value) override
    {
        calls << "setValue " + key;
        ContentViewer::setValue(key, value);
    }
    void applyGeometry(QRect geometry) override
    {
        calls << "applyGeometry";
        ContentViewer::applyGeometry(geometry);
    }
    QVariant getMinValue(QString key) override { return ContentViewer::getMinValue(key); }
    QVariant getMaxValue(QString key) override { return ContentViewer::getMaxValue(key); }
    void buildSettingsPanel(QWidget *host) override { Q_UNUSED(host) }

    QStringList calls;
};

/// A frame that notes what it is given, and what the content was then.
class Host : public QWidget, public ContentHost
{
public:
    using QWidget::QWidget;

    void setContent(ContentViewer *content) override
    {
        given << content;
        wasParent = content->parentWidget() == this;
    }
    void contentEdited() override {}
    void placeAsStored(const QRect &stored) override
    {
        places << stored;
        if (whenPlaced)
            whenPlaced();
    }

    QList<ContentViewer *> given;
    QList<QRect> places;
    std::function<void()> whenPlaced;
    bool wasParent = false;
};

/// Where a member function stands in the table of virtual functions, as this platform's compilers lay it out.
template <typename Function>
std::size_t virtualPlace(Function function)
{
    std::size_t place = 0;
    std::memcpy(&place, &function, sizeof place);
    return place;
}

QStringList namesOf(const QSignalSpy &spy)
{
    QStringList names;
    for (const QList<QVariant> &arguments : spy)
        names << arguments.at(0).toString();
    return names;
}

Values geometryOf(const Values &values)
{
    return {{"X", values["X"].toInt()},
            {"Y", values["Y"].toInt()},
            {"W", values["W"].toInt()},
            {"H", values["H"].toInt()}};
}

Values geometryValues(const QRect &rectangle)
{
    return {{"X", rectangle.x()}, {"Y", rectangle.y()}, {"W", rectangle.width()}, {"H", rectangle.height()}};
}
} // namespace

class tst_ContentViewer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void numbersItsValueTypes();
    void hasOneSignalThenOneSlot();
    void keepsTheOrderOfItsVirtualOperations();
    void givesItselfToTheFrame();
    void takesAParentThatIsNoFrame();
    void takesNoParent();
    void startsWithTypeAndGeometryOfTheFrame();
    void hasNoEnumsOfItsOwn();
    void setValuesReplacesTheMapAndAppliesItOnce();
    void getValuesAnswersACopy();
    void setValueStoresAndApplies();
    void setValueKeepsUndefinedKeys();
    void tellsKeysApartThatDifferInCase();
    void answersAnInvalidValueForAnUnknownKey();
    void newGeometryIsApplied();
    void applyGeometryStoresAllBeforeItTells();
    void endEditingChangesNothing();
    void limitsGeometryFromBelow_data();
    void limitsGeometryFromBelow();
    void limitsGeometryByFrameAndCanvas_data();
    void limitsGeometryByFrameAndCanvas();
    void hasNoUpperLimitsWithoutACanvas();
    void acceptsDoubleClicks();

    void writesTypeAndDefinedValuesOnly();
    void writesAMissingValueAsNullAndAddsIt();
    void readsDefinitionsInOrderThenAppliesOnce();
    void readsAMissingKeyAsAnInvalidValue();
    void tellsTheHostWhereItWasStored();
    void tellsNoPlaceWithoutGeometryValues();
    void skipsADefinitionThatTheMapLacks();
    void ignoresTypeAndUndefinedKeys();
    void readsValuesByTheirJsonType_data();
    void readsValuesByTheirJsonType();
    void readsBackWhatItWrote();

    void followsItsFrame_data();
    void followsItsFrame();
    void movesItsFrame_data();
    void movesItsFrame();
    void storesWhatTheFrameMadeOfAValue_data();
    void storesWhatTheFrameMadeOfAValue();
    void appliesEveryGeometryValueOfAMap_data();
    void appliesEveryGeometryValueOfAMap();
    void tellsListenersThroughTheFrame_data();
    void tellsListenersThroughTheFrame();
    void staysSilentWhenNothingMoves();
    void loadsWithoutXAtTheLeftEdge();
    void savesLoadedNumbersAsIntegers();
    void survivesHostileGeometry_data();
    void survivesHostileGeometry();

private:
    static void addVisibility();
    void showCanvasAsTheRowSays();

    std::unique_ptr<Host> m_host;
    Sample *m_sample = nullptr;
    std::unique_ptr<Screen> m_screen;
    ScreenItem *m_frame = nullptr;
    Shape *m_shape = nullptr;
    QStringList m_heard; // what the running test was told
};

void tst_ContentViewer::initTestCase()
{
    QLoggingCategory::setFilterRules("default.debug=false");
}

void tst_ContentViewer::init()
{
    m_host = std::make_unique<Host>();
    m_host->setGeometry(3, 4, 50, 60);
    m_sample = new Sample(m_host.get());
    m_sample->calls.clear();
    m_screen = std::make_unique<Screen>();
    m_screen->setFixedSize(800, 400);
    m_frame = new ScreenItem(m_screen.get());
    m_frame->setGeometry(30, 20, 100, 50);
    sendHeldGeometryEvents(m_frame);
    m_shape = new Shape(m_frame);
}

void tst_ContentViewer::cleanup()
{
    m_host.reset();
    m_screen.reset();
}

void tst_ContentViewer::addVisibility()
{
    QTest::addColumn<bool>("isShown");
    QTest::newRow("hidden") << false;
    QTest::newRow("shown") << true;
}

void tst_ContentViewer::showCanvasAsTheRowSays()
{
    QFETCH(bool, isShown);
    if (!isShown)
        return;
    m_screen->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_screen.get()));
}

void tst_ContentViewer::numbersItsValueTypes()
{
    QCOMPARE(int(Type::Int), 0);
    QCOMPARE(int(Type::Text), 1);
    QCOMPARE(int(Type::Enum), 2);
    QCOMPARE(int(Type::Font), 3);
    QCOMPARE(int(Type::Check), 4);
    QCOMPARE(int(Type::Color), 5);
    QCOMPARE(int(Type::FilePath), 6);
}

void tst_ContentViewer::hasOneSignalThenOneSlot()
{
    const QMetaObject &meta = ContentViewer::staticMetaObject;
    QCOMPARE(meta.className(), "ContentViewer");
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    const QMetaMethod signal = meta.method(meta.methodOffset());
    QCOMPARE(signal.methodType(), QMetaMethod::Signal);
    QCOMPARE(signal.methodSignature(), QByteArray("valueChanged(QString,QVariant)"));
    const QMetaMethod slot = meta.method(meta.methodOffset() + 1);
    QCOMPARE(slot.methodType(), QMetaMethod::Slot);
    QCOMPARE(slot.access(), QMetaMethod::Public);
    QCOMPARE(slot.methodSignature(), QByteArray("newGeometrySlot(QRect)"));
    QCOMPARE(slot.parameterNames(), QList<QByteArray>({"geometry"}));
}

void tst_ContentViewer::keepsTheOrderOfItsVirtualOperations()
{
    const std::vector<std::size_t> places = {
        virtualPlace(&ContentViewer::getValueNameTypeDefinition),
        virtualPlace(&ContentViewer::anyValueChanged),
        virtualPlace(&ContentViewer::getEnumsFor),
        virtualPlace(&ContentViewer::setValues),
        virtualPlace(&ContentViewer::getValues),
        virtualPlace(&ContentViewer::setValue),
        virtualPlace(&ContentViewer::getValue),
        virtualPlace(&ContentViewer::applyGeometry),
        virtualPlace(&ContentViewer::endEditing),
        virtualPlace(&ContentViewer::getMinValue),
        virtualPlace(&ContentViewer::getMaxValue),
        virtualPlace(&ContentViewer::buildSettingsPanel),
    };
    for (std::size_t i = 1; i < places.size(); ++i)
        QCOMPARE(places[i] - places[i - 1], sizeof(void *));
}

void tst_ContentViewer::givesItselfToTheFrame()
{
    QCOMPARE(m_host->given, QList<ContentViewer *>({m_sample}));
    QVERIFY(m_host->wasParent);
    QCOMPARE(m_frame->content(), m_shape);
    QCOMPARE(m_shape->parentWidget(), m_frame);
}

void tst_ContentViewer::takesAParentThatIsNoFrame()
{
    QWidget parent;
    const auto *content = new Sample(&parent);
    QCOMPARE(content->parentWidget(), &parent);
}

void tst_ContentViewer::takesNoParent()
{
    Sample content(nullptr);
    QVERIFY(!content.parentWidget());
    content.setValue("X", 10);
    QCOMPARE(content.getValue("X"), QVariant(10));
}

void tst_ContentViewer::startsWithTypeAndGeometryOfTheFrame()
{
    QCOMPARE(m_sample->getValue("Type"), QVariant("Sample"));
    QCOMPARE(geometryOf(m_sample->getValues()), geometryValues(QRect(3, 4, 50, 60)));
}

void tst_ContentViewer::hasNoEnumsOfItsOwn()
{
    QCOMPARE(m_sample->getEnumsFor("Note"), QStringList());
    QCOMPARE(m_sample->getEnumsFor(""), QStringList());
}

void tst_ContentViewer::setValuesReplacesTheMapAndAppliesItOnce()
{
    const QSignalSpy changes(m_sample, &ContentViewer::valueChanged);
    const Values values = {{"X", 7}, {"Other", "kept"}};
    m_sample->setValues(values);
    QCOMPARE(m_sample->getValues(), values);
    QCOMPARE(m_sample->calls, QStringList({"anyValueChanged"}));
    QCOMPARE(m_host->pos(), QPoint(7, 4));
    QCOMPARE(changes.count(), 0);
}

void tst_ContentViewer::getValuesAnswersACopy()
{
    Values copy = m_sample->getValues();
    QCOMPARE(copy["Type"], QVariant("Sample"));
    copy["Note"] = "changed";
    QCOMPARE(m_sample->getValue("Note"), QVariant("hello"));
}

void tst_ContentViewer::setValueStoresAndApplies()
{
    const QSignalSpy changes(m_sample, &ContentViewer::valueChanged);
    m_sample->setValue("Y", 33);
    QCOMPARE(m_sample->getValue("Y"), QVariant(33));
    QCOMPARE(m_sample->calls, QStringList({"setValue Y", "anyValueChanged"}));
    QCOMPARE(m_host->geometry(), QRect(3, 33, 50, 60));
    QCOMPARE(changes.count(), 0); // this frame tells nobody of its new geometry
}

void tst_ContentViewer::setValueKeepsUndefinedKeys()
{
    m_sample->setValue("Mystery", 5);
    QCOMPARE(m_sample->getValues().value("Mystery"), QVariant(5));
    QVERIFY(!m_sample->toJson().contains("Mystery"));
}

void tst_ContentViewer::tellsKeysApartThatDifferInCase()
{
    m_sample->setValue("x", 99);
    QCOMPARE(m_sample->getValue("X"), QVariant(3));
    QCOMPARE(m_sample->getValue("x"), QVariant(99));
    QCOMPARE(m_host->x(), 3);
}

void tst_ContentViewer::answersAnInvalidValueForAnUnknownKey()
{
    const QVariant value = m_sample->getValue("Mystery");
    QVERIFY(!value.isValid());
    QCOMPARE(value.toInt(), 0);
    QCOMPARE(value.toBool(), false);
    QCOMPARE(value.toString(), QString());
    QVERIFY(!m_sample->getValues().contains("Mystery"));
}

void tst_ContentViewer::newGeometryIsApplied()
{
    m_sample->newGeometrySlot(QRect(1, 2, 3, 4));
    QCOMPARE(m_sample->calls, QStringList({"applyGeometry"}));
    QCOMPARE(geometryOf(m_sample->getValues()), geometryValues(QRect(1, 2, 3, 4)));
}

void tst_ContentViewer::applyGeometryStoresAllBeforeItTells()
{
    connect(m_sample, &ContentViewer::valueChanged, this, [this](const QString &key, const QVariant &value) {
        QCOMPARE(geometryOf(m_sample->getValues()), geometryValues(QRect(-1, 2, 30, 40)));
        QCOMPARE(value.userType(), int(QMetaType::Int));
        m_heard << key + ' ' + value.toString();
    });
    m_sample->applyGeometry(QRect(-1, 2, 30, 40));
    QCOMPARE(m_heard, QStringList({"X -1", "W 30", "Y 2", "H 40"}));
}

void tst_ContentViewer::endEditingChangesNothing()
{
    const Values before = m_sample->getValues();
    m_sample->endEditing();
    QCOMPARE(m_sample->getValues(), before);
    QCOMPARE(m_sample->calls, QStringList());
}

void tst_ContentViewer::limitsGeometryFromBelow_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("limit");
    for (const char *key : {"X", "Y", "W", "H"})
        QTest::newRow(key) << key << QVariant(0);
    for (const char *key : {"x", "Note", "Type", "Mystery", "Line Width"})
        QTest::newRow(key) << key << QVariant();
}

void tst_ContentViewer::limitsGeometryFromBelow()
{
    QFETCH(QString, key);
    QFETCH(QVariant, limit);
    QCOMPARE(m_sample->getMinValue(key), limit);
    QCOMPARE(m_sample->getMinValue(key).userType(), limit.userType());
    QCOMPARE(m_shape->getMinValue(key), limit);
}

void tst_ContentViewer::limitsGeometryByFrameAndCanvas_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("limit");
    QTest::addColumn<QVariant>("limitAfterwards");
    QTest::newRow("X") << "X" << QVariant(700) << QVariant(650);
    QTest::newRow("Y") << "Y" << QVariant(350) << QVariant(300);
    QTest::newRow("W") << "W" << QVariant(770) << QVariant(760);
    QTest::newRow("H") << "H" << QVariant(380) << QVariant(370);
    for (const char *key : {"Type", "x", "Line Width", "Mystery"})
        QTest::newRow(key) << key << QVariant() << QVariant();
}

void tst_ContentViewer::limitsGeometryByFrameAndCanvas()
{
    QFETCH(QString, key);
    QFETCH(QVariant, limit);
    QFETCH(QVariant, limitAfterwards);
    QCOMPARE(m_shape->getMaxValue(key), limit);
    QCOMPARE(m_shape->getMaxValue(key).userType(), limit.userType());
    m_frame->setGeometry(40, 30, 150, 100);
    QCOMPARE(m_shape->getMaxValue(key), limitAfterwards);
}

void tst_ContentViewer::hasNoUpperLimitsWithoutACanvas()
{
    Sample alone(nullptr);
    for (const char *key : {"X", "Y", "W", "H", "Note"}) {
        QVERIFY(!alone.getMaxValue(key).isValid());
        QVERIFY(!m_sample->getMaxValue(key).isValid()); // the frame lies on no canvas
    }
}

void tst_ContentViewer::acceptsDoubleClicks()
{
    QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(1, 1), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(m_sample, &event);
    QVERIFY(event.isAccepted());
    QCOMPARE(m_sample->calls, QStringList());
}

void tst_ContentViewer::writesTypeAndDefinedValuesOnly()
{
    const QJsonObject expected = {{"Type", "Sample"}, {"Note", "hello"}, {"X", 3},      {"Y", 4},
                                  {"W", 50},          {"H", 60},         {"Loud", true}};
    QCOMPARE(m_sample->toJson(), expected);
}

void tst_ContentViewer::writesAMissingValueAsNullAndAddsIt()
{
    m_sample->setValues({{"Note", "alone"}});
    const QJsonObject object = m_sample->toJson();
    QVERIFY(object["Type"].isNull());
    QVERIFY(object["Loud"].isNull());
    QVERIFY(object["X"].isNull());
    QCOMPARE(object["Note"], QJsonValue("alone"));
    QCOMPARE(object.size(), 7);
    QVERIFY(m_sample->getValues().contains("Loud"));
    QVERIFY(!m_sample->getValue("Loud").isValid());
}

void tst_ContentViewer::readsDefinitionsInOrderThenAppliesOnce()
{
    QVERIFY(m_sample->fromJson({{"H", 1}, {"W", 2}, {"X", 3}, {"Y", 4}, {"Note", ""}, {"Loud", false}}));
    QStringList expected;
    for (const char *key : {"Note", "X", "Y", "W", "H", "Loud"})
        expected << QString("setValue ") + key << "anyValueChanged";
    expected << "anyValueChanged";
    QCOMPARE(m_sample->calls, expected);
    QCOMPARE(m_host->geometry(), QRect(3, 4, 2, 1));
}

void tst_ContentViewer::readsAMissingKeyAsAnInvalidValue()
{
    QVERIFY(m_sample->fromJson({{"Y", 9}}));
    for (const char *key : {"Note", "X", "W", "H", "Loud"}) {
        QVERIFY(m_sample->getValues().contains(key));
        QVERIFY(!m_sample->getValue(key).isValid());
    }
    QCOMPARE(m_host->geometry(), QRect(0, 9, 0, 0));
}

void tst_ContentViewer::tellsTheHostWhereItWasStored()
{
    QStringList callsBefore;
    m_host->whenPlaced = [&] {
        callsBefore = m_sample->calls;
    };
    QVERIFY(m_sample->fromJson({{"X", 649.5}, {"Y", -3}, {"W", "50"}, {"Note", "n"}}));
    QCOMPARE(m_host->places, QList<QRect>{QRect(650, -3, 50, 0)});
    QCOMPARE(callsBefore, m_sample->calls);
}

void tst_ContentViewer::tellsNoPlaceWithoutGeometryValues()
{
    m_sample->setValues({{"X", 1}, {"Y", 2}, {"W", 3}, {"Note", "n"}});
    QVERIFY(!m_sample->fromJson({{"X", 5}, {"Y", 6}, {"W", 7}, {"H", 8}}));
    QVERIFY(m_host->places.isEmpty());
}

void tst_ContentViewer::skipsADefinitionThatTheMapLacks()
{
    Host host;
    host.setObjectName("without Loud");
    auto *content = new Sample(&host);
    content->calls.clear();
    QVERIFY(!content->fromJson({{"Note", "read"}, {"Loud", true}}));
    QVERIFY(!content->getValues().contains("Loud"));
    QVERIFY(!content->calls.contains("setValue Loud"));
    QCOMPARE(content->getValue("Note"), QVariant("read"));
    QCOMPARE(content->calls.last(), QString("anyValueChanged"));
}

void tst_ContentViewer::ignoresTypeAndUndefinedKeys()
{
    QVERIFY(m_sample->fromJson({{"Type", "Shape"}, {"Hidden", "read"}, {"Mystery", 1}}));
    QCOMPARE(m_sample->getValue("Type"), QVariant("Sample"));
    QCOMPARE(m_sample->getValue("Hidden"), QVariant("not defined"));
    QVERIFY(!m_sample->getValues().contains("Mystery"));
}

void tst_ContentViewer::readsValuesByTheirJsonType_data()
{
    QTest::addColumn<QJsonValue>("stored");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("true") << QJsonValue(true) << QVariant(true);
    QTest::newRow("false") << QJsonValue(false) << QVariant(false);
    QTest::newRow("whole number") << QJsonValue(24) << QVariant(24.0);
    QTest::newRow("fraction") << QJsonValue(2.5) << QVariant(2.5);
    QTest::newRow("text") << QJsonValue("24") << QVariant("24");
    QTest::newRow("null") << QJsonValue() << QVariant::fromValue(nullptr);
    QTest::newRow("list") << QJsonValue(QJsonArray{true}) << QVariant(QVariantList{true});
    QTest::newRow("object") << QJsonValue(QJsonObject{{"a", "b"}}) << QVariant(QVariantMap{{"a", "b"}});
}

void tst_ContentViewer::readsValuesByTheirJsonType()
{
    QFETCH(QJsonValue, stored);
    QFETCH(QVariant, value);
    m_sample->fromJson({{"Note", stored}});
    QCOMPARE(m_sample->getValue("Note").userType(), value.userType());
    QCOMPARE(m_sample->getValue("Note"), value);
    QCOMPARE(m_sample->toJson().value("Note"), stored);
}

void tst_ContentViewer::readsBackWhatItWrote()
{
    m_sample->setValue("Note", QString::fromUtf8("<b>Größe</b>\n"));
    m_sample->setValue("Loud", false);
    const QJsonObject object = m_sample->toJson();
    Host host;
    auto *other = new Sample(&host);
    QVERIFY(other->fromJson(object));
    QCOMPARE(other->toJson(), object);
    QCOMPARE(host.geometry(), m_host->geometry());
}

void tst_ContentViewer::followsItsFrame_data()
{
    addVisibility();
}

void tst_ContentViewer::followsItsFrame()
{
    showCanvasAsTheRowSays();
    emit m_frame->newGeometry(QRect(11, 12, 13, 14));
    QCOMPARE(geometryOf(m_shape->getValues()), geometryValues(QRect(11, 12, 13, 14)));
}

void tst_ContentViewer::movesItsFrame_data()
{
    addVisibility();
}

void tst_ContentViewer::movesItsFrame()
{
    showCanvasAsTheRowSays();
    m_shape->setValue("X", 60);
    QCOMPARE(m_frame->geometry(), QRect(60, 20, 100, 50));
    m_shape->setValue("Y", 70.0);
    QCOMPARE(m_frame->geometry(), QRect(60, 70, 100, 50));
    m_shape->setValue("W", 80);
    QCOMPARE(m_frame->geometry(), QRect(60, 70, 80, 50));
    m_shape->setValue("H", "90");
    QCOMPARE(m_frame->geometry(), QRect(60, 70, 80, 90));
    QCOMPARE(geometryOf(m_shape->getValues()), geometryValues(m_frame->geometry()));
}

void tst_ContentViewer::storesWhatTheFrameMadeOfAValue_data()
{
    addVisibility();
}

/// The clamp of the frame has had its say when the value has been set, also on a hidden canvas.
void tst_ContentViewer::storesWhatTheFrameMadeOfAValue()
{
    showCanvasAsTheRowSays();
    m_shape->setValue("H", 1000);
    QCOMPARE(m_frame->geometry(), QRect(30, 20, 100, 380));
    QCOMPARE(m_shape->getValue("H"), QVariant(380));
    m_shape->setValue("X", 500);
    m_shape->setValue("W", 1000);
    QCOMPARE(m_frame->geometry(), QRect(500, 20, 300, 380));
    QCOMPARE(m_shape->getValue("W"), QVariant(300));
}

void tst_ContentViewer::appliesEveryGeometryValueOfAMap_data()
{
    addVisibility();
}

/// Each step rewrites the map, so only a copy of it still knows the later values.
void tst_ContentViewer::appliesEveryGeometryValueOfAMap()
{
    showCanvasAsTheRowSays();
    Values values = m_shape->getValues();
    for (const char *key : {"X", "Y", "W", "H"})
        values[key] = 2 * values[key].toInt();
    m_shape->setValues(values);
    QCOMPARE(m_frame->geometry(), QRect(60, 40, 200, 100));
    QCOMPARE(geometryOf(m_shape->getValues()), geometryValues(QRect(60, 40, 200, 100)));
}

void tst_ContentViewer::tellsListenersThroughTheFrame_data()
{
    QTest::addColumn<bool>("isShown");
    QTest::addColumn<QString>("key");
    for (const char *key : {"X", "Y", "W", "H"}) {
        QTest::addRow("%s hidden", key) << false << key;
        QTest::addRow("%s shown", key) << true << key;
    }
}

void tst_ContentViewer::tellsListenersThroughTheFrame()
{
    QFETCH(QString, key);
    showCanvasAsTheRowSays();
    const QSignalSpy contentChanges(m_shape, &ContentViewer::valueChanged);
    const QSignalSpy frameChanges(m_frame, &ScreenItem::valueChanged);
    m_shape->setValue(key, 60);
    QCOMPARE(namesOf(contentChanges), QStringList({"X", "W", "Y", "H"}));
    QCOMPARE(namesOf(frameChanges), QStringList({"X", "W", "Y", "H"}));
    const int place = namesOf(contentChanges).indexOf(key);
    QCOMPARE(contentChanges.at(place).at(1), QVariant(60));
}

void tst_ContentViewer::staysSilentWhenNothingMoves()
{
    m_shape->setValue("X", 31);
    const QSignalSpy changes(m_shape, &ContentViewer::valueChanged);
    m_shape->setValue("Color", "red");
    m_shape->setValue("X", 31);
    QCOMPARE(changes.count(), 0);
}

void tst_ContentViewer::loadsWithoutXAtTheLeftEdge()
{
    QJsonObject object = m_shape->toJson();
    object.remove("X");
    QVERIFY(m_shape->fromJson(object));
    QCOMPARE(m_frame->geometry(), QRect(0, 20, 100, 50));
    QCOMPARE(m_shape->getValue("X").toInt(), 0);
}

void tst_ContentViewer::savesLoadedNumbersAsIntegers()
{
    const QJsonObject object = m_shape->toJson();
    QVERIFY(m_shape->fromJson(object));
    QCOMPARE(m_shape->toJson(), object);
    const QByteArray text = QJsonDocument(m_shape->toJson()).toJson();
    QVERIFY(text.contains("\"Opacity\": 100,"));
    QVERIFY(text.contains("\"X\": 30,"));
}

void tst_ContentViewer::survivesHostileGeometry_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("isShown");
    for (const double value : {-1.0, 1e9, -1e9, 1e308, -1e308, 16777215.0, 0.4}) {
        QTest::addRow("%g hidden", value) << value << false;
        QTest::addRow("%g shown", value) << value << true;
    }
}

void tst_ContentViewer::survivesHostileGeometry()
{
    QFETCH(double, value);
    showCanvasAsTheRowSays();
    for (const char *key : {"X", "Y", "W", "H"}) {
        m_shape->fromJson({{key, value}});
        QCOMPARE(m_shape->getValues().size(), 14);
        QVERIFY(qAbs(m_frame->x()) <= 16777215 && qAbs(m_frame->y()) <= 16777215);
    }
    QJsonObject object = m_shape->toJson();
    for (const char *key : {"X", "Y", "W", "H"})
        object[key] = value;
    QVERIFY(m_shape->fromJson(object));
    QVERIFY(m_frame->width() >= 0 && m_frame->height() >= 0);
}

BOARDWRIGHT_TEST_MAIN(tst_ContentViewer)
#include "tst_contentviewer.moc"
