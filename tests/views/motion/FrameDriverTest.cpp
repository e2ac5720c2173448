// SPDX-License-Identifier: MIT

#include "views/motion/FrameDriver.h"

#include "views/SteppedFrames.h"

#include <QAbstractEventDispatcher>
#include <QTest>
#include <functional>
#include <gtest/gtest.h>
#include <vector>

namespace brellowind {
namespace {

/// Records the times of its frames, moves at `speed`, and is at rest after `frames` frames.
class Recorder final : public Animated {
public:
    Recorder(FrameDriver& driver_, int frames_) : driver(driver_), frames(frames_) {}
    ~Recorder() override { driver.forget(*this); }

    std::optional<double> advance(double now) override {
        moments.push_back(now);
        onFrame();
        if (static_cast<int>(moments.size()) < frames)
            return speed;
        return std::nullopt;
    }

    FrameDriver& driver;
    int frames;
    double speed = 1000;
    std::vector<double> moments;
    std::function<void()> onFrame = [] {};
};

constexpr int forever = 1 << 30;

class SteppedFrameDriver : public testing::Test {
protected:
    test::SteppedFrames driver;
};

TEST_F(SteppedFrameDriver, ShowsEveryMomentToWhatMoves) {
    Recorder recorder(driver, forever);
    driver.drive(recorder);
    EXPECT_TRUE(recorder.moments.empty());
    EXPECT_EQ(driver.now(), 100);
    driver.step(0.5);
    driver.step(0.25);
    EXPECT_EQ(recorder.moments, (std::vector<double>{100.5, 100.75}));
    EXPECT_EQ(driver.now(), 100.75);
}

TEST_F(SteppedFrameDriver, ShowsNothingToWhatHasComeToRest) {
    Recorder recorder(driver, 2);
    driver.drive(recorder);
    for (int i = 0; i < 5; ++i)
        driver.step(1);
    EXPECT_EQ(recorder.moments.size(), 2U);
}

TEST_F(SteppedFrameDriver, ShowsEachMomentOnceHoweverOftenItWasAsked) {
    Recorder recorder(driver, forever);
    driver.drive(recorder);
    driver.drive(recorder);
    driver.step(1);
    driver.drive(recorder);
    driver.step(1);
    EXPECT_EQ(recorder.moments.size(), 2U);
}

TEST_F(SteppedFrameDriver, CanBeAskedAgainAfterARest) {
    Recorder recorder(driver, 1);
    driver.drive(recorder);
    driver.step(1);
    recorder.frames = 2;
    driver.drive(recorder);
    driver.step(1);
    EXPECT_EQ(recorder.moments.size(), 2U);
}

TEST_F(SteppedFrameDriver, TakesUpWhatIsAskedForWithinAFrame) {
    Recorder asking(driver, forever);
    Recorder asked(driver, forever);
    asking.onFrame = [&] { driver.drive(asked); };
    driver.drive(asking);
    driver.step(1);
    driver.step(1);
    EXPECT_EQ(asking.moments.size(), 2U);
    ASSERT_FALSE(asked.moments.empty());
    EXPECT_EQ(asked.moments.back(), 102);
}

TEST_F(SteppedFrameDriver, KeepsWhatRestsAndIsAskedForInTheSameFrame) {
    Recorder resting(driver, 1);
    Recorder asking(driver, forever);
    asking.onFrame = [&] {
        if (asking.moments.size() == 1)
            driver.drive(resting);
    };
    driver.drive(resting);
    driver.drive(asking);
    driver.step(1);
    const auto before = resting.moments.size();
    driver.step(1);
    EXPECT_GE(resting.moments.size(), before);
    EXPECT_GE(resting.moments.size(), 2U) << "it rested before it was asked for again";
}

TEST_F(SteppedFrameDriver, ForgetsWhatGoesWithinAFrame) {
    for (const bool earlier : {true, false}) {
        auto going = std::make_unique<Recorder>(driver, forever);
        Recorder removing(driver, forever);
        removing.onFrame = [&] { going.reset(); };
        Recorder last(driver, forever);
        if (earlier)
            driver.drive(*going);
        driver.drive(removing);
        if (!earlier)
            driver.drive(*going);
        driver.drive(last);
        driver.step(1);
        driver.step(1);
        EXPECT_EQ(removing.moments.size(), 2U);
        EXPECT_EQ(last.moments.size(), 2U);
    }
}

class RunningFrameDriver : public testing::Test {
protected:
    /// Whether the timer is running.
    bool isRunning() {
        return !QAbstractEventDispatcher::instance()->registeredTimers(&driver).isEmpty();
    }

