#include "views/motion/FrameDriver.h"

#include <QTest>
#include <functional>
#include <gtest/gtest.h>
#include <vector>

namespace brellowind {
namespace {

/// Remembers the moments that it was shown, moves at `speed`, and rests after `frames` of them.
class Recorder final : public Animated {
public:
    explicit Recorder(int frames_) : frames(frames_) {}
    ~Recorder() override { FrameDriver::shared().forget(*this); }

    std::optional<double> advance(double now) override {
        moments.push_back(now);
        onFrame();
        if (static_cast<int>(moments.size()) < frames)
            return speed;
        return std::nullopt;
    }

    int frames;
    double speed = 1000;
    std::vector<double> moments;
    std::function<void()> onFrame = [] {};
};

constexpr int forever = 1 << 30;

class FrozenFrameDriver : public testing::Test {
protected:
    FrozenFrameDriver() { driver.freeze(100); }
    ~FrozenFrameDriver() override { driver.thaw(); }

    FrameDriver& driver = FrameDriver::shared();
};

TEST_F(FrozenFrameDriver, StandsUntilItIsStepped) {
    Recorder recorder(forever);
    driver.drive(recorder);
    QTest::qWait(0);
    EXPECT_TRUE(recorder.moments.empty());
    EXPECT_EQ(driver.now(), 100);
    driver.step(0.5);
    driver.step(0.25);
    EXPECT_EQ(recorder.moments, (std::vector<double>{100.5, 100.75}));
    EXPECT_EQ(driver.now(), 100.75);
    EXPECT_FALSE(driver.isRunning());
}

TEST_F(FrozenFrameDriver, ShowsNothingToWhatHasComeToRest) {
    Recorder recorder(2);
    driver.drive(recorder);
    for (int i = 0; i < 5; ++i)
        driver.step(1);
    EXPECT_EQ(recorder.moments.size(), 2U);
}

TEST_F(FrozenFrameDriver, ShowsEachMomentOnceHoweverOftenItWasAsked) {
    Recorder recorder(forever);
    driver.drive(recorder);
    driver.drive(recorder);
    driver.step(1);
    driver.drive(recorder);
    driver.step(1);
    EXPECT_EQ(recorder.moments.size(), 2U);
}

TEST_F(FrozenFrameDriver, CanBeAskedAgainAfterARest) {
    Recorder recorder(1);
    driver.drive(recorder);
    driver.step(1);
    recorder.frames = 2;
    driver.drive(recorder);
    driver.step(1);
    EXPECT_EQ(recorder.moments.size(), 2U);
}

TEST_F(FrozenFrameDriver, TakesUpWhatIsAskedForWithinAFrame) {
    Recorder asking(forever);
    Recorder asked(forever);
    asking.onFrame = [&] { driver.drive(asked); };
    driver.drive(asking);
    driver.step(1);
    driver.step(1);
    EXPECT_EQ(asking.moments.size(), 2U);
    ASSERT_FALSE(asked.moments.empty());
    EXPECT_EQ(asked.moments.back(), 102);
}

TEST_F(FrozenFrameDriver, KeepsWhatRestsAndIsAskedForInTheSameFrame) {
    Recorder resting(1);
    Recorder asking(forever);
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

TEST_F(FrozenFrameDriver, ForgetsWhatGoesWithinAFrame) {
    for (const bool earlier : {true, false}) {
        auto going = std::make_unique<Recorder>(forever);
        Recorder removing(forever);
        removing.onFrame = [&] { going.reset(); };
        Recorder last(forever);
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
    FrameDriver& driver = FrameDriver::shared();
};

TEST_F(RunningFrameDriver, MakesNoFrameBeforeTheFirstOneIsDue) {
    Recorder recorder(forever);
    driver.drive(recorder);
    EXPECT_TRUE(recorder.moments.empty()) << "several may be asked for before one is made";
    EXPECT_TRUE(driver.isRunning());
}

TEST_F(RunningFrameDriver, StopsWhenAllHaveComeToRest) {
    Recorder first(3);
    Recorder second(5);
    driver.drive(first);
    driver.drive(second);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !driver.isRunning(); }));
    EXPECT_EQ(first.moments.size(), 3U);
    EXPECT_EQ(second.moments.size(), 5U);
}

TEST_F(RunningFrameDriver, MakesFewerFramesOfWhatMovesSlowly) {
    const auto seconds = [this](double speed) {
        Recorder recorder(9);
        recorder.speed = speed;
        driver.drive(recorder);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !driver.isRunning(); }));
        return recorder.moments.back() - recorder.moments.front();
    };
    // Frames may be late on a busy machine, but never early.
    EXPECT_GE(seconds(1000), 8 * 0.015);
    EXPECT_GE(seconds(0.5 / 0.03), 8 * 0.029); // by half a point in 30 ms
    EXPECT_GE(seconds(0.1), 8 * 0.049);
}

TEST_F(RunningFrameDriver, LetsNothingWaitForWhatMovesSlowly) {
    Recorder slow(forever);
    slow.speed = 0.1;
    driver.drive(slow);
    EXPECT_TRUE(QTest::qWaitFor([&] { return slow.moments.size() == 2; }));
    const auto waits = [&] {
        Recorder recorder(1);
        const double asked = driver.now();
        driver.drive(recorder);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !recorder.moments.empty(); }));
        return recorder.moments.back() - asked;
    };
    double shortest = 1; // of many, since a busy machine may be late with any
    for (int i = 0; i < 20; ++i)
        shortest = std::min(shortest, waits());
    EXPECT_LT(shortest, 0.03);
}

TEST_F(RunningFrameDriver, StopsWhenAllHaveGone) {
    {
        Recorder recorder(forever);
        driver.drive(recorder);
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return !driver.isRunning(); }));
}

TEST_F(RunningFrameDriver, StartsAgainAfterWhatWentBeforeItWasShown) {
    {
        Recorder unseen(forever);
        driver.drive(unseen);
    }
    Recorder recorder(1);
    driver.drive(recorder);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !recorder.moments.empty(); }));
}

TEST_F(RunningFrameDriver, StartsAgainForWhatIsAskedForLater) {
    Recorder recorder(1);
    for (std::size_t round = 1; round <= 2; ++round) {
        recorder.frames = static_cast<int>(round);
        driver.drive(recorder);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !driver.isRunning(); }));
        EXPECT_EQ(recorder.moments.size(), round);
    }
}

TEST_F(RunningFrameDriver, ShowsAllTheSameMomentInOneFrameAndNeverGoesBack) {
    Recorder first(4);
    Recorder second(4);
    std::vector<double> clock;
    first.onFrame = [&] { clock.push_back(driver.now()); };
    driver.drive(first);
    driver.drive(second);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !driver.isRunning(); }));
    EXPECT_EQ(first.moments, second.moments);
    EXPECT_EQ(first.moments, clock);
    EXPECT_TRUE(std::ranges::is_sorted(first.moments));
}

} // namespace
} // namespace brellowind
