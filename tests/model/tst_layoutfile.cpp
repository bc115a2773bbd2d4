#include "model/layoutfile.h"

#include "assets/assets.h"
#include "tests/support/apart.h"
#include "tests/support/strictmain.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <cerrno>
#include <csignal>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
QString openError(const QString &path, QIODevice::OpenMode mode)
{
    QFile file(path);
    return file.open(mode) ? QStringLiteral("opens") : file.errorString();
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

mode_t modeOf(const QString &path)
{
    struct stat status = {};
    ::stat(QFile::encodeName(path).constData(), &status);
    return status.st_mode & 07777;
}

void setMode(const QString &path, mode_t mode)
{
    QCOMPARE(::chmod(QFile::encodeName(path).constData(), mode), 0);
}

void makeLink(const QString &target, const QString &path)
{
    QCOMPARE(::symlink(QFile::encodeName(target).constData(), QFile::encodeName(path).constData()), 0);
}

QJsonObject smallLayout()
{
    return {{"items", QJsonArray()}, {"parameters", QJsonObject{{"Width", 800}}}};
}

QJsonObject largeLayout()
{
    return {{"items", QString(300000, 'x')}};
}
} // namespace

class tst_LayoutFile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void namesTheFilterAndTheTemplate();
    void readsTheTemplate();
    void readsTheObject_data();
    void readsTheObject();
    void tellsTheWordsOfTheParser_data();
    void tellsTheWordsOfTheParser();
    void tellsTheWordsOfOpeningForReading_data();
    void tellsTheWordsOfOpeningForReading();
    void tellsThatReadingIsNotAllowed();
    void tellsThatReadingFailed();
    void readsLargeGarbageToItsError();
    void refusesWhatIsFarTooLarge();
    void refusesAPipeAndADeviceWithoutReadingThem_data();
    void refusesAPipeAndADeviceWithoutReadingThem();

    void writesIndentedSortedUtf8();
    void writesTheTemplateByteForByte();
    void readsBackWhatItWrote();
    void replacesLongerContents();
    void tellsTheWordsOfOpeningForWriting_data();
    void tellsTheWordsOfOpeningForWriting();
    void tellsThatWritingIsNotAllowed();
    void tellsThatTheFolderTakesNoFile();
    void writesInPlaceInAFolderThatTakesNoFile();
    void writesANameWithoutRoomForASuffix();
    void writesThroughLinks_data();
    void writesThroughLinks();
    void writesThroughALinkToNothing();
    void givesNewFilesThePermissionsOfTheMask_data();
    void givesNewFilesThePermissionsOfTheMask();
    void keepsThePermissionsOfAFile_data();
    void keepsThePermissionsOfAFile();
    void writesIntoPipes();
    void writesIntoDevices_data();
    void writesIntoDevices();
    void fullDiskLeavesTheOldFileWhole_data();
    void fullDiskLeavesTheOldFileWhole();
    void fullDiskLeavesTheOldFileWholeInAFolderThatTakesNoFile_data();
    void fullDiskLeavesTheOldFileWholeInAFolderThatTakesNoFile();
    void fullDiskLeavesNoNewFile_data();
    void fullDiskLeavesNoNewFile();
    void fullDiskLeavesALinkToNothing_data();
    void fullDiskLeavesALinkToNothing();
    void deathInTheMiddleLeavesTheOldFileWhole();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QStringList names() const;
    QString put(const QString &name, const QByteArray &bytes);
    QString pathFor(const QString &place);
    static void addFullDisks();
    static QString writeOnFullDisk(const QString &filePath);

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_LayoutFile::initTestCase()
{
    initAssets();
}

void tst_LayoutFile::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    setMode(m_folder->path(), 0777);
}

void tst_LayoutFile::cleanup()
{
    setMode(m_folder->path(), 0777);
    m_folder.reset();
}

