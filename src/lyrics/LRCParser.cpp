#include "lyrics/LRCParser.h"

#include "foundation/Utf8.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <unicode/uchar.h>

namespace brellowind::LRCParser {
namespace {

/// A run of decimal digits of any script. Only ASCII digits read as numbers.
struct Digits {
    int count = 0;
    int value = 0; ///< 0 when any digit is foreign
};

struct Tag {
    double time; ///< seconds
    const char* end;
};

struct TimedText {
    double time;
    std::string_view text;
};

bool isAsciiDigit(char character) {
    return character >= '0' && character <= '9';
}

bool isAscii(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

/// Passes one decimal digit of a script other than Latin, if one stands at `position`.
bool takeForeignDigit(const char*& position, const char* end) {
    if (isAscii(*position))
        return false;
    std::string_view rest(position, end);
    if (!u_isdigit(static_cast<UChar32>(utf8::takeFirst(rest))))
        return false;
    position = rest.data();
    return true;
}

Digits takeDigits(const char*& position, const char* end, int most) {
    Digits digits;
    bool foreign = false;
    for (; digits.count < most && position != end; ++digits.count) {
        if (isAsciiDigit(*position)) {
            digits.value = digits.value * 10 + (*position++ - '0');
            continue;
        }
        if (!takeForeignDigit(position, end))
            break;
        foreign = true;
    }
    if (foreign)
        digits.value = 0;
    return digits;
}

bool take(const char*& position, const char* end, char wanted) {
    if (position == end || *position != wanted)
        return false;
    ++position;
    return true;
}

/// Reads one tag, [minutes:seconds] or [minutes:seconds.fraction], at the bracket `open` points to.
std::optional<Tag> readTag(const char* open, const char* end) {
    const char* position = open + 1;
    const auto minutes = takeDigits(position, end, 2);
    if (minutes.count == 0 || !take(position, end, ':'))
        return std::nullopt;
    const auto seconds = takeDigits(position, end, 2);
    if (seconds.count == 0)
        return std::nullopt;
    double fraction = 0;
    if (take(position, end, '.') || take(position, end, ':')) {
        constexpr double scale[] = {1, 10, 100, 1000};
        const auto digits = takeDigits(position, end, 3);
        if (digits.count == 0)
            return std::nullopt;
        fraction = digits.value / scale[digits.count];
    }
    if (!take(position, end, ']'))
        return std::nullopt;
    return Tag{minutes.value * 60 + seconds.value + fraction, position};
}

const char* find(const char* position, const char* end, char wanted) {
    const auto length = static_cast<std::size_t>(end - position);
    const void* found = length ? std::memchr(position, wanted, length) : nullptr;
    return found ? static_cast<const char*>(found) : end;
}

/// The first tag that opens at or after `position`.
std::optional<Tag> nextTag(const char* position, const char* end) {
    for (auto open = find(position, end, '['); open != end; open = find(open + 1, end, '['))
        if (const auto tag = readTag(open, end))
            return tag;
    return std::nullopt;
}

/// The line feed that ends the piece `position` is in. One that follows a carriage return ends
/// none: the two are a single character. `position` is not the first byte of the text.
const char* endOfPiece(const char* position, const char* end) {
    auto feed = find(position, end, '\n');
    while (feed != end && feed[-1] == '\r')
        feed = find(feed + 1, end, '\n');
    return feed;
}

/// A space separator of Unicode or the tab; no line break is one.
bool isSpace(char32_t character) {
    if (character < 0x80)
        return character == ' ' || character == '\t';
    return u_charType(static_cast<UChar32>(character)) == U_SPACE_SEPARATOR;
}

std::string_view trimmed(std::string_view text) {
    for (auto rest = text; !rest.empty() && isSpace(utf8::takeFirst(rest));)
        text = rest;
    for (auto rest = text; !rest.empty() && isSpace(utf8::takeLast(rest));)
        text = rest;
    return text;
}

/// Every tag of `text` with the text of its piece, in order of position.
std::vector<TimedText> readPieces(std::string_view text) {
    std::vector<TimedText> found;
    const char* const end = text.data() + text.size();
    auto tag = nextTag(text.data(), end);
    while (tag) {
        const std::size_t firstOfPiece = found.size();
        const char* const pieceEnd = endOfPiece(tag->end, end);
        const char* lyric = nullptr;
        for (auto next = tag; next; next = nextTag(lyric, pieceEnd)) {
            found.push_back({next->time, {}});
            lyric = next->end;
        }
        const auto words = trimmed({lyric, pieceEnd});
        for (std::size_t i = firstOfPiece; i < found.size(); ++i)
            found[i].text = words;
        tag = nextTag(pieceEnd, end);
    }
    return found;
}

} // namespace

std::vector<LyricLine> parse(std::string_view text) {
    auto pieces = readPieces(text);
    if (!std::ranges::is_sorted(pieces, {}, &TimedText::time))
        std::ranges::stable_sort(pieces, {}, &TimedText::time);

    std::vector<LyricLine> lines;
    if (pieces.empty())
        return lines;
    lines.reserve(pieces.size());
    const auto buffer = SharedText::copyBytes(text);
    for (const auto& piece : pieces) {
        const auto offset = piece.text.data() - text.data();
        lines.emplace_back(piece.time, SharedText(buffer, std::string_view(buffer.get() + offset,
                                                                           piece.text.size())));
    }
    return lines;
}

} // namespace brellowind::LRCParser
