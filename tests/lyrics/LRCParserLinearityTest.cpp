// SPDX-License-Identifier: MIT

#include "lyrics/LRCParser.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

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

TEST(LRCParserLinearity, AMillionLines) {
    const auto lines = LRCParser::parse(repeated("[00:01.00]some words\n", million));
    ASSERT_EQ(lines.size(), million);
    EXPECT_EQ(lines.back().text, "some words");
}

TEST(LRCParserLinearity, AMillionLinesThatAreOne) {
    const auto lines = LRCParser::parse(repeated("[00:01.00]a\r\n", million));
    ASSERT_EQ(lines.size(), million);
    EXPECT_EQ(lines.front().text, "a\r\n");
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
