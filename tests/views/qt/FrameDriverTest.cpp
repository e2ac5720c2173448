#include "views/motion/FrameDriver.h"

#include <QTest>
#include <functional>
#include <gtest/gtest.h>
#include <vector>

namespace brellowind {
namespace {

/// Remembers the moments that it was shown, and rests after `frames` of them.
class Recorder final : public Animated {
public:
    explicit Recorder(int frames_) : frames(frames_) {}
    ~Recorder() override { FrameDriver::shared().forget(*this); }

    bool advance(double now) override {
        moments.push_back(now);
        onFrame();
        return static_cast<int>(moments.size()) < frames;
    }

    int frames;
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
    EXPECT_EQ(driver.state(), QAbstractAnimation::Stopped);
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
    EXPECT_EQ(driver.state(), QAbstractAnimation::Running);
}

TEST_F(RunningFrameDriver, StopsWhenAllHaveComeToRest) {
    Recorder first(3);
    Recorder second(5);
    driver.drive(first);
    driver.drive(second);
    EXPECT_TRUE(QTest::qWaitFor([&] { return driver.state() == QAbstractAnimation::Stopped; }));
    EXPECT_EQ(first.moments.size(), 3U);
    EXPECT_EQ(second.moments.size(), 5U);
}

TEST_F(RunningFrameDriver, StopsWhenAllHaveGone) {
    {
        Recorder recorder(forever);
        driver.drive(recorder);
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return driver.state() == QAbstractAnimation::Stopped; }));
}

TEST_F(RunningFrameDriver, StartsAgainForWhatIsAskedForLater) {
    Recorder recorder(1);
    for (std::size_t round = 1; round <= 2; ++round) {
        recorder.frames = static_cast<int>(round);
        driver.drive(recorder);
        EXPECT_TRUE(QTest::qWaitFor([&] { return driver.state() == QAbstractAnimation::Stopped; }));
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
    EXPECT_TRUE(QTest::qWaitFor([&] { return driver.state() == QAbstractAnimation::Stopped; }));
    EXPECT_EQ(first.moments, second.moments);
    EXPECT_EQ(first.moments, clock);
    EXPECT_TRUE(std::ranges::is_sorted(first.moments));
}

} // namespace
} // namespace brellowind
