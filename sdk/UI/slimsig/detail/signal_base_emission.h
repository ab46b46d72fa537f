#pragma once

#include "signal_base.h"

// How a signal calls its slots.

namespace slimsig {

/// Leaves before anything else where there is nothing to call, as with most signals. The
/// commonest emission besides, to one slot, goes a shorter way than the others.
template <class SignalTraits, class Allocator, class R, class... Args>
[[gnu::always_inline]] inline void
signal_base<SignalTraits, Allocator, R(Args...)>::emit_unless_idle(Args &...args)
{
    const std::size_t bytes = pending.size_in_bytes();
    if (bytes == 0) {
        if ((m_size | m_offset) != 0)
            check_empty();
    } else if (bytes == sizeof(slot_type) && (m_offset | depth) == 0) {
        call_only_slot(args...);
    } else {
        call_slots(args...);
    }
}

/// An emission without records, which can only fail.
template <class SignalTraits, class Allocator, class R, class... Args>
[[gnu::noinline, gnu::cold]] void signal_base<SignalTraits, Allocator, R(Args...)>::check_empty()
{
    const emit_scope scope(*this);
    detail::verify(m_offset <= pending.size(), "m_offset <= end");
}

template <class SignalTraits, class Allocator, class R, class... Args>
[[gnu::noinline, gnu::flatten]] void
signal_base<SignalTraits, Allocator, R(Args...)>::call_only_slot(handed<Args>... args)
{
    const walk_scope scope(*this, 1);
    slot_type *const slot = pending.data();
    if (__builtin_expect(slot->active, true)) {
        call_slot(slot, slot, std::forward<Args>(args)...);
        if (!stands_at(slot))
            end_moving_call(slot, slot);
    }
}

/// Walks by pointer, which is what most emissions are, and goes on by index once a slot has
/// made the array move: the outgrown records are inactive, so that the one test finds both. The
/// last slot is taken apart, as it may have the arguments for good. Flattened, since a copy of an
/// argument that is left a call of its own costs a tenth.
template <class SignalTraits, class Allocator, class R, class... Args>
[[gnu::noinline, gnu::flatten]] void
signal_base<SignalTraits, Allocator, R(Args...)>::call_slots(handed<Args>... args)
{
    const walk_scope scope(*this, depth + 1);
    if (__builtin_expect(m_offset != 0, false))
        return call_behind_offset(args...);
    slot_type *const first = pending.data();
    slot_type *const last = &pending.back();
    slot_type *slot = first;
    for (; slot != last; ++slot) {
        if (__builtin_expect(slot->active, true))
            call_slot(first, slot, args...);
        else if (has_moved(first))
            return call_moved(first, slot, last, args...);
    }
    if (__builtin_expect(slot->active, true)) {
        call_slot(first, slot, std::forward<Args>(args)...);
        if (!stands_at(first))
            end_moving_call(first, slot);
    } else if (has_moved(first)) {
        call_moved(first, slot, last, args...);
    }
}

template <class SignalTraits, class Allocator, class R, class... Args>
template <class... Passed>
[[gnu::always_inline]] inline void
signal_base<SignalTraits, Allocator, R(Args...)>::call_slot(slot_type *first, slot_type *slot,
                                                            Passed &&...passed)
{
    running_scope running(*this, first, slot);
    slot->function(std::forward<Passed>(passed)...);
    running.end();
}

template <class SignalTraits, class Allocator, class R, class... Args>
[[gnu::noinline, gnu::cold]] void
signal_base<SignalTraits, Allocator, R(Args...)>::call_behind_offset(handed<Args>... args)
{
    call_by_index(m_offset, pending.size(), args...);
}

/// Returns whether the array has moved since it began at \a first. Asked where a slot is inactive,
/// which is rare; out of line, it leaves the walk a loop of one block.
template <class SignalTraits, class Allocator, class R, class... Args>
[[gnu::noinline, gnu::cold]] bool
signal_base<SignalTraits, Allocator, R(Args...)>::has_moved(const slot_type *first) const noexcept
{
    return !stands_at(first);
}

/// Goes on at the index of \a slot, after the call of the slot before it has moved the array.
template <class SignalTraits, class Allocator, class R, class... Args>
[[gnu::noinline, gnu::cold]] void signal_base<SignalTraits, Allocator, R(Args...)>::call_moved(
    const slot_type *first, const slot_type *slot, const slot_type *last, handed<Args>... args)
{
    const size_type next = index_of(first, slot);
    const size_type end = index_of(first, last) + 1;
    end_moving_call(first, slot - 1);
    call_by_index(next, end, args...);
}

template <class SignalTraits, class Allocator, class R, class... Args>
void signal_base<SignalTraits, Allocator, R(Args...)>::call_by_index(size_type next, size_type end,
                                                                     handed<Args>... args)
{
    detail::verify(next <= end, "m_offset <= end");
    if (next == end)
        return;
    for (const size_type last = index_of_last(end); next != last; ++next)
        call_at(next, args...);
    call_at(next, std::forward<Args>(args)...);
}

template <class SignalTraits, class Allocator, class R, class... Args>
template <class... Passed>
void signal_base<SignalTraits, Allocator, R(Args...)>::call_at(size_type index, Passed &&...passed)
{
    slot_type *const first = pending.data();
    slot_type *const slot = first + index;
    if (!slot->active)
        return;
    call_slot(first, slot, std::forward<Passed>(passed)...);
    if (!stands_at(first))
        end_moving_call(first, slot);
}

/// Ends a call that has thrown.
template <class SignalTraits, class Allocator, class R, class... Args>
[[gnu::noinline, gnu::cold]] void
signal_base<SignalTraits, Allocator, R(Args...)>::end_thrown_call(slot_type *first,
                                                                  slot_type *slot) noexcept
{
    if (stands_at(first))
        slot->running = false;
    else
        end_moving_call(first, slot);
}

/// Ends a call that has moved the array. In the outermost emission no callable runs any more,
/// so that the outgrown arrays can go.
template <class SignalTraits, class Allocator, class R, class... Args>
[[gnu::noinline, gnu::cold]] void
signal_base<SignalTraits, Allocator, R(Args...)>::end_moving_call(const slot_type *first,
                                                                  const slot_type *slot) noexcept
{
    const size_type index = index_of(first, slot);
    if (depth == 1)
        release_outgrown();
    pending[index].running = false;
}

} // namespace slimsig
