#pragma once

#include "basic_slot.h"
#include "connection.h"
#include "signal_traits.h"
#include "slot_array.h"
#include "verify.h"

#include <cstddef>
#include <cstdint>
#include <forward_list>
#include <functional>
#include <limits>
#include <memory>
#include <type_traits>
#include <utility>

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
/// all. One thread only. A signal must not be destroyed inside its own emission, nor by a callable
/// that it is copying.
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
        depth = 0;
        while (holder)
            abandon();
    }

    /// Appends a slot, which is called from the next emission on. Making room copies the slots
    /// there are; what that throws leaves them as they were. An empty function counts as a slot but
    /// is never called, and must not be mixed with disconnecting: the next emission would end the
    /// process.
    connection connect(function_type function)
    {
        const slot_id id = prepare_connection();
        if (pending.capacity() == 0)
            pending.reserve(1);
        else if (pending.size() == pending.capacity())
            return connect_growing(id, std::move(function));
        return append(id, std::move(function));
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
    using slot_array = detail::slot_array<slot_type>;

    /// Counts an emission in and out, and tidies up when the outermost one ends. The walk over the
    /// slots has a lighter one, walk_scope.
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
            if (--signal.depth == 0 && signal.release_outgrown())
                signal.tidy_up();
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

    slot_array pending; ///< All records in order of connection, dead ones until a clean-up.
    std::shared_ptr<signal_holder> holder; ///< Made at the first connection.
    slot_id last_id = 0; ///< The next id to hand out.
    size_type m_size = 0; ///< The number of connected slots.
    size_type m_offset = 0; ///< Where an emission begins: all records before are dead.
    Allocator allocator; ///< Kept for form.
    std::uint32_t depth = 0; ///< How many emissions are running.

private:
    friend connection;

    /// The holder as it is allocated, with the arrays that were outgrown while slots were called or
    /// copied. A callable runs inside its record, so that its array has to stay until it returns.
    struct storage_holder final : signal_holder {
        explicit storage_holder(signal_base *owner) noexcept
            : signal_holder { owner }
        {
        }

        std::forward_list<slot_array> outgrown;
    };

    /// Counts a walk in and out. What its slots have outgrown goes where the outermost walk finds
    /// the array moved, or with the scope around it. It writes the depth that it is told, so that
    /// an emission known to be the outermost need not wait for what the one before has written.
    class walk_scope {
    public:
        walk_scope(signal_base &emitted, std::uint32_t entered) noexcept
            : signal(emitted)
        {
            signal.depth = entered;
        }

        walk_scope(const walk_scope &) = delete;
        walk_scope &operator=(const walk_scope &) = delete;

        [[gnu::always_inline]] ~walk_scope()
        {
            if (--signal.depth == 0)
                signal.tidy_up();
        }

    private:
        signal_base &signal;
    };

    /// How emit() hands an argument on: what fits a register by value, anything else by reference.
    template <class Arg> using handed = std::conditional_t<std::is_scalar_v<Arg>, Arg, Arg &>;

    /// Keeps every record in place while callables are copied, as an emission does. What has been
    /// outgrown or disconnected meanwhile ends behind them; its records wait for the next clean-up,
    /// as with any disconnect outside an emission.
    class copy_scope {
    public:
        explicit copy_scope(signal_base &copied) noexcept
            : signal(copied)
            , dead(copied.count_dead())
        {
            ++signal.depth;
        }

        copy_scope(const copy_scope &) = delete;
        copy_scope &operator=(const copy_scope &) = delete;

        ~copy_scope()
        {
            if (--signal.depth == 0 && signal.release_outgrown() && signal.count_dead() != dead)
                signal.drop_dead();
        }

    private:
        signal_base &signal;
        const size_type dead;
    };

    /// Marks a record as running until its callable has returned or thrown.
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
            if (!returned)
                signal.end_thrown_call(first, slot);
        }

        /// Ends a call that has not thrown. Whether the array has moved is left to the walk.
        void end() noexcept
        {
            slot->running = false;
            returned = true;
        }

    private:
        signal_base &signal;
        slot_type *const first;
        slot_type *const slot;
        bool returned = false;
    };

    void emit_unless_idle(Args &...args);
    void check_empty();
    void call_slots(handed<Args>... args);
    void call_only_slot(handed<Args>... args);
    template <class... Passed>
    void call_slot(slot_type *first, slot_type *slot, Passed &&...passed);
    void call_behind_offset(handed<Args>... args);
    bool has_moved(const slot_type *first) const noexcept;
    void call_moved(const slot_type *first, const slot_type *slot, const slot_type *last,
                    handed<Args>... args);
    void call_by_index(size_type next, size_type end, handed<Args>... args);
    template <class... Passed> void call_at(size_type index, Passed &&...passed);
    void end_thrown_call(slot_type *first, slot_type *slot) noexcept;
    void end_moving_call(const slot_type *first, const slot_type *slot) noexcept;

    connection append(slot_id id, function_type &&function);
    connection connect_growing(slot_id id, function_type &&function);
    bool mostly_dead() const noexcept;
    void grow(slot_array &dropped);
    bool copy_records(slot_array &copies);
    bool release_outgrown() noexcept;
    void clean_up() noexcept;
    bool drop_dead() noexcept;
    bool drop_dead_callables(const signal_holder &watched) noexcept;
    bool is_connected(slot_id id) noexcept;
    void disconnect_slot(slot_id id);
    void abandon() noexcept;

    void tidy_up() noexcept
    {
        if (m_size * sizeof(slot_type) == pending.size_in_bytes())
            m_offset = 0;
        else
            clean_up();
    }

    /// Returns how many records are not counted as connected.
    size_type count_dead() const noexcept { return pending.size() - m_size; }

    bool stands_at(const slot_type *first) const noexcept
    {
        return __builtin_expect(pending.data() == first, true);
    }

    static size_type index_of(const slot_type *first, const slot_type *slot) noexcept
    {
        return static_cast<size_type>(slot - first);
    }

    static std::forward_list<slot_array> &outgrown_of(signal_holder &kept) noexcept
    {
        return static_cast<storage_holder &>(kept).outgrown;
    }
};

} // namespace slimsig

#pragma pop_macro("emit")

#include "signal_base_emission.h"
#include "signal_base_storage.h"
