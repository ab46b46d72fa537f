#include "NA/FxNANetworkAccessManager.h"
#include "NA/FxNANetworkReply.h"
#include "NA/Impl/FxNANetworkReplyImpl.h"
#include "NA/support/FakeReply.h"
#include "NA/support/Peer.h"
#include "NA/support/Transfer.h"
#include "support/Events.h"
#include "support/TestMain.h"

#include <QtCore/QPointer>
#include <QtNetwork/QNetworkAccessManager>
#include <QtTest/QTest>

#include <memory>

using NetworkError = CFxNANetworkReply::NetworkError;

namespace {

// Makes Qt replies without a network, children of itself as Qt's own are.
class FakeManager : public QNetworkAccessManager {
public:
    FakeReply *last = nullptr;

protected:
    QNetworkReply *createRequest(Operation, const QNetworkRequest &, QIODevice *) override
    {
        last = new FakeReply(this);
        return last;
    }
};

// One line for each signal with the reply's state as the slot sees it.
class Recorder {
public:
    explicit Recorder(CFxNANetworkReply &recorded)
        : m_reply(recorded)
    {
        m_reply.downloadProgress().connect([this](long long received, long long total) {
            Add(QStringLiteral("downloadProgress %1/%2").arg(received).arg(total));
        });
        m_reply.uploadProgress().connect([this](long long sent, long long total) {
            Add(QStringLiteral("uploadProgress %1/%2").arg(sent).arg(total));
        });
        m_reply.encrypted().connect([this] { Add(QStringLiteral("encrypted")); });
        m_reply.error().connect(
            [this](NetworkError code) { Add(QStringLiteral("error %1").arg(code)); });
        m_reply.finished().connect([this] { Add(QStringLiteral("finished")); });
    }

    QStringList lines;

private:
    void Add(const QString &signal)
    {
        const CFxNANetworkReply &reply = m_reply;
        QObject *timeout = TimeoutOf(reply);
        lines.append(
            QStringLiteral("%1: isFinished %2, error %3, available %4, headers %5, timer %6")
                .arg(signal)
                .arg(reply.isFinished())
                .arg(reply.error())
                .arg(reply.bytesAvailable())
                .arg(reply.rawHeaderList().size())
                .arg(RunningInterval(timeout)));
    }

    CFxNANetworkReply &m_reply;
};

// A transfer over a Qt reply that the test drives.
struct FakeTransfer {
    explicit FakeTransfer(int timeout = 0)
    {
        delete manager.getHandle();
        auto *qtManager = new FakeManager;
        manager.setHandle(qtManager);
        CFxNANetworkRequest request(QUrl(QStringLiteral("http://fake/")));
        request.setRequestTimeout(timeout);
        reply.reset(manager.get(request));
        qtReply = qtManager->last;
        recorder = std::make_unique<Recorder>(*reply);
    }

    CFxNANetworkAccessManager manager;
    std::unique_ptr<CFxNANetworkReply> reply;
    QPointer<FakeReply> qtReply;
    std::unique_ptr<Recorder> recorder;
};

} // namespace

class tst_FxNANetworkReplyEvents : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void success();
    void failure();
    void failureServesTheBodyBeforeTheEnd();
    void timeout();
    void abortByTheCaller();
    void abortAfterTheEnd();
    void blockedSignals();
    void signalsUnblockedOnTheWay();
    void progressKeepsTheLow32Bits_data();
    void progressKeepsTheLow32Bits();
    void errorNumbersComeThroughUnchanged_data();
    void errorNumbersComeThroughUnchanged();
    void aSecondErrorReplacesTheFirst();
    void noSignalNamesASender();
    void nothingRestartsTheTimer();
    void theTimerStopsAtTheEnd();
    void noAbortFollowsTheEnd();
    void aRunningReplyDeletedHearsNothingAnyMore();
    void deletionLeavesTheConnectionsOfOthers();
    void anExceptionFromASlotPassesThrough();
    void realSuccess();
    void realFailure();
    void realAbort();
    void realTimeoutBeforeTheAnswer();
    void realTimeoutWhileTheBodyArrives();
    void deletedInASingleShotAfterTheEnd();

