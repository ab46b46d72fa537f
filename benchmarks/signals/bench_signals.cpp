// What emitting, connecting and disconnecting cost here and with the peers. A row is called
// "what/peer"; report.py divides each by the floor's.

#include "Peers.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <optional>
#include <random>
#include <utility>

namespace {

constexpr std::size_t batchSize = 16;
constexpr std::size_t rowLength = 8;
constexpr int mostKinds = 16;

std::array<long, 64> counters {};

long *counterOf(std::size_t slot)
{
    return &counters[slot % counters.size()];
}

/// Connects a callable of a type of its own for each \a Kind.
template <class Peer, int Kind = 0> auto connectCounter(Peer &peer, std::size_t slot)
{
    return peer.connect([counter = counterOf(slot)](int number) { *counter += number + Kind; });
}

template <class Peer> void connectCounters(Peer &peer, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        connectCounter(peer, i);
}

template <class Peer> void emitToSlots(benchmark::State &state, std::size_t count)
{
    Peer peer;
    connectCounters(peer, count);
    for (auto _ : state)
        fire(peer, 1);
    benchmark::DoNotOptimize(counters);
}

template <class Peer, std::size_t... Index>
void fireInRow(Peer &peer, std::index_sequence<Index...>)
{
    ((static_cast<void>(Index), fire(peer, 1)), ...);
}

/// Emits eight times in a row: once, the loop around it would be a third of the time.
template <class Peer> void emitToNone(benchmark::State &state)
{
    Peer peer;
    for (auto _ : state)
        fireInRow(peer, std::make_index_sequence<rowLength>());
    state.counters["operations"] = rowLength;
}

/// Eight slots, one of which emits again: five emissions, one inside the other.
template <class Peer> void emitNested(benchmark::State &state)
{
    Peer peer;
    connectCounters(peer, 4);
    peer.connect([&peer](int depth) {
        if (depth > 0)
            fire(peer, depth - 1);
    });
    connectCounters(peer, 3);
    for (auto _ : state)
        fire(peer, 4);
    benchmark::DoNotOptimize(counters);
}

template <class Peer, class Text> void emitText(benchmark::State &state, const Text &text)
{
    Peer peer;
    for (std::size_t i = 0; i < 8; ++i) {
        peer.connect(
            [counter = counterOf(i)](Text given) { *counter += static_cast<long>(given.size()); });
    }
    for (auto _ : state)
        fire(peer, text);
    benchmark::DoNotOptimize(counters);
}

template <class Peer, int... Kind> constexpr auto connectorsOf(std::integer_sequence<int, Kind...>)
{
    return std::array { &connectCounter<Peer, Kind>... };
}

/// Emits by turns to \a count signals with eight slots each, which are callables of as many types
/// as \a kinds says, at random. One type lets the processor foresee each call.
template <class Peer>
void emitManySignals(benchmark::State &state, std::size_t count, std::size_t kinds)
{
    constexpr auto connectors = connectorsOf<Peer>(std::make_integer_sequence<int, mostKinds>());
    std::mt19937 random(1);
    std::vector<std::unique_ptr<Peer>> peers(count);
    for (auto &peer : peers) {
        peer = std::make_unique<Peer>();
        for (std::size_t slot = 0; slot < 8; ++slot)
            connectors[random() % kinds](*peer, slot);
    }
    std::shuffle(peers.begin(), peers.end(), random);
    for (auto _ : state) {
        for (const auto &peer : peers)
            fire(*peer, 1);
    }
    state.counters["operations"] = static_cast<double>(peers.size());
}

template <class Peer> void constructAndDestroy(benchmark::State &state)
{
    for (auto _ : state) {
        Peer peer;
        benchmark::DoNotOptimize(peer);
    }
}

/// Times one operation on each peer of a batch; making and dropping the batch is not timed. The
/// handles keep their room from batch to batch: freeing it would make the allocator merge the small
/// blocks that it keeps at hand, and the next batch pay for them.
template <class Peer, class Operation>
void timeBatch(benchmark::State &state, std::size_t connected, Operation operation)
{
    using Handles = std::vector<typename Peer::Handle>;
    std::vector<std::optional<Peer>> peers(batchSize);
    std::vector<Handles> handles(batchSize);
    for (Handles &room : handles)
        room.reserve(64);
    for (auto _ : state) {
        for (std::size_t i = 0; i < batchSize; ++i) {
            peers[i].emplace();
            handles[i].clear();
            for (std::size_t slot = 0; slot < connected; ++slot)
                handles[i].push_back(connectCounter(*peers[i], slot));
        }
        const auto start = std::chrono::steady_clock::now();
        for (std::size_t i = 0; i < batchSize; ++i)
            operation(peers[i], handles[i]);
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(taken.count());
    }
    state.counters["operations"] = batchSize;
}

template <class Peer> void connectSlots(benchmark::State &state, std::size_t count)
{
    timeBatch<Peer>(state, 0, [count](std::optional<Peer> &peer, auto &handles) {
        for (std::size_t slot = 0; slot < count; ++slot)
            handles.push_back(connectCounter(*peer, slot));
    });
}

template <class Peer> void disconnectSlots(benchmark::State &state)
{
    timeBatch<Peer>(state, 64, [](std::optional<Peer> &peer, auto &handles) {
        for (auto &handle : handles)
            peer->disconnect(handle);
    });
}

template <class Peer> void destroySlots(benchmark::State &state)
{
    timeBatch<Peer>(state, 64, [](std::optional<Peer> &peer, auto &) { peer.reset(); });
}

template <class Function, class... Arguments>
auto *registerRow(const std::string &row, const std::string &peer, Function function,
                  Arguments... arguments)
{
    return benchmark::RegisterBenchmark((row + '/' + peer).c_str(), function, arguments...);
}

template <template <class> class Peer> void registerPeer(const std::string &name)
{
    registerRow("emit to 0", name, emitToNone<Peer<int>>);
    for (const std::size_t count : { 1u, 8u, 64u, 1024u })
        registerRow("emit to " + std::to_string(count), name, emitToSlots<Peer<int>>, count);
    registerRow("emit nested", name, emitNested<Peer<int>>);
    registerRow("emit QString to 8", name, emitText<Peer<QString>, QString>,
                QString(40, QLatin1Char('x')));
    registerRow("emit std::string to 8", name, emitText<Peer<std::string>, std::string>,
                std::string(40, 'x'));
    for (const std::size_t count : { 1000u, 4000u }) {
        const std::string row = "emit " + std::to_string(count) + " signals";
        registerRow(row, name, emitManySignals<Peer<int>>, count, std::size_t(1));
        registerRow(row + " of 16 kinds", name, emitManySignals<Peer<int>>, count,
                    std::size_t(mostKinds));
    }
    registerRow("connect first", name, connectSlots<Peer<int>>, std::size_t(1))->UseManualTime();
    registerRow("connect 64", name, connectSlots<Peer<int>>, std::size_t(64))->UseManualTime();
    registerRow("disconnect 64", name, disconnectSlots<Peer<int>>)->UseManualTime();
    registerRow("destroy 64", name, destroySlots<Peer<int>>)->UseManualTime();
    registerRow("construct and destroy", name, constructAndDestroy<Peer<int>>);
}

} // namespace

int main(int argc, char **argv)
{
    registerPeer<Floor>("floor");
    registerPeer<Slimsig>("slimsig");
    registerPeer<SameRecords>("same records");
    registerPeer<Boost>("boost");
    registerPeer<BoostDummy>("boost, no mutex");
    registerPeer<Sigc>("sigc++");
    registerPeer<Qt5>("Qt");
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
