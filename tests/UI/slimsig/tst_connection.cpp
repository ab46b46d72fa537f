#include "SignalProbe.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using VoidProbe = SignalProbe<void()>;
using Connection = slimsig::connection<void()>;
using ScopedConnection = slimsig::scoped_connection<void()>;

static_assert(std::is_nothrow_default_constructible_v<Connection>);
static_assert(std::is_copy_constructible_v<Connection> && std::is_copy_assignable_v<Connection>);
static_assert(std::is_nothrow_move_constructible_v<Connection>);
static_assert(std::is_same_v<decltype(std::declval<const Connection &>().connected()), bool>);
static_assert(std::is_void_v<decltype(std::declval<Connection &>().disconnect())>);
static_assert(!std::is_same_v<Connection, slimsig::connection<void(int)>>);

static_assert(std::is_nothrow_default_constructible_v<ScopedConnection>);
static_assert(!std::is_copy_constructible_v<ScopedConnection>);
static_assert(!std::is_copy_assignable_v<ScopedConnection>);
static_assert(std::is_nothrow_move_constructible_v<ScopedConnection>);
static_assert(std::is_move_assignable_v<ScopedConnection>);
static_assert(std::is_same_v<decltype(std::declval<ScopedConnection &>().release()), Connection>);

/// Connects \a count slots that do nothing.
std::vector<Connection> connectMany(VoidProbe &signal, std::size_t count)
{
    std::vector<Connection> connections;
    for (std::size_t i = 0; i < count; ++i)
        connections.push_back(signal.connect([] {}));
    return connections;
}

TEST(Connection, DefaultConstructedNamesNothing)
{
    Connection connection;
    EXPECT_FALSE(connection.connected());
    connection.disconnect();
    EXPECT_FALSE(connection.connected());
}

TEST(Connection, DisconnectsItsSlotOnly)
{
    VoidProbe signal;
    int first = 0;
    int second = 0;
    Connection connection = signal.connect([&first] { ++first; });
    const Connection other = signal.connect([&second] { ++second; });
    EXPECT_TRUE(connection.connected());
    connection.disconnect();
    EXPECT_FALSE(connection.connected());
    EXPECT_TRUE(other.connected());
    signal.emit();
    EXPECT_EQ(first, 0);
    EXPECT_EQ(second, 1);
}

TEST(Connection, CopiesNameTheSameSlot)
{
    VoidProbe signal;
    Connection connection = signal.connect([] {});
    Connection copy = connection;
    copy.disconnect();
    EXPECT_FALSE(connection.connected());
    connection = signal.connect([] {});
    EXPECT_TRUE(connection.connected());
    EXPECT_FALSE(copy.connected());
}

TEST(Connection, ASecondDisconnectDoesNothing)
{
    VoidProbe signal;
    auto connections = connectMany(signal, 3);
    Connection copy = connections[1];
    connections[1].disconnect();
    EXPECT_EQ(signal.num_slots(), 2u);
    connections[1].disconnect();
    copy.disconnect();
    EXPECT_EQ(signal.num_slots(), 2u);
    signal.emit();
    copy.disconnect();
    EXPECT_EQ(signal.num_slots(), 2u);
    EXPECT_TRUE(signal.isTidy());
}

TEST(Connection, OutsideAnEmissionTheCountFallsAtOnceAndTheRecordLeavesAtTheCleanUp)
{
    VoidProbe signal;
    auto connections = connectMany(signal, 4);
    connections[2].disconnect();
    EXPECT_EQ(signal.num_slots(), 3u);
    EXPECT_EQ(signal.activeRecords(), 3u);
    EXPECT_TRUE(signal.isWhole());
    signal.emit();
    EXPECT_EQ(signal.pending.size(), 3u);
    EXPECT_TRUE(signal.isTidy());
}

TEST(Connection, OutsideAnEmissionTheCallableIsDestroyedAtOnce)
{
    VoidProbe signal;
    const auto captured = std::make_shared<int>();
    signal.connect([] {});
    Connection connection = signal.connect([captured] {});
    EXPECT_EQ(captured.use_count(), 2);
    connection.disconnect();
    EXPECT_EQ(captured.use_count(), 1);
}

