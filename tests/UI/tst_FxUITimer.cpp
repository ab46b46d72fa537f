#include "UI/FxUITimer.h"

#include "support/TestMain.h"
#include "UI/Impl/FxUITimerImpl.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtTest/QTest>

#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<CFxUIObject, CFxUITimer>);
static_assert(!std::is_copy_constructible_v<CFxUITimer>);

namespace {

QTimer *QtTimer(const CFxUITimer &timer)
{
    return qobject_cast<QTimer *>(timer.getHandle());
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
    void startRestartsWithTheNewInterval();
    void negativeIntervalGoesToQtUnchecked();
    void startAndStopWithoutHandleChangeTheFlagAlone();
    void deletedWhileRunningDoesNotFire();
    void destructionDeletesTheTimerAtOnce();
    void singleShotRunsFromTheEventLoop();
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

void tst_FxUITimer::startRestartsWithTheNewInterval()
{
    CFxUITimer timer;
    timer.start(5000);
    timer.start(6000);
    QVERIFY(timer.isActive());
    QCOMPARE(QtTimer(timer)->interval(), 6000);
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

void tst_FxUITimer::singleShotRunsFromTheEventLoop()
{
    int calls = 0;
    CFxUITimer::singleShot(0, [&calls] { ++calls; });
    QCOMPARE(calls, 0);
    QTRY_COMPARE(calls, 1);
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
