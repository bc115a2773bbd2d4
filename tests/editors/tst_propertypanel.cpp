#include "editors/propertypanel.h"

#include "assets/assets.h"
#include "editors/categorybutton.h"
#include "editors/checkedit.h"
#include "editors/filepathedit.h"
#include "editors/intedit.h"
#include "editors/textedit.h"
#include "tests/support/strictmain.h"

#include <QAbstractButton>
#include <QFrame>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QVBoxLayout>

#include <memory>

namespace
{
/// A content that notes what it is asked and told.
class NotingContent : public ContentViewer
{
    Q_OBJECT

public:
    explicit NotingContent(QWidget *parent = nullptr) : ContentViewer(parent)
    {
        m_values = {{"X", 5}, {"Y", 6}, {"W", 7}, {"H", 8}, {"Fill", true}, {"Path", "a.png"}};
    }

    QVector<QPair<QString, ContentViewer::Parameters::ValueType>> getValueNameTypeDefinition() override
    {
        return {};
    }
    void anyValueChanged() override {}
    void setValue(QString key, QVariant value) override
    {
        lines << "content " + key + ' ' + value.toString();
        ContentViewer::setValue(key, value);
    }
    QVariant getValue(QString key) override
    {
        lines << "getValue " + key;
        return ContentViewer::getValue(key);
    }
    void applyGeometry(QRect geometry) override { Q_UNUSED(geometry) }
    QVariant getMinValue(QString key) override
    {
        lines << "getMinValue " + key;
        return 0;
    }
    QVariant getMaxValue(QString key) override
    {
        lines << "getMaxValue " + key;
        return 600;
    }
    void buildSettingsPanel(QWidget *host) override { Q_UNUSED(host) }

    QStringList takeLines() { return std::exchange(lines, {}); }

    QStringList lines;
};

/// What a panel needs of a frame.
class Frame : public QWidget
{
    Q_OBJECT

public:
    NotingContent *content = nullptr;

signals:
    void valueChanged(QString, QVariant);

public slots:
    void setValue(QString key, QVariant value)
    {
        content->lines << "frame " + key + ' ' + value.toString();
        content->ContentViewer::setValue(key, value);
    }
};

/// A panel with the area category, of a content with a frame.
struct ShownPanel {
    ShownPanel()
    {
        frame->content = content;
        panel = new PropertyPanel(content, &host);
    }

    IntEdit *editor(const QString &key) const
    {
        const auto edits = panel->findChildren<IntEdit *>();
        for (IntEdit *edit : edits) {
            if (edit->getKey() == key)
                return edit;
        }
        return nullptr;
    }

    std::unique_ptr<Frame> frame = std::make_unique<Frame>();
    NotingContent *content = new NotingContent(frame.get());
    QWidget host;
    PropertyPanel *panel = nullptr;
};

QFrame *rowsOf(const QTreeWidgetItem *category)
{
    return qobject_cast<QFrame *>(category->treeWidget()->itemWidget(category->child(0), 0));
}

QString captionOf(const QWidget *header)
{
    const auto *label = qobject_cast<QLabel *>(header->layout()->itemAt(0)->widget());
    return label ? label->text() : QString();
}
} // namespace

class tst_PropertyPanel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initAssets(); }

    void fillsAColumnOfItsHost();
    void showsItselfInAVisibleHost();
    void leavesNoRoomAroundEditors();
    void showsATreeWithoutHeaderRootsAndIndentation();
    void doesNotTakeTheFocusItself();
    void showsValueBeforeItListens();
    void tellsFrameOfEdits();
    void tellsContentWithoutFrame();
    void tellsContentInAnotherWidget();
    void asksContentForLimitsBeforeItTells();
    void showsWhatFrameAnnounces();
    void showsWhatContentWithoutFrameAnnounces();
    void leavesEditorsOfOtherKeysAlone();
    void showsValueInEveryEditorOfItsKey();
    void makesCategoryWithHeaderAndOneRow();
    void keepsRowButNotCategoryFromBeingSelected();
    void spacesItsGridsExplicitly();
    void laysAreaOutFromRowOne();
    void alignsLabels();
    void survivesItsContent();
    void leavesContentAloneWhenItGoes();
    void letsTabWalkFromTopToBottom();
};

