#include "canvas/screenitem.h"

#include "canvas/editmodeborderrenderer.h"
#include "canvas/screen.h"

#include "tests/support/boards.h"
#include "tests/support/strictmain.h"

#include <QJsonObject>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace
{
/// A content that notes every call.
class RecordingContent : public ContentViewer
{
public:
    explicit RecordingContent(QWidget *parent) : ContentViewer(parent)
    {
        initValues(QStringLiteral("Recorder"));
    }

    QVector<Definition> getValueNameTypeDefinition() override { return {{"Note", Parameters::Text}}; }
    void anyValueChanged() override { calls.append("anyValueChanged"); }
    QStringList getEnumsFor(QString enumName) override { return {enumName, "other"}; }
    void setValues(QMap<QString, QVariant> values) override
    {
        calls.append("setValues");
        m_values = values;
    }
    QMap<QString, QVariant> getValues() override { return m_values; }
    void setValue(QString key, QVariant value) override
    {
        calls.append("setValue " + key);
        m_values.insert(key, value);
    }
    QVariant getValue(QString key) override { return m_values.value(key); }
    void applyGeometry(QRect geometry) override { applied = geometry; }
    void endEditing() override { calls.append("endEditing"); }
    QVariant getMinValue(QString key) override { return "min " + key; }
    QVariant getMaxValue(QString key) override { return "max " + key; }
    void buildSettingsPanel(QWidget *host) override { panelHost = host; }
    void mouseDoubleClickEvent(QMouseEvent *event) override
    {
        calls.append("doubleClick");
        event->accept();
    }

    QStringList calls;
    QRect applied;
    QWidget *panelHost = nullptr;
};

QByteArrayList signatures(QMetaMethod::MethodType type, QMetaMethod::Access access)
{
    const QMetaObject &meta = ScreenItem::staticMetaObject;
    QByteArrayList result;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == type && meta.method(i).access() == access)
            result.append(meta.method(i).methodSignature());
    }
    return result;
}

QStringList menuTexts(const ScreenItem &frame)
{
    QStringList texts;
    const QList<QAction *> actions = frame.findChild<QMenu *>()->actions();
    for (const QAction *action : actions)
        texts.append(action->text());
    return texts;
}

void doubleClick(QWidget *widget)
{
    QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}
} // namespace

class tst_ScreenItem : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void announcesSignalsInOrder();
    void announcesPublicSlotsInOrder();
    void announcesPrivateSlotsInOrder();

    void startsWithoutSelectionAndActivity();
    void startsAsPartOfTheCanvas();
    void startsAsFocusTakingWidget();
    void startsWithMenuOfFourEntries();
    void startsWithoutCanvas();
    void joinsCanvasLater();
    void joinsNoCanvasForNull();

    void takesContent();
    void raisesBorderAboveContent();
    void raisesBorderWithoutContent();
    void connectsContentBothWays();

    void selectsAndDeselects();
    void becomesActiveItemWhenActivated();
    void deactivateSlotFollowsTheActivatedItem();
    void deactivateSlotDoesNothingInRenderMode();
    void endsEditingInRenderMode();

    void forwardsParametersToContent();
    void answersEmptyWithoutContent();
    void setValueMarksLayoutModified();
    void buildsPanelOfContent();
    void anotherNameMarksTheLayoutModified();
    void writesNameAndContent();
    void writesNameWithoutContent();
    void readsNameAndContent();
    void readsMissingName();
    void passesDoubleClickToContent();

    void cutsSizeToTheCanvas_data();
    void cutsSizeToTheCanvas();
    void tellsNewSize();
    void tellsNewPosition();
    void staysSilentAboutSizeWithoutCanvas();
    void isNotClampedByMoves();

    void layerSlotsActOnTheFrame_data();
    void layerSlotsActOnTheFrame();
    void deleteSlotDeletesSelectionAndFrame();
    void duplicateSlotCopiesSelection();

    void takesEverythingAlongWhenDeleted();
    void isDeletedWhenClosed();
    void leavesTheStyleSheetToItsParts();

