#include "tests/update/updatetest.h"

#include <QBuffer>
#include <QMetaMethod>
#include <QNetworkReply>

// The parts of the update by themselves: the slots as an interface, and each of them alone.
class tst_UpdateMagaer : public UpdateTest
{
    Q_OBJECT

private slots:
    void startsWithNothing();
    void slotsKeepOrderAndAccess_data();
    void slotsKeepOrderAndAccess();
    void hasNoOtherMethods();
    void downloadOfNothingFails();
    void anAddressThatIsNoTextIsEmpty();
    void sslErrorsShowsOneBoxPerErrorInOrder();
    void sixStatusCodesAreRedirects();
    void downloadFinishedTellsOfAnyReply();
    void saveFileNameDeletesTheOlderFile();
    void saveFileNameLeavesAFolderAlone();
    void saveToDiskWritesEverything();
    void saveToDiskWritesThroughNoLink();
};

namespace
{
/// An answer that is nothing but a status.
class StatusReply : public QNetworkReply
{
public:
    explicit StatusReply(int status) { setAttribute(QNetworkRequest::HttpStatusCodeAttribute, status); }
    void abort() override {}

protected:
    qint64 readData(char *data, qint64 size) override
    {
        Q_UNUSED(data)
        Q_UNUSED(size)
        return -1;
    }
};

bool isHttpRedirect(UpdateMagaer &updates, int status)
{
    StatusReply answer(status);
    QNetworkReply *base = &answer;
    // As below: without a blank before the star.
    const QArgument<QNetworkReply *> reply("QNetworkReply*", base);
    bool isRedirect = false;
    QMetaObject::invokeMethod(&updates, "isHttpRedirect", Q_RETURN_ARG(bool, isRedirect), reply);
    return isRedirect;
}

QString saveFileName(UpdateMagaer &updates, const QUrl &url)
{
    QString name;
    QMetaObject::invokeMethod(&updates, "saveFileName", Q_RETURN_ARG(QString, name), Q_ARG(QUrl, url));
    return name;
}

bool saveToDisk(UpdateMagaer &updates, const QString &name, const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QIODevice *device = &buffer;
    // Not Q_ARG: with a blank before its star the type would have to be normalised first.
    const QArgument<QIODevice *> data("QIODevice*", device);
    bool isSaved = false;
    QMetaObject::invokeMethod(&updates, "saveToDisk", Q_RETURN_ARG(bool, isSaved), Q_ARG(QString, name),
                              data);
    return isSaved;
}
} // namespace

void tst_UpdateMagaer::startsWithNothing()
{
    const UpdateMagaer updates;
    QVERIFY(!updates.parent());
    QVERIFY(updates.downloads().isEmpty());
    QVERIFY(server().requests().isEmpty());
}

void tst_UpdateMagaer::slotsKeepOrderAndAccess_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<QByteArray>("parameters");
    QTest::addColumn<QByteArray>("answer");

    const auto row = [](int place, const QByteArray &signature, const QByteArray &parameters,
                        const QByteArray &answer) {
        QTest::newRow(signature.constData()) << place << signature << parameters << answer;
    };
    row(0, "downloadFinished(QNetworkReply*)", "reply", "void");
    row(1, "sslErrors(QList<QSslError>)", "errors", "void");
    row(2, "isHttpRedirect(QNetworkReply*)", "reply", "bool");
    row(3, "saveToDisk(QString,QIODevice*)", "filename data", "bool");
    row(4, "saveFileName(QUrl)", "url", "QString");
}

void tst_UpdateMagaer::slotsKeepOrderAndAccess()
{
    QFETCH(int, place);
    QFETCH(QByteArray, signature);
    QFETCH(QByteArray, parameters);
    QFETCH(QByteArray, answer);

    const QMetaObject &meta = UpdateMagaer::staticMetaObject;
    const QMetaMethod method = meta.method(meta.methodOffset() + place);
    QCOMPARE(method.methodType(), QMetaMethod::Slot);
    QCOMPARE(method.access(), QMetaMethod::Private);
    QCOMPARE(method.methodSignature(), signature);
    QCOMPARE(method.parameterNames().join(' '), parameters);
    QCOMPARE(QByteArray(method.typeName()), answer);
}

void tst_UpdateMagaer::hasNoOtherMethods()
{
    const QMetaObject &meta = UpdateMagaer::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 5);
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
}

void tst_UpdateMagaer::downloadOfNothingFails()
{
    UpdateMagaer updates;
    DialogAnswers answers;
    answers.press("OK");
    updates.download();
    QVERIFY(answers.areUsedUp());
    QCOMPARE(answers.seen().constFirst().text, QString("Url =  Error:Protocol \"\" is unknown"));
}

