#pragma once

#include "UI/FxUISignal.h"
#include "UI/Impl/FxUIObjectImpl.h"

#include <functional>

/// Implementation object of CFxUITimer.
class COMMONUI_EXPORT CFxUITimerImpl : public CFxUIObjectImpl {
public:
    explicit CFxUITimerImpl(CFxUIObject *object);
    ~CFxUITimerImpl() override;

    void start(int msec);
    void stop();
    bool isActive() const;
    CFxUISignal<void()> &timeout();
    static void singleShot(int msec, std::function<void()> callable);

    void OnTimeout();

    void CreateTimerImpl();
    void DestroyTimerImpl();
    void StartImpl(int msec);
    void StopImpl();
    static void SingleShotImpl(int msec, std::function<void()> callable);

protected:
    bool m_active = false;
    CFxUISignal<void()> m_timeout; ///< emitted at each firing
};