private:
    RecordingContent *content() const { return static_cast<RecordingContent *>(m_frame->content()); }

    QScopedPointer<Screen> m_screen;
    ScreenItem *m_frame = nullptr;
};

void tst_ScreenItem::initTestCase()
{
    qRegisterMetaType<ScreenItem *>();
}

void tst_ScreenItem::init()
{
    m_screen.reset(new Screen);
    m_screen->setFixedSize(800, 400);
    m_screen->show();
    QVERIFY(QTest::qWaitForWindowActive(m_screen.data()));
    m_frame = new ScreenItem(m_screen.data());
    new RecordingContent(m_frame);
    m_frame->setGeometry(10, 20, 100, 50);
    content()->calls.clear();
}

void tst_ScreenItem::cleanup()
{
    m_screen.reset();
}

void tst_ScreenItem::announcesSignalsInOrder()
{
    const QByteArrayList expected = {"inFocus(bool)", "outFocus(bool)", "newGeometry(QRect)",
                                     "activated(ScreenItem*)", "valueChanged(QString,QVariant)"};
    QCOMPARE(signatures(QMetaMethod::Signal, QMetaMethod::Public), expected);
}

void tst_ScreenItem::announcesPublicSlotsInOrder()
{
    const QByteArrayList expected = {"deactivateSlot(ScreenItem*)",
                                     "setMyName(QString)",
                                     "getValueNameTypeDefinition()",
                                     "getEnumsFor(QString)",
                                     QMetaObject::normalizedSignature("setValues(QVariantMap)"),
                                     "getValues()",
                                     "setValue(QString,QVariant)",
                                     "getValue(QString)",
                                     "getMaxValue(QString)",
                                     "getMinValue(QString)"};
    QCOMPARE(signatures(QMetaMethod::Slot, QMetaMethod::Public), expected);
    QVERIFY(ScreenItem::staticMetaObject.indexOfSlot("setValues(QMap<QString,QVariant>)") >= 0);
}

void tst_ScreenItem::announcesPrivateSlotsInOrder()
{
    const QByteArrayList expected = {"bringToFrontSlot()", "duplicateSlot()",   "deleteSlot()",
                                     "sendToBackSlot()",   "sendToLayerDown()", "sendToLayerUp()"};
    QCOMPARE(signatures(QMetaMethod::Slot, QMetaMethod::Private), expected);
}

void tst_ScreenItem::startsWithoutSelectionAndActivity()
{
    const ScreenItem *fresh = new ScreenItem(m_screen.data());
    QVERIFY(!fresh->isSelected());
    QVERIFY(!fresh->isInRenderMode());
    QVERIFY(!fresh->showsBorder());
    QVERIFY(!fresh->content());
    QCOMPARE(fresh->name(), QString());
    // It holds the focus, but that alone does not make a new frame the active one.
    QVERIFY(fresh->hasFocus());
    QVERIFY(!fresh->isActive());
}

void tst_ScreenItem::startsAsPartOfTheCanvas()
{
    QCOMPARE(m_frame->parentWidget(), m_screen.data());
    QCOMPARE(m_frame->canvas(), m_screen.data());
    QCOMPARE(m_screen->items(), QList<ScreenItem *>{m_frame});
    QVERIFY(m_frame->isVisible());
    QVERIFY(m_screen->isModified());
}

