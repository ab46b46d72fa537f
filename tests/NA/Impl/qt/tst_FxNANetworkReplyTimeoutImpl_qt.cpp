#include "NA/Impl/qt/FxNANetworkReplyTimeoutImpl_qt.h"

#include "NA/support/FakeReply.h"
#include "NA/support/Transfer.h"
#include "support/TestMain.h"

#include <QtCore/QTimerEvent>
#include <QtTest/QTest>

#include <memory>

namespace {

int TimerId(QObject *object)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(object).first().timerId;
}

void SendTimerEvent(QObject *object, int id)
{
    QTimerEvent event(id);
    QCoreApplication::sendEvent(object, &event);
}

} // namespace

class tst_FxNANetworkReplyTimeoutImpl_qt : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isAChildOfTheReplyWithoutSignalsOrProperties();
    void timerRunsOverARunningReply();
    void timerIsIdleOverAFinishedReply();
    void withoutReplyItIsAnIdleObject();
    void abortsARunningReplyAndStops();
    void leavesAReplyThatHasEnded();
    void passesOverAnotherTimersEvent();
    void passesOverAnEventWhileIdle();
    void stopIsForGood();
    void underAnotherParentItOnlyStops();
    void destructionStopsTheTimer();
};

void tst_FxNANetworkReplyTimeoutImpl_qt::isAChildOfTheReplyWithoutSignalsOrProperties()
{
    FakeReply reply;
    const auto *timeout = new CFxNANetworkReplyTimeout(&reply, 5000);
    QCOMPARE(timeout->parent(), &reply);
    const QMetaObject *meta = timeout->metaObject();
    QCOMPARE(QByteArray(meta->className()), QByteArray("CFxNANetworkReplyTimeout"));
    QCOMPARE(meta->superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta->methodCount(), meta->methodOffset());
    QCOMPARE(meta->propertyCount(), meta->propertyOffset());
}

void tst_FxNANetworkReplyTimeoutImpl_qt::timerRunsOverARunningReply()
{
    FakeReply reply;
    QCOMPARE(RunningInterval(new CFxNANetworkReplyTimeout(&reply, 5000)), 5000);
}

void tst_FxNANetworkReplyTimeoutImpl_qt::timerIsIdleOverAFinishedReply()
{
    FakeReply reply;
    reply.setFinished(true);
    QCOMPARE(RunningInterval(new CFxNANetworkReplyTimeout(&reply, 1)), -1);
}

void tst_FxNANetworkReplyTimeoutImpl_qt::withoutReplyItIsAnIdleObject()
{
    CFxNANetworkReplyTimeout timeout(nullptr, 1);
    QVERIFY(!timeout.parent());
    QCOMPARE(RunningInterval(&timeout), -1);
    timeout.stop();
}

void tst_FxNANetworkReplyTimeoutImpl_qt::abortsARunningReplyAndStops()
{
    FakeReply reply;
    auto *timeout = new CFxNANetworkReplyTimeout(&reply, 1);
    int intervalAtTheEnd = 0;
    connect(&reply, &QNetworkReply::finished, this,
            [&] { intervalAtTheEnd = RunningInterval(timeout); });
    QTRY_COMPARE(reply.aborts, 1);
    QCOMPARE(intervalAtTheEnd, 1); // it stops after the abort, and doesn't hear of the end
    QCOMPARE(RunningInterval(timeout), -1);
}

void tst_FxNANetworkReplyTimeoutImpl_qt::leavesAReplyThatHasEnded()
{
    FakeReply reply;
    auto *timeout = new CFxNANetworkReplyTimeout(&reply, 5000);
    reply.setFinished(true);
    SendTimerEvent(timeout, TimerId(timeout));
    QCOMPARE(reply.aborts, 0);
    QCOMPARE(RunningInterval(timeout), -1);
}

void tst_FxNANetworkReplyTimeoutImpl_qt::passesOverAnotherTimersEvent()
{
    FakeReply reply;
    auto *timeout = new CFxNANetworkReplyTimeout(&reply, 5000);
    SendTimerEvent(timeout, TimerId(timeout) + 1);
    QCOMPARE(reply.aborts, 0);
    QCOMPARE(RunningInterval(timeout), 5000);
}

void tst_FxNANetworkReplyTimeoutImpl_qt::passesOverAnEventWhileIdle()
{
    FakeReply reply;
    auto *timeout = new CFxNANetworkReplyTimeout(&reply, 5000);
    const int id = TimerId(timeout);
    timeout->stop();
    SendTimerEvent(timeout, id);
    SendTimerEvent(timeout, 0); // what an idle timer has for an id
    QCOMPARE(reply.aborts, 0);
}

void tst_FxNANetworkReplyTimeoutImpl_qt::stopIsForGood()
{
    FakeReply reply;
    auto *timeout = new CFxNANetworkReplyTimeout(&reply, 5000);
    timeout->stop();
    QCOMPARE(RunningInterval(timeout), -1);
    timeout->stop();
    Q_EMIT reply.downloadProgress(1, 2);
    QCOMPARE(RunningInterval(timeout), -1);
}

void tst_FxNANetworkReplyTimeoutImpl_qt::underAnotherParentItOnlyStops()
{
    FakeReply reply;
    QObject other;
    auto *timeout = new CFxNANetworkReplyTimeout(&reply, 5000);
    timeout->setParent(&other);
    SendTimerEvent(timeout, TimerId(timeout));
    QCOMPARE(reply.aborts, 0);
    QCOMPARE(RunningInterval(timeout), -1);
}

void tst_FxNANetworkReplyTimeoutImpl_qt::destructionStopsTheTimer()
{
    FakeReply reply;
    auto *timeout = new CFxNANetworkReplyTimeout(&reply, 5000);
    const int id = TimerId(timeout);
    delete timeout;
    QCOMPARE(QAbstractEventDispatcher::instance()->remainingTime(id), -1);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxNANetworkReplyTimeoutImpl_qt>(argc, argv);
}

#include "tst_FxNANetworkReplyTimeoutImpl_qt.moc"
