#include "platform/linux/x11/OutlineRegion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brellowind::platform {

static void PrintTo(const PixelRect& rect, std::ostream* out) {
    *out << rect.x << "," << rect.y << " " << rect.width << "x" << rect.height;
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

QPainterPath rectangle(const QRectF& rect) {
    QPainterPath path;
    path.addRect(rect);
    return path;
}

TEST(OutlineRegion, IsOneRectangleForARectangle) {
    EXPECT_THAT(outlineRegion(rectangle({100, 0, 200, 60}), 1),
                ElementsAre(PixelRect{100, 0, 200, 60}));
}

TEST(OutlineRegion, IsInPixels) {
    EXPECT_THAT(outlineRegion(rectangle({100, 10, 200, 60}), 2),
                ElementsAre(PixelRect{200, 20, 400, 120}));
    EXPECT_THAT(
        outlineRegion(rectangle({100, 10, 200, 60}), 1.25),
        ElementsAre(PixelRect{125, 12, 250, 75})); // rows with their middles at 12.5 to 86.5
}

TEST(OutlineRegion, HasThePixelsWhoseMiddleIsInside) {
    EXPECT_THAT(outlineRegion(rectangle({0.4, 0.6, 2, 2}), 1), ElementsAre(PixelRect{0, 1, 2, 2}));
    EXPECT_THAT(outlineRegion(rectangle({0.6, 0.4, 2.8, 1}), 1),
                ElementsAre(PixelRect{1, 0, 2, 1}));
    EXPECT_THAT(outlineRegion(rectangle({0.6, 0.6, 0.8, 0.8}), 1), IsEmpty());
}

TEST(OutlineRegion, IsEmptyForNothing) {
    EXPECT_THAT(outlineRegion({}, 1), IsEmpty());
    EXPECT_THAT(outlineRegion(rectangle({10, 10, 0, 20}), 1), IsEmpty());
}

TEST(OutlineRegion, FollowsSlopesRowByRow) {
    QPainterPath triangle; // its sides go out by one pixel a row
    triangle.moveTo(3.75, 0);
    triangle.lineTo(7.75, 4);
    triangle.lineTo(-0.25, 4);
    triangle.closeSubpath();
    EXPECT_THAT(outlineRegion(triangle, 1),
                ElementsAre(PixelRect{3, 0, 1, 1}, PixelRect{2, 1, 3, 1}, PixelRect{1, 2, 5, 1},
                            PixelRect{0, 3, 7, 1}));
}

TEST(OutlineRegion, ClosesAnOpenOutline) {
    QPainterPath path;
    path.moveTo(0, 0);
    path.lineTo(10, 0);
    path.lineTo(10, 5);
    path.lineTo(0, 5);
    EXPECT_THAT(outlineRegion(path, 1), ElementsAre(PixelRect{0, 0, 10, 5}));
}

TEST(OutlineRegion, KeepsPartsApartAndJoinsThoseThatOverlap) {
    auto path = rectangle({0, 0, 10, 2});
    path.addRect(20, 0, 5, 2);
    EXPECT_THAT(outlineRegion(path, 1),
                ElementsAre(PixelRect{0, 0, 10, 2}, PixelRect{20, 0, 5, 2}));
    auto overlapping = rectangle({0, 0, 10, 2});
    overlapping.addRect(5, 0, 10, 2);
    overlapping.setFillRule(Qt::WindingFill);
    EXPECT_THAT(outlineRegion(overlapping, 1), ElementsAre(PixelRect{0, 0, 15, 2}));
}

TEST(OutlineRegion, LeavesOutAHole) {
    auto path = rectangle({0, 0, 6, 3});
    path.addRect(2, 1, 2, 1);
    EXPECT_THAT(outlineRegion(path, 1), ElementsAre(PixelRect{0, 0, 6, 1}, PixelRect{0, 1, 2, 1},
                                                    PixelRect{4, 1, 2, 1}, PixelRect{0, 2, 6, 1}));
}

TEST(OutlineRegion, TakesWhatLiesLeftOfAndAboveTheWindow) {
    EXPECT_THAT(outlineRegion(rectangle({-10, -5, 20, 10}), 1),
                ElementsAre(PixelRect{-10, -5, 20, 10}));
}

TEST(OutlineRegion, RoundsTheCornersOfAPill) {
    QPainterPath pill;
    pill.addRoundedRect(0, 0, 40, 20, 10, 10);
    const auto region = outlineRegion(pill, 1);
    ASSERT_FALSE(region.empty());
    // At the middle of row 0 the circle reaches 10 - √(10² - 9.5²) = 6.9 from the side.
    EXPECT_EQ(region.front(), (PixelRect{7, 0, 26, 1}));
    EXPECT_EQ(region.back(), (PixelRect{7, 19, 26, 1}));
    int widest = 0;
    for (const auto& band : region)
        widest = std::max(widest, band.width);
    EXPECT_EQ(widest, 40);
}

} // namespace
} // namespace brellowind::platform
