#pragma once

#include "basic_slot.h"
#include "connection.h"
#include "signal_traits.h"
#include "slot_array.h"
#include "verify.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <forward_list>
#include <functional>
#include <limits>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

// Qt defines emit as an empty macro. It stays as it was found.
#pragma push_macro("emit")
#undef emit

namespace slimsig {

/// A list of callables that are called in order of connection, each time the signal is emitted.
///
/// Slots may connect, disconnect and emit again while the signal is being emitted: a new slot is
/// called from the next emission on, a disconnected one is not called any more, and the array is
/// tidied when the outermost emission ends. An exception from a slot ends the emission and reaches
/// the emitter. A signal allocates nothing before the first connect(), and an emission nothing at
/// all. One thread only. A signal must not be destroyed by one of its own slots.
template <class SignalTraits, class Allocator, class R, class... Args>
class signal_base<SignalTraits, Allocator, R(Args...)> {
    static_assert(std::is_same_v<SignalTraits, signal_traits<R(Args...)>>,
                  "a connection knows its signal by the signature, which thus fixes the traits");
    static_assert(std::is_same_v<Allocator, std::allocator<std::function<R(Args...)>>>,
                  "a connection knows its signal by the signature, which thus fixes the allocator");
    static_assert(!(std::is_rvalue_reference_v<Args> || ...),
                  "an argument that the first slot may consume cannot be passed to the others");

public:
    using function_type = std::function<R(Args...)>;
    using slot_id = typename SignalTraits::slot_id;
    using slot_type = typename SignalTraits::slot_type;
    using size_type = typename SignalTraits::size_type;
    using connection = slimsig::connection<R(Args...)>;

    /// What a connection watches: it outlives the signal, and then points nowhere.
    struct signal_holder {
        signal_base *signal;
    };

    signal_base() = default;
    signal_base(const signal_base &) = delete;
    signal_base &operator=(const signal_base &) = delete;

    /// Makes all connections find nothing, then destroys the slots first to last.
    ~signal_base()
    {
        while (holder)
            abandon();
    }

    /// Appends a slot, which is called from the next emission on. An empty function counts as a
    /// slot but is never called, and must not be mixed with disconnecting: the next clean-up would
    /// end the process.
    connection connect(function_type function)
    {
        if (pending.capacity() == 0)
            pending.reserve(1);
        else if (pending.size() == pending.capacity())
            return connect_growing(std::move(function));
        return append(std::move(function));
    }

    /// Calls the slots in order of connection. Arguments passed by value are copied for each slot
    /// but the last, which gets them moved. Where Qt's emit macro is alive, use the call operator
    /// instead.
    void emit(Args... args) { emit_unless_idle(args...); }

    /// Does the same as emit().
    void operator()(Args... args) { emit_unless_idle(args...); }

    /// Disconnects every slot. Inside an emission, none of them is called any more.
    void disconnect_all_slots()
    {
        slot_array dropped;
        m_size = 0;
        if (depth == 0) {
            m_offset = 0;
            dropped.swap(pending);
        } else {
            for (slot_type &slot : pending)
                slot.active = false;
            m_offset = pending.size();
        }
    }

    /// Returns the number of connected slots.
    std::size_t num_slots() const noexcept { return m_size; }

    /// Returns whether num_slots() is 0.
    bool empty() const noexcept { return m_size == 0; }

protected:
    using slot_array = std::vector<slot_type>;

    /// Counts an emission in and out, and tidies up when the outermost one ends.
    class emit_scope {
    public:
        explicit emit_scope(signal_base &emitted) noexcept
            : signal(emitted)
        {
            ++signal.depth;
        }

        emit_scope(const emit_scope &) = delete;
        emit_scope &operator=(const emit_scope &) = delete;

        [[gnu::always_inline]] ~emit_scope()
        {
            if (--signal.depth != 0)
                return;
            if (signal.m_size == signal.pending.size())
                signal.m_offset = 0;
            else
                signal.clean_up();
        }

    private:
        signal_base &signal;
    };

    /// True exactly for the records that a clean-up removes.
    static bool is_disconnected(const slot_type &slot) noexcept { return !slot.active; }

    /// Returns the index of the last of \a end records.
    static size_type index_of_last(size_type end) noexcept
    {
        detail::verify(end > 0, "end > 0");
        return end - 1;
    }

    /// Hands out the id of the record about to be added. The first call makes the holder.
    slot_id prepare_connection()
    {
        if (!holder)
            holder = std::make_shared<storage_holder>(this);
        detail::verify(
            last_id < std::numeric_limits<slot_id>::max() - 1,
            "last_id < std::numeric_limits<slot_id>::max() - 1 && \"All available slot ids "
            "for this signal have been exhausted. This may be a sign you are misusing "
            "signals\"");
        return last_id++;
    }

