#pragma once

#include <cstddef>
#include <string_view>

/// Characters of UTF-8 texts that may hold anything.
namespace brellowind::utf8 {

/// What stands for bytes that are not UTF-8.
inline constexpr char32_t invalid = 0xFFFF'FFFF;

/// The first character of `text`, which loses it. `text` is not empty.
char32_t takeFirst(std::string_view& text);

/// The last character of `text`, which loses it. `text` is not empty.
char32_t takeLast(std::string_view& text);

bool isValid(std::string_view text);

/// The beginning of `text`, which is valid: at most `bytes` long, without half a character.
std::string_view beginning(std::string_view text, std::size_t bytes);

} // namespace brellowind::utf8
