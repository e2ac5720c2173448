// SPDX-License-Identifier: MIT

#include "lyrics/LrclibResponse.h"
#include "lyrics/WholeResponse.h"

#include <gtest/gtest.h>
#include <random>
#include <string>

// Compares the streaming decoder with one that parses the whole document, on generated bodies.

namespace brellowind {
namespace {

using namespace std::string_literals;

/// Generates objects with the two keys among others, some of them malformed.
class Generator {
public:
    std::string body() {
        auto made = below(12) ? object(0) : value(0);
        if (below(4) == 0)
            damage(made);
        return made;
    }

private:
    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

    template <std::size_t N>
    std::string oneOf(const char* const (&choices)[N]) {
        return choices[below(static_cast<int>(N))];
    }

    std::string object(int depth) {
        std::string made = "{";
        for (int members = below(5); members > 0; --members)
            made += (made.size() > 1 ? "," : "") + oneOf(keys) + oneOf(colons) + value(depth + 1);
        return made + "}";
    }

    std::string array(int depth) {
        std::string made = "[";
        for (int values = below(4); values > 0; --values)
            made += (made.size() > 1 ? "," : "") + value(depth + 1);
        return made + "]";
    }

    std::string value(int depth) {
        switch (depth < 5 ? below(10) : 2 + below(8)) {
        case 0:
            return object(depth);
        case 1:
            return array(depth);
        case 2:
            return oneOf(others);
        case 3:
        case 4:
            return "null";
        default:
            return oneOf(texts);
        }
    }

    void damage(std::string& text) {
        const auto at = static_cast<std::size_t>(below(static_cast<int>(text.size())));
        switch (below(4)) {
        case 0:
            text.erase(at, 1);
            break;
        case 1:
            text.resize(at);
            break;
        case 2:
            text.insert(at, 1, '\0');
            break;
        default:
            text.insert(at, oneOf(spoilers));
        }
    }

    static constexpr const char* keys[] = {R"("syncedLyrics")",
                                           R"("plainLyrics")",
                                           R"("syncedLyrics")",
                                           R"("plainLyrics")",
                                           R"("x")",
                                           R"("")",
                                           R"("PlainLyrics")",
                                           R"("pl\u0061inLyrics")"};
    static constexpr const char* colons[] = {":", ":", ": ", " :\n"};
    static constexpr const char* texts[] = {R"("words")", R"("")", R"("[00:01.00]a\nb")",
                                            R"("\u0000 \ud83c\udfb5 \"{[")", "\"é🎵\""};
    static constexpr const char* others[] = {"true", "false",  "0",  "-7",
                                             "1.5",  "[1e-9]", "{}", "12345678901234567890123"};
    // No "e": the reference rejects numbers that overflow a double.
    static constexpr const char* spoilers[] = {
        "{",    "}",  "[",    "]",    "\"", ",", ":",    "x", "1",       " ",
        "\xC3", "\\", "null", "\x01", "-",  ".", "/**/", "0", "\\ud83c", "\xEF\xBB\xBF"};

    std::mt19937 random_{20240229};
};

TEST(LrclibResponse, IsWhatTheWholeBodySays) {
    Generator generator;
    int decoded = 0;
    int withTexts = 0;
    constexpr int bodies = 50'000;
    for (int i = 0; i < bodies; ++i) {
        const auto body = generator.body();
        const auto response = LrclibResponse::decode(body);
        ASSERT_EQ(response, test::decodeWhole(body)) << "body " << i << ": " << body;
        decoded += response ? 1 : 0;
        withTexts += response && *response != LrclibResponse() ? 1 : 0;
    }
    // The test is only meaningful if some bodies are valid and some are not.
    EXPECT_GT(decoded, bodies / 4);
    EXPECT_GT(bodies - decoded, bodies / 4);
    EXPECT_GT(withTexts, bodies / 10);
}

TEST(LrclibResponse, KeepsDigitsThatStandInTexts) {
    const auto digits = std::string(40, '7') + R"(\\\"1e999\\)";
    EXPECT_EQ(LrclibResponse::decode(R"({"x":1e5,"plainLyrics":")" + digits + "\"}"),
              (LrclibResponse{"", std::string(40, '7') + R"(\"1e999\)"}));
}

TEST(LrclibResponse, RefusesWhatIsNearlyANumber) {
    for (const auto& number : {"1e"s, "1e+"s, "0"s + std::string(400, '1'), "1.e5"s, "-"s, "1e5e5"s,
                               "true5"s, "1e--5"s, "1" + std::string(400, '0') + "."})
        EXPECT_EQ(LrclibResponse::decode(R"({"plainLyrics":"a","x":[)" + number + "]}"),
                  std::nullopt)
            << number;
}

TEST(LrclibResponse, TakesNumbersThatNoDoubleHolds) {
    for (const auto& number : {"1e999"s, "-1e999"s, "1e-999"s, "1" + std::string(400, '0')}) {
        EXPECT_EQ(LrclibResponse::decode(R"({"plainLyrics":"a","x":[)" + number + "]}"),
                  (LrclibResponse{"", "a"}))
            << number;
        EXPECT_EQ(LrclibResponse::decode(R"({"plainLyrics":)" + number + "}"), std::nullopt);
        EXPECT_EQ(LrclibResponse::decode(number), std::nullopt);
    }
}

} // namespace

} // namespace brellowind
