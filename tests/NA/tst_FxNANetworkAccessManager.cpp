#include "NA/FxNANetworkAccessManager.h"

#include "NA/FxNANetworkReply.h"
#include "NA/FxNANetworkRequest.h"
#include "NA/support/Peer.h"
#include "NA/support/Transfer.h"
#include "support/Events.h"
#include "support/IntendedLoss.h"
#include "support/TestMain.h"
#include "UI/Impl/FxUIObjectImpl.h"

#include <QtCore/QBuffer>
#include <QtCore/QFile>
#include <QtCore/QPointer>
#include <QtNetwork/QAuthenticator>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkProxy>
#include <QtNetwork/QNetworkReply>
#include <QtTest/QTest>

#include <limits>
#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<CFxUIObject, CFxNANetworkAccessManager>);
static_assert(!std::is_copy_constructible_v<CFxNANetworkAccessManager>);

using Body = const QByteArray &;
using GetOperation = CFxNANetworkReply *(CFxNANetworkAccessManager::*)(const CFxNANetworkRequest &);
static_assert(std::is_same_v<decltype(&CFxNANetworkAccessManager::get), GetOperation>);
static_assert(std::is_same_v<decltype(&CFxNANetworkAccessManager::deleteResource), GetOperation>);

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

// What happens while the Qt manager makes a reply that has ended already.
class EndedReplyManager : public QNetworkAccessManager {
public:
    QNetworkReply *createRequest(Operation operation, const QNetworkRequest &request,
                                 QIODevice *outgoing) override
    {
        auto *reply = QNetworkAccessManager::createRequest(operation, request, outgoing);
        reply->abort();
        return reply;
    }
};

} // namespace

class tst_FxNANetworkAccessManager : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void handleIsAQtManagerWithoutParent();
    void frontendClassNameIsEmpty();
    void qtManagerStaysAsQtBuiltIt();
    void destructionDeletesTheQtManagerAtOnce();
    void repliesStandOutsideTheTree();
    void everyOperationReturnsARunningReplyWithItsRequest_data();
    void everyOperationReturnsARunningReplyWithItsRequest();
    void timeoutOfATransfer_data();
    void timeoutOfATransfer();
    void timeoutOfEveryOperation_data();
    void timeoutOfEveryOperation();
    void anEndedQtReplyGetsAnIdleTimer();
    void getDeliversBodyStatusAndHeaders();
    void getSendsTheHeadersOfTheRequest();
    void getOfABigFile();
    void getOfACompressedBodyIsUnpacked();
    void getOfAMissingFileIsAnErrorWithABody();
    void redirectsAreNotFollowed();
    void authenticationIsNotAnswered();
    void authenticationThroughTheQtManager();
    void postOfBytesThatGoAfterTheCall();
    void postOfADevice();
    void postOfANullDevice();
    void putOfBytesAndDeviceAndDelete();
    void putOfABigFileReportsProgress();
    void twoGetsWithOneRequestAreIndependent();
    void theRequestMayGoAfterTheCall();
    void theManagerDeletedFirstTakesTheBodiesAlone();
    void requestWithoutHandleIsNotSent();
    void managerWithoutHandleSendsNothing_data();
    void managerWithoutHandleSendsNothing();

private:
    CFxNANetworkRequest Request(const QString &path)
    {
        return CFxNANetworkRequest(nginx.Url(path));
    }

    CFxNANetworkReply *StartOperation(CFxNANetworkAccessManager &manager,
                                      const CFxNANetworkRequest &request, const QString &operation,
                                      QIODevice *device = nullptr);
    void AddOperations();

    NginxPeer nginx;
    FaultPeer fault;
    QByteArray big;
};

void tst_FxNANetworkAccessManager::initTestCase()
{
    QVERIFY2(nginx.Start(), qPrintable(nginx.Fault()));
    QVERIFY2(fault.Start(), qPrintable(fault.Fault()));
    big = Noise(BigSize);
    QVERIFY(WriteFile(nginx.Folder() + QStringLiteral("/small.txt"), "small body\n"));
    QVERIFY(WriteFile(nginx.Folder() + QStringLiteral("/big.bin"), big));
    QVERIFY(WriteFile(nginx.Folder() + QStringLiteral("/passwords"), "user:{PLAIN}pass\n"));
    QVERIFY(WriteFile(nginx.Folder() + QStringLiteral("/secret"), "secret"));
}

