// SPDX-License-Identifier: MIT

#include "foundation/Path.h"

#include <gtest/gtest.h>

namespace brellowind {
namespace {

TEST(Path, MapsEachOfItsPoints) {
    Path path;
    path.move({1, 2});
    path.line({3, 4});
    path.quadCurve({5, 6}, {7, 8});
    path.close();
    Path expected;
    expected.move({12, 22});
    expected.line({16, 26});
    expected.quadCurve({20, 30}, {24, 34});
    expected.close();
    EXPECT_EQ(path.mapped([](Point point) {
        return Point{10 + 2 * point.x, 18 + 2 * point.y};
    }),
              expected);
}

} // namespace
} // namespace brellowind
