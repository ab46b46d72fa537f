#include "SignalProbe.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using VoidSignal = Signal<void()>;
using VoidProbe = SignalProbe<void()>;
using Slot = slimsig::basic_slot<void(), unsigned long>;

// The types' contract.

static_assert(std::is_default_constructible_v<VoidSignal>);
static_assert(!std::is_copy_constructible_v<VoidSignal>);
static_assert(!std::is_copy_assignable_v<VoidSignal>);
static_assert(!std::is_move_constructible_v<VoidSignal>);
static_assert(!std::is_move_assignable_v<VoidSignal>);
static_assert(std::is_nothrow_destructible_v<VoidSignal>);
static_assert(!std::is_polymorphic_v<VoidSignal>);
static_assert(noexcept(std::declval<const VoidSignal &>().num_slots()));
static_assert(noexcept(std::declval<const VoidSignal &>().empty()));
static_assert(std::is_same_v<VoidSignal::slot_id, unsigned long>);
static_assert(std::is_same_v<VoidSignal::connection, slimsig::connection<void()>>);
static_assert(
    std::is_same_v<decltype(std::declval<const VoidSignal &>().num_slots()), std::size_t>);
static_assert(std::is_void_v<decltype(std::declval<VoidSignal &>().emit())>);
static_assert(std::is_void_v<decltype(std::declval<VoidSignal &>()())>);

static_assert(std::is_same_v<decltype(VoidProbe::m_size), std::uint64_t>);
static_assert(std::is_same_v<decltype(VoidProbe::m_offset), std::uint64_t>);
static_assert(std::is_same_v<decltype(VoidProbe::depth), std::uint32_t>);
static_assert(std::is_same_v<decltype(VoidProbe::last_id), unsigned long>);
static_assert(std::is_same_v<decltype(VoidProbe::pending)::value_type, Slot>);
static_assert(
    std::is_same_v<decltype(VoidProbe::holder), std::shared_ptr<VoidSignal::signal_holder>>);
static_assert(std::is_same_v<decltype(VoidSignal::signal_holder::signal), VoidSignal *>);
static_assert(sizeof(VoidSignal::signal_holder) == sizeof(void *));
static_assert(sizeof(VoidProbe::emit_scope) == sizeof(void *));
static_assert(!std::is_copy_constructible_v<VoidProbe::emit_scope>);

static_assert(std::is_same_v<decltype(Slot::function), std::function<void()>>);
static_assert(std::is_same_v<decltype(Slot::id), unsigned long>);
static_assert(std::is_same_v<decltype(Slot::active), bool>);
static_assert(std::is_same_v<decltype(Slot::running), bool>);
static_assert(std::is_copy_constructible_v<Slot>);
static_assert(!std::is_nothrow_move_constructible_v<Slot>, "records are copied, not moved");

template <class Field> std::ptrdiff_t offsetIn(const VoidProbe &signal, const Field &field)
{
    return reinterpret_cast<const char *>(&field) - reinterpret_cast<const char *>(&signal);
}

TEST(SignalBase, KeepsItsFieldsInOrder)
{
    const VoidProbe signal;
    const std::vector<std::ptrdiff_t> offsets = {
        offsetIn(signal, signal.pending),  offsetIn(signal, signal.holder),
        offsetIn(signal, signal.last_id),  offsetIn(signal, signal.m_size),
        offsetIn(signal, signal.m_offset), offsetIn(signal, signal.depth)
    };
    EXPECT_EQ(offsets.front(), 0);
    EXPECT_TRUE(std::is_sorted(offsets.begin(), offsets.end()));
    EXPECT_EQ(sizeof(VoidSignal), 72u);
}

TEST(SignalBase, KeepsTheFieldsOfARecordInOrder)
{
    const Slot slot(7, [] {});
    const char *const start = reinterpret_cast<const char *>(&slot);
    EXPECT_EQ(reinterpret_cast<const char *>(&slot.function), start);
    EXPECT_LT(reinterpret_cast<const char *>(&slot.function),
              reinterpret_cast<const char *>(&slot.id));
    EXPECT_LT(reinterpret_cast<const char *>(&slot.id),
              reinterpret_cast<const char *>(&slot.active));
    EXPECT_LT(&slot.active, &slot.running);
}

TEST(SignalBase, StartsEmpty)
{
    const VoidProbe signal;
    EXPECT_TRUE(signal.pending.empty());
    EXPECT_EQ(signal.pending.capacity(), 0u);
    EXPECT_EQ(signal.holder, nullptr);
    EXPECT_EQ(signal.last_id, 0u);
    EXPECT_EQ(signal.m_size, 0u);
    EXPECT_EQ(signal.m_offset, 0u);
    EXPECT_EQ(signal.depth, 0u);
    EXPECT_TRUE(signal.empty());
    EXPECT_EQ(signal.num_slots(), 0u);
}

