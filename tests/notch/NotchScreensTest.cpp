// SPDX-License-Identifier: MIT

#include "notch/NotchScreens.h"
#include "support/FakeScreens.h"

#include <gtest/gtest.h>
#include <limits>

namespace brellowind {
namespace {

using platform::Screen;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr Rect laptopFrame{0, 0, 1512, 982};

Screen screenAt(double x, double topInset) {
    return {.frame = {x, 0, 1512, 982}, .topSafeAreaInset = topInset};
}

Screen laptop() {
    return {.frame = laptopFrame,
            .visibleFrame = {0, 0, 1512, 945},
            .topSafeAreaInset = 32,
            .auxiliaryTopLeftArea = Rect{0, 950, 663, 32},
            .auxiliaryTopRightArea = Rect{848, 950, 664, 32}};
}

TEST(NotchedScreen, IsTheOneWithATopInset) {
    const std::vector screens{screenAt(0, 0), screenAt(1512, 32)};
    EXPECT_EQ(notchedScreen(screens), screens[1]);
}

TEST(NotchedScreen, IsTheEarlierOneOfTwo) {
    const std::vector screens{screenAt(0, 0), screenAt(1512, 24), screenAt(3024, 38)};
    EXPECT_EQ(notchedScreen(screens), screens[1]);
}

TEST(NotchedScreen, IsAbsentWhenNoScreenHasATopInset) {
    EXPECT_EQ(notchedScreen(std::vector{screenAt(0, 0), screenAt(1512, 0)}), std::nullopt);
}

TEST(NotchedScreen, IsAbsentWithoutScreens) {
    EXPECT_EQ(notchedScreen({}), std::nullopt);
}

TEST(NotchedScreen, TakesTheSmallestPositiveInset) {
    const std::vector screens{screenAt(0, std::numeric_limits<double>::denorm_min())};
    EXPECT_EQ(notchedScreen(screens), screens[0]);
}

TEST(NotchedScreen, IgnoresANegativeInset) {
    EXPECT_EQ(notchedScreen(std::vector{screenAt(0, -32)}), std::nullopt);
}

TEST(NotchedScreen, IgnoresAnInsetThatIsNotANumber) {
    const std::vector screens{screenAt(0, nan), screenAt(1512, 32)};
    EXPECT_EQ(notchedScreen(screens), screens[1]);
}

TEST(NotchWidth, IsWhatTheAuxiliaryAreasLeaveOfTheFrame) {
    EXPECT_EQ(notchWidth(laptop()), 185); // 1512 - 663 - 664
}

TEST(NotchWidth, IsTheWholeFrameWithoutAuxiliaryAreas) {
    auto screen = laptop();
    screen.auxiliaryTopLeftArea.reset();
    screen.auxiliaryTopRightArea.reset();
    EXPECT_EQ(notchWidth(screen), 1512);
}

TEST(NotchWidth, CountsAnAbsentRightAreaAsZero) {
    auto screen = laptop();
    screen.auxiliaryTopRightArea.reset();
    EXPECT_EQ(notchWidth(screen), 849); // 1512 - 663
}

TEST(NotchWidth, CountsAnAbsentLeftAreaAsZero) {
    auto screen = laptop();
    screen.auxiliaryTopLeftArea.reset();
    EXPECT_EQ(notchWidth(screen), 848); // 1512 - 664
}

TEST(NotchWidth, IsMeasuredOnTheFrameAndNotOnItsVisiblePart) {
    auto screen = laptop();
    screen.visibleFrame = {100, 0, 1412, 945};
    EXPECT_EQ(notchWidth(screen), 185);
}

TEST(NotchWidth, IsNotClamped) {
    auto screen = laptop();
    screen.auxiliaryTopLeftArea = Rect{0, 950, 1000, 32};
    EXPECT_EQ(notchWidth(screen), -152); // 1512 - 1000 - 664
}

TEST(NotchWidth, IsZeroWithoutANotchWhateverTheAreas) {
    auto screen = laptop();
    for (const double inset : {0.0, -1.0, nan}) {
        screen.topSafeAreaInset = inset;
        EXPECT_EQ(notchWidth(screen), 0) << inset;
    }
}

TEST(MenuBarHeight, IsTheDistanceFromTheTopToTheVisiblePart) {
    EXPECT_EQ(menuBarHeight(laptop()), 37); // 982 - 945
}

TEST(MenuBarHeight, IsZeroWhenTheVisiblePartReachesTheTop) {
    auto screen = laptop();
    screen.visibleFrame = {0, 80, 1512, 902};
    EXPECT_EQ(menuBarHeight(screen), 0);
}

TEST(MenuBarHeight, IsMeasuredOnScreensBelowThePrimaryOneAsWell) {
    const Screen screen{.frame = {-300, -1080, 1920, 1080},
                        .visibleFrame = {-300, -1000, 1920, 975}};
    EXPECT_EQ(menuBarHeight(screen), 25);
}

TEST(PillScreen, IsTheNotchedScreenEvenWhenAnotherIsMain) {
    test::FakeScreens screens;
    screens.connected = {screenAt(0, 0), screenAt(1512, 32)};
    screens.mainScreen = screens.connected[0];
    EXPECT_EQ(pillScreen(screens), screens.connected[1]);
}

TEST(PillScreen, IsTheMainScreenWhenNoneHasANotch) {
    test::FakeScreens screens;
    screens.connected = {screenAt(0, 0), screenAt(1512, 0)};
    screens.mainScreen = screens.connected[1];
    EXPECT_EQ(pillScreen(screens), screens.connected[1]);
}

TEST(PillScreen, IsAbsentWithoutNotchedAndMainScreen) {
    test::FakeScreens screens;
    screens.connected = {screenAt(0, 0)};
    EXPECT_EQ(pillScreen(screens), std::nullopt);
}

TEST(PillScreen, FollowsTheArrangement) {
    test::FakeScreens screens;
    screens.connected = {screenAt(0, 32)};
    ASSERT_EQ(pillScreen(screens), screenAt(0, 32));
    screens.connected = {screenAt(-1512, 38)};
    EXPECT_EQ(pillScreen(screens), screenAt(-1512, 38));
}

} // namespace
} // namespace brellowind
