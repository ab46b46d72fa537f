#pragma once

#include "basic_slot.h"

#include <cstdint>
#include <functional>

namespace slimsig {

template <class Signature> struct signal_traits;

/// Names the types that a signature brings with it.
template <class R, class... Args> struct signal_traits<R(Args...)> {
    using result_type = R;
    using function_type = std::function<R(Args...)>;
    using slot_id = unsigned long;
    using slot_type = basic_slot<R(Args...), slot_id>;
    using size_type = std::uint64_t;
};

template <class SignalTraits, class Allocator, class Signature> class signal_base;

} // namespace slimsig
