#include "viewers/contentfactory.h"

#include "tests/support/strictmain.h"
#include "viewers/shape.h"

#include <algorithm>
#include <iterator>

class tst_ContentFactory : public QObject
{
    Q_OBJECT

private slots:
    void makesAShapeInsideTheFrame();
    void opensEveryRoadToShapes();
    void offersKindsInTheOrderOfTheBar();
    void knowsNoOtherSpelling_data();
    void knowsNoOtherSpelling();
    void readsNoVideoFromFiles();
};

void tst_ContentFactory::makesAShapeInsideTheFrame()
{
    QWidget frame;
    ContentViewer *content = ContentFactory::create("Shape", &frame);
    QVERIFY(qobject_cast<Shape *>(content));
    QCOMPARE(content->parentWidget(), &frame);
    QCOMPARE(content->getValue("Type"), QVariant("Shape"));
}

void tst_ContentFactory::opensEveryRoadToShapes()
{
    QVERIFY(ContentFactory::isClickable("Shape"));
    QVERIFY(ContentFactory::isDroppable("Shape"));
    QVERIFY(ContentFactory::isReadable("Shape"));
    QCOMPARE(ContentFactory::namePrefix("Shape"), QString("Shape"));
}

void tst_ContentFactory::offersKindsInTheOrderOfTheBar()
{
    const QVector<QPair<QString, QString>> bar = {{"Text", ":/assets/interface/text.png"},
                                                  {"Shape", ":/assets/interface/shapes.png"},
                                                  {"Image Viewer", ":/assets/interface/image.png"},
                                                  {"Animation Viewer", ":/assets/interface/gif.png"}};
    QVector<QPair<QString, QString>> expected;
    std::copy_if(bar.begin(), bar.end(), std::back_inserter(expected),
                 [](const QPair<QString, QString> &kind) { return ContentFactory::isClickable(kind.first); });
    QVERIFY(expected.contains(bar.at(1)));
    QCOMPARE(ContentFactory::clickableTypes(), expected);
}

void tst_ContentFactory::knowsNoOtherSpelling_data()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << "";
    QTest::newRow("lower case") << "shape";
    QTest::newRow("capitals") << "SHAPE";
    QTest::newRow("blank behind") << "Shape ";
    QTest::newRow("a kind of figure") << "Rectangle";
    QTest::newRow("class name") << "ContentViewer";
    QTest::newRow("nul behind") << QString("Shape") + QChar(0);
}

void tst_ContentFactory::knowsNoOtherSpelling()
{
    QFETCH(QString, type);
    QWidget frame;
    QVERIFY(!ContentFactory::create(type, &frame));
    QVERIFY(frame.children().isEmpty());
    QVERIFY(!ContentFactory::isClickable(type));
    QVERIFY(!ContentFactory::isDroppable(type));
    QVERIFY(!ContentFactory::isReadable(type));
    QCOMPARE(ContentFactory::namePrefix(type), QString());
}

void tst_ContentFactory::readsNoVideoFromFiles()
{
    QVERIFY(!ContentFactory::isReadable("Video Viewer"));
}

BOARDWRIGHT_TEST_MAIN(tst_ContentFactory)
#include "tst_contentfactory.moc"
