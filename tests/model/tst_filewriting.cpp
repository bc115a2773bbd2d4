#include "model/filewriting.h"

#include "tests/support/apart.h"
#include "tests/support/files.h"
#include "tests/support/strictmain.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtEndian>

#include <cerrno>
#include <csignal>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

// What a file keeps besides its bytes when others are written into it, and what a full disk does to it.
class tst_FileWriting : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void keepsTheOwnerAndTheGroup();
    void keepsTheMode_data();
    void keepsTheMode();
    void keepsTheOwnersOtherGroup();
    void keepsAFileThatAGroupSharesWithTheWriter();
    void keepsTheAccessList();
    void keepsTheAccessListOfAForeignFile();
    void leavesAFileWithoutTheAccessListOfItsFolder();
    void givesANewFileWhatThePlainOneOfItsFolderHas();
    void keepsExtendedAttributes();
    void keepsAnAttributeThatTheWriterMayNotGive();
    void keepsTheNamesOfAFile_data();
    void keepsTheNamesOfAFile();
    void keepsAFileThatIsOpenElsewhere_data();
    void keepsAFileThatIsOpenElsewhere();
    void writesAFileThatMayNotBeRead();

    void fullDiskLeavesAFileOfTwoNamesWhole_data();
    void fullDiskLeavesAFileOfTwoNamesWhole();
    void fullDiskLeavesAForeignFileWhole_data();
    void fullDiskLeavesAForeignFileWhole();
    void theUnfinishedFileIsOpenToNobodyElse();

private:
    QString path(const QString &name = "board.lay") const { return m_folder->filePath(name); }
    QStringList names() const { return QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden); }
    void put(const QByteArray &bytes = "old") const { QVERIFY(writeFile(path(), bytes)); }
    void putShared(const QByteArray &bytes = "old") const;
    static void addFullDisks();

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace
{
constexpr gid_t team = 54321;
const char *const accessList = "system.posix_acl_access";
const char *const accessListForNewFiles = "system.posix_acl_default";

bool isRoot()
{
    return ::getuid() == 0;
}

struct stat statusOf(const QString &path)
{
    struct stat status = {};
    ::stat(QFile::encodeName(path).constData(), &status);
    return status;
}

/// Owner, group and mode in one line.
QString rightsOf(const struct stat &status)
{
    return QStringLiteral("%1 %2 %3").arg(status.st_uid).arg(status.st_gid).arg(status.st_mode & 07777, 0, 8);
}

QString rightsOf(const QString &path)
{
    return rightsOf(statusOf(path));
}

bool setMode(const QString &path, mode_t mode)
{
    return ::chmod(QFile::encodeName(path).constData(), mode) == 0;
}

bool setOwner(const QString &path, uid_t owner, gid_t group)
{
    return ::chown(QFile::encodeName(path).constData(), owner, group) == 0;
}

bool setAttribute(const QString &path, const char *name, const QByteArray &value)
{
    return ::setxattr(QFile::encodeName(path).constData(), name, value.constData(), size_t(value.size()),
                      0) == 0;
}

/// Null when the file has none of this name.
QByteArray attributeOf(const QString &path, const char *name)
{
    char value[1024] = {};
    const ssize_t size = ::getxattr(QFile::encodeName(path).constData(), name, value, sizeof value);
    return size < 0 ? QByteArray() : QByteArray(value, int(size));
}

/// As the system stores it: the owner reads and writes, the user too, all others do not.
QByteArray listThatNames(quint32 user)
{
    struct Entry {
        quint16 tag;
        quint16 rights;
        quint32 id;
    };
    constexpr quint32 nobody = 0xffffffff;
    const Entry entries[] = {{1, 6, nobody}, {2, 6, user}, {4, 0, nobody}, {16, 6, nobody}, {32, 0, nobody}};
    QByteArray list(4, '\0');
    qToLittleEndian<quint32>(2, list.data());
    for (const Entry &entry : entries) {
        char bytes[8] = {};
        qToLittleEndian(entry.tag, bytes);
        qToLittleEndian(entry.rights, bytes + 2);
        qToLittleEndian(entry.id, bytes + 4);
        list.append(bytes, sizeof bytes);
    }
    return list;
}

constexpr int partBytes = 1000;
struct stat unfinished = {};

/// Notes the file of this process that has just been filled up to the limit.
void noteTheUnfinished(int)
{
    struct stat status = {};
    for (int descriptor = 3; descriptor < 64; ++descriptor) {
        if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_size == partBytes)
            unfinished = status;
    }
}

