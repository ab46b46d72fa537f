#include "SignalProbe.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <numeric>
#include <string>
#include <vector>

// What slots do to the signal that is calling them.

namespace {

using VoidProbe = SignalProbe<void()>;
using Connection = slimsig::connection<void()>;

/// Makes the array move by connecting, which a full one does at once.
template <class Probe> void moveArray(Probe &signal)
{
    const auto *const before = signal.pending.data();
    while (signal.pending.data() == before)
        signal.connect([](auto...) {});
}

TEST(SignalReentrancy, ASlotConnectedDuringAnEmissionIsCalledFromTheNextOn)
{
    VoidProbe signal;
    std::string calls;
    bool connected = false;
    signal.connect([&] {
        calls += 'a';
        if (!connected)
            signal.connect([&calls] { calls += 'n'; });
        connected = true;
    });
    signal.connect([&calls] { calls += 'b'; });
    signal.emit();
    EXPECT_EQ(calls, "ab");
    signal.emit();
    EXPECT_EQ(calls, "ababn");
}

TEST(SignalReentrancy, AGrowingArrayDoesNotDisturbTheWalk)
{
    VoidProbe signal;
    std::string calls;
    const auto connectMany = [&] {
        for (int i = 0; i < 20; ++i)
            signal.connect([] {});
    };
    signal.connect([&calls] { calls += 'a'; });
    signal.connect([&] { calls += 'b', connectMany(); });
    signal.connect([&] { calls += 'c', connectMany(); });
    signal.connect([&calls] { calls += 'd'; });
    signal.emit();
    EXPECT_EQ(calls, "abcd");
    EXPECT_TRUE(signal.isTidy());
    EXPECT_EQ(signal.num_slots(), 44u);
}

TEST(SignalReentrancy, ASlotKeepsItsCapturedStateWhenItMakesTheArrayGrow)
{
    Signal<void(int)> signal;
    const std::string text = "long enough to live on the heap, not in the string itself";
    std::vector<std::string> seen;
    signal.connect([&signal, &seen, text](int) {
        for (int i = 0; i < 9; ++i)
            signal.connect([](int) {});
        seen.push_back(text);
    });
    signal.emit(1);
    EXPECT_EQ(seen, std::vector<std::string> { text });
}

TEST(SignalReentrancy, ASmallCallableKeepsItsCapturedStateWhenItMakesTheArrayGrow)
{
    VoidProbe signal;
    int calls = 0;
    int *const counter = &calls;
    VoidProbe *const probe = &signal;
    signal.connect([probe, counter] {
        probe->connect([] {});
        ++*counter;
    });
    signal.emit();
    EXPECT_EQ(calls, 1);
}

TEST(SignalReentrancy, RunningIsClearedThroughTheIndexWhenTheArrayHasMoved)
{
    VoidProbe signal;
    signal.connect([] {});
    signal.connect([&signal] {
        moveArray(signal);
        EXPECT_TRUE(signal.pending[1].running) << "the flag is copied with the record";
    });
    signal.emit();
    EXPECT_TRUE(signal.isTidy());
}

TEST(SignalReentrancy, TheLastSlotMayMakeTheArrayGrowToo)
{
    VoidProbe signal;
    const std::string text = "long enough to live on the heap, not in the string itself";
    std::string seen;
    signal.connect([&, text] {
        signal.connect([] {});
        seen = text;
    });
    signal.emit();
    EXPECT_EQ(seen, text);
    EXPECT_TRUE(signal.isTidy());
}

std::vector<int> indexesFrom(int first, int end)
{
    std::vector<int> indexes(static_cast<std::size_t>(std::max(end - first, 0)));
    std::iota(indexes.begin(), indexes.end(), first);
    return indexes;
}

/// Emits to \a count slots, of which \a mover makes the array move and disconnects \a dropped.
void emitWhileMoving(int count, int mover, int dropped)
{
    SCOPED_TRACE(testing::Message()
                 << count << " slots, moved by " << mover << ", without " << dropped);
    SignalProbe<void(std::string)> signal;
    std::vector<slimsig::connection<void(std::string)>> connections;
    std::vector<int> calls;
    for (int i = 0; i < count; ++i) {
        connections.push_back(signal.connect([&, i](const std::string &text) {
            EXPECT_EQ(text, "text");
            for (int other = 0; other < count; ++other)
                EXPECT_EQ(signal.pending[static_cast<std::size_t>(other)].running, other == i);
            calls.push_back(i);
            if (i != mover)
                return;
            moveArray(signal);
            connections[static_cast<std::size_t>(dropped)].disconnect();
        }));
    }
    signal.emit("text");
    std::vector<int> expected = indexesFrom(0, count);
    if (dropped > mover)
        expected.erase(expected.begin() + dropped);
    EXPECT_EQ(calls, expected);
    EXPECT_TRUE(signal.isTidy());
}

TEST(SignalReentrancy, WhicheverSlotMovesTheArrayEachOtherIsCalledOnce)
{
    for (int count = 1; count <= 6; ++count) {
        for (int mover = 0; mover < count; ++mover) {
            for (int dropped = 0; dropped < count; ++dropped)
                emitWhileMoving(count, mover, dropped);
        }
    }
}

TEST(SignalReentrancy, WhenANestedEmissionMovesTheArrayTheOuterOneGoesOnBehindItsSlot)
{
    constexpr int count = 5;
    for (int outer = 0; outer < count; ++outer) {
        for (int mover = 0; mover < count; ++mover) {
            SCOPED_TRACE(testing::Message() << outer << " emits, " << mover << " moves");
            VoidProbe signal;
            std::vector<int> calls;
            for (int i = 0; i < count; ++i) {
                signal.connect([&, i] {
                    calls.push_back(i);
                    if (signal.depth == 1 && i == outer)
                        signal.emit();
                    else if (signal.depth == 2 && i == mover)
                        moveArray(signal);
                });
            }
            signal.emit();
            std::vector<int> expected = indexesFrom(0, outer + 1);
            for (const std::vector<int> &more :
                 { indexesFrom(0, count), indexesFrom(outer + 1, count) })
                expected.insert(expected.end(), more.begin(), more.end());
            EXPECT_EQ(calls, expected);
            EXPECT_TRUE(signal.isTidy());
        }
    }
}

TEST(SignalReentrancy, AnArgumentMayMoveTheArrayAndDisconnectWhileItIsCopied)
{
    SignalProbe<void(AtCopy)> signal;
    std::vector<slimsig::connection<void(AtCopy)>> connections;
    std::vector<int> calls;
    for (int i = 0; i < 3; ++i) {
        connections.push_back(signal.connect([&calls, i](const AtCopy &) { calls.push_back(i); }));
    }
    std::function<void()> action = [&] {
        EXPECT_TRUE(signal.pending[0].running) << "set before the argument is copied";
        EXPECT_TRUE(calls.empty());
        moveArray(signal);
        connections[1].disconnect();
    };
    signal.emit(AtCopy(action));
    EXPECT_EQ(calls, (std::vector<int> { 0, 2 }));
    EXPECT_TRUE(signal.isTidy());
}

TEST(SignalReentrancy, EveryKindOfArgumentReachesTheSlotsBehindAMove)
{
    SignalProbe<void(int &, const std::string &, long *, std::string)> signal;
    int calls = 0;
    const std::string text = "by reference";
    long target = 0;
    signal.connect([&signal](auto &&...) { moveArray(signal); });
    for (int i = 0; i < 2; ++i) {
        signal.connect(
            [&](int &number, const std::string &seen, long *pointer, const std::string &value) {
                EXPECT_EQ(&seen, &text);
                EXPECT_EQ(value, "by value");
                ++*pointer;
                calls = ++number;
            });
    }
    signal.emit(calls, text, &target, "by value");
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(target, 2);
}

TEST(SignalReentrancy, OutgrownArraysStayWhileAnyOuterCallRuns)
{
    VoidProbe signal;
    const auto alive = std::make_shared<int>(1);
    std::string calls;
    signal.connect([&signal, &calls, text = std::string(40, 'x')] {
        if (signal.depth < 4)
            signal.emit();
        for (int i = 0; i < 5; ++i)
            signal.connect([] {});
        calls += text.substr(0, 1);
    });
    signal.connect([alive] { EXPECT_EQ(*alive, 1); });
    signal.emit();
    EXPECT_EQ(calls, "xxxx");
    EXPECT_EQ(alive.use_count(), 2) << "the copies in outgrown arrays are gone";
}

TEST(SignalReentrancy, ANestedEmissionStartsOverAndRunsTheRunningSlot)
{
    VoidProbe signal;
    std::string calls;
    signal.connect([&calls] { calls += 'a'; });
    signal.connect([&] {
        calls += 'b';
        if (signal.depth == 1)
            signal.emit();
    });
    signal.connect([&calls] { calls += 'c'; });
    signal.emit();
    EXPECT_EQ(calls, "ababcc");
}

TEST(SignalReentrancy, ANestedEmissionReachesWhatWasConnectedBeforeIt)
{
    VoidProbe signal;
    std::string calls;
    signal.connect([&] {
        if (signal.depth > 1)
            return;
        signal.connect([&calls] { calls += 'n'; });
        signal.emit();
        calls += '|';
    });
    signal.emit();
    EXPECT_EQ(calls, "n|");
}

TEST(SignalReentrancy, TheEndOfANestedEmissionClearsRunningOfTheReenteredRecord)
{
    VoidProbe signal;
    std::vector<bool> running;
    signal.connect([&] {
        if (signal.depth > 1)
            return;
        running.push_back(signal.pending[0].running);
        signal.emit();
        running.push_back(signal.pending[0].running);
    });
    signal.emit();
    EXPECT_EQ(running, (std::vector<bool> { true, false })) << "the flag is not a count";
}

TEST(SignalReentrancy, ANestedEmissionDoesNotCleanUp)
{
    VoidProbe signal;
    Connection second;
    std::size_t inside = 0;
    signal.connect([&] {
        if (signal.depth > 1)
            return;
        second.disconnect();
        signal.emit();
        inside = signal.pending.size();
    });
    second = signal.connect([] {});
    signal.emit();
    EXPECT_EQ(inside, 2u);
    EXPECT_EQ(signal.pending.size(), 1u);
    EXPECT_TRUE(signal.isTidy());
}

TEST(SignalReentrancy, ASlotThatDisconnectsItselfStaysUntilTheEmissionEnds)
{
    VoidProbe signal;
    Connection self;
    std::string calls;
    self = signal.connect([&] {
        calls += 'a';
        self.disconnect();
        EXPECT_EQ(signal.pending.size(), 2u);
        EXPECT_FALSE(signal.pending[0].active);
        EXPECT_EQ(signal.num_slots(), 1u);
    });
    signal.connect([&calls] { calls += 'b'; });
    signal.emit();
    EXPECT_EQ(signal.pending.size(), 1u);
    EXPECT_TRUE(signal.isTidy());
    signal.emit();
    EXPECT_EQ(calls, "abb");
}

TEST(SignalReentrancy, ASlotDisconnectedByAnEarlierOneIsNotCalled)
{
    VoidProbe signal;
    Connection middle;
    Connection last;
    std::string calls;
    signal.connect([&] {
        calls += 'a';
        middle.disconnect();
        last.disconnect();
        EXPECT_EQ(signal.pending.size(), 4u);
    });
    middle = signal.connect([&calls] { calls += 'b'; });
    signal.connect([&calls] { calls += 'c'; });
    last = signal.connect([&calls] { calls += 'd'; });
    signal.emit();
    EXPECT_EQ(calls, "ac");
    EXPECT_TRUE(signal.isTidy());
    EXPECT_EQ(signal.num_slots(), 2u);
}

TEST(SignalReentrancy, AnEarlierSlotThatIsDisconnectedHasRunAlready)
{
    VoidProbe signal;
    Connection first;
    std::string calls;
    first = signal.connect([&calls] { calls += 'a'; });
    signal.connect([&] {
        calls += 'b';
        first.disconnect();
        EXPECT_EQ(signal.pending.size(), 2u);
    });
    signal.emit();
    EXPECT_EQ(calls, "ab");
    ASSERT_TRUE(signal.isTidy());
    EXPECT_EQ(signal.pending[0].id, 1u);
}

TEST(SignalReentrancy, ADisconnectInANestedEmissionHoldsForTheOuterOne)
{
    VoidProbe signal;
    Connection last;
    std::string calls;
    signal.connect([&] {
        if (signal.depth == 1)
            signal.emit();
        else
            last.disconnect();
    });
    signal.connect([&calls] { calls += 'b'; });
    last = signal.connect([&calls] { calls += 'c'; });
    signal.emit();
    EXPECT_EQ(calls, "bb");
    EXPECT_TRUE(signal.isTidy());
}

TEST(SignalReentrancy, TheCleanUpKeepsTheOrderOfTheOthers)
{
    VoidProbe signal;
    std::vector<Connection> connections;
    std::string calls;
    for (char name = 'a'; name <= 'h'; ++name)
        connections.push_back(signal.connect([&calls, name] { calls += name; }));
    signal.connect([&] {
        for (const std::size_t i : { 0u, 1u, 4u, 7u })
            connections[i].disconnect();
    });
    signal.emit();
    calls.clear();
    signal.emit();
    EXPECT_EQ(calls, "cdfg");
    EXPECT_TRUE(signal.isTidy());
}

TEST(SignalReentrancy, DisconnectingAllInsideAnEmissionEndsItQuietly)
{
    VoidProbe signal;
    std::string calls;
    signal.connect([&] {
        calls += 'a';
        signal.disconnect_all_slots();
        EXPECT_EQ(signal.m_offset, 2u);
        EXPECT_EQ(signal.m_size, 0u);
        EXPECT_EQ(signal.pending.size(), 2u);
        EXPECT_TRUE(signal.empty());
    });
    const Connection second = signal.connect([&calls] { calls += 'b'; });
    signal.emit();
    EXPECT_EQ(calls, "a");
    EXPECT_FALSE(second.connected());
    EXPECT_TRUE(signal.pending.empty());
    EXPECT_TRUE(signal.isTidy());
}

TEST(SignalReentrancy, AfterDisconnectingAllANestedEmissionFindsOnlyNewSlots)
{
    VoidProbe signal;
    std::string calls;
    signal.connect([&] {
        calls += 'a';
        signal.disconnect_all_slots();
        signal.emit();
        calls += '|';
        signal.connect([&calls] { calls += 'n'; });
        signal.emit();
        EXPECT_EQ(signal.num_slots(), 1u);
    });
    signal.connect([&calls] { calls += 'b'; });
    signal.emit();
    EXPECT_EQ(calls, "a|n");
    EXPECT_TRUE(signal.isTidy());
    EXPECT_EQ(signal.num_slots(), 1u);
    EXPECT_EQ(signal.pending[0].id, 2u);
}

TEST(SignalReentrancy, DisconnectingBelowTheOffsetDoesNothing)
{
    VoidProbe signal;
    Connection second;
    signal.connect([&] {
        signal.disconnect_all_slots();
        signal.connect([] {});
        second.disconnect();
        EXPECT_EQ(signal.num_slots(), 1u);
    });
    second = signal.connect([] {});
    signal.emit();
    EXPECT_TRUE(signal.isTidy());
    EXPECT_EQ(signal.num_slots(), 1u);
}

TEST(SignalReentrancy, ADeadPrefixAndOtherDeadRecordsLeaveTogether)
{
    VoidProbe signal;
    Connection fresh;
    signal.connect([&] {
        signal.disconnect_all_slots();
        fresh = signal.connect([] {});
        signal.connect([] {});
        fresh.disconnect();
        EXPECT_EQ(signal.pending.size(), 4u);
        EXPECT_EQ(signal.m_offset, 2u);
    });
    signal.connect([] {});
    signal.emit();
    ASSERT_TRUE(signal.isTidy());
    ASSERT_EQ(signal.pending.size(), 1u);
    EXPECT_EQ(signal.pending[0].id, 3u);
}

TEST(SignalReentrancy, ADepthRaisedInASlotOutlivesTheEmission)
{
    for (const int count : { 1, 2 }) {
        VoidProbe signal;
        std::unique_ptr<VoidProbe::emit_scope> scope;
        for (int i = 0; i < count; ++i) {
            signal.connect([&] {
                if (!scope)
                    scope = std::make_unique<VoidProbe::emit_scope>(signal);
            });
        }
        Connection last = signal.connect([] {});
        last.disconnect();
        signal.emit();
        EXPECT_EQ(signal.depth, 1u);
        scope.reset();
        EXPECT_EQ(signal.depth, 0u);
        EXPECT_TRUE(signal.isTidy());
    }
}

TEST(SignalReentrancy, AnEmitScopeReleasesWhatItsSignalHasOutgrown)
{
    VoidProbe signal;
    const auto captured = std::make_shared<int>();
    {
        const VoidProbe::emit_scope scope(signal);
        for (int i = 0; i < 5; ++i)
            signal.connect([captured, room = std::array<long, 4>()] { (void)room; });
        EXPECT_GT(captured.use_count(), 6);
        signal.emit();
        EXPECT_GT(captured.use_count(), 6) << "a scope is open";
    }
    EXPECT_EQ(captured.use_count(), 6);
    EXPECT_TRUE(signal.isTidy());
}

TEST(SignalReentrancy, AHolderThatIsGoneIsMadeAnew)
{
    VoidProbe signal;
    int calls = 0;
    signal.connect([] {});
    signal.holder.reset();
    Connection second = signal.connect([&] {
        ++calls;
        signal.holder.reset();
        signal.connect([] {});
    });
    EXPECT_TRUE(second.connected());
    signal.emit();
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(signal.num_slots(), 3u);
    EXPECT_FALSE(second.connected()) << "it watches the holder that is gone";
}

TEST(SignalReentrancy, TwoSignalsMayEmitEachOther)
{
    VoidProbe left;
    VoidProbe right;
    int calls = 0;
    left.connect([&] {
        if (++calls < 6)
            right.emit();
    });
    right.connect([&] {
        if (++calls < 6)
            left.emit();
    });
    left.emit();
    EXPECT_EQ(calls, 6);
    EXPECT_TRUE(left.isTidy());
    EXPECT_TRUE(right.isTidy());
}

} // namespace