CFxNANetworkReply *tst_FxNANetworkAccessManager::StartOperation(CFxNANetworkAccessManager &manager,
                                                                const CFxNANetworkRequest &request,
                                                                const QString &operation,
                                                                QIODevice *device)
{
    if (operation == QLatin1String("get"))
        return manager.get(request);
    if (operation == QLatin1String("post device"))
        return manager.post(request, device);
    if (operation == QLatin1String("post bytes"))
        return manager.post(request, QByteArray("bytes"));
    if (operation == QLatin1String("put device"))
        return manager.put(request, device);
    if (operation == QLatin1String("put bytes"))
        return manager.put(request, QByteArray("bytes"));
    return manager.deleteResource(request);
}

void tst_FxNANetworkAccessManager::AddOperations()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<int>("qtOperation");
    using Manager = QNetworkAccessManager;
    QTest::newRow("get") << QStringLiteral("get") << int(Manager::GetOperation);
    QTest::newRow("post device") << QStringLiteral("post device") << int(Manager::PostOperation);
    QTest::newRow("post bytes") << QStringLiteral("post bytes") << int(Manager::PostOperation);
    QTest::newRow("put device") << QStringLiteral("put device") << int(Manager::PutOperation);
    QTest::newRow("put bytes") << QStringLiteral("put bytes") << int(Manager::PutOperation);
    QTest::newRow("deleteResource")
        << QStringLiteral("deleteResource") << int(Manager::DeleteOperation);
}

void tst_FxNANetworkAccessManager::handleIsAQtManagerWithoutParent()
{
    const CFxNANetworkAccessManager manager;
    QVERIFY(QtManager(manager));
    QVERIFY(!QtManager(manager)->parent());
}

void tst_FxNANetworkAccessManager::frontendClassNameIsEmpty()
{
    const CFxNANetworkAccessManager manager;
    QVERIFY(manager.impl->GetFrontendClassName().isEmpty());
}

void tst_FxNANetworkAccessManager::qtManagerStaysAsQtBuiltIt()
{
    const CFxNANetworkAccessManager manager;
    const QNetworkAccessManager plain;
    QCOMPARE(QtManager(manager)->redirectPolicy(), plain.redirectPolicy());
    QCOMPARE(QtManager(manager)->proxy(), plain.proxy());
    QCOMPARE(QtManager(manager)->transferTimeout(), 0);
    QVERIFY(!QtManager(manager)->cache());
    QVERIFY(!QtManager(manager)->isStrictTransportSecurityEnabled());
}

void tst_FxNANetworkAccessManager::destructionDeletesTheQtManagerAtOnce()
{
    auto manager = std::make_unique<CFxNANetworkAccessManager>();
    const QPointer<QObject> handle(manager->getHandle());
    manager.reset();
    QVERIFY(!handle);
}

void tst_FxNANetworkAccessManager::repliesStandOutsideTheTree()
{
    CFxNANetworkAccessManager manager;
    const CFxNANetworkRequest request = Request(QStringLiteral("/small.txt"));
    const std::unique_ptr<CFxNANetworkReply> reply(manager.get(request));
    QVERIFY(!reply->parent());
    QVERIFY(manager.children().isEmpty());
    QCOMPARE(reply->getHandle()->parent(), manager.getHandle());
}

void tst_FxNANetworkAccessManager::everyOperationReturnsARunningReplyWithItsRequest_data()
{
    AddOperations();
}

void tst_FxNANetworkAccessManager::everyOperationReturnsARunningReplyWithItsRequest()
{
    QFETCH(QString, operation);
    QFETCH(int, qtOperation);
    CFxNANetworkAccessManager manager;
    QBuffer device;
    QVERIFY(device.open(QIODevice::ReadOnly));
    const CFxNANetworkRequest request = Request(QStringLiteral("/post"));
    const std::unique_ptr<CFxNANetworkReply> reply(
        StartOperation(manager, request, operation, &device));
    QCOMPARE(reply->request(), &request);
    QVERIFY(reply->isRunning());
    auto *qtReply = qobject_cast<QNetworkReply *>(reply->getHandle());
    QVERIFY(qtReply);
    QCOMPARE(int(qtReply->operation()), qtOperation);
    QCOMPARE(qtReply->request().url(), request.url());
}

