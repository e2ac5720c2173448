// SPDX-License-Identifier: MIT

#include "foundation/UUID.h"

#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <set>

namespace brellowind {
namespace {

TEST(UUIDGenerator, NeverGivesTheSameTwice) {
    std::set<std::array<std::uint64_t, 2>> seen;
    UUIDGenerator one;
    UUIDGenerator other;
    for (int i = 0; i < 10'000; ++i) {
        seen.insert(one.next().words);
        seen.insert(other.next().words);
    }
    EXPECT_EQ(seen.size(), 20'000U);
}

} // namespace
} // namespace brellowind
