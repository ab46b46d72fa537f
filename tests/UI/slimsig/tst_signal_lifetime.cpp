#include "UI/slimsig/detail/connection.h" // first, and so alone

#include "SignalProbe.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

// Captured objects that come back to the signal when they are copied or destroyed, and signals that
// go with what was captured.

namespace {

using VoidProbe = SignalProbe<void()>;
using Connection = slimsig::connection<void()>;

/// Runs an action when the last copy of the callable that captured it is destroyed.
class AtEnd {
public:
    explicit AtEnd(std::function<void()> action)
        : m_guard(nullptr, [action = std::move(action)](void *) { action(); })
    {
    }

private:
    std::shared_ptr<void> m_guard;
};

/// Returns a slot that does nothing and ends with \a action.
std::function<void()> slotEndingWith(std::function<void()> action)
{
    return [end = AtEnd(std::move(action))] { (void)end; };
}

/// Connects until the next connection has to make room.
void fillArray(VoidProbe &signal)
{
    while (signal.pending.size() < signal.pending.capacity())
        signal.connect([] {});
}

TEST(SignalLifetime, ACallableMayConnectAtItsEndInTheCleanUp)
{
    VoidProbe signal;
    std::string calls;
    Connection ending;
    signal.connect([&] { ending.disconnect(); });
    ending = signal.connect(slotEndingWith([&] {
        for (int i = 0; i < 9; ++i)
            signal.connect([&calls] { calls += 'n'; });
    }));
    signal.emit();
    EXPECT_EQ(calls, "") << "connected after the emission";
    EXPECT_EQ(signal.num_slots(), 10u);
    EXPECT_TRUE(signal.isTidy());
    signal.emit();
    EXPECT_EQ(calls, "nnnnnnnnn");
}

TEST(SignalLifetime, ACallableMayDisconnectOthersAtItsEndInTheCleanUp)
{
    VoidProbe signal;
    Connection ending;
    Connection other;
    signal.connect([&] { ending.disconnect(); });
    other = signal.connect([] {});
    ending = signal.connect(slotEndingWith([&] { other.disconnect(); }));
    const Connection behind = signal.connect([] {});
    signal.emit();
    EXPECT_FALSE(other.connected());
    EXPECT_TRUE(behind.connected());
    EXPECT_TRUE(signal.isTidy());
    EXPECT_EQ(signal.num_slots(), 2u);
}

TEST(SignalLifetime, ACallableMayFindOthersAtItsEndInTheCleanUp)
{
    VoidProbe signal;
    std::vector<Connection> connections;
    std::vector<bool> found;
    signal.connect([&] {
        for (const std::size_t i : { 0u, 2u, 4u })
            connections[i].disconnect();
    });
    for (int i = 0; i < 6; ++i) {
        connections.push_back(signal.connect(slotEndingWith([&] {
            for (const Connection &connection : connections)
                found.push_back(connection.connected());
        })));
    }
    signal.emit();
    ASSERT_EQ(found.size(), 18u);
    for (std::size_t i = 0; i < found.size(); ++i)
        EXPECT_EQ(found[i], i % 2 == 1);
    found.clear();
    signal.disconnect_all_slots();
    EXPECT_EQ(found, std::vector<bool>(18, false));
}

TEST(SignalLifetime, ACallableMayEmitAtItsEndInTheCleanUp)
{
    VoidProbe signal;
    int calls = 0;
    Connection first;
    Connection second;
    first = signal.connect(slotEndingWith([&] { signal.emit(); }));
    second = signal.connect(slotEndingWith([&] { signal.emit(); }));
    signal.connect([&] {
        ++calls;
        first.disconnect();
        second.disconnect();
    });
    signal.emit();
    EXPECT_EQ(calls, 3);
    EXPECT_TRUE(signal.isTidy());
    EXPECT_EQ(signal.num_slots(), 1u);
}

TEST(SignalLifetime, ACallableMayDisconnectAllAtItsEndInTheCleanUp)
{
    VoidProbe signal;
    Connection ending;
    ending = signal.connect(slotEndingWith([&] { signal.disconnect_all_slots(); }));
    signal.connect([&] { ending.disconnect(); });
    signal.connect([] {});
    signal.emit();
    EXPECT_TRUE(signal.isTidy());
    EXPECT_TRUE(signal.empty());
}

TEST(SignalLifetime, ACallableMayConnectAtItsEndInADisconnect)
{
    VoidProbe signal;
    Connection ending = signal.connect(slotEndingWith([&] { signal.connect([] {}); }));
    ending.disconnect();
    EXPECT_EQ(signal.num_slots(), 1u);
    EXPECT_TRUE(signal.isWhole());
}

TEST(SignalLifetime, ACallableMayDisconnectAtItsEndInADisconnect)
{
    VoidProbe signal;
    std::vector<Connection> chain(5);
    for (std::size_t i = 0; i < chain.size(); ++i) {
        chain[i] = signal.connect(slotEndingWith([&chain, i] {
            if (i + 1 < chain.size())
                chain[i + 1].disconnect();
        }));
    }
    chain[0].disconnect();
    EXPECT_TRUE(signal.empty());
    EXPECT_TRUE(signal.isWhole());
}

TEST(SignalLifetime, ACallableMayConnectAtItsEndWhenAllAreDisconnected)
{
    VoidProbe signal;
    for (int i = 0; i < 3; ++i)
        signal.connect(slotEndingWith([&] { signal.connect([] {}); }));
    signal.disconnect_all_slots();
    EXPECT_EQ(signal.num_slots(), 3u);
    EXPECT_TRUE(signal.isTidy());
}

TEST(SignalLifetime, ACallableMayComeBackToASignalThatIsBeingDestroyed)
{
    std::optional<VoidProbe> signal(std::in_place);
    Connection other = signal->connect([] {});
    Connection late;
    int ends = 0;
    signal->connect(slotEndingWith([&] {
        ++ends;
        other.disconnect();
        EXPECT_FALSE(other.connected());
        late = signal->connect(slotEndingWith([&] { ++ends; }));
        signal->emit();
        signal->disconnect_all_slots();
    }));
    signal.reset();
    EXPECT_EQ(ends, 2);
    EXPECT_FALSE(late.connected());
    late.disconnect();
}

TEST(SignalLifetime, ASlotConnectedWhileTheSignalIsDestroyedGoesWithIt)
{
    std::optional<VoidProbe> signal(std::in_place);
    const auto captured = std::make_shared<int>();
    Connection late;
    signal->connect(slotEndingWith([&] { late = signal->connect([captured] {}); }));
    signal.reset();
    EXPECT_FALSE(late.connected());
    late.disconnect();
    EXPECT_EQ(captured.use_count(), 1);
}

TEST(SignalLifetime, TheSlotsOfADestroyedSignalEndFirstToLast)
{
    const std::string names = "abcdefghijk";
    for (std::size_t count = 0; count <= names.size(); ++count) {
        std::string ends;
        {
            VoidProbe signal;
            for (const char name : names.substr(0, count))
                signal.connect(slotEndingWith([&ends, name] { ends += name; }));
        }
        EXPECT_EQ(ends, names.substr(0, count));
    }
}

TEST(SignalLifetime, DestructionLooksNeitherAtDepthNorAtRunning)
{
    std::string ends;
    std::optional<VoidProbe> signal(std::in_place);
    Connection first = signal->connect(slotEndingWith([&ends] { ends += 'a'; }));
    signal->connect(slotEndingWith([&ends] { ends += 'b'; }));
    signal->depth = 2;
    signal->pending[0].running = true;
    signal.reset();
    EXPECT_EQ(ends, "ab");
    EXPECT_FALSE(first.connected());
    first.disconnect();
}

TEST(SignalLifetime, WhateverTheDepthSlotsComeBackToTheDestroyedSignalInTheSameWay)
{
    for (const std::uint32_t depth : { 0u, 1u }) {
        std::optional<VoidProbe> signal(std::in_place);
        std::size_t seen = 9;
        Connection late;
        signal->connect(slotEndingWith([&] {
            seen = signal->pending.size();
            late = signal->connect([] {});
        }));
        signal->connect([] {});
        signal->depth = depth;
        signal.reset();
        EXPECT_EQ(seen, 0u);
        EXPECT_FALSE(late.connected());
    }
}

TEST(SignalLifetime, TheHolderIsReleasedBeforeTheSlotsEnd)
{
    std::optional<VoidProbe> signal(std::in_place);
    bool released = false;
    std::weak_ptr<VoidProbe::signal_holder> holder;
    signal->connect(slotEndingWith([&] { released = holder.expired(); }));
    holder = signal->holder;
    signal.reset();
    EXPECT_TRUE(released);
}

TEST(SignalLifetime, DisconnectedCallablesEndFirstToLastInTheCleanUp)
{
    VoidProbe signal;
    std::string ends;
    std::vector<Connection> connections;
    for (const char name : { 'a', 'b', 'c', 'd' })
        connections.push_back(signal.connect(slotEndingWith([&ends, name] { ends += name; })));
    signal.connect([&] {
        for (const std::size_t i : { 3u, 0u, 2u })
            connections[i].disconnect();
    });
    signal.emit();
    EXPECT_EQ(ends, "acd");
}

TEST(SignalLifetime, ADisconnectedCallableMayOwnTheSignal)
{
    std::shared_ptr<VoidProbe> owner(new VoidProbe); // freed at once, whoever watches it
    const std::weak_ptr<VoidProbe> watched = owner;
    Connection connection = owner->connect([owner] {});
    owner.reset();
    EXPECT_FALSE(watched.expired());
    connection.disconnect();
    EXPECT_TRUE(watched.expired());
}

TEST(SignalLifetime, ACleanUpMayTakeTheSignalAlong)
{
    std::shared_ptr<VoidProbe> owner(new VoidProbe); // freed at once, whoever watches it
    const std::weak_ptr<VoidProbe> watched = owner;
    std::vector<Connection> connections;
    VoidProbe &signal = *owner;
    connections.push_back(signal.connect([] {}));
    connections.push_back(signal.connect([owner] {}));
    connections.push_back(signal.connect([] {}));
    signal.connect([&connections] {
        for (Connection &connection : connections)
            connection.disconnect();
    });
    owner.reset();
    signal.emit();
    EXPECT_TRUE(watched.expired());
}

TEST(SignalLifetime, OutgrownCallablesMayComeBackToTheSignalAtTheirEnd)
{
    /// Comes back to the signal at the end of each copy.
    struct Returning {
        VoidProbe *signal;
        int *left;

        Returning(VoidProbe *owner, int *budget)
            : signal(owner)
            , left(budget)
        {
        }

        Returning(const Returning &) = default;

        ~Returning()
        {
            if (*left > 0) {
                --*left;
                signal->connect([] {});
            }
        }

        void operator()() const
        {
            signal->connect([] {});
        }
    };

    int budget = 0;
    VoidProbe signal;
    signal.connect(Returning(&signal, &budget));
    budget = 50;
    signal.connect([] {});
    for (int i = 0; i < 10; ++i)
        signal.emit();
    EXPECT_LT(budget, 50);
    EXPECT_EQ(signal.num_slots(), 12u + static_cast<unsigned>(50 - budget));
    EXPECT_TRUE(signal.isTidy());
}

TEST(SignalLifetime, AnOutgrownCallableMayDisconnectAllAtItsEnd)
{
    struct Disconnecting {
        VoidProbe *signal;
        bool *armed;

        ~Disconnecting()
        {
            if (std::exchange(*armed, false))
                signal->disconnect_all_slots();
        }

        void operator()() const { }
    };

    VoidProbe signal;
    bool armed = false;
    signal.connect(Disconnecting { &signal, &armed });
    armed = true;
    const Connection connection = signal.connect([] {});
    EXPECT_FALSE(armed);
    EXPECT_FALSE(connection.connected()) << "it was connected when all were disconnected";
    EXPECT_TRUE(signal.isTidy());
    signal.connect([] {});
    EXPECT_EQ(signal.num_slots(), 1u);
}

TEST(SignalLifetime, CallablesMayComeBackToTheSignalWhenTheyAreCopied)
{
    struct Returning {
        VoidProbe *signal;
        Connection *other;
        int *left;

        Returning(VoidProbe *owner, Connection *dropped, int *budget)
            : signal(owner)
            , other(dropped)
            , left(budget)
        {
        }

        Returning(const Returning &from)
            : signal(from.signal)
            , other(from.other)
            , left(from.left)
        {
            if (*left > 0) {
                --*left;
                signal->connect([] {});
                other->disconnect();
                signal->emit();
            }
        }

        void operator()() const { }
    };

    VoidProbe signal;
    int budget = 0;
    Connection other = signal.connect([] {});
    signal.connect(Returning(&signal, &other, &budget));
    budget = 20;
    for (int i = 0; i < 40; ++i)
        signal.connect([] {});
    EXPECT_EQ(budget, 0);
    EXPECT_FALSE(other.connected());
    EXPECT_EQ(signal.num_slots(), 61u);
    EXPECT_TRUE(signal.isWhole());
    signal.emit();
    EXPECT_TRUE(signal.isTidy());
}

TEST(SignalLifetime, WhatIsDisconnectedWhileSlotsAreCopiedEndsBeforeConnectReturns)
{
    VoidProbe signal;
    std::string calls;
    std::function<void()> action;
    const auto captured = std::make_shared<int>();
    Connection first = signal.connect([captured] {});
    signal.connect(AtCopy(action));
    fillArray(signal);
    action = [&] {
        first.disconnect();
        EXPECT_EQ(captured.use_count(), 3) << "it stays until all are copied";
    };
    signal.connect([&calls] { calls += 'n'; });
    EXPECT_EQ(captured.use_count(), 1);
    EXPECT_TRUE(signal.isWhole());
    signal.emit();
    EXPECT_EQ(calls, "n");
}

TEST(SignalLifetime, AllMayBeDisconnectedWhileSlotsAreCopied)
{
    VoidProbe signal;
    std::string calls;
    std::function<void()> action;
    const auto captured = std::make_shared<int>();
    signal.connect([captured] {});
    signal.connect(AtCopy(action));
    fillArray(signal);
    action = [&] { signal.disconnect_all_slots(); };
    signal.connect([&calls] { calls += 'n'; });
    EXPECT_EQ(captured.use_count(), 1);
    EXPECT_EQ(signal.num_slots(), 1u);
    EXPECT_TRUE(signal.isWhole());
    signal.emit();
    EXPECT_EQ(calls, "n");
}

TEST(SignalLifetime, AllMayBeDisconnectedWhileSlotsAreCopiedInACleanUp)
{
    VoidProbe signal;
    std::string calls;
    std::function<void()> action;
    Connection ending = signal.connect(slotEndingWith([&] {
        fillArray(signal);
        action = [&] { signal.disconnect_all_slots(); };
        signal.connect([&calls] { calls += 'n'; });
    }));
    signal.connect(AtCopy(action));
    signal.connect([&ending] { ending.disconnect(); });
    signal.emit();
    EXPECT_FALSE(action) << "a slot was copied";
    EXPECT_TRUE(signal.isWhole());
    signal.emit();
    EXPECT_EQ(calls, "n");
}

TEST(SignalLifetime, ACopiedSlotMayDisconnectItselfBesideASlotConnectedEmpty)
{
    for (const bool throwing : { false, true }) {
        VoidProbe signal;
        std::function<void()> action;
        const auto captured = std::make_shared<int>();
        signal.connect({});
        Connection copied =
            signal.connect([captured, copy = AtCopy(action)] { (void)captured, (void)copy; });
        fillArray(signal);
        action = [&] {
            copied.disconnect();
            if (throwing)
                throw 1;
        };
        if (throwing)
            EXPECT_THROW(signal.connect([] {}), int);
        else
            signal.connect([] {});
        EXPECT_EQ(captured.use_count(), 1);
        EXPECT_EQ(signal.num_slots(), throwing ? 1u : 2u);
        EXPECT_EQ(signal.m_offset, 0u);
    }
}

TEST(SignalLifetime, ACopiedSlotMayDisconnectAllAndConnectAnEmptyOne)
{
    VoidProbe signal;
    std::function<void()> action;
    signal.connect(AtCopy(action));
    fillArray(signal);
    action = [&] {
        signal.disconnect_all_slots();
        signal.connect({});
    };
    signal.connect([] {});
    EXPECT_EQ(signal.m_offset, 0u);
    EXPECT_EQ(signal.num_slots(), 2u);
}

TEST(SignalLifetime, AnInnerEmissionWhileSlotsAreCopiedClearsRunningInTheCopies)
{
    VoidProbe signal;
    std::function<void()> action;
    bool running = true;
    signal.connect([&] {
        if (signal.depth > 1)
            return;
        fillArray(signal);
        action = [&signal] { signal.emit(); };
        signal.connect([] {});
        running = signal.pending[0].running;
    });
    signal.connect(AtCopy(action));
    signal.emit();
    EXPECT_FALSE(action) << "a slot was copied";
    EXPECT_FALSE(running);
}

TEST(SignalLifetime, ACopiedSlotMayDisconnectWhatOwnsTheSignal)
{
    std::shared_ptr<VoidProbe> owner(new VoidProbe);
    VoidProbe &signal = *owner;
    const std::weak_ptr<VoidProbe> watched = owner;
    std::function<void()> action;
    Connection owning = signal.connect([owner = std::exchange(owner, nullptr)] {});
    signal.connect(AtCopy(action));
    fillArray(signal);
    action = [&owning] { owning.disconnect(); };
    const auto captured = std::make_shared<int>();
    const Connection late = signal.connect([captured] {});
    EXPECT_TRUE(watched.expired());
    EXPECT_FALSE(late.connected());
    EXPECT_EQ(captured.use_count(), 1);
}

TEST(SignalLifetime, ACopyThatConnectsAndThrowsLeavesNothingBehind)
{
    const auto captured = std::make_shared<int>();
    int ends = 0;
    {
        VoidProbe signal;
        std::function<void()> action;
        signal.connect([captured] {});
        signal.connect(AtCopy(action));
        signal.connect(slotEndingWith([&] {
            ++ends;
            signal.connect([] {});
        }));
        fillArray(signal);
        const std::size_t count = signal.num_slots();
        action = [&signal] {
            signal.connect([] {});
            throw 1;
        };
        EXPECT_THROW(signal.connect([] {}), int);
        EXPECT_EQ(captured.use_count(), 2);
        EXPECT_EQ(signal.num_slots(), count + 1);
        EXPECT_TRUE(signal.isTidy());
        signal.emit();
    }
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(captured.use_count(), 1);
}

TEST(SignalLifetime, ASlotThatOthersOvertookWhileItMadeRoomTakesALaterId)
{
    VoidProbe signal;
    std::function<void()> action;
    signal.connect(AtCopy(action));
    fillArray(signal);
    action = [&signal] { signal.connect([] {}); };
    const Connection last = signal.connect([] {});
    EXPECT_TRUE(last.connected());
    EXPECT_TRUE(signal.isTidy()) << "ids rise along the array";
    EXPECT_EQ(signal.pending.back().id, 3u) << "1 is given up, 2 was the other's";
}

/// Does something random to the signal when it ends, as often as the budget lasts.
class RandomEnd {
public:
    RandomEnd(VoidProbe &signal, std::vector<Connection> &connections, std::mt19937 &random,
              int &budget)
        : m_action([&signal, &connections, &random, &budget] {
            if (budget-- > 0)
                act(signal, connections, random, budget);
        })
    {
    }

