#include "viewers/mediaviewer.h"

#include "tests/support/dialoganswers.h"
#include "tests/support/eventcounter.h"
#include "tests/support/strictmain.h"
#include "tests/viewers/mediaboard.h"
#include "tests/viewers/mediafolder.h"
#include "viewers/animationviewer.h"
#include "viewers/imagevieweritem.h"
#include "viewers/videovieweritem.h"

#include <QJsonObject>
#include <QRegularExpression>
#include <QSignalSpy>

#include <memory>

namespace
{
using Type = ContentViewer::Parameters::ValueType;

MediaViewer *makeContent(const QString &type, QWidget *frame)
{
    if (type == "Image Viewer")
        return new ImageViewerItem(frame);
    if (type == "Animation Viewer")
        return new AnimationViewer(frame);
    return new VideoViewerItem(frame);
}

QStringList linesOf(const QSignalSpy &spy)
{
    QStringList lines;
    for (const QList<QVariant> &arguments : spy)
        lines << arguments.at(0).toString() + ' ' + arguments.at(1).toString();
    return lines;
}
} // namespace

/// What image, animation and video items have in common; every test runs with each of them.
class tst_MediaViewer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void init();
    void cleanup() { m_screen.reset(); }

    void definesItsParametersInOrder();
    void startsWithItsDefaults();
    void startsWithItsOwnGeometryWithoutAFrame();
    void listsAlignThoughItIsNoParameter();
    void limitsItsGeometry();
    void tellsTheLogOfEveryChange();
    void tellsTheLogWhatALimitLeavesOut();
    void appliesGeometryInOrder();
    void storesWhatItDoesNotKnow();
    void movesTheFrame_data();
    void movesTheFrame();
    void storesThePathBeforeItTakesTheSize();
    void movesThePictureWithoutReadingItAnew();
    void leavesTheFrameAloneForMissingKeys();
    void repaintsAfterEveryChange();

    void asksForAnyFile();
    void storesTheChosenFileThenTellsThenSetsIt();
    void storesTheAnswerOfTheDialogAsItIs();
    void cancellingStoresTheEmptyPath();
    void survivesItsDeletionUnderTheDialog();
    void asksWithoutAFrame();

    void writesItsParametersAndNothingElse();
    void isReadAsItWasWritten_data();
    void isReadAsItWasWritten();
    void isReadWithoutItsFile();
    void readsMissingValuesAsNothing();

private:
    QString chosenFile() const { return m_folder.movie(QSize(64, 32), "chosen.gif"); }

    MediaFolder m_folder;
    std::unique_ptr<Screen> m_screen;
    ScreenItem *m_frame = nullptr;
    MediaViewer *m_content = nullptr;
    QString m_type;
    QByteArray m_className;
    QStringList m_heard; // what the frame told, in the test that listens
};

void tst_MediaViewer::initTestCase_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QByteArray>("className");
    QTest::newRow("image") << "Image Viewer" << QByteArray("ImageViewerItem");
    QTest::newRow("animation") << "Animation Viewer" << QByteArray("AnimationViewer");
    QTest::newRow("video") << "Video Viewer" << QByteArray("VideoViewerItem");
}

void tst_MediaViewer::init()
{
    QFETCH_GLOBAL(QString, type);
    QFETCH_GLOBAL(QByteArray, className);
    m_type = type;
    m_className = className;
    m_heard.clear();
    QLoggingCategory::setFilterRules("default.debug=false");
    m_screen = std::make_unique<Screen>();
    m_screen->setWidgth(800);
    m_screen->setHeight(400);
    m_frame = new ScreenItem(m_screen.get());
    m_frame->setGeometry(30, 20, 100, 50);
    m_content = makeContent(type, m_frame);
    m_screen->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_screen.get()));
}

void tst_MediaViewer::definesItsParametersInOrder()
{
    const QVector<ContentViewer::Definition> expected = {
        {"Path", Type::FilePath}, {"X", Type::Int}, {"Y", Type::Int}, {"W", Type::Int}, {"H", Type::Int}};
    QCOMPARE(m_content->getValueNameTypeDefinition(), expected);
    QCOMPARE(m_content->metaObject()->className(), m_className.constData());
}

