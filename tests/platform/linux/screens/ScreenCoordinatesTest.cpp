// SPDX-License-Identifier: MIT

#include "platform/linux/screens/ScreenCoordinates.h"

#include "support/PrintGeometry.h"

#include <gtest/gtest.h>

namespace brellowind::platform {
namespace {

using LogicalRect = ScreenCoordinates::LogicalRect;

ScreenPlacement screen(double x, double y, double width, double height, double scale = 1) {
    return {{x, y, width, height}, scale, {x, y, width / scale, height / scale}};
}

TEST(ScreenCoordinates, PutTheOriginAtTheBottomLeftOfASingleScreen) {
    const ScreenCoordinates one({screen(0, 0, 1512, 982)}, 0);
    EXPECT_EQ(one.desktopRect({0, 30, 1512, 952}), (Rect{0, 0, 1512, 952}));
    EXPECT_EQ(one.logicalRect({436, 442, 640, 540}), (LogicalRect{0, {436, 0, 640, 540}}));
}

TEST(ScreenCoordinates, PutThePointerAtTheMiddleOfItsPixel) {
    const ScreenCoordinates one({screen(0, 0, 1512, 982)}, 0);
    EXPECT_EQ(one.desktopPoint(0, 0), (Point{0.5, 981.5}));
    EXPECT_EQ(one.desktopPoint(1511, 981), (Point{1511.5, 0.5}));
}

TEST(ScreenCoordinates, CountThePixelsOfARectangleAndNoOthers) {
    const ScreenCoordinates one({screen(0, 0, 1512, 982)}, 0);
    const Rect rect{608, 915, 296, 67}; // 296 × 67 pixels at the top of the screen
    const auto inside = [&](int x, int y) { return rect.contains(*one.desktopPoint(x, y)); };
    EXPECT_TRUE(inside(608, 0));
    EXPECT_TRUE(inside(903, 66));
    EXPECT_FALSE(inside(607, 0));
    EXPECT_FALSE(inside(904, 0));
    EXPECT_FALSE(inside(608, 67));
}

TEST(ScreenCoordinates, DivideByTheScale) {
    const ScreenCoordinates one({screen(0, 0, 3024, 1964, 2)}, 0);
    EXPECT_EQ(one.desktopPoint(0, 0), (Point{0.25, 981.75}));
    EXPECT_EQ(one.desktopPoint(3023, 1963), (Point{1511.75, 0.25}));
    EXPECT_EQ(one.logicalRect({436, 442, 640, 540}), (LogicalRect{0, {436, 0, 640, 540}}));
}

TEST(ScreenCoordinates, PlaceScreensAroundThePrimaryOne) {
    // The primary screen at the right and lower than the other, whose bottom is 200 above its own.
    const ScreenCoordinates two({screen(0, 0, 1280, 1024), screen(1280, 144, 1920, 1080)}, 1);
    EXPECT_EQ(two.desktopRect({0, 0, 1280, 1024}), (Rect{-1280, 200, 1280, 1024}));
    EXPECT_EQ(two.desktopPoint(0, 0), (Point{-1279.5, 1223.5}));
    EXPECT_EQ(two.desktopPoint(1280, 144), (Point{0.5, 1079.5}));
    EXPECT_EQ(two.logicalRect({-960, 684, 640, 540}), (LogicalRect{0, {320, 0, 640, 540}}));
    EXPECT_EQ(two.logicalRect({640, 540, 640, 540}), (LogicalRect{1, {1920, 144, 640, 540}}));
}

TEST(ScreenCoordinates, TakeNegativeOriginsAndScreensBelowEachOther) {
    const ScreenCoordinates two(
        {screen(0, 0, 1920, 1080), screen(-100, -1200, 1600, 1200), screen(50, 1080, 800, 600)}, 0);
    EXPECT_EQ(two.desktopRect({-100, -1200, 1600, 1200}), (Rect{-100, 1080, 1600, 1200}));
    EXPECT_EQ(two.desktopPoint(-100, -1200), (Point{-99.5, 2279.5}));
    EXPECT_EQ(two.logicalRect({380, 1740, 640, 540}), (LogicalRect{1, {380, -1200, 640, 540}}));
    EXPECT_EQ(two.logicalRect({130, -540, 640, 540}), (LogicalRect{2, {130, 1080, 640, 540}}));
}

TEST(ScreenCoordinates, MixScales) {
    // 3840 × 2160 pixels at scale 2, right of it 1920 × 1080 at 1: pixel 3840 starts the second.
    const ScreenCoordinates two({screen(0, 0, 3840, 2160, 2), screen(3840, 0, 1920, 1080)}, 0);
    EXPECT_EQ(two.desktopPoint(3839, 0), (Point{1919.75, 1079.75}));
    EXPECT_EQ(two.desktopPoint(3840, 0), (Point{3840.5, 1079.5}));
    EXPECT_EQ(two.logicalRect({4480, 540, 640, 540}), (LogicalRect{1, {4480, 0, 640, 540}}));
}

TEST(ScreenCoordinates, AgreeOnAScreenOfAFractionalScale) {
    const ScreenCoordinates two({screen(0, 0, 1000, 1000), screen(1000, 500, 1500, 750, 1.25)}, 0);
    EXPECT_EQ(two.desktopRect({1000, 500, 1200, 600}), (Rect{1000, -100, 1200, 600}));
    // 125 pixels right and 250 down on it: 100 and 200 points.
    EXPECT_EQ(two.desktopPoint(1125, 750), (Point{1100.4, 299.6}));
}

TEST(ScreenCoordinates, TakeThePointerBesideAllScreensForOneOfTheNearest) {
    const ScreenCoordinates two({screen(0, 0, 1000, 1000), screen(1000, 0, 500, 500, 2)}, 0);
    EXPECT_EQ(two.desktopPoint(1400, 501), (Point{1200.25, 749.25}));
    EXPECT_EQ(two.desktopPoint(1001, 900), (Point{1001.5, 99.5}));
}

TEST(ScreenCoordinates, PlaceARectangleOnTheScreenThatMostOfItLiesOn) {
    const ScreenCoordinates two({screen(0, 0, 1000, 1000), screen(1000, 0, 1000, 1000)}, 0);
    EXPECT_EQ(two.logicalRect({700, 0, 500, 100})->screen, 0U);
    EXPECT_EQ(two.logicalRect({800, 0, 500, 100})->screen, 1U);
    EXPECT_EQ(two.logicalRect({5000, 5000, 100, 100})->screen, 1U);
    EXPECT_EQ(two.logicalRect({-500, 200, 100, 100})->screen, 0U);
}

TEST(ScreenCoordinates, KnowNoPlaceWithoutAScreen) {
    const ScreenCoordinates none({}, 0);
    EXPECT_EQ(none.desktopPoint(10, 10), std::nullopt);
    EXPECT_EQ(none.logicalRect({0, 0, 640, 540}), std::nullopt);
}

} // namespace
} // namespace brellowind::platform
