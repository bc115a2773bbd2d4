#include "assets/assets.h"
#include "editors/filepathedit.h"
#include "editors/intedit.h"
#include "editors/panels/settingseditor.h"
#include "editors/propertypanel.h"
#include "tests/support/dialoganswers.h"
#include "tests/support/strictmain.h"
#include "tests/viewers/mediaboard.h"
#include "tests/viewers/mediafolder.h"
#include "tests/viewers/panelparts.h"
#include "viewers/animationviewer.h"
#include "viewers/imagevieweritem.h"
#include "viewers/videovieweritem.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <functional>
#include <memory>

namespace
{
using Maker = std::function<MediaViewer *(QWidget *)>;

template <class Content>
MediaViewer *makeContent(QWidget *frame)
{
    return new Content(frame);
}
} // namespace

Q_DECLARE_METATYPE(Maker)

/// The panel that image, animation and video items have in common; every test runs with each of them.
class tst_MediaPanel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initAssets(); }
    void initTestCase_data();
    void init();
    void cleanup();

    void hasTwoCategoriesWithTheirEditors();
    void tellsNothingWhenItIsBuilt();
    void editsReachTheItem();
    void showsWhatTheFrameTells();
    void typedPathIsShownAsItIsTyped();
    void chosenPathIsShown();
    void cancellingClearsThePath();
    void tabWalksFromTopToBottom();
    void labelKeepsItsDistanceFromTheField();
    void isNotClippedInTheColumn();

private:
    VariableEdit *editor(const QString &key) const;
    QLineEdit *path() const { return editor("Path")->findChild<QLineEdit *>(); }
    QSpinBox *number(const QString &key) const { return editor(key)->findChild<QSpinBox *>(); }
    PropertyPanel *panel() const { return m_host->findChild<PropertyPanel *>(); }

    MediaFolder m_folder;
    std::unique_ptr<Screen> m_screen;
    std::unique_ptr<QWidget> m_host;
    ScreenItem *m_frame = nullptr;
    MediaViewer *m_content = nullptr;
};

void tst_MediaPanel::initTestCase_data()
{
    QTest::addColumn<Maker>("maker");
    QTest::newRow("image") << Maker(makeContent<ImageViewerItem>);
    QTest::newRow("animation") << Maker(makeContent<AnimationViewer>);
    QTest::newRow("video") << Maker(makeContent<VideoViewerItem>);
}

void tst_MediaPanel::init()
{
    QFETCH_GLOBAL(Maker, maker);
    QLoggingCategory::setFilterRules("default.debug=false");
    m_screen = std::make_unique<Screen>();
    m_screen->setWidgth(800);
    m_screen->setHeight(400);
    m_frame = new ScreenItem(m_screen.get());
    m_frame->setGeometry(30, 20, 100, 50);
    m_content = maker(m_frame);
    m_content->setValue("Path", "old/logo.png");
    m_host = std::make_unique<QWidget>();
    m_frame->buildSettingsPanel(m_host.get());
    m_host->resize(300, 400);
    m_host->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_host.get()));
}

void tst_MediaPanel::cleanup()
{
    m_host.reset();
    m_screen.reset();
}

VariableEdit *tst_MediaPanel::editor(const QString &key) const
{
    return editorFor(key, *m_host);
}

void tst_MediaPanel::hasTwoCategoriesWithTheirEditors()
{
    QCOMPARE(m_host->findChildren<VariableEdit *>().size(), 5);
    for (const char *key : {"X", "Y", "W", "H"}) {
        QVERIFY(qobject_cast<IntEdit *>(editor(key)));
        QCOMPARE(editor(key)->getValue(), m_content->getValue(key));
    }
    QVERIFY(qobject_cast<FilePathEdit *>(editor("Path")));
    QCOMPARE(editor("Path")->getValue(), QVariant("old/logo.png"));

    QCOMPARE(panel()->topLevelItemCount(), 2);
    QStringList titles;
    for (int i = 0; i < 2; ++i) {
        const QWidget *header = panel()->itemWidget(panel()->topLevelItem(i), 0);
        titles << qobject_cast<QLabel *>(header->layout()->itemAt(0)->widget())->text();
    }
    QCOMPARE(titles, QStringList({"Area (px)", "Basic Properties"}));

    const QWidget *rows = panel()->itemWidget(panel()->topLevelItem(1)->child(0), 0);
    auto *grid = qobject_cast<QGridLayout *>(rows->layout());
    QCOMPARE(grid->count(), 1);
    QCOMPARE(grid->itemAtPosition(0, 0)->widget(), editor("Path"));
    QCOMPARE(grid->itemAtPosition(0, 1)->widget(), editor("Path"));
    QVERIFY(!grid->itemAtPosition(0, 2));
}