    static void act(VoidProbe &signal, std::vector<Connection> &connections, std::mt19937 &random,
                    int &budget)
    {
        switch (random() % 6) {
        case 0:
        case 1:
            connections.push_back(signal.connect(
                [end = RandomEnd(signal, connections, random, budget)] { end.run(); }));
            break;
        case 2:
        case 3:
            if (!connections.empty()) {
                Connection picked = connections[random() % connections.size()];
                picked.disconnect();
            }
            break;
        case 4:
            if (signal.depth < 3)
                signal.emit();
            break;
        default:
            if (random() % 8 == 0)
                signal.disconnect_all_slots();
        }
    }

    void run() const { m_action(); }

private:
    std::function<void()> m_action;
    AtEnd m_end { m_action };
};

TEST(SignalLifetime, RandomEndsLeaveTheSignalWhole)
{
    for (unsigned seed = 0; seed < 3'000; ++seed) {
        std::mt19937 random(seed);
        std::vector<Connection> connections;
        int budget = 150;
        {
            VoidProbe signal;
            for (int step = 0; step < 20; ++step) {
                RandomEnd::act(signal, connections, random, budget);
                ASSERT_TRUE(signal.isWhole()) << "seed " << seed << " step " << step;
            }
            signal.emit();
            ASSERT_TRUE(signal.isWhole()) << "seed " << seed;
        }
        for (Connection &connection : connections) {
            ASSERT_FALSE(connection.connected()) << "seed " << seed;
            connection.disconnect();
        }
    }
}

} // namespace
