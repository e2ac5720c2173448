// SPDX-License-Identifier: MIT

#include "foundation/UUID.h"

#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <set>

namespace brellowind {
namespace {

TEST(UUIDGenerator, GivesVersion4OfTheStandardVariant) {
    UUIDGenerator ids;
    for (int i = 0; i < 1000; ++i) {
        const auto [high, low] = ids.next().words;
        EXPECT_EQ(high >> 12 & 0xF, 4U);
        EXPECT_EQ(low >> 62, 2U);
    }
}

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

TEST(UUIDGenerator, EveryOtherBitTakesBothValues) {
    UUIDGenerator ids;
    UUID ones;
    UUID zeros;
    for (int i = 0; i < 200; ++i) {
        const auto id = ids.next();
        for (std::size_t word = 0; word < 2; ++word) {
            ones.words[word] |= id.words[word];
            zeros.words[word] |= ~id.words[word];
        }
    }
    EXPECT_EQ(ones.words[0] & zeros.words[0], ~std::uint64_t{0xF000});
    EXPECT_EQ(ones.words[1] & zeros.words[1], ~std::uint64_t{0xC000'0000'0000'0000});
}

} // namespace
} // namespace brellowind
