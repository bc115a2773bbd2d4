#include "pictures/filecache.h"

#include "tests/support/files.h"
#include "tests/support/strictmain.h"

#include <QDateTime>
#include <QTemporaryDir>

/// What is made of files once for all.
class tst_FileCache : public QObject
{
    Q_OBJECT

private slots:
    void makesOneOfAFile();
    void knowsAFileByAllItsNames();
    void keepsNothingThatNobodyUses();
    void makesAnotherOfAChangedFile_data();
    void makesAnotherOfAChangedFile();
    void tellsContentsOfTheSameTimeApart();
    void keepsNothingOfWhatIsNoFile();
    void remembersNoFailures();
    void knowsThousands();

private:
    using Shared = FileCache<QByteArray>::Shared;

    Shared get(const QString &path)
    {
        return m_cache.get(path, [this](const QString &file) {
            ++m_made;
            const QByteArray bytes = readFile(file);
            return bytes.isEmpty() ? nullptr : std::make_shared<const QByteArray>(bytes);
        });
    }

    QString file(const QByteArray &bytes, const QString &name = "file") const
    {
        return writeFile(m_folder.filePath(name), bytes) ? m_folder.filePath(name) : QString();
    }

    /// Gives the file a time of change as of long ago.
    static bool age(const QString &path, int seconds = 1000)
    {
        QFile file(path);
        return file.open(QIODevice::ReadWrite) &&
               file.setFileTime(QDateTime::fromSecsSinceEpoch(seconds), QFileDevice::FileModificationTime);
    }

    QTemporaryDir m_folder;
    FileCache<QByteArray> m_cache;
    int m_made = 0;
};

void tst_FileCache::makesOneOfAFile()
{
    m_made = 0;
    const Shared first = get(file("one"));
    QCOMPARE(*first, QByteArray("one"));
    for (int i = 0; i < 30; ++i)
        QCOMPARE(get(m_folder.filePath("file")), first);
    QCOMPARE(m_made, 1);
}

void tst_FileCache::knowsAFileByAllItsNames()
{
    const QString path = file("one");
    const Shared first = get(path);
    QVERIFY(QFile::link(path, m_folder.filePath("link")));
    QCOMPARE(get(m_folder.filePath("link")), first);
    QCOMPARE(get(m_folder.path() + "/./file"), first);
    const Shared other = get(file("one", "other"));
    QVERIFY(other != first);
}

void tst_FileCache::keepsNothingThatNobodyUses()
{
    const std::weak_ptr<const QByteArray> gone = get(file("one"));
    QVERIFY(gone.expired());
    QVERIFY(get(m_folder.filePath("file")));
}

void tst_FileCache::makesAnotherOfAChangedFile_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("time");
    QTest::newRow("other size") << QByteArray("longer") << 1000;
    QTest::newRow("other time") << QByteArray("two") << 1001;
}

void tst_FileCache::makesAnotherOfAChangedFile()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, time);
    const QString path = file("one");
    QVERIFY(age(path));
    const Shared first = get(path);
    QVERIFY(!file(bytes).isEmpty());
    QVERIFY(age(path, time));
    const Shared second = get(path);
    QCOMPARE(*second, bytes);
    QCOMPARE(*first, QByteArray("one"));
    QCOMPARE(get(path), second);
}

void tst_FileCache::tellsContentsOfTheSameTimeApart()
{
    const Shared first = get(file("one"));
    for (int i = 0; i < 100; ++i) {
        const QByteArray other = QByteArray::number(100 + i);
        const Shared next = get(file(other));
        QCOMPARE(*next, other);
    }
    QCOMPARE(*first, QByteArray("one"));
}

void tst_FileCache::keepsNothingOfWhatIsNoFile()
{
    for (const QString &path : {m_folder.path(), m_folder.filePath("missing")})
        QVERIFY(!get(path));
}

void tst_FileCache::remembersNoFailures()
{
    QVERIFY(!get(file("")));
    QVERIFY(get(file("one")));
}

void tst_FileCache::knowsThousands()
{
    QVector<Shared> all;
    for (int i = 0; i < 200; ++i)
        all << get(file("one", QString::number(i)));
    m_made = 0;
    for (int i = 0; i < all.size(); ++i)
        QCOMPARE(get(m_folder.filePath(QString::number(i))), all.at(i));
    QCOMPARE(m_made, 0);
}

BOARDWRIGHT_TEST_MAIN(tst_FileCache)
#include "tst_filecache.moc"
