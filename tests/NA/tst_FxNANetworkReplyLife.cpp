#include "NA/FxNANetworkAccessManager.h"
#include "NA/FxNANetworkReply.h"
#include "NA/support/FakeTransfer.h"
#include "NA/support/Peer.h"
#include "NA/support/ReplyRecorder.h"
#include "support/Events.h"
#include "support/TestMain.h"

#include <QtCore/QPointer>
#include <QtTest/QTest>

#include <memory>

using NetworkError = CFxNANetworkReply::NetworkError;

class tst_FxNANetworkReplyLife : public QObject {
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
    void theTimerStopsAtTheEnd();
    void nothingRestartsTheTimer();
    void noAbortFollowsTheEnd();
    void realSuccess();
    void realFailure();
    void realAbort();
    void realTimeoutBeforeTheAnswer();
    void realTimeoutWhileTheBodyArrives();

private:
    FaultPeer fault;
};

void tst_FxNANetworkReplyLife::initTestCase()
{
    QVERIFY2(fault.Start(), qPrintable(fault.Fault()));
}

void tst_FxNANetworkReplyLife::success()
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

void tst_FxNANetworkReplyLife::failure()
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

void tst_FxNANetworkReplyLife::failureServesTheBodyBeforeTheEnd()
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

void tst_FxNANetworkReplyLife::timeout()
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

void tst_FxNANetworkReplyLife::abortByTheCaller()
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

void tst_FxNANetworkReplyLife::abortAfterTheEnd()
{
    FakeTransfer transfer;
    transfer.qtReply->Finish();
    transfer.recorder->lines.clear();
    transfer.reply->abort();
    QCOMPARE(transfer.qtReply->aborts, 1);
    QVERIFY(transfer.recorder->lines.isEmpty());
}

void tst_FxNANetworkReplyLife::blockedSignals()
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

void tst_FxNANetworkReplyLife::signalsUnblockedOnTheWay()
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

void tst_FxNANetworkReplyLife::theTimerStopsAtTheEnd()
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

void tst_FxNANetworkReplyLife::nothingRestartsTheTimer()
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

void tst_FxNANetworkReplyLife::noAbortFollowsTheEnd()
{
    FakeTransfer transfer(20);
    transfer.qtReply->Finish();
    bool later = false;
    QTimer::singleShot(40, this, [&] { later = true; });
    QTRY_VERIFY(later);
    QCOMPARE(transfer.qtReply->aborts, 0);
    QCOMPARE(transfer.recorder->lines.size(), 1);
}

void tst_FxNANetworkReplyLife::realSuccess()
{
    CFxNANetworkAccessManager manager;
    const CFxNANetworkRequest request(
        fault.Url(Steps().Send("HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\nbody").Path()));
    const std::unique_ptr<CFxNANetworkReply> reply(manager.get(request));
    const ReplyRecorder recorder(*reply);
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
void tst_FxNANetworkReplyLife::realFailure()
{
    CFxNANetworkAccessManager manager;
    const CFxNANetworkRequest request(
        fault.Url(Steps().Send("HTTP/1.1 404 No\r\nContent-Length: 4\r\n\r\nbody").Path()));
    const std::unique_ptr<CFxNANetworkReply> reply(manager.get(request));
    const ReplyRecorder recorder(*reply);
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

void tst_FxNANetworkReplyLife::realAbort()
{
    CFxNANetworkAccessManager manager;
    const CFxNANetworkRequest request(fault.Url(Steps().Hang().Path()));
    const std::unique_ptr<CFxNANetworkReply> reply(manager.get(request));
    const ReplyRecorder recorder(*reply);
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

void tst_FxNANetworkReplyLife::realTimeoutBeforeTheAnswer()
{
    CFxNANetworkAccessManager manager;
    CFxNANetworkRequest request(fault.Url(Steps().Hang().Path()));
    request.setRequestTimeout(1);
    const std::unique_ptr<CFxNANetworkReply> reply(manager.get(request));
    const ReplyRecorder recorder(*reply);
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
void tst_FxNANetworkReplyLife::realTimeoutWhileTheBodyArrives()
{
    CFxNANetworkAccessManager manager;
    CFxNANetworkRequest request(
        fault.Url(Steps()
                      .Send("HTTP/1.1 200 OK\r\nContent-Length: 9000\r\n\r\n")
                      .Drip(QByteArray(9000, 'x'), 0.01)
                      .Path()));
    request.setRequestTimeout(700);
    const std::unique_ptr<CFxNANetworkReply> reply(manager.get(request));
    const ReplyRecorder recorder(*reply);
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

int main(int argc, char **argv)
{
    return RunTest<tst_FxNANetworkReplyLife>(argc, argv);
}

#include "tst_FxNANetworkReplyLife.moc"
