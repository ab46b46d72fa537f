#include "NA/FxNANetworkAccessManager.h"

#include "NA/FxNANetworkReply.h"
#include "NA/FxNANetworkRequest.h"
#include "NA/support/Peer.h"
#include "NA/support/Transfer.h"
#include "support/Events.h"
#include "support/TestMain.h"

#include <QtCore/QBuffer>
#include <QtCore/QFile>
#include <QtNetwork/QAuthenticator>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>
#include <QtTest/QTest>

#include <memory>

namespace {

QNetworkAccessManager *QtManager(const CFxNANetworkAccessManager &manager)
{
    return qobject_cast<QNetworkAccessManager *>(manager.getHandle());
}

bool WriteFile(const QString &name, const QByteArray &bytes)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray ReadFile(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Bytes without a pattern that a compression or a wrong offset would hide.
QByteArray Noise(int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    quint32 state = 1;
    for (char &byte : bytes) {
        state = state * 1664525U + 1013904223U;
        byte = static_cast<char>(state >> 24U);
    }
    return bytes;
}

constexpr int BigSize = 64 * 1024 * 1024;

} // namespace

class tst_FxNANetworkAccessManagerTransfers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void getDeliversBodyStatusAndHeaders();
    void getSendsTheHeadersOfTheRequest();
    void getOfABigFile();
    void getOfACompressedBodyIsUnpacked();
    void getOfAMissingFileIsAnErrorWithABody();
    void redirectsAreNotFollowed();
    void cookiesAreKeptByTheQtManager();
    void authenticationIsNotAnswered();
    void authenticationThroughTheQtManager();
    void postOfBytesThatGoAfterTheCall();
    void postOfADevice();
    void postOfANullDevice();
    void putOfBytesAndDeviceAndDelete();
    void putOfABigFileReportsProgress();

private:
    CFxNANetworkRequest Request(const QString &path)
    {
        return CFxNANetworkRequest(nginx.Url(path));
    }

    NginxPeer nginx;
    FaultPeer fault;
    QByteArray big;
};

void tst_FxNANetworkAccessManagerTransfers::initTestCase()
{
    QVERIFY2(nginx.Start(), qPrintable(nginx.Fault()));
    QVERIFY2(fault.Start(), qPrintable(fault.Fault()));
    big = Noise(BigSize);
    QVERIFY(WriteFile(nginx.Folder() + QStringLiteral("/small.txt"), "small body\n"));
    QVERIFY(WriteFile(nginx.Folder() + QStringLiteral("/big.bin"), big));
    QVERIFY(WriteFile(nginx.Folder() + QStringLiteral("/passwords"), "user:{PLAIN}pass\n"));
    QVERIFY(WriteFile(nginx.Folder() + QStringLiteral("/secret"), "secret"));
}

void tst_FxNANetworkAccessManagerTransfers::getDeliversBodyStatusAndHeaders()
{
    CFxNANetworkAccessManager manager;
    const CFxNANetworkRequest request = Request(QStringLiteral("/small.txt"));
    Transfer transfer(manager.get(request));
    QVERIFY(transfer.Wait());
    QCOMPARE(transfer.ends, 1);
    QVERIFY(transfer.errors.isEmpty());
    QCOMPARE(transfer.Code(), CFxNANetworkReply::NoError);
    QVERIFY(transfer.reply->errorString().isEmpty());
    QCOMPARE(transfer.body, QByteArray("small body\n"));
    QCOMPARE(transfer.Status(), 200);
    QVERIFY(transfer.reply->header(CFxNANetworkRequest::ServerHeader)
                .toByteArray()
                .startsWith("nginx/"));
    QCOMPARE(transfer.reply->header(CFxNANetworkRequest::ContentTypeHeader),
             QVariant(QByteArray("text/plain")));
    QVERIFY(transfer.reply->isFinished());
    QCOMPARE(RunningInterval(TimeoutOf(*transfer.reply)), -1);
}

void tst_FxNANetworkAccessManagerTransfers::getSendsTheHeadersOfTheRequest()
{
    CFxNANetworkAccessManager manager;
    CFxNANetworkRequest request(fault.Url(Steps().Echo().Path()));
    request.setRawHeader("X-Raw", "raw value");
    request.setHeader(CFxNANetworkRequest::UserAgentHeader, QStringLiteral("agent"));
    Transfer transfer(manager.get(request));
    QVERIFY(transfer.Wait());
    QVERIFY(transfer.body.startsWith("GET /"));
    QVERIFY(transfer.body.contains("\r\nX-Raw: raw value\r\n"));
    QVERIFY(transfer.body.contains("\r\nUser-Agent: agent\r\n"));
    QVERIFY(!transfer.body.contains("raw value, "));
}

