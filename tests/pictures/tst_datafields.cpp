#include "pictures/datafields.h"

#include "tests/support/strictmain.h"

class tst_DataFields : public QObject
{
    Q_OBJECT

private slots:
    void offersFiftyNamesInOrder();
};

void tst_DataFields::offersFiftyNamesInOrder()
{
    // Letter by letter: layout files carry these names.
    const QStringList expected = {"Text",
                                  "Game Clock",
                                  "Period",
                                  "Shot Timer",
                                  "Home Team Name",
                                  "Home Score",
                                  "Home Team Fouls",
                                  "Home TOL",
                                  "Home Possession",
                                  "Home Bonus",
                                  "Home Double Bonus",
                                  "Home Time Out Spot",
                                  "Visitor Team Name",
                                  "Visitor Score",
                                  "Visitor Team Fouls",
                                  "Visitor TOL",
                                  "Visitor Possession",
                                  "Visitor Bonus",
                                  "Visitor Double Bonus",
                                  "Visitor Time Out Spot",
                                  "H Player #1 No.",
                                  "H Player #1 Fouls",
                                  "H Player #1 Points",
                                  "H Player #2 No.",
                                  "H Player #2 Fouls",
                                  "H Player #2 Points",
                                  "H Player #3 No.",
                                  "H Player #3 Fouls",
                                  "H Player #3 Points",
                                  "H Player #4 No.",
                                  "H Player #4 Fouls",
                                  "H Player #4 Points",
                                  "H Player #5 No.",
                                  "H Player #5 Fouls",
                                  "H Player #5 Points",
                                  "V Player #1 No.",
                                  "V Player #1 Fouls",
                                  "V Player #1 Points",
                                  "V Player #2 No.",
                                  "V Player #2 Fouls",
                                  "V Player #2 Points",
                                  "V Player #3 No.",
                                  "V Player #3 Fouls",
                                  "V Player #3 Points",
                                  "V Player #4 No.",
                                  "V Player #4 Fouls",
                                  "V Player #4 Points",
                                  "V Player #5 No.",
                                  "V Player #5 Fouls",
                                  "V Player #5 Points"};
    QCOMPARE(expected.size(), 50);
    QCOMPARE(DataFields::names(), expected);
}

BOARDWRIGHT_TEST_MAIN(tst_DataFields)
#include "tst_datafields.moc"
