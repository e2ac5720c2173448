// SPDX-License-Identifier: MIT

#include "foundation/Utf8.h"

#include <gtest/gtest.h>
#include <string>

namespace brellowind::utf8 {
namespace {

TEST(Utf8Beginning, IsAllOfATextThatIsShortEnough) {
    EXPECT_EQ(beginning("", 0), "");
    EXPECT_EQ(beginning("abc", 3), "abc");
    EXPECT_EQ(beginning("abc", 4), "abc");
}

TEST(Utf8Beginning, EndsBetweenTwoCharacters) {
    const std::string text = "a\u00e9\u20ac\U0001f600b"; // of one, two, three, four bytes and one
    const std::size_t ends[] = {0, 1, 1, 3, 3, 3, 6, 6, 6, 6, 10, 11};
    for (std::size_t bytes = 0; bytes < std::size(ends); ++bytes)
        EXPECT_EQ(beginning(text, bytes), text.substr(0, ends[bytes])) << bytes;
}

} // namespace
} // namespace brellowind::utf8
