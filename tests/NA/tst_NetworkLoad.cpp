#include "NA/FxNANetworkAccessManager.h"
#include "NA/FxNANetworkReply.h"
#include "NA/FxNANetworkRequest.h"
#include "NA/FxNAWebSocket.h"
#include "NA/support/Peer.h"
#include "NA/support/SocketRecorder.h"
#include "NA/support/Transfer.h"
#include "support/Events.h"
#include "support/TestMain.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtTest/QTest>

#include <atomic>
#include <malloc.h>
#include <memory>
#include <vector>

// Qt's hooks for tools that watch its objects. Their places: 3 for a new object, 4 for a dying one.
extern Q_CORE_EXPORT quintptr qtHookData[];

using Reply = CFxNANetworkReply;

namespace {

std::atomic<int> objects { 0 };

void CountObject(QObject *)
{
    ++objects;
}

void DiscountObject(QObject *)
{
    --objects;
}

int OpenDescriptors()
{
    return QDir(QStringLiteral("/proc/self/fd"))
        .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
        .size();
}

long ResidentKilobytes()
{
    malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').at(1).toLong() * 4;
}

#if defined(__SANITIZE_ADDRESS__)
constexpr bool MemoryIsCounted =
    false; // freed memory is held back; lost memory is reported at the end
#else
constexpr bool MemoryIsCounted = true;
#endif

QtMessageHandler formerHandler = nullptr;

// Qt warns when its thread reports a connection's end behind an error that it has reported already.
// That is its own affair, comes by chance and reaches no caller.
void DropRepeatedErrors(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (!text.contains(QLatin1String("this method must only be called once")))
        formerHandler(type, context, text);
}

// One way for a transfer to go, and the errors that it may end with.
struct Case {
    QUrl url;
    QList<int> errors;
    int timeout = 0;
};

} // namespace

// Many transfers: each has one end, and nothing is left of them.
class tst_NetworkLoad : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void manyAtOnce();
    void manyOneAfterAnother();
    void manyDeletedOnTheWay();
    void managersComeAndGo();
    void socketsComeAndGo();

private:
    void RunOne(CFxNANetworkAccessManager &manager, const Case &kind);

    NginxPeer nginx;
    FaultPeer fault;
    WebSocketPeer socketPeer;
    QList<Case> cases;
    int objectsBefore = 0;
    int descriptorsBefore = 0;
};

