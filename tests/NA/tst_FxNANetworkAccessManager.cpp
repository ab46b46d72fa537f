#include "NA/FxNANetworkAccessManager.h"

#include "NA/FxNANetworkReply.h"
#include "NA/FxNANetworkRequest.h"
#include "NA/support/Peer.h"
#include "NA/support/Transfer.h"
#include "support/IntendedLoss.h"
#include "support/TestMain.h"
#include "UI/Impl/FxUIObjectImpl.h"

#include <QtCore/QBuffer>
#include <QtCore/QPointer>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkProxy>
#include <QtNetwork/QNetworkReply>
#include <QtTest/QTest>

#include <limits>
#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<CFxUIObject, CFxNANetworkAccessManager>);
static_assert(!std::is_copy_constructible_v<CFxNANetworkAccessManager>);

using GetOperation = CFxNANetworkReply *(CFxNANetworkAccessManager::*)(const CFxNANetworkRequest &);
static_assert(std::is_same_v<decltype(&CFxNANetworkAccessManager::get), GetOperation>);
static_assert(std::is_same_v<decltype(&CFxNANetworkAccessManager::deleteResource), GetOperation>);

namespace {

QNetworkAccessManager *QtManager(const CFxNANetworkAccessManager &manager)
{
    return qobject_cast<QNetworkAccessManager *>(manager.getHandle());
}

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
    void theImplementationsEndClearsAForeignHandle();
    void repliesStandOutsideTheTree();
    void everyOperationReturnsARunningReplyWithItsRequest_data();
    void everyOperationReturnsARunningReplyWithItsRequest();
    void timeoutOfATransfer_data();
    void timeoutOfATransfer();
    void timeoutOfEveryOperation_data();
    void timeoutOfEveryOperation();
    void anEndedQtReplyGetsAnIdleTimer();
    void twoGetsWithOneRequestAreIndependent();
    void theRequestMayGoAfterTheCall();
    void theManagerDeletedFirstTakesTheBodiesAlone();
    void requestWithoutHandleIsNotSent();
    void managerWithoutHandleSendsNothing_data();
    void managerWithoutHandleSendsNothing();

private:
    // For an answer with the body "small body".
    CFxNANetworkRequest Request()
    {
        const QByteArray answer = "HTTP/1.1 200 OK\r\nContent-Type: text/plain\r\n"
                                  "Content-Length: 10\r\n\r\nsmall body";
        return CFxNANetworkRequest(fault.Url(Steps().Send(answer).Path()));
    }

    CFxNANetworkReply *StartOperation(CFxNANetworkAccessManager &manager,
                                      const CFxNANetworkRequest &request, const QString &operation,
                                      QIODevice *device = nullptr);
    void AddOperations();

    FaultPeer fault;
};

void tst_FxNANetworkAccessManager::initTestCase()
{
    QVERIFY2(fault.Start(), qPrintable(fault.Fault()));
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
    const CFxNANetworkRequest request = Request();
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
    const CFxNANetworkRequest request = Request();
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
    CFxNANetworkRequest request = Request();
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
    CFxNANetworkRequest request = Request();
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
    const CFxNANetworkRequest request = Request();
    const std::unique_ptr<CFxNANetworkReply> reply(manager.get(request));
    QVERIFY(TimeoutOf(*reply));
    QCOMPARE(RunningInterval(TimeoutOf(*reply)), -1);
    QVERIFY(reply->isRunning()); // what Qt emitted within its call reached nobody
    QCOMPARE(std::as_const(*reply).error(), CFxNANetworkReply::NoError);
}

void tst_FxNANetworkAccessManager::twoGetsWithOneRequestAreIndependent()
{
    CFxNANetworkAccessManager manager;
    const CFxNANetworkRequest request = Request();
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
    QCOMPARE(second.body, QByteArray("small body"));
}

void tst_FxNANetworkAccessManager::theRequestMayGoAfterTheCall()
{
    CFxNANetworkAccessManager manager;
    auto request = std::make_unique<CFxNANetworkRequest>(Request());
    Transfer transfer(manager.get(*request));
    const auto *address = request.get();
    request.reset();
    QVERIFY(transfer.Wait());
    QCOMPARE(transfer.body, QByteArray("small body"));
    QCOMPARE(transfer.reply->request(), address); // dangling
}

void tst_FxNANetworkAccessManager::theManagerDeletedFirstTakesTheBodiesAlone()
{
    auto manager = std::make_unique<CFxNANetworkAccessManager>();
    const CFxNANetworkRequest request = Request();
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
    CFxNANetworkRequest request = Request();
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
    const CFxNANetworkRequest request = Request();
    QTest::ignoreMessage(QtWarningMsg,
                         "QObject::connect(QNetworkReply, Unknown): invalid nullptr parameter");
    const IntendedLoss loss;
    const std::unique_ptr<CFxNANetworkReply> reply(StartOperation(manager, request, operation));
    QVERIFY(!reply->getHandle());
    QVERIFY(reply->isRunning());
    QCOMPARE(reply->request(), &request);
}

void tst_FxNANetworkAccessManager::theImplementationsEndClearsAForeignHandle()
{
    CFxNANetworkAccessManager manager;
    delete manager.getHandle();
    QObject foreign;
    manager.setHandle(&foreign);
    delete manager.impl;
    manager.impl = nullptr;
    QVERIFY(!manager.getHandle());
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxNANetworkAccessManager>(argc, argv);
}

#include "tst_FxNANetworkAccessManager.moc"
