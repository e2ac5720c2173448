#pragma once

#include <string>
#include <string_view>

namespace brellowind {

/// Appends the percent escape of one byte to a URL.
inline void appendEscape(std::string& url, char character) {
    constexpr std::string_view hex = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(character);
    url.append({'%', hex[byte >> 4], hex[byte & 0xF]});
}

/// The URL of a local file as programs write it by hand, with spaces and letters outside ASCII,
/// made a valid one. Escapes that are there stay.
inline std::string fileURL(std::string_view text) {
    std::string url;
    for (const char character : text) {
        if (character == ' ' || static_cast<unsigned char>(character) > 0x7F)
            appendEscape(url, character);
        else
            url += character;
    }
    return url;
}

} // namespace brellowind