QStringList tst_LayoutFile::names() const
{
    return QDir(m_folder->path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

QString tst_LayoutFile::put(const QString &name, const QByteArray &bytes)
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot prepare the file of a test");
    return file.fileName();
}

/// A path at which no file can be opened.
QString tst_LayoutFile::pathFor(const QString &place)
{
    if (place == "folder")
        return m_folder->path();
    if (place == "below a file")
        return put("file.lay", "{}") + "/board.lay";
    if (place == "circle of links") {
        makeLink(path("b.lay"), path("a.lay"));
        makeLink(path("a.lay"), path("b.lay"));
        return path("a.lay");
    }
    if (place == "long name")
        return path(QString(256, 'n'));
    return place == "missing folder" ? path("none/board.lay") : path("none.lay");
}

void tst_LayoutFile::namesTheFilterAndTheTemplate()
{
    QCOMPARE(LayoutFile::filter(), QString("Lay file (*.lay)"));
    QCOMPARE(LayoutFile::emptyTemplate(), QString(":/assets/resources/empty.lay"));
}

void tst_LayoutFile::readsTheTemplate()
{
    const LayoutFile::Document document = LayoutFile::read(LayoutFile::emptyTemplate());
    QVERIFY(document.error.isNull());
    const QJsonObject parameters = {{"Background Color", "#000000"}, {"Height", 400}, {"Width", 800}};
    QCOMPARE(document.layout, QJsonObject({{"items", QJsonArray()}, {"parameters", parameters}}));
}

void tst_LayoutFile::readsTheObject_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QJsonObject>("layout");
    const QJsonObject one = {{"a", 1}};
    QTest::newRow("plain") << QByteArray("{\"a\":1}") << one;
    QTest::newRow("blanks around") << QByteArray(" \r\n\t{ \"a\" : 1 }\n\n") << one;
    QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbf{\"a\":1}") << one;
    QTest::newRow("last of equal keys") << QByteArray("{\"a\":2,\"a\":1}") << one;
    QTest::newRow("empty object") << QByteArray("{}") << QJsonObject();
    QTest::newRow("an array is no layout") << QByteArray("[{\"a\":1}]") << QJsonObject();
    QTest::newRow("empty array") << QByteArray("[]") << QJsonObject();
}

void tst_LayoutFile::readsTheObject()
{
    QFETCH(QByteArray, bytes);
    const LayoutFile::Document document = LayoutFile::read(put("board.lay", bytes));
    QVERIFY(document.error.isNull());
    QTEST(document.layout, "layout");
}

void tst_LayoutFile::tellsTheWordsOfTheParser_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("one nul") << QByteArray(1, '\0');
    QTest::newRow("words") << QByteArray("no layout");
    QTest::newRow("cut off") << QByteArray("{\"items\": [");
    QTest::newRow("unterminated text") << QByteArray("{\"items");
    QTest::newRow("two documents") << QByteArray("{}{}");
    QTest::newRow("number alone") << QByteArray("12");
    QTest::newRow("no UTF-8") << QByteArray("{\"a\":\"\xff\xfe\"}");
    QTest::newRow("two marks") << QByteArray("\xef\xbb\xbf\xef\xbb\xbf{}");
    QTest::newRow("deep arrays") << QByteArray(1000000, '[');
    QTest::newRow("deep objects") << QByteArray("{\"a\":").repeated(200000);
    QTest::newRow("nested a little too deep") << QByteArray(1025, '[') + QByteArray(1025, ']');
}

void tst_LayoutFile::tellsTheWordsOfTheParser()
{
    QFETCH(QByteArray, bytes);
    QJsonParseError expected{};
    QJsonDocument::fromJson(bytes, &expected);
    const LayoutFile::Document document = LayoutFile::read(put("board.lay", bytes));
    QVERIFY(expected.error != QJsonParseError::NoError);
    QCOMPARE(document.error, expected.errorString());
    QVERIFY(document.layout.isEmpty());
}

void tst_LayoutFile::tellsTheWordsOfOpeningForReading_data()
{
    QTest::addColumn<QString>("place");
    for (const char *place :
         {"folder", "missing", "missing folder", "below a file", "circle of links", "long name"})
        QTest::newRow(place) << place;
}

void tst_LayoutFile::tellsTheWordsOfOpeningForReading()
{
    QFETCH(QString, place);
    const QString filePath = pathFor(place);
    const QString error = LayoutFile::read(filePath).error;
    QCOMPARE(error, openError(filePath, QIODevice::ReadOnly));
    QVERIFY(error != "opens");
}

void tst_LayoutFile::tellsThatReadingIsNotAllowed()
{
    const QString filePath = put("board.lay", "{}");
    setMode(filePath, 0);
    QCOMPARE(asOrdinaryUser([&] { return LayoutFile::read(filePath).error; }), QString("Permission denied"));
}

void tst_LayoutFile::tellsThatReadingFailed()
{
    // This file can be opened, while its first byte can never be read.
    const LayoutFile::Document document = LayoutFile::read("/proc/self/mem");
    QCOMPARE(document.error, qt_error_string(EIO));
}

void tst_LayoutFile::readsLargeGarbageToItsError()
{
    QFile file(put("garbage.lay", "garbage"));
    QVERIFY(file.resize(200 * 1024 * 1024));
    QCOMPARE(LayoutFile::read(file.fileName()).error, QString("illegal value"));
}