void tst_MediaViewer::startsWithItsDefaults()
{
    const QMap<QString, QVariant> expected = {
        {"Type", m_type}, {"Path", QString("")}, {"X", 30}, {"Y", 20}, {"W", 100}, {"H", 50}};
    QCOMPARE(m_content->getValues(), expected);
    QVERIFY(!m_content->getValue("Align").isValid());
}

void tst_MediaViewer::startsWithItsOwnGeometryWithoutAFrame()
{
    const std::unique_ptr<MediaViewer> alone(makeContent(m_type, nullptr));
    QCOMPARE(alone->getValue("W"), QVariant(alone->width()));
    QCOMPARE(alone->getValue("H"), QVariant(alone->height()));
    alone->setValue("X", 7);
    QCOMPARE(alone->getValue("X"), QVariant(7));
}

void tst_MediaViewer::listsAlignThoughItIsNoParameter()
{
    QCOMPARE(m_content->getEnumsFor("Align"), QStringList({"Top", "Center", "Bottom", "Right", "Left"}));
    for (const char *other : {"", "align", "Path", "X", "Shape", "Type"})
        QVERIFY(m_content->getEnumsFor(other).isEmpty());
}

void tst_MediaViewer::limitsItsGeometry()
{
    const QMap<QString, int> highest = {{"X", 700}, {"Y", 350}, {"W", 770}, {"H", 380}};
    for (auto limit = highest.cbegin(); limit != highest.cend(); ++limit) {
        QCOMPARE(m_content->getMinValue(limit.key()), QVariant(0));
        QCOMPARE(m_content->getMaxValue(limit.key()), QVariant(limit.value()));
    }
    for (const char *other : {"Path", "Type", "Size", "Align", ""}) {
        QVERIFY(!m_content->getMinValue(other).isValid());
        QVERIFY(!m_content->getMaxValue(other).isValid());
    }
}

void tst_MediaViewer::tellsTheLogOfEveryChange()
{
    QLoggingCategory::setFilterRules("default.debug=true");
    QTest::ignoreMessage(QtDebugMsg, "void " + m_className + "::anyValueChanged()");
    m_content->anyValueChanged();
    QTest::ignoreMessage(QtDebugMsg, "void " + m_className + "::anyValueChanged()");
    m_content->setValue("Y", 25);
    QLoggingCategory::setFilterRules("default.debug=false");
}

void tst_MediaViewer::tellsTheLogWhatALimitLeavesOut()
{
    if (m_type == "Video Viewer")
        QSKIP("reads no file");
    QByteArray bytes = Gif{{4, 4}, {Qt::red}}.bytes();
    const QString path = m_folder.file("huge.gif", bytes.replace(6, 4, QByteArray::fromHex("ffffffff")));
    m_frame->setMyName("Logo");
    QLoggingCategory::setFilterRules("default.debug=true");
    const QString line = QString("%1 \"Logo\" leaves out \"%2\": it has more than 128000000 pixels");
    QTest::ignoreMessage(QtDebugMsg, qPrintable(line.arg(QString(m_className), path)));
    QTest::ignoreMessage(QtDebugMsg, "void " + m_className + "::anyValueChanged()");
    m_content->setValue("Path", path);
    QLoggingCategory::setFilterRules("default.debug=false");
}

void tst_MediaViewer::appliesGeometryInOrder()
{
    QSignalSpy changes(m_content, &ContentViewer::valueChanged);
    m_content->applyGeometry({1, 2, 3, 4});
    QCOMPARE(linesOf(changes), QStringList({"X 1", "W 3", "Y 2", "H 4"}));
    QCOMPARE(m_content->getValue("W"), QVariant(3));
}

void tst_MediaViewer::storesWhatItDoesNotKnow()
{
    m_content->setValue("Note", 7);
    m_content->setValue("Align", "Left");
    QCOMPARE(m_content->getValue("Note"), QVariant(7));
    QCOMPARE(m_content->getValues().size(), 8);
    QVERIFY(!m_content->toJson().contains("Note"));
    QVERIFY(!m_content->toJson().contains("Align"));
}

void tst_MediaViewer::movesTheFrame_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QRect>("geometry");
    QTest::newRow("X") << QVariant(300) << QRect(300, 20, 100, 50);
    QTest::newRow("Y") << QVariant(300.0) << QRect(30, 300, 100, 50);
    QTest::newRow("W") << QVariant(300) << QRect(30, 20, 300, 50);
    QTest::newRow("H") << QVariant("300") << QRect(30, 20, 100, 300);
}

