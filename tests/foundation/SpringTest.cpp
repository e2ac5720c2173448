// SPDX-License-Identifier: MIT

#include "foundation/Spring.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <vector>

namespace brellowind {
namespace {

constexpr double pi = std::numbers::pi;

/// With this response the undamped angular frequency is 1 rad/s.
constexpr double unitResponse = 2 * pi;

/// At rest at 0, target 1 from time 0 on.
Spring released(SpringParameters parameters) {
    Spring spring(parameters, 0);
    spring.retarget(1, 0);
    return spring;
}

const std::vector<SpringParameters> kinds{
    {0.34, 0.82}, {0.42, 0.72}, {0.1, 0.5}, {0.24, 0.7}, {1, 0}};

TEST(Spring, RestsAtItsFirstValue) {
    const Spring spring({0.42, 0.72}, 5);
    EXPECT_EQ(spring.target(), 5);
    EXPECT_EQ(spring.value(3), 5);
    EXPECT_EQ(spring.velocity(3), 0);
}

TEST(Spring, UnderdampedOvershootsByItsFormula) {
    const auto spring = released({unitResponse, 0.6}); // oscillates at 0.8 rad/s
    const double peak = pi / 0.8;
    EXPECT_NEAR(spring.value(peak), 1 + 0.094780224842155, 1e-12); // e^(-0.75 pi)
    EXPECT_NEAR(spring.velocity(peak), 0, 1e-12);
    EXPECT_NEAR(spring.value(peak / 2), 1 - 0.230897978496374, 1e-12); // 0.75 e^(-0.375 pi)
}

TEST(Spring, UndampedSwingsForEverOncePerResponse) {
    const auto spring = released({1, 0});
    EXPECT_NEAR(spring.value(0.25), 1, 1e-12);
    EXPECT_NEAR(spring.velocity(0.25), 2 * pi, 1e-12);
    EXPECT_NEAR(spring.value(0.5), 2, 1e-12);
    EXPECT_NEAR(spring.value(1), 0, 1e-12);
    EXPECT_NEAR(spring.value(100.5), 2, 1e-9);
}

TEST(Spring, ObeysTheEquationOfTheDampedOscillator) {
    for (const auto& parameters : kinds) {
        const auto spring = released(parameters);
        const double stiffness = std::pow(2 * pi / parameters.response, 2);
        const double damping = 4 * pi * parameters.dampingFraction / parameters.response;
        const double step = parameters.response * 1e-6;
        for (double time = parameters.response / 16; time < parameters.response * 2;
             time += parameters.response / 8) {
            const double acceleration =
                (spring.velocity(time + step) - spring.velocity(time - step)) / (2 * step);
            const double force =
                -stiffness * (spring.value(time) - 1) - damping * spring.velocity(time);
            EXPECT_NEAR(acceleration, force, stiffness * 1e-5)
                << parameters.response << " " << parameters.dampingFraction << " at " << time;
        }
    }
}

TEST(Spring, VelocityIsTheChangeOfTheValue) {
    for (const auto& parameters : kinds) {
        const auto spring = released(parameters);
        const double step = parameters.response * 1e-6;
        for (double time = parameters.response / 16; time < parameters.response * 2;
             time += parameters.response / 8) {
            const double change =
                (spring.value(time + step) - spring.value(time - step)) / (2 * step);
            EXPECT_NEAR(spring.velocity(time), change, 1e-5 / parameters.response)
                << parameters.response << " " << parameters.dampingFraction << " at " << time;
        }
    }
}

TEST(Spring, ArrivesHoweverItIsDamped) {
    for (const auto& parameters : kinds) {
        if (parameters.dampingFraction == 0)
            continue;
        const auto spring = released(parameters);
        EXPECT_NEAR(spring.value(100), 1, 1e-9) << parameters.dampingFraction;
        EXPECT_NEAR(spring.velocity(100), 0, 1e-9) << parameters.dampingFraction;
        EXPECT_EQ(spring.value(1e9), 1) << parameters.dampingFraction;
        EXPECT_EQ(spring.velocity(1e9), 0) << parameters.dampingFraction;
    }
}

TEST(Spring, KeepsValueAndVelocityWhenTheTargetChanges) {
    for (const auto& parameters : kinds) {
        auto spring = released(parameters);
        const double turn = parameters.response * 0.3;
        const double value = spring.value(turn);
        const double velocity = spring.velocity(turn);
        ASSERT_GT(velocity, 0.1);
        spring.retarget(-4, turn);
        EXPECT_EQ(spring.target(), -4);
        EXPECT_NEAR(spring.value(turn), value, 1e-12);
        EXPECT_NEAR(spring.velocity(turn), velocity, 1e-12);
    }
}

TEST(Spring, ReachesTheNewTargetAfterAChange) {
    auto spring = released({0.42, 0.72});
    spring.retarget(-4, 0.1);
    EXPECT_NEAR(spring.value(10), -4, 1e-9);
}

TEST(Spring, ANewTargetEqualToTheOldOneChangesNothing) {
    const auto undisturbed = released({0.42, 0.72});
    auto spring = undisturbed;
    spring.retarget(1, 0.1);
    EXPECT_NEAR(spring.value(0.25), undisturbed.value(0.25), 1e-12);
    EXPECT_NEAR(spring.velocity(0.25), undisturbed.velocity(0.25), 1e-12);
}

TEST(Spring, MayContinueAsAnotherSpring) {
    auto spring = released({0.1, 0.5});
    const double value = spring.value(0.04);
    const double velocity = spring.velocity(0.04);
    ASSERT_GT(velocity, 1);
    spring.retarget(1, 0.04, {unitResponse, 0.6});
    EXPECT_NEAR(spring.value(0.04), value, 1e-12);
    EXPECT_NEAR(spring.velocity(0.04), velocity, 1e-12);
    // After a quarter of an oscillation at 0.8 rad/s.
    const double displacement = (velocity + 0.6 * (value - 1)) / 0.8 * std::exp(-0.375 * pi);
    EXPECT_NEAR(spring.value(0.04 + pi / 1.6), 1 + displacement, 1e-12);
}

TEST(Spring, IsAsItWasAtTimesBeforeTheChangeOfTarget) {
    Spring spring({0.42, 0.72}, 3);
    spring.retarget(8, 100);
    EXPECT_EQ(spring.value(99), 3);
    EXPECT_EQ(spring.velocity(99), 0);
    EXPECT_EQ(spring.value(100), 3);
}

TEST(Spring, OnlyTheTimeSinceTheChangeMatters) {
    const auto early = released({0.42, 0.72});
    Spring late({0.42, 0.72}, 0);
    late.retarget(1, 1024);
    EXPECT_NEAR(late.value(1024.125), early.value(0.125), 1e-12);
}

TEST(Spring, NeverMovesFasterThanTheSpeedThatItTells) {
    for (const double damping : {0.0, 0.3, 0.72}) {
        const auto spring = released({0.42, damping});
        double earlier = spring.speed(0);
        for (double time = 0; time < 3; time += 0.01) {
            EXPECT_LE(std::abs(spring.velocity(time)), spring.speed(time) * (1 + 1e-9));
            EXPECT_LE(spring.speed(time), earlier * (1 + 1e-9)) << "nor ever faster again";
            earlier = spring.speed(time);
        }
    }
    EXPECT_EQ(Spring({0.42, 0.72}, 5).speed(0), 0);
}

TEST(Spring, TellsTheSpeedAtWhichItWillPassTheTarget) {
    const auto undamped = released({1, 0});
    EXPECT_NEAR(undamped.speed(0), std::abs(undamped.velocity(0.25)), 1e-9);
}

TEST(Spring, IsSettledWhenItRests) {
    EXPECT_TRUE(Spring({0.42, 0.72}, 5).isSettled(0, 0));
}

TEST(Spring, IsNotSettledFarFromTheTarget) {
    const auto spring = released({0.42, 0.72});
    EXPECT_FALSE(spring.isSettled(0, 0.9));
    EXPECT_TRUE(spring.isSettled(0, 1.1));
}

TEST(Spring, IsNotSettledWhilePassingTheTarget) {
    const auto spring = released({unitResponse, 0.6});
    const double crossing = (pi - std::atan(4 / 3.0)) / 0.8;
    ASSERT_NEAR(spring.value(crossing), 1, 1e-12);
    EXPECT_FALSE(spring.isSettled(crossing, 0.05));
}

TEST(Spring, StaysWithinTheToleranceOnceSettled) {
    for (const auto& parameters : kinds) {
        if (parameters.dampingFraction == 0)
            continue;
        const auto spring = released(parameters);
        bool settled = false;
        for (double time = 0; time < 20; time += 0.003) {
            const bool settledNow = spring.isSettled(time, 0.01);
            EXPECT_TRUE(settledNow || !settled) << "unsettled at " << time;
            settled = settledNow;
            EXPECT_TRUE(!settled || std::abs(spring.value(time) - 1) <= 0.01) << "out at " << time;
        }
        EXPECT_TRUE(settled) << parameters.dampingFraction;
    }
}

TEST(Spring, UndampedNeverSettles) {
    EXPECT_FALSE(released({1, 0}).isSettled(1000.25, 0.5));
}

} // namespace
} // namespace brellowind