void tst_ScreenItem::startsAsFocusTakingWidget()
{
    QCOMPARE(m_frame->focusPolicy(), Qt::ClickFocus);
    QVERIFY(m_frame->hasMouseTracking());
    QVERIFY(m_frame->testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(!m_frame->autoFillBackground());
    QVERIFY(qobject_cast<QVBoxLayout *>(m_frame->layout()));
    QCOMPARE(m_frame->layout()->contentsMargins(), QMargins());
}

void tst_ScreenItem::startsWithMenuOfFourEntries()
{
    QCOMPARE(m_frame->findChild<QMenu *>()->parent(), m_frame);
    QCOMPARE(menuTexts(*m_frame),
             (QStringList{"Bring to Front", "Send to Back", "Duplicate Layer", "Delete Layer"}));
}

void tst_ScreenItem::startsWithoutCanvas()
{
    const ScreenItem frame(nullptr);
    QVERIFY(!frame.parent());
    QVERIFY(!frame.canvas());
    QVERIFY(frame.isVisible());
}

void tst_ScreenItem::joinsCanvasLater()
{
    auto *frame = new ScreenItem(nullptr);
    frame->resize(333, 222);
    frame->attachToScreen(m_screen.data());
    QCOMPARE(frame->canvas(), m_screen.data());
    QCOMPARE(m_screen->items(), (QList<ScreenItem *>{m_frame, frame}));
    QCOMPARE(frame->findChild<EditModeBorderRenderer *>()->size(), frame->size());
}

void tst_ScreenItem::joinsNoCanvasForNull()
{
    ScreenItem frame(nullptr);
    frame.attachToScreen(nullptr);
    QVERIFY(!frame.parent());
}

void tst_ScreenItem::takesContent()
{
    auto *frame = new ScreenItem(m_screen.data());
    auto *added = new RecordingContent(nullptr);
    frame->setContent(added);
    QCOMPARE(frame->content(), added);
    QCOMPARE(added->parentWidget(), frame);
    QVERIFY(added->testAttribute(Qt::WA_TransparentForMouseEvents));
    QVERIFY(added->isVisible());
    QCOMPARE(frame->layout()->indexOf(added), 0);
    QCOMPARE(frame->layout()->itemAt(0)->alignment(), Qt::Alignment());
    QCOMPARE(frame->layout()->contentsMargins(), QMargins());
    frame->resize(70, 30);
    QTRY_COMPARE(added->geometry(), QRect(0, 0, 70, 30));
}

void tst_ScreenItem::raisesBorderAboveContent()
{
    QCOMPARE(m_frame->children().constLast(), m_frame->findChild<EditModeBorderRenderer *>());
}

void tst_ScreenItem::raisesBorderWithoutContent()
{
    new QWidget(m_frame);
    m_frame->setContent(nullptr);
    QCOMPARE(m_frame->children().constLast(), m_frame->findChild<EditModeBorderRenderer *>());
    QVERIFY(m_frame->content());
}

void tst_ScreenItem::connectsContentBothWays()
{
    emit m_frame->newGeometry(QRect(1, 2, 3, 4));
    QCOMPARE(content()->applied, QRect(1, 2, 3, 4));
    const QSignalSpy told(m_frame, &ScreenItem::valueChanged);
    emit content()->valueChanged("Note", 7);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.first(), (QList<QVariant>{"Note", 7}));
}

void tst_ScreenItem::selectsAndDeselects()
{
    m_frame->select();
    m_frame->select();
    QVERIFY(m_frame->isSelected());
    QVERIFY(m_frame->showsBorder());
    QCOMPARE(m_screen->selection(), QList<ScreenItem *>{m_frame});
    m_frame->deselect();
    QVERIFY(!m_frame->isSelected());
    QVERIFY(m_screen->selection().isEmpty());
}

void tst_ScreenItem::becomesActiveItemWhenActivated()
{
    auto *other = new ScreenItem(m_screen.data());
    other->select();
    const QSignalSpy settings(m_screen.data(), &Screen::showSettingsFor);
    m_frame->activate();
    QVERIFY(m_frame->isActive());
    QCOMPARE(m_screen->selection(), QList<ScreenItem *>{m_frame});
    QVERIFY(m_frame->isSelected() && !other->isSelected());
    QCOMPARE(settings.size(), 1);
    QCOMPARE(settings.first().first().value<ScreenItem *>(), m_frame);
}

void tst_ScreenItem::deactivateSlotFollowsTheActivatedItem()
{
    m_frame->deactivateSlot(m_frame);
    QVERIFY(m_frame->isSelected());
    QVERIFY(content()->calls.isEmpty());
    m_frame->deactivateSlot(nullptr);
    QVERIFY(!m_frame->isSelected());
    QCOMPARE(content()->calls, QStringList{"endEditing"});
    m_frame->deactivateSlot(new ScreenItem(m_screen.data()));
    QCOMPARE(content()->calls, (QStringList{"endEditing", "endEditing"}));
}