void tst_NetworkLoad::initTestCase()
{
    QVERIFY2(nginx.Start(), qPrintable(nginx.Fault()));
    QVERIFY2(fault.Start(), qPrintable(fault.Fault()));
    QVERIFY2(socketPeer.Start(), qPrintable(socketPeer.Fault()));
    QFile file(nginx.Folder() + QStringLiteral("/small.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("small body");
    file.close();
    const Case good { nginx.Url(QStringLiteral("/small.txt")), { Reply::NoError } };
    const auto faulty = [this](const Steps &steps, const QList<int> &errors, int timeout = 0) {
        return Case { fault.Url(steps.Path()), errors, timeout };
    };
    const QByteArray head = "HTTP/1.1 200 OK\r\n";
    const QList<int> closed { Reply::RemoteHostClosedError };
    const QList<int> cutShort { Reply::RemoteHostClosedError, Reply::NoError };
    cases = { good,
              good,
              { nginx.Url(QStringLiteral("/none")), { Reply::ContentNotFoundError } },
              good,
              faulty(Steps().Send(head + "Content-Length: 9\r\n\r\nbody").Close(), cutShort),
              good,
              faulty(Steps().Send(head + "Content-Length: 4\r\n\r\nbody"), { Reply::NoError }),
              { nginx.Url(QStringLiteral("/moved")), { Reply::NoError } },
              good,
              faulty(Steps().Send("garbage\r\n\r\n").Close(), closed),
              good,
              faulty(Steps().Send(head + "Transfer-Encoding: chunked\r\n\r\n4\r\nbo").Reset(),
                     cutShort),
              good,
              faulty(Steps().Hang(), { Reply::OperationCanceledError }, 1),
              good,
              faulty(Steps().Send(head).Close(), closed),
              good,
              { QUrl(QStringLiteral("unknown://none")), { Reply::ProtocolUnknownError } },
              good,
              good };
    // What Qt makes once and keeps.
    CFxNANetworkAccessManager manager;
    for (const Case &kind : qAsConst(cases))
        RunOne(manager, kind);
    qtHookData[3] = reinterpret_cast<quintptr>(&CountObject);
    qtHookData[4] = reinterpret_cast<quintptr>(&DiscountObject);
}

void tst_NetworkLoad::init()
{
    formerHandler = qInstallMessageHandler(&DropRepeatedErrors);
    FlushDeferredDeletes();
    QCoreApplication::processEvents();
    objectsBefore = objects;
    descriptorsBefore = OpenDescriptors();
}

// Qt's threads end their sockets in their own time.
void tst_NetworkLoad::cleanup()
{
    FlushDeferredDeletes();
    QTRY_COMPARE(objects.load(), objectsBefore);
    QTRY_COMPARE(OpenDescriptors(), descriptorsBefore);
    qInstallMessageHandler(formerHandler);
}

void tst_NetworkLoad::RunOne(CFxNANetworkAccessManager &manager, const Case &kind)
{
    CFxNANetworkRequest request(kind.url);
    request.setRequestTimeout(kind.timeout);
    Transfer transfer(manager.get(request));
    QVERIFY(transfer.Wait());
    QCOMPARE(transfer.ends, 1);
    QVERIFY2(kind.errors.contains(transfer.Code()), qPrintable(transfer.reply->errorString()));
    QCOMPARE(transfer.errors.size(), transfer.Code() == Reply::NoError ? 0 : 1);
    transfer.reply.reset();
    FlushDeferredDeletes();
}

void tst_NetworkLoad::manyAtOnce()
{
    CFxNANetworkAccessManager manager;
    std::vector<std::unique_ptr<Transfer>> transfers;
    for (int i = 0; i < 1000; ++i) {
        const Case &kind = cases.at(i % cases.size());
        CFxNANetworkRequest request(kind.url);
        request.setRequestTimeout(kind.timeout);
        transfers.push_back(std::make_unique<Transfer>(manager.get(request)));
    }
    for (int i = 0; i < 1000; ++i) {
        Transfer &transfer = *transfers[static_cast<std::size_t>(i)];
        QVERIFY(transfer.Wait(60000));
    }
    QCoreApplication::processEvents();
    for (int i = 0; i < 1000; ++i) {
        const Transfer &transfer = *transfers[static_cast<std::size_t>(i)];
        QCOMPARE(transfer.ends, 1);
        // A connection that another transfer's fault has ended can take the next one with it.
        const Case &kind = cases.at(i % cases.size());
        QVERIFY2(kind.errors.contains(transfer.Code())
                     || (kind.url.port() == fault.Port()
                         && transfer.Code() == Reply::RemoteHostClosedError),
                 qPrintable(transfer.reply->errorString()));
        QCOMPARE(RunningInterval(TimeoutOf(*transfer.reply)), -1);
    }
}

void tst_NetworkLoad::manyOneAfterAnother()
{
    CFxNANetworkAccessManager manager;
    const auto run = [&](int count) {
        for (int i = 0; i < count; ++i) {
            RunOne(manager, cases.at(i % cases.size()));
            if (QTest::currentTestFailed())
                return;
        }
    };
    run(1000);
    const int objectsAfterSome = objects;
    const long memoryAfterSome = ResidentKilobytes();
    run(20000);
    QTRY_VERIFY(objects <= objectsAfterSome);
    const long growth = ResidentKilobytes() - memoryAfterSome;
    // A reply left each time would be some 40 MB.
    QVERIFY2(!MemoryIsCounted || growth < 6000, qPrintable(QString::number(growth)));
}

void tst_NetworkLoad::manyDeletedOnTheWay()
{
    CFxNANetworkAccessManager manager;
    for (int i = 0; i < 2000; ++i) {
        const CFxNANetworkRequest request(cases.at(i % cases.size()).url);
        const std::unique_ptr<CFxNANetworkReply> reply(manager.get(request));
        if (i % 2)
            QCoreApplication::processEvents();
    }
}

void tst_NetworkLoad::managersComeAndGo()
{
    for (int i = 0; i < 200; ++i) {
        CFxNANetworkAccessManager manager;
        RunOne(manager, cases.at(i % cases.size()));
    }
}

void tst_NetworkLoad::socketsComeAndGo()
{
    for (int i = 0; i < 500; ++i) {
        CFxNAWebSocket socket;
        SocketRecorder recorder(socket);
        socket.open(
            CFxNANetworkRequest(socketPeer.Url(QStringLiteral("/echo"), QStringLiteral("ws"))));
        if (i % 5) {
            QVERIFY(recorder.WaitFor(QStringLiteral("connected")));
            socket.sendTextMessage(QStringLiteral("text"));
            QVERIFY(recorder.WaitForMessages(1));
        }
    }
}

int main(int argc, char **argv)
{
    return RunTest<tst_NetworkLoad>(argc, argv);
}

#include "tst_NetworkLoad.moc"