TEST(SignalBase, EmittingWithoutSlotsDoesNothing)
{
    VoidProbe signal;
    signal.emit();
    signal();
    EXPECT_EQ(signal.depth, 0u);
    EXPECT_EQ(signal.m_offset, 0u);
    EXPECT_EQ(signal.holder, nullptr);
    EXPECT_TRUE(signal.isTidy());
}

TEST(SignalBase, ConnectingStoresARecord)
{
    VoidProbe signal;
    signal.connect([] {});
    ASSERT_EQ(signal.pending.size(), 1u);
    EXPECT_TRUE(signal.pending[0].function);
    EXPECT_EQ(signal.pending[0].id, 0u);
    EXPECT_TRUE(signal.pending[0].active);
    EXPECT_FALSE(signal.pending[0].running);
    EXPECT_EQ(signal.last_id, 1u);
    EXPECT_EQ(signal.num_slots(), 1u);
    EXPECT_FALSE(signal.empty());
}

TEST(SignalBase, FirstConnectMakesTheHolderAndKeepsIt)
{
    VoidProbe signal;
    signal.connect([] {});
    const VoidSignal::signal_holder *const made = signal.holder.get();
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->signal, &signal);
    EXPECT_EQ(signal.holder.use_count(), 1);
    signal.connect([] {});
    EXPECT_EQ(signal.holder.get(), made);
}

TEST(SignalBase, PrepareConnectionHandsOutRisingIds)
{
    VoidProbe signal;
    EXPECT_EQ(signal.prepare_connection(), 0u);
    EXPECT_EQ(signal.prepare_connection(), 1u);
    EXPECT_NE(signal.holder, nullptr);
    EXPECT_TRUE(signal.pending.empty());
}

TEST(SignalBase, HandsOutTheMaximumLessTwoAsLastId)
{
    VoidProbe signal;
    signal.last_id = std::numeric_limits<unsigned long>::max() - 2;
    signal.connect([] {});
    EXPECT_EQ(signal.pending[0].id, std::numeric_limits<unsigned long>::max() - 2);
}

TEST(SignalBase, CallsSlotsInOrderOfConnection)
{
    VoidProbe signal;
    std::string calls;
    for (const char name : { 'a', 'b', 'c' })
        signal.connect([&calls, name] { calls += name; });
    signal.emit();
    EXPECT_EQ(calls, "abc");
    signal();
    EXPECT_EQ(calls, "abcabc");
    EXPECT_TRUE(signal.isTidy());
}

TEST(SignalBase, CallsAFunctionAsOftenAsItIsConnected)
{
    VoidProbe signal;
    int calls = 0;
    const std::function<void()> slot = [&calls] { ++calls; };
    signal.connect(slot);
    signal.connect(slot);
    signal.emit();
    EXPECT_EQ(calls, 2);
}

TEST(SignalBase, IgnoresWhatSlotsReturn)
{
    Signal<int(int)> signal;
    int sum = 0;
    signal.connect([&sum](int value) { return sum += value; });
    signal.connect([&sum](int value) { return sum += value; });
    signal.emit(3);
    EXPECT_EQ(sum, 6);
}

TEST(SignalBase, PassesEveryKindOfArgument)
{
    Signal<void(int, std::string, const std::string &, int &, int *)> signal;
    const std::string shared = "by reference";
    int counter = 0;
    for (int i = 0; i < 2; ++i) {
        signal.connect(
            [&](int number, std::string text, const std::string &same, int &count, int *end) {
                EXPECT_EQ(number, 5);
                EXPECT_EQ(text, "by value");
                EXPECT_EQ(&same, &shared);
                EXPECT_EQ(end, nullptr);
                ++count;
            });
    }
    signal.emit(5, "by value", shared, counter, nullptr);
    EXPECT_EQ(counter, 2);
}

TEST(SignalBase, ASlotCannotSpoilTheArgumentsOfTheNext)
{
    Signal<void(std::string, int)> signal;
    std::string seen;
    for (int i = 0; i < 3; ++i) {
        signal.connect([&seen](std::string text, int number) {
            seen += text + std::to_string(number);
            text.clear();
            number = 9;
        });
    }
    signal.emit("x", 1);
    EXPECT_EQ(seen, "x1x1x1");
}

TEST(SignalBase, RunningIsSetInsideTheSlotOnly)
{
    VoidProbe signal;
    std::vector<bool> running;
    const auto note = [&] {
        for (const auto &slot : signal.pending)
            running.push_back(slot.running);
    };
    signal.connect(note);
    signal.connect(note);
    signal.emit();
    EXPECT_EQ(running, (std::vector<bool> { true, false, false, true }));
    EXPECT_TRUE(signal.isTidy());
}

