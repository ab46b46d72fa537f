#include "Rounds.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <stdexcept>
#include <utility>

namespace {

double ProcessorSeconds()
{
    timespec time {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
}

double Quantile(std::vector<double> values, double part)
{
    const auto position = std::ptrdiff_t(part * double(values.size() - 1) + 0.5);
    std::nth_element(values.begin(), values.begin() + position, values.end());
    return values[std::size_t(position)];
}

} // namespace

Rounds::Rounds(std::vector<Peer> peers, std::function<double()> foreignSeconds)
    : m_peers(std::move(peers))
    , m_foreignSeconds(std::move(foreignSeconds))
{
}

void Rounds::Run(benchmark::State &state)
{
    RunRound(0); // makes the connections
    m_rounds.clear();
    int round = 0;
    for (auto _ : state)
        RunRound(round++);
    Report(state);
}

// Each peer is once at each place in so many rounds as there are peers, and has each other peer
// before it and behind it alike in twice as many.
void Rounds::RunRound(int round)
{
    const std::size_t count = m_peers.size();
    std::vector<Sample> samples(count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t place = (i + std::size_t(round)) % count;
        const std::size_t peer = std::size_t(round) / count % 2 ? count - 1 - place : place;
        samples[peer] = Measure(m_peers[peer]);
    }
    m_rounds.push_back(std::move(samples));
}

Rounds::Sample Rounds::Measure(const Peer &peer) const
{
    const double foreignBefore = m_foreignSeconds();
    const double processorBefore = ProcessorSeconds();
    const auto before = std::chrono::steady_clock::now();
    if (!peer.run(peer.operations))
        throw std::runtime_error(peer.name + " got something else than the server sends");
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - before;
    const double processor = ProcessorSeconds() - processorBefore;
    const double foreign = m_foreignSeconds() - foreignBefore;
    return { wall.count() / peer.operations, (processor - foreign) / peer.operations };
}

std::vector<double> Rounds::Ratios(std::size_t peer, double Sample::*time) const
{
    std::vector<double> ratios;
    for (const auto &round : m_rounds)
        ratios.push_back(round[peer].*time / round[0].*time);
    return ratios;
}

void Rounds::Report(benchmark::State &state) const
{
    std::vector<double> walls, processors;
    for (const auto &round : m_rounds) {
        walls.push_back(round[0].wall);
        processors.push_back(round[0].processor);
    }
    state.counters["us"] = Quantile(walls, 0.5) * 1e6;
    state.counters["cpu_us"] = Quantile(processors, 0.5) * 1e6;
    for (std::size_t peer = 1; peer < m_peers.size(); ++peer) {
        const std::string &name = m_peers[peer].name;
        const auto ratios = Ratios(peer, &Sample::wall);
        state.counters[name] = Quantile(ratios, 0.5);
        if (m_peers[peer].inProcess)
            state.counters[name + "_cpu"] = Quantile(Ratios(peer, &Sample::processor), 0.5);
        if (peer == 1) {
            state.counters[name + "_q1"] = Quantile(ratios, 0.25);
            state.counters[name + "_q3"] = Quantile(ratios, 0.75);
        }
    }
}
