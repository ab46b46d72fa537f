#include "SignalProbe.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

// What an exception from a slot, or from an argument, leaves behind.

namespace {

using VoidProbe = SignalProbe<void()>;
using Connection = slimsig::connection<void()>;

struct Thrown : std::runtime_error {
    Thrown()
        : std::runtime_error("thrown by a slot")
    {
    }
};

TEST(SignalExceptions, ReachTheEmitterAndSkipTheSlotsBehind)
{
    VoidProbe signal;
    std::string calls;
    signal.connect([&calls] { calls += 'a'; });
    signal.connect([] { throw Thrown(); });
    signal.connect([&calls] { calls += 'c'; });
    EXPECT_THROW(signal.emit(), Thrown);
    EXPECT_EQ(calls, "a");
    EXPECT_TRUE(signal.isTidy());
}

TEST(SignalExceptions, LeaveTheSignalUsable)
{
    VoidProbe signal;
    int calls = 0;
    signal.connect([&calls] {
        if (++calls == 1)
            throw Thrown();
    });
    EXPECT_THROW(signal.emit(), Thrown);
    signal.emit();
    EXPECT_EQ(calls, 2);
}

TEST(SignalExceptions, FromTheLastSlotClearRunningToo)
{
    VoidProbe signal;
    signal.connect([] {});
    signal.connect([] { throw Thrown(); });
    EXPECT_THROW(signal.emit(), Thrown);
    EXPECT_TRUE(signal.isTidy());
}

TEST(SignalExceptions, AtDepthOneStillCleanUp)
{
    VoidProbe signal;
    Connection first = signal.connect([] {});
    signal.connect([&first] {
        first.disconnect();
        throw Thrown();
    });
    EXPECT_THROW(signal.emit(), Thrown);
    EXPECT_EQ(signal.pending.size(), 1u);
    EXPECT_TRUE(signal.isTidy());
}

TEST(SignalExceptions, DeeperLeaveTheCleanUpToTheOutermostEmission)
{
    VoidProbe signal;
    Connection first = signal.connect([] {});
    std::size_t afterCatch = 0;
    signal.connect([&] {
        if (signal.depth == 2) {
            first.disconnect();
            throw Thrown();
        }
        EXPECT_THROW(signal.emit(), Thrown);
        afterCatch = signal.pending.size();
        EXPECT_EQ(signal.depth, 1u);
    });
    signal.emit();
    EXPECT_EQ(afterCatch, 2u);
    EXPECT_EQ(signal.pending.size(), 1u);
    EXPECT_TRUE(signal.isTidy());
}

TEST(SignalExceptions, PassThroughSeveralEmissions)
{
    VoidProbe signal;
    Connection first = signal.connect([] {});
    signal.connect([&] {
        if (signal.depth == 4) {
            first.disconnect();
            throw Thrown();
        }
        signal.emit();
    });
    EXPECT_THROW(signal.emit(), Thrown);
    EXPECT_EQ(signal.pending.size(), 1u);
    EXPECT_TRUE(signal.isTidy());
}

TEST(SignalExceptions, AfterTheArrayHasMovedClearRunningThroughTheIndex)
{
    VoidProbe signal;
    const auto tracked = std::make_shared<int>();
    signal.connect([] {});
    signal.connect([&signal, tracked] {
        for (int i = 0; i < 9; ++i)
            signal.connect([] {});
        throw Thrown();
    });
    EXPECT_THROW(signal.emit(), Thrown);
    EXPECT_TRUE(signal.isTidy());
    EXPECT_EQ(tracked.use_count(), 2) << "the outgrown arrays are gone";
}

TEST(SignalExceptions, AfterDisconnectingAllTidyUp)
{
    VoidProbe signal;
    signal.connect([&signal] {
        signal.disconnect_all_slots();
        throw Thrown();
    });
    signal.connect([] {});
    EXPECT_THROW(signal.emit(), Thrown);
    EXPECT_TRUE(signal.pending.empty());
    EXPECT_TRUE(signal.isTidy());
}

struct ThrowingCopy {
    ThrowingCopy() = default;

    ThrowingCopy(const ThrowingCopy &) { throw Thrown(); }

    ThrowingCopy(ThrowingCopy &&) = default;
};

TEST(SignalExceptions, FromCopyingAnArgumentClearRunning)
{
    SignalProbe<void(ThrowingCopy)> signal;
    int calls = 0;
    signal.connect([&calls](ThrowingCopy &&) { ++calls; });
    signal.emit(ThrowingCopy());
    EXPECT_EQ(calls, 1) << "the only slot gets the argument moved";
    signal.connect([&calls](ThrowingCopy &&) { ++calls; });
    EXPECT_THROW(signal.emit(ThrowingCopy()), Thrown);
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(signal.isTidy());
}

struct ThrowingCopyCallable {
    const bool *armed;

    explicit ThrowingCopyCallable(const bool *flag)
        : armed(flag)
    {
    }

    ThrowingCopyCallable(const ThrowingCopyCallable &other)
        : armed(other.armed)
    {
        if (*armed)
            throw Thrown();
    }

    void operator()() const { }
};

TEST(SignalExceptions, FromCopyingARecordLeaveTheSignalAsItWas)
{
    VoidProbe signal;
    bool armed = false;
    signal.connect(ThrowingCopyCallable(&armed));
    armed = true;
    EXPECT_THROW(signal.connect([] {}), Thrown);
    armed = false;
    EXPECT_EQ(signal.last_id, 2u) << "the id was handed out before";
    EXPECT_EQ(signal.num_slots(), 1u);
    EXPECT_TRUE(signal.isTidy());
    signal.connect([] {});
    signal.emit();
    EXPECT_EQ(signal.num_slots(), 2u);
}

TEST(SignalExceptions, FromCopyingARecordInASlotLeaveTheEmissionToGoOn)
{
    VoidProbe signal;
    bool armed = false;
    int calls = 0;
    signal.connect(ThrowingCopyCallable(&armed));
    signal.connect([&] {
        armed = true;
        EXPECT_THROW(
            {
                while (true)
                    signal.connect([] {});
            },
            Thrown);
        armed = false;
    });
    signal.connect([&calls] { ++calls; });
    signal.emit();
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(signal.isTidy());
}

TEST(SignalExceptions, TheRemovalOfDeadRecordsCopiesNoCallable)
{
    VoidProbe signal;
    bool armed = false;
    Connection first = signal.connect([] {});
    signal.connect(ThrowingCopyCallable(&armed));
    signal.connect([&] {
        first.disconnect();
        armed = true;
    });
    signal.emit();
    EXPECT_EQ(signal.pending.size(), 2u);
    EXPECT_TRUE(signal.isTidy());
}

struct ThrowingEnd {
    std::shared_ptr<int> shared = std::make_shared<int>();

    ThrowingEnd() = default;
    ThrowingEnd(const ThrowingEnd &) = default;

    ~ThrowingEnd() noexcept(false)
    {
        if (shared.use_count() == 1)
            throw Thrown();
    }

    void operator()() const { }
};

TEST(SignalExceptionsDeathTest, InsideTheCleanUpEndTheProcess)
{
    const auto disconnectDuringEmission = [] {
        VoidProbe signal;
        Connection first = signal.connect(ThrowingEnd());
        signal.connect([&first] { first.disconnect(); });
        signal.emit();
    };
    EXPECT_DEATH(disconnectDuringEmission(), "terminate called");
}

} // namespace