TEST(Connection, InsideAnEmissionTheCallableIsDestroyedWhenTheOutermostOneEnds)
{
    VoidProbe signal;
    const auto captured = std::make_shared<int>();
    Connection connection = signal.connect([captured] {});
    long inside = 0;
    signal.connect([&] {
        if (signal.depth == 1)
            signal.emit();
        connection.disconnect();
        inside = captured.use_count();
    });
    signal.emit();
    EXPECT_EQ(inside, 2);
    EXPECT_EQ(captured.use_count(), 1);
}

TEST(Connection, AfterTheLastSlotIsDisconnectedAnEmissionEmptiesTheArray)
{
    VoidProbe signal;
    auto connections = connectMany(signal, 5);
    for (Connection &connection : connections)
        connection.disconnect();
    EXPECT_TRUE(signal.empty());
    EXPECT_TRUE(signal.isWhole());
    signal.emit();
    EXPECT_TRUE(signal.pending.empty());
    EXPECT_TRUE(signal.isTidy());
}

TEST(Connection, ASlotConnectedInPlaceOfAnotherTakesItsRecord)
{
    VoidProbe signal;
    Connection connection;
    for (int i = 0; i < 100; ++i) {
        connection.disconnect();
        connection = signal.connect([] {});
    }
    EXPECT_EQ(signal.pending.capacity(), 1u);
    EXPECT_TRUE(connection.connected());
    EXPECT_TRUE(signal.isTidy());
}