void tst_ScreenItem::deactivateSlotDoesNothingInRenderMode()
{
    m_frame->select();
    m_frame->enterRenderMode();
    content()->calls.clear();
    m_frame->deactivateSlot(nullptr);
    QVERIFY(m_frame->isSelected());
    QVERIFY(content()->calls.isEmpty());
    m_frame->deselect();
    m_frame->deactivateSlot(m_frame);
    QVERIFY(!m_frame->isSelected());
}

void tst_ScreenItem::endsEditingInRenderMode()
{
    m_frame->select();
    m_frame->enterRenderMode();
    QVERIFY(m_frame->isInRenderMode());
    QVERIFY(!m_frame->showsBorder());
    QCOMPARE(content()->calls, QStringList{"endEditing"});
    m_frame->leaveRenderMode();
    QVERIFY(!m_frame->isInRenderMode());
    QVERIFY(m_frame->showsBorder());
    QCOMPARE(content()->calls, QStringList{"endEditing"});
}

void tst_ScreenItem::forwardsParametersToContent()
{
    QCOMPARE(m_frame->getValueNameTypeDefinition(), content()->getValueNameTypeDefinition());
    QCOMPARE(m_frame->getEnumsFor("Kind"), (QStringList{"Kind", "other"}));
    m_frame->setValue("Note", "hello");
    QCOMPARE(m_frame->getValue("Note"), QVariant("hello"));
    QCOMPARE(m_frame->getMinValue("X"), QVariant("min X"));
    QCOMPARE(m_frame->getMaxValue("X"), QVariant("max X"));
    m_frame->setValues({{"Note", 1}});
    QCOMPARE(m_frame->getValues(), (QMap<QString, QVariant>{{"Note", 1}}));
    QCOMPARE(content()->calls, (QStringList{"setValue Note", "setValues"}));
}

void tst_ScreenItem::answersEmptyWithoutContent()
{
    ScreenItem empty(nullptr);
    QVERIFY(empty.getValueNameTypeDefinition().isEmpty());
    QVERIFY(empty.getEnumsFor("Shape").isEmpty());
    empty.setValues({{"X", 1}});
    empty.setValue("X", 1);
    QVERIFY(empty.getValues().isEmpty());
    QVERIFY(!empty.getValue("X").isValid());
    QVERIFY(!empty.getMinValue("X").isValid());
    QVERIFY(!empty.getMaxValue("X").isValid());
    empty.enterRenderMode();
    empty.leaveRenderMode();
    empty.deactivateSlot(nullptr);
}

void tst_ScreenItem::setValueMarksLayoutModified()
{
    m_screen->loadLayout(QJsonObject());
    m_screen->setFixedSize(800, 400);
    auto *empty = new ScreenItem(nullptr);
    empty->setParent(m_screen.data());
    QVERIFY(!m_screen->isModified());
    empty->setValues({});
    QVERIFY(!m_screen->isModified());
    empty->setValue("X", 1);
    QVERIFY(m_screen->isModified());
}

void tst_ScreenItem::buildsPanelOfContent()
{
    QWidget host;
    m_frame->buildSettingsPanel(nullptr);
    QVERIFY(!content()->panelHost);
    m_frame->buildSettingsPanel(&host);
    QCOMPARE(content()->panelHost, &host);
    ScreenItem(nullptr).buildSettingsPanel(&host);
}

void tst_ScreenItem::anotherNameMarksTheLayoutModified()
{
    m_screen->loadLayout(board({shapeObject("Loaded", QRect(10, 20, 100, 50))}));
    ScreenItem *frame = m_screen->items().first();
    frame->setMyName("Loaded");
    QVERIFY(!m_screen->isModified());
    frame->setMyName("Other");
    QCOMPARE(frame->name(), QString("Other"));
    QVERIFY(m_screen->isModified());
}

void tst_ScreenItem::writesNameAndContent()
{
    m_frame->setMyName("Title");
    m_frame->setValue("Note", "hello");
    QCOMPARE(m_frame->toJson(),
             (QJsonObject{{"Type", "Recorder"}, {"Note", "hello"}, {"ScreenItemName", "Title"}}));
}

