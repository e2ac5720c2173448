// SPDX-License-Identifier: MIT

#include "views/motion/Glide.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace brellowind {
namespace {

constexpr double frame = 1.0 / 240;

/// Measurements of a glide.
struct Seen {
    double start;         ///< seconds until it moves
    double end;           ///< seconds until it rests at its end
    double fastest;       ///< points per second
    double largestChange; ///< of the speed from frame to frame
};

Seen watched(const Glide& glide, double distance) {
    Seen seen{0, 0, 0, 0};
    double time = 0;
    double before = 0;
    double speed = 0;
    while (!glide.isOver(time) && time < 1e4) {
        if (!glide.hasBegun(time))
            seen.start = time;
        time += frame;
        const double offset = glide.offset(time);
        EXPECT_GE(offset, before) << "it never turns back";
        EXPECT_LE(offset, distance + 1e-9);
        const double now = (offset - before) / frame;
        seen.fastest = std::max(seen.fastest, now);
        seen.largestChange = std::max(seen.largestChange, std::abs(now - speed));
        speed = now;
        before = offset;
    }
    EXPECT_NEAR(glide.offset(time), distance, 1e-6);
    EXPECT_NEAR(glide.offset(time + 100), distance, 1e-6) << "and there it stays";
    seen.end = time;
    return seen;
}

TEST(Glide, StandsAtItsBeginningForAMoment) {
    const Glide glide(300, std::nullopt);
    EXPECT_EQ(glide.offset(0), 0);
    EXPECT_EQ(glide.offset(1), 0);
    EXPECT_FALSE(glide.hasBegun(1));
    EXPECT_GT(glide.offset(2), 0);
    EXPECT_TRUE(glide.hasBegun(2));
    EXPECT_FALSE(glide.isOver(2));
}

TEST(Glide, MovesAtThePaceOfReadingHoweverFarItGoes) {
    for (const double distance : {100.0, 300.0, 30'000.0}) {
        EXPECT_NEAR(watched(Glide(distance, std::nullopt), distance).fastest, 60, 0.1);
        EXPECT_NEAR(watched(Glide(distance, 1000), distance).fastest, 60, 0.1);
    }
}

TEST(Glide, OfALittleWayIsNoFasterAndIsSoonOver) {
    const Seen seen = watched(Glide(3, std::nullopt), 3);
    EXPECT_LE(seen.fastest, 60);
    EXPECT_LT(seen.end, 2);
}

TEST(Glide, HasShownItsEndForAMomentBeforeTheNextTextComes) {
    for (const double distance : {20.0, 300.0, 2000.0})
        for (const double life : {3.0, 4.0, 6.0, 12.0}) {
            const Seen seen = watched(Glide(distance, life), distance);
            EXPECT_LE(seen.end, life - 0.8 + 2 * frame) << distance << " in " << life;
            EXPECT_GE(seen.start, 1) << distance << " in " << life;
        }
}

TEST(Glide, IsFasterThanReadingOnlyWhereTimeIsShort) {
    const Seen calm = watched(Glide(300, 8), 300);
    const Seen quick = watched(Glide(300, 5), 300);
    EXPECT_NEAR(calm.fastest, 60, 0.1);
    EXPECT_GT(quick.fastest, 90);
}

TEST(Glide, OfATextThatIsHardlyShownStandsLessAndTakesASecondAtLeast) {
    const Seen two = watched(Glide(300, 2), 300);
    EXPECT_NEAR(two.end - two.start, 1, 3 * frame);
    EXPECT_GT(two.start, 0.3);
    EXPECT_LT(two.end, 1.7);
    for (const double life : {1.0, 0.3, 0.0, -5.0}) {
        const Seen seen = watched(Glide(300, life), 300);
        EXPECT_NEAR(seen.start, 0, 2 * frame) << life;
        EXPECT_NEAR(seen.end, 1, 2 * frame) << life;
    }
}

TEST(Glide, GathersSpeedAndSlowsDownSmoothly) {
    for (const double life : {2.0, 5.0, 100.0}) {
        const Seen seen = watched(Glide(300, life), 300);
        EXPECT_LT(seen.largestChange, seen.fastest / 40) << life;
    }
}

} // namespace
} // namespace brellowind