TEST(Connection, ConnectingAndDisconnectingWithoutEmittingKeepsTheArraySmall)
{
    VoidProbe signal;
    signal.connect([] {});
    for (int i = 0; i < 10'000; ++i)
        signal.connect([] {}).disconnect();
    EXPECT_LE(signal.pending.capacity(), 4u);
    EXPECT_EQ(signal.num_slots(), 1u);
    EXPECT_TRUE(signal.isWhole());
}

TEST(Connection, ConnectingLeavesSlotsThatWereConnectedEmptyAlone)
{
    VoidProbe signal;
    signal.connect(nullptr);
    signal.connect([] {});
    auto connections = connectMany(signal, 6);
    for (Connection &connection : connections)
        connection.disconnect();
    EXPECT_EQ(signal.num_slots(), 2u);
    connectMany(signal, 20);
    EXPECT_EQ(signal.num_slots(), 22u);
    EXPECT_EQ(signal.pending.size(), 28u);
}

TEST(Connection, IsFoundWhicheverSlotsBeforeItHaveLeft)
{
    for (unsigned dropped = 0; dropped < 64; ++dropped) {
        VoidProbe signal;
        auto connections = connectMany(signal, 6);
        for (std::size_t i = 0; i < 6; ++i) {
            if (dropped >> i & 1)
                connections[i].disconnect();
        }
        signal.emit();
        for (std::size_t i = 0; i < 6; ++i) {
            EXPECT_EQ(connections[i].connected(), !(dropped >> i & 1));
            connections[i].disconnect();
        }
        EXPECT_TRUE(signal.empty());
    }
}

TEST(Connection, IdsAreNotUsedAgain)
{
    VoidProbe signal;
    Connection old = signal.connect([] {});
    old.disconnect();
    const Connection fresh = signal.connect([] {});
    EXPECT_FALSE(old.connected());
    old.disconnect();
    EXPECT_TRUE(fresh.connected());
}

TEST(Connection, FindsNothingAfterTheSignalIsDestroyed)
{
    std::optional<VoidProbe> signal(std::in_place);
    Connection connection = signal->connect([] {});
    Connection disconnected = signal->connect([] {});
    disconnected.disconnect();
    signal.reset();
    EXPECT_FALSE(connection.connected());
    connection.disconnect();
    disconnected.disconnect();
}

TEST(Connection, FindsTheHolderWithoutSignalWhileSomeoneKeepsTheHolder)
{
    std::optional<VoidProbe> signal(std::in_place);
    Connection connection = signal->connect([] {});
    const auto holder = signal->holder;
    signal.reset();
    EXPECT_EQ(holder->signal, nullptr);
    EXPECT_FALSE(connection.connected());
    connection.disconnect();
}

TEST(Connection, DisconnectingAllOutsideAnEmissionEmptiesTheSignalAtOnce)
{
    VoidProbe signal;
    const auto captured = std::make_shared<int>();
    const Connection connection = signal.connect([captured] {});
    signal.connect([captured] {});
    signal.disconnect_all_slots();
    EXPECT_EQ(captured.use_count(), 1);
    EXPECT_FALSE(connection.connected());
    EXPECT_TRUE(signal.pending.empty());
    EXPECT_TRUE(signal.isTidy());
    signal.connect([] {});
    EXPECT_EQ(signal.pending[0].id, 2u);
}

TEST(Connection, DisconnectingAllTakesSlotsConnectedEmptyAlong)
{
    VoidProbe signal;
    signal.connect(nullptr);
    signal.connect([] {});
    signal.disconnect_all_slots();
    EXPECT_TRUE(signal.empty());
    signal.emit();
    EXPECT_TRUE(signal.isTidy());
}

TEST(Connection, DisconnectingAllOfAnUnconnectedSignalDoesNothing)
{
    VoidProbe signal;
    signal.disconnect_all_slots();
    EXPECT_EQ(signal.holder, nullptr);
    EXPECT_TRUE(signal.isTidy());
}

TEST(ScopedConnection, DisconnectsWhenItEnds)
{
    VoidProbe signal;
    {
        const ScopedConnection scoped = signal.connect([] {});
        EXPECT_TRUE(scoped.connected());
        EXPECT_EQ(signal.num_slots(), 1u);
    }
    EXPECT_TRUE(signal.empty());
}

TEST(ScopedConnection, DefaultConstructedOwnsNothing)
{
    ScopedConnection scoped;
    EXPECT_FALSE(scoped.connected());
    scoped.disconnect();
    EXPECT_FALSE(scoped.release().connected());
}

TEST(ScopedConnection, DisconnectsEarlyOnRequest)
{
    VoidProbe signal;
    ScopedConnection scoped(signal.connect([] {}));
    scoped.disconnect();
    EXPECT_FALSE(scoped.connected());
    EXPECT_TRUE(signal.empty());
}

TEST(ScopedConnection, HandsOverWhenMoved)
{
    VoidProbe signal;
    ScopedConnection target;
    {
        ScopedConnection source = signal.connect([] {});
        ScopedConnection between(std::move(source));
        EXPECT_FALSE(source.connected());
        target = std::move(between);
    }
    EXPECT_TRUE(target.connected());
    EXPECT_EQ(signal.num_slots(), 1u);
}

TEST(ScopedConnection, AssignmentDisconnectsWhatWasOwned)
{
    VoidProbe signal;
    const Connection first = signal.connect([] {});
    ScopedConnection scoped = first;
    scoped = signal.connect([] {});
    EXPECT_FALSE(first.connected());
    EXPECT_TRUE(scoped.connected());
    EXPECT_EQ(signal.num_slots(), 1u);
}

TEST(ScopedConnection, AssignmentToItselfKeepsTheSlot)
{
    VoidProbe signal;
    ScopedConnection scoped = signal.connect([] {});
    ScopedConnection &alias = scoped;
    scoped = std::move(alias);
    EXPECT_TRUE(scoped.connected());
}

TEST(ScopedConnection, ReleaseGivesThePlainConnectionBack)
{
    VoidProbe signal;
    Connection plain;
    {
        ScopedConnection scoped = signal.connect([] {});
        plain = scoped.release();
        EXPECT_FALSE(scoped.connected());
    }
    EXPECT_TRUE(plain.connected());
    plain.disconnect();
    EXPECT_TRUE(signal.empty());
}

TEST(ScopedConnection, MayOutliveTheSignal)
{
    ScopedConnection scoped;
    {
        VoidProbe signal;
        scoped = signal.connect([] {});
    }
    EXPECT_FALSE(scoped.connected());
}

TEST(ScopedConnection, KnowsItsSignatureFromTheConnection)
{
    Signal<void(int, std::string)> signal;
    const slimsig::scoped_connection scoped = signal.connect([](int, const std::string &) {});
    static_assert(
        std::is_same_v<decltype(scoped), const slimsig::scoped_connection<void(int, std::string)>>);
    EXPECT_TRUE(scoped.connected());
}

} // namespace