void tst_FxNANetworkAccessManagerTransfers::getOfABigFile()
{
    CFxNANetworkAccessManager manager;
    const CFxNANetworkRequest request = Request(QStringLiteral("/big.bin"));
    Transfer transfer(manager.get(request));
    QList<QPair<long long, long long>> progress;
    transfer.reply->downloadProgress().connect([&](long long received, long long total) {
        progress.append({ received, total });
    });
    QVERIFY(transfer.Wait(60000));
    QCOMPARE(transfer.ends, 1);
    QCOMPARE(transfer.body.size(), BigSize);
    QVERIFY(transfer.body == big);
    QCOMPARE(transfer.reply->header(CFxNANetworkRequest::ContentLengthHeader),
             QVariant(QByteArray::number(BigSize)));
    QVERIFY(!progress.isEmpty());
    QCOMPARE(progress.last(), qMakePair((long long)BigSize, (long long)BigSize));
    for (int i = 1; i < progress.size(); ++i)
        QVERIFY(progress.at(i - 1).first <= progress.at(i).first);
}

void tst_FxNANetworkAccessManagerTransfers::getOfACompressedBodyIsUnpacked()
{
    const QByteArray text = QByteArray("compressible text ").repeated(10000);
    QVERIFY(WriteFile(nginx.Folder() + QStringLiteral("/text.txt"), text));
    CFxNANetworkAccessManager manager;
    const CFxNANetworkRequest request = Request(QStringLiteral("/text.txt"));
    Transfer transfer(manager.get(request));
    QVERIFY(transfer.Wait());
    QVERIFY(transfer.body == text);
    QVERIFY(transfer.errors.isEmpty());
    QVERIFY(transfer.reply->header(CFxNANetworkRequest::ContentLengthHeader).isNull());
}

void tst_FxNANetworkAccessManagerTransfers::getOfAMissingFileIsAnErrorWithABody()
{
    CFxNANetworkAccessManager manager;
    const CFxNANetworkRequest request = Request(QStringLiteral("/none"));
    Transfer transfer(manager.get(request));
    QVERIFY(transfer.Wait());
    QCOMPARE(transfer.ends, 1);
    QCOMPARE(transfer.errors, QList<int> { CFxNANetworkReply::ContentNotFoundError });
    QCOMPARE(transfer.Code(), CFxNANetworkReply::ContentNotFoundError);
    QVERIFY(transfer.reply->errorString().endsWith(QStringLiteral("server replied: Not Found")));
    QCOMPARE(transfer.Status(), 404);
    QVERIFY(transfer.body.contains("404 Not Found"));
}

void tst_FxNANetworkAccessManagerTransfers::redirectsAreNotFollowed()
{
    CFxNANetworkAccessManager manager;
    const CFxNANetworkRequest request = Request(QStringLiteral("/moved"));
    Transfer transfer(manager.get(request));
    QVERIFY(transfer.Wait());
    QVERIFY(transfer.errors.isEmpty());
    QCOMPARE(transfer.Status(), 301);
    QCOMPARE(transfer.reply->attribute(CFxNANetworkRequest::RedirectionTargetAttribute).toUrl(),
             nginx.Url(QStringLiteral("/small.txt")));
    QVERIFY(transfer.reply->header(CFxNANetworkRequest::LocationHeader)
                .toByteArray()
                .endsWith("/small.txt"));
}

void tst_FxNANetworkAccessManagerTransfers::cookiesAreKeptByTheQtManager()
{
    CFxNANetworkAccessManager manager;
    const QByteArray answer =
        "HTTP/1.1 200 OK\r\nSet-Cookie: a=b; Path=/\r\nContent-Length: 0\r\n\r\n";
    Transfer first(manager.get(CFxNANetworkRequest(fault.Url(Steps().Send(answer).Path()))));
    QVERIFY(first.Wait());
    Transfer second(manager.get(CFxNANetworkRequest(fault.Url(Steps().Echo().Path()))));
    QVERIFY(second.Wait());
    QVERIFY(second.body.contains("\r\nCookie: a=b\r\n"));
}

void tst_FxNANetworkAccessManagerTransfers::authenticationIsNotAnswered()
{
    CFxNANetworkAccessManager manager;
    const CFxNANetworkRequest request = Request(QStringLiteral("/secret"));
    Transfer transfer(manager.get(request));
    QVERIFY(transfer.Wait());
    QCOMPARE(transfer.errors, QList<int> { CFxNANetworkReply::AuthenticationRequiredError });
    QCOMPARE(transfer.Status(), 401);
}

void tst_FxNANetworkAccessManagerTransfers::authenticationThroughTheQtManager()
{
    CFxNANetworkAccessManager manager;
    connect(QtManager(manager), &QNetworkAccessManager::authenticationRequired, this,
            [](QNetworkReply *, QAuthenticator *authenticator) {
                authenticator->setUser(QStringLiteral("user"));
                authenticator->setPassword(QStringLiteral("pass"));
            });
    const CFxNANetworkRequest request = Request(QStringLiteral("/secret"));
    Transfer transfer(manager.get(request));
    QVERIFY(transfer.Wait());
    QVERIFY(transfer.errors.isEmpty());
    QCOMPARE(transfer.body, QByteArray("secret"));

    CFxNANetworkAccessManager other;
    CFxNANetworkRequest withHeader = Request(QStringLiteral("/secret"));
    withHeader.setRawHeader("Authorization", "Basic " + QByteArray("user:pass").toBase64());
    Transfer second(other.get(withHeader));
    QVERIFY(second.Wait());
    QCOMPARE(second.body, QByteArray("secret"));
}

