#include "UI/FxUITimer.h"

#include "support/TestMain.h"
#include "UI/Impl/FxUITimerImpl.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QEventLoop>
#include <QtCore/QPointer>
#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtTest/QTest>

#include <memory>
#include <stdexcept>
#include <type_traits>

static_assert(std::is_base_of_v<CFxUIObject, CFxUITimer>);
static_assert(!std::is_copy_constructible_v<CFxUITimer>);
static_assert(
    std::is_same_v<decltype(std::declval<CFxUITimer &>().timeout()), CFxUISignal<void()> &>);

namespace {

QTimer *QtTimer(const CFxUITimer &timer)
{
    return qobject_cast<QTimer *>(timer.getHandle());
}

// Lets the timer fire, at once.
void Fire(const CFxUITimer &timer)
{
    QTimerEvent event(QtTimer(timer)->timerId());
    QCoreApplication::sendEvent(QtTimer(timer), &event);
}

} // namespace

class tst_FxUITimer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void handleIsATimerWithoutParent();
    void frontendClassNameIsEmpty();
    void isActiveTurnsFalseAtTheFirstFiringWhileTheTimerGoesOn();
    void stateIsWrittenBeforeTheEmission();
    void blockedSignalsSilenceFiringsAndKeepTheState();
    void stopOnAStoppedTimerOnlySetsTheFlag();
    void stopAfterAFiringEndsTheTimer();
    void startRestartsWithTheNewInterval();
    void startAfterAFiringSetsTheFlagAgain();
    void slotRunsOnTheStackOfTheEvent();
    void exceptionOfASlotPassesThroughTheEvent();
    void negativeIntervalGoesToQtUnchecked();
    void startAndStopWithoutHandleChangeTheFlagAlone();
    void destroyedQtTimerLeavesTheFlagToItself();
    void deletedWhileRunningDoesNotFire();
    void destructionDeletesTheTimerAtOnce();
    void implementationHasTheSameOperations();
    void singleShotRunsFromTheEventLoop();
    void singleShotKeepsACopyUntilItHasRun();
    void singleShotRunsInTheThreadThatAsked();
    void singleShotIsNoneOfATimersBusiness();
    void singleShotTimerType_data();
    void singleShotTimerType();
};

void tst_FxUITimer::handleIsATimerWithoutParent()
{
    const CFxUITimer timer;
    QVERIFY(QtTimer(timer));
    QVERIFY(!QtTimer(timer)->parent());
    QVERIFY(!QtTimer(timer)->isSingleShot());
    QVERIFY(!timer.isActive());
}

void tst_FxUITimer::frontendClassNameIsEmpty()
{
    const CFxUITimer timer;
    QVERIFY(timer.impl->GetFrontendClassName().isEmpty());
}

void tst_FxUITimer::isActiveTurnsFalseAtTheFirstFiringWhileTheTimerGoesOn()
{
    CFxUITimer timer;
    int firings = 0;
    timer.timeout().connect([&firings] { ++firings; });
    timer.start(1);
    QVERIFY(timer.isActive());
    QTRY_VERIFY(firings >= 3);
    QVERIFY(!timer.isActive());
    QVERIFY(QtTimer(timer)->isActive());
    timer.stop();
    QVERIFY(!QtTimer(timer)->isActive());
}

void tst_FxUITimer::stateIsWrittenBeforeTheEmission()
{
    CFxUITimer timer;
    bool activeInSlot = true;
    timer.timeout().connect([&] {
        activeInSlot = timer.isActive();
        timer.stop();
    });
    timer.start(0);
    QTRY_VERIFY(!activeInSlot);
}

void tst_FxUITimer::blockedSignalsSilenceFiringsAndKeepTheState()
{
    CFxUITimer timer;
    int firings = 0;
    int qtFirings = 0;
    timer.timeout().connect([&firings] { ++firings; });
    connect(QtTimer(timer), &QTimer::timeout, this, [&qtFirings] { ++qtFirings; });
    timer.blockSignals(true);
    timer.start(0);
    QTRY_VERIFY(qtFirings >= 1);
    QCOMPARE(firings, 0);
    QVERIFY(!timer.isActive());
    timer.stop();
}

