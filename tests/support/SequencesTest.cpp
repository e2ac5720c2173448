// SPDX-License-Identifier: MIT

#include "support/Sequences.h"

#include <algorithm>

namespace brellowind::test {
namespace {

/// Numbers, with a disagreement when a 7 follows a 3.
Experiment<int> sevenAfterThree() {
    return {
        .step = [](Chance& chance) { return chance.below(10); },
        .run = [](const Steps<int>& steps) -> Disagreement {
            const auto three = std::ranges::find(steps, 3);
            return std::find(three, steps.end(), 7) != steps.end() ? Disagreement("7 after 3")
                                                                   : std::nullopt;
        },
    };
}

TEST(Sequences, FindADisagreementAndShortenItToWhatItTakes) {
    const auto finding = findDisagreement(sevenAfterThree(), 1, 1000);
    ASSERT_TRUE(finding);
    EXPECT_EQ(finding->steps, (Steps<int>{3, 7}));
    EXPECT_EQ(finding->disagreement, "7 after 3");
}

TEST(Sequences, AreFoundAgainByTheirSeed) {
    const auto finding = findDisagreement(sevenAfterThree(), 1, 1000);
    ASSERT_TRUE(finding);
    const auto again = findDisagreement(sevenAfterThree(), finding->seed, 1);
    ASSERT_TRUE(again);
    EXPECT_EQ(again->seed, finding->seed);
    EXPECT_EQ(again->steps, finding->steps);
}

TEST(Sequences, AgreeWhenNoneDisagrees) {
    auto experiment = sevenAfterThree();
    experiment.step = [](Chance& chance) { return chance.below(7); };
    EXPECT_FALSE(findDisagreement(experiment, 1, 1000));
}

} // namespace
} // namespace brellowind::test
