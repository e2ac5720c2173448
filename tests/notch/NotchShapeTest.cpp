// SPDX-License-Identifier: MIT

#include "notch/NotchShape.h"
#include "support/PrintGeometry.h"

#include <gmock/gmock.h>

namespace brellowind {

using Kind = Path::Element::Kind;

void PrintTo(const Path::Element& element, std::ostream* out) {
    static constexpr const char* kinds[] = {"move to ", "line to ", "curve to ", "close "};
    *out << kinds[static_cast<int>(element.kind)] << testing::PrintToString(element.to) << " by "
         << testing::PrintToString(element.control);
}

namespace {

using testing::ElementsAre;

Path::Element move(double x, double y) {
    return {Kind::move, {x, y}};
}

Path::Element line(double x, double y) {
    return {Kind::line, {x, y}};
}

Path::Element curve(Point to, Point control) {
    return {Kind::quadCurve, to, control};
}

const Path::Element close{Kind::close};

TEST(NotchShape, FlaresAtTheTopAndIsRoundAtTheBottom) {
    const auto path = NotchShape(8, 12).path({0, 0, 280, 59});
    EXPECT_THAT(path.elements(),
                ElementsAre(move(0, 0), curve({8, 8}, {8, 0}), line(8, 47),
                            curve({20, 59}, {8, 59}), line(260, 59), curve({272, 47}, {272, 59}),
                            line(272, 8), curve({280, 0}, {272, 0}), close));
}

TEST(NotchShape, LiesWhereItsRectangleLies) {
    const auto path = NotchShape(8, 12).path({100, -30, 280, 59});
    EXPECT_THAT(path.elements(),
                ElementsAre(move(100, -30), curve({108, -22}, {108, -30}), line(108, 17),
                            curve({120, 29}, {108, 29}), line(360, 29), curve({372, 17}, {372, 29}),
                            line(372, -22), curve({380, -30}, {372, -30}), close));
}

TEST(NotchShape, FlaresMeetInTheMiddleWhenTheTopRadiusExceedsHalfTheWidth) {
    const auto path = NotchShape(8, 4).path({0, 0, 10, 59});
    EXPECT_THAT(path.elements(),
                ElementsAre(move(0, 0), curve({5, 5}, {5, 0}), line(5, 55), curve({9, 59}, {5, 59}),
                            line(1, 59), curve({5, 55}, {5, 59}), line(5, 5),
                            curve({10, 0}, {5, 0}), close));
}

TEST(NotchShape, LosesBottomRoundingBeforeTheFlareWhenItIsShort) {
    const auto path = NotchShape(8, 12).path({0, 0, 280, 15}); // 7 are left for the corners
    EXPECT_THAT(path.elements(),
                ElementsAre(move(0, 0), curve({8, 8}, {8, 0}), line(8, 8), curve({15, 15}, {8, 15}),
                            line(265, 15), curve({272, 8}, {272, 15}), line(272, 8),
                            curve({280, 0}, {272, 0}), close));
}

TEST(NotchShape, LimitsTheBottomByTheFlareThatIsLeftAndNotByTheOneAskedFor) {
    const auto path = NotchShape(100, 12).path({0, 0, 10, 15}); // flare 5 leaves 10
    EXPECT_EQ(path.elements().at(2), line(5, 5));
    EXPECT_EQ(path.elements().at(3), curve({15, 15}, {5, 15}));
}

TEST(NotchShape, WithoutHeightComesOutOfTheSameFormulas) {
    const auto path = NotchShape(8, 12).path({0, 0, 280, 0}); // the bottom radius is -8
    EXPECT_THAT(path.elements(),
                ElementsAre(move(0, 0), curve({8, 8}, {8, 0}), line(8, 8), curve({0, 0}, {8, 0}),
                            line(280, 0), curve({272, 8}, {272, 0}), line(272, 8),
                            curve({280, 0}, {272, 0}), close));
}

TEST(NotchShape, WithoutWidthIsALine) {
    const auto path = NotchShape(8, 12).path({5, 0, 0, 59}); // flare 0, bottom radius 12
    EXPECT_THAT(path.elements(),
                ElementsAre(move(5, 0), curve({5, 0}, {5, 0}), line(5, 47),
                            curve({17, 59}, {5, 59}), line(-7, 59), curve({5, 47}, {5, 59}),
                            line(5, 0), curve({5, 0}, {5, 0}), close));
}

TEST(NotchShape, WithoutRadiiIsItsRectangle) {
    const auto path = NotchShape(0, 0).path({0, 0, 100, 50});
    EXPECT_THAT(path.elements(),
                ElementsAre(move(0, 0), curve({0, 0}, {0, 0}), line(0, 50), curve({0, 50}, {0, 50}),
                            line(100, 50), curve({100, 50}, {100, 50}), line(100, 0),
                            curve({100, 0}, {100, 0}), close));
}

TEST(NotchShape, ContainsWhatItsSidesAndCornersLeaveRoomFor) {
    const NotchShape shape(8, 12);
    const Rect rect{100, -30, 280, 59};
    EXPECT_TRUE(shape.contains(rect, {108, -30, 264, 47})) << "down to where the corners begin";
    EXPECT_TRUE(shape.contains(rect, {120, -30, 240, 59})) << "between the corners";
    EXPECT_TRUE(shape.contains(rect, {111, 0, 258, 26})) << "both roots are a half";
    EXPECT_FALSE(shape.contains(rect, {110.9, 0, 258, 26})) << "into the left corner";
    EXPECT_FALSE(shape.contains(rect, {111.1, 0, 258, 26})) << "into the right corner";
    EXPECT_FALSE(shape.contains(rect, {111, 0, 258, 26.1})) << "into both";
    EXPECT_FALSE(shape.contains(rect, {107.9, 0, 10, 10})) << "beyond the left side";
    EXPECT_FALSE(shape.contains(rect, {362.1, 0, 10, 10})) << "beyond the right side";
    EXPECT_FALSE(shape.contains(rect, {200, -30.1, 10, 10})) << "above";
    EXPECT_FALSE(shape.contains(rect, {200, 20, 10, 9.1})) << "below";
}

TEST(NotchShape, ContainsUpToTheCurveItself) {
    const NotchShape shape(8, 12);
    const Rect rect{0, 0, 280, 59};
    for (double t = 0; t <= 1; t += 1.0 / 64) { // of the curve from (8, 47) by (8, 59) to (20, 59)
        const Point onCurve{8 + 12 * t * t, 59 - 12 * (1 - t) * (1 - t)};
        const auto upTo = [&](double beyond) {
            return Rect{onCurve.x - beyond, 10, 100, onCurve.y + beyond - 10};
        };
        EXPECT_TRUE(shape.contains(rect, upTo(-0.001))) << t;
        EXPECT_FALSE(shape.contains(rect, upTo(0.001))) << t;
    }
}

TEST(NotchShape, WithoutRoomForItsFlareContainsNothing) {
    EXPECT_FALSE(NotchShape(8, 12).contains({0, 0, 280, 6}, {100, 1, 10, 1}));
}

} // namespace
} // namespace brellowind
