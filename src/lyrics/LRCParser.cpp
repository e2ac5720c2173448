// SPDX-License-Identifier: MIT

#include "lyrics/LRCParser.h"

#include "foundation/Unicode.h"
#include "foundation/Utf8.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <utility>

namespace brellowind::LRCParser {
namespace {

struct Tag {
    double time;       ///< seconds
    std::size_t words; ///< the index of its words; small tags sort fast
};

/// Decimal digits of any script.
struct Digits {
    int count = 0;
    int value = 0; ///< 0 unless all of them are ASCII
};

inline bool take(std::string_view& text, char wanted) {
    if (!text.starts_with(wanted))
        return false;
    text.remove_prefix(1);
    return true;
}

inline Digits takeDigits(std::string_view& text, int most) {
    Digits digits;
    bool ascii = true;
    for (; digits.count < most && !text.empty(); ++digits.count) {
        auto rest = text;
        const char32_t character = utf8::takeFirst(rest);
        if (character >= '0' && character <= '9')
            digits.value = digits.value * 10 + static_cast<int>(character - '0');
        else if (character >= 0x80 && unicode::isDecimalDigit(character))
            ascii = false;
        else
            break;
        text = rest;
    }
    if (!ascii)
        digits.value = 0;
    return digits;
}

/// Takes the tag that `text` begins with, [minutes:seconds] or [minutes:seconds.fraction], and
/// gives its time in seconds. Without one, `text` stays as it is.
std::optional<double> takeTag(std::string_view& text) {
    auto rest = text;
    if (!take(rest, '['))
        return std::nullopt;
    const auto minutes = takeDigits(rest, 2);
    if (minutes.count == 0 || !take(rest, ':'))
        return std::nullopt;
    const auto seconds = takeDigits(rest, 2);
    if (seconds.count == 0)
        return std::nullopt;
    double fraction = 0;
    if (take(rest, '.') || take(rest, ':')) {
        constexpr double scale[] = {1, 10, 100, 1000};
        const auto digits = takeDigits(rest, 3);
        if (digits.count == 0)
            return std::nullopt;
        fraction = digits.value / scale[digits.count];
    }
    if (!take(rest, ']'))
        return std::nullopt;
    text = rest;
    return minutes.value * 60 + seconds.value + fraction;
}

bool isSpace(char32_t character) {
    return character == '\t' || unicode::isSpaceSeparator(character);
}

/// The number of bytes of the space that `text` ends with; 0 without one.
std::size_t spaceAtEnd(std::string_view text) {
    constexpr std::size_t longest = 3;
    for (std::size_t bytes = 1; bytes <= std::min(longest, text.size()); ++bytes) {
        auto last = text.substr(text.size() - bytes);
        const auto character = utf8::takeFirst(last);
        if (last.empty() && isSpace(character))
            return bytes;
    }
    return 0;
}

std::string_view trimmed(std::string_view text) {
    for (auto rest = text; !text.empty() && isSpace(utf8::takeFirst(rest));)
        text = rest;
    while (const auto bytes = spaceAtEnd(text))
        text.remove_suffix(bytes);
    return text;
}

/// Takes what stands before the next line feed, and the line feed. One that follows a carriage
/// return is not the end: the two are a single character.
std::string_view takePiece(std::string_view& text) {
    auto end = text.find('\n');
    while (end != text.npos && end > 0 && text[end - 1] == '\r')
        end = text.find('\n', end + 1);
    const auto piece = text.substr(0, end);
    text.remove_prefix(end == text.npos ? text.size() : end + 1);
    return piece;
}

/// Appends the tags of `piece`, and what follows the last of them as the words of all.
void readPiece(std::string_view piece, std::vector<Tag>& tags,
               std::vector<std::string_view>& words) {
    const auto before = tags.size();
    std::string_view rest;
    for (auto open = piece.find('['); open != piece.npos; open = piece.find('[')) {
        piece.remove_prefix(open);
        if (const auto time = takeTag(piece)) {
            tags.push_back({*time, words.size()});
            rest = piece;
        } else {
            piece.remove_prefix(1);
        }
    }
    if (tags.size() > before)
        words.push_back(trimmed(rest));
}

} // namespace

std::vector<LyricLine> parse(std::string text) {
    const auto whole = std::make_shared<const std::string>(std::move(text));
    std::vector<Tag> tags;
    std::vector<std::string_view> words;
    for (std::string_view rest = *whole; !rest.empty();)
        readPiece(takePiece(rest), tags, words);
    if (!std::ranges::is_sorted(tags, {}, &Tag::time)) // nearly always they are
        std::ranges::stable_sort(tags, {}, &Tag::time);

    std::vector<LyricLine> lines;
    lines.reserve(tags.size());
    UUIDGenerator ids;
    for (const auto& tag : tags)
        lines.emplace_back(ids.next(), tag.time, whole, words[tag.words]);
    return lines;
}

} // namespace brellowind::LRCParser
