// SPDX-License-Identifier: MIT

#include "platform/qt/OutlineRegion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brellowind::platform {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<QRect> rectangles(const Path& outline, double scale) {
    const QRegion region = outlineRegion(outline, scale);
    return {region.begin(), region.end()};
}

void addRectangle(Path& path, const Rect& rect) {
    path.move({rect.minX(), rect.minY()});
    path.line({rect.maxX(), rect.minY()});
    path.line({rect.maxX(), rect.maxY()});
    path.line({rect.minX(), rect.maxY()});
    path.close();
}

Path rectangle(const Rect& rect) {
    Path path;
    addRectangle(path, rect);
    return path;
}

TEST(OutlineRegion, IsOneRectangleForARectangle) {
    EXPECT_THAT(rectangles(rectangle({100, 0, 200, 60}), 1), ElementsAre(QRect(100, 0, 200, 60)));
}

TEST(OutlineRegion, IsInPixels) {
    EXPECT_THAT(rectangles(rectangle({100, 10, 200, 60}), 2),
                ElementsAre(QRect(200, 20, 400, 120)));
    EXPECT_THAT(rectangles(rectangle({100, 8, 200, 60}), 1.25),
                ElementsAre(QRect(125, 10, 250, 75)));
}

TEST(OutlineRegion, HasThePixelsWhoseMiddleIsInside) {
    EXPECT_THAT(rectangles(rectangle({0.4, 0.6, 2, 2}), 1), ElementsAre(QRect(0, 1, 2, 2)));
    EXPECT_THAT(rectangles(rectangle({0.6, 0.4, 2.8, 1}), 1), ElementsAre(QRect(1, 0, 2, 1)));
    EXPECT_THAT(rectangles(rectangle({0.6, 0.6, 0.8, 0.8}), 1), IsEmpty());
}

TEST(OutlineRegion, IsEmptyForNothing) {
    EXPECT_THAT(rectangles({}, 1), IsEmpty());
    EXPECT_THAT(rectangles(rectangle({10, 10, 0, 20}), 1), IsEmpty());
}

TEST(OutlineRegion, FollowsSlopesRowByRow) {
    Path triangle; // its sides go out by one pixel a row
    triangle.move({3.75, 0});
    triangle.line({7.75, 4});
    triangle.line({-0.25, 4});
    triangle.close();
    EXPECT_THAT(rectangles(triangle, 1), ElementsAre(QRect(3, 0, 1, 1), QRect(2, 1, 3, 1),
                                                     QRect(1, 2, 5, 1), QRect(0, 3, 7, 1)));
}

TEST(OutlineRegion, ClosesAnOpenOutline) {
    Path path;
    path.move({0, 0});
    path.line({10, 0});
    path.line({10, 5});
    path.line({0, 5});
    EXPECT_THAT(rectangles(path, 1), ElementsAre(QRect(0, 0, 10, 5)));
}

TEST(OutlineRegion, KeepsPartsApartAndJoinsThoseThatTouch) {
    auto apart = rectangle({0, 0, 10, 2});
    addRectangle(apart, {20, 0, 5, 2});
    const QRegion both = QRegion(0, 0, 10, 2) | QRegion(20, 0, 5, 2);
    EXPECT_TRUE(outlineRegion(apart, 1).xored(both).isEmpty());
    auto touching = rectangle({0, 0, 10, 2});
    addRectangle(touching, {10, 0, 5, 2});
    EXPECT_THAT(rectangles(touching, 1), ElementsAre(QRect(0, 0, 15, 2)));
}

TEST(OutlineRegion, LeavesOutAHole) {
    auto path = rectangle({0, 0, 6, 3});
    addRectangle(path, {2, 1, 2, 1});
    EXPECT_THAT(rectangles(path, 1), ElementsAre(QRect(0, 0, 6, 1), QRect(0, 1, 2, 1),
                                                 QRect(4, 1, 2, 1), QRect(0, 2, 6, 1)));
}

TEST(OutlineRegion, TakesWhatLiesLeftOfAndAboveTheWindow) {
    EXPECT_THAT(rectangles(rectangle({-10, -5, 20, 10}), 1), ElementsAre(QRect(-10, -5, 20, 10)));
}

TEST(OutlineRegion, FollowsTheCurvesOfAPill) {
    Path pill; // its top corners flare by 8, its bottom corners are round by 12
    pill.move({0, 0});
    pill.quadCurve({8, 8}, {8, 0});
    pill.line({8, 28});
    pill.quadCurve({20, 40}, {8, 40});
    pill.line({80, 40});
    pill.quadCurve({92, 28}, {92, 40});
    pill.line({92, 8});
    pill.quadCurve({100, 0}, {92, 0});
    pill.close();
    const auto region = rectangles(pill, 1);
    ASSERT_FALSE(region.empty());
    // On a curve √(distance from one tangent) + √(distance from the other) = √radius. At the middle
    // of row 0 the flare reaches (√8 - √0.5)² = 4.5 in from the side that it ends at, 8.
    EXPECT_EQ(region.front(), QRect(3, 0, 94, 1));
    // At the middle of the last row the corner's curve is (√12 - √0.5)² = 7.6 in from that side.
    EXPECT_EQ(region.back(), QRect(16, 39, 68, 1));
    // Between the flares and the round corners the sides are straight.
    EXPECT_THAT(region, testing::Contains(testing::AllOf(testing::Property(&QRect::x, 8),
                                                         testing::Property(&QRect::width, 84))));
}

TEST(ReachRegion, IsAllPixelsWhoseMiddleLiesInARectangle) {
    EXPECT_EQ(rectsRegion({}, 1), QRegion());
    EXPECT_EQ(rectsRegion({{-2.5, -3, 7, 6.4}}, 1), QRegion(-3, -3, 7, 6));
    EXPECT_EQ(rectsRegion({{-2.5, -3, 7, 6.4}}, 2), QRegion(-5, -6, 14, 13));
    EXPECT_EQ(rectsRegion({{0, 0, 10, 4}, {4, 2, 2, 5}}, 1),
              QRegion(0, 0, 10, 4) | QRegion(4, 2, 2, 5));
}

} // namespace
} // namespace brellowind::platform
