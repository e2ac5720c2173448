// SPDX-License-Identifier: MIT

#include "lyrics/LRCParser.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

// Texts on which a parser of quadratic time, or one that copies a text per tag, would not finish.

namespace brellowind {
namespace {

constexpr std::size_t million = 1'000'000;

std::string repeated(std::string_view unit, std::size_t times) {
    std::string text;
    text.reserve(unit.size() * times);
    for (std::size_t i = 0; i < times; ++i)
        text.append(unit);
    return text;
}

/// The size of the memory range that the texts of `lines` refer to.
std::size_t bytesSpanned(const std::vector<LyricLine>& lines) {
    const auto* first = lines.at(0).text.view().data();
    const auto* last = first;
    for (const auto& line : lines) {
        const auto text = line.text.view();
        first = std::min(first, text.data());
        last = std::max(last, text.data() + text.size());
    }
    return static_cast<std::size_t>(last - first);
}

TEST(LRCParserLinearity, AMillionOpenBrackets) {
    EXPECT_TRUE(LRCParser::parse(std::string(million, '[')).empty());
}

TEST(LRCParserLinearity, AMillionTagsThatNeverClose) {
    EXPECT_TRUE(LRCParser::parse(repeated("[00:01.00", million)).empty());
    EXPECT_TRUE(LRCParser::parse(repeated("[00:", million)).empty());
    EXPECT_TRUE(LRCParser::parse(std::string("[") + std::string(million, '0')).empty());
}

TEST(LRCParserLinearity, OneLineOfMillionsOfCharacters) {
    const auto words = repeated("la ", 3 * million) + "la";
    const auto lines = LRCParser::parse("[00:01.00]" + words);
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_TRUE(lines[0].text == words);
}

TEST(LRCParserLinearity, AMillionTagsOnOneLineShareOneText) {
    const std::string words(million, 'x');
    const auto text = repeated("[00:01.00]", million) + words;
    const auto lines = LRCParser::parse(text);
    ASSERT_EQ(lines.size(), million);
    EXPECT_TRUE(lines[0].text == words);
    for (const auto& line : lines) {
        ASSERT_EQ(line.text.view().data(), lines[0].text.view().data());
        ASSERT_EQ(line.text.size(), million);
    }
}

TEST(LRCParserLinearity, TagsInReverseOrderStillShareOneText) {
    std::string text;
    for (int minutes = 99; minutes >= 10; --minutes)
        for (int seconds = 59; seconds >= 10; --seconds)
            text += "[" + std::to_string(minutes) + ":" + std::to_string(seconds) + "]";
    const auto lines = LRCParser::parse(text + std::string(million, 'x'));
    ASSERT_EQ(lines.size(), 4500U);
    EXPECT_EQ(lines.front().time, 610);
    EXPECT_EQ(lines.back().time, 5999);
    for (const auto& line : lines)
        ASSERT_EQ(line.text.view().data(), lines[0].text.view().data());
}

TEST(LRCParserLinearity, TheTextsOfAllLinesLieInTheInput) {
    const auto text = repeated("[00:01.00]some words\n", million);
    const auto lines = LRCParser::parse(text);
    ASSERT_EQ(lines.size(), million);
    EXPECT_LE(bytesSpanned(lines), text.size());
}

TEST(LRCParserLinearity, AMillionLinesThatAreOne) {
    const auto lines = LRCParser::parse(repeated("[00:01.00]a\r\n", million));
    ASSERT_EQ(lines.size(), million);
    EXPECT_EQ(lines.front().text, "a\r\n");
    EXPECT_EQ(lines.front().text.view().data(), lines.back().text.view().data());
}

TEST(LRCParserLinearity, AMillionSpacesAroundTheWords) {
    const auto spaces = repeated("\u3000", million);
    const auto lines = LRCParser::parse("[00:01.00]" + spaces + "a" + spaces);
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].text, "a");
}

TEST(LRCParserLinearity, AMillionBlankLinesAndCarriageReturns) {
    const auto text = std::string(million, '\n') + repeated("\r\n", million) +
                      std::string(million, '\r') + "[00:01.00]a";
    ASSERT_EQ(LRCParser::parse(text).size(), 1U);
}

} // namespace
} // namespace brellowind