void tst_LayoutFile::refusesWhatIsFarTooLarge()
{
    QFile file(put("huge.lay", "{}"));
    QVERIFY(file.resize(256LL * 1024 * 1024 + 1));
    QCOMPARE(LayoutFile::read(file.fileName()).error, QString("The file is too large for a layout."));
}

void tst_LayoutFile::refusesAPipeAndADeviceWithoutReadingThem_data()
{
    QTest::addColumn<QString>("filePath");
    QTest::newRow("pipe") << "";
    QTest::newRow("endless zeros") << "/dev/zero";
    QTest::newRow("nothing") << "/dev/null";
}

void tst_LayoutFile::refusesAPipeAndADeviceWithoutReadingThem()
{
    QFETCH(QString, filePath);
    if (filePath.isEmpty()) {
        filePath = path("pipe.lay");
        QCOMPARE(::mkfifo(QFile::encodeName(filePath).constData(), 0600), 0);
    }
    QCOMPARE(LayoutFile::read(filePath).error, QString("The file is not a regular file."));
}

void tst_LayoutFile::writesIndentedSortedUtf8()
{
    const QJsonObject item = {
        {"Y", 2}, {"X", -1}, {"Type", "Shape"}, {"Fill", true}, {"Color", QJsonValue()}};
    const QJsonObject layout = {
        {"parameters", QJsonObject{{"Width", 800}, {"Height", 400}}},
        {"items", QJsonArray{item, QJsonObject{{"ScreenItemName", QString::fromUtf8("Größe 計")}}}}};
    QVERIFY(LayoutFile::write(path("board.lay"), layout).isNull());
    const QByteArray expected = "{\n"
                                "    \"items\": [\n"
                                "        {\n"
                                "            \"Color\": null,\n"
                                "            \"Fill\": true,\n"
                                "            \"Type\": \"Shape\",\n"
                                "            \"X\": -1,\n"
                                "            \"Y\": 2\n"
                                "        },\n"
                                "        {\n"
                                "            \"ScreenItemName\": \"Größe 計\"\n"
                                "        }\n"
                                "    ],\n"
                                "    \"parameters\": {\n"
                                "        \"Height\": 400,\n"
                                "        \"Width\": 800\n"
                                "    }\n"
                                "}\n";
    QCOMPARE(bytesOf(path("board.lay")), expected);
    QCOMPARE(names(), QStringList({"board.lay"}));
}

void tst_LayoutFile::writesTheTemplateByteForByte()
{
    const LayoutFile::Document document = LayoutFile::read(LayoutFile::emptyTemplate());
    QVERIFY(LayoutFile::write(path("board.lay"), document.layout).isNull());
    QCOMPARE(bytesOf(path("board.lay")), bytesOf(LayoutFile::emptyTemplate()));
}

void tst_LayoutFile::readsBackWhatItWrote()
{
    const QJsonObject layout = {{"items", QJsonArray{1, "two", 3.25, QJsonObject{{"<b>\"\\", "\n\t"}}}},
                                {"parameters", QJsonObject{{"Width", 16777215}, {"Height", 1e9}}}};
    QVERIFY(LayoutFile::write(path("board.lay"), layout).isNull());
    const LayoutFile::Document document = LayoutFile::read(path("board.lay"));
    QVERIFY(document.error.isNull());
    QCOMPARE(document.layout, layout);
}

void tst_LayoutFile::replacesLongerContents()
{
    const QString filePath = put("board.lay", QByteArray(100000, 'x'));
    QVERIFY(LayoutFile::write(filePath, {}).isNull());
    QCOMPARE(bytesOf(filePath), QByteArray("{\n}\n"));
    QCOMPARE(names(), QStringList({"board.lay"}));
}

void tst_LayoutFile::tellsTheWordsOfOpeningForWriting_data()
{
    QTest::addColumn<QString>("place");
    for (const char *place : {"folder", "missing folder", "below a file", "circle of links", "long name"})
        QTest::newRow(place) << place;
}

void tst_LayoutFile::tellsTheWordsOfOpeningForWriting()
{
    QFETCH(QString, place);
    const QString filePath = pathFor(place);
    const QStringList before = names();
    const QString error = LayoutFile::write(filePath, smallLayout());
    QCOMPARE(names(), before);
    QCOMPARE(error, openError(filePath, QIODevice::WriteOnly));
    QVERIFY(error != "opens");
}

void tst_LayoutFile::tellsThatWritingIsNotAllowed()
{
    const QString filePath = put("board.lay", "old");
    setMode(filePath, 0444);
    QCOMPARE(asOrdinaryUser([&] { return LayoutFile::write(filePath, smallLayout()); }),
             QString("Permission denied"));
    QCOMPARE(bytesOf(filePath), QByteArray("old"));
}

