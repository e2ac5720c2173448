// SPDX-License-Identifier: MIT

#include "platform/linux/x11/RaiseBudget.h"

#include <gtest/gtest.h>

namespace brellowind::platform {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

/// A conflict of two windows that starts at an arbitrary time.
class RaiseBudgetTest : public testing::Test {
protected:
    bool spendAt(milliseconds time) { return budget.spend(start + time); }

    void spendAllAt(milliseconds time) {
        for (std::size_t i = 0; i < RaiseBudget::raisesInAWindow; ++i)
            ASSERT_TRUE(spendAt(time));
        ASSERT_FALSE(spendAt(time));
    }

    RaiseBudget budget;
    const RaiseBudget::TimePoint start{std::chrono::hours(5)};
};

TEST_F(RaiseBudgetTest, AllowsFiveRaisesInASecondAndNotASixth) {
    for (int i = 0; i < 5; ++i)
        EXPECT_TRUE(spendAt(milliseconds(100 * i)));
    EXPECT_FALSE(spendAt(milliseconds(999)));
}

TEST_F(RaiseBudgetTest, NeverRunsOutForOneWhoNeedsItSeldom) {
    for (int i = 0; i < 100; ++i)
        EXPECT_TRUE(spendAt(milliseconds(250 * i)));
}

TEST_F(RaiseBudgetTest, PausesForTwoSecondsOnceItIsSpent) {
    spendAllAt(milliseconds(0));
    EXPECT_EQ(budget.pauseEnd(), start + seconds(2));
    EXPECT_FALSE(spendAt(milliseconds(1999)));
    EXPECT_TRUE(spendAt(milliseconds(2000)));
}

TEST_F(RaiseBudgetTest, PausesTwiceAsLongAfterEachRoundOfTheSameFight) {
    milliseconds now{0};
    for (const int pause : {2, 4, 8, 16, 32, 60, 60}) {
        spendAllAt(now);
        EXPECT_EQ(budget.pauseEnd(), start + now + seconds(pause));
        now += seconds(pause);
    }
}

TEST_F(RaiseBudgetTest, ForgetsAFightAfterAMinuteOfPeace) {
    spendAllAt(milliseconds(0));
    spendAllAt(seconds(2));
    const auto later = seconds(2 + 4 + 60);
    spendAllAt(later);
    EXPECT_EQ(budget.pauseEnd(), start + later + RaiseBudget::firstPause);
}

} // namespace
} // namespace brellowind::platform