    slot_array pending; ///< All records in order of connection, dead ones until the clean-up.
    std::shared_ptr<signal_holder> holder; ///< Made at the first connection.
    slot_id last_id = 0; ///< The next id to hand out.
    size_type m_size = 0; ///< The number of connected slots.
    size_type m_offset = 0; ///< Where an emission begins: all records before are dead.
    Allocator allocator; ///< Kept for form.
    std::uint32_t depth = 0; ///< How many emissions are running.

private:
    friend connection;

    /// The holder as it is allocated, with the arrays that were outgrown during the running
    /// emission. A callable runs inside its record, so that its array has to stay until it returns.
    struct storage_holder final : signal_holder {
        explicit storage_holder(signal_base *owner) noexcept
            : signal_holder { owner }
        {
        }

        std::forward_list<slot_array> outgrown;
    };

    /// How emit() hands an argument on: what fits a register by value, anything else by reference.
    template <class Arg> using handed = std::conditional_t<std::is_scalar_v<Arg>, Arg, Arg &>;

    /// Keeps every record in place while callables are copied, as an emission does.
    class copy_scope {
    public:
        explicit copy_scope(signal_base &copied) noexcept
            : signal(copied)
        {
            ++signal.depth;
        }

        copy_scope(const copy_scope &) = delete;
        copy_scope &operator=(const copy_scope &) = delete;

        ~copy_scope() { --signal.depth; }

    private:
        signal_base &signal;
    };

    /// Marks a record as running, also when an exception leaves it. The record is told by its place
    /// in the array, which may move meanwhile.
    class running_scope {
    public:
        running_scope(signal_base &emitted, slot_type *array, slot_type *called) noexcept
            : signal(emitted)
            , first(array)
            , slot(called)
        {
            slot->running = true;
        }

        running_scope(const running_scope &) = delete;
        running_scope &operator=(const running_scope &) = delete;

        [[gnu::always_inline]] ~running_scope()
        {
            if (signal.stands_at(first))
                slot->running = false;
            else
                signal.leave_moved(first, slot);
        }

    private:
        signal_base &signal;
        slot_type *const first;
        slot_type *const slot;
    };

    /// Leaves before anything else where there is nothing to call, as with most signals.
    [[gnu::always_inline]] void emit_unless_idle(Args &...args)
    {
        if (!pending.empty())
            call_slots(args...);
        else if ((m_size | m_offset) != 0)
            check_empty();
    }

    /// An emission without records, which can only fail.
    [[gnu::noinline, gnu::cold]] void check_empty()
    {
        const emit_scope scope(*this);
        detail::verify(m_offset <= pending.size(), "m_offset <= end");
    }

    bool stands_at(const slot_type *first) const noexcept
    {
        return __builtin_expect(pending.data() == first, true);
    }

    /// Walks by pointer, which is what most emissions are, and goes on by index once a slot has
    /// made the array move. The last slot is taken apart, as it may have the arguments for good.
    [[gnu::noinline]] void call_slots(handed<Args>... args)
    {
        const emit_scope scope(*this);
        if (__builtin_expect(m_offset != 0, false))
            return call_behind_offset(args...);
        slot_type *const first = pending.data();
        slot_type *const last = &pending.back();
        slot_type *slot = first;
        for (; slot != last; ++slot) {
            if (!slot->active)
                continue;
            call_slot(first, slot, args...);
            if (!stands_at(first))
                return call_moved(first, slot, last, args...);
        }
        if (__builtin_expect(slot->active, true))
            call_slot(first, slot, std::forward<Args>(args)...);
    }

    template <class... Passed>
    [[gnu::always_inline]] void call_slot(slot_type *first, slot_type *slot, Passed &&...passed)
    {
        const running_scope running(*this, first, slot);
        slot->function(std::forward<Passed>(passed)...);
    }

    [[gnu::noinline, gnu::cold]] void call_behind_offset(handed<Args>... args)
    {
        call_by_index(m_offset, pending.size(), args...);
    }

    [[gnu::noinline, gnu::cold]] void call_moved(const slot_type *first, const slot_type *slot,
                                                 const slot_type *last, handed<Args>... args)
    {
        call_by_index(index_of(first, slot) + 1, index_of(first, last) + 1, args...);
    }

    void call_by_index(size_type next, size_type end, handed<Args>... args)
    {
        detail::verify(next <= end, "m_offset <= end");
        if (next == end)
            return;
        for (const size_type last = index_of_last(end); next != last; ++next) {
            if (pending[next].active)
                call_slot(pending.data(), &pending[next], args...);
        }
        if (pending[next].active)
            call_slot(pending.data(), &pending[next], std::forward<Args>(args)...);
    }

