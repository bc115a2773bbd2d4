#include "viewers/contentfactory.h"

#include "tests/support/strictmain.h"
#include "viewers/shape.h"

class tst_ContentFactory : public QObject
{
    Q_OBJECT

private slots:
    void makesAShapeInsideTheFrame();
    void opensTheRoadsOfEveryKind_data();
    void opensTheRoadsOfEveryKind();
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

void tst_ContentFactory::opensTheRoadsOfEveryKind_data()
{
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<QString>("namePrefix");
    QTest::addColumn<bool>("byDrop");

    QTest::newRow("Text") << QByteArray("TextOutput") << "Text" << true;
    QTest::newRow("Shape") << QByteArray("Shape") << "Shape" << true;
    QTest::newRow("Image Viewer") << QByteArray("ImageViewerItem") << "Image" << true;
    QTest::newRow("Animation Viewer") << QByteArray("AnimationViewer") << "Image" << false;
}

void tst_ContentFactory::opensTheRoadsOfEveryKind()
{
    QFETCH(QByteArray, className);
    QFETCH(QString, namePrefix);
    QFETCH(bool, byDrop);
    const QString type = QTest::currentDataTag();
    QWidget frame;
    ContentViewer *content = ContentFactory::create(type, &frame);
    QCOMPARE(content->metaObject()->className(), className.constData());
    QCOMPARE(content->getValue("Type").toString(), type);
    QVERIFY(ContentFactory::isClickable(type));
    QVERIFY(ContentFactory::isReadable(type));
    QCOMPARE(ContentFactory::isDroppable(type), byDrop);
    QCOMPARE(ContentFactory::namePrefix(type), namePrefix);
}

void tst_ContentFactory::offersKindsInTheOrderOfTheBar()
{
    const QVector<QPair<QString, QString>> bar = {{"Text", ":/assets/interface/text.png"},
                                                  {"Shape", ":/assets/interface/shapes.png"},
                                                  {"Image Viewer", ":/assets/interface/image.png"},
                                                  {"Animation Viewer", ":/assets/interface/gif.png"}};
    QCOMPARE(ContentFactory::clickableTypes(), bar);
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