QString writeNew(const QString &path)
{
    return FileWriting::write(path, "new");
}
} // namespace

void tst_FileWriting::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    QVERIFY(setMode(m_folder->path(), 0777));
}

void tst_FileWriting::cleanup()
{
    m_folder.reset();
}

/// A file of somebody else's, that the team may write.
void tst_FileWriting::putShared(const QByteArray &bytes) const
{
    put(bytes);
    QVERIFY(setOwner(path(), 0, team) && setMode(path(), 0664));
}

void tst_FileWriting::keepsTheOwnerAndTheGroup()
{
    if (!isRoot())
        QSKIP("only root gives files away");
    put();
    QVERIFY(setOwner(path(), 12345, 54321) && setMode(path(), 0640));
    QCOMPARE(writeNew(path()), QString());
    QCOMPARE(rightsOf(path()), QString("12345 54321 640"));
    QCOMPARE(readFile(path()), QByteArray("new"));
}

void tst_FileWriting::keepsTheMode_data()
{
    QTest::addColumn<int>("mode");

    QTest::newRow("private") << 0600;
    QTest::newRow("for all") << 0666;
    QTest::newRow("with the owner's identity") << 04755;
    QTest::newRow("with the group's identity") << 02775;
    QTest::newRow("sticky") << 01644;
}

void tst_FileWriting::keepsTheMode()
{
    QFETCH(int, mode);

    const auto writeTwice = [this, mode] {
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly) || !setMode(path(), mode_t(mode)))
            return QString("cannot prepare the file");
        file.close();
        const QString error = writeNew(path());
        // With a second name the file is written in place.
        if (!error.isNull() || ::link(qPrintable(path()), qPrintable(path("other.lay"))) != 0)
            return error;
        return QString::number(statusOf(path()).st_mode & 07777) + writeNew(path());
    };
    QCOMPARE(asOrdinaryUser(writeTwice), QString::number(mode));
    QCOMPARE(int(statusOf(path()).st_mode & 07777), mode);
}

void tst_FileWriting::keepsTheOwnersOtherGroup()
{
    if (!isRoot())
        QSKIP("only root gives files away");
    put();
    QVERIFY(setOwner(path(), ordinaryUser, team) && setMode(path(), 0664));
    // The writer is in another group alone and so may not give a new file to this one.
    QCOMPARE(asOrdinaryUser([this] { return writeNew(path()); }), QString());
    QCOMPARE(rightsOf(path()), QString("65534 54321 664"));
    QCOMPARE(readFile(path()), QByteArray("new"));
}

void tst_FileWriting::keepsAFileThatAGroupSharesWithTheWriter()
{
    if (!isRoot())
        QSKIP("only root gives files away");
    putShared(QByteArray(100000, 'x'));
    QCOMPARE(asOrdinaryUser([this] { return writeNew(path()); }, team), QString());
    QCOMPARE(rightsOf(path()), QString("0 54321 664"));
    QCOMPARE(readFile(path()), QByteArray("new"));
    QCOMPARE(names(), QStringList("board.lay"));
}

void tst_FileWriting::keepsTheAccessList()
{
    put();
    if (!setAttribute(path(), accessList, listThatNames(12345)))
        QSKIP("no access lists here");
    const QString before = rightsOf(path());
    QCOMPARE(writeNew(path()), QString());
    QCOMPARE(attributeOf(path(), accessList), listThatNames(12345));
    QCOMPARE(rightsOf(path()), before);
    QCOMPARE(readFile(path()), QByteArray("new"));
}