void tst_ScreenItem::writesNameWithoutContent()
{
    ScreenItem empty(nullptr);
    QCOMPARE(empty.toJson(), (QJsonObject{{"ScreenItemName", ""}}));
}

void tst_ScreenItem::readsNameAndContent()
{
    m_frame->setValue("Note", "old");
    QJsonObject object = {{"ScreenItemName", "Clock"}, {"Note", "new"}};
    QVERIFY(m_frame->fromJson(object));
    QCOMPARE(m_frame->name(), QString("Clock"));
    QCOMPARE(m_frame->getValue("Note"), QVariant("new"));
    QCOMPARE(object, (QJsonObject{{"Note", "new"}}));
}

void tst_ScreenItem::readsMissingName()
{
    m_frame->setMyName("old");
    QJsonObject object;
    // The content lacks its "Note", which is its answer.
    QVERIFY(!m_frame->fromJson(object));
    QCOMPARE(m_frame->name(), QString());
    QVERIFY(!ScreenItem(nullptr).fromJson(object));
}

void tst_ScreenItem::passesDoubleClickToContent()
{
    doubleClick(m_frame);
    QCOMPARE(content()->calls, QStringList{"doubleClick"});
    QVERIFY(!m_frame->isSelected());
    m_frame->enterRenderMode();
    content()->calls.clear();
    doubleClick(m_frame);
    QVERIFY(content()->calls.isEmpty());
    auto *empty = new ScreenItem(m_screen.data());
    doubleClick(empty);
    QVERIFY(!empty->isSelected());
}

void tst_ScreenItem::cutsSizeToTheCanvas_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QSize>("wanted");
    QTest::addColumn<QSize>("cut");
    QTest::newRow("fits") << QPoint(10, 20) << QSize(60, 70) << QSize(60, 70);
    QTest::newRow("too high") << QPoint(0, 300) << QSize(60, 150) << QSize(60, 100);
    QTest::newRow("wide and low is let out") << QPoint(750, 0) << QSize(150, 40) << QSize(150, 40);
    QTest::newRow("tall near the right is widened") << QPoint(600, 0) << QSize(150, 300) << QSize(200, 300);
    QTest::newRow("tall that fits") << QPoint(500, 0) << QSize(150, 300) << QSize(150, 300);
    QTest::newRow("past the bottom") << QPoint(0, 410) << QSize(60, 70) << QSize(60, 0);
}

void tst_ScreenItem::cutsSizeToTheCanvas()
{
    QFETCH(QPoint, position);
    QFETCH(QSize, wanted);
    m_frame->move(position);
    m_frame->resize(wanted);
    QTEST(m_frame->size(), "cut");
    QTEST(m_frame->findChild<EditModeBorderRenderer *>()->size(), "cut");
    QCOMPARE(content()->applied, m_frame->geometry());
}

void tst_ScreenItem::tellsNewSize()
{
    m_screen->loadLayout(QJsonObject());
    m_screen->setFixedSize(800, 400);
    auto *frame = new ScreenItem(nullptr);
    frame->setParent(m_screen.data());
    frame->show();
    const QSignalSpy told(frame, &ScreenItem::newGeometry);
    frame->resize(44, 33);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.first().first().toRect(), frame->geometry());
    QVERIFY(m_screen->isModified());
}

void tst_ScreenItem::tellsNewPosition()
{
    const QSignalSpy told(m_frame, &ScreenItem::newGeometry);
    m_frame->move(77, 66);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.first().first().toRect(), QRect(77, 66, 100, 50));
    m_frame->move(77, 66);
    QCOMPARE(told.size(), 1);
}

void tst_ScreenItem::staysSilentAboutSizeWithoutCanvas()
{
    ScreenItem frame(nullptr);
    const QSignalSpy told(&frame, &ScreenItem::newGeometry);
    QResizeEvent event(QSize(2000, 2000), frame.size());
    QCoreApplication::sendEvent(&frame, &event);
    QVERIFY(told.isEmpty());
}

void tst_ScreenItem::isNotClampedByMoves()
{
    m_frame->move(-30, 390);
    QCOMPARE(m_frame->geometry(), QRect(-30, 390, 100, 50));
}