void tst_PropertyPanel::fillsAColumnOfItsHost()
{
    ShownPanel shown;
    QVERIFY(qobject_cast<QVBoxLayout *>(shown.host.layout()));
    QCOMPARE(shown.host.layout()->count(), 1);
    QCOMPARE(shown.host.layout()->itemAt(0)->widget(), shown.panel);
    QCOMPARE(shown.panel->parentWidget(), &shown.host);
    shown.host.show();
    QVERIFY(shown.panel->isVisible());
}

void tst_PropertyPanel::showsItselfInAVisibleHost()
{
    NotingContent content;
    QWidget host;
    host.show();
    QVERIFY((new PropertyPanel(&content, &host))->isVisible());
}

void tst_PropertyPanel::leavesNoRoomAroundEditors()
{
    ShownPanel shown;
    auto *edit = new FilePathEdit(shown.panel);
    shown.panel->bind(edit, "Path");
    QCOMPARE(edit->layout()->contentsMargins(), QMargins());
    QCOMPARE(edit->layout()->spacing(), 0);
}

void tst_PropertyPanel::showsATreeWithoutHeaderRootsAndIndentation()
{
    const ShownPanel shown;
    QVERIFY(shown.panel->header()->isHidden());
    QVERIFY(!shown.panel->rootIsDecorated());
    QCOMPARE(shown.panel->indentation(), 0);
    QCOMPARE(shown.panel->topLevelItemCount(), 0);
}

void tst_PropertyPanel::doesNotTakeTheFocusItself()
{
    const ShownPanel shown;
    QCOMPARE(shown.panel->focusPolicy(), Qt::NoFocus);
}

void tst_PropertyPanel::showsValueBeforeItListens()
{
    ShownPanel shown;
    auto *edit = new CheckEdit(shown.panel);
    shown.panel->bind(edit, "Fill");
    QCOMPARE(edit->getKey(), QString("Fill"));
    QCOMPARE(edit->getValue(), QVariant(true));
    QCOMPARE(shown.content->takeLines(), QStringList("getValue Fill"));
}

void tst_PropertyPanel::tellsFrameOfEdits()
{
    ShownPanel shown;
    auto *edit = new TextEdit(shown.panel);
    shown.panel->bind(edit, "Path");
    shown.content->takeLines();
    edit->findChild<QLineEdit *>()->selectAll();
    QTest::keyClick(edit->findChild<QLineEdit *>(), 'b');
    QCOMPARE(shown.content->takeLines(), QStringList("frame Path b"));
}

void tst_PropertyPanel::tellsContentWithoutFrame()
{
    NotingContent content;
    QWidget host;
    auto *panel = new PropertyPanel(&content, &host);
    auto *edit = new TextEdit(panel);
    panel->bind(edit, "Path");
    content.takeLines();
    edit->setValue("Path", "b");
    QCOMPARE(content.takeLines(), QStringList("content Path b"));
}

void tst_PropertyPanel::tellsContentInAnotherWidget()
{
    QWidget box;
    auto *content = new NotingContent(&box);
    QWidget host;
    auto *panel = new PropertyPanel(content, &host);
    auto *edit = new TextEdit(panel);
    panel->bind(edit, "Path");
    content->takeLines();
    edit->setValue("Path", "b");
    QCOMPARE(content->takeLines(), QStringList("content Path b"));
}