void tst_MediaViewer::movesTheFrame()
{
    QFETCH(QVariant, value);
    QFETCH(QRect, geometry);
    QSignalSpy changes(m_frame, &ScreenItem::valueChanged);
    m_frame->setValue(QTest::currentDataTag(), value);
    QCOMPARE(m_frame->geometry(), geometry);
    QCOMPARE(m_content->size(), geometry.size());
    QStringList keys;
    for (const QList<QVariant> &change : qAsConst(changes))
        keys << change.at(0).toString();
    QCOMPARE(keys, QStringList({"X", "W", "Y", "H"}));
}

void tst_MediaViewer::storesThePathBeforeItTakesTheSize()
{
    connect(m_content, &ContentViewer::valueChanged, this,
            [this](const QString &key) { m_heard << key + ' ' + m_content->getValue("Path").toString(); });
    const QString path = chosenFile();
    m_content->setValue("Path", path);
    QCOMPARE(m_heard.isEmpty(), m_type == "Video Viewer");
    for (const QString &line : qAsConst(m_heard))
        QVERIFY(line.endsWith(' ' + path));
}

void tst_MediaViewer::movesThePictureWithoutReadingItAnew()
{
    m_content->setValue("Path", chosenFile());
    const QSize shown = m_frame->size();
    QVERIFY(!m_folder.movie(QSize(11, 12), "chosen.gif").isEmpty());
    m_content->setValue("X", 200);
    m_content->setValue("Note", 1);
    QCOMPARE(m_frame->geometry(), QRect(QPoint(200, 20), shown));
}

void tst_MediaViewer::leavesTheFrameAloneForMissingKeys()
{
    m_content->setValues({{"X", 40}});
    QCOMPARE(m_frame->geometry(), QRect(40, 20, 100, 50));
    m_content->setValues({});
    QCOMPARE(m_frame->geometry(), QRect(40, 20, 100, 50));
}

void tst_MediaViewer::repaintsAfterEveryChange()
{
    const EventCounter paints(m_content, QEvent::Paint);
    QCoreApplication::processEvents();
    const int before = paints.count;
    m_content->setValue("Path", "");
    QTRY_VERIFY(paints.count > before);
}

void tst_MediaViewer::asksForAnyFile()
{
    DialogAnswers answers;
    QWidget *parent = nullptr;
    answers.act([&parent](QDialog *dialog) {
        parent = dialog->parentWidget();
        dialog->reject();
        return true;
    });
    m_content->chooseFile();
    QCOMPARE(parent, m_content);
    const SeenDialog seen = answers.seen().value(0);
    QCOMPARE(seen.className, QString("QFileDialog"));
    QCOMPARE(seen.title, QString("Select any file..."));
    QCOMPARE(seen.fileMode, QFileDialog::ExistingFile);
    QCOMPARE(seen.acceptMode, QFileDialog::AcceptOpen);
    QVERIFY(!m_content->findChild<QDialog *>());
}

void tst_MediaViewer::storesTheChosenFileThenTellsThenSetsIt()
{
    const QString path = chosenFile();
    connect(m_frame, &ScreenItem::valueChanged, this, [this](const QString &key, const QVariant &value) {
        m_heard
            << QString("%1 %2, stored %3").arg(key, value.toString(), m_content->getValue("Path").toString());
    });
    DialogAnswers answers;
    answers.choose(path);
    m_content->chooseFile();
    QVERIFY(answers.areUsedUp());
    QCOMPARE(m_heard.takeFirst(), "Path " + path + ", stored " + path);
    QCOMPARE(m_frame->size(), m_type == "Video Viewer" ? QSize(100, 50) : QSize(64, 32));
    QCOMPARE(m_heard.isEmpty(), m_type == "Video Viewer");
    QVERIFY(m_heard.filter(QRegularExpression("^Path")).isEmpty());
}

void tst_MediaViewer::storesTheAnswerOfTheDialogAsItIs()
{
    const QString path = m_folder.file("of no kind", "no picture");
    DialogAnswers answers;
    answers.choose(path);
    m_content->chooseFile();
    QCOMPARE(m_content->toJson().value("Path"), QJsonValue(path));
    QCOMPARE(m_frame->geometry(), QRect(30, 20, 100, 50));
}

