#include "UI/Impl/FxUITimerImpl.h"

CFxUITimerImpl::CFxUITimerImpl(CFxUIObject *object)
    : CFxUIObjectImpl(object)
    , m_timeout(object)
{
    CreateTimerImpl();
}

CFxUITimerImpl::~CFxUITimerImpl()
{
    DestroyTimerImpl();
}

void CFxUITimerImpl::start(int msec)
{
    m_active = true;
    StartImpl(msec);
}

void CFxUITimerImpl::stop()
{
    m_active = false;
    StopImpl();
}

bool CFxUITimerImpl::isActive() const
{
    return m_active;
}

CFxUISignal<void()> &CFxUITimerImpl::timeout()
{
    return m_timeout;
}

void CFxUITimerImpl::singleShot(int msec, std::function<void()> callable)
{
    SingleShotImpl(msec, callable);
}

// The QTimer repeats and goes on firing: the flag tells of the first firing alone. Intended.
void CFxUITimerImpl::OnTimeout()
{
    m_active = false;
    m_timeout.emit();
}
