#include "views/motion/SpringValue.h"
#include "views/motion/Springs.h"

#include <QTest>
#include <gtest/gtest.h>
#include <memory>

namespace brellowind {
namespace {

constexpr double start = 100;

class SpringValueTest : public testing::Test {
protected:
    SpringValueTest() {
        driver.freeze(start);
        value.setSpring(SpringValue::Hover);
        value.setTarget(0);
        value.componentComplete();
    }
    ~SpringValueTest() override { driver.thaw(); }

    FrameDriver& driver = FrameDriver::shared();
    SpringValue value;
};

TEST_F(SpringValueTest, IsAtItsTargetAtOnceWhenItIsComplete) {
    SpringValue made;
    made.setTarget(1);
    made.setTarget(7);
    made.setSpring(SpringValue::PulseFall);
    driver.step(0.1);
    made.componentComplete();
    EXPECT_EQ(made.value(), 7);
    int changes = 0;
    QObject::connect(&made, &SpringValue::valueChanged, [&] { ++changes; });
    driver.step(0.1);
    EXPECT_EQ(made.value(), 7);
    EXPECT_EQ(changes, 0);
}

TEST_F(SpringValueTest, BeginsToMoveInTheNextFrame) {
    value.setTarget(1);
    EXPECT_EQ(value.value(), 0);
    driver.step(0.5);
    EXPECT_EQ(value.value(), 0) << "in its first frame it stands where it stood";
    driver.step(0.01);
    EXPECT_GT(value.value(), 0);
}

TEST_F(SpringValueTest, FollowsItsSpring) {
    const std::pair<SpringValue::Kind, SpringParameters> kinds[] = {
        {SpringValue::Hover, {0.34, 0.82}},
        {SpringValue::Morph, {0.42, 0.72}},
        {SpringValue::PulseRise, {0.1, 0.5}},
        {SpringValue::PulseFall, {0.24, 0.7}},
    };
    for (const auto& [kind, parameters] : kinds) {
        SpringValue moving;
        moving.setSpring(kind);
        moving.setTarget(10);
        moving.componentComplete();
        moving.setTarget(30);
        driver.step(0);
        Spring expected(parameters, 10);
        expected.retarget(30, driver.now());
        for (int i = 0; i < 10; ++i) {
            driver.step(0.016);
            EXPECT_DOUBLE_EQ(moving.value(), expected.value(driver.now())) << kind;
        }
    }
}

TEST_F(SpringValueTest, TakesATargetAndASpringThatChangeTogetherTogether) {
    for (const bool targetFirst : {true, false}) {
        SpringValue moving;
        moving.setSpring(SpringValue::Morph);
        moving.componentComplete();
        if (targetFirst)
            moving.setTarget(1);
        moving.setSpring(SpringValue::PulseRise);
        moving.setTarget(1);
        driver.step(0);
        Spring expected(springs::pulseRise, 0);
        expected.retarget(1, driver.now());
        driver.step(0.03);
        EXPECT_DOUBLE_EQ(moving.value(), expected.value(driver.now()));
    }
}

TEST_F(SpringValueTest, KeepsValueAndVelocityWhenItsTargetChanges) {
    value.setTarget(1);
    driver.step(0);
    Spring expected(springs::hoverSpring, 0);
    expected.retarget(1, driver.now());
    driver.step(0.08);
    const double before = value.value();
    value.setTarget(-5);
    driver.step(0);
    EXPECT_DOUBLE_EQ(value.value(), before);
    const double velocity = expected.velocity(driver.now());
    ASSERT_GT(velocity, 1);
    driver.step(1e-6);
    EXPECT_NEAR((value.value() - before) / 1e-6, velocity, 0.01 * velocity);
}

TEST_F(SpringValueTest, TurnsBackWithinAFrameWithoutAJump) {
    value.setTarget(1);
    driver.step(0);
    driver.step(0.05);
    const double before = value.value();
    value.setTarget(0);
    value.setTarget(1);
    driver.step(0);
    EXPECT_DOUBLE_EQ(value.value(), before);
}

TEST_F(SpringValueTest, EndsExactlyOnItsTarget) {
    value.setTarget(0.1);
    driver.step(0);
    driver.step(10);
    EXPECT_EQ(value.value(), 0.1);
}

TEST_F(SpringValueTest, IsClosestToItsTargetWhereThatMovesTheMost) {
    const auto framesToRest = [this](double reach) {
        SpringValue moving;
        moving.setSpring(SpringValue::Morph);
        moving.setProperty("reach", reach);
        moving.componentComplete();
        moving.setTarget(1);
        int frames = 0;
        for (driver.step(0); moving.value() != 1; ++frames)
            driver.step(0.016);
        return frames;
    };
    const int little = framesToRest(10);
    EXPECT_GT(little, 10);
    EXPECT_GT(framesToRest(1000), little + 10);
}

TEST_F(SpringValueTest, IsNotMovedAnyMoreOnceItRests) {
    value.setTarget(1);
    driver.step(0);
    driver.step(10);
    int changes = 0;
    QObject::connect(&value, &SpringValue::valueChanged, [&] { ++changes; });
    driver.step(0.1);
    driver.step(10);
    EXPECT_EQ(changes, 0);
}

TEST_F(SpringValueTest, TellsOfEveryChangeOnceAndOfNoneThatIsNone) {
    int targets = 0;
    int kinds = 0;
    int values = 0;
    QObject::connect(&value, &SpringValue::targetChanged, [&] { ++targets; });
    QObject::connect(&value, &SpringValue::springChanged, [&] { ++kinds; });
    QObject::connect(&value, &SpringValue::valueChanged, [&] { ++values; });
    value.setTarget(0);
    value.setSpring(SpringValue::Hover);
    driver.step(1);
    EXPECT_EQ(targets + kinds + values, 0);
    value.setTarget(1);
    value.setSpring(SpringValue::Morph);
    driver.step(0);
    EXPECT_EQ(values, 0);
    driver.step(0.01);
    EXPECT_EQ(targets, 1);
    EXPECT_EQ(kinds, 1);
    EXPECT_EQ(values, 1);
}

TEST_F(SpringValueTest, MayBeRetargetedByItsOwnChange) {
    bool turned = false;
    QObject::connect(&value, &SpringValue::valueChanged, [&] {
        if (value.value() > 0.5 && !std::exchange(turned, true))
            value.setTarget(-1);
    });
    value.setTarget(1);
    for (int i = 0; i < 300; ++i)
        driver.step(0.016);
    EXPECT_TRUE(turned);
    EXPECT_EQ(value.value(), -1);
}

TEST_F(SpringValueTest, MayGoWhileItMoves) {
    auto going = std::make_unique<SpringValue>();
    going->componentComplete();
    going->setTarget(1);
    value.setTarget(1);
    driver.step(0);
    driver.step(0.02);
    going.reset();
    driver.step(10);
    EXPECT_EQ(value.value(), 1);
}

TEST_F(SpringValueTest, MayGoInTheFrameOfAnother) {
    auto going = std::make_unique<SpringValue>();
    going->componentComplete();
    value.setTarget(1);
    going->setTarget(1);
    driver.step(0);
    QObject::connect(&value, &SpringValue::valueChanged, [&] { going.reset(); });
    driver.step(0.02);
    EXPECT_EQ(going, nullptr);
    driver.step(10);
    EXPECT_EQ(value.value(), 1);
}

TEST(RunningSpringValue, ArrivesAndStopsTheDriver) {
    SpringValue value;
    value.setSpring(SpringValue::PulseRise);
    value.componentComplete();
    value.setTarget(1);
    EXPECT_TRUE(FrameDriver::shared().isRunning());
    EXPECT_TRUE(QTest::qWaitFor([] { return !FrameDriver::shared().isRunning(); }));
    EXPECT_EQ(value.value(), 1);
}

} // namespace
} // namespace brellowind
