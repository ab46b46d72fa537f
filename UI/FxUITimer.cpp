#include "UI/FxUITimer.h"

#include "UI/Impl/FxUITimerImpl.h"
#include "UI/Impl/ImplOf.h"

CFxUITimer::CFxUITimer()
{
    impl = new CFxUITimerImpl(this);
}

CFxUITimer::~CFxUITimer() = default;

void CFxUITimer::start(int msec)
{
    ImplOf<CFxUITimerImpl>(this)->start(msec);
}

void CFxUITimer::stop()
{
    ImplOf<CFxUITimerImpl>(this)->stop();
}

bool CFxUITimer::isActive() const
{
    return ImplOf<CFxUITimerImpl>(this)->isActive();
}

CFxUISignal<void()> &CFxUITimer::timeout()
{
    return ImplOf<CFxUITimerImpl>(this)->timeout();
}

void CFxUITimer::singleShot(int msec, std::function<void()> callable)
{
    CFxUITimerImpl::singleShot(msec, callable);
}
