#include "SignalProbe.h"

#include <gtest/gtest.h>

#include <csignal>
#include <limits>

// The assertions end the process in every build; tst_signal_assertions_ndebug compiles this file as
// programs that define NDEBUG do.

namespace {

using VoidProbe = SignalProbe<void()>;

/// Shows the step from the number of records to the index of the last one.
class LastIndex : public Signal<void()> {
public:
    using Signal<void()>::index_of_last;
};

TEST(SignalAssertionsDeathTest, AnOffsetBehindTheEndEndsTheProcess)
{
    VoidProbe signal;
    signal.connect([] {});
    signal.m_offset = 2;
    EXPECT_DEATH(signal.emit(),
                 "signal_base\\w*\\.h:[0-9]+: .*Assertion `m_offset <= end' failed\\.");
}

TEST(SignalAssertionsDeathTest, AnOffsetWithoutRecordsEndsTheProcess)
{
    VoidProbe signal;
    signal.m_offset = 1;
    EXPECT_DEATH(signal.emit(),
                 "signal_base\\w*\\.h:[0-9]+: .*Assertion `m_offset <= end' failed\\.");
}

TEST(SignalAssertionsDeathTest, TheLastOfNoRecordsEndsTheProcess)
{
    EXPECT_EQ(LastIndex::index_of_last(1), 0u);
    EXPECT_DEATH(LastIndex::index_of_last(0),
                 "signal_base\\w*\\.h:[0-9]+: .*Assertion `end > 0' failed\\.");
}

TEST(SignalAssertionsDeathTest, ADisconnectBesideASlotConnectedEmptyEndsTheProcess)
{
    VoidProbe signal;
    signal.connect(nullptr);
    auto connection = signal.connect([] {});
    signal.connect([&connection] { connection.disconnect(); });
    EXPECT_DEATH(
        signal.emit(),
        "signal_base\\w*\\.h:[0-9]+: .*Assertion `m_size == pending\\.size\\(\\)' failed\\.");
}

TEST(SignalAssertionsDeathTest, ADisconnectOutsideAnEmissionDoesSoAtTheNextOne)
{
    VoidProbe signal;
    signal.connect(nullptr);
    auto connection = signal.connect([] {});
    connection.disconnect();
    EXPECT_EQ(signal.num_slots(), 1u);
    EXPECT_DEATH(signal.emit(), "Assertion `m_size == pending\\.size\\(\\)' failed\\.");
}

TEST(SignalAssertionsDeathTest, ACountWithoutRecordsEndsTheProcess)
{
    VoidProbe signal;
    signal.m_size = 1;
    EXPECT_DEATH(signal.emit(), "Assertion `m_size == pending\\.size\\(\\)' failed\\.");
}

TEST(SignalAssertionsDeathTest, RunningOutOfIdsEndsTheProcess)
{
    VoidProbe signal;
    signal.last_id = std::numeric_limits<unsigned long>::max() - 1;
    EXPECT_DEATH(signal.connect([] {}),
                 "signal_base\\w*\\.h:[0-9]+: .*Assertion `"
                 "last_id < std::numeric_limits<slot_id>::max\\(\\) - 1 && "
                 "\"All available slot ids for this signal have been exhausted\\. "
                 "This may be a sign you are misusing signals\"' failed\\.");
}

TEST(SignalAssertionsDeathTest, TheProcessIsAborted)
{
    VoidProbe signal;
    signal.m_size = 1;
    EXPECT_EXIT(signal.emit(), testing::KilledBySignal(SIGABRT), "Assertion");
}

} // namespace
