#include "assets/assets.h"
#include "canvas/itemmenu.h"
#include "model/applicationstyle.h"
#include "tests/support/strictmain.h"

#include <QTimer>

namespace
{
QStringList texts(const ItemMenu &menu)
{
    QStringList result;
    const auto actions = menu.actions();
    for (const QAction *action : actions)
        result << action->text();
    return result;
}

/// Runs the menu and closes it as soon as it is open.
void runAndClose(ItemMenu &menu, const QString &itemName, bool isAboutSeveral)
{
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, &menu, &QMenu::close);
    closer.start(0);
    menu.run(itemName, isAboutSeveral, QPoint(10, 10));
}
} // namespace

class tst_ItemMenu : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        initAssets();
        applyApplicationStyle();
    }

    void hasFourEntriesInOrder()
    {
        QWidget parent;
        const ItemMenu menu(&parent);
        QCOMPARE(texts(menu),
                 QStringList({"Bring to Front", "Send to Back", "Duplicate Layer", "Delete Layer"}));
        QCOMPARE(menu.entry(ItemMenu::BringToFront)->text(), QString("Bring to Front"));
        QCOMPARE(menu.entry(ItemMenu::Delete)->text(), QString("Delete Layer"));
    }

    void namesTheLastTwoEntriesAfterTheItem_data()
    {
        QTest::addColumn<QString>("itemName");
        QTest::addColumn<bool>("isAboutSeveral");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("one") << "Title" << false
                             << QStringList({"Duplicate Layer \"Title\"", "Delete Layer \"Title\""});
        QTest::newRow("no name") << "" << false << QStringList({"Duplicate Layer \"\"", "Delete Layer \"\""});
        QTest::newRow("ampersand stays visible")
            << "A&B" << false << QStringList({"Duplicate Layer \"A&&B\"", "Delete Layer \"A&&B\""});
        QTest::newRow("several") << "Title" << true << QStringList({"Duplicate Layers", "Delete Layers"});
    }

    void namesTheLastTwoEntriesAfterTheItem()
    {
        QFETCH(QString, itemName);
        QFETCH(bool, isAboutSeveral);
        QFETCH(QStringList, expected);
        QWidget parent;
        ItemMenu menu(&parent);
        runAndClose(menu, itemName, isAboutSeveral);
        QCOMPARE(texts(menu), QStringList({"Bring to Front", "Send to Back"}) + expected);
    }

    void hasItsOwnGroundBelowASeeThroughSheet()
    {
        QWidget parent;
        parent.setStyleSheet("background:transparent;");
        ItemMenu menu(&parent);
        for (int opening = 0; opening < 2; ++opening) {
            runAndClose(menu, "Title", false);
            const QImage picture = menu.grab().toImage();
            QCOMPARE(picture.pixelColor(picture.width() - 5, picture.height() / 2), QColor(0x45, 0x45, 0x45));
        }
    }
};

BOARDWRIGHT_TEST_MAIN(tst_ItemMenu)

#include "tst_itemmenu.moc"