private:
    FaultPeer fault;
};

void tst_FxNANetworkReplyEvents::initTestCase()
{
    QVERIFY2(fault.Start(), qPrintable(fault.Fault()));
}

void tst_FxNANetworkReplyEvents::success()
{
    FakeTransfer transfer;
    FakeReply &qtReply = *transfer.qtReply;
    qtReply.body = "body";
    qtReply.setRawHeader("A", "1");
    Q_EMIT qtReply.encrypted();
    Q_EMIT qtReply.uploadProgress(7, 9);
    Q_EMIT qtReply.downloadProgress(4, -1);
    qtReply.Finish();
    QCOMPARE(
        transfer.recorder->lines,
        QStringList({
            QStringLiteral("encrypted: isFinished 0, error 0, available 0, headers 0, timer 30000"),
            QStringLiteral("uploadProgress 7/9: isFinished 0, error 0, available 0, headers "
                           "0, timer 30000"),
            QStringLiteral("downloadProgress 4/-1: isFinished 0, error 0, available 0, "
                           "headers 0, timer 30000"),
            QStringLiteral("finished: isFinished 1, error 0, available 4, headers 1, timer -1"),
        }));
    QVERIFY(transfer.reply->errorString().isNull());
}

void tst_FxNANetworkReplyEvents::failure()
{
    FakeTransfer transfer;
    transfer.qtReply->body = "body";
    transfer.qtReply->setRawHeader("A", "1");
    transfer.qtReply->Fail(QNetworkReply::ContentNotFoundError, QStringLiteral("not there"));
    QCOMPARE(
        transfer.recorder->lines,
        QStringList({
            QStringLiteral(
                "error 203: isFinished 0, error 203, available 4, headers 0, timer 30000"),
            QStringLiteral("finished: isFinished 1, error 203, available 4, headers 1, timer -1"),
        }));
    QCOMPARE(transfer.reply->errorString(), QStringLiteral("not there"));
}

void tst_FxNANetworkReplyEvents::failureServesTheBodyBeforeTheEnd()
{
    FakeTransfer transfer;
    transfer.qtReply->body = "body";
    QByteArray bodyInError;
    QString textInError;
    transfer.reply->error().connect([&](NetworkError) {
        bodyInError = transfer.reply->readAll();
        textInError = transfer.reply->errorString();
    });
    transfer.qtReply->EmitError(QNetworkReply::InternalServerError, QStringLiteral("text"));
    QCOMPARE(bodyInError, QByteArray("body"));
    QCOMPARE(textInError, QStringLiteral("text"));
    QVERIFY(transfer.reply->isRunning());
}

void tst_FxNANetworkReplyEvents::timeout()
{
    FakeTransfer transfer(1);
    QCOMPARE(RunningInterval(TimeoutOf(*transfer.reply)), 1);
    QTRY_VERIFY(transfer.reply->isFinished());
    QCOMPARE(transfer.qtReply->aborts, 1);
    QCOMPARE(
        transfer.recorder->lines,
        QStringList({
            QStringLiteral("error 5: isFinished 0, error 5, available 0, headers 0, timer 1"),
            QStringLiteral("finished: isFinished 1, error 5, available 0, headers 0, timer -1"),
        }));
}

void tst_FxNANetworkReplyEvents::abortByTheCaller()
{
    FakeTransfer transfer;
    transfer.reply->abort();
    QCOMPARE(
        transfer.recorder->lines,
        QStringList({
            QStringLiteral("error 5: isFinished 0, error 5, available 0, headers 0, timer 30000"),
            QStringLiteral("finished: isFinished 1, error 5, available 0, headers 0, timer -1"),
        }));
}

void tst_FxNANetworkReplyEvents::abortAfterTheEnd()
{
    FakeTransfer transfer;
    transfer.qtReply->Finish();
    transfer.recorder->lines.clear();
    transfer.reply->abort();
    QCOMPARE(transfer.qtReply->aborts, 1);
    QVERIFY(transfer.recorder->lines.isEmpty());
}