void tst_FxNANetworkAccessManager::timeoutOfATransfer_data()
{
    QTest::addColumn<int>("msec");
    QTest::addColumn<int>("interval");
    QTest::newRow("0 means 30000") << 0 << 30000;
    QTest::newRow("-1 means 30000") << -1 << 30000;
    QTest::newRow("-5 means 30000") << -5 << 30000;
    QTest::newRow("the smallest number means 30000") << std::numeric_limits<int>::min() << 30000;
    QTest::newRow("1") << 1 << 1;
    QTest::newRow("19999") << 19999 << 19999;
    QTest::newRow("60000") << 60000 << 60000; // Qt counts in seconds from 20 of them on
    QTest::newRow("a big number") << 2147483000 << 2147483000;
}

void tst_FxNANetworkAccessManager::timeoutOfATransfer()
{
    QFETCH(int, msec);
    QFETCH(int, interval);
    CFxNANetworkAccessManager manager;
    CFxNANetworkRequest request = Request(QStringLiteral("/small.txt"));
    request.setRequestTimeout(msec);
    const std::unique_ptr<CFxNANetworkReply> reply(manager.get(request));
    QVERIFY(TimeoutOf(*reply));
    QCOMPARE(RunningInterval(TimeoutOf(*reply)), interval);
}

void tst_FxNANetworkAccessManager::timeoutOfEveryOperation_data()
{
    AddOperations();
}

void tst_FxNANetworkAccessManager::timeoutOfEveryOperation()
{
    QFETCH(QString, operation);
    CFxNANetworkAccessManager manager;
    QBuffer device;
    QVERIFY(device.open(QIODevice::ReadOnly));
    CFxNANetworkRequest request = Request(QStringLiteral("/post"));
    const std::unique_ptr<CFxNANetworkReply> first(
        StartOperation(manager, request, operation, &device));
    QCOMPARE(RunningInterval(TimeoutOf(*first)), 30000);
    request.setRequestTimeout(4321);
    const std::unique_ptr<CFxNANetworkReply> second(
        StartOperation(manager, request, operation, &device));
    QCOMPARE(RunningInterval(TimeoutOf(*second)), 4321);
    QCOMPARE(RunningInterval(TimeoutOf(*first)), 30000);
}

void tst_FxNANetworkAccessManager::anEndedQtReplyGetsAnIdleTimer()
{
    CFxNANetworkAccessManager manager;
    delete manager.getHandle();
    manager.setHandle(new EndedReplyManager);
    const CFxNANetworkRequest request = Request(QStringLiteral("/small.txt"));
    const std::unique_ptr<CFxNANetworkReply> reply(manager.get(request));
    QVERIFY(TimeoutOf(*reply));
    QCOMPARE(RunningInterval(TimeoutOf(*reply)), -1);
    QVERIFY(reply->isRunning()); // what Qt emitted within its call reached nobody
    QCOMPARE(std::as_const(*reply).error(), CFxNANetworkReply::NoError);
}

void tst_FxNANetworkAccessManager::getDeliversBodyStatusAndHeaders()
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

void tst_FxNANetworkAccessManager::getSendsTheHeadersOfTheRequest()
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

void tst_FxNANetworkAccessManager::getOfABigFile()
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

void tst_FxNANetworkAccessManager::getOfACompressedBodyIsUnpacked()
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

void tst_FxNANetworkAccessManager::getOfAMissingFileIsAnErrorWithABody()
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

void tst_FxNANetworkAccessManager::redirectsAreNotFollowed()
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

void tst_FxNANetworkAccessManager::authenticationIsNotAnswered()
{
    CFxNANetworkAccessManager manager;
    const CFxNANetworkRequest request = Request(QStringLiteral("/secret"));
    Transfer transfer(manager.get(request));
    QVERIFY(transfer.Wait());
    QCOMPARE(transfer.errors, QList<int> { CFxNANetworkReply::AuthenticationRequiredError });
    QCOMPARE(transfer.Status(), 401);
}

void tst_FxNANetworkAccessManager::authenticationThroughTheQtManager()
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

void tst_FxNANetworkAccessManager::postOfBytesThatGoAfterTheCall()
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

void tst_FxNANetworkAccessManager::postOfADevice()
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

void tst_FxNANetworkAccessManager::postOfANullDevice()
{
    CFxNANetworkAccessManager manager;
    CFxNANetworkRequest request = Request(QStringLiteral("/post"));
    request.setHeader(CFxNANetworkRequest::ContentTypeHeader, QStringLiteral("a/b"));
    Transfer transfer(manager.post(request, static_cast<QIODevice *>(nullptr)));
    QVERIFY(transfer.Wait());
    QCOMPARE(transfer.body, QByteArray("POST a/b "));
}