void tst_LayoutFile::tellsThatTheFolderTakesNoFile()
{
    setMode(m_folder->path(), 0555);
    QCOMPARE(asOrdinaryUser([&] { return LayoutFile::write(path("board.lay"), smallLayout()); }),
             QString("Permission denied"));
    QCOMPARE(names(), QStringList());
}

void tst_LayoutFile::writesInPlaceInAFolderThatTakesNoFile()
{
    const QString filePath = put("board.lay", QByteArray(1000, 'x'));
    setMode(filePath, 0666);
    setMode(m_folder->path(), 0555);
    QCOMPARE(asOrdinaryUser([&] { return LayoutFile::write(filePath, smallLayout()); }), QString());
    QCOMPARE(bytesOf(filePath), QJsonDocument(smallLayout()).toJson());
}

void tst_LayoutFile::writesANameWithoutRoomForASuffix()
{
    const QString filePath = path(QString(255, 'n'));
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(LayoutFile::write(filePath, smallLayout()), QString());
        QCOMPARE(bytesOf(filePath), QJsonDocument(smallLayout()).toJson());
    }
    QCOMPARE(names().size(), 1);
}

void tst_LayoutFile::writesThroughLinks_data()
{
    QTest::addColumn<QStringList>("targets");
    QTest::newRow("link") << QStringList({"folder/board.lay"});
    QTest::newRow("chain of links") << QStringList({"folder/board.lay", "link0.lay", "link1.lay"});
}

void tst_LayoutFile::writesThroughLinks()
{
    QFETCH(QStringList, targets);
    QVERIFY(QDir(m_folder->path()).mkdir("folder"));
    put("folder/board.lay", "old");
    QString link;
    for (int i = 0; i < targets.size(); ++i) {
        link = path(QStringLiteral("link%1.lay").arg(i));
        makeLink(targets.at(i), link);
    }
    QVERIFY(LayoutFile::write(link, smallLayout()).isNull());
    QVERIFY(QFileInfo(link).isSymLink());
    QVERIFY(!QFileInfo(path("folder/board.lay")).isSymLink());
    QCOMPARE(bytesOf(path("folder/board.lay")), QJsonDocument(smallLayout()).toJson());
    QCOMPARE(QDir(path("folder")).entryList(QDir::Files | QDir::Hidden), QStringList({"board.lay"}));
    QCOMPARE(LayoutFile::read(link).layout, smallLayout());
}

void tst_LayoutFile::writesThroughALinkToNothing()
{
    makeLink("board.lay", path("link.lay"));
    QVERIFY(LayoutFile::write(path("link.lay"), smallLayout()).isNull());
    QVERIFY(QFileInfo(path("link.lay")).isSymLink());
    QCOMPARE(bytesOf(path("board.lay")), QJsonDocument(smallLayout()).toJson());
    QCOMPARE(names(), QStringList({"board.lay", "link.lay"}));
}

void tst_LayoutFile::givesNewFilesThePermissionsOfTheMask_data()
{
    QTest::addColumn<int>("mask");
    QTest::addColumn<int>("permissions");
    QTest::newRow("usual") << 0022 << 0644;
    QTest::newRow("group writes") << 0002 << 0664;
    QTest::newRow("private") << 0077 << 0600;
    QTest::newRow("open to all") << 0000 << 0666;
}

void tst_LayoutFile::givesNewFilesThePermissionsOfTheMask()
{
    QFETCH(int, mask);
    const mode_t oldMask = ::umask(mode_t(mask));
    const QString error = LayoutFile::write(path("board.lay"), smallLayout());
    ::umask(oldMask);
    QCOMPARE(error, QString());
    QTEST(int(modeOf(path("board.lay"))), "permissions");
}

void tst_LayoutFile::keepsThePermissionsOfAFile_data()
{
    QTest::addColumn<int>("permissions");
    QTest::newRow("private") << 0600;
    QTest::newRow("shared") << 0664;
    QTest::newRow("for all") << 0666;
    QTest::newRow("executable") << 0755;
}

void tst_LayoutFile::keepsThePermissionsOfAFile()
{
    QFETCH(int, permissions);
    const QString filePath = put("board.lay", "old");
    setMode(filePath, mode_t(permissions));
    QCOMPARE(LayoutFile::write(filePath, smallLayout()), QString());
    QCOMPARE(int(modeOf(filePath)), permissions);
}