void tst_MediaPanel::tellsNothingWhenItIsBuilt()
{
    QWidget second;
    const QMap<QString, QVariant> before = m_content->getValues();
    m_frame->buildSettingsPanel(&second);
    QCOMPARE(m_content->getValues(), before);
}

void tst_MediaPanel::editsReachTheItem()
{
    number("X")->selectAll();
    QTest::keyClicks(number("X"), "213");
    QCOMPARE(m_frame->geometry(), QRect(213, 20, 100, 50));
    QTest::keyClick(number("H"), Qt::Key_Up);
    QCOMPARE(m_frame->height(), 51);
    QCOMPARE(number("H")->maximum(), 380);
    QVERIFY(m_screen->isModified());
}

void tst_MediaPanel::showsWhatTheFrameTells()
{
    m_screen->show();
    m_frame->setGeometry(40, 50, 60, 70);
    QCOMPARE(editor("X")->getValue(), QVariant(40));
    QCOMPARE(editor("Y")->getValue(), QVariant(50));
    QCOMPARE(editor("W")->getValue(), QVariant(60));
    QCOMPARE(editor("H")->getValue(), QVariant(70));
    emit m_content->valueChanged("Path", "new/logo.png");
    QCOMPARE(editor("Path")->getValue(), QVariant("new/logo.png"));
}

void tst_MediaPanel::typedPathIsShownAsItIsTyped()
{
    const QString file = m_folder.movie(QSize(64, 32));
    path()->selectAll();
    QTest::keyClicks(path(), file);
    QCOMPARE(m_content->getValue("Path"), QVariant(file));
    const bool isVideo = m_content->getValue("Type") == "Video Viewer";
    QCOMPARE(m_frame->size(), isVideo ? QSize(100, 50) : QSize(64, 32));
    QCOMPARE(editor("W")->getValue(), QVariant(m_frame->width()));
    QCOMPARE(editor("H")->getValue(), QVariant(m_frame->height()));
    QTest::keyClick(path(), Qt::Key_Backspace);
    QCOMPARE(m_content->getValue("Path"), QVariant(file.chopped(1)));
    QCOMPARE(m_frame->size(), isVideo ? QSize(100, 50) : QSize(64, 32));
}

void tst_MediaPanel::chosenPathIsShown()
{
    const QString file = m_folder.movie(QSize(64, 32));
    DialogAnswers answers;
    answers.choose(file);
    QTest::mouseClick(editor("Path")->findChild<QPushButton *>(), Qt::LeftButton);
    QVERIFY(answers.areUsedUp());
    QCOMPARE(m_content->getValue("Path"), QVariant(file));
    QVERIFY(m_screen->isModified());
}

void tst_MediaPanel::cancellingClearsThePath()
{
    DialogAnswers answers;
    answers.escape();
    QTest::mouseClick(editor("Path")->findChild<QPushButton *>(), Qt::LeftButton);
    QCOMPARE(m_content->getValue("Path"), QVariant(""));
    QCOMPARE(m_frame->geometry(), QRect(30, 20, 100, 50));
}

void tst_MediaPanel::tabWalksFromTopToBottom()
{
    m_host->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_host.get()));
    const QWidgetList stops = {number("X"),
                               number("Y"),
                               number("W"),
                               number("H"),
                               panel()->itemWidget(panel()->topLevelItem(1), 0),
                               path(),
                               editor("Path")->findChild<QPushButton *>()};
    stops.first()->setFocus();
    for (int i = 1; i < stops.size(); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), stops.at(i));
    }
}

void tst_MediaPanel::labelKeepsItsDistanceFromTheField()
{
    const auto *label = editor("Path")->findChild<QLabel *>();
    QVERIFY(label);
    QVERIFY(path()->x() - label->x() > label->sizeHint().width());
}

void tst_MediaPanel::isNotClippedInTheColumn()
{
    m_content->setValue("Path", QString("/a/very/long/path").repeated(20));
    SettingsEditor column;
    column.resize(320, 600);
    column.setActiveItem(m_frame);
    column.show();
    QCoreApplication::processEvents();
    auto *shown = column.findChild<PropertyPanel *>();
    const QRegion all = shown->viewport()->rect();
    const auto edits = shown->findChildren<VariableEdit *>();
    QCOMPARE(edits.size(), 5);
    for (VariableEdit *edit : edits) {
        const QRect place(edit->mapTo(shown->viewport(), QPoint()), edit->size());
        QVERIFY2(QRegion(place).subtracted(all).isEmpty(), qPrintable(edit->getKey()));
    }
    QVERIFY(shown->findChild<QLineEdit *>()->width() > 50);
}

BOARDWRIGHT_TEST_MAIN(tst_MediaPanel)
#include "tst_mediapanel.moc"