void tst_FxNANetworkAccessManager::putOfBytesAndDeviceAndDelete()
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

void tst_FxNANetworkAccessManager::putOfABigFileReportsProgress()
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

void tst_FxNANetworkAccessManager::twoGetsWithOneRequestAreIndependent()
{
    CFxNANetworkAccessManager manager;
    const CFxNANetworkRequest request = Request(QStringLiteral("/small.txt"));
    Transfer first(manager.get(request));
    Transfer second(manager.get(request));
    QVERIFY(first.reply != second.reply);
    QVERIFY(first.reply->getHandle() != second.reply->getHandle());
    QCOMPARE(first.reply->request(), &request);
    QCOMPARE(second.reply->request(), &request);
    first.reply->abort();
    QCOMPARE(first.ends, 1);
    QCOMPARE(first.Code(), CFxNANetworkReply::OperationCanceledError);
    QVERIFY(second.Wait());
    QCOMPARE(second.Code(), CFxNANetworkReply::NoError);
    QCOMPARE(second.body, QByteArray("small body\n"));
}

void tst_FxNANetworkAccessManager::theRequestMayGoAfterTheCall()
{
    CFxNANetworkAccessManager manager;
    auto request = std::make_unique<CFxNANetworkRequest>(nginx.Url(QStringLiteral("/small.txt")));
    Transfer transfer(manager.get(*request));
    const auto *address = request.get();
    request.reset();
    QVERIFY(transfer.Wait());
    QCOMPARE(transfer.body, QByteArray("small body\n"));
    QCOMPARE(transfer.reply->request(), address); // dangling
}

void tst_FxNANetworkAccessManager::theManagerDeletedFirstTakesTheBodiesAlone()
{
    auto manager = std::make_unique<CFxNANetworkAccessManager>();
    const CFxNANetworkRequest request = Request(QStringLiteral("/small.txt"));
    Transfer finished(manager->get(request));
    QVERIFY(finished.Wait());
    Transfer running(manager->get(request));
    manager.reset();
    QVERIFY(!finished.reply->getHandle());
    QVERIFY(finished.reply->hasRawHeader("Content-Type"));
    QVERIFY(finished.reply->readAll().isNull());
    QCOMPARE(finished.Status(), 0);
    QVERIFY(running.reply->isRunning());
    running.reply->abort();
    QCOMPARE(running.ends, 0);
    QVERIFY(running.errors.isEmpty());
}

void tst_FxNANetworkAccessManager::requestWithoutHandleIsNotSent()
{
    CFxNANetworkAccessManager manager;
    CFxNANetworkRequest request = Request(QStringLiteral("/small.txt"));
    const std::unique_ptr<QNetworkRequest> handle(request.getHandle());
    request.setHandle(nullptr);
    QTest::ignoreMessage(QtWarningMsg,
                         "QObject::connect(QNetworkReply, Unknown): invalid nullptr parameter");
    const IntendedLoss loss;
    Transfer transfer(manager.get(request));
    QVERIFY(!transfer.reply->getHandle());
    QVERIFY(transfer.reply->isRunning());
    QCOMPARE(transfer.reply->request(), &request);
    transfer.reply->abort();
    QCoreApplication::processEvents();
    QCOMPARE(transfer.ends, 0);
    QVERIFY(manager.getHandle()->findChildren<QNetworkReply *>().isEmpty());
}

void tst_FxNANetworkAccessManager::managerWithoutHandleSendsNothing_data()
{
    AddOperations();
}

void tst_FxNANetworkAccessManager::managerWithoutHandleSendsNothing()
{
    QFETCH(QString, operation);
    CFxNANetworkAccessManager manager;
    delete manager.getHandle();
    const CFxNANetworkRequest request = Request(QStringLiteral("/post"));
    QTest::ignoreMessage(QtWarningMsg,
                         "QObject::connect(QNetworkReply, Unknown): invalid nullptr parameter");
    const IntendedLoss loss;
    const std::unique_ptr<CFxNANetworkReply> reply(StartOperation(manager, request, operation));
    QVERIFY(!reply->getHandle());
    QVERIFY(reply->isRunning());
    QCOMPARE(reply->request(), &request);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxNANetworkAccessManager>(argc, argv);
}

#include "tst_FxNANetworkAccessManager.moc"