void tst_FileWriting::keepsTheAccessListOfAForeignFile()
{
    if (!isRoot())
        QSKIP("only root gives files away");
    put();
    if (!setAttribute(path(), accessList, listThatNames(ordinaryUser)))
        QSKIP("no access lists here");
    const QString before = rightsOf(path());
    QCOMPARE(asOrdinaryUser([this] { return writeNew(path()); }), QString());
    QCOMPARE(attributeOf(path(), accessList), listThatNames(ordinaryUser));
    QCOMPARE(rightsOf(path()), before);
    QCOMPARE(readFile(path()), QByteArray("new"));
}

void tst_FileWriting::leavesAFileWithoutTheAccessListOfItsFolder()
{
    put();
    QVERIFY(setMode(path(), 0664));
    if (!setAttribute(m_folder->path(), accessListForNewFiles, listThatNames(12345)))
        QSKIP("no access lists here");
    const QString before = rightsOf(path());
    QCOMPARE(writeNew(path()), QString());
    QCOMPARE(attributeOf(path(), accessList), QByteArray());
    QCOMPARE(rightsOf(path()), before);
}

void tst_FileWriting::givesANewFileWhatThePlainOneOfItsFolderHas()
{
    if (!setAttribute(m_folder->path(), accessListForNewFiles, listThatNames(12345)))
        QSKIP("no access lists here");
    QVERIFY(setMode(m_folder->path(), 02777));
    QVERIFY(!isRoot() || setOwner(m_folder->path(), 0, team));
    QVERIFY(writeFile(path("plain"), "new"));
    QCOMPARE(writeNew(path()), QString());
    QVERIFY(!attributeOf(path(), accessList).isNull());
    QCOMPARE(attributeOf(path(), accessList), attributeOf(path("plain"), accessList));
    QCOMPARE(rightsOf(path()), rightsOf(path("plain")));
}

void tst_FileWriting::keepsExtendedAttributes()
{
    put();
    if (!setAttribute(path(), "user.origin", "the club"))
        QSKIP("no extended attributes here");
    QVERIFY(setAttribute(path(), "user.empty", QByteArray()));
    QVERIFY(setAttribute(path(), "user.binary", QByteArray("a\0b", 3)));
    QCOMPARE(writeNew(path()), QString());
    QCOMPARE(attributeOf(path(), "user.origin"), QByteArray("the club"));
    QVERIFY(!attributeOf(path(), "user.empty").isNull());
    QCOMPARE(attributeOf(path(), "user.binary"), QByteArray("a\0b", 3));
    QCOMPARE(readFile(path()), QByteArray("new"));
}

void tst_FileWriting::keepsAnAttributeThatTheWriterMayNotGive()
{
    put();
    QVERIFY(!isRoot() || setOwner(path(), ordinaryUser, ordinaryUser));
    if (!setAttribute(path(), "security.boardwright", "label"))
        QSKIP("only root gives such an attribute, and not everywhere");
    QCOMPARE(asOrdinaryUser([this] { return writeNew(path()); }), QString());
    QCOMPARE(attributeOf(path(), "security.boardwright"), QByteArray("label"));
    QCOMPARE(readFile(path()), QByteArray("new"));
    QCOMPARE(names(), QStringList("board.lay"));
}

void tst_FileWriting::keepsTheNamesOfAFile_data()
{
    QTest::addColumn<QByteArray>("old");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("longer") << QByteArray("old") << QByteArray(100000, 'n');
    QTest::newRow("shorter") << QByteArray(100000, 'o') << QByteArray("new");
    QTest::newRow("as long") << QByteArray("old") << QByteArray("new");
    QTest::newRow("was empty") << QByteArray() << QByteArray("new");
    QTest::newRow("becomes empty") << QByteArray("old") << QByteArray();
}

void tst_FileWriting::keepsTheNamesOfAFile()
{
    QFETCH(QByteArray, old);
    QFETCH(QByteArray, bytes);

    put(old);
    QCOMPARE(::link(qPrintable(path()), qPrintable(path("other.lay"))), 0);
    QCOMPARE(FileWriting::write(path(), bytes), QString());
    QCOMPARE(readFile(path()), bytes);
    QCOMPARE(readFile(path("other.lay")), bytes);
    QCOMPARE(names(), QStringList({"board.lay", "other.lay"}));
}

