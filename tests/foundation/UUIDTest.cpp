#include "foundation/UUID.h"

#include <gmock/gmock.h>
#include <set>

namespace brellowind {
namespace {

TEST(UUID, IsOfVersion4AndTheStandardVariant) {
    constexpr auto form = "[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}";
    for (int i = 0; i < 1000; ++i)
        EXPECT_THAT(UUID::random().string(), testing::MatchesRegex(form));
}

TEST(UUID, IsFreshEachTime) {
    std::set<std::string> seen;
    for (int i = 0; i < 1000; ++i)
        seen.insert(UUID::random().string());
    EXPECT_EQ(seen.size(), 1000U);
}

TEST(UUIDGenerator, NeverGivesTheSameTwice) {
    std::set<std::string> seen;
    UUIDGenerator one;
    UUIDGenerator other;
    for (int i = 0; i < 10'000; ++i) {
        seen.insert(one.next().string());
        seen.insert(other.next().string());
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
