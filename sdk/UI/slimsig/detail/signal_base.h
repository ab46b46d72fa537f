#pragma once

#include "basic_slot.h"
#include "connection.h"
#include "signal_traits.h"
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
    static_assert(
        std::is_same_v<
            SignalTraits,
            signal_traits<R(
                Args...)>> && std::is_same_v<Allocator, std::allocator<std::function<R(Args...)>>>,
        "a connection knows its signal by the signature alone, which thus fixes the traits "
        "and the allocator");

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
        const slot_array outgrown = make_room();
        const slot_id id = prepare_connection();
        pending.emplace_back(id, std::move(function));
        ++m_size;
        return connection(holder, id);
    }

    /// Calls the slots in order of connection. Arguments passed by value are copied for each slot
    /// but the last, which gets them moved. Where Qt's emit macro is alive, use the call operator
    /// instead.
    void emit(Args... args) { call_slots(args...); }

    /// Does the same as emit().
    void operator()(Args... args) { call_slots(args...); }

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

        ~emit_scope()
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

    /// Where an emission stands: pointers while the array stays in place, indices when it has
    /// moved.
    struct cursor {
        slot_type *first;
        slot_type *current;
        slot_type *last;
    };

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

    /// Marks the current record as running, also when an exception leaves it.
    class running_scope {
    public:
        running_scope(signal_base &emitted, cursor &position) noexcept
            : signal(emitted)
            , at(position)
        {
            at.current->running = true;
        }

        running_scope(const running_scope &) = delete;
        running_scope &operator=(const running_scope &) = delete;

        ~running_scope()
        {
            if (signal.pending.data() != at.first)
                signal.follow_array(at);
            at.current->running = false;
        }

    private:
        signal_base &signal;
        cursor &at;
    };

    void call_slots(Args &...args)
    {
        if (pending.empty() && (m_size | m_offset) == 0)
            return;
        const emit_scope scope(*this);
        const size_type end = pending.size();
        detail::verify(m_offset <= end, "m_offset <= end");
        if (end == m_offset)
            return;
        slot_type *const first = pending.data();
        cursor at { first, first + m_offset, first + last_index(end) };
        for (; at.current != at.last; ++at.current) {
            if (at.current->active)
                call_slot(at, args...);
        }
        if (at.current->active)
            call_slot(at, std::forward<Args>(args)...);
    }

    template <class... Passed> void call_slot(cursor &at, Passed &&...passed)
    {
        slot_type &slot = *at.current;
        const running_scope running(*this, at);
        slot.function(std::forward<Passed>(passed)...);
    }

    static size_type last_index(size_type end) noexcept
    {
        detail::verify(end > 0, "end > 0");
        return end - 1;
    }

    /// Brings \a at to where the array is now. In the outermost emission no callable runs any more,
    /// so that the outgrown arrays can go.
    void follow_array(cursor &at) noexcept
    {
        const std::ptrdiff_t current = at.current - at.first;
        const std::ptrdiff_t last = at.last - at.first;
        if (depth == 1)
            release_outgrown();
        at.first = pending.data();
        at.current = at.first + current;
        at.last = at.first + last;
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

    /// Makes sure that one more record fits, and returns the array that was outgrown, if any. The
    /// caller drops it when the signal is whole again, since the end of its callables may lead back
    /// here.
    slot_array make_room()
    {
        if (pending.size() == pending.capacity() && mostly_dead())
            clean_up();
        slot_array dropped;
        while (pending.size() == pending.capacity()) {
            dropped = grow();
            if (depth == 0 && holder)
                release_outgrown();
        }
        return dropped;
    }

    /// Returns whether tidying up, outside an emission, makes enough room to be worth it. Slots
    /// that were connected empty look dead without having been disconnected; they are left to the
    /// emission.
    bool mostly_dead() const noexcept
    {
        const std::size_t dead = pending.size() - m_size;
        return depth == 0 && dead > pending.size() / 2
            && dead
            == static_cast<std::size_t>(
                   std::count_if(pending.begin(), pending.end(), is_disconnected));
    }

    slot_array grow()
    {
        slot_array larger = copy_records();
        if (depth > 0 && !pending.empty()) {
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
        copies.reserve(std::max<std::size_t>(1, 2 * pending.size()));
        if (pending.empty())
            return copies;
        const copy_scope scope(*this);
        do {
            for (std::size_t i = copies.size(); i < pending.size(); ++i)
                copies.push_back(pending[i]);
            copies.reserve(pending.size() + 1);
        } while (copies.size() < pending.size());
        for (std::size_t i = 0; i < copies.size(); ++i)
            copies[i].active = pending[i].active;
        return copies;
    }

    /// Removes the dead records and keeps the order of the others. What a dead callable captured
    /// may connect, disconnect and emit when it is destroyed, or take the signal along: so each one
    /// is taken out of its record first, and the records leave when nobody's code can run any more.
    void clean_up() noexcept
    {
        std::for_each_n(pending.begin(), std::min<size_type>(m_offset, pending.size()),
                        [](slot_type &slot) { slot.active = false; });
        m_offset = 0;
        const std::shared_ptr<const signal_holder> watched = holder;
        for (std::size_t i = 0; i < pending.size(); ++i) {
            if (!is_disconnected(pending[i]))
                continue;
            drop_callable(pending[i]);
            if (!watched->signal)
                return;
        }
        remove_dead();
        detail::verify(m_size == pending.size(), "m_size == pending.size()");
    }

    static void drop_callable(slot_type &slot) noexcept
    {
        function_type dropped;
        dropped.swap(slot.function);
    }

    /// Swaps the living forward, which neither copies nor destroys a callable, and cuts off the
    /// rest.
    void remove_dead() noexcept
    {
        auto kept = std::find_if(pending.begin(), pending.end(), is_disconnected);
        for (auto slot = kept; slot != pending.end(); ++slot) {
            if (slot->active)
                slot->swap(*kept++);
        }
        pending.erase(kept, pending.end());
    }

    /// Returns the record with \a id, or null if it has left. Ids rise along the array, so that a
    /// record never stands further back than as many places as its id is above the first.
    slot_type *find_slot(slot_id id) noexcept
    {
        if (pending.empty() || id < pending.front().id)
            return nullptr;
        const auto furthest = std::min<slot_id>(id - pending.front().id, pending.size() - 1);
        const auto past = pending.begin() + static_cast<std::ptrdiff_t>(furthest) + 1;
        if (const auto guess = past - 1; guess->id == id)
            return &*guess;
        const auto found =
            std::lower_bound(pending.begin(), past, id, [](const slot_type &slot, slot_id wanted) {
                return slot.id < wanted;
            });
        return found != past && found->id == id ? &*found : nullptr;
    }

    bool is_connected(slot_id id) noexcept
    {
        const slot_type *const slot = find_slot(id);
        return slot && slot->active;
    }

    /// Clears the record's flag and leaves the record to the next clean-up, so that disconnecting
    /// many slots one by one does not move the others each time. Outside an emission the callable
    /// goes at once, and with the last connected slot all records.
    void disconnect_slot(slot_id id)
    {
        slot_type *const slot = find_slot(id);
        if (!slot || !slot->active)
            return;
        slot->active = false;
        --m_size;
        if (depth > 0)
            return;
        function_type dropped;
        dropped.swap(slot->function);
        if (m_size == 0)
            clean_up();
        // The callable goes last: what it captured may connect again, or take the signal along.
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