TEST(SignalBase, DepthCountsTheRunningEmissions)
{
    VoidProbe signal;
    std::vector<unsigned> depths;
    signal.connect([&] {
        depths.push_back(signal.depth);
        if (signal.depth < 3)
            signal.emit();
        depths.push_back(signal.depth);
    });
    signal.emit();
    EXPECT_EQ(depths, (std::vector<unsigned> { 1, 2, 3, 3, 2, 1 }));
    EXPECT_EQ(signal.depth, 0u);
}

TEST(SignalBase, AnEmptyFunctionIsStoredCountedAndNeverCalled)
{
    VoidProbe signal;
    const auto connection = signal.connect(nullptr);
    ASSERT_EQ(signal.pending.size(), 1u);
    EXPECT_FALSE(signal.pending[0].active);
    EXPECT_EQ(signal.num_slots(), 1u);
    EXPECT_FALSE(signal.empty());
    EXPECT_EQ(signal.last_id, 1u);
    EXPECT_FALSE(connection.connected());
    signal.emit();
    EXPECT_EQ(signal.pending.size(), 1u) << "nothing was disconnected, so nothing is tidied";
    EXPECT_EQ(signal.num_slots(), 1u);
}

TEST(SignalBase, DisconnectingAnEmptyFunctionDoesNothing)
{
    VoidProbe signal;
    auto connection = signal.connect(nullptr);
    connection.disconnect();
    EXPECT_EQ(signal.num_slots(), 1u);
    signal.emit();
    EXPECT_EQ(signal.pending.size(), 1u);
}

TEST(SignalBase, IsDisconnectedTellsTheInactive)
{
    Slot slot(0, [] {});
    EXPECT_FALSE(VoidProbe::is_disconnected(slot));
    slot.running = true;
    EXPECT_FALSE(VoidProbe::is_disconnected(slot));
    slot.active = false;
    EXPECT_TRUE(VoidProbe::is_disconnected(slot));
}

TEST(SignalBase, AnEmissionBeginsAtTheOffsetAndTheCleanUpResetsIt)
{
    VoidProbe signal;
    std::string calls;
    for (const char name : { 'a', 'b', 'c' })
        signal.connect([&calls, name] { calls += name; });
    signal.m_offset = 1;
    signal.emit();
    EXPECT_EQ(calls, "bc");
    EXPECT_EQ(signal.m_offset, 0u);
    EXPECT_EQ(signal.pending.size(), 3u) << "the sizes agree, so nothing was disconnected";
}

TEST(SignalBase, TheCleanUpErasesTheDeadPrefixWhateverItsFlags)
{
    VoidProbe signal;
    std::string calls;
    for (const char name : { 'a', 'b', 'c', 'd' })
        signal.connect([&calls, name] { calls += name; });
    signal.m_offset = 2;
    signal.m_size = 2;
    signal.emit();
    EXPECT_EQ(calls, "cd");
    ASSERT_EQ(signal.pending.size(), 2u);
    EXPECT_EQ(signal.pending[0].id, 2u);
    EXPECT_EQ(signal.pending[1].id, 3u);
    EXPECT_TRUE(signal.isTidy());
}

TEST(SignalBase, AnActiveRecordWithoutFunctionThrowsBadFunctionCall)
{
    VoidProbe signal;
    bool called = false;
    signal.connect([] {});
    signal.connect([&called] { called = true; });
    signal.pending[0].function = nullptr;
    EXPECT_THROW(signal.emit(), std::bad_function_call);
    EXPECT_FALSE(called);
    EXPECT_FALSE(signal.pending[0].running);
    EXPECT_EQ(signal.depth, 0u);
    signal.pending[0].function = [] {};
    signal.pending[1].function = nullptr;
    EXPECT_THROW(signal.emit(), std::bad_function_call) << "as the last one";
    EXPECT_FALSE(signal.pending[1].running);
    EXPECT_EQ(signal.depth, 0u);
    signal.pending.pop_back();
    signal.m_size = 1;
    signal.pending[0].function = nullptr;
    EXPECT_THROW(signal.emit(), std::bad_function_call) << "as the only one";
    EXPECT_FALSE(signal.pending[0].running);
    EXPECT_EQ(signal.depth, 0u);
}

TEST(SignalBase, RecordsTakenFromTheArrayByHandEnd)
{
    VoidProbe signal;
    const auto captured = std::make_shared<int>();
    for (int i = 0; i < 4; ++i)
        signal.connect([captured] {});
    signal.pending.pop_back();
    EXPECT_EQ(captured.use_count(), 4);
    signal.pending.clear();
    EXPECT_EQ(captured.use_count(), 1);
    signal.m_size = 0;
    signal.emit();
}

} // namespace
