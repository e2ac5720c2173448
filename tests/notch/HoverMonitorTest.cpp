// SPDX-License-Identifier: MIT

#include "notch/HoverMonitor.h"
#include "support/PrintGeometry.h"
#include "support/TestMachine.h"

#include <gtest/gtest.h>
#include <limits>

namespace brellowind {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr Rect laptopFrame{0, 0, 1512, 982};
constexpr Point overThePill{756, 950};
constexpr Point elsewhere{300, 300};

TEST(HoverRectangle, IsTheContentAndItsMargins) {
    EXPECT_EQ(hoverRectangle(laptopFrame, {280, 59}), (Rect{608, 915, 296, 67}));
}

TEST(HoverRectangle, GrowsWithTheContent) {
    EXPECT_EQ(hoverRectangle(laptopFrame, {460, 220}), (Rect{518, 754, 476, 228}));
}

TEST(HoverRectangle, IsTheMarginsAloneAroundNoContent) {
    EXPECT_EQ(hoverRectangle(laptopFrame, {0, 0}), (Rect{748, 974, 16, 8}));
}

TEST(HoverRectangle, HangsFromTheMiddleOfAnyScreen) {
    EXPECT_EQ(hoverRectangle({-1920, -200, 1920, 1080}, {280, 59}), (Rect{-1108, 813, 296, 67}));
}

TEST(HoverRectangle, MayBeWiderThanTheScreen) {
    EXPECT_EQ(hoverRectangle({0, 0, 200, 100}, {280, 59}), (Rect{-48, 33, 296, 67}));
}

class HoverMonitorTest : public testing::Test {
protected:
    HoverMonitorTest() { connect({.frame = laptopFrame, .topSafeAreaInset = 32}); }

    /// Makes `screen` the only screen.
    void connect(const platform::Screen& screen) {
        machine.screens.connected = {screen};
        machine.screens.mainScreen = screen;
    }

    void disconnectAll() {
        machine.screens.connected.clear();
        machine.screens.mainScreen.reset();
    }

    /// `isInside` after the pointer has moved to `point`.
    bool insideAt(Point point) {
        machine.pointer.move(point);
        return hover->isInside.get();
    }

