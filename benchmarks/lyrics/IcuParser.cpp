// SPDX-License-Identifier: MIT

#include "IcuParser.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <unicode/regex.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace brellowind::benchmarks {
namespace {

double number(const icu::UnicodeString& digits) {
    std::string text;
    digits.toUTF8String(text);
    char* stop = nullptr;
    const double value = std::strtod(text.c_str(), &stop);
    return *stop == '\0' ? value : 0;
}

double timeOf(const icu::RegexMatcher& tag, UErrorCode& status) {
    const double minutes = number(tag.group(1, status));
    const double seconds = number(tag.group(2, status));
    double fraction = 0;
    if (tag.start(3, status) >= 0) {
        const auto digits = tag.group(3, status);
        fraction = number(digits) / std::pow(10.0, digits.countChar32());
    }
    return minutes * 60 + seconds + fraction;
}

bool isSpace(UChar32 character) {
    return character == '\t' || u_charType(character) == U_SPACE_SEPARATOR;
}

std::string trimmed(const icu::UnicodeString& text) {
    std::int32_t start = 0;
    std::int32_t end = text.length();
    while (start < end && isSpace(text.char32At(start)))
        start = text.moveIndex32(start, 1);
    while (start < end && isSpace(text.char32At(text.moveIndex32(end, -1))))
        end = text.moveIndex32(end, -1);
    std::string words;
    text.tempSubStringBetween(start, end).toUTF8String(words);
    return words;
}

void readPiece(icu::RegexMatcher& tag, const icu::UnicodeString& piece, UErrorCode& status,
               std::vector<IcuLine>& lines) {
    tag.reset(piece);
    std::vector<double> times;
    std::int32_t lyric = 0;
    while (tag.find(status)) {
        times.push_back(timeOf(tag, status));
        lyric = tag.end(status);
    }
    if (times.empty())
        return;
    const auto words = trimmed(piece.tempSubString(lyric));
    for (const double time : times)
        lines.push_back({time, words});
}

} // namespace

std::vector<IcuLine> parseWithIcu(std::string_view text) {
    UErrorCode status = U_ZERO_ERROR;
    icu::RegexMatcher tag(u"\\[(\\d{1,2}):(\\d{1,2})(?:[.:](\\d{1,3}))?\\]", 0, status);
    const auto wide = icu::UnicodeString::fromUTF8(
        icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())));
    std::vector<IcuLine> lines;
    std::int32_t start = 0;
    for (std::int32_t i = wide.indexOf(u'\n'); i >= 0; i = wide.indexOf(u'\n', i + 1)) {
        if (i > 0 && wide[i - 1] == u'\r')
            continue;
        readPiece(tag, wide.tempSubStringBetween(start, i), status, lines);
        start = i + 1;
    }
    readPiece(tag, wide.tempSubString(start), status, lines);
    if (U_FAILURE(status))
        std::abort();
    std::ranges::stable_sort(lines, {}, &IcuLine::time);
    return lines;
}

} // namespace brellowind::benchmarks
