#include "NA/FxNANetworkAccessManager.h"
#include "NA/FxNANetworkReply.h"
#include "NA/FxNANetworkRequest.h"
#include "support/IntendedLoss.h"
#include "support/TestMain.h"

#include <QtNetwork/QNetworkRequest>
#include <QtTest/QTest>

#include <cstdlib>
#include <memory>
#include <new>
#include <vector>

namespace {

// Allocations by operator new that weren't freed, of this thread alone: a manager's first use
// starts threads of Qt that go on by themselves.
thread_local long live = 0;

void *Allocate(std::size_t size)
{
    void *memory = std::malloc(size);
    if (!memory)
        throw std::bad_alloc();
    ++live;
    return memory;
}

void Free(void *memory)
{
    if (memory)
        --live;
    std::free(memory);
}

// The allocations that are left of \a action, after a first call that fills what is made once.
template <class Action> long LossOf(int count, Action action)
{
    action();
    const long before = live;
    for (int i = 0; i < count; ++i)
        action();
    return live - before;
}

} // namespace

void *operator new(std::size_t size)
{
    return Allocate(size);
}

void *operator new[](std::size_t size)
{
    return Allocate(size);
}

void operator delete(void *memory) noexcept
{
    Free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    Free(memory);
}

void operator delete[](void *memory) noexcept
{
    Free(memory);
}

void operator delete[](void *memory, std::size_t) noexcept
{
    Free(memory);
}

// What the interface loses, and that it loses no more than that.
class tst_IntendedLosses : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void assignmentLosesWhatTheRequestHeld();
    void assignmentTakesTheUrlAlone();
    void assignmentToItselfKeepsTheUrlAlone();
    void aTransferThatNeverBeganLosesItsTimeout();
};

void tst_IntendedLosses::assignmentLosesWhatTheRequestHeld()
{
    const IntendedLoss loss;
    const QUrl url(QStringLiteral("http://example.org/"));
    const CFxNANetworkRequest source(url);
    CFxNANetworkRequest target(url);
    QCOMPARE(LossOf(1, [&] { delete new CFxNANetworkRequest(url); }), 0L);
    std::vector<std::unique_ptr<CFxNANetworkRequest>> kept;
    kept.reserve(2);
    const long ofOneRequest =
        LossOf(1, [&] { kept.push_back(std::make_unique<CFxNANetworkRequest>(url)); });

    QNetworkRequest *former = target.getHandle();
    const long lost = LossOf(100, [&] { target = source; });
    QCOMPARE(lost, 100 * (ofOneRequest - 1)); // all but the object itself
    QVERIFY(target.getHandle() != former);
    QCOMPARE(former->url(), url); // neither freed nor changed
}

void tst_IntendedLosses::assignmentTakesTheUrlAlone()
{
    const IntendedLoss loss;
    CFxNANetworkRequest source(QUrl(QStringLiteral("http://source/")));
    source.setRawHeader("X-Source", "1");
    source.setHeader(CFxNANetworkRequest::UserAgentHeader, QStringLiteral("source"));
    source.setRequestTimeout(1);
    CFxNANetworkRequest target(QUrl(QStringLiteral("http://target/")));
    target.setRawHeader("X-Target", "1");
    target.setHeader(CFxNANetworkRequest::ServerHeader, QStringLiteral("target"));
    target.setRequestTimeout(2);

    CFxNANetworkRequest &result = (target = source);
    QCOMPARE(&result, &target);
    QCOMPARE(target.url(), source.url());
    QVERIFY(target.rawHeaderList().isEmpty());
    QVERIFY(!target.header(CFxNANetworkRequest::UserAgentHeader).isValid());
    QVERIFY(!target.header(CFxNANetworkRequest::ServerHeader).isValid());
    QCOMPARE(target.requestTimeout(), 0);
    QCOMPARE(*target.getHandle(), QNetworkRequest(source.url()));
    QCOMPARE(source.rawHeaderList().size(), 1);
}

void tst_IntendedLosses::assignmentToItselfKeepsTheUrlAlone()
{
    const IntendedLoss loss;
    const QUrl url(QStringLiteral("http://example.org/"));
    CFxNANetworkRequest request(url);
    request.setRawHeader("X-One", "1");
    request.setRequestTimeout(3);
    const CFxNANetworkRequest &same = request;
    request = same;
    QCOMPARE(request.url(), url);
    QVERIFY(request.rawHeaderList().isEmpty());
    QCOMPARE(request.requestTimeout(), 0);
    QCOMPARE(*request.getHandle(), QNetworkRequest(url));
}

void tst_IntendedLosses::aTransferThatNeverBeganLosesItsTimeout()
{
    CFxNANetworkAccessManager manager;
    CFxNANetworkRequest request((QUrl()));
    const std::unique_ptr<QNetworkRequest> handle(request.getHandle());
    request.setHandle(nullptr);
    const IntendedLoss loss;
    const auto handler = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &) {}); // of the connection
    const long lost = LossOf(100, [&] { delete manager.get(request); });
    qInstallMessageHandler(handler);
    // The object, its private part, and the count of its guarded pointers.
    QCOMPARE(lost, 100 * 3L);
}

int main(int argc, char **argv)
{
    return RunTest<tst_IntendedLosses>(argc, argv);
}

#include "tst_IntendedLosses.moc"