void tst_FxNANetworkReplyEvents::blockedSignals()
{
    FakeTransfer transfer;
    transfer.reply->blockSignals(true);
    transfer.qtReply->body = "body";
    transfer.qtReply->setRawHeader("A", "1");
    Q_EMIT transfer.qtReply->encrypted();
    Q_EMIT transfer.qtReply->downloadProgress(1, 2);
    Q_EMIT transfer.qtReply->uploadProgress(1, 2);
    transfer.qtReply->EmitError(QNetworkReply::ContentGoneError, QStringLiteral("gone"));
    QCOMPARE(std::as_const(*transfer.reply).error(), CFxNANetworkReply::ContentGoneError);
    QCOMPARE(transfer.reply->errorString(), QStringLiteral("gone"));
    QCOMPARE(transfer.reply->bytesAvailable(), 4LL);
    QVERIFY(!transfer.reply->isFinished());
    transfer.qtReply->Finish();
    QVERIFY(transfer.reply->isFinished());
    QVERIFY(!transfer.reply->isRunning());
    QVERIFY(transfer.reply->hasRawHeader("A"));
    QCOMPARE(RunningInterval(TimeoutOf(*transfer.reply)), -1);
    QVERIFY(transfer.recorder->lines.isEmpty());
}

void tst_FxNANetworkReplyEvents::signalsUnblockedOnTheWay()
{
    FakeTransfer transfer;
    transfer.reply->blockSignals(true);
    transfer.qtReply->EmitError(QNetworkReply::ContentGoneError, QStringLiteral("gone"));
    transfer.reply->blockSignals(false);
    transfer.qtReply->Finish();
    QCOMPARE(transfer.recorder->lines,
             QStringList { QStringLiteral(
                 "finished: isFinished 1, error 207, available 0, headers 0, timer -1") });
}

void tst_FxNANetworkReplyEvents::progressKeepsTheLow32Bits_data()
{
    QTest::addColumn<qint64>("number");
    QTest::addColumn<qint64>("delivered");
    QTest::newRow("0") << 0LL << 0LL;
    QTest::newRow("-1, an unknown total") << -1LL << -1LL;
    QTest::newRow("2147483647") << 2147483647LL << 2147483647LL;
    QTest::newRow("2147483648") << 2147483648LL << -2147483648LL;
    QTest::newRow("3000000000") << 3000000000LL << -1294967296LL;
    QTest::newRow("4294967295") << 4294967295LL << -1LL;
    QTest::newRow("4294967296") << 4294967296LL << 0LL;
    QTest::newRow("4294967297") << 4294967297LL << 1LL;
    QTest::newRow("the biggest number") << std::numeric_limits<qint64>::max() << -1LL;
}

void tst_FxNANetworkReplyEvents::progressKeepsTheLow32Bits()
{
    QFETCH(qint64, number);
    QFETCH(qint64, delivered);
    FakeReply *qtReply = new FakeReply;
    CFxNANetworkReply reply(qtReply);
    QList<long long> seen;
    const auto slot = [&](long long done, long long total) { seen << done << total; };
    reply.downloadProgress().connect(slot);
    reply.uploadProgress().connect(slot);
    Q_EMIT qtReply->downloadProgress(number, 5);
    Q_EMIT qtReply->downloadProgress(6, number);
    Q_EMIT qtReply->uploadProgress(number, 7);
    Q_EMIT qtReply->uploadProgress(8, number);
    QCOMPARE(seen, (QList<long long> { delivered, 5, 6, delivered, delivered, 7, 8, delivered }));
    seen.clear();
    // The handlers themselves hand on all 64 bits.
    static_cast<CFxNANetworkReplyImpl *>(reply.impl)->OnDownloadProgress(number, number);
    static_cast<CFxNANetworkReplyImpl *>(reply.impl)->OnUploadProgress(number, number);
    QCOMPARE(seen, (QList<long long> { number, number, number, number }));
}

void tst_FxNANetworkReplyEvents::errorNumbersComeThroughUnchanged_data()
{
    QTest::addColumn<int>("number");
    for (const int number : { 1, 2, 3, 4, 5, 6, 99, 101, 199, 201, 203, 299, 301, 399, 401, 499 })
        QTest::addRow("%d", number) << number;
    QTest::newRow("a number that has no name") << 77;
}