void tst_FxUITimer::stopOnAStoppedTimerOnlySetsTheFlag()
{
    CFxUITimer timer;
    timer.stop();
    QVERIFY(!timer.isActive());
    QVERIFY(!QtTimer(timer)->isActive());
}

void tst_FxUITimer::stopAfterAFiringEndsTheTimer()
{
    CFxUITimer timer;
    timer.start(5000);
    Fire(timer);
    QVERIFY(!timer.isActive());
    QVERIFY(QtTimer(timer)->isActive());
    timer.stop();
    QVERIFY(!QtTimer(timer)->isActive());
}

void tst_FxUITimer::startRestartsWithTheNewInterval()
{
    CFxUITimer timer;
    timer.start(5000);
    timer.start(6000);
    QVERIFY(timer.isActive());
    QCOMPARE(QtTimer(timer)->interval(), 6000);
}

void tst_FxUITimer::startAfterAFiringSetsTheFlagAgain()
{
    CFxUITimer timer;
    timer.start(5000);
    Fire(timer);
    timer.start(5000);
    QVERIFY(timer.isActive());
    Fire(timer);
    QVERIFY(!timer.isActive());
}

void tst_FxUITimer::slotRunsOnTheStackOfTheEvent()
{
    CFxUITimer timer;
    int firings = 0;
    timer.timeout().connect([&firings] { ++firings; });
    timer.start(5000);
    Fire(timer);
    QCOMPARE(firings, 1);
    Fire(timer);
    QCOMPARE(firings, 2);
}

void tst_FxUITimer::exceptionOfASlotPassesThroughTheEvent()
{
    CFxUITimer timer;
    timer.timeout().connect([] { throw std::runtime_error("slot"); });
    timer.start(5000);
    QVERIFY_EXCEPTION_THROWN(Fire(timer), std::runtime_error);
    QVERIFY(!timer.isActive());
    QVERIFY(QtTimer(timer)->isActive());
}

void tst_FxUITimer::negativeIntervalGoesToQtUnchecked()
{
    CFxUITimer timer;
    QTest::ignoreMessage(QtWarningMsg,
                         "QObject::startTimer: Timers cannot have negative intervals");
    timer.start(-1);
    QVERIFY(timer.isActive());
    QCOMPARE(QtTimer(timer)->interval(), -1);
}

void tst_FxUITimer::startAndStopWithoutHandleChangeTheFlagAlone()
{
    CFxUITimer timer;
    const std::unique_ptr<QObject> handle(timer.getHandle());
    timer.setHandle(nullptr);
    timer.start(1);
    QVERIFY(timer.isActive());
    QVERIFY(!static_cast<QTimer *>(handle.get())->isActive());
    timer.stop();
    QVERIFY(!timer.isActive());
}

void tst_FxUITimer::destroyedQtTimerLeavesTheFlagToItself()
{
    CFxUITimer timer;
    auto *impl = static_cast<CFxUITimerImpl *>(timer.impl);
    timer.start(5000);
    impl->DestroyTimerImpl();
    QVERIFY(!timer.getHandle());
    QVERIFY(timer.isActive());
    timer.stop();
    QVERIFY(!timer.isActive());
    timer.start(1);
    QVERIFY(timer.isActive());
    impl->DestroyTimerImpl();
    QVERIFY(!timer.getHandle());
}

void tst_FxUITimer::deletedWhileRunningDoesNotFire()
{
    int firings = 0;
    {
        CFxUITimer timer;
        timer.timeout().connect([&firings] { ++firings; });
        timer.start(0);
    }
    QCoreApplication::processEvents();
    QCOMPARE(firings, 0);
}

void tst_FxUITimer::destructionDeletesTheTimerAtOnce()
{
    auto timer = std::make_unique<CFxUITimer>();
    const QPointer<QObject> handle(timer->getHandle());
    timer.reset();
    QVERIFY(!handle);
}

