// SPDX-License-Identifier: MIT

#include "foundation/Geometry.h"

#include <gtest/gtest.h>
#include <limits>

namespace brellowind {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST(Rect, KnowsItsEdgesAndItsMiddle) {
    const Rect rect{-100, 20, 300, 50};
    EXPECT_EQ(rect.minX(), -100);
    EXPECT_EQ(rect.midX(), 50);
    EXPECT_EQ(rect.maxX(), 200);
    EXPECT_EQ(rect.minY(), 20);
    EXPECT_EQ(rect.midY(), 45);
    EXPECT_EQ(rect.maxY(), 70);
}

TEST(Rect, ContainsItsMinimumEdgesAndTheirCorner) {
    const Rect rect{10, 20, 30, 40};
    EXPECT_TRUE(rect.contains({10, 20}));
    EXPECT_TRUE(rect.contains({10, 40}));
    EXPECT_TRUE(rect.contains({25, 20}));
}

TEST(Rect, DoesNotContainItsMaximumEdges) {
    const Rect rect{10, 20, 30, 40};
    EXPECT_FALSE(rect.contains({40, 40}));
    EXPECT_FALSE(rect.contains({25, 60}));
    EXPECT_FALSE(rect.contains({40, 20}));
    EXPECT_FALSE(rect.contains({10, 60}));
    EXPECT_FALSE(rect.contains({40, 60}));
}

TEST(Rect, ContainsWhatLiesJustWithinItsMaximumEdges) {
    const Rect rect{10, 20, 30, 40};
    EXPECT_TRUE(rect.contains({39.999, 59.999}));
}

TEST(Rect, DoesNotContainWhatLiesJustBeforeItsMinimumEdges) {
    const Rect rect{10, 20, 30, 40};
    EXPECT_FALSE(rect.contains({9.999, 40}));
    EXPECT_FALSE(rect.contains({25, 19.999}));
}

TEST(Rect, WithoutAnAreaContainsNothingNotEvenItsCorner) {
    EXPECT_FALSE((Rect{10, 20, 0, 40}.contains({10, 20})));
    EXPECT_FALSE((Rect{10, 20, 30, 0}.contains({10, 20})));
    EXPECT_FALSE((Rect{10, 20, -5, 40}.contains({8, 20})));
}

TEST(Rect, ContainsNothingWhenANumberIsNotOne) {
    const Rect rect{10, 20, 30, 40};
    EXPECT_FALSE(rect.contains({nan, 30}));
    EXPECT_FALSE(rect.contains({20, nan}));
    EXPECT_FALSE((Rect{10, 20, nan, 40}.contains({10, 20})));
    EXPECT_FALSE((Rect{10, nan, 30, 40}.contains({10, 20})));
}

} // namespace
} // namespace brellowind
