// SPDX-License-Identifier: MIT

#include "views/motion/SpringValue.h"
#include "views/motion/Springs.h"

#include <gtest/gtest.h>

namespace brellowind {
namespace {

constexpr double start = 100;

class SpringValueTest : public testing::Test {
protected:
    /// Advances time and the value.
    std::optional<double> step(double seconds) { return value.advance(now += seconds); }

    SpringValue value{springs::hoverSpring};
    double now = start;
};

TEST_F(SpringValueTest, RestsWhereItBegins) {
    SpringValue made(springs::morph, 7);
    EXPECT_EQ(made.value(), 7);
    EXPECT_FALSE(made.isMoving());
    EXPECT_EQ(made.advance(start), std::nullopt);
    EXPECT_EQ(made.value(), 7);
}

TEST_F(SpringValueTest, BeginsToMoveInTheNextFrame) {
    value.setTarget(1);
    EXPECT_TRUE(value.isMoving());
    EXPECT_EQ(value.value(), 0);
    EXPECT_TRUE(step(0.5));
    EXPECT_EQ(value.value(), 0) << "in its first frame it stands where it stood";
    EXPECT_TRUE(step(0.01));
    EXPECT_GT(value.value(), 0);
}

TEST_F(SpringValueTest, FollowsItsSpring) {
    for (const auto& parameters :
         {springs::hoverSpring, springs::morph, springs::pulseRise, springs::pulseFall}) {
        SpringValue moving(parameters, 10);
        moving.setTarget(30);
        moving.advance(now);
        Spring expected(parameters, 10);
        expected.retarget(30, now);
        for (int i = 0; i < 10; ++i) {
            moving.advance(now += 0.016);
            EXPECT_DOUBLE_EQ(moving.value(), expected.value(now)) << parameters.response;
        }
    }
}

TEST_F(SpringValueTest, TakesAnotherSpringWithItsTarget) {
    SpringValue moving(springs::morph);
    moving.setTarget(1, springs::pulseRise);
    moving.advance(now);
    Spring expected(springs::pulseRise, 0);
    expected.retarget(1, now);
    moving.advance(now += 0.03);
    EXPECT_DOUBLE_EQ(moving.value(), expected.value(now));
}

TEST_F(SpringValueTest, KeepsValueAndVelocityWhenItsTargetChanges) {
    value.setTarget(1);
    step(0);
    Spring expected(springs::hoverSpring, 0);
    expected.retarget(1, now);
    step(0.08);
    const double before = value.value();
    value.setTarget(-5);
    step(0);
    EXPECT_DOUBLE_EQ(value.value(), before);
    const double velocity = expected.velocity(now);
    ASSERT_GT(velocity, 1);
    step(1e-6);
    EXPECT_NEAR((value.value() - before) / 1e-6, velocity, 0.01 * velocity);
}

TEST_F(SpringValueTest, TurnsBackWithinAFrameWithoutAJump) {
    value.setTarget(1);
    step(0);
    step(0.05);
    const double before = value.value();
    value.setTarget(0);
    value.setTarget(1);
    step(0);
    EXPECT_DOUBLE_EQ(value.value(), before);
}

TEST_F(SpringValueTest, EndsExactlyOnItsTarget) {
    value.setTarget(0.1);
    step(0);
    EXPECT_EQ(step(10), std::nullopt);
    EXPECT_EQ(value.value(), 0.1);
    EXPECT_FALSE(value.isMoving());
}

TEST_F(SpringValueTest, JumpsWhenItSettles) {
    value.setTarget(1);
    step(0);
    step(0.05);
    value.setTarget(3);
    value.settle();
    EXPECT_EQ(value.value(), 3);
    EXPECT_FALSE(value.isMoving());
    EXPECT_EQ(step(0.01), std::nullopt);
    EXPECT_EQ(value.value(), 3);
}

TEST_F(SpringValueTest, IsClosestToItsTargetWhereThatMovesTheMost) {
    const auto framesToRest = [this](double reach) {
        SpringValue moving(springs::morph, 0, reach);
        moving.setTarget(1);
        int frames = 0;
        for (moving.advance(now); moving.isMoving(); ++frames)
            moving.advance(now += 0.016);
        EXPECT_EQ(moving.value(), 1);
        return frames;
    };
    const int little = framesToRest(10);
    EXPECT_GT(little, 10);
    EXPECT_GT(framesToRest(1000), little + 10);
}

TEST_F(SpringValueTest, TellsHowFastItMovesWhatReachesFar) {
    SpringValue far(springs::hoverSpring, 0, 300);
    SpringValue near(springs::hoverSpring, 0, 100);
    far.setTarget(1);
    near.setTarget(1);
    far.advance(now);
    near.advance(now);
    now += 0.05;
    Spring expected(springs::hoverSpring, 0);
    expected.retarget(1, start);
    EXPECT_DOUBLE_EQ(far.advance(now).value(), 300 * expected.speed(now));
    EXPECT_DOUBLE_EQ(near.advance(now).value(), 100 * expected.speed(now));
}

TEST_F(SpringValueTest, IsNotMovedByTheTargetThatItHas) {
    value.setTarget(0);
    value.setTarget(0, springs::hoverSpring);
    EXPECT_FALSE(value.isMoving());
    EXPECT_EQ(step(1), std::nullopt);
}

} // namespace
} // namespace brellowind