void tst_ScreenItem::layerSlotsActOnTheFrame_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<QString>("layers");
    QTest::newRow("to the front") << QByteArray("bringToFrontSlot") << "acdb";
    QTest::newRow("to the back") << QByteArray("sendToBackSlot") << "bacd";
    QTest::newRow("one up") << QByteArray("sendToLayerUp") << "acbd";
    QTest::newRow("one down") << QByteArray("sendToLayerDown") << "bacd";
}

void tst_ScreenItem::layerSlotsActOnTheFrame()
{
    QFETCH(QByteArray, slot);
    m_frame->setMyName("a");
    ScreenItem *frame = new ScreenItem(m_screen.data());
    frame->setMyName("b");
    (new ScreenItem(m_screen.data()))->setMyName("c");
    (new ScreenItem(m_screen.data()))->setMyName("d");
    m_screen->selectAllShortcutActivated();
    QVERIFY(QMetaObject::invokeMethod(frame, slot));
    QString layers;
    for (const ScreenItem *item : m_screen->items())
        layers += item->name();
    QTEST(layers, "layers");
    QCOMPARE(m_screen->findChildren<ScreenItem *>(QString(), Qt::FindDirectChildrenOnly), m_screen->items());
}

void tst_ScreenItem::deleteSlotDeletesSelectionAndFrame()
{
    auto *kept = new ScreenItem(m_screen.data());
    (new ScreenItem(m_screen.data()))->select();
    (new ScreenItem(m_screen.data()))->select();
    QVERIFY(QMetaObject::invokeMethod(m_frame, "deleteSlot"));
    QVERIFY(m_screen->selection().isEmpty());
    QCOMPARE(m_screen->items().size(), 4);
    QTRY_COMPARE(m_screen->items(), QList<ScreenItem *>{kept});
}

void tst_ScreenItem::duplicateSlotCopiesSelection()
{
    m_screen->newItem("Shape");
    QVERIFY(QMetaObject::invokeMethod(m_frame, "duplicateSlot"));
    QCOMPARE(m_screen->items().size(), 3);
    QCOMPARE(m_screen->items().constLast()->name(), QString("Shape 0 duplicate"));
    QCOMPARE(m_screen->selection(), QList<ScreenItem *>{m_screen->items().constLast()});
}

void tst_ScreenItem::takesEverythingAlongWhenDeleted()
{
    auto auxiliary = std::make_unique<QObject>();
    const QList<QPointer<QObject>> owned = {m_frame->layout(),
                                            m_frame->findChild<QMenu *>(),
                                            m_frame->content(),
                                            m_frame->findChild<QMenu *>()->actions().first(),
                                            m_frame->findChild<EditModeBorderRenderer *>(),
                                            auxiliary.get()};
    m_frame->addAuxiliary(std::move(auxiliary));
    m_frame->select();
    delete m_frame;
    for (const QPointer<QObject> &object : owned)
        QVERIFY(object.isNull());
    QVERIFY(m_screen->items().isEmpty());
    QVERIFY(m_screen->selection().isEmpty());
}

void tst_ScreenItem::isDeletedWhenClosed()
{
    const QPointer<ScreenItem> frame = m_frame;
    m_frame->close();
    QTRY_VERIFY(frame.isNull());
    QVERIFY(m_screen->items().isEmpty());
}

void tst_ScreenItem::leavesTheStyleSheetToItsParts()
{
    const auto letters = [](const QWidget &widget) {
        return widget.palette().color(QPalette::WindowText);
    };
    m_screen->setStyleSheet("QWidget { color: #ff0000 }");
    m_screen->newItem("Shape");
    const ScreenItem *frame = m_screen->items().constLast();
    QLabel part(frame->content());
    part.show();
    QCOMPARE(letters(part), QColor(Qt::red));
    QVERIFY(letters(*frame) != QColor(Qt::red));
    QVERIFY(letters(*frame->content()) != QColor(Qt::red));
}

BOARDWRIGHT_TEST_MAIN(tst_ScreenItem)
#include "tst_screenitem.moc"
