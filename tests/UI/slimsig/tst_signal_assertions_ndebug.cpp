#ifndef NDEBUG
#define NDEBUG
#endif

#include <cassert>

#include "tst_signal_assertions.cpp"

namespace {

TEST(SignalAssertions, OrdinaryOnesAreOffInThisProgram)
{
    assert(false);
}

} // namespace
