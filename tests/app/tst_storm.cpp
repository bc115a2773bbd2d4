#include "editors/panels/settingseditor.h"
#include "tests/app/commandtest.h"
#include "tests/app/stormuser.h"

#include <QJsonDocument>
#include <QLineEdit>
#include <QLoggingCategory>

#include <algorithm>

// Thousands of actions without any plan, and what has to hold after each of them.
class tst_Storm : public CommandTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void leavesTheBoardSound_data();
    void leavesTheBoardSound();

private:
    QString complaint() const;
    QString complaintAboutPanel() const;
    QString complaintAboutLoading() const;
};

namespace
{
constexpr int actionsPerSeed = 1300;
constexpr int actionsPerLoad = 50;

QByteArray saved(Screen &screen)
{
    return bytesOf(screen.saveLayout());
}

QByteArray savedAfterLoading(const QByteArray &layout)
{
    Screen screen;
    screen.loadLayout(QJsonDocument::fromJson(layout).object());
    return saved(screen);
}

bool isSelectedOnce(ScreenItem *item, const QList<ScreenItem *> &selection)
{
    return selection.count(item) == (item->isSelected() ? 1 : 0);
}
} // namespace

void tst_Storm::initTestCase()
{
    QLoggingCategory::setFilterRules("default.debug=false");
    tolerateWarnings("QFont::setPointSizeF: Point size <= 0");
}

/// What is wrong with the board; null when nothing is.
QString tst_Storm::complaint() const
{
    // Compared before anything listed is looked into: it might be gone.
    const QList<ScreenItem *> layers = canvas().items();
    if (canvas().findChildren<ScreenItem *>(QString(), Qt::FindDirectChildrenOnly) != layers)
        return "the layers are not the frames in their stacking order";
    const QList<ScreenItem *> selection = canvas().selection();
    for (ScreenItem *item : selection) {
        if (!layers.contains(item))
            return "a selected frame is no layer";
    }
    for (ScreenItem *item : layers) {
        if (!isSelectedOnce(item, selection))
            return "a frame's flag is not its membership in the selection";
        if (!item->content() || item->content()->geometry().size() != item->size())
            return "a content does not fill its frame";
    }
    return QApplication::activePopupWidget() || QApplication::activeModalWidget() ? "a dialog is open"
                                                                                  : QString();
}

/// What the column names has to be there.
QString tst_Storm::complaintAboutPanel() const
{
    const auto *column = window().findChild<SettingsEditor *>();
    const auto *name = column->widget()->findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly);
    const QList<ScreenItem *> &layers = canvas().items();
    const bool isThere = std::any_of(layers.begin(), layers.end(),
                                     [name](const ScreenItem *item) { return item->name() == name->text(); });
    return isThere || !name->isVisible() ? QString() : "the column shows an item that is gone";
}

/// The first load may hold items to the canvas.
QString tst_Storm::complaintAboutLoading() const
{
    const QByteArray once = savedAfterLoading(saved(canvas()));
    const QByteArray twice = savedAfterLoading(once);
    return once == twice ? QString() : "a load changes a loaded board:\n" + once + "\ninto\n" + twice;
}

void tst_Storm::leavesTheBoardSound_data()
{
    QTest::addColumn<quint32>("start");
    QTest::addColumn<bool>("hasColumn");
    // Another storm than the usual one for whoever sets this.
    const auto first = quint32(qMax(1, qEnvironmentVariableIntValue("BOARDWRIGHT_STORM")));
    for (quint32 start = first; start < first + 8; ++start) {
        // The panel of every item that becomes active takes most of the time.
        const bool hasColumn = start % 8 == 1;
        QTest::addRow("start %u, %s", start, hasColumn ? "with panels" : "without panels")
            << start << hasColumn;
    }
}

void tst_Storm::leavesTheBoardSound()
{
    QFETCH(quint32, start);
    QFETCH(bool, hasColumn);
    window().resize(1400, 1000);
    if (!hasColumn)
        QVERIFY(disconnect(&canvas(), &Screen::showSettingsFor, nullptr, nullptr));
    StormUser user(window(), start);
    for (int count = 1; count <= actionsPerSeed; ++count) {
        user.act();
        QString wrong = complaint();
        if (wrong.isNull())
            wrong = complaintAboutPanel();
        if (wrong.isNull() && count % actionsPerLoad == 0)
            wrong = complaintAboutLoading();
        if (!wrong.isNull())
            QFAIL(qPrintable(QString("start %1, action %2: %3\n%4")
                                 .arg(start)
                                 .arg(count)
                                 .arg(wrong, user.lastActions().join('\n'))));
    }
}

BOARDWRIGHT_TEST_MAIN(tst_Storm)
#include "tst_storm.moc"
