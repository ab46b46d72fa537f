#pragma once

#include "UI/FxUIObject.h"
#include "UI/slimsig/detail/signal_base.h"

#include <functional>
#include <memory>
#include <utility>

#pragma push_macro("emit")
#undef emit

/// A signal of a public object, reached through the accessor that has the signal's name.
///
/// Slots are any callables of the signature; they run in order of connection, on the stack of the
/// emission, and may connect, disconnect and emit from there. While the object's signals are
/// blocked an emission does nothing.
template <class Signature> class CFxUISignal;

template <class R, class... Args>
class CFxUISignal<R(Args...)>
    : public slimsig::signal_base<slimsig::signal_traits<R(Args...)>,
                                  std::allocator<std::function<R(Args...)>>, R(Args...)> {
    using Base = slimsig::signal_base<slimsig::signal_traits<R(Args...)>,
                                      std::allocator<std::function<R(Args...)>>, R(Args...)>;

public:
    /// \a signalOwner is the public object whose block flag gates this signal; not null, not owned.
    explicit CFxUISignal(CFxUIObject *signalOwner)
        : owner(signalOwner)
    {
    }

    /// Calls the connected slots, unless the owner's signals are blocked. Does nothing then.
    void emit(Args... args)
    {
        if (owner->signalsBlocked())
            return;
        Base::emit(std::forward<Args>(args)...);
    }

    /// The same as emit(), for sources in which Qt's macro of that name is alive.
    void operator()(Args... args) { emit(std::forward<Args>(args)...); }

    CFxUIObject *owner;
};

#pragma pop_macro("emit")
