#include "lyrics/LRCParser.h"

#include "foundation/LargePages.h"
#include "foundation/Utf8.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <memory>
#include <numeric>
#include <span>
#include <unicode/uchar.h>

namespace brellowind::LRCParser {
namespace {

/// A run of decimal digits of any script. Only ASCII digits read as numbers.
struct Digits {
    int count = 0;
    int value = 0; ///< 0 when any digit is foreign
};

/// What was read of one time tag; without an end there was none.
struct Tag {
    double time = 0; ///< seconds
    const char* end = nullptr;

    explicit operator bool() const { return end != nullptr; }
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

double seconds(int minutes, int seconds, double fraction) {
    return minutes * 60 + seconds + fraction;
}

/// Reads the form that nearly all tags have, [mm:ss.ff] in ASCII digits, without a branch on the
/// way: there the time goes that a text takes.
Tag readUsualTag(const char* open, const char* end) {
    constexpr std::ptrdiff_t length = 10;
    if (end - open < length)
        return {};
    const auto digit = [open](int i) { return static_cast<unsigned char>(open[i] - '0'); };
    const auto pair = [digit](int i) { return digit(i) * 10 + digit(i + 1); };
    bool fits = (open[3] == ':') & (open[6] == '.') & (open[9] == ']');
    for (const int i : {1, 2, 4, 5, 7, 8})
        fits &= digit(i) <= 9;
    if (!fits)
        return {};
    return {seconds(pair(1), pair(4), pair(7) / 100.0), open + length};
}

/// Reads one tag, [minutes:seconds] or [minutes:seconds.fraction], at the bracket `open` points to.
Tag readTag(const char* open, const char* end) {
    if (const auto tag = readUsualTag(open, end))
        return tag;
    const char* position = open + 1;
    const auto minute = takeDigits(position, end, 2);
    if (minute.count == 0 || !take(position, end, ':'))
        return {};
    const auto second = takeDigits(position, end, 2);
    if (second.count == 0)
        return {};
    double fraction = 0;
    if (take(position, end, '.') || take(position, end, ':')) {
        constexpr double scale[] = {1, 10, 100, 1000};
        const auto digits = takeDigits(position, end, 3);
        if (digits.count == 0)
            return {};
        fraction = digits.value / scale[digits.count];
    }
    if (!take(position, end, ']'))
        return {};
    return {seconds(minute.value, second.value, fraction), position};
}

template <typename Element>
void reserve(std::vector<Element>& list, std::size_t count) {
    list.reserve(count);
    preferLargePages(list.data(), count * sizeof(Element));
}

/// Room for `count` elements that are all written before they are read.
template <typename Element>
std::unique_ptr<Element[]> uninitialised(std::size_t count) {
    std::unique_ptr<Element[]> elements(new Element[count]);
    preferLargePages(elements.get(), count * sizeof(Element));
    return elements;
}

const char* find(const char* position, const char* end, char wanted) {
    if (position == end || *position == wanted) // tags mostly stand side by side or begin a line
        return position;
    const void* found = std::memchr(position, wanted, static_cast<std::size_t>(end - position));
    return found ? static_cast<const char*>(found) : end;
}

/// The first tag that opens at or after `position` and before `limit`; it may end after that.
Tag nextTag(const char* position, const char* limit, const char* end) {
    for (auto open = find(position, limit, '['); open != limit; open = find(open + 1, limit, '['))
        if (const auto tag = readTag(open, end))
            return tag;
    return {};
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

/// How many bytes the space takes that `takeCharacter` takes from `text`; 0 when it is none.
template <char32_t (&takeCharacter)(std::string_view&)>
std::size_t spaceAt(char outermost, std::string_view text) {
    if (isAscii(outermost))
        return isSpace(static_cast<char32_t>(outermost)) ? 1 : 0;
    auto rest = text;
    return isSpace(takeCharacter(rest)) ? text.size() - rest.size() : 0;
}

std::string_view trimmed(std::string_view text) {
    std::size_t space = 0;
    while (!text.empty() && (space = spaceAt<utf8::takeFirst>(text.front(), text)) > 0)
        text.remove_prefix(space);
    while (!text.empty() && (space = spaceAt<utf8::takeLast>(text.back(), text)) > 0)
        text.remove_suffix(space);
    return text;
}

/// What follows a tag up to the end of its piece.
struct Rest {
    const char* words; ///< begin behind the last of its tags
    const char* end;
};

/// Has `begin` up to `end` brought nearer to the processor, which by itself looks no page ahead.
void prefetch(const char* begin, const char* end) {
    constexpr std::ptrdiff_t cacheLine = 64;
    for (; begin < end; begin += cacheLine)
        __builtin_prefetch(begin);
}

/// Reads the piece from the end of its first tag. A long one is looked through part by part, first
/// for its end, then for tags while the part is still in the processor's nearest cache; meanwhile
/// one that lies ahead arrives from memory.
Rest readRest(const char* position, const char* end) {
    constexpr std::ptrdiff_t part = 2048;
    constexpr std::ptrdiff_t ahead = 8 * part;
    for (const char* words = position;;) {
        const char* const limit = position + std::min(part, end - position);
        const char* const feed = endOfPiece(position, limit);
        if (feed == limit && end - limit > ahead)
            prefetch(limit + ahead - part, limit + ahead);
        while (position < feed) {
            const auto tag = nextTag(position, feed, end);
            position = tag ? tag.end : feed;
            words = tag ? tag.end : words;
        }
        if (feed != limit || limit == end)
            return {words, feed};
    }
}

/// Every tag of `text` with the words of its piece; in order of position.
std::vector<LyricLine> readLines(const SharedBytes& text) {
    constexpr std::size_t usualTag = 10;   ///< bytes: [00:00.00]
    constexpr std::size_t shortestTag = 5; ///< [0:0]
    std::vector<LyricLine> lines;
    const char* const begin = text.view().data();
    const char* const end = begin + text.view().size();
    auto tag = nextTag(begin, end, end);
    if (tag)
        reserve(lines, text.view().size() / usualTag);
    while (tag) {
        const auto rest = readRest(tag.end, end);
        const SharedText words(text, trimmed({rest.words, rest.end}));
        for (; tag; tag = nextTag(tag.end, rest.words, end)) { // nearly always this one alone
            if (lines.size() == lines.capacity())              // unusual: for all there may be
                reserve(lines,
                        lines.size() + 1 + static_cast<std::size_t>(end - tag.end) / shortestTag);
            lines.emplace_back(tag.time, words);
        }
        tag = nextTag(rest.end == end ? end : rest.end + 1, end, end);
    }
    return lines;
}

/// Where a line stands, and what it is sorted by.
struct Place {
    std::uint32_t milliseconds;
    std::uint32_t index;
};

/// Puts each line where `order` says that it belongs, cycle by cycle: there is no second list.
void permute(std::vector<LyricLine>& lines, std::span<Place> order) {
    const auto put = [&lines](std::uint32_t place, const LyricLine& line) {
        std::destroy_at(&lines[place]);
        std::construct_at(&lines[place], line); // its fields are not assigned to
    };
    for (std::uint32_t first = 0; first < order.size(); ++first) {
        if (order[first].index == first)
            continue;
        const LyricLine displaced = lines[first];
        std::uint32_t place = first;
        for (std::uint32_t from = order[place].index; from != first; from = order[place].index) {
            put(place, lines[from]);
            order[place].index = place;
            place = from;
        }
        put(place, displaced);
        order[place].index = place;
    }
}

/// Brings the lines into the order of their times; those of one time stay as they stand. Times are
/// whole milliseconds below 2^24, so two passes over 12 bits each sort any number of them.
void sort(std::vector<LyricLine>& lines) {
    constexpr int digitBits = 12;
    constexpr std::uint32_t lowDigit = (1U << digitBits) - 1;
    const auto places = uninitialised<Place>(lines.size());
    const auto passed = uninitialised<Place>(lines.size());
    const std::span order(places.get(), lines.size());
    const std::span next(passed.get(), lines.size());

    std::array<std::uint32_t, 1U << digitBits> low{}; // how many there are, then where they go
    std::array<std::uint32_t, 1U << digitBits> high{};
    for (std::uint32_t i = 0; i < lines.size(); ++i) {
        const auto milliseconds = static_cast<std::uint32_t>(std::lround(lines[i].time * 1000));
        order[i] = {milliseconds, i};
        ++low[milliseconds & lowDigit];
        ++high[milliseconds >> digitBits];
    }
    std::exclusive_scan(low.begin(), low.end(), low.begin(), 0U);
    std::exclusive_scan(high.begin(), high.end(), high.begin(), 0U);
    for (const auto& place : order)
        next[low[place.milliseconds & lowDigit]++] = place;
    for (const auto& place : next)
        order[high[place.milliseconds >> digitBits]++] = place;
    permute(lines, order);
}

} // namespace

std::vector<LyricLine> parse(const SharedBytes& text) {
    auto lines = readLines(text);
    if (!std::ranges::is_sorted(lines, {}, &LyricLine::time))
        sort(lines);
    return lines;
}

} // namespace brellowind::LRCParser
