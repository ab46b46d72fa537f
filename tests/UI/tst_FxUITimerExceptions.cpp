// What leaves a callable as an exception. glib's event loop isn't written for exceptions, so this
// program runs on Qt's own.

#include "UI/FxUITimer.h"

#include "support/TestMain.h"

#include <QtTest/QTest>

#include <functional>
#include <stdexcept>

class tst_FxUITimerExceptions : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void emptyCallableIsNotRefusedAndThrowsFromTheEventLoop();
    void exceptionOfACallableLeavesTheEventLoop();
};

void tst_FxUITimerExceptions::emptyCallableIsNotRefusedAndThrowsFromTheEventLoop()
{
    CFxUITimer::singleShot(0, std::function<void()>());
    QVERIFY_EXCEPTION_THROWN(QTRY_VERIFY(false), std::bad_function_call);
    QCoreApplication::processEvents(); // once
}

void tst_FxUITimerExceptions::exceptionOfACallableLeavesTheEventLoop()
{
    CFxUITimer::singleShot(0, [] { throw std::runtime_error("callable"); });
    QVERIFY_EXCEPTION_THROWN(QTRY_VERIFY(false), std::runtime_error);
    bool called = false;
    CFxUITimer::singleShot(0, [&called] { called = true; });
    QTRY_VERIFY(called);
}

int main(int argc, char **argv)
{
    qputenv("QT_NO_GLIB", "1");
    return RunTest<tst_FxUITimerExceptions>(argc, argv);
}

#include "tst_FxUITimerExceptions.moc"
