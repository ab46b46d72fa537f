// How a row is measured: the control and the bare Qt widget take turns within one row, batch by
// batch, and the medians over all batches are reported. So whatever the machine, the heap or the
// process does meanwhile hits both alike.

#pragma once

#include <benchmark/benchmark.h>

#include <chrono>
#include <vector>

/// Deletes what waits for deletion, then delivers all other posted events, as an event loop does.
/// Without the second half Qt's list of posted events grows with each widget made, and each
/// delivery walks over all of it: making a widget then costs the more, the more were made before.
void Settle();

/// Collects the samples of one row.
class Samples {
public:
    /// Nanoseconds of a call on either side, measured one right after the other.
    void Add(double commonui, double qt);

    /// Reports the medians as counters: "commonui" and "qt" in nanoseconds, "ratio" over the pairs.
    void Report(benchmark::State &state) const;

private:
    std::vector<double> m_commonui;
    std::vector<double> m_qt;
    std::vector<double> m_ratios;
};

/// One side of a row: \a Reset, which isn't timed, then \a Step with a number that rises from call
/// to call.
template <class Reset, class Step> class Side {
public:
    Side(Reset reset, Step step)
        : m_reset(reset)
        , m_step(step)
    {
    }

    /// Nanoseconds of a call, over \a calls of them.
    double Time(int calls)
    {
        m_reset();
        const auto start = std::chrono::steady_clock::now();
        for (int i = 0; i < calls; ++i)
            m_step(m_next++);
        const std::chrono::duration<double, std::nano> time =
            std::chrono::steady_clock::now() - start;
        return time.count() / calls;
    }

    /// How many calls there were.
    int Calls() const { return m_next; }

private:
    Reset m_reset;
    Step m_step;
    int m_next = 0;
};

/// The number of calls, even, that takes long enough for the clock, and no longer, so that few
/// batches are interrupted. Events are delivered in between, since a widget that has been polished
/// may take far longer for a call.
template <class Side> int CallsOfBatch(Side &side)
{
    constexpr double batch = 20000; // nanoseconds
    int calls = 2;
    side.Time(calls);
    Settle();
    while (side.Time(calls) * calls < batch) {
        calls *= 2;
        Settle();
    }
    return calls;
}

/// Times both sides in turns, with \a calls in a batch, or as many as it takes for 0.
template <class Ours, class Theirs>
void Compare(benchmark::State &state, Ours &&ours, Theirs &&theirs, int calls)
{
    if (calls == 0) {
        calls = CallsOfBatch(ours);
        theirs.Time(calls);
    }
    Samples samples;
    bool oursFirst = true;
    for (auto _ : state) {
        const double first = oursFirst ? ours.Time(calls) : theirs.Time(calls);
        const double second = oursFirst ? theirs.Time(calls) : ours.Time(calls);
        samples.Add(oursFirst ? first : second, oursFirst ? second : first);
        oursFirst = !oursFirst;
        Settle();
    }
    samples.Report(state);
}
