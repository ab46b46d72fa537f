#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace slimsig::detail {

/// Returns the record with \a id, or null if it has left. Ids rise along the array, so that a
/// record stands at most as many places behind the first one as its id is above that one's.
template <class Slot, class SlotId> Slot *find_slot(std::vector<Slot> &records, SlotId id) noexcept
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
template <class Slot> void remove_inactive(std::vector<Slot> &records) noexcept
{
    const auto inactive = [](const Slot &slot) { return !slot.active; };
    auto kept = std::find_if(records.begin(), records.end(), inactive);
    for (auto slot = kept; slot != records.end(); ++slot) {
        if (slot->active)
            slot->swap(*kept++);
    }
    records.erase(kept, records.end());
}

} // namespace slimsig::detail
