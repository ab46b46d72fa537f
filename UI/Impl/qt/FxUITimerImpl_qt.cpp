#include "UI/Impl/FxUITimerImpl.h"
#include "UI/Impl/qt/ConnectFrontend.h"
#include "UI/Impl/qt/FrontendCast.h"

#include <QtCore/QTimer>

void CFxUITimerImpl::CreateTimerImpl()
{
    auto *timer = new QTimer;
    owner->setHandle(timer);
    ConnectFrontend(timer, &QTimer::timeout, this, &CFxUITimerImpl::OnTimeout);
}

void CFxUITimerImpl::DestroyTimerImpl()
{
    delete owner->getHandle();
    owner->setHandle(nullptr);
}

void CFxUITimerImpl::StartImpl(int msec)
{
    if (auto *timer = FrontendCast<QTimer>(owner))
        timer->start(msec);
}

void CFxUITimerImpl::StopImpl()
{
    if (auto *timer = FrontendCast<QTimer>(owner))
        timer->stop();
}

void CFxUITimerImpl::SingleShotImpl(int msec, std::function<void()> callable)
{
    QTimer::singleShot(msec, std::move(callable)); // clazy:exclude=connect-3arg-lambda
}
