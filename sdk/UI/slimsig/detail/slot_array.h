#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace slimsig::detail {

/// Allocates as std::allocator does, and leaves it to slot_array to destroy what it holds.
template <class Slot> struct slot_allocator {
    using value_type = Slot;

    slot_allocator() = default;

    template <class Other> slot_allocator(const slot_allocator<Other> &) noexcept { }

    Slot *allocate(std::size_t count) { return std::allocator<Slot>().allocate(count); }

    void deallocate(Slot *room, std::size_t count) noexcept
    {
        std::allocator<Slot>().deallocate(room, count);
    }

    template <class Other> void destroy(Other *) noexcept { }

    friend bool operator==(const slot_allocator &, const slot_allocator &) noexcept { return true; }

    friend bool operator!=(const slot_allocator &, const slot_allocator &) noexcept
    {
        return false;
    }
};

/// Holds the records of a signal, and destroys them first to last and four at a time, which takes
/// a tenth off the end of a signal with many slots.
///
/// Nothing else destroys a record, so that of the vector's own operations it has those alone that
/// need not. Room may be made only while it is empty, and records be appended only while there is
/// room: moving to other room would leave the old records undestroyed.
template <class Slot> class slot_array : private std::vector<Slot, slot_allocator<Slot>> {
    using records = std::vector<Slot, slot_allocator<Slot>>;

public:
    using typename records::const_iterator;
    using typename records::iterator;
    using typename records::size_type;
    using typename records::value_type;

    using records::at;
    using records::back;
    using records::begin;
    using records::capacity;
    using records::cbegin;
    using records::cend;
    using records::data;
    using records::emplace_back;
    using records::empty;
    using records::end;
    using records::front;
    using records::push_back;
    using records::reserve;
    using records::size;
    using records::operator[];

    slot_array() = default;
    slot_array(const slot_array &) = delete;
    slot_array &operator=(const slot_array &) = delete;

    ~slot_array() { destroy_from(0); }

    void swap(slot_array &other) noexcept { records::swap(other); }

    void clear() noexcept { truncate(0); }

    void pop_back() noexcept { truncate(size() - 1); }

    /// Removes the records behind the first \a count.
    void truncate(std::size_t count) noexcept
    {
        destroy_from(count);
        records::erase(begin() + static_cast<std::ptrdiff_t>(count), end());
    }

    /// Returns size() times the size of a record, for which compilers do not divide.
    std::size_t size_in_bytes() const noexcept
    {
        const auto first = reinterpret_cast<const std::byte *>(data());
        const auto last = reinterpret_cast<const std::byte *>(data() + size());
        return static_cast<std::size_t>(last - first);
    }

private:
    void destroy_from(std::size_t index) noexcept
    {
        Slot *slot = data() + index;
        Slot *const last = data() + size();
        for (; last - slot >= 4; slot += 4) {
            slot[0].~Slot();
            slot[1].~Slot();
            slot[2].~Slot();
            slot[3].~Slot();
        }
        for (; slot != last; ++slot)
            slot->~Slot();
    }
};

/// Returns the record with \a id, or null if it has left. Ids rise along the array, so that a
/// record stands at most as many places behind the first one as its id is above that one's.
template <class Slot, class SlotId> Slot *find_slot(slot_array<Slot> &records, SlotId id) noexcept
{
    if (records.empty() || id < records.front().id)
        return nullptr;
    Slot *const first = records.data();
    Slot *const last = &records.back();
    const std::size_t most = id - first->id;
    Slot *const furthest = most < records.size() ? first + most : last;
    if (furthest->id == id)
        return furthest;
    Slot *const found = std::lower_bound(
        first, furthest, id, [](const Slot &slot, SlotId wanted) { return slot.id < wanted; });
    return found->id == id ? found : nullptr;
}

/// Takes the callable out of \a slot and destroys it. Its destruction may run any code, and so is
/// the last thing done with the record.
template <class Slot> void drop_callable(Slot &slot) noexcept
{
    const auto dropped = std::move(slot.function);
}

/// Removes the inactive records and keeps the order of the others, by swapping, which neither
/// copies nor destroys a callable of those that stay.
template <class Slot> void remove_inactive(slot_array<Slot> &records) noexcept
{
    const auto inactive = [](const Slot &slot) { return !slot.active; };
    auto kept = std::find_if(records.begin(), records.end(), inactive);
    for (auto slot = kept; slot != records.end(); ++slot) {
        if (slot->active)
            slot->swap(*kept++);
    }
    records.truncate(static_cast<std::size_t>(kept - records.begin()));
}

} // namespace slimsig::detail