void tst_FxNANetworkReplyEvents::errorNumbersComeThroughUnchanged()
{
    QFETCH(int, number);
    auto *qtReply = new FakeReply;
    CFxNANetworkReply reply(qtReply);
    QList<int> seen;
    reply.error().connect([&](NetworkError code) { seen << code; });
    qtReply->EmitError(static_cast<QNetworkReply::NetworkError>(number), QStringLiteral("text"));
    QCOMPARE(seen, QList<int> { number });
    QCOMPARE(int(std::as_const(reply).error()), number);
}

void tst_FxNANetworkReplyEvents::aSecondErrorReplacesTheFirst()
{
    auto *qtReply = new FakeReply;
    CFxNANetworkReply reply(qtReply);
    qtReply->EmitError(QNetworkReply::ConnectionRefusedError, QStringLiteral("first"));
    qtReply->EmitError(QNetworkReply::TimeoutError, QStringLiteral("second"));
    QCOMPARE(std::as_const(reply).error(), CFxNANetworkReply::TimeoutError);
    QCOMPARE(reply.errorString(), QStringLiteral("second"));
}

void tst_FxNANetworkReplyEvents::noSignalNamesASender()
{
    FakeTransfer transfer;
    CFxUIObject other;
    transfer.reply->setSender(&other);
    int calls = 0;
    const auto slot = [&](auto...) { calls += transfer.reply->sender() == &other; };
    transfer.reply->downloadProgress().connect(slot);
    transfer.reply->uploadProgress().connect(slot);
    transfer.reply->encrypted().connect(slot);
    transfer.reply->error().connect(slot);
    transfer.reply->finished().connect(slot);
    Q_EMIT transfer.qtReply->downloadProgress(1, 2);
    Q_EMIT transfer.qtReply->uploadProgress(1, 2);
    Q_EMIT transfer.qtReply->encrypted();
    transfer.qtReply->Fail(QNetworkReply::TimeoutError, QString());
    QCOMPARE(calls, 5);
    QCOMPARE(transfer.reply->sender(), &other);
}

void tst_FxNANetworkReplyEvents::nothingRestartsTheTimer()
{
    FakeTransfer transfer(15000);
    auto *dispatcher = QAbstractEventDispatcher::instance();
    QObject *timeout = TimeoutOf(*transfer.reply);
    const int id = dispatcher->registeredTimers(timeout).first().timerId;
    int left = dispatcher->remainingTime(id);
    for (int i = 0; i < 100; ++i) {
        Q_EMIT transfer.qtReply->downloadProgress(i, 100);
        Q_EMIT transfer.qtReply->uploadProgress(i, 100);
        Q_EMIT transfer.qtReply->readyRead();
        Q_EMIT transfer.qtReply->metaDataChanged();
        transfer.qtReply->EmitError(QNetworkReply::UnknownContentError, QString());
        QCoreApplication::processEvents();
        const auto timers = dispatcher->registeredTimers(timeout);
        QCOMPARE(timers.size(), 1);
        QCOMPARE(timers.first().timerId, id);
        QCOMPARE(timers.first().interval, 15000);
        QVERIFY(dispatcher->remainingTime(id) <= left);
        left = dispatcher->remainingTime(id);
    }
}

void tst_FxNANetworkReplyEvents::theTimerStopsAtTheEnd()
{
    FakeTransfer transfer(5000);
    QCOMPARE(RunningInterval(TimeoutOf(*transfer.reply)), 5000);
    transfer.qtReply->EmitError(QNetworkReply::TimeoutError, QString());
    QCOMPARE(RunningInterval(TimeoutOf(*transfer.reply)), 5000);
    transfer.qtReply->Finish();
    QCOMPARE(RunningInterval(TimeoutOf(*transfer.reply)), -1);
    QVERIFY(TimeoutOf(*transfer.reply)); // it stays, and goes with the Qt reply
    const QPointer<QObject> timeout(TimeoutOf(*transfer.reply));
    transfer.reply.reset();
    FlushDeferredDeletes();
    QVERIFY(!timeout);
}

