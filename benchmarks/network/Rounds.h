#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <vector>

/// One side of a comparison.
struct Peer {
    std::string name;
    int operations; ///< of a batch
    bool inProcess; ///< its processor time is this process's
    std::function<bool(int operations)> run; ///< runs a batch; false if something went wrong
};

/// Measures peers side by side. An iteration of a benchmark is a round: each peer runs one batch,
/// in an order that changes from round to round, so that whatever disturbs the machine meets all
/// alike. What counts is the median of the rounds' ratios to the reference, which is the first
/// peer.
class Rounds {
public:
    /// \a foreignSeconds tells the processor time that this process has spent on a server thread;
    /// it isn't counted as the peers'.
    Rounds(std::vector<Peer> peers, std::function<double()> foreignSeconds);

    /// Throws std::runtime_error if a peer got something else than the server sends. Counters: of
    /// the reference the microseconds of an operation, by the clock ("us") and of the processor
    /// ("cpu_us"); of each other peer the ratios to these (NAME, "NAME_cpu"), of the second with
    /// the quartiles by the clock ("NAME_q1", "NAME_q3").
    void Run(benchmark::State &state);

private:
    struct Sample {
        double wall; // seconds
        double processor;
    };

    void RunRound(int round);
    Sample Measure(const Peer &peer) const;
    void Report(benchmark::State &state) const;
    std::vector<double> Ratios(std::size_t peer, double Sample::*time) const;

    std::vector<Peer> m_peers;
    std::function<double()> m_foreignSeconds;
    std::vector<std::vector<Sample>> m_rounds; // in the order of the peers
};
