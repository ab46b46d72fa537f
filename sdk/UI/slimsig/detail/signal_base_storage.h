#pragma once

#include "signal_base.h"

#include <algorithm>

// How a signal keeps its records.

namespace slimsig {

/// Destroys the outgrown arrays one by one: what a callable captured may connect when it is
/// destroyed, or take the signal along. Returns whether the signal is left.
template <class SignalTraits, class Allocator, class R, class... Args>
[[gnu::noinline, gnu::cold]] bool
signal_base<SignalTraits, Allocator, R(Args...)>::release_outgrown() noexcept
{
    if (!holder)
        return true;
    const std::shared_ptr<signal_holder> watched = holder;
    std::forward_list<slot_array> &arrays = outgrown_of(*watched);
    while (!arrays.empty()) {
        slot_array dropped;
        dropped.swap(arrays.front());
        arrays.pop_front();
    }
    return watched->signal;
}

template <class SignalTraits, class Allocator, class R, class... Args>
auto signal_base<SignalTraits, Allocator, R(Args...)>::append(slot_id id, function_type &&function)
    -> connection
{
    pending.emplace_back(id, std::move(function));
    ++m_size;
    return connection(holder, id);
}

/// Makes room and appends. The array that was outgrown goes when the signal is whole again, since
/// the end of its callables may lead back here. What runs meanwhile may connect, too: then the slot
/// takes a later id, as ids rise along the array. What ends meanwhile may take the signal along.
template <class SignalTraits, class Allocator, class R, class... Args>
[[gnu::noinline]] auto signal_base<SignalTraits, Allocator, R(Args...)>::connect_growing(
    slot_id id, function_type &&function) -> connection
{
    const std::shared_ptr<const signal_holder> watched = holder;
    slot_array dropped;
    if (mostly_dead())
        clean_up();
    while (watched->signal && pending.size() == pending.capacity()) {
        if (pending.empty())
            pending.reserve(1);
        else
            grow(dropped);
    }
    if (!watched->signal)
        return connection();
    return append(last_id == id + 1 ? id : prepare_connection(), std::move(function));
}

/// Returns whether tidying up, outside an emission, makes enough room to be worth it. Slots
/// that were connected empty look dead without having been disconnected; they are left to the
/// emission.
template <class SignalTraits, class Allocator, class R, class... Args>
bool signal_base<SignalTraits, Allocator, R(Args...)>::mostly_dead() const noexcept
{
    const std::size_t dead = count_dead();
    if (depth > 0 || dead <= pending.size() / 2)
        return false;
    const auto inactive = std::count_if(pending.begin(), pending.end(), is_disconnected);
    return dead == static_cast<std::size_t>(inactive);
}

/// Goes over to an array twice as long. Where nothing but this copying is under way, the outgrown
/// one may go. Otherwise it stays, and its records turn inactive, so that a walk over them finds
/// out before it calls the next one.
template <class SignalTraits, class Allocator, class R, class... Args>
void signal_base<SignalTraits, Allocator, R(Args...)>::grow(slot_array &dropped)
{
    slot_array other;
    other.reserve(2 * pending.size());
    const copy_scope scope(*this);
    if (!copy_records(other))
        return;
    if (depth == 1) {
        other.swap(pending);
        other.swap(dropped);
        return;
    }
    std::forward_list<slot_array> &arrays = outgrown_of(*holder);
    arrays.emplace_front();
    other.swap(pending);
    for (slot_type &slot : other)
        slot.active = false;
    other.swap(arrays.front());
}

/// Copies the records. Copying a callable runs code of its own, which may lead back to this signal.
/// Returns false where that code has connected: then it has found the array full and made room
/// itself.
template <class SignalTraits, class Allocator, class R, class... Args>
bool signal_base<SignalTraits, Allocator, R(Args...)>::copy_records(slot_array &copies)
{
    const slot_type *const first = pending.data();
    const slot_type *const end = first + pending.size();
    for (const slot_type *slot = first; slot != end; ++slot)
        copies.push_back(*slot);
    if (!stands_at(first))
        return false;
    for (std::size_t i = 0; i < copies.size(); ++i) {
        copies[i].active = pending[i].active;
        copies[i].running = pending[i].running;
    }
    return true;
}

/// Removes the dead records and keeps the order of the others, when nobody's code can run any more.
template <class SignalTraits, class Allocator, class R, class... Args>
[[gnu::noinline, gnu::cold]] void
signal_base<SignalTraits, Allocator, R(Args...)>::clean_up() noexcept
{
    if (!drop_dead())
        return;
    detail::remove_inactive(pending);
    detail::verify(m_size == pending.size(), "m_size == pending.size()");
}

/// Destroys the callables of the dead records. What they captured may connect, disconnect and emit
/// when it is destroyed, or take the signal along: so each one is taken out of its record first.
/// Returns whether the signal is left.
template <class SignalTraits, class Allocator, class R, class... Args>
[[gnu::noinline, gnu::cold]] bool
signal_base<SignalTraits, Allocator, R(Args...)>::drop_dead() noexcept
{
    const auto dead_end = pending.begin() + static_cast<std::ptrdiff_t>(m_offset);
    std::for_each(pending.begin(), dead_end, [](slot_type &slot) { slot.active = false; });
    m_offset = 0;
    const std::shared_ptr<const signal_holder> watched = holder;
    if (!watched)
        return true;
    while (drop_dead_callables(*watched)) { }
    return watched->signal;
}

/// Returns whether there were any and the signal has survived it, which calls for another look.
template <class SignalTraits, class Allocator, class R, class... Args>
bool signal_base<SignalTraits, Allocator, R(Args...)>::drop_dead_callables(
    const signal_holder &watched) noexcept
{
    bool dropped = false;
    for (std::size_t i = 0; watched.signal && i < pending.size(); ++i) {
        if (is_disconnected(pending[i]) && pending[i].function) {
            detail::drop_callable(pending[i]);
            dropped = true;
        }
    }
    return dropped && watched.signal;
}

template <class SignalTraits, class Allocator, class R, class... Args>
bool signal_base<SignalTraits, Allocator, R(Args...)>::is_connected(slot_id id) noexcept
{
    const slot_type *const slot = detail::find_slot(pending, id);
    return slot && slot->active;
}

/// Clears the record's flag and leaves the record to the next clean-up, so that disconnecting
/// many slots one by one does not move the others each time. Outside an emission the callable
/// goes at once, as the last thing done: what it captured may take the signal along.
template <class SignalTraits, class Allocator, class R, class... Args>
void signal_base<SignalTraits, Allocator, R(Args...)>::disconnect_slot(slot_id id)
{
    slot_type *const slot = detail::find_slot(pending, id);
    if (!slot || !slot->active)
        return;
    slot->active = false;
    --m_size;
    if (depth == 0)
        detail::drop_callable(*slot);
}

/// Lets go of connections and slots. Callables that connect at their end are why this is
/// repeated.
template <class SignalTraits, class Allocator, class R, class... Args>
void signal_base<SignalTraits, Allocator, R(Args...)>::abandon() noexcept
{
    holder->signal = nullptr;
    holder.reset();
    disconnect_all_slots();
}

} // namespace slimsig