void tst_FxNANetworkReplyEvents::noAbortFollowsTheEnd()
{
    FakeTransfer transfer(20);
    transfer.qtReply->Finish();
    bool later = false;
    QTimer::singleShot(40, this, [&] { later = true; });
    QTRY_VERIFY(later);
    QCOMPARE(transfer.qtReply->aborts, 0);
    QCOMPARE(transfer.recorder->lines.size(), 1);
}

void tst_FxNANetworkReplyEvents::aRunningReplyDeletedHearsNothingAnyMore()
{
    FakeTransfer transfer;
    transfer.reply.reset();
    QVERIFY(transfer.qtReply);
    QVERIFY(transfer.qtReply->isRunning());
    QCOMPARE(transfer.qtReply->aborts, 0);
    Q_EMIT transfer.qtReply->downloadProgress(1, 2);
    Q_EMIT transfer.qtReply->uploadProgress(1, 2);
    Q_EMIT transfer.qtReply->encrypted();
    transfer.qtReply->Fail(QNetworkReply::TimeoutError, QString());
    QVERIFY(transfer.recorder->lines.isEmpty());
    FlushDeferredDeletes();
    QVERIFY(!transfer.qtReply);
}

void tst_FxNANetworkReplyEvents::deletionLeavesTheConnectionsOfOthers()
{
    FakeTransfer transfer;
    int errors = 0;
    int ends = 0;
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    connect(transfer.qtReply, qOverload<QNetworkReply::NetworkError>(&QNetworkReply::error),
            transfer.qtReply, [&] { ++errors; });
    QT_WARNING_POP
    connect(transfer.qtReply, &QNetworkReply::finished, transfer.qtReply, [&] { ++ends; });
    transfer.reply.reset();
    transfer.qtReply->Fail(QNetworkReply::TimeoutError, QString());
    QCOMPARE(errors, 1);
    QCOMPARE(ends, 1);
}

void tst_FxNANetworkReplyEvents::anExceptionFromASlotPassesThrough()
{
    const CFxNANetworkReply reply(new FakeReply);
    auto *implementation = static_cast<CFxNANetworkReplyImpl *>(reply.impl);
    implementation->finished().connect([] { throw 7; });
    int caught = 0;
    try {
        implementation->OnFinished(200, { { "A", "1" } }, nullptr);
    } catch (int number) {
        caught = number;
    }
    QCOMPARE(caught, 7);
    QVERIFY(reply.isFinished());
    QVERIFY(reply.hasRawHeader("A"));
}

void tst_FxNANetworkReplyEvents::realSuccess()
{
    CFxNANetworkAccessManager manager;
    const CFxNANetworkRequest request(
        fault.Url(Steps().Send("HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\nbody").Path()));
    const std::unique_ptr<CFxNANetworkReply> reply(manager.get(request));
    const Recorder recorder(*reply);
    QTRY_VERIFY(reply->isFinished());
    QCOMPARE(
        recorder.lines,
        QStringList({
            QStringLiteral("downloadProgress 4/4: isFinished 0, error 0, available 0, "
                           "headers 0, timer 30000"),
            QStringLiteral("finished: isFinished 1, error 0, available 4, headers 1, timer -1"),
        }));
}

// Qt reports the last of the progress behind the error.
void tst_FxNANetworkReplyEvents::realFailure()
{
    CFxNANetworkAccessManager manager;
    const CFxNANetworkRequest request(
        fault.Url(Steps().Send("HTTP/1.1 404 No\r\nContent-Length: 4\r\n\r\nbody").Path()));
    const std::unique_ptr<CFxNANetworkReply> reply(manager.get(request));
    const Recorder recorder(*reply);
    QTRY_VERIFY(reply->isFinished());
    QCOMPARE(
        recorder.lines,
        QStringList({
            QStringLiteral(
                "error 203: isFinished 0, error 203, available 4, headers 0, timer 30000"),
            QStringLiteral("downloadProgress 4/4: isFinished 0, error 203, available 4, "
                           "headers 0, timer 30000"),
            QStringLiteral("finished: isFinished 1, error 203, available 4, headers 1, timer -1"),
        }));
    QCOMPARE(reply->readAll(), QByteArray("body"));
}

