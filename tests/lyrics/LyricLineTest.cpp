// SPDX-License-Identifier: MIT

#include "lyrics/LyricLine.h"

#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <set>
#include <type_traits>

namespace brellowind {
namespace {

static_assert(!std::is_assignable_v<LyricLine&, LyricLine>, "a line is fixed once it is made");

TEST(LyricLine, KeepsTimeAndTextUnchanged) {
    const LyricLine line(12.34, " words\r\n");
    EXPECT_EQ(line.time, 12.34);
    EXPECT_EQ(line.text, " words\r\n");
}

TEST(LyricLine, DrawsAFreshIdEachTime) {
    std::set<std::array<std::uint64_t, 2>> ids;
    for (int i = 0; i < 1000; ++i)
        ids.insert(LyricLine(1, "same").id.words);
    EXPECT_EQ(ids.size(), 1000U);
}

TEST(LyricLine, EqualsItsCopies) {
    const LyricLine line(1, "words");
    const LyricLine copy = line; // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(line, line);
    EXPECT_EQ(copy, line);
    EXPECT_EQ(copy.id, line.id);
}

TEST(LyricLine, DiffersFromALineMadeOfTheSameTimeAndText) {
    EXPECT_NE(LyricLine(1, "words"), LyricLine(1, "words"));
}

TEST(LyricLine, WhoseTimeIsNotANumberEqualsNothing) {
    const LyricLine line(std::numeric_limits<double>::quiet_NaN(), "words");
    EXPECT_FALSE(line == line);
}

} // namespace
} // namespace brellowind