void tst_FxNANetworkAccessManagerTransfers::postOfBytesThatGoAfterTheCall()
{
    CFxNANetworkAccessManager manager;
    CFxNANetworkRequest request(fault.Url(Steps().Echo().Path()));
    request.setHeader(CFxNANetworkRequest::ContentTypeHeader, QStringLiteral("text/plain"));
    auto bytes = std::make_unique<QByteArray>("the bytes of a post");
    Transfer transfer(manager.post(request, *bytes));
    bytes->fill('-');
    bytes.reset();
    QVERIFY(transfer.Wait());
    QCOMPARE(transfer.ends, 1);
    QVERIFY(transfer.body.startsWith("POST /"));
    QVERIFY(transfer.body.endsWith("\r\n\r\nthe bytes of a post"));
    QVERIFY(transfer.body.contains("\r\nContent-Type: text/plain\r\n"));
}

void tst_FxNANetworkAccessManagerTransfers::postOfADevice()
{
    CFxNANetworkAccessManager manager;
    CFxNANetworkRequest request = Request(QStringLiteral("/post"));
    request.setHeader(CFxNANetworkRequest::ContentTypeHeader, QStringLiteral("a/b"));
    QBuffer device;
    device.setData("the bytes of a device");
    QVERIFY(device.open(QIODevice::ReadOnly));
    Transfer transfer(manager.post(request, &device));
    QVERIFY(transfer.Wait());
    QCOMPARE(transfer.body, QByteArray("POST a/b 21"));
    transfer.reply.reset();
    FlushDeferredDeletes();
    QVERIFY(device.isOpen()); // still the caller's
    QCOMPARE(device.data(), QByteArray("the bytes of a device"));
}

void tst_FxNANetworkAccessManagerTransfers::postOfANullDevice()
{
    CFxNANetworkAccessManager manager;
    CFxNANetworkRequest request = Request(QStringLiteral("/post"));
    request.setHeader(CFxNANetworkRequest::ContentTypeHeader, QStringLiteral("a/b"));
    Transfer transfer(manager.post(request, static_cast<QIODevice *>(nullptr)));
    QVERIFY(transfer.Wait());
    QCOMPARE(transfer.body, QByteArray("POST a/b "));
}

void tst_FxNANetworkAccessManagerTransfers::putOfBytesAndDeviceAndDelete()
{
    CFxNANetworkAccessManager manager;
    const CFxNANetworkRequest request = Request(QStringLiteral("/dav.txt"));
    const QString file = nginx.Folder() + QStringLiteral("/dav.txt");
    Transfer put(manager.put(request, QByteArray("put bytes")));
    QVERIFY(put.Wait());
    QCOMPARE(put.Status(), 201);
    QCOMPARE(ReadFile(file), QByteArray("put bytes"));

    QBuffer device;
    device.setData("put device");
    QVERIFY(device.open(QIODevice::ReadOnly));
    Transfer putDevice(manager.put(request, &device));
    QVERIFY(putDevice.Wait());
    QCOMPARE(putDevice.Status(), 204);
    QCOMPARE(ReadFile(file), QByteArray("put device"));

    Transfer deletion(manager.deleteResource(request));
    QVERIFY(deletion.Wait());
    QCOMPARE(deletion.Status(), 204);
    QVERIFY(deletion.errors.isEmpty());
    QVERIFY(!QFile::exists(file));

    Transfer again(manager.deleteResource(request));
    QVERIFY(again.Wait());
    QCOMPARE(again.errors, QList<int> { CFxNANetworkReply::ContentNotFoundError });
}

void tst_FxNANetworkAccessManagerTransfers::putOfABigFileReportsProgress()
{
    CFxNANetworkAccessManager manager;
    const CFxNANetworkRequest request = Request(QStringLiteral("/dav.bin"));
    QFile device(nginx.Folder() + QStringLiteral("/big.bin"));
    QVERIFY(device.open(QIODevice::ReadOnly));
    Transfer transfer(manager.put(request, &device));
    QList<QPair<long long, long long>> progress;
    transfer.reply->uploadProgress().connect([&](long long sent, long long total) {
        progress.append({ sent, total });
    });
    QVERIFY(transfer.Wait(60000));
    QCOMPARE(transfer.Status(), 201);
    QVERIFY(progress.contains(qMakePair((long long)BigSize, (long long)BigSize)));
    for (int i = 1; i < progress.size(); ++i) {
        if (progress.at(i).second == BigSize) // Qt ends with (0, 0)
            QVERIFY(progress.at(i - 1).first <= progress.at(i).first);
    }
    QVERIFY(ReadFile(nginx.Folder() + QStringLiteral("/dav.bin")) == big);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxNANetworkAccessManagerTransfers>(argc, argv);
}

#include "tst_FxNANetworkAccessManagerTransfers.moc"
