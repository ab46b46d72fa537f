#pragma once

#include <functional>
#include <utility>

namespace slimsig {

template <class Signature, class SlotId> struct basic_slot;

/// Holds one connected callable. A signal keeps its records side by side in one array.
///
/// Copyable, and on purpose not movable: an array that grows copies its records.
template <class R, class... Args, class SlotId> struct basic_slot<R(Args...), SlotId> {
    /// Stores \a callable, which may be empty; such a record is never active.
    basic_slot(SlotId slot_id, std::function<R(Args...)> &&callable)
        : function(std::move(callable))
        , id(slot_id)
        , active(static_cast<bool>(function))
    {
    }

    basic_slot(const basic_slot &) = default;
    basic_slot &operator=(const basic_slot &) = default;
    ~basic_slot() = default;

    /// Exchanges two records without running any code of their callables.
    void swap(basic_slot &other) noexcept
    {
        function.swap(other.function);
        std::swap(id, other.id);
        std::swap(active, other.active);
        std::swap(running, other.running);
    }

    std::function<R(Args...)> function; ///< Invoked where it stands.
    SlotId id; ///< Distinct, and rising in the order of the array.
    bool active; ///< Whether the callable is connected.
    bool running = false; ///< Whether an emission is inside the callable. Not a count.
};

} // namespace slimsig