    FrameDriver driver;
};

TEST_F(RunningFrameDriver, MakesNoFrameBeforeTheFirstOneIsDue) {
    Recorder recorder(driver, forever);
    driver.drive(recorder);
    EXPECT_TRUE(recorder.moments.empty()) << "several may be asked for before one is made";
    EXPECT_TRUE(isRunning());
}

TEST_F(RunningFrameDriver, StopsWhenAllHaveComeToRest) {
    Recorder first(driver, 3);
    Recorder second(driver, 5);
    driver.drive(first);
    driver.drive(second);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isRunning(); }));
    EXPECT_EQ(first.moments.size(), 3U);
    EXPECT_EQ(second.moments.size(), 5U);
}

TEST_F(RunningFrameDriver, MakesFewerFramesOfWhatMovesSlowly) {
    const auto seconds = [this](double speed) {
        Recorder recorder(driver, 4);
        recorder.speed = speed;
        driver.drive(recorder);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !isRunning(); }));
        return recorder.moments.back() - recorder.moments.front();
    };
    // Frames may be late on a busy machine, never early.
    EXPECT_GE(seconds(1000), 3 * 0.015);
    EXPECT_GE(seconds(0.5 / 0.03), 3 * 0.029); // by half a point in 30 ms
    EXPECT_GE(seconds(0.1), 3 * 0.049);
    double shortest = 1;
    for (int i = 0; i < 20 && shortest >= 3 * 0.04; ++i)
        shortest = std::min(shortest, seconds(0.5 / 0.03));
    EXPECT_LT(shortest, 3 * 0.04) << "moves by more than half a point in a frame";
}

TEST_F(RunningFrameDriver, LetsNothingWaitForWhatMovesSlowly) {
    Recorder slow(driver, forever);
    slow.speed = 0.1;
    driver.drive(slow);
    EXPECT_TRUE(QTest::qWaitFor([&] { return slow.moments.size() == 2; }));
    const auto waits = [&] {
        Recorder recorder(driver, 1);
        const double asked = driver.now();
        driver.drive(recorder);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !recorder.moments.empty(); }));
        return recorder.moments.back() - asked;
    };
    double shortest = 1; // of several, since a busy machine may be late with any
    for (int i = 0; i < 20 && shortest >= 0.03; ++i)
        shortest = std::min(shortest, waits());
    EXPECT_LT(shortest, 0.03);
}

TEST_F(RunningFrameDriver, StopsWhenAllHaveGone) {
    {
        Recorder recorder(driver, forever);
        driver.drive(recorder);
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isRunning(); }));
}

TEST_F(RunningFrameDriver, StartsAgainAfterWhatWentBeforeItWasShown) {
    {
        Recorder unseen(driver, forever);
        driver.drive(unseen);
    }
    Recorder recorder(driver, 1);
    driver.drive(recorder);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !recorder.moments.empty(); }));
}

TEST_F(RunningFrameDriver, StartsAgainForWhatIsAskedForLater) {
    Recorder recorder(driver, 1);
    for (std::size_t round = 1; round <= 2; ++round) {
        recorder.frames = static_cast<int>(round);
        driver.drive(recorder);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !isRunning(); }));
        EXPECT_EQ(recorder.moments.size(), round);
    }
}

TEST_F(RunningFrameDriver, ShowsAllTheSameMomentInOneFrameAndNeverGoesBack) {
    Recorder first(driver, 4);
    Recorder second(driver, 4);
    std::vector<double> clock;
    first.onFrame = [&] { clock.push_back(driver.now()); };
    driver.drive(first);
    driver.drive(second);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isRunning(); }));
    EXPECT_EQ(first.moments, second.moments);
    EXPECT_EQ(first.moments, clock);
    EXPECT_TRUE(std::ranges::is_sorted(first.moments));
}

} // namespace
} // namespace brellowind
