// SPDX-License-Identifier: MIT

#include "settings/VersionOrder.h"

#include <array>
#include <gtest/gtest.h>
#include <initializer_list>
#include <ostream>
#include <random>
#include <string>
#include <vector>

namespace brellowind {
namespace {

struct Pair {
    std::string newer;
    std::string older;

    friend std::ostream& operator<<(std::ostream& out, const Pair& pair) {
        return out << pair.newer << " over " << pair.older;
    }
};

void expectEachHoldsOneWayOnly(std::initializer_list<Pair> pairs) {
    for (const auto& pair : pairs) {
        EXPECT_TRUE(isNewer(pair.newer, pair.older)) << pair;
        EXPECT_FALSE(isNewer(pair.older, pair.newer)) << pair;
    }
}

TEST(VersionOrder, ComparesNumbersByValue) {
    expectEachHoldsOneWayOnly({{"1.10", "1.9"},
                               {"2.0", "1.99"},
                               {"1.10", "1.2"},
                               {"10", "9"},
                               {"1.2-rc10", "1.2-rc9"},
                               {"1.010", "1.9"},
                               {"1.3", "1.2"},
                               {"1", "0"},
                               {"1", "000"},
                               {"18446744073709551616", "18446744073709551615"},
                               {"1.100000000000000000000000000000000000000002",
                                "1.100000000000000000000000000000000000000001"},
                               {"1.100000000000000000000000000000000000000000",
                                "1.99999999999999999999999999999999999999999"}});
}

TEST(VersionOrder, PutsAPrefixFirst) {
    expectEachHoldsOneWayOnly({{"1.2.1", "1.2"},
                               {"1.2.0", "1.2"},
                               {"1.2b", "1.2"},
                               {"1.20", "1.2"},
                               {"1.2-beta", "1.2"},
                               {"0", ""},
                               {"a", ""},
                               {"00", "0"}});
}

TEST(VersionOrder, ComparesCharactersByCodePoint) {
    expectEachHoldsOneWayOnly({{"v1.0", "9.9"},
                               {"v1.0", "0"},
                               {"1.b", "1.a"},
                               {"a", "B"},
                               {"1:", "1.5"},
                               {"1.5", "1-5"},
                               {"1é", "1z"},
                               {"1é", "1.5"},
                               {"1\U0001F3B5", "1\uFFFD"}});
}

TEST(VersionOrder, OrdersDifferentSpellingsOfOneNumberConsistently) {
    expectEachHoldsOneWayOnly(
        {{"02", "2"}, {"1.002", "1.02"}, {"2.01", "02.1"}, {"02.3", "2.2"}, {"2.3", "02.2"}});
}

TEST(VersionOrder, EqualTextsAreNotNewer) {
    for (const auto* text : {"", "0", "1.2", "1.2.0", "v1.2-beta", "02", "♪"})
        EXPECT_FALSE(isNewer(text, text)) << text;
}

TEST(VersionOrder, AnythingButNothingAndZerosIsNewerThanTheVersionOfABuildWithoutOne) {
    for (const auto* text : {"1", "9.9", "0.1", "v0", "a"})
        EXPECT_TRUE(isNewer(text, "0")) << text;
    EXPECT_FALSE(isNewer("0", "0"));
    EXPECT_FALSE(isNewer("", "0"));
}

/// Short texts of few pieces, for frequent common prefixes and leading zeros.
std::string generatedVersion(std::mt19937& generator) {
    static constexpr std::array<const char*, 14> pieces{
        "0", "1", "2", "9", "00", "02", "10", ".", ".", "-", "a", "v", "é", "18446744073709551616"};
    std::uniform_int_distribution<std::size_t> length(0, 5);
    std::uniform_int_distribution<std::size_t> piece(0, pieces.size() - 1);
    std::string version;
    for (auto left = length(generator); left > 0; --left)
        version += pieces[piece(generator)];
    return version;
}

std::vector<std::string> generatedVersions(unsigned seed, std::size_t count) {
    std::mt19937 generator(seed);
    std::vector<std::string> versions;
    while (versions.size() < count)
        versions.push_back(generatedVersion(generator));
    return versions;
}

TEST(VersionOrder, OrdersAnyTwoDifferentTextsExactlyOneWay) {
    const auto versions = generatedVersions(1, 1500);
    for (const auto& a : versions)
        for (const auto& b : versions)
            ASSERT_EQ(isNewer(a, b) + isNewer(b, a), a == b ? 0 : 1) << a << " and " << b;
}

TEST(VersionOrder, IsTransitive) {
    const auto versions = generatedVersions(2, 250);
    for (const auto& a : versions) {
        for (const auto& b : versions) {
            if (!isNewer(a, b))
                continue;
            for (const auto& c : versions) {
                if (isNewer(b, c)) {
                    ASSERT_TRUE(isNewer(a, c)) << a << " > " << b << " > " << c;
                }
            }
        }
    }
}

} // namespace
} // namespace brellowind
