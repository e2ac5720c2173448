// SPDX-License-Identifier: MIT

#include "lyrics/LRCParser.h"
#include "lyrics/PatternParser.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

// Compares the hand-written parser with a regular expression on generated texts.

namespace brellowind {
namespace {

using test::PatternParser;

/// Generates texts of tags, malformed tags, and other characters around them.
class Generator {
public:
    std::u32string text() {
        std::u32string made;
        for (int parts = below(14); parts > 0; --parts)
            made += part();
        return made;
    }

private:
    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

    template <std::size_t N>
    std::u32string oneOf(const char32_t* const (&choices)[N]) {
        return choices[below(static_cast<int>(N))];
    }

    std::u32string part() {
        switch (below(9)) {
        case 0:
        case 1:
        case 2:
            return tag();
        case 3:
            return nearlyTag();
        case 4:
            return oneOf(breaks);
        case 5:
            return oneOf(spaces);
        case 6:
            return oneOf(invisible);
        default:
            return oneOf(words);
        }
    }

    std::u32string tag() {
        auto made = U"[" + digits(1 + below(2)) + U":" + digits(1 + below(2));
        if (below(4) > 0)
            made += (below(3) ? U"." : U":") + digits(1 + below(3));
        return made + U"]";
    }

    /// A tag with one character removed, doubled, or replaced.
    std::u32string nearlyTag() {
        auto made = tag();
        const auto at = static_cast<std::size_t>(below(static_cast<int>(made.size())));
        switch (below(4)) {
        case 0:
            made.erase(at, 1);
            break;
        case 1:
            made.insert(at, 1, made[at]);
            break;
        case 2:
            made.replace(at, 1, oneOf(spoilers));
            break;
        default:
            made.insert(at, oneOf(spoilers));
        }
        return made;
    }

    std::u32string digits(int count) {
        std::u32string made;
        for (; count > 0; --count) {
            const char32_t zero = below(12) ? U'0' : foreignZeros[below(8)];
            made += zero + static_cast<char32_t>(below(10));
        }
        return made;
    }

    static constexpr const char32_t* breaks[] = {U"\n",   U"\n",     U"\n",     U"\n\n", U"\r",
                                                 U"\r\n", U"\r\r\n", U"\r\n\n", U"\n\r"};
    static constexpr const char32_t* spaces[] = {
        U" ",      U"  ",     U"\t",     U"\u00A0", U"\u1680", U"\u2000", U"\u2001",
        U"\u2002", U"\u2003", U"\u2004", U"\u2005", U"\u2006", U"\u2007", U"\u2008",
        U"\u2009", U"\u200A", U"\u202F", U"\u205F", U"\u3000"};
    static constexpr const char32_t* invisible[] = {
        U"\u200B", U"\uFEFF", U"\u0085", U"\u2028", U"\u2029", U"\u180E", U"\u2060", U"\u200D",
        U"\u00AD", U"\v",     U"\f",     U"\x1C",   U"\x1F",   U"\u0301", U"\uFE0F", U"\U000E0020"};
    static constexpr const char32_t* words[] = {
        U"la",    U"Hello world", U"ç",  U"e\u0301", U"夜に駆ける", U"🎵",   U"👨\u200D👩", U"[ar:x]",
        U"[",     U"]",           U"[[", U"]]",      U"7",          U":",   U"[00:",     U"00]",
        U"[1:2.", U"\U0001D7D8",  U"½",  U"²",       U"(1:02)",     U"שלום"};
    static constexpr const char32_t* spoilers[] = {
        U"[", U"]",      U":",      U".",      U",",      U"0",      U"00", U"000",
        U" ", U"\u0301", U"\u200B", U"\uFEFF", U"\u0665", U"²",      U"\n", U"\r\n",
        U"-", U"x",      U"😀",      U"\u20E3", U"\uFF1A", U"\uFF3B", U"¼",  U"\u2460"};
    static constexpr char32_t foreignZeros[] = {U'\u0660',     U'\u06F0',    U'\u0966',
                                                U'\u0E50',     U'\uFF10',    U'\U0001D7CE',
                                                U'\U000104A0', U'\U0001E950'};

    std::mt19937 random_{20240229};
};

icu::UnicodeString utf16(const std::u32string& text) {
    icu::UnicodeString units;
    for (const char32_t character : text)
        units.append(static_cast<UChar32>(character));
    return units;
}

std::vector<PatternParser::Line> parsed(const std::string& text) {
    std::vector<PatternParser::Line> lines;
    for (const auto& line : LRCParser::parse(text))
        lines.push_back({line.time, std::string(line.text)});
    return lines;
}

bool isAscii(const icu::UnicodeString& text) {
    return std::all_of(text.getBuffer(), text.getBuffer() + text.length(),
                       [](char16_t unit) { return unit < 0x80; });
}

/// Both parsers find `lines` in `text`.
void findAlike(const PatternParser& reference, const icu::UnicodeString& text,
               std::vector<PatternParser::Line>& lines) {
    std::string bytes;
    text.toUTF8String(bytes);
    lines = reference.parse(text);
    ASSERT_EQ(parsed(bytes), lines) << testing::PrintToString(bytes);
}

TEST(LRCParserAgainstIcu, FindsWhatThePatternFinds) {
    const PatternParser reference;
    Generator generator;
    std::vector<PatternParser::Line> lines;
    std::size_t lineCount = 0;
    std::size_t textsWithTags = 0;
    std::size_t foreignTextsWithTags = 0;
    for (int i = 0; i < 60'000; ++i) {
        const auto text = utf16(generator.text());
        ASSERT_NO_FATAL_FAILURE(findAlike(reference, text, lines)) << "text " << i;
        lineCount += lines.size();
        textsWithTags += lines.empty() ? 0 : 1;
        foreignTextsWithTags += lines.empty() || isAscii(text) ? 0 : 1;
    }
    // The test is only meaningful if most texts have tags.
    EXPECT_GT(textsWithTags, 40'000U);
    EXPECT_GT(foreignTextsWithTags, 30'000U);
    EXPECT_GT(lineCount, 100'000U);
}

TEST(LRCParserAgainstIcu, ReadsEveryTimeAlike) {
    const PatternParser reference;
    for (int minutes = 0; minutes < 100; minutes += 7)
        for (int seconds = 0; seconds < 100; seconds += 3)
            for (int fraction = 0; fraction < 1000; fraction += 11) {
                const auto text = "[" + std::to_string(minutes) + ":" + std::to_string(seconds) +
                                  "." + std::to_string(fraction) + "]";
                ASSERT_EQ(parsed(text), reference.parse(icu::UnicodeString::fromUTF8(text)));
            }
}

} // namespace
} // namespace brellowind