void tst_FxNANetworkReplyEvents::realAbort()
{
    CFxNANetworkAccessManager manager;
    const CFxNANetworkRequest request(fault.Url(Steps().Hang().Path()));
    const std::unique_ptr<CFxNANetworkReply> reply(manager.get(request));
    const Recorder recorder(*reply);
    reply->abort();
    const QStringList expected {
        QStringLiteral("error 5: isFinished 0, error 5, available 0, headers 0, timer 30000"),
        QStringLiteral(
            "downloadProgress 0/0: isFinished 0, error 5, available 0, headers 0, timer 30000"),
        QStringLiteral("finished: isFinished 1, error 5, available 0, headers 0, timer -1"),
    };
    QCOMPARE(recorder.lines, expected);
    QCOMPARE(reply->errorString(), QStringLiteral("Operation canceled"));
    reply->abort();
    QCoreApplication::processEvents();
    QCOMPARE(recorder.lines, expected);
}

void tst_FxNANetworkReplyEvents::realTimeoutBeforeTheAnswer()
{
    CFxNANetworkAccessManager manager;
    CFxNANetworkRequest request(fault.Url(Steps().Hang().Path()));
    request.setRequestTimeout(1);
    const std::unique_ptr<CFxNANetworkReply> reply(manager.get(request));
    const Recorder recorder(*reply);
    QTRY_VERIFY(reply->isFinished());
    QCOMPARE(
        recorder.lines,
        QStringList({
            QStringLiteral("error 5: isFinished 0, error 5, available 0, headers 0, timer 1"),
            QStringLiteral(
                "downloadProgress 0/0: isFinished 0, error 5, available 0, headers 0, timer 1"),
            QStringLiteral("finished: isFinished 1, error 5, available 0, headers 0, timer -1"),
        }));
}

// The body comes a byte at a time, and goes on coming for longer than the time-out.
void tst_FxNANetworkReplyEvents::realTimeoutWhileTheBodyArrives()
{
    CFxNANetworkAccessManager manager;
    CFxNANetworkRequest request(
        fault.Url(Steps()
                      .Send("HTTP/1.1 200 OK\r\nContent-Length: 9000\r\n\r\n")
                      .Drip(QByteArray(9000, 'x'), 0.01)
                      .Path()));
    request.setRequestTimeout(700);
    const std::unique_ptr<CFxNANetworkReply> reply(manager.get(request));
    const Recorder recorder(*reply);
    QTRY_VERIFY(reply->isFinished());
    const int count = recorder.lines.size();
    QVERIFY(count > 3);
    const QString duringTheBody =
        QStringLiteral("/9000: isFinished 0, error 0, available 0, headers 0, timer 700");
    for (const QString &line : recorder.lines.mid(0, count - 3))
        QVERIFY2(line.endsWith(duringTheBody), qPrintable(line));
    QVERIFY(recorder.lines.at(count - 3).startsWith(QStringLiteral("error 5: ")));
    QVERIFY(recorder.lines.at(count - 2).startsWith(QStringLiteral("downloadProgress ")));
    QVERIFY(recorder.lines.at(count - 1).startsWith(QStringLiteral("finished: ")));
    // The headers have come. The body is gone, although Qt still counts it: it closes an aborted
    // reply, and warns of reading.
    QVERIFY(reply->hasRawHeader("Content-Length"));
    QVERIFY(reply->bytesAvailable() > 0);
    QTest::ignoreMessage(QtWarningMsg, "QIODevice::read (QNetworkReplyHttpImpl): device not open");
    QVERIFY(reply->readAll().isEmpty());
}

// The way that the header recommends for the end of a reply.
void tst_FxNANetworkReplyEvents::deletedInASingleShotAfterTheEnd()
{
    FakeTransfer transfer;
    const QPointer<FakeReply> qtReply = transfer.qtReply;
    transfer.reply->finished().connect(
        [&] { QTimer::singleShot(0, this, [&] { transfer.reply.reset(); }); });
    transfer.qtReply->Finish();
    QTRY_VERIFY(!transfer.reply);
    FlushDeferredDeletes();
    QVERIFY(!qtReply);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxNANetworkReplyEvents>(argc, argv);
}

#include "tst_FxNANetworkReplyEvents.moc"