    test::TestMachine machine;
    std::shared_ptr<HoverMonitor> hover =
        std::make_shared<HoverMonitor>(machine.pointer, machine.screens);
};

TEST_F(HoverMonitorTest, BeginsOutsideWithTheSizeOfTheCollapsedPill) {
    EXPECT_FALSE(hover->isInside.get());
    EXPECT_EQ(hover->currentSize, (Size{280, 59}));
}

TEST_F(HoverMonitorTest, DoesNotWatchBeforeItIsStarted) {
    EXPECT_EQ(machine.pointer.monitorCount(), 0U);
    EXPECT_FALSE(insideAt(overThePill));
}

TEST_F(HoverMonitorTest, LooksAtOnceWhenStarted) {
    machine.pointer.position = overThePill;
    hover->start();
    EXPECT_TRUE(hover->isInside.get());
}

TEST_F(HoverMonitorTest, FollowsThePointerInAndOut) {
    hover->start();
    EXPECT_TRUE(insideAt(overThePill));
    EXPECT_FALSE(insideAt(elsewhere));
    EXPECT_TRUE(insideAt(overThePill));
}

TEST_F(HoverMonitorTest, LeftEdgeIsInside) {
    hover->start();
    EXPECT_TRUE(insideAt({608, 950}));
    EXPECT_FALSE(insideAt({607.999, 950}));
}

TEST_F(HoverMonitorTest, RightEdgeIsOutside) {
    hover->start();
    EXPECT_TRUE(insideAt({903.999, 950}));
    EXPECT_FALSE(insideAt({904, 950}));
}

TEST_F(HoverMonitorTest, BottomEdgeIsInside) {
    hover->start();
    EXPECT_TRUE(insideAt({756, 915}));
    EXPECT_FALSE(insideAt({756, 914.999}));
}

TEST_F(HoverMonitorTest, TopEdgeIsOutside) {
    hover->start();
    EXPECT_TRUE(insideAt({756, 981.999}));
    EXPECT_FALSE(insideAt({756, 982}));
}

TEST_F(HoverMonitorTest, NotifiesOnlyWhenThePointerCrossesTheEdge) {
    hover->start();
    int notifications = 0;
    const auto subscription = hover->isInside.observe([&] { ++notifications; });
    insideAt(elsewhere);
    EXPECT_EQ(notifications, 0);
    insideAt(overThePill);
    EXPECT_EQ(notifications, 1);
    insideAt({700, 930});
    insideAt({800, 960});
    EXPECT_EQ(notifications, 1);
    insideAt(elsewhere);
    EXPECT_EQ(notifications, 2);
}

TEST_F(HoverMonitorTest, StartingDoesNotNotifyOfAnUnchangedValue) {
    machine.pointer.position = elsewhere;
    int notifications = 0;
    const auto subscription = hover->isInside.observe([&] { ++notifications; });
    hover->start();
    EXPECT_EQ(notifications, 0);
}

TEST_F(HoverMonitorTest, ANewSizeCountsFromTheNextMovementOn) {
    constexpr Point belowTheCollapsedPill{756, 800};
    hover->start();
    ASSERT_FALSE(insideAt(belowTheCollapsedPill));
    hover->currentSize = {460, 220};
    EXPECT_FALSE(hover->isInside.get());
    EXPECT_TRUE(insideAt(belowTheCollapsedPill));
}

TEST_F(HoverMonitorTest, ASizeThatIsNotANumberHasNoInside) {
    hover->start();
    ASSERT_TRUE(insideAt(overThePill));
    hover->currentSize = {nan, 59};
    EXPECT_FALSE(insideAt(overThePill));
    hover->currentSize = {280, nan};
    EXPECT_FALSE(insideAt(overThePill));
    hover->currentSize = {infinity, 59};
    EXPECT_FALSE(insideAt(overThePill));
}

TEST_F(HoverMonitorTest, APointerThatCannotBeSeenIsOutside) {
    hover->start();
    ASSERT_TRUE(insideAt(overThePill));
    machine.pointer.move(std::nullopt);
    EXPECT_FALSE(hover->isInside.get());
}

TEST_F(HoverMonitorTest, StartedTwiceWatchesOnce) {
    hover->start();
    hover->start();
    EXPECT_EQ(machine.pointer.monitorCount(), 1U);
    EXPECT_TRUE(insideAt(overThePill));
}

TEST_F(HoverMonitorTest, StartedTwiceRemovesTheEarlierMonitorFirst) {
    hover->start();
    hover->start();
    EXPECT_EQ(machine.pointer.mostMonitorsAtOnce, 1U);
}

TEST_F(HoverMonitorTest, StoppedWatchesNoMore) {
    hover->start();
    ASSERT_TRUE(insideAt(overThePill));
    hover->stop();
    EXPECT_EQ(machine.pointer.monitorCount(), 0U);
    EXPECT_TRUE(insideAt(elsewhere)) << "the value is kept";
}

TEST_F(HoverMonitorTest, MayBeStoppedWhenItIsNotStarted) {
    hover->stop();
    hover->start();
    hover->stop();
    hover->stop();
    EXPECT_EQ(machine.pointer.monitorCount(), 0U);
}

TEST_F(HoverMonitorTest, MayBeStartedAgainAfterItWasStopped) {
    hover->start();
    hover->stop();
    hover->start();
    EXPECT_TRUE(insideAt(overThePill));
}

TEST_F(HoverMonitorTest, MayBeStoppedWhileItNotifies) {
    hover->start();
    const auto subscription = hover->isInside.observe([&] { hover->stop(); });
    EXPECT_TRUE(insideAt(overThePill));
    EXPECT_EQ(machine.pointer.monitorCount(), 0U);
}

TEST_F(HoverMonitorTest, LooksOnceEvenWhenItsMonitorIsRefused) {
    machine.pointer.refusesMonitors = true;
    machine.pointer.position = overThePill;
    hover->start();
    EXPECT_TRUE(hover->isInside.get());
    hover->stop();
}

TEST_F(HoverMonitorTest, IsNotKeptAliveByItsMonitor) {
    hover->start();
    const std::weak_ptr<HoverMonitor> weak = hover;
    hover.reset();
    EXPECT_TRUE(weak.expired());
}

TEST_F(HoverMonitorTest, MovementsThatArriveAfterItIsGoneDoNothing) {
    hover->start();
    ASSERT_EQ(machine.pointer.handlers.size(), 1U);
    hover.reset();
    const int before = machine.pointer.locationReadings;
    for (const auto& handler : machine.pointer.handlers)
        handler();
    EXPECT_EQ(machine.pointer.locationReadings, before);
}

TEST_F(HoverMonitorTest, MayLoseItsOwnerWhileItNotifies) {
    hover->start();
    const std::weak_ptr<HoverMonitor> weak = hover;
    const auto subscription = hover->isInside.observe([&] { hover.reset(); });
    machine.pointer.move(overThePill);
    EXPECT_TRUE(weak.expired());
}

TEST_F(HoverMonitorTest, WithoutAScreenKeepsTrue) {
    hover->start();
    ASSERT_TRUE(insideAt(overThePill));
    disconnectAll();
    EXPECT_TRUE(insideAt(elsewhere));
}

TEST_F(HoverMonitorTest, WithoutAScreenKeepsFalse) {
    disconnectAll();
    hover->start();
    EXPECT_FALSE(insideAt(overThePill));
    EXPECT_FALSE(insideAt({0, 0}));
}

TEST_F(HoverMonitorTest, WatchesTheNotchedScreenAndNotTheMainOne) {
    machine.screens.connected = {{.frame = {0, 0, 1000, 700}},
                                 {.frame = {1000, 0, 1512, 982}, .topSafeAreaInset = 32}};
    machine.screens.mainScreen = machine.screens.connected[0];
    hover->start();
    EXPECT_TRUE(insideAt({1756, 950}));
    EXPECT_FALSE(insideAt({500, 690}));
}

TEST_F(HoverMonitorTest, WatchesTheMainScreenWhenNoneHasANotch) {
    connect({.frame = {-1920, -200, 1920, 1080}, .topSafeAreaInset = nan});
    hover->start();
    EXPECT_TRUE(insideAt({-960, 850}));
    EXPECT_FALSE(insideAt({756, 950}));
}

TEST_F(HoverMonitorTest, FollowsAScreenThatChanges) {
    hover->start();
    ASSERT_TRUE(insideAt(overThePill));
    connect({.frame = {0, 0, 3000, 2000}});
    EXPECT_FALSE(insideAt(overThePill));
    EXPECT_TRUE(insideAt({1500, 1990}));
}

TEST_F(HoverMonitorTest, APointerWithAButtonHeldStaysOutsideButDoesNotLeave) {
    hover->start();
    hover->currentSize = {280, 59};
    machine.pointer.buttonHeld = true;
    EXPECT_FALSE(insideAt(overThePill));
    machine.pointer.buttonHeld = false;
    EXPECT_TRUE(insideAt(overThePill));
    machine.pointer.buttonHeld = true;
    EXPECT_TRUE(insideAt(overThePill));
    EXPECT_FALSE(insideAt(elsewhere));
}

} // namespace
} // namespace brellowind