void tst_LayoutFile::writesIntoPipes()
{
    const QByteArray pipe = QFile::encodeName(path("pipe.lay"));
    QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
    const int reader = ::open(pipe.constData(), O_RDONLY | O_NONBLOCK);
    QVERIFY(reader >= 0);
    QCOMPARE(LayoutFile::write(path("pipe.lay"), smallLayout()), QString());
    QCOMPARE(readAll(reader).toUtf8(), QJsonDocument(smallLayout()).toJson());
    QCOMPARE(names(), QStringList({"pipe.lay"}));
}

/// Never as root, who could replace the machine's devices by files if the program were broken.
void tst_LayoutFile::writesIntoDevices_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<QJsonObject>("layout");
    QTest::addColumn<QString>("error");
    QTest::newRow("nothing") << "/dev/null" << largeLayout() << QString();
    QTest::newRow("full") << "/dev/full" << smallLayout() << qt_error_string(ENOSPC);
    QTest::newRow("full, large layout") << "/dev/full" << largeLayout() << qt_error_string(ENOSPC);
}

void tst_LayoutFile::writesIntoDevices()
{
    QFETCH(QString, device);
    QFETCH(QJsonObject, layout);
    QFETCH(QString, error);
    makeLink(device, path("link.lay"));
    for (const QString &filePath : {device, path("link.lay")})
        QCOMPARE(asOrdinaryUser([&] { return LayoutFile::write(filePath, layout); }), error);
    QVERIFY(QFileInfo(path("link.lay")).isSymLink());
}

void tst_LayoutFile::addFullDisks()
{
    QTest::addColumn<int>("freeBytes");
    QTest::addColumn<QJsonObject>("layout");
    QTest::newRow("small layout") << 16 << smallLayout();
    QTest::newRow("large layout") << 64 * 1024 << largeLayout();
}

/// Saves the row's layout on the row's disk.
QString tst_LayoutFile::writeOnFullDisk(const QString &filePath)
{
    QFETCH(int, freeBytes);
    QFETCH(QJsonObject, layout);
    return asOrdinaryUser([&] {
        fillTheDisk(quint64(freeBytes), SIG_IGN);
        return LayoutFile::write(filePath, layout);
    });
}

void tst_LayoutFile::fullDiskLeavesTheOldFileWhole_data()
{
    addFullDisks();
}

void tst_LayoutFile::fullDiskLeavesTheOldFileWhole()
{
    const QString filePath = put("board.lay", "old");
    setMode(filePath, 0666);
    QCOMPARE(writeOnFullDisk(filePath), qt_error_string(EFBIG));
    QCOMPARE(bytesOf(filePath), QByteArray("old"));
    QCOMPARE(names(), QStringList({"board.lay"}));
}

void tst_LayoutFile::fullDiskLeavesTheOldFileWholeInAFolderThatTakesNoFile_data()
{
    addFullDisks();
}

void tst_LayoutFile::fullDiskLeavesTheOldFileWholeInAFolderThatTakesNoFile()
{
    const QString filePath = put("board.lay", "old");
    setMode(filePath, 0666);
    setMode(m_folder->path(), 0555);
    QCOMPARE(writeOnFullDisk(filePath), qt_error_string(EFBIG));
    QCOMPARE(bytesOf(filePath), QByteArray("old"));
}

void tst_LayoutFile::fullDiskLeavesNoNewFile_data()
{
    addFullDisks();
}

void tst_LayoutFile::fullDiskLeavesNoNewFile()
{
    QCOMPARE(writeOnFullDisk(path("board.lay")), qt_error_string(EFBIG));
    QCOMPARE(names(), QStringList());
}

void tst_LayoutFile::fullDiskLeavesALinkToNothing_data()
{
    addFullDisks();
}

void tst_LayoutFile::fullDiskLeavesALinkToNothing()
{
    makeLink("board.lay", path("link.lay"));
    QCOMPARE(writeOnFullDisk(path("link.lay")), qt_error_string(EFBIG));
    QCOMPARE(names(), QStringList({"link.lay"}));
}

void tst_LayoutFile::deathInTheMiddleLeavesTheOldFileWhole()
{
    const QString filePath = put("board.lay", "old");
    const Outcome outcome = runApart([&] {
        // The signal of the limit ends the process between two bytes of the file.
        fillTheDisk(64 * 1024, SIG_DFL);
        return LayoutFile::write(filePath, largeLayout());
    });
    QVERIFY(WIFSIGNALED(outcome.status));
    QCOMPARE(WTERMSIG(outcome.status), SIGXFSZ);
    QCOMPARE(bytesOf(filePath), QByteArray("old"));
}

BOARDWRIGHT_TEST_MAIN(tst_LayoutFile)
#include "tst_layoutfile.moc"
