// SPDX-License-Identifier: MIT

#include "lyrics/PatternParser.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iomanip>

namespace brellowind::test {
namespace {

void require(UErrorCode status) {
    if (U_FAILURE(status))
        std::abort();
}

double number(const icu::UnicodeString& digits) {
    std::string text;
    digits.toUTF8String(text);
    char* stop = nullptr;
    const double value = std::strtod(text.c_str(), &stop);
    return *stop == '\0' ? value : 0;
}

double timeOf(const icu::RegexMatcher& matcher) {
    UErrorCode status = U_ZERO_ERROR;
    const double minutes = number(matcher.group(1, status));
    const double seconds = number(matcher.group(2, status));
    double fraction = 0;
    if (matcher.start(3, status) >= 0) {
        const auto digits = matcher.group(3, status);
        fraction = number(digits) / std::pow(10.0, digits.countChar32());
    }
    require(status);
    return (minutes * 60 + seconds) + fraction;
}

} // namespace

std::ostream& operator<<(std::ostream& out, const PatternParser::Line& line) {
    return out << line.time << " " << std::quoted(line.text);
}

PatternParser::PatternParser() {
    UErrorCode status = U_ZERO_ERROR;
    tag_ = std::make_unique<icu::RegexMatcher>(u"\\[(\\d{1,2}):(\\d{1,2})(?:[.:](\\d{1,3}))?\\]", 0,
                                               status);
    spaces_.applyPattern(u"[\\p{Zs}\\t]", status);
    require(status);
}

std::vector<PatternParser::Line> PatternParser::parse(const icu::UnicodeString& text) const {
    std::vector<Line> lines;
    std::int32_t start = 0;
    for (std::int32_t i = 0; i < text.length(); ++i) {
        if (text[i] != u'\n' || (i > 0 && text[i - 1] == u'\r'))
            continue;
        readPiece(text.tempSubStringBetween(start, i), lines);
        start = i + 1;
    }
    readPiece(text.tempSubString(start), lines);
    std::ranges::stable_sort(lines, {}, &Line::time);
    return lines;
}

void PatternParser::readPiece(const icu::UnicodeString& piece, std::vector<Line>& lines) const {
    UErrorCode status = U_ZERO_ERROR;
    tag_->reset(piece);
    std::vector<double> times;
    std::int32_t lyric = 0;
    while (tag_->find(status)) {
        times.push_back(timeOf(*tag_));
        lyric = tag_->end(status);
    }
    require(status);
    const auto words = trimmed(piece.tempSubString(lyric));
    for (const double time : times)
        lines.push_back({time, words});
}

std::string PatternParser::trimmed(const icu::UnicodeString& text) const {
    const auto start = spaces_.span(text, 0, USET_SPAN_CONTAINED);
    const auto end = spaces_.spanBack(text, text.length(), USET_SPAN_CONTAINED);
    std::string words;
    if (start < end)
        text.tempSubStringBetween(start, end).toUTF8String(words);
    return words;
}

} // namespace brellowind::test