    static size_type index_of(const slot_type *first, const slot_type *slot) noexcept
    {
        return static_cast<size_type>(slot - first);
    }

    /// Ends a call that has moved the array. In the outermost emission no callable runs any more,
    /// so that the outgrown arrays can go.
    [[gnu::noinline, gnu::cold]] void leave_moved(const slot_type *first,
                                                  const slot_type *slot) noexcept
    {
        if (depth == 1)
            release_outgrown();
        pending[index_of(first, slot)].running = false;
    }

    std::forward_list<slot_array> &outgrown() noexcept
    {
        return static_cast<storage_holder &>(*holder).outgrown;
    }

    /// Destroys the outgrown arrays one by one: what a callable captured may connect when it is
    /// destroyed.
    void release_outgrown() noexcept
    {
        while (!outgrown().empty()) {
            slot_array dropped;
            dropped.swap(outgrown().front());
            outgrown().pop_front();
        }
    }

    connection append(function_type &&function)
    {
        const slot_id id = prepare_connection();
        pending.emplace_back(id, std::move(function));
        ++m_size;
        return connection(holder, id);
    }

    /// Makes room and appends. The array that was outgrown goes when the signal is whole again,
    /// since the end of its callables may lead back here.
    [[gnu::noinline]] connection connect_growing(function_type &&function)
    {
        if (mostly_dead())
            clean_up();
        slot_array dropped;
        while (pending.size() == pending.capacity()) {
            if (pending.empty()) {
                pending.reserve(1);
            } else {
                dropped = grow();
                if (depth == 0)
                    release_outgrown();
            }
        }
        return append(std::move(function));
    }

    /// Returns whether tidying up, outside an emission, makes enough room to be worth it. Slots
    /// that were connected empty look dead without having been disconnected; they are left to the
    /// emission.
    bool mostly_dead() const noexcept
    {
        const std::size_t dead = pending.size() - m_size;
        if (depth > 0 || dead <= pending.size() / 2)
            return false;
        const auto inactive = std::count_if(pending.begin(), pending.end(), is_disconnected);
        return dead == static_cast<std::size_t>(inactive);
    }

    slot_array grow()
    {
        slot_array larger = copy_records();
        if (depth > 0) {
            outgrown().emplace_front();
            outgrown().front().swap(pending);
        }
        larger.swap(pending);
        return larger;
    }

    /// Copies the records into an array twice as long. Copying a callable runs code of its own,
    /// which may lead back to this signal; it counts as an emission meanwhile, so that every record
    /// stays in place.
    slot_array copy_records()
    {
        slot_array copies;
        copies.reserve(2 * pending.size());
        const copy_scope scope(*this);
        const slot_type *const first = pending.data();
        copies.insert(copies.end(), first, first + pending.size());
        while (copies.size() < pending.size())
            copies.push_back(pending[copies.size()]);
        for (std::size_t i = 0; i < copies.size(); ++i)
            copies[i].active = pending[i].active;
        return copies;
    }

    /// Removes the dead records and keeps the order of the others. What a dead callable captured
    /// may connect, disconnect and emit when it is destroyed, or take the signal along: so each one
    /// is taken out of its record first, and the records leave when nobody's code can run any more.
    [[gnu::noinline, gnu::cold]] void clean_up() noexcept
    {
        const auto dead_end = pending.begin() + static_cast<std::ptrdiff_t>(m_offset);
        std::for_each(pending.begin(), dead_end, [](slot_type &slot) { slot.active = false; });
        m_offset = 0;
        if (const std::shared_ptr<const signal_holder> watched = holder) {
            while (drop_dead_callables(*watched)) { }
            if (!watched->signal)
                return;
        }
        detail::remove_inactive(pending);
        detail::verify(m_size == pending.size(), "m_size == pending.size()");
    }

    /// Returns whether there were any and the signal has survived it, which calls for another look.
    bool drop_dead_callables(const signal_holder &watched) noexcept
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

    bool is_connected(slot_id id) noexcept
    {
        const slot_type *const slot = detail::find_slot(pending, id);
        return slot && slot->active;
    }

    /// Clears the record's flag and leaves the record to the next clean-up, so that disconnecting
    /// many slots one by one does not move the others each time. Outside an emission the callable
    /// goes at once, as the last thing done: what it captured may take the signal along.
    void disconnect_slot(slot_id id)
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
    void abandon() noexcept
    {
        holder->signal = nullptr;
        holder.reset();
        disconnect_all_slots();
    }
};

} // namespace slimsig

#pragma pop_macro("emit")
