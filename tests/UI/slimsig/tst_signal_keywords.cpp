#include "Keywords.h"

#include <gtest/gtest.h>

// That this program builds is the better half of the test.

TEST(SignalKeywords, TheCallOperatorServesSourcesWithQtsKeywords)
{
    EXPECT_EQ(callsWithKeywordsAlive(), 3);
}

TEST(SignalKeywords, EmitServesSourcesWithoutThem)
{
    EXPECT_EQ(callsWithKeywordsDead(), 3);
}