void tst_MediaViewer::cancellingStoresTheEmptyPath()
{
    m_content->setValue("Path", chosenFile());
    const QRect before = m_frame->geometry();
    QSignalSpy changes(m_content, &ContentViewer::valueChanged);
    DialogAnswers answers;
    answers.escape();
    m_content->chooseFile();
    QVERIFY(answers.areUsedUp());
    QCOMPARE(linesOf(changes), QStringList("Path "));
    QCOMPARE(m_content->getValue("Path"), QVariant(""));
    QCOMPARE(m_frame->geometry(), before);
}

void tst_MediaViewer::survivesItsDeletionUnderTheDialog()
{
    DialogAnswers answers;
    answers.act([this](QDialog *) {
        delete m_frame;
        return true;
    });
    m_content->chooseFile();
    QVERIFY(answers.areUsedUp());
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_MediaViewer::asksWithoutAFrame()
{
    const std::unique_ptr<MediaViewer> alone(makeContent(m_type, nullptr));
    DialogAnswers answers;
    answers.choose(chosenFile());
    alone->chooseFile();
    QCOMPARE(alone->getValue("Path"), QVariant(chosenFile()));
}

void tst_MediaViewer::writesItsParametersAndNothingElse()
{
    // Not made absolute, cleaned or changed in any way.
    const QString relative = "./media/../logo \"1\".png";
    m_content->setValue("Path", relative);
    const QJsonObject expected = {{"Type", m_type}, {"Path", relative}, {"X", 30},
                                  {"Y", 20},        {"W", 100},         {"H", 50}};
    QCOMPARE(m_content->toJson(), expected);
}

void tst_MediaViewer::isReadAsItWasWritten_data()
{
    QTest::addColumn<QRect>("geometry");
    QTest::newRow("in the corner") << QRect(0, 0, 64, 32);
    QTest::newRow("stretched") << QRect(100, 100, 300, 200);
    QTest::newRow("by the right edge") << QRect(700, 0, 100, 50);
    QTest::newRow("by the lower edge") << QRect(0, 390, 100, 10);
    QTest::newRow("high, by the right edge") << QRect(780, 0, 20, 400);
    QTest::newRow("the whole screen") << QRect(0, 0, 800, 400);
}

void tst_MediaViewer::isReadAsItWasWritten()
{
    QFETCH(QRect, geometry);
    // Larger than the screen: read at any place but its own, its size would be clamped on the way.
    const QString path = m_folder.movie(QSize(900, 500), "large.gif");
    const QJsonObject object = {{"Type", m_type},    {"Path", path},          {"X", geometry.x()},
                                {"Y", geometry.y()}, {"W", geometry.width()}, {"H", geometry.height()}};
    auto *frame = new ScreenItem(m_screen.get());
    frame->setGeometry(0, 0, 100, 50);
    MediaViewer *content = makeContent(m_type, frame);
    QVERIFY(content->fromJson(object));
    QCOMPARE(frame->geometry(), geometry);
    QCOMPARE(content->toJson(), object);
}

void tst_MediaViewer::isReadWithoutItsFile()
{
    const QJsonObject object = {{"Type", m_type}, {"Path", "gone/logo.png"}, {"X", 5}, {"Y", 6}, {"W", 70},
                                {"H", 80}};
    QVERIFY(m_content->fromJson(object));
    QCOMPARE(m_frame->geometry(), QRect(5, 6, 70, 80));
    QCOMPARE(m_content->toJson(), object);
}

void tst_MediaViewer::readsMissingValuesAsNothing()
{
    QVERIFY(m_content->fromJson({{"Path", chosenFile()}, {"X", "a"}, {"H", 9}}));
    QCOMPARE(m_frame->geometry(), QRect(0, 0, 0, 9));
    QVERIFY(m_content->fromJson({}));
    QCOMPARE(m_content->getValue("Path").toString(), QString());
    m_content->setValues({{"Type", m_type}});
    QVERIFY(!m_content->fromJson({{"Path", chosenFile()}}));
}

BOARDWRIGHT_TEST_MAIN(tst_MediaViewer)
#include "tst_mediaviewer.moc"