void tst_FileWriting::keepsAFileThatIsOpenElsewhere_data()
{
    QTest::addColumn<bool>("isRemoved");

    QTest::newRow("in its folder") << false;
    QTest::newRow("removed from its folder") << true;
}

// As a shell does for the output of a program.
void tst_FileWriting::keepsAFileThatIsOpenElsewhere()
{
    QFETCH(bool, isRemoved);

    put();
    QFile file(path());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(QFile::link(QStringLiteral("/dev/fd/%1").arg(file.handle()), path("link.lay")));
    QVERIFY(!isRemoved || QFile::remove(path()));
    QCOMPARE(FileWriting::write(path("link.lay"), "new bytes"), QString());
    QCOMPARE(file.readAll(), QByteArray("new bytes"));
    QCOMPARE(QFile::exists(path()), !isRemoved);
}

void tst_FileWriting::writesAFileThatMayNotBeRead()
{
    put(QByteArray(1000, 'x'));
    QVERIFY(setMode(path(), 0222));
    QCOMPARE(asOrdinaryUser([this] { return writeNew(path()); }), QString());
    QCOMPARE(int(statusOf(path()).st_mode & 07777), 0222);
    QVERIFY(setMode(path(), 0644));
    QCOMPARE(readFile(path()), QByteArray("new"));
}

void tst_FileWriting::addFullDisks()
{
    QTest::addColumn<QByteArray>("old");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("grows") << QByteArray("old") << QByteArray(100000, 'n');
    QTest::newRow("grows a little") << QByteArray(500, 'o') << QByteArray(600, 'n');
    QTest::newRow("shrinks") << QByteArray(100000, 'o') << QByteArray(5000, 'n');
    QTest::newRow("was empty") << QByteArray() << QByteArray(5000, 'n');
}

void tst_FileWriting::fullDiskLeavesAFileOfTwoNamesWhole_data()
{
    addFullDisks();
}

void tst_FileWriting::fullDiskLeavesAFileOfTwoNamesWhole()
{
    QFETCH(QByteArray, old);
    QFETCH(QByteArray, bytes);

    put(old);
    QCOMPARE(::link(qPrintable(path()), qPrintable(path("other.lay"))), 0);
    const FullDisk disk(512);
    QCOMPARE(FileWriting::write(path(), bytes), qt_error_string(EFBIG));
    QVERIFY(readFile(path()) == old);
    QCOMPARE(names(), QStringList({"board.lay", "other.lay"}));
}

void tst_FileWriting::fullDiskLeavesAForeignFileWhole_data()
{
    addFullDisks();
}

void tst_FileWriting::fullDiskLeavesAForeignFileWhole()
{
    QFETCH(QByteArray, old);
    QFETCH(QByteArray, bytes);

    if (!isRoot())
        QSKIP("only root gives files away");
    putShared(old);
    const auto writeOnFullDisk = [this, &bytes] {
        fillTheDisk(512, SIG_IGN);
        return FileWriting::write(path(), bytes);
    };
    QCOMPARE(asOrdinaryUser(writeOnFullDisk, team), qt_error_string(EFBIG));
    QVERIFY(readFile(path()) == old);
    QCOMPARE(rightsOf(path()), QString("0 54321 664"));
    QCOMPARE(names(), QStringList("board.lay"));
}

void tst_FileWriting::theUnfinishedFileIsOpenToNobodyElse()
{
    if (!isRoot())
        QSKIP("only root gives files away");
    put();
    QVERIFY(setOwner(path(), 12345, team) && setMode(path(), 0640));
    const Outcome outcome = runApart([this] {
        // The signal comes between two bytes of the new file, which may have no name yet.
        fillTheDisk(partBytes, noteTheUnfinished);
        return FileWriting::write(path(), QByteArray(100000, 'n')).isNull() ? QString("written")
                                                                            : rightsOf(unfinished);
    });
    QCOMPARE(outcome.answer, QString("12345 54321 640"));
    QCOMPARE(readFile(path()), QByteArray("old"));
    QCOMPARE(names(), QStringList("board.lay"));
}

BOARDWRIGHT_TEST_MAIN(tst_FileWriting)
#include "tst_filewriting.moc"