void tst_UpdateMagaer::anAddressThatIsNoTextIsEmpty()
{
    server().give(descriptorPath(), httpAnswer(R"({"version": "1.0", "url": true})"));
    UpdateMagaer updates;
    QVERIFY(updates.check());
    DialogAnswers answers;
    answers.press("OK");
    updates.download();
    QVERIFY(answers.areUsedUp());
    QVERIFY(answers.seen().constFirst().text.startsWith("Url =  Error:"));
}

void tst_UpdateMagaer::sslErrorsShowsOneBoxPerErrorInOrder()
{
    const QList<QSslError> errors = {QSslError(QSslError::CertificateExpired),
                                     QSslError(QSslError::HostNameMismatch),
                                     QSslError(QSslError::CertificateExpired)};
    UpdateMagaer updates;
    DialogAnswers answers;
    answers.press("OK").press("OK").escape();
    QVERIFY(QMetaObject::invokeMethod(&updates, "sslErrors", Q_ARG(QList<QSslError>, errors)));
    QVERIFY(answers.areUsedUp());
    for (int place = 0; place < errors.size(); ++place) {
        QCOMPARE(answers.seen().at(place).title, QString("SSL error"));
        QCOMPARE(answers.seen().at(place).text, errors.at(place).errorString());
    }
}

void tst_UpdateMagaer::sixStatusCodesAreRedirects()
{
    UpdateMagaer updates;
    QList<int> redirects;
    for (int status = 100; status < 600; ++status) {
        if (isHttpRedirect(updates, status))
            redirects << status;
    }
    QCOMPARE(redirects, QList<int>({301, 302, 303, 305, 307, 308}));
}

// One too that no download of this object has begun.
void tst_UpdateMagaer::downloadFinishedTellsOfAnyReply()
{
    UpdateMagaer updates;
    const QPointer<QNetworkReply> answer(new StatusReply(302));
    QNetworkReply *base = answer;
    const QArgument<QNetworkReply *> reply("QNetworkReply*", base);
    DialogAnswers answers;
    answers.press("OK");
    QVERIFY(QMetaObject::invokeMethod(&updates, "downloadFinished", reply));
    QVERIFY(answers.areUsedUp());
    QCOMPARE(answers.seen().constFirst().title, QString("Server error!"));
    QTRY_VERIFY(!answer);
}

void tst_UpdateMagaer::saveFileNameDeletesTheOlderFile()
{
    UpdateMagaer updates;
    QVERIFY(writeFile("setup.run", "old") && writeFile("download", "old") && writeFile("other", "old"));
    QCOMPARE(saveFileName(updates, QUrl("http://h/a/setup.run")), QString("setup.run"));
    QCOMPARE(files(), QStringList({"download", "other"}));
    QCOMPARE(saveFileName(updates, QUrl("http://h/a/")), QString("download"));
    QCOMPARE(files(), QStringList("other"));
}

void tst_UpdateMagaer::saveFileNameLeavesAFolderAlone()
{
    UpdateMagaer updates;
    QVERIFY(QDir::current().mkpath("setup.run"));
    QCOMPARE(saveFileName(updates, QUrl("http://h/setup.run")), QString("setup.run"));
    QCOMPARE(files(), QStringList("setup.run"));
}

void tst_UpdateMagaer::saveToDiskWritesEverything()
{
    UpdateMagaer updates;
    const QByteArray bytes(200000, '\0');
    QVERIFY(saveToDisk(updates, "setup.run", bytes));
    QCOMPARE(readFile("setup.run"), bytes);
    QVERIFY(saveToDisk(updates, "setup.run", "less"));
    QCOMPARE(readFile("setup.run"), QByteArray("less"));
    QVERIFY(saveToDisk(updates, "empty", ""));
    QCOMPARE(QFileInfo("empty").size(), 0);
}

// A folder that takes no change keeps a link even when it is to be deleted.
void tst_UpdateMagaer::saveToDiskWritesThroughNoLink()
{
    const QString target = outside() + "/target";
    QVERIFY(writeFile(target, "old") && QFile::link(target, "setup.run"));
    UpdateMagaer updates;
    QVERIFY(!saveToDisk(updates, "setup.run", "new"));
    QCOMPARE(readFile(target), QByteArray("old"));
}

BOARDWRIGHT_TEST_MAIN(tst_UpdateMagaer)
#include "tst_updatemagaer.moc"
