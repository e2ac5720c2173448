// SPDX-License-Identifier: MIT

#include "lyrics/LRCParser.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace brellowind {
namespace {

using namespace std::string_literals;

using Lines = std::vector<std::pair<double, std::string>>;

Lines parsed(const std::string& text) {
    Lines lines;
    for (const auto& line : LRCParser::parse(text))
        lines.emplace_back(line.time, line.text);
    return lines;
}

double onlyTime(const std::string& text) {
    const auto lines = LRCParser::parse(text);
    EXPECT_EQ(lines.size(), 1U) << text;
    return lines.empty() ? -1 : lines[0].time;
}

TEST(LRCParser, ReadsATaggedLine) {
    EXPECT_EQ(parsed("[00:12.34]Hello"), (Lines{{12.34, "Hello"}}));
}

TEST(LRCParser, GivesNothingForTextsWithoutTags) {
    EXPECT_EQ(parsed(""), Lines{});
    EXPECT_EQ(parsed("plain words"), Lines{});
    EXPECT_EQ(parsed("\n\n\n"), Lines{});
    EXPECT_EQ(parsed("["), Lines{});
    EXPECT_EQ(parsed("[00:01.00"), Lines{});
}

TEST(LRCParser, ReadsTheFractionByItsNumberOfDigits) {
    EXPECT_EQ(onlyTime("[00:12.5]"), 12.5);
    EXPECT_EQ(onlyTime("[00:12.05]"), 12.05);
    EXPECT_EQ(onlyTime("[00:12.50]"), 12.5);
    EXPECT_EQ(onlyTime("[00:12.500]"), 12.5);
    EXPECT_EQ(onlyTime("[00:12.123]"), 12.123);
    EXPECT_EQ(onlyTime("[00:12.005]"), 12.005);
    EXPECT_EQ(onlyTime("[00:12.0]"), 12.0);
}

TEST(LRCParser, AcceptsAColonBeforeTheFraction) {
    EXPECT_EQ(onlyTime("[00:12:30]"), 12.3);
    EXPECT_EQ(onlyTime("[00:12:3]"), 12.3);
}

TEST(LRCParser, AcceptsATagWithoutFraction) {
    EXPECT_EQ(onlyTime("[00:12]"), 12.0);
}

TEST(LRCParser, AcceptsOneDigitOfMinutesAndSeconds) {
    EXPECT_EQ(onlyTime("[1:02.3]"), 62.3);
    EXPECT_EQ(onlyTime("[1:2]"), 62.0);
    EXPECT_EQ(onlyTime("[01:2.3]"), 62.3);
}

TEST(LRCParser, DoesNotLimitSecondsTo59) {
    EXPECT_EQ(onlyTime("[01:75]"), 135.0);
    EXPECT_EQ(onlyTime("[00:60]"), 60.0);
}

TEST(LRCParser, CoversEveryTimeFromZeroToTheLatest) {
    EXPECT_EQ(onlyTime("[00:00.00]"), 0.0);
    EXPECT_EQ(onlyTime("[99:99.999]"), 6039 + 0.999);
}

TEST(LRCParser, AddsTheFractionToTheWholeSeconds) {
    for (int fraction = 0; fraction < 1000; ++fraction) {
        auto digits = std::to_string(1000 + fraction).substr(1);
        EXPECT_EQ(onlyTime("[12:34." + digits + "]"), (12.0 * 60 + 34.0) + fraction / 1000.0);
    }
}

TEST(LRCParser, IgnoresTagsOfAnotherForm) {
    for (const auto* text : {"[00:12.3456]x", "[100:00.00]x", "[000:01]x",  "[00:001]x",
                             "[:01]x",        "[00:]x",       "[00]x",      "[00:01.]x",
                             "[00:01:]x",     "[00:01,50]x",  "[00;01]x",   "[00:01.00.00]x",
                             "[00 :01]x",     "[ 00:01]x",    "[00:01 ]x",  "[-0:01]x",
                             "[+0:01]x",      "[00:-1]x",     "[0x:01]x",   "(00:01)x",
                             "<00:01.00>x",   "[00:01.00}x",  "00:01.00]x", "[00:01\n.00]x",
                             "[00:0a]x",      "[]x"})
        EXPECT_EQ(parsed(text), Lines{}) << text;
}

TEST(LRCParser, SkipsMetadata) {
    EXPECT_EQ(parsed("[ar:Someone]\n[ti:Song]\n[al:Album]\n[by:me]\n[length:03:35]\n[re:x]"),
              Lines{});
}

TEST(LRCParser, AnOffsetMovesNothing) {
    EXPECT_EQ(parsed("[offset:+500]\n[00:10.00]a"), (Lines{{10, "a"}}));
}

TEST(LRCParser, SkipsBlankAndPlainLinesBetweenTaggedOnes) {
    EXPECT_EQ(parsed("\n[00:01.00]a\n\nplain words\n   \n[00:02.00]b\n"),
              (Lines{{1, "a"}, {2, "b"}}));
}

TEST(LRCParser, KeepsLinesWithoutWords) {
    EXPECT_EQ(parsed("[00:30.00]"), (Lines{{30, ""}}));
    EXPECT_EQ(parsed("[00:30.00]  \t \n[00:31.00]\n"), (Lines{{30, ""}, {31, ""}}));
}

TEST(LRCParser, SeveralTagsRepeatTheirLine) {
    EXPECT_EQ(parsed("[00:10.00][00:20.00]Chorus"), (Lines{{10, "Chorus"}, {20, "Chorus"}}));
}

TEST(LRCParser, TakesTheTextAfterTheLastTag) {
    EXPECT_EQ(parsed("[00:10.00]Hello [00:11.00] world"), (Lines{{10, "world"}, {11, "world"}}));
    EXPECT_EQ(parsed("[00:10.00]Hello [00:11.00]"), (Lines{{10, ""}, {11, ""}}));
}

TEST(LRCParser, DiscardsTheTextBeforeTheFirstTag) {
    EXPECT_EQ(parsed("intro [00:05.00]  Go  "), (Lines{{5, "Go"}}));
}

TEST(LRCParser, KeepsWhatOnlyLooksLikeATagInTheText) {
    EXPECT_EQ(parsed("[00:05.00]Go [100:00.00] [x] [00:06"),
              (Lines{{5, "Go [100:00.00] [x] [00:06"}}));
}

TEST(LRCParser, FindsTagsInsideBracketsAndHalfTags) {
    EXPECT_EQ(parsed("[[00:01.00]]a"), (Lines{{1, "]a"}}));
    EXPECT_EQ(parsed("[00:[00:02.00]a"), (Lines{{2, "a"}}));
    EXPECT_EQ(parsed("[00:01.[00:02.00]a"), (Lines{{2, "a"}}));
    EXPECT_EQ(parsed("[ar:[00:03.00]a]"), (Lines{{3, "a]"}}));
}

TEST(LRCParser, SortsByTime) {
    EXPECT_EQ(parsed("[00:20.00]b\n[00:10.00]a"), (Lines{{10, "a"}, {20, "b"}}));
    EXPECT_EQ(parsed("[00:30.00][00:10.00]x\n[00:20.00]y"),
              (Lines{{10, "x"}, {20, "y"}, {30, "x"}}));
    EXPECT_EQ(parsed("[00:10.002]b\n[00:10.001]a"), (Lines{{10.001, "a"}, {10.002, "b"}}));
}

TEST(LRCParser, LinesOfEqualTimeKeepTheirOrder) {
    std::string text = "[00:20.00]late\n";
    Lines expected;
    for (int i = 0; i < 100; ++i) {
        text += "[00:10." + std::string(i % 2 ? "5" : "500") + "]" + std::to_string(i) + "\n";
        expected.emplace_back(10.5, std::to_string(i));
    }
    expected.emplace_back(20, "late");
    EXPECT_EQ(parsed(text), expected);
}

TEST(LRCParser, TrimsSpacesAndTabs) {
    EXPECT_EQ(parsed("[00:01.00]\t \t two  words \t "), (Lines{{1, "two  words"}}));
}

TEST(LRCParser, TrimsEverySpaceSeparatorOfUnicode) {
    for (const auto* space :
         {" ", "\t", "\u00A0", "\u1680", "\u2000", "\u2001", "\u2002", "\u2003", "\u2004", "\u2005",
          "\u2006", "\u2007", "\u2008", "\u2009", "\u200A", "\u202F", "\u205F", "\u3000"})
        EXPECT_EQ(parsed(std::string("[00:01.00]") + space + "a" + space + "b" + space),
                  (Lines{{1, std::string("a") + space + "b"}}))
            << space;
}

TEST(LRCParser, KeepsOtherInvisibleCharacters) {
    for (const auto* kept : {"\u200B", "\uFEFF", "\u0085", "\u2028", "\u2029", "\u180E", "\u2060",
                             "\v", "\f", "\r", "\u200D"}) {
        const std::string words = std::string(kept) + "a" + kept;
        EXPECT_EQ(parsed("[00:01.00] " + words + " "), (Lines{{1, words}})) << words;
    }
}

TEST(LRCParser, CarriageReturnAndLineFeedTogetherEndNoLine) {
    EXPECT_EQ(parsed("[00:01.00]a\r\n[00:02.00]b\r\n"), (Lines{{1, "b\r\n"}, {2, "b\r\n"}}));
}

TEST(LRCParser, ALoneCarriageReturnEndsNoLine) {
    EXPECT_EQ(parsed("[00:01.00]a\r[00:02.00]b"), (Lines{{1, "b"}, {2, "b"}}));
    EXPECT_EQ(parsed("[00:01.00]a\r"), (Lines{{1, "a\r"}}));
}

TEST(LRCParser, TheLineFeedAfterACarriageReturnPairEndsTheLine) {
    EXPECT_EQ(parsed("[00:01.00]a\r\n\n[00:02.00]b"), (Lines{{1, "a\r\n"}, {2, "b"}}));
    EXPECT_EQ(parsed("[00:01.00]\r\r\n\n[00:02.00]b"), (Lines{{1, "\r\r\n"}, {2, "b"}}));
    EXPECT_EQ(parsed("\r\n[00:01.00]a\n\r[00:02.00]b"), (Lines{{1, "a"}, {2, "b"}}));
}

TEST(LRCParser, OtherLineBreaksEndNoLine) {
    EXPECT_EQ(parsed("[00:01.00]a\u2028[00:02.00]b\u0085"),
              (Lines{{1, "b\u0085"}, {2, "b\u0085"}}));
}

TEST(LRCParser, ForeignDigitsMakeATagButReadAsZero) {
    EXPECT_EQ(parsed("[\u0661:\u0662\u0663]a"), (Lines{{0, "a"}}));
    EXPECT_EQ(onlyTime("[01:\u0662.50]"), 60.5);
    EXPECT_EQ(onlyTime("[01:1\u0662.50]"), 60.5);
    EXPECT_EQ(onlyTime("[\uFF11:05.5]"), 5.5);
    EXPECT_EQ(onlyTime("[01:05.5\u0966]"), 65.0);
    EXPECT_EQ(onlyTime("[\U0001D7CE\U0001D7CF:01.\U0001D7D0\U0001D7D1\U0001D7D2]"), 1.0);
}

TEST(LRCParser, CountsForeignDigitsAsDigits) {
    EXPECT_EQ(parsed("[\u0661\u0661\u0661:00]a"), Lines{});
    EXPECT_EQ(parsed("[00:00.\U0001D7CE\U0001D7CE\U0001D7CE\U0001D7CE]a"), Lines{});
}

TEST(LRCParser, NumbersThatAreNoDecimalDigitsMakeNoTag) {
    for (const auto* number : {"\u00B2", "\u2460", "\u00BD", "\u2167", "\u4E09", "\U0001F51F"})
        EXPECT_EQ(parsed(std::string("[00:") + number + "]a"), Lines{}) << number;
}

TEST(LRCParser, ReadsATagThatACombiningMarkFollows) {
    EXPECT_EQ(parsed("[00:01.00]\u0301a"), (Lines{{1, "\u0301a"}}));
    EXPECT_EQ(parsed("[00:01\u0301]a"), Lines{});
}

TEST(LRCParser, KeepsWordsOfAnyScript) {
    EXPECT_EQ(parsed("[00:01.00]夜に駆ける\n[00:02.00]Ça va "
                     "🎤👨‍👩‍👧\n[00:03.00]שלום"),
              (Lines{{1, "夜に駆ける"}, {2, "Ça va 🎤👨‍👩‍👧"}, {3, "שלום"}}));
}

TEST(LRCParser, KeepsNulCharactersInTheWords) {
    EXPECT_EQ(parsed("[00:01.00]a\0b\n\0[00:02.00]c"s), (Lines{{1, "a\0b"s}, {2, "c"}}));
}

TEST(LRCParser, PassesOverBytesThatAreNotUtf8) {
    EXPECT_EQ(parsed("\xFF[00:01.00]\xC3\n[00:0\x80]x\n[00:02.00] \xE2\x80 "),
              (Lines{{1, "\xC3"}, {2, "\xE2\x80"}}));
}

TEST(LRCParser, MakesFreshIdsOnEveryParse) {
    const std::string text = "[00:01.00][00:01.00]a";
    const auto first = LRCParser::parse(text);
    const auto second = LRCParser::parse(text);
    ASSERT_EQ(first.size(), 2U);
    EXPECT_NE(first[0].id, first[1].id);
    EXPECT_NE(first[0].id, second[0].id);
    EXPECT_NE(first, second);
}

TEST(LRCParser, LinesOutliveTheListTheyCameIn) {
    auto lines = LRCParser::parse("[00:01.00][00:02.00]a line of more than a few words");
    const LyricLine line = lines.at(1);
    lines.clear();
    EXPECT_EQ(line.text, "a line of more than a few words");
}

} // namespace
} // namespace brellowind
