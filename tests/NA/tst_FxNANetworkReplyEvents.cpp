#include "NA/FxNANetworkReply.h"
#include "NA/Impl/FxNANetworkReplyImpl.h"
#include "NA/support/FakeTransfer.h"
#include "support/Events.h"
#include "support/TestMain.h"

#include <QtCore/QTimer>
#include <QtTest/QTest>

#include <limits>

using NetworkError = CFxNANetworkReply::NetworkError;

class tst_FxNANetworkReplyEvents : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void progressKeepsTheLow32Bits_data();
    void progressKeepsTheLow32Bits();
    void errorNumbersComeThroughUnchanged_data();
    void errorNumbersComeThroughUnchanged();
    void aSecondErrorReplacesTheFirst();
    void noSignalNamesASender();
    void aRunningReplyDeletedHearsNothingAnyMore();
    void deletionLeavesTheConnectionsOfOthers();
    void anExceptionFromASlotPassesThrough();
    void deletedInASingleShotAfterTheEnd();
};

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