void tst_FxUITimer::implementationHasTheSameOperations()
{
    CFxUITimer timer;
    auto *impl = static_cast<CFxUITimerImpl *>(timer.impl);
    QCOMPARE(&impl->timeout(), &timer.timeout());
    impl->start(5000);
    QVERIFY(impl->isActive());
    QVERIFY(timer.isActive());
    QCOMPARE(QtTimer(timer)->interval(), 5000);
    impl->stop();
    QVERIFY(!timer.isActive());
    QVERIFY(!QtTimer(timer)->isActive());
    impl->StartImpl(6000);
    QVERIFY(QtTimer(timer)->isActive());
    QVERIFY(!timer.isActive()); // the Qt half writes no state
    impl->StopImpl();
    QVERIFY(!QtTimer(timer)->isActive());
    int calls = 0;
    CFxUITimerImpl::singleShot(0, [&calls] { ++calls; });
    CFxUITimerImpl::SingleShotImpl(0, [&calls] { ++calls; });
    QCOMPARE(calls, 0);
    QTRY_COMPARE(calls, 2);
}

void tst_FxUITimer::singleShotRunsFromTheEventLoop()
{
    int calls = 0;
    CFxUITimer::singleShot(0, [&calls] { ++calls; });
    QCOMPARE(calls, 0);
    QTRY_COMPARE(calls, 1);
}

void tst_FxUITimer::singleShotKeepsACopyUntilItHasRun()
{
    const auto token = std::make_shared<int>(0);
    bool called = false;
    std::function<void()> callable = [token, &called] { called = true; };
    CFxUITimer::singleShot(0, callable);
    callable = nullptr;
    QVERIFY(token.use_count() > 1);
    QTRY_VERIFY(called);
    QCOMPARE(token.use_count(), 1L);
}

void tst_FxUITimer::singleShotRunsInTheThreadThatAsked()
{
    QThread *ran = nullptr;
    const std::unique_ptr<QThread> thread(QThread::create([&ran] {
        QEventLoop loop;
        CFxUITimer::singleShot(0, [&] {
            ran = QThread::currentThread();
            loop.quit();
        });
        loop.exec();
    }));
    thread->start();
    QVERIFY(thread->wait());
    QCOMPARE(ran, thread.get());
}

void tst_FxUITimer::singleShotIsNoneOfATimersBusiness()
{
    CFxUITimer timer;
    int firings = 0;
    bool called = false;
    timer.timeout().connect([&firings] { ++firings; });
    timer.blockSignals(true);
    timer.singleShot(0, [&called] { called = true; });
    timer.stop();
    QTRY_VERIFY(called);
    QCOMPARE(firings, 0);
    QVERIFY(!timer.isActive());
}

void tst_FxUITimer::singleShotTimerType_data()
{
    QTest::addColumn<int>("msec");
    QTest::addColumn<Qt::TimerType>("type");
    QTest::newRow("1999 is precise") << 1999 << Qt::PreciseTimer;
    QTest::newRow("2000 is coarse") << 2000 << Qt::CoarseTimer;
}

void tst_FxUITimer::singleShotTimerType()
{
    QFETCH(int, msec);
    QFETCH(Qt::TimerType, type);
    // Qt hangs the object of a single shot on the event dispatcher.
    auto *dispatcher = QAbstractEventDispatcher::instance();
    const QObjectList before = dispatcher->children();
    CFxUITimer::singleShot(msec, [] {});
    QObjectList added = dispatcher->children();
    for (QObject *object : before)
        added.removeOne(object);
    QCOMPARE(added.size(), 1);
    const auto timers = dispatcher->registeredTimers(added.first());
    delete added.first();
    QCOMPARE(timers.size(), 1);
    QCOMPARE(timers.first().interval, msec);
    QCOMPARE(timers.first().timerType, type);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUITimer>(argc, argv);
}

#include "tst_FxUITimer.moc"
