// SPDX-License-Identifier: MIT

#include "Fuzz.h"
#include "foundation/Utf8.h"
#include "lyrics/LRCParser.h"
#include "lyrics/PatternParser.h"

#include <algorithm>
#include <string>

// Arbitrary bytes as LRC text. Valid UTF-8 is also parsed with a regular expression, which must
// give the same lines.

namespace brellowind::fuzz {
namespace {

constexpr double latest = 99 * 60 + 99.999;

bool isTrimmed(std::string_view text) {
    return std::ranges::none_of(
        std::initializer_list<std::string_view>{" ", "\t", "\u00A0", "\u3000"},
        [text](std::string_view space) {
            return text.starts_with(space) || text.ends_with(space);
        });
}

void requireLinesOf(std::string_view text, const std::vector<LyricLine>& lines) {
    require(std::ranges::is_sorted(lines, {}, &LyricLine::time), "lines are sorted by time");
    require(std::cmp_less_equal(lines.size(), std::ranges::count(text, '[')),
            "there is no more than one line to a bracket");
    for (const auto& line : lines) {
        require(line.time >= 0 && line.time <= latest, "a time is one that a tag can spell");
        require(isTrimmed(line.text), "no space surrounds the words");
        require(text.find(line.text.view()) != std::string_view::npos, "words stand in the text");
    }
}

void requireSameLines(const std::vector<LyricLine>& lines, const std::vector<LyricLine>& others) {
    const auto same = [](const auto& a, const auto& b) {
        return a.time == b.time && a.text == b.text;
    };
    require(std::ranges::equal(lines, others, same), "a line without a tag changes nothing");
}

void requireWhatThePatternFinds(std::string_view text, const std::vector<LyricLine>& lines) {
    static const test::PatternParser pattern;
    const auto same = [](const auto& line, const auto& expected) {
        return line.time == expected.time && line.text == expected.text;
    };
    require(std::ranges::equal(
                lines, pattern.parse(icu::UnicodeString::fromUTF8(std::string(text))), same),
            "the lines are those that the pattern finds");
}

} // namespace
} // namespace brellowind::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brellowind;
    const std::string text(fuzz::text(data, size));
    const auto lines = LRCParser::parse(text);
    fuzz::requireLinesOf(text, lines);
    fuzz::requireSameLines(lines, LRCParser::parse("no tag\n" + text));
    if (utf8::isValid(text))
        fuzz::requireWhatThePatternFinds(text, lines);
    return 0;
}
