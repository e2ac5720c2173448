// SPDX-License-Identifier: MIT

#include "soak/Growth.h"

#include <gtest/gtest.h>
#include <vector>

namespace brellowind::test {
namespace {

TEST(Growth, IsNoneOfWhatStaysAsItIsOnceItIsWarm) {
    const std::vector<double> samples{1, 7, 7, 7, 7};
    EXPECT_EQ(growth(samples).amount(), 0);
}

TEST(Growth, IsThatOfAQuantityThatGrowsSteadily) {
    std::vector<double> samples;
    for (int i = 0; i < 100; ++i)
        samples.push_back(i);
    EXPECT_EQ(growth(samples).early, 30);
    EXPECT_EQ(growth(samples).late, 90);
    EXPECT_EQ(growth(samples).amount(), 60);
}

TEST(Growth, IgnoresSinglePeaks) {
    std::vector<double> samples(100, 5);
    samples[25] = 1000;
    samples[95] = 2000;
    EXPECT_EQ(growth(samples).amount(), 0);
}

} // namespace
} // namespace brellowind::test
