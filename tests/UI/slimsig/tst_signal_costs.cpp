#include "SignalProbe.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <functional>
#include <memory>
#include <new>
#include <string>
#include <utility>
#include <vector>

// How often the signal allocates, copies and moves.

namespace {

std::size_t allocations = 0;
std::size_t failing = 0; // which allocation fails; 0 for none

} // namespace

void *operator new(std::size_t size)
{
    if (++allocations == failing)
        throw std::bad_alloc();
    if (void *const memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace {

using VoidProbe = SignalProbe<void()>;

/// Counts its copies and moves.
struct Counted {
    static inline int copies = 0;
    static inline int moves = 0;

    static void reset() { copies = moves = 0; }

    Counted() = default;

    Counted(const Counted &) { ++copies; }

    Counted(Counted &&) noexcept { ++moves; }

    Counted &operator=(const Counted &) = delete;
};

/// A callable too large for the function object's own storage.
struct LargeSlot {
    std::array<void *, 8> payload {};

    void operator()() const { }
};

TEST(SignalCosts, ConstructionAllocatesNothing)
{
    const std::size_t before = allocations;
    {
        VoidProbe signal;
        Signal<void(std::string)> other;
    }
    EXPECT_EQ(allocations, before);
}

TEST(SignalCosts, EmittingWithoutSlotsAllocatesNothing)
{
    VoidProbe signal;
    const std::size_t before = allocations;
    signal.emit();
    signal();
    EXPECT_EQ(allocations, before);
}

TEST(SignalCosts, EmittingToSlotsAllocatesNothing)
{
    Signal<void(int, const std::string &)> signal;
    int calls = 0;
    for (int i = 0; i < 20; ++i) {
        signal.connect([&calls, payload = std::array<void *, 4>()](int, const std::string &) {
            ++calls;
            (void)payload;
        });
    }
    const std::string text(100, 'x');
    const std::size_t before = allocations;
    signal.emit(1, text);
    EXPECT_EQ(allocations, before);
    EXPECT_EQ(calls, 20);
}

TEST(SignalCosts, NestedEmissionsAndTheCleanUpAllocateNothing)
{
    VoidProbe signal;
    std::array<slimsig::connection<void()>, 4> connections;
    for (auto &connection : connections)
        connection = signal.connect(LargeSlot());
    signal.connect([&] {
        if (signal.depth < 3)
            signal.emit();
        connections[0].disconnect();
        connections[2].disconnect();
    });
    signal.connect(LargeSlot());
    const std::size_t before = allocations;
    signal.emit();
    EXPECT_EQ(allocations, before);
    EXPECT_EQ(signal.num_slots(), 4u);
}

TEST(SignalCosts, FirstConnectAllocatesTheHolderAndTheArray)
{
    VoidProbe signal;
    const std::size_t before = allocations;
    signal.connect([] {});
    EXPECT_EQ(allocations - before, 2u);
}

TEST(SignalCosts, TheArrayGrowsToTwiceItsLength)
{
    VoidProbe signal;
    std::vector<std::size_t> lengths;
    for (int i = 0; i < 17; ++i) {
        if (lengths.empty() || signal.pending.capacity() != lengths.back())
            lengths.push_back(signal.pending.capacity());
        signal.connect([] {});
    }
    lengths.push_back(signal.pending.capacity());
    EXPECT_EQ(lengths, (std::vector<std::size_t> { 0, 1, 2, 4, 8, 16, 32 }));
}

TEST(SignalCosts, GrowthCopiesTheRecordsAndMovesNone)
{
    VoidProbe signal;
    signal.connect([payload = Counted()] { (void)payload; });
    std::vector<int> copies;
    Counted::reset();
    for (int i = 1; i < 9; ++i) {
        signal.connect([] {});
        copies.push_back(Counted::copies);
    }
    EXPECT_EQ(copies, (std::vector<int> { 1, 2, 2, 3, 3, 3, 3, 4 }));
    EXPECT_EQ(Counted::moves, 0);
}

TEST(SignalCosts, GrowthDuringAnEmissionCopiesTheRecordsJustAsOften)
{
    VoidProbe signal;
    signal.connect([payload = Counted()] { (void)payload; });
    signal.connect([&signal] {
        for (int i = 0; i < 7; ++i)
            signal.connect([] {});
    });
    Counted::reset();
    signal.emit();
    EXPECT_EQ(Counted::copies, 3) << "from 2 to 4, 8 and 16";
    EXPECT_EQ(Counted::moves, 0);
}

TEST(SignalCosts, ConnectMovesTheFunctionObject)
{
    VoidProbe signal;
    std::function<void()> slot = [payload = Counted()] { (void)payload; };
    Counted::reset();
    signal.connect(std::move(slot));
    EXPECT_EQ(Counted::copies, 0);
}

TEST(SignalCosts, EmittingCopiesNoRecord)
{
    VoidProbe signal;
    for (int i = 0; i < 5; ++i)
        signal.connect([payload = Counted()] { (void)payload; });
    Counted::reset();
    signal.emit();
    EXPECT_EQ(Counted::copies + Counted::moves, 0);
}

TEST(SignalCosts, AnArgumentByValueIsCopiedForEachSlotButTheLast)
{
    for (int count = 0; count < 5; ++count) {
        Signal<void(Counted)> signal;
        for (int i = 0; i < count; ++i)
            signal.connect([](const Counted &) {});
        Counted::reset();
        signal.emit(Counted());
        EXPECT_EQ(Counted::copies, count > 0 ? count - 1 : 0) << count << " slots";
        Counted::reset();
        signal(Counted());
        EXPECT_EQ(Counted::copies, count > 0 ? count - 1 : 0) << count << " slots";
    }
}

TEST(SignalCosts, TheLastSlotGetsTheEmissionsOwnArgument)
{
    Signal<void(std::string)> signal;
    const char *first = nullptr;
    const char *last = nullptr;
    signal.connect([&first](const std::string &text) { first = text.data(); });
    signal.connect([&last](const std::string &text) { last = text.data(); });
    std::string text(100, 'x');
    const char *const own = text.data();
    signal.emit(std::move(text));
    EXPECT_NE(first, own);
    EXPECT_EQ(last, own);
}

TEST(SignalCosts, ALastSlotThatIsDeadLeavesTheArgumentAlone)
{
    SignalProbe<void(Counted)> signal;
    slimsig::connection<void(Counted)> last;
    signal.connect([&last](const Counted &) { last.disconnect(); });
    last = signal.connect([](const Counted &) {});
    Counted::reset();
    signal.emit(Counted());
    EXPECT_EQ(Counted::copies, 1);
}

TEST(SignalCosts, AnArgumentByReferenceIsNeverCopied)
{
    Signal<void(const Counted &, Counted &)> signal;
    for (int i = 0; i < 4; ++i)
        signal.connect([](const Counted &, Counted &) {});
    Counted left;
    Counted right;
    Counted::reset();
    signal.emit(left, right);
    EXPECT_EQ(Counted::copies + Counted::moves, 0);
}

TEST(SignalCosts, ArgumentsAreCopiedJustAsOftenOnceTheArrayHasMoved)
{
    SignalProbe<void(Counted)> signal;
    bool grown = false;
    signal.connect([&](const Counted &) {
        for (int i = 0; !grown && i < 9; ++i)
            signal.connect([](const Counted &) {});
        grown = true;
    });
    signal.connect([](const Counted &) {});
    signal.connect([](const Counted &) {});
    Counted::reset();
    signal.emit(Counted());
    EXPECT_EQ(Counted::copies, 2);
}

TEST(SignalCosts, ArgumentsAreCopiedJustAsOftenBehindADeadPrefix)
{
    SignalProbe<void(Counted)> signal;
    int copies = 0;
    bool replaced = false;
    signal.connect([&](const Counted &) {
        if (std::exchange(replaced, true))
            return;
        signal.disconnect_all_slots();
        for (int i = 0; i < 3; ++i)
            signal.connect([](const Counted &) {});
        Counted::reset();
        signal.emit(Counted());
        copies = Counted::copies;
    });
    signal.connect([](const Counted &) {});
    signal.emit(Counted());
    EXPECT_EQ(copies, 2);
}

TEST(SignalCosts, TheHolderIsOneAllocationWithItsCounts)
{
    VoidProbe signal;
    const std::size_t before = allocations;
    signal.prepare_connection();
    EXPECT_EQ(allocations - before, 1u);
    signal.prepare_connection();
    EXPECT_EQ(allocations - before, 1u);
}

/// Connects a slot that holds \a captured, while the allocation number \a which fails. Returns
/// whether it was reached.
bool connectWithout(std::size_t which, VoidProbe &signal, const std::shared_ptr<int> &captured)
{
    const std::size_t before = signal.num_slots();
    std::function<void()> slot = [captured, room = std::array<void *, 8>()] { (void)room; };
    failing = allocations + which;
    bool failed = false;
    try {
        signal.connect(std::move(slot));
    } catch (const std::bad_alloc &) {
        failed = true;
    }
    failing = 0;
    EXPECT_EQ(signal.num_slots(), failed ? before : before + 1);
    return failed;
}

TEST(SignalCosts, AFailedAllocationLeavesTheSignalAsItWas)
{
    const auto captured = std::make_shared<int>();
    std::size_t failures = 0;
    for (std::size_t which = 1; which <= 8; ++which) {
        VoidProbe signal;
        for (int i = 0; i < 5; ++i)
            failures += connectWithout(which, signal, captured);
        EXPECT_TRUE(signal.isTidy());
        signal.emit();
        EXPECT_EQ(captured.use_count(), static_cast<long>(signal.num_slots()) + 1);
    }
    EXPECT_GT(failures, 8u);
    EXPECT_EQ(captured.use_count(), 1);
}

TEST(SignalCosts, AFailedAllocationInASlotLeavesTheEmissionToGoOn)
{
    const auto captured = std::make_shared<int>();
    std::size_t failures = 0;
    for (std::size_t which = 1; which <= 8; ++which) {
        VoidProbe signal;
        int calls = 0;
        signal.connect([&] {
            if (calls == 0) {
                for (int i = 0; i < 5; ++i)
                    failures += connectWithout(which, signal, captured);
            }
        });
        signal.connect([&calls] { ++calls; });
        signal.emit();
        EXPECT_EQ(calls, 1);
        EXPECT_TRUE(signal.isTidy());
        EXPECT_EQ(captured.use_count(), static_cast<long>(signal.num_slots()) - 1);
    }
    EXPECT_GT(failures, 8u);
    EXPECT_EQ(captured.use_count(), 1);
}

} // namespace