void tst_PropertyPanel::asksContentForLimitsBeforeItTells()
{
    ShownPanel shown;
    auto *edit = new IntEdit(shown.panel);
    shown.panel->bind(edit, "X");
    shown.content->takeLines();
    auto *spinBox = edit->findChild<QSpinBox *>();
    QTest::keyClick(spinBox, Qt::Key_Up);
    QCOMPARE(shown.content->takeLines(), QStringList({"getMaxValue X", "getMinValue X", "frame X 6"}));
    QCOMPARE(spinBox->minimum(), 0);
    QCOMPARE(spinBox->maximum(), 600);
}

void tst_PropertyPanel::showsWhatFrameAnnounces()
{
    ShownPanel shown;
    shown.panel->addAreaCategory();
    shown.content->takeLines();
    emit shown.frame->valueChanged("Y", 44);
    QCOMPARE(shown.editor("Y")->getValue(), QVariant(44));
    QCOMPARE(shown.content->takeLines(), QStringList());
    emit shown.content->valueChanged("Y", 45);
    QCOMPARE(shown.editor("Y")->getValue(), QVariant(44));
}

void tst_PropertyPanel::showsWhatContentWithoutFrameAnnounces()
{
    NotingContent content;
    QWidget host;
    auto *panel = new PropertyPanel(&content, &host);
    auto *edit = new IntEdit(panel);
    panel->bind(edit, "X");
    emit content.valueChanged("X", 44);
    QCOMPARE(edit->getValue(), QVariant(44));
}

void tst_PropertyPanel::leavesEditorsOfOtherKeysAlone()
{
    ShownPanel shown;
    shown.panel->addAreaCategory();
    emit shown.frame->valueChanged("Y", 44);
    emit shown.frame->valueChanged("y", 45);
    QCOMPARE(shown.editor("X")->getValue(), QVariant(5));
    QCOMPARE(shown.editor("Y")->getValue(), QVariant(44));
    QCOMPARE(shown.editor("W")->getValue(), QVariant(7));
    QCOMPARE(shown.editor("H")->getValue(), QVariant(8));
}

void tst_PropertyPanel::showsValueInEveryEditorOfItsKey()
{
    ShownPanel shown;
    auto *first = new IntEdit(shown.panel);
    auto *second = new TextEdit(shown.panel);
    shown.panel->bind(first, "X");
    shown.panel->bind(second, "X");
    emit shown.frame->valueChanged("X", 44);
    QCOMPARE(first->getValue(), QVariant(44));
    QCOMPARE(second->getValue(), QVariant("44"));
}

void tst_PropertyPanel::makesCategoryWithHeaderAndOneRow()
{
    ShownPanel shown;
    QGridLayout *grid = shown.panel->addCategory("Basic Properties");
    QCOMPARE(shown.panel->topLevelItemCount(), 1);
    const QTreeWidgetItem *category = shown.panel->topLevelItem(0);
    auto *button = qobject_cast<CategoryButton *>(shown.panel->itemWidget(shown.panel->topLevelItem(0), 0));
    QVERIFY(button);
    QCOMPARE(captionOf(button), QString("Basic Properties"));
    QVERIFY(category->isExpanded());
    QCOMPARE(category->childCount(), 1);
    QVERIFY(rowsOf(category));
    QCOMPARE(rowsOf(category)->layout(), grid);
    QCOMPARE(grid->count(), 0);
}

void tst_PropertyPanel::keepsRowButNotCategoryFromBeingSelected()
{
    ShownPanel shown;
    shown.panel->addCategory("Basic Properties");
    const QTreeWidgetItem *category = shown.panel->topLevelItem(0);
    const Qt::ItemFlags ordinary = QTreeWidgetItem().flags();
    QCOMPARE(category->flags(), ordinary);
    QCOMPARE(category->child(0)->flags(), ordinary & ~Qt::ItemIsSelectable);
}

void tst_PropertyPanel::spacesItsGridsExplicitly()
{
    ShownPanel shown;
    const QGridLayout *grid = shown.panel->addCategory("Basic Properties");
    QCOMPARE(grid->contentsMargins(), QMargins(4, 4, 4, 4));
    QCOMPARE(grid->verticalSpacing(), 5);
    QCOMPARE(grid->horizontalSpacing(), 5);
}

