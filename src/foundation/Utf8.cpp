// SPDX-License-Identifier: MIT

#include "foundation/Utf8.h"

namespace brellowind::utf8 {
namespace {

bool isTrail(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// How many bytes a character has whose first byte is `lead`; 0 if none begins so.
std::size_t length(unsigned char lead) {
    if (lead < 0x80)
        return 1;
    if (lead < 0xC2) // a trail byte, or more bytes than the character needs
        return 0;
    if (lead < 0xE0)
        return 2;
    if (lead < 0xF0)
        return 3;
    return lead < 0xF5 ? 4 : 0;
}

/// The character that the `bytes` are, of which there are at least two, as many as the first says.
char32_t decoded(std::string_view bytes) {
    constexpr char32_t leadBits[] = {0x1F, 0x0F, 0x07};
    constexpr char32_t smallest[] = {0x80, 0x800, 0x10000};
    const auto form = bytes.size() - 2;
    char32_t character = static_cast<unsigned char>(bytes.front()) & leadBits[form];
    for (const char byte : bytes.substr(1)) {
        if (!isTrail(byte))
            return invalid;
        character = character << 6 | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
    return character < smallest[form] || isSurrogate || character > 0x10FFFF ? invalid : character;
}

} // namespace

char32_t takeFirstMultibyte(std::string_view& text) {
    const auto bytes = length(static_cast<unsigned char>(text.front()));
    const auto character =
        bytes < 2 || bytes > text.size() ? invalid : decoded(text.substr(0, bytes));
    text.remove_prefix(character == invalid ? 1 : bytes);
    return character;
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
    while (bytes > 0 && isTrail(text[bytes]))
        --bytes;
    return text.substr(0, bytes);
}

} // namespace brellowind::utf8
