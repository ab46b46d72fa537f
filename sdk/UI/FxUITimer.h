#pragma once

#include "UI/FxUIObject.h"
#include "UI/FxUISignal.h"

#include <functional>

/// A repeating timer (QTimer).
///
/// It never is a single-shot timer: it fires until stop(), although isActive() turns false at the
/// first firing. Must not be deleted from a slot of its own timeout().
class COMMONUI_EXPORT CFxUITimer : public CFxUIObject {
public:
    CFxUITimer();

    /// Stops the timer at once.
    ~CFxUITimer() override;

    /// Starts the timer, or restarts it, with an interval of \a msec milliseconds (QTimer::start,
    /// unchecked).
    void start(int msec);

    /// Stops the timer (QTimer::stop).
    void stop();

    /// Returns true from start() until the first firing or stop(). The QTimer isn't asked.
    bool isActive() const;

    /// Emitted at each firing, after isActive() has turned false.
    CFxUISignal<void()> &timeout();

    /// Calls \a callable once, from the event loop of the calling thread, after \a msec
    /// milliseconds (QTimer::singleShot without a receiver: precise below 2000, coarse from there
    /// on). It can't be cancelled. An empty callable throws std::bad_function_call when its time
    /// has come.
    static void singleShot(int msec, std::function<void()> callable);
};