void tst_PropertyPanel::laysAreaOutFromRowOne()
{
    ShownPanel shown;
    shown.panel->addAreaCategory();
    QCOMPARE(shown.content->takeLines(),
             QStringList({"getValue X", "getValue Y", "getValue W", "getValue H"}));
    auto *category = shown.panel->topLevelItem(0);
    QCOMPARE(captionOf(shown.panel->itemWidget(category, 0)), QString("Area (px)"));
    const auto *grid = qobject_cast<QGridLayout *>(rowsOf(category)->layout());
    QCOMPARE(grid->count(), 4);
    QCOMPARE(grid->itemAtPosition(1, 0)->widget(), shown.editor("X"));
    QCOMPARE(grid->itemAtPosition(1, 1)->widget(), shown.editor("Y"));
    QCOMPARE(grid->itemAtPosition(2, 0)->widget(), shown.editor("W"));
    QCOMPARE(grid->itemAtPosition(2, 1)->widget(), shown.editor("H"));
    QCOMPARE(shown.editor("H")->getValue(), QVariant(8));
}

void tst_PropertyPanel::alignsLabels()
{
    ShownPanel shown;
    shown.panel->addAreaCategory();
    shown.host.resize(320, 400);
    shown.host.show();
    for (const auto &pair : {qMakePair(QString("X"), QString("W")), qMakePair(QString("Y"), QString("H"))}) {
        const auto *upper = shown.editor(pair.first)->findChild<QSpinBox *>();
        const auto *lower = shown.editor(pair.second)->findChild<QSpinBox *>();
        QCOMPARE(upper->mapTo(&shown.host, QPoint()).x(), lower->mapTo(&shown.host, QPoint()).x());
        const auto *wider = shown.editor(pair.second)->findChild<QLabel *>();
        QVERIFY(wider->width() > wider->sizeHint().width());
    }
}

void tst_PropertyPanel::survivesItsContent()
{
    ShownPanel shown;
    shown.panel->addAreaCategory();
    shown.frame.reset();
    auto *spinBox = shown.editor("X")->findChild<QSpinBox *>();
    QTest::keyClick(spinBox, Qt::Key_Up);
    QCOMPARE(spinBox->value(), 6);
}

void tst_PropertyPanel::leavesContentAloneWhenItGoes()
{
    ShownPanel shown;
    shown.panel->addAreaCategory();
    shown.content->takeLines();
    delete shown.panel;
    emit shown.frame->valueChanged("X", 9);
    QCOMPARE(shown.content->takeLines(), QStringList());
}

void tst_PropertyPanel::letsTabWalkFromTopToBottom()
{
    ShownPanel shown;
    auto *path = new FilePathEdit(shown.panel);
    shown.panel->bind(path, "Path");
    shown.panel->addAreaCategory();
    shown.panel->addCategory("Basic Properties")->addWidget(path, 0, 0, 1, 2);
    shown.panel->orderFocus();
    shown.host.show();
    QVERIFY(QTest::qWaitForWindowActive(&shown.host));
    shown.panel->itemWidget(shown.panel->topLevelItem(0), 0)->setFocus();
    const QWidgetList rest{shown.editor("X")->findChild<QSpinBox *>(),
                           shown.editor("Y")->findChild<QSpinBox *>(),
                           shown.editor("W")->findChild<QSpinBox *>(),
                           shown.editor("H")->findChild<QSpinBox *>(),
                           shown.panel->itemWidget(shown.panel->topLevelItem(1), 0),
                           path->findChild<QLineEdit *>(),
                           path->findChild<QAbstractButton *>()};
    for (QWidget *next : rest) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), next);
        QVERIFY(shown.panel->selectedItems().isEmpty());
    }
}

BOARDWRIGHT_TEST_MAIN(tst_PropertyPanel)
#include "tst_propertypanel.moc"
