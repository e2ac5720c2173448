#include "foundation/Utf8.h"

#include <algorithm>
#include <cstdint>
#include <unicode/utf8.h>

// The macros of ICU narrow their own intermediate values.
#pragma GCC diagnostic ignored "-Wconversion"

namespace brellowind::utf8 {
namespace {

constexpr std::size_t longestCharacter = U8_MAX_LENGTH;

char32_t character(UChar32 decoded) {
    return decoded < 0 ? invalid : static_cast<char32_t>(decoded);
}

} // namespace

char32_t takeFirstMultibyte(std::string_view& text) {
    const auto reach = static_cast<std::int32_t>(std::min(text.size(), longestCharacter));
    std::int32_t position = 0;
    UChar32 decoded;
    U8_NEXT(text.data(), position, reach, decoded);
    text.remove_prefix(static_cast<std::size_t>(position));
    return character(decoded);
}

char32_t takeLastMultibyte(std::string_view& text) {
    const auto reach = text.substr(text.size() - std::min(text.size(), longestCharacter));
    auto position = static_cast<std::int32_t>(reach.size());
    UChar32 decoded;
    U8_PREV(reach.data(), 0, position, decoded);
    text.remove_suffix(reach.size() - static_cast<std::size_t>(position));
    return character(decoded);
}

bool isValid(std::string_view text) {
    while (!text.empty())
        if (takeFirst(text) == invalid)
            return false;
    return true;
}

std::string_view beginning(std::string_view text, std::size_t bytes) {
    if (text.size() <= bytes)
        return text;
    while (bytes > 0 && U8_IS_TRAIL(text[bytes]))
        --bytes;
    return text.substr(0, bytes);
}

} // namespace brellowind::utf8
