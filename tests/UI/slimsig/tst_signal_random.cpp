#include "SignalProbe.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <memory>
#include <random>
#include <string>
#include <vector>

// Plays random scripts against the signal and against a plain model of it, and compares the traces.
// COMMONUI_TEST_SEED sets the first seed, COMMONUI_TEST_SCRIPTS the number of scripts.

namespace {

struct Thrown { };

/// The model: nothing ever leaves the list, and nothing moves.
class Model {
    struct Record {
        std::function<void(int)> function;
        bool active = true;
    };

public:
    class Handle {
    public:
        Handle() = default;

        explicit Handle(std::shared_ptr<Record> record)
            : m_record(std::move(record))
        {
        }

        void disconnect() { m_record->active = false; }

        bool connected() const { return m_record->active; }

    private:
        std::shared_ptr<Record> m_record;
    };

    Handle connect(std::function<void(int)> function)
    {
        m_records.push_back(std::make_shared<Record>(Record { std::move(function) }));
        return Handle(m_records.back());
    }

    void emit(int argument)
    {
        const std::size_t end = m_records.size();
        for (std::size_t i = 0; i < end; ++i) {
            if (m_records[i]->active)
                m_records[i]->function(argument);
        }
    }

    void disconnect_all_slots()
    {
        for (const auto &record : m_records)
            record->active = false;
    }

    std::size_t num_slots() const
    {
        std::size_t active = 0;
        for (const auto &record : m_records)
            active += record->active ? 1 : 0;
        return active;
    }

    bool isWhole() const { return true; }

private:
    std::vector<std::shared_ptr<Record>> m_records;
};

/// The signal, with the same interface.
class Subject : public SignalProbe<void(int)> {
public:
    using Handle = connection;
};

/// Plays the script that a seed stands for, and writes down what happened.
template <class Played> class Player {
public:
    explicit Player(std::uint64_t seed)
        : m_random(seed)
    {
    }

    std::string play()
    {
        const unsigned steps = pick(40);
        for (unsigned step = 0; step < steps; ++step) {
            act(0);
            note(m_signal.isWhole() ? "" : "broken");
        }
        return m_trace;
    }

private:
    unsigned pick(unsigned count) { return static_cast<unsigned>(m_random() % count); }

    void note(const std::string &text) { m_trace += text; }

    void connect(unsigned depth)
    {
        const std::size_t name = m_handles.size();
        m_handles.emplace_back();
        m_handles[name] = m_signal.connect([this, name](int emitted) { run(name, emitted); });
        note(" connect" + std::to_string(depth));
    }

    void run(std::size_t name, int depth)
    {
        note(" run" + std::to_string(name) + "@" + std::to_string(depth));
        if (++m_runs > 300)
            return;
        if (pick(8) == 0)
            m_handles[name].disconnect();
        for (unsigned actions = pick(3); actions > 0; --actions)
            act(static_cast<unsigned>(depth));
        if (pick(20) == 0) {
            note(" throw");
            throw Thrown();
        }
    }

    void emit(unsigned depth)
    {
        if (depth >= 4)
            return;
        note(" emit(");
        if (depth > 0 && pick(2) == 0) {
            m_signal.emit(static_cast<int>(depth) + 1);
        } else {
            try {
                m_signal.emit(static_cast<int>(depth) + 1);
            } catch (const Thrown &) {
                note(" caught");
            }
        }
        note(" )");
    }

    void act(unsigned depth)
    {
        const unsigned choice = pick(24);
        if (choice < 9)
            connect(depth);
        else if (choice < 15)
            emit(depth);
        else if (choice < 20 && !m_handles.empty())
            m_handles[pick(static_cast<unsigned>(m_handles.size()))].disconnect();
        else if (choice < 23 && !m_handles.empty())
            note(m_handles[pick(static_cast<unsigned>(m_handles.size()))].connected() ? " +"
                                                                                      : " -");
        else if (pick(4) == 0)
            m_signal.disconnect_all_slots();
        note(" n" + std::to_string(m_signal.num_slots()));
    }

    std::mt19937_64 m_random;
    std::string m_trace;
    unsigned m_runs = 0;
    std::vector<typename Played::Handle> m_handles;
    Played m_signal;
};

std::uint64_t numberFrom(const char *variable, std::uint64_t otherwise)
{
    const char *const text = std::getenv(variable);
    return text ? std::strtoull(text, nullptr, 10) : otherwise;
}

TEST(SignalRandom, BehavesLikeAPlainModel)
{
    const std::uint64_t first = numberFrom("COMMONUI_TEST_SEED", std::random_device()());
    const std::uint64_t scripts = numberFrom("COMMONUI_TEST_SCRIPTS", 100'000);
    std::cout << "COMMONUI_TEST_SEED=" << first << " COMMONUI_TEST_SCRIPTS=" << scripts << '\n';
    std::size_t events = 0;
    for (std::uint64_t seed = first; seed < first + scripts; ++seed) {
        const std::string expected = Player<Model>(seed).play();
        ASSERT_EQ(Player<Subject>(seed).play(), expected) << "COMMONUI_TEST_SEED=" << seed;
        events += static_cast<std::size_t>(std::count(expected.begin(), expected.end(), ' '));
    }
    EXPECT_GT(events, scripts * 10) << "the scripts do something";
}

TEST(SignalRandom, TheComparisonSeesADifference)
{
    EXPECT_NE(Player<Model>(1).play(), Player<Model>(2).play());
    EXPECT_EQ(Player<Model>(1).play(), Player<Model>(1).play());
}

} // namespace
